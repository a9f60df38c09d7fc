#pragma once

#include <string>

namespace ZelCommon::Platform {

// Handing a web address to the user's browser (ShellExecuteW with the "open" verb).
class IShellOpen {
public:
    virtual ~IShellOpen() = default;
    // False for an empty address or when the shell found nothing to open it with.
    virtual bool OpenAddress(const std::wstring& address) = 0;
};

IShellOpen& SystemShellOpen();

}  // namespace ZelCommon::Platform
