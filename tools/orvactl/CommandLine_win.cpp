#include <windows.h>
// shellapi.h needs the declarations of windows.h first.
#include <shellapi.h>

#include "CommandLine.h"
#include "common_src/platform/UniqueAny_win.h"

namespace Orva::Orvactl {

std::vector<std::wstring> CommandLineArguments(int, char**) {
    int count = 0;
    const ZelCommon::Platform::unique_hlocal_ptr<LPWSTR> argv(
        CommandLineToArgvW(GetCommandLineW(), &count));
    std::vector<std::wstring> args;
    if (!argv) {
        return args;
    }
    for (int i = 1; i < count; ++i) {
        args.emplace_back(argv.get()[i]);
    }
    return args;
}

}  // namespace Orva::Orvactl
