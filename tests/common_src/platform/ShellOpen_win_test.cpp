#include <gtest/gtest.h>

#include "common_src/platform/ShellOpen.h"
#include "support/TempFolder.h"

namespace {

using ZelCommon::Platform::SystemShellOpen;

// Only failures are tried here: a successful open would start a browser.
TEST(SystemShellOpenWin, NothingToOpen_Fails) {
    const Orva::Testing::TempFolder temp;
    EXPECT_FALSE(SystemShellOpen().OpenAddress(L""));
    EXPECT_FALSE(SystemShellOpen().OpenAddress(temp.File(L"missing.orvanone")));
}

}  // namespace
