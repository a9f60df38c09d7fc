#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "plugin/dll/AddinRig_win.h"
#include "support/ModalDriver_win.h"
#include "ui/DialogIds.h"

namespace Orva::Plugin {
namespace {

using Testing::CModalDriver;
using Testing::FindDescendant;

// The sheet opens from the ribbon's Settings entry.
class FilteringSheetInAddin : public AddinWithRibbon {
protected:
    std::string RunSheet(std::vector<CModalDriver::NamedStep> steps) {
        return RunAfterClick(kSettingsEntry, std::move(steps));
    }

    HWND sheet = nullptr;
};

// Waits for the sheet, then acts on one of its controls.
CModalDriver::NamedStep OnControl(HWND& sheet, const char* name, int id,
                                  std::function<void(HWND)> act) {
    return {name, [&sheet, id, act] {
                sheet = Testing::FindPropertySheet();
                const HWND control = sheet ? FindDescendant(sheet, id) : nullptr;
                if (control == nullptr) {
                    return false;
                }
                act(control);
                return true;
            }};
}

CModalDriver::NamedStep ShowPage(HWND& sheet, int page) {
    return {"page " + std::to_string(page), [&sheet, page] {
                PropSheet_SetCurSel(sheet, nullptr, page);
                return TabCtrl_GetCurSel(PropSheet_GetTabControl(sheet)) == page;
            }};
}

TEST_F(FilteringSheetInAddin, UserChangesEveryPage_OkWritesTheSettingsAndTellsTheAgent) {
    ::WritePrivateProfileStringW(L"General", L"ProtectLevel", L"5", userFile.c_str());
    ASSERT_TRUE(StartAddin()) << LogText();

    const std::string stopped = RunSheet({
        OnControl(sheet, "slider to High", IDC_LEVEL_SLIDER,
                  [](HWND slider) {
                      ::SetFocus(slider);
                      Testing::PostKey(slider, VK_HOME);
                  }),
        OnControl(sheet, "cloud box", IDC_CHECK_ENABLE_IN_THE_CLOUD, &Testing::Click),
        OnControl(sheet, "custom level", IDC_BUTTON_CUSTOM_LEVEL, &Testing::Click),
        {"category dialog",
         [] {
             const HWND dialog = Testing::FindDialogHolding(IDC_COMBO_SEXUAL);
             if (dialog == nullptr) {
                 return false;
             }
             ::SendDlgItemMessageW(dialog, IDC_COMBO_SEXUAL, CB_SETCURSEL, 0, 0);
             Testing::Click(::GetDlgItem(dialog, IDOK));
             return true;
         }},
        OnControl(sheet, "custom panel shown", IDC_BUTTON_CUSTOMIZE, [](HWND) {}),
        ShowPage(sheet, 1),
        ShowPage(sheet, 2),
        ShowPage(sheet, 3),
        ShowPage(sheet, 4),
        ShowPage(sheet, 5),
        OnControl(sheet, "notify box", IDC_CHECK_NOTIFY_ICON, &Testing::Click),
        OnControl(sheet, "auto-move box", IDC_CHECK_AUTO_MOVED, &Testing::Click),
        When(
            "purge days typed",
            [this] {
                return ::IsWindowEnabled(FindDescendant(sheet, IDC_EDIT_PURGE_DAYS)) != FALSE;
            },
            [this] {
                const HWND edit = FindDescendant(sheet, IDC_EDIT_PURGE_DAYS);
                ::SetFocus(edit);
                ::SendMessageW(edit, EM_SETSEL, 0, -1);
                Testing::PostText(edit, L"4x5");
            }),
        {"help",
         [this] {
             Testing::Click(::GetDlgItem(sheet, IDC_SHEET_HELP));
             return true;
         }},
        {"Alt+O",
         [this] {
             wchar_t days[8] = {};
             ::GetWindowTextW(FindDescendant(sheet, IDC_EDIT_PURGE_DAYS), days, 8);
             if (std::wstring(days) != L"45") {
                 return false;
             }
             Testing::PostKey(::GetFocus(), 'O', true);
             return true;
         }},
    });

    EXPECT_EQ(stopped, "");
    EXPECT_EQ(Testing::FindPropertySheet(), nullptr);
    EXPECT_EQ(Setting(L"General", L"GlobalLevel"), L"0");
    EXPECT_EQ(Setting(L"General", L"ProtectLevel"), L"3");
    EXPECT_EQ(Setting(L"General", L"SexualLevel"), L"3");
    EXPECT_EQ(Setting(L"General", L"CommercialLevel"), L"2");
    EXPECT_EQ(Setting(L"General", L"EnableInTheCloud"), L"0");
    EXPECT_EQ(Setting(L"Wexor", L"EnableWexor"), L"0");
    EXPECT_EQ(Setting(L"Wexor", L"SecurityLevel"), L"2");
    EXPECT_EQ(Setting(L"General", L"PurgeDays"), L"45");
    EXPECT_EQ(Setting(L"General", L"AutoMoved"), L"1");
    EXPECT_EQ(Setting(L"General", L"NotifyIcon"), L"1");
    EXPECT_EQ(Setting(L"General", L"DeleteDeleted"), L"0");
    EXPECT_TRUE(LogShows("@@@ Error : Can't retrieve on-line help URL from registry."));
    EXPECT_TRUE(Testing::PumpMessagesUntil([&] {
        const std::string received = AgentRecord();
        return received.find("posted 1036 0 0") != std::string::npos &&
               received.find("posted 1037 0 0") != std::string::npos &&
               received.find("sent 1044 0 0") != std::string::npos;
    })) << AgentRecord();
}

// A space on the focused row toggles its check box as a click on the box does; OK writes that
// group blocked, line 2 and the other groups as they were, and tells the agent.
TEST_F(FilteringSheetInAddin, SpaceOnAnEncodingRowThenOk_GroupBlockedAndAgentTold) {
    const std::string head = "\xEF\xBB\xBF; Written by ORVA v3.5 (c) 2005 Halvion\n3\n";
    const auto encodings = LogFolder().parent_path() / L"BlockEncodings.dat";
    Testing::WriteFileBytes(encodings, head + "Arabic\t1\t708\nGreek\t0\t737\nThai\t0\t874\n");
    ASSERT_TRUE(StartAddin()) << LogText();

    const std::string stopped = RunSheet({
        OnControl(sheet, "sheet open", IDC_LEVEL_SLIDER, [](HWND) {}),
        ShowPage(sheet, 4),
        OnControl(sheet, "space on Greek", IDC_LIST_VIEW,
                  [](HWND list) {
                      ::SetFocus(list);
                      ListView_SetItemState(list, 1, LVIS_SELECTED | LVIS_FOCUSED,
                                            LVIS_SELECTED | LVIS_FOCUSED);
                      Testing::PostKey(list, VK_SPACE);
                  }),
        When(
            "OK once ticked",
            [this] { return ListView_GetCheckState(FindDescendant(sheet, IDC_LIST_VIEW), 1) != 0; },
            [this] { Testing::Click(::GetDlgItem(sheet, IDOK)); }),
    });

    EXPECT_EQ(stopped, "");
    EXPECT_TRUE(Testing::PumpMessagesUntil([] { return Testing::FindPropertySheet() == nullptr; }));
    EXPECT_EQ(Testing::ReadFileBytes(encodings),
              head + "Arabic\t1\t708\nGreek\t1\t737\nThai\t0\t874\n");
    EXPECT_TRUE(Testing::PumpMessagesUntil([&] {
        return AgentRecord().find("posted 1034 0 0") != std::string::npos;
    })) << AgentRecord();
    std::filesystem::remove(encodings);
}

TEST_F(FilteringSheetInAddin, SuiteBusyThenAltC_OkIgnoredAndNothingWritten) {
    ASSERT_TRUE(StartAddin()) << LogText();
    ZelCommon::Platform::unique_hwnd suite;

    const std::string stopped = RunSheet({
        OnControl(sheet, "slider moved", IDC_LEVEL_SLIDER,
                  [&suite](HWND slider) {
                      ::SetFocus(slider);
                      Testing::PostKey(slider, VK_END);
                      suite.reset(::CreateWindowExW(0, L"STATIC", kSuiteWindowTitle.data(),
                                                    WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr,
                                                    nullptr));
                      Testing::Click(::GetDlgItem(::GetAncestor(slider, GA_ROOT), IDOK));
                  }),
        {"OK handled", [ticks = 0]() mutable { return ++ticks > 5; }},
        When(
            "still open while the suite is busy",
            [this] { return Testing::FindPropertySheet() == sheet; },
            [&suite] {
                suite.reset();
                Testing::PostKey(::GetFocus(), 'C', true);
            }),
    });

    EXPECT_EQ(stopped, "");
    EXPECT_EQ(Testing::FindPropertySheet(), nullptr);
    EXPECT_EQ(Setting(L"General", L"ProtectLevel"), L"<none>");
    EXPECT_EQ(Setting(L"Wexor", L"EnableWexor"), L"<none>");
    EXPECT_EQ(AgentRecord().find("posted 103"), std::string::npos) << AgentRecord();
}

}  // namespace
}  // namespace Orva::Plugin
