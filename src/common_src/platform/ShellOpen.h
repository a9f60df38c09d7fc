#pragma once

#include <string>

namespace ZelCommon::Platform {

// Handing a web address to the user's browser (ShellExecuteW with the "open" verb).
class IShellOpen {
public:
    virtual ~IShellOpen() = default;
    virtual bool OpenAddress(const std::wstring& address) = 0;
};

}  // namespace ZelCommon::Platform
