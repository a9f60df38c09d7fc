#include "ui/UpdatesModel.h"

#include <gtest/gtest.h>

#include "PageRig.h"
#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/platform/TextCodec.h"
#include "support/fakes/platform/FakeSystemPorts.h"

namespace Orva::Ui {
namespace {

using namespace ZelCommon::Storage;
using Settings::SettingId;

constexpr int64_t kNow = 1'700'000'000;

struct UpdatesRig : Testing::PageRig {
    // The suite's key with one REG_SZ value.
    void InstallSuite(const wchar_t* name, const std::wstring& text) {
        RegHandle key = 0;
        registry.CreateKey(RootHandle(RegRoot::LocalMachine), L"SOFTWARE\\Halvion\\Vantor",
                           RegAccess::AllAccess, nullptr, &key);
        const std::string bytes = ZelCommon::Text::WideToUtf16Le(text) + std::string(2, '\0');
        registry.SetValue(key, name, RegType::Sz, reinterpret_cast<const uint8_t*>(bytes.data()),
                          static_cast<uint32_t>(bytes.size()));
        registry.CloseKey(key);
    }
    CUpdatesModel Model() {
        return CUpdatesModel(services, {registry, windows, launcher}, L"C:\\Addin\\");
    }

    MemoryRegistry registry;
    ZelCommon::Fakes::FakeProcessLauncher launcher;
};

// Each choice takes the stored values up to its own: 119 still shows one hour, 120 three.
TEST(UpdatesSchedule, StoredInterval_ShowsTheSmallestChoiceNotBelowIt) {
    const std::pair<int32_t, int> shown[] = {
        {-5, 0},  {119, 0}, {120, 1}, {180, 1},  {181, 2},  {360, 2},  {361, 3},   {540, 3},
        {541, 4}, {720, 4}, {721, 5}, {1440, 5}, {1441, 6}, {2880, 6}, {99999, 6},
    };
    for (const auto& [minutes, index] : shown) {
        EXPECT_EQ(ScheduleIndexOf(minutes), index) << minutes;
    }
    const std::pair<int, int32_t> written[] = {{0, 60},   {1, 180},  {2, 360},  {3, 540},  {4, 720},
                                               {5, 1440}, {6, 2880}, {7, 2880}, {-1, 2880}};
    for (const auto& [index, minutes] : written) {
        EXPECT_EQ(ScheduleMinutesAt(index), minutes) << index;
    }
}

// OK writes only after a change, never while the suite is busy; 200 minutes come back as 360.
TEST(UpdatesModel, Interval200_OkWritesSixHoursUnlessTheSuiteIsBusy) {
    for (const bool suiteBusy : {false, true}) {
        UpdatesRig rig;
        rig.files.SetUserRaw(SettingId::Interval, L"200");
        rig.files.SetUserRaw(SettingId::UpdateUI, L"1");
        if (suiteBusy) {
            rig.windows.AddWindow(std::wstring(Plugin::kSuiteWindowTitle));
        }
        CUpdatesModel model = rig.Model();
        EXPECT_EQ(model.Choices(), (UpdateChoices{true, false, 2}));
        EXPECT_FALSE(model.IsOkEnabled());
        model.NoteChange();
        EXPECT_EQ(model.Confirm({false, true, 2}), !suiteBusy);
        EXPECT_EQ(rig.files.UserRaw(SettingId::Interval), suiteBusy ? L"200" : L"360");
        EXPECT_EQ(rig.files.UserRaw(SettingId::UpdateUI), suiteBusy ? L"1" : L"0");
    }
}

// Seven days to the second are out of date; a time in the future is current.
TEST(UpdatesModel, LastUpdate_TextAndColourByAge) {
    const struct {
        int64_t lastUpdate;
        std::wstring text;
        bool red;
    } cases[] = {
        {0, L"never", true},
        {kNow - 604799, L"1.1.2024 (up to date)", false},
        {kNow - 604800, L"1.1.2024 (out of date)", true},
        {kNow + 3600, L"1.1.2024 (up to date)", false},
    };
    for (const auto& each : cases) {
        UpdatesRig rig;
        rig.strings.texts = {{L"IDS_STR_NOT_UPDATE_YET", L"never"},
                             {L"IDS_UP_TO_DATE", L"(up to date)"},
                             {L"IDS_OUT_OF_DATE", L"(out of date)"}};
        rig.files.SetUserRaw(SettingId::LastUpdateTime, std::to_wstring(each.lastUpdate));
        const CUpdatesModel model = rig.Model();
        EXPECT_EQ(model.LastUpdateText(L"1.1.2024", kNow), each.text) << each.lastUpdate;
        EXPECT_EQ(model.IsLastUpdateRed(kNow), each.red) << each.lastUpdate;
    }
}

// The timer's refresh shows what the agent wrote during an update started from the dialog.
TEST(UpdatesModel, Refresh_PicksUpWhatTheAgentWrote) {
    UpdatesRig rig;
    CUpdatesModel model = rig.Model();
    EXPECT_FALSE(model.Refresh());
    rig.files.SetUserRaw(SettingId::PatchVer, L"20240131");
    rig.files.SetUserRaw(SettingId::LastUpdateTime, L"1700000000");
    rig.files.SetUserRaw(SettingId::UpToDate, L"1");
    EXPECT_TRUE(model.Refresh());
    EXPECT_EQ(model.Status(), (UpdateStatus{L"0.0.0", L"20240131", L"0.00.0.0000", kNow, 1}));
}

// Update now asks the agent (1030, posted) unless the suite is version 17.
TEST(UpdatesModel, UpdateNow_SuiteVersionDecides) {
    const struct {
        const wchar_t* version;  // nullptr: no suite key
        bool posted;
        std::vector<std::wstring> log;
    } cases[] = {
        {L"17.0.1", false, {L"@@@ VNS version is 17.0.1\n", L"@@@ Error:VNS version is 17\n"}},
        {L"16.5", true, {L"@@@ VNS version is 16.5\n"}},
        {nullptr,
         true,
         {L"@@@ Error:open HKEY_LOCAL_MACHINE\\SOFTWARE\\Halvion\\Vantor failed\n",
          L"@@@ Error:get VNS version  failed\n", L"@@@ VNS version is \n"}},
    };
    for (const auto& each : cases) {
        UpdatesRig rig;
        if (each.version != nullptr) {
            rig.InstallSuite(L"version", each.version);
        }
        rig.Model().UpdateNow();
        EXPECT_EQ(rig.AgentReceived().size(), each.posted ? 1u : 0u);
        EXPECT_EQ(rig.log.Lines(), each.log);
    }
}

TEST(UpdatesModel, Help_OpensTheSuitesHelpFileElseTheAddinsOwn) {
    UpdatesRig rig;
    rig.Model().OpenHelp();
    rig.InstallSuite(L"Application Path", L"D:\\Suite\\");
    rig.Model().OpenHelp();
    ASSERT_EQ(rig.launcher.Launches().size(), 2u);
    EXPECT_EQ(rig.launcher.Launches()[0].commandLine,
              L"hh.exe -mapid 206 \"C:\\Addin\\zelhelp.chm\"");
    EXPECT_EQ(rig.launcher.Launches()[1].commandLine,
              L"hh.exe -mapid 206 \"D:\\Suite\\zelhelp.chm\"");
}

TEST(UpdatesDialogKey, AltOPressesOkOnlyWhileEnabled_AltCCancels) {
    constexpr uint32_t kKeyDown = 0x100, kKeyUp = 0x101, kSysKeyDown = 0x104;
    const std::tuple<uint32_t, uintptr_t, bool, bool, DialogKey> cases[] = {
        {kSysKeyDown, 'O', true, true, DialogKey::Ok},
        {kSysKeyDown, 'o', true, false, DialogKey::Swallow},
        {kSysKeyDown, 'C', true, false, DialogKey::Cancel},
        {kKeyUp, 'C', true, true, DialogKey::Swallow},
        {kKeyDown, 'O', false, true, DialogKey::None},
    };
    for (const auto& [message, key, alt, okEnabled, expected] : cases) {
        EXPECT_EQ(UpdatesDialogKey(message, key, alt, okEnabled), expected) << message << key;
    }
}

}  // namespace
}  // namespace Orva::Ui
