#include <windows.h>
// shellapi.h needs the declarations of windows.h first.
#include <shellapi.h>

#include "common_src/platform/ShellOpen.h"

namespace ZelCommon::Platform {
namespace {

class WindowsShellOpen final : public IShellOpen {
public:
    bool OpenAddress(const std::wstring& address) override {
        // An empty file name would make the shell open the current folder instead.
        if (address.empty()) {
            return false;
        }
        const HINSTANCE result =
            ::ShellExecuteW(nullptr, L"open", address.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
        // Values up to 32 are error codes.
        return reinterpret_cast<INT_PTR>(result) > 32;
    }
};

}  // namespace

IShellOpen& SystemShellOpen() {
    static WindowsShellOpen shell;
    return shell;
}

}  // namespace ZelCommon::Platform
