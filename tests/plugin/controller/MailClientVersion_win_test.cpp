#include <gtest/gtest.h>

#include "plugin/controller/MailClientVersion.h"
#include "support/fakes/platform/FakeProcessContext.h"

namespace Orva::Plugin {
namespace {

TEST(MailClientVersionWin, TheExecutablesFileVersion_GivesTheMajorVersion) {
    // This program carries the version resource of the mail client 2012.
    CMailClientVersion version;
    EXPECT_EQ(version.MajorVersion(), 16);
}

TEST(MailClientVersionWin, AnExecutableWithoutVersion_GivesNone) {
    ZelCommon::Fakes::FakeProcessContext process;
    process.SetExecutableFilePath(L"C:\\no such folder\\wlmail.exe");
    CMailClientVersion version(process);
    EXPECT_EQ(version.MajorVersion(), std::nullopt);
}

}  // namespace
}  // namespace Orva::Plugin
