#include <windows.h>

#include "plugin/dll/AddinRig_win.h"
#include "support/ModalDriver_win.h"
#include "ui/PixelCanvas_win.h"
#include "ui/StatisticsIds.h"

namespace Orva::Plugin {
namespace {

using Testing::CModalDriver;

// The Statistics entry of the ribbon opens the dialog.
class StatisticsInAddin : public AddinWithRibbon {
protected:
    std::string RunDialog(std::vector<CModalDriver::NamedStep> steps) {
        return RunAfterClick(kStatisticsEntry, std::move(steps));
    }
};

std::wstring ItemText(int id) {
    wchar_t text[128] = {};
    ::GetDlgItemTextW(Testing::FindDialogHolding(IDC_STAT_CHART), id, text, 128);
    return text;
}

// How many pixels of the chart, painted into a canvas, have `colour`.
int ChartPixels(COLORREF colour) {
    const HWND chart = ::GetDlgItem(Testing::FindDialogHolding(IDC_STAT_CHART), IDC_STAT_CHART);
    RECT area{};
    ::GetClientRect(chart, &area);
    Testing::PixelCanvas canvas(area.right, area.bottom, RGB(1, 2, 3));
    ::SendMessageW(chart, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(canvas.Dc()), PRF_CLIENT);
    return canvas.Count(area, colour);
}

// Answers the reset's message box, a dialog of its own above the statistics dialog.
CModalDriver::NamedStep Answer(const char* name, int button) {
    return {name, [button] {
                const HWND box = Testing::FindDialogHolding(button);
                if (box == nullptr || box == Testing::FindDialogHolding(IDC_STAT_CHART)) {
                    return false;
                }
                Testing::Click(::GetDlgItem(box, button));
                return true;
            }};
}

// Clicks a button of the statistics dialog once no message box holds it disabled.
CModalDriver::NamedStep ClickInDialog(const char* name, int id) {
    return {name, [id] {
                const HWND dialog = Testing::FindDialogHolding(IDC_STAT_CHART);
                if (dialog == nullptr || !::IsWindowEnabled(dialog)) {
                    return false;
                }
                Testing::Click(::GetDlgItem(dialog, id));
                return true;
            }};
}

TEST_F(StatisticsInAddin, UserResetsAnsweringNoThenYes_AgentRefreshedThenReset) {
    const std::pair<const wchar_t*, const wchar_t*> counters[] = {
        {L"ProcessedMsg", L"100"}, {L"DetectedSpam", L"10"}, {L"ReportedFP", L"2"}};
    for (const auto& [key, value] : counters) {
        ::WritePrivateProfileStringW(L"Statistics", key, value, userFile.c_str());
    }
    ASSERT_TRUE(StartAddin()) << LogText();

    std::wstring processed;
    std::wstring detectionRate;
    int normalMailPixels = 0;
    std::string afterNo;
    const std::string stopped = RunDialog({
        {"dialog shown",
         [&] {
             if (Testing::FindDialogHolding(IDC_STAT_CHART) == nullptr) {
                 return false;
             }
             processed = ItemText(IDC_STAT_PROCESSED);
             detectionRate = ItemText(IDC_STAT_DETECTION_RATE);
             normalMailPixels = ChartPixels(0xFF9999);
             return true;
         }},
        ClickInDialog("reset", IDC_STAT_RESET),
        Answer("No", IDNO),
        ClickInDialog("reset again", IDC_STAT_RESET),
        {"record after No", [&] { return !(afterNo = AgentRecord()).empty(); }},
        Answer("Yes", IDYES),
        ClickInDialog("close", IDOK),
    });

    EXPECT_EQ(stopped, "");
    EXPECT_EQ(Testing::FindDialogHolding(IDC_STAT_CHART), nullptr);
    EXPECT_EQ(processed, L"100");
    EXPECT_EQ(detectionRate, L"80.00 %");
    EXPECT_GT(normalMailPixels, 100);
    EXPECT_EQ(afterNo.find("sent 1050"), std::string::npos) << afterNo;
    const std::string received = AgentRecord();
    const auto reset = received.find("sent 1050 0 0");
    ASSERT_NE(reset, std::string::npos) << received;
    EXPECT_LT(received.find("sent 1045 0 0"), reset) << received;
    EXPECT_NE(received.find("sent 1045 0 0", reset), std::string::npos) << received;
}

}  // namespace
}  // namespace Orva::Plugin
