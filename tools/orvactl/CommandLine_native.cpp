#include "CommandLine.h"

#include "common_src/platform/TextCodec.h"

namespace Orva::Orvactl {

std::vector<std::wstring> CommandLineArguments(int argc, char** argv) {
    std::vector<std::wstring> args;
    for (int i = 1; i < argc; ++i) {
        args.push_back(ZelCommon::Text::Utf8ToWide(argv[i]));
    }
    return args;
}

}  // namespace Orva::Orvactl
