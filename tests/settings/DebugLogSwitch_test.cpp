#include "settings/DebugLogSwitch.h"

#include <gtest/gtest.h>

#include "SettingsTestFiles.h"
#include "common_src/platform/Path.h"
#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeProcessContext.h"

namespace Orva::Settings {
namespace {

using ZelCommon::Library::DebugLog;

struct SwitchCase {
    const wchar_t* debug;       // the installation's Debug, or none
    const wchar_t* hiddenFunc;  // the user's HiddenFunc, or none
    const wchar_t* agentLog;    // the user's AgentLog, or none
    bool on;
    bool hiddenFunctions;
};

// Only a Debug that reads "1" (the profile read trims blanks and one pair of surrounding quotes)
// switches the log on, in the user's log folder under the AgentLog name; only then does
// HiddenFunc count. Otherwise not even the log folder is created.
TEST(DebugLogSwitch, DebugSetting_DecidesLogFileAndHiddenFunctions) {
    const SwitchCase cases[] = {
        {L"1", nullptr, nullptr, true, false},    {L"  1  ", nullptr, nullptr, true, false},
        {L"\t1", nullptr, nullptr, true, false},  {L"\"1\"", nullptr, nullptr, true, false},
        {L"'1'", nullptr, nullptr, true, false},  {L"1", L"5", nullptr, true, true},
        {L"1", L"0", nullptr, true, false},       {L"1", nullptr, L"Trace.txt", true, false},
        {nullptr, L"1", nullptr, false, false},   {L"0", L"1", nullptr, false, false},
        {L"", L"1", nullptr, false, false},       {L"true", L"1", nullptr, false, false},
        {L"yes", L"1", nullptr, false, false},    {L"2", L"1", nullptr, false, false},
        {L"01", L"1", nullptr, false, false},     {L"1 1", L"1", nullptr, false, false},
        {L"\"1 \"", L"1", nullptr, false, false},
    };
    for (const SwitchCase& each : cases) {
        SCOPED_TRACE(testing::Message() << (each.debug ? each.debug : L"(none)") << " "
                                        << (each.hiddenFunc ? each.hiddenFunc : L"(none)"));
        ZelCommon::Library::SetHiddenFunctionsEnabled(false);
        Testing::SettingsTestFiles t;
        ZelCommon::Fakes::FakeClock clock{ZelCommon::Fakes::FakeClock::At(2024, 1, 31, 10)};
        ZelCommon::Fakes::FakeProcessContext process;
        ZelCommon::Fakes::FakeDebuggerOutput debugger;
        DebugLog log{clock, process, debugger};
        if (each.debug != nullptr) {
            t.SetInstall(SettingId::InstallDebug, each.debug);
        }
        if (each.hiddenFunc != nullptr) {
            t.SetUserRaw(SettingId::HiddenFunc, each.hiddenFunc);
        }
        if (each.agentLog != nullptr) {
            t.SetUserRaw(SettingId::AgentLog, each.agentLog);
        }
        const std::wstring folder =
            t.temp.Folder(L"user") + L"log" + std::wstring(1, ZelCommon::Path::kSeparator);

        EXPECT_EQ(SwitchOnDebugLog(t.store, folder, log), each.on);

        EXPECT_EQ(log.IsLogOn(), each.on);
        EXPECT_EQ(ZelCommon::Library::HiddenFunctionsEnabled(), each.hiddenFunctions);
        EXPECT_EQ(ZelCommon::Path::FolderExists(folder), each.on);
        EXPECT_EQ(ZelCommon::Path::FileExists(folder + L"ORVAAgent.20240131.log"),
                  each.on && each.agentLog == nullptr);
        EXPECT_EQ(ZelCommon::Path::FileExists(folder + L"Trace.20240131.txt"),
                  each.on && each.agentLog != nullptr);
    }
    ZelCommon::Library::SetHiddenFunctionsEnabled(false);
}

}  // namespace
}  // namespace Orva::Settings
