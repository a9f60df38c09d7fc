#include "ui/StatisticsModel.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "PageRig.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

class FakeMessageBoxes final : public IMessageBoxes {
public:
    BoxAnswer Show(ZelCommon::Platform::WindowHandle, const std::wstring&, const std::wstring&,
                   uint32_t style) override {
        styles.push_back(style);
        return answer;
    }
    BoxAnswer answer = BoxAnswer::No;
    std::vector<uint32_t> styles;
};

// The agent writes the counters it holds on 1045 and clears them on 1050, as the real one does:
// the file holds them only after the agent answered, so the figures show that it was waited for.
struct StatisticsRig : Testing::PageRig {
    StatisticsRig() {
        windows.SetHandler(agentWindow, [this](const Message& message) -> intptr_t {
            if (message.message == Plugin::AgentMessage::ResetStatistics) {
                held = {L"0", L"0", L"0"};
                files.SetUserRaw(SettingId::RunningSince, L"1700000000");
            }
            files.SetUserRaw(SettingId::ProcessedMsg, held[0]);
            files.SetUserRaw(SettingId::DetectedSpam, held[1]);
            files.SetUserRaw(SettingId::ReportedFP, held[2]);
            return 0;
        });
    }
    bool AgentWasSent(uint32_t message) const {
        const auto received = AgentReceived();
        return std::find(received.begin(), received.end(),
                         Message{agentWindow, message, 0, 0, Delivery::Sent, true}) !=
               received.end();
    }
    std::vector<std::wstring> held = {L"100", L"10", L"2"};
    FakeMessageBoxes boxes;
    CStatisticsModel model{services, boxes};
};

TEST(StatisticsModel, ResetAnswered_YesClearsThroughTheAgent_NoChangesNothing) {
    for (const BoxAnswer answer : {BoxAnswer::Yes, BoxAnswer::No}) {
        StatisticsRig rig;
        rig.model.BuildBaseLayout();
        rig.model.Recompute();
        rig.boxes.answer = answer;
        const bool yes = answer == BoxAnswer::Yes;

        EXPECT_TRUE(rig.AgentWasSent(Plugin::AgentMessage::RefreshStatistics));
        EXPECT_EQ(rig.model.Reset(0), yes);
        EXPECT_EQ(rig.boxes.styles, std::vector<uint32_t>{0x34u});  // Yes/No, exclamation
        EXPECT_EQ(rig.AgentWasSent(Plugin::AgentMessage::ResetStatistics), yes);
        EXPECT_EQ(rig.model.Figures().counters.processed, yes ? 0 : 100);
        EXPECT_EQ(rig.model.RunningSince(),
                  yes ? std::optional<int64_t>(1700000000) : std::nullopt);
    }
}

TEST(StatisticsModel, RunningSince_ZeroNegativeOrGarbageIsNow_ElseTheStoredSeconds) {
    const std::pair<const wchar_t*, std::optional<int64_t>> cases[] = {
        {L"0", std::nullopt}, {L"-5", std::nullopt}, {L"junk", std::nullopt}, {L"86400", 86400}};
    for (const auto& [stored, expected] : cases) {
        StatisticsRig rig;
        rig.files.SetUserRaw(SettingId::RunningSince, stored);
        rig.model.BuildBaseLayout();
        EXPECT_EQ(rig.model.RunningSince(), expected) << testing::PrintToString(stored);
    }
}

TEST(StatisticsModel, TitleText_SpamNameFromTheInstallationElseTheTable) {
    StatisticsRig rig;
    rig.strings.texts[L"IDS_SPAM_NAME"] = L"Spamschutz";
    EXPECT_EQ(rig.model.TitleText(L"<$SPAM_NAME> Statistics"), L"Spamschutz Statistics");
    rig.files.SetInstall(SettingId::InstallAntiSpamTitle, L"Mail Guard");
    EXPECT_EQ(rig.model.TitleText(L"<$SPAM_NAME> Statistics"), L"Mail Guard Statistics");
}

}  // namespace
}  // namespace Orva::Ui
