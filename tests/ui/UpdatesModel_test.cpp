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
    // The suite's key with its values as REG_SZ.
    void InstallSuite(std::initializer_list<std::pair<const wchar_t*, std::wstring>> values) {
        RegHandle key = 0;
        ASSERT_EQ(
            registry.CreateKey(RootHandle(RegRoot::LocalMachine), L"SOFTWARE\\Halvion\\Vantor",
                               RegAccess::AllAccess, nullptr, &key),
            0);
        for (const auto& [name, text] : values) {
            std::string bytes = ZelCommon::Text::WideToUtf16Le(text);
            bytes.append(2, '\0');
            registry.SetValue(key, name, RegType::Sz,
                              reinterpret_cast<const uint8_t*>(bytes.data()),
                              static_cast<uint32_t>(bytes.size()));
        }
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
    const std::pair<int32_t, int> cases[] = {
        {-5, 0},  {0, 0},   {119, 0}, {120, 1}, {180, 1},  {181, 2},  {360, 2},  {361, 3},
        {540, 3}, {541, 4}, {720, 4}, {721, 5}, {1440, 5}, {1441, 6}, {2880, 6}, {99999, 6},
    };
    for (const auto& [minutes, index] : cases) {
        EXPECT_EQ(ScheduleIndexOf(minutes), index) << minutes;
    }
    const std::pair<int, int32_t> written[] = {{0, 60},   {1, 180},  {2, 360},  {3, 540},  {4, 720},
                                               {5, 1440}, {6, 2880}, {7, 2880}, {-1, 2880}};
    for (const auto& [index, minutes] : written) {
        EXPECT_EQ(ScheduleMinutesAt(index), minutes) << index;
    }
}

TEST(UpdatesModel, Interval200_ShowsAndWritesSixHours) {
    UpdatesRig rig;
    rig.files.SetUserRaw(SettingId::Interval, L"200");
    rig.files.SetUserRaw(SettingId::UpdateUI, L"1");
    CUpdatesModel model = rig.Model();
    EXPECT_EQ(model.Choices(), (UpdateChoices{true, false, 2}));
    EXPECT_FALSE(model.IsOkEnabled());

    model.NoteChange();
    ASSERT_TRUE(model.IsOkEnabled());
    EXPECT_TRUE(model.Confirm({false, true, 2}));
    EXPECT_EQ(rig.files.UserRaw(SettingId::Interval), L"360");
    EXPECT_EQ(rig.files.UserRaw(SettingId::EnableSchedule), L"0");
    EXPECT_EQ(rig.files.UserRaw(SettingId::UpdateUI), L"0");
}

TEST(UpdatesModel, SuiteBusy_OkWritesNothingAndStaysOpen) {
    UpdatesRig rig;
    rig.windows.AddWindow(std::wstring(Plugin::kSuiteWindowTitle));
    CUpdatesModel model = rig.Model();
    model.NoteChange();
    EXPECT_FALSE(model.Confirm({false, false, 0}));
    EXPECT_EQ(rig.files.UserRaw(SettingId::Interval), L"<missing>");
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
    EXPECT_EQ(model.Status(), (UpdateStatus{L"0.0.0", L"00000000", L"0.00.0.0000", 0, 0}));
    EXPECT_FALSE(model.Refresh());

    rig.files.SetUserRaw(SettingId::PatchVer, L"20240131");
    rig.files.SetUserRaw(SettingId::LastUpdateTime, L"1700000000");
    rig.files.SetUserRaw(SettingId::UpToDate, L"1");
    EXPECT_TRUE(model.Refresh());
    EXPECT_EQ(model.Status(), (UpdateStatus{L"0.0.0", L"20240131", L"0.00.0.0000", kNow, 1}));
    EXPECT_FALSE(model.Refresh());
}

