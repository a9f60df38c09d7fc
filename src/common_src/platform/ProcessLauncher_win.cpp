#include <windows.h>

#include <string>
#include <vector>

#include "common_src/platform/ProcessLauncher.h"
#include "common_src/platform/UniqueAny_win.h"

namespace ZelCommon::Platform {
namespace {

class WindowsProcessLauncher final : public IProcessLauncher {
public:
    bool Launch(const std::wstring& commandLine, const std::wstring& workingFolder) override {
        try {
            // CreateProcessW may write into the command line, so it gets a copy of its own.
            std::vector<wchar_t> buffer(commandLine.begin(), commandLine.end());
            buffer.push_back(L'\0');
            STARTUPINFOW startup{};
            startup.cb = sizeof(startup);
            PROCESS_INFORMATION info{};
            const wchar_t* folder = workingFolder.empty() ? nullptr : workingFolder.c_str();
            if (!::CreateProcessW(nullptr, buffer.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                  folder, &startup, &info)) {
                return false;
            }
            // Nobody waits for the child: both handles go at once.
            const unique_handle process(info.hProcess);
            const unique_handle thread(info.hThread);
            return true;
        } catch (...) {
            return false;
        }
    }
};

}  // namespace

IProcessLauncher& SystemProcessLauncher() {
    static WindowsProcessLauncher launcher;
    return launcher;
}

}  // namespace ZelCommon::Platform
