#include <windows.h>
// shellapi.h needs the declarations of windows.h first.
#include <shellapi.h>

#include <memory>

#include "CommandLine.h"

namespace Orva::Orvactl {
namespace {

struct LocalFreeDeleter {
    void operator()(LPWSTR* block) const { LocalFree(block); }
};

}  // namespace

std::vector<std::wstring> CommandLineArguments(int, char**) {
    int count = 0;
    const std::unique_ptr<LPWSTR, LocalFreeDeleter> argv(
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
