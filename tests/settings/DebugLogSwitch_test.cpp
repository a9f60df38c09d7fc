#include "settings/DebugLogSwitch.h"

#include <gtest/gtest.h>

#include "SettingsTestFiles.h"
#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "common_src/platform/Path.h"

namespace Orva::Settings {
namespace {

using ZelCommon::Library::DebugLog;

class DebugLogSwitchTest : public testing::Test {
protected:
    void SetUp() override { ZelCommon::Library::SetHiddenFunctionsEnabled(false); }
    void TearDown() override { ZelCommon::Library::SetHiddenFunctionsEnabled(false); }

    std::wstring LogFolder() const {
        return t.temp.Folder(L"user") + L"log" + std::wstring(1, ZelCommon::Path::kSeparator);
    }
    std::wstring DatedFile(const std::wstring& name) const {
        return DebugLog::DatedPath(ZelCommon::Path::ChildFile(LogFolder(), name), clock.Now());
    }

    Testing::SettingsTestFiles t;
    ZelCommon::Fakes::FakeClock clock{ZelCommon::Fakes::FakeClock::At(2024, 1, 31, 10)};
    ZelCommon::Fakes::FakeProcessContext process;
    ZelCommon::Fakes::FakeDebuggerOutput debugger;
    DebugLog log{clock, process, debugger};
};

TEST_F(DebugLogSwitchTest, DebugOne_OpensTheAgentLogInTheUsersLogFolder) {
    t.SetInstall(SettingId::InstallDebug, L"1");

    EXPECT_TRUE(SwitchOnDebugLog(t.store, LogFolder(), log));

    EXPECT_TRUE(log.IsLogOn());
    EXPECT_TRUE(ZelCommon::Path::FolderExists(LogFolder()));
    EXPECT_TRUE(ZelCommon::Path::FileExists(DatedFile(L"ORVAAgent.log")));
    EXPECT_EQ(DatedFile(L"ORVAAgent.log"), LogFolder() + L"ORVAAgent.20240131.log");
}

TEST_F(DebugLogSwitchTest, AgentLog_NamesTheFile) {
    t.SetInstall(SettingId::InstallDebug, L"1");
    t.SetUserRaw(SettingId::AgentLog, L"Trace.txt");

    SwitchOnDebugLog(t.store, LogFolder(), log);

    EXPECT_TRUE(ZelCommon::Path::FileExists(DatedFile(L"Trace.txt")));
    EXPECT_FALSE(ZelCommon::Path::FileExists(DatedFile(L"ORVAAgent.log")));
}

class DebugLogSwitchOn : public DebugLogSwitchTest,
                         public testing::WithParamInterface<const wchar_t*> {};

// The profile read trims blanks and one pair of surrounding quotes before the comparison.
TEST_P(DebugLogSwitchOn, ValueReadingOne_SwitchesTheLogOn) {
    t.SetInstall(SettingId::InstallDebug, GetParam());
    EXPECT_TRUE(SwitchOnDebugLog(t.store, LogFolder(), log));
    EXPECT_TRUE(log.IsLogOn());
}

INSTANTIATE_TEST_SUITE_P(Values, DebugLogSwitchOn,
                         testing::Values(L"1", L"  1  ", L"\t1", L"\"1\"", L"'1'"));

class DebugLogSwitchOff : public DebugLogSwitchTest,
                          public testing::WithParamInterface<const wchar_t*> {};

TEST_P(DebugLogSwitchOff, AnythingButOne_LeavesTheLogOffAndCreatesNothing) {
    if (GetParam() != nullptr) {
        t.SetInstall(SettingId::InstallDebug, GetParam());
    }
    t.SetUserRaw(SettingId::HiddenFunc, L"1");

    EXPECT_FALSE(SwitchOnDebugLog(t.store, LogFolder(), log));

    EXPECT_FALSE(log.IsLogOn());
    EXPECT_FALSE(ZelCommon::Path::FolderExists(LogFolder()));
    EXPECT_FALSE(ZelCommon::Library::HiddenFunctionsEnabled());
}

INSTANTIATE_TEST_SUITE_P(Values, DebugLogSwitchOff,
                         testing::Values(nullptr, L"0", L"", L"true", L"yes", L"2", L"01", L"1 1",
                                         L"\"1 \""));

TEST_F(DebugLogSwitchTest, HiddenFunc_IsTakenOnlyWhenDebugIsOne) {
    t.SetInstall(SettingId::InstallDebug, L"1");
    t.SetUserRaw(SettingId::HiddenFunc, L"5");
    SwitchOnDebugLog(t.store, LogFolder(), log);
    EXPECT_TRUE(ZelCommon::Library::HiddenFunctionsEnabled());
}

TEST_F(DebugLogSwitchTest, HiddenFuncZero_LeavesHiddenFunctionsOff) {
    t.SetInstall(SettingId::InstallDebug, L"1");
    t.SetUserRaw(SettingId::HiddenFunc, L"0");
    SwitchOnDebugLog(t.store, LogFolder(), log);
    EXPECT_TRUE(log.IsLogOn());
    EXPECT_FALSE(ZelCommon::Library::HiddenFunctionsEnabled());
}

}  // namespace
}  // namespace Orva::Settings
