#include <windows.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "tools/orvactl/CommandLine.h"

namespace Orva::Orvactl {
namespace {

// The runtime's own split of the command line, narrow; test arguments are plain ASCII.
TEST(CommandLineArguments, MatchTheRuntimesArgumentsWithoutTheProgramName) {
    const auto args = CommandLineArguments(__argc, __argv);
    ASSERT_EQ(args.size(), static_cast<size_t>(__argc - 1));
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string narrow(__argv[i + 1]);
        EXPECT_EQ(args[i], std::wstring(narrow.begin(), narrow.end()));
    }
}

}  // namespace
}  // namespace Orva::Orvactl