TEST(UpdatesModel, GroupTitle_InstallationTitleElseLocalised_WithTheSpamName) {
    UpdatesRig rig;
    rig.strings.texts[L"IDS_SPAM_NAME"] = L"Anti-Spam";
    EXPECT_EQ(rig.Model().GroupTitle(L"<$SPAM_NAME> updates"), L"Anti-Spam updates");
    rig.files.SetInstall(SettingId::InstallASGroupTitle, L"<$SPAM_NAME> rules");
    rig.files.SetInstall(SettingId::InstallAntiSpamTitle, L"SpamGuard");
    EXPECT_EQ(rig.Model().GroupTitle(L"<$SPAM_NAME> updates"), L"SpamGuard rules");
}

// Update now asks the agent (1030, posted) unless the suite is version 17, with the log lines
// the support desk reads.
TEST(UpdatesModel, UpdateNow_SuiteVersionDecides) {
    const std::wstring kNoKey =
        L"@@@ Error:open HKEY_LOCAL_MACHINE\\SOFTWARE\\Halvion\\Vantor failed\n";
    const struct {
        const wchar_t* version;  // nullptr: no suite key
        bool posted;
        std::vector<std::wstring> log;
    } cases[] = {
        {L"17.0.1", false, {L"@@@ VNS version is 17.0.1\n", L"@@@ Error:VNS version is 17\n"}},
        {L"16.5", true, {L"@@@ VNS version is 16.5\n"}},
        {nullptr, true, {kNoKey, L"@@@ Error:get VNS version  failed\n", L"@@@ VNS version is \n"}},
    };
    for (const auto& each : cases) {
        UpdatesRig rig;
        if (each.version != nullptr) {
            rig.InstallSuite({{L"version", each.version}});
        }
        rig.Model().UpdateNow();
        const auto expected = each.posted ? std::vector{rig.Received(1030)}
                                          : std::vector<Testing::PageRig::Message>{};
        EXPECT_EQ(rig.AgentReceived(), expected);
        EXPECT_EQ(rig.log.Lines(), each.log);
    }
}

TEST(UpdatesModel, Help_OpensTheSuitesHelpFileElseTheAddinsOwn) {
    UpdatesRig rig;
    ASSERT_TRUE(rig.Model().OpenHelp());
    rig.InstallSuite({{L"Application Path", L"D:\\Suite\\"}});
    rig.Model().OpenHelp();
    ASSERT_EQ(rig.launcher.Launches().size(), 2u);
    EXPECT_EQ(rig.launcher.Launches()[0].commandLine,
              L"hh.exe -mapid 206 \"C:\\Addin\\zelhelp.chm\"");
    EXPECT_EQ(rig.launcher.Launches()[1].commandLine,
              L"hh.exe -mapid 206 \"D:\\Suite\\zelhelp.chm\"");
}

TEST(UpdatesDialogKey, AltOPressesOkOnlyWhileEnabled_AltCCancels) {
    constexpr uint32_t kKeyDown = 0x100, kKeyUp = 0x101, kSysKeyDown = 0x104, kSysChar = 0x106;
    const struct {
        uint32_t message;
        uintptr_t key;
        bool alt;
        bool okEnabled;
        DialogKey expected;
    } cases[] = {
        {kSysKeyDown, 'O', true, true, DialogKey::Ok},
        {kKeyDown, 'o', true, true, DialogKey::Ok},
        {kSysKeyDown, 'O', true, false, DialogKey::Swallow},
        {kSysKeyDown, 'C', true, false, DialogKey::Cancel},
        {kSysChar, 'o', true, true, DialogKey::Swallow},
        {kKeyUp, 'C', true, true, DialogKey::Swallow},
        {kKeyDown, 'O', false, true, DialogKey::None},
        {kSysKeyDown, 'X', true, true, DialogKey::None},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(UpdatesDialogKey(each.message, each.key, each.alt, each.okEnabled), each.expected)
            << each.message << " " << char(each.key) << " " << each.okEnabled;
    }
}

}  // namespace
}  // namespace Orva::Ui
