#include <windows.h>

#include "plugin/dll/AddinRig_win.h"
#include "ui/AboutIds.h"
#include "ui/FeedbackIds.h"

namespace Orva::Plugin {
namespace {

class AboutInAddin : public AddinWithRibbon {};

std::wstring TextOf(HWND dialog, int id) {
    wchar_t text[128] = {};
    ::GetDlgItemTextW(dialog, id, text, 128);
    return text;
}

// The About entry opens the box from the DLL's resources with the DLL's own version; while the
// suite is busy OK does not close it.
TEST_F(AboutInAddin, AboutEntry_ShowsTheModulesVersionAndClosesOnlyWhenTheSuiteIsIdle) {
    ASSERT_TRUE(StartAddin()) << LogText();
    ZelCommon::Platform::unique_hwnd suite;
    HWND about = nullptr;
    std::wstring fileVersion;
    std::wstring privateBuild;

    const std::string stopped = RunAfterClick(
        kAboutEntry,
        {
            {"about box",
             [&] {
                 about = Testing::FindDialogHolding(IDC_ABOUT_FILE);
                 if (about == nullptr) {
                     return false;
                 }
                 fileVersion = TextOf(about, IDC_ABOUT_FILE);
                 privateBuild = TextOf(about, IDC_ABOUT_BUILD);
                 suite.reset(::CreateWindowExW(0, L"STATIC", kSuiteWindowTitle.data(), WS_POPUP, 0,
                                               0, 0, 0, nullptr, nullptr, nullptr, nullptr));
                 Testing::Click(::GetDlgItem(about, IDOK));
                 return true;
             }},
            {"OK handled", [ticks = 0]() mutable { return ++ticks > 5; }},
            When(
                "still open while the suite is busy", [&] { return ::IsWindow(about) != FALSE; },
                [&] {
                    suite.reset();
                    Testing::Click(::GetDlgItem(about, IDOK));
                }),
        });

    EXPECT_EQ(stopped, "");
    EXPECT_FALSE(::IsWindow(about));
    EXPECT_EQ(fileVersion, L"1.0.0.0");
    EXPECT_NE(privateBuild, L"");
}

// The About box's Feedback Programme button: the user says No and OK, and the choice is kept.
TEST_F(AboutInAddin, FeedbackProgramme_NoAndOkKeepsTheUserOut) {
    ASSERT_TRUE(StartAddin()) << LogText();
    wchar_t shownBefore[8] = {};

    const std::string stopped = RunAfterClick(
        kAboutEntry,
        {
            {"about box",
             [] {
                 const HWND about = Testing::FindDialogHolding(IDC_ABOUT_FEEDBACK);
                 if (about != nullptr) {
                     Testing::Click(::GetDlgItem(about, IDC_ABOUT_FEEDBACK));
                 }
                 return about != nullptr;
             }},
            {"feedback dialog",
             [&] {
                 const HWND feedback = Testing::FindDialogHolding(IDC_FEEDBACK_NO);
                 if (feedback == nullptr) {
                     return false;
                 }
                 shownBefore[0] = ::IsDlgButtonChecked(feedback, IDC_FEEDBACK_YES) ? L'Y' : L'N';
                 Testing::Click(::GetDlgItem(feedback, IDC_FEEDBACK_NO));
                 Testing::Click(::GetDlgItem(feedback, IDOK));
                 return true;
             }},
            {"about box again",
             [] {
                 const HWND about = Testing::FindDialogHolding(IDC_ABOUT_FEEDBACK);
                 if (about == nullptr || Testing::FindDialogHolding(IDC_FEEDBACK_NO) != nullptr) {
                     return false;
                 }
                 Testing::Click(::GetDlgItem(about, IDOK));
                 return true;
             }},
        });

    EXPECT_EQ(stopped, "");
    EXPECT_EQ(std::wstring(shownBefore), L"Y");  // a new user takes part
    wchar_t stored[8] = {};
    ::GetPrivateProfileStringW(L"Statistics", L"EnableWTC", L"", stored, 8, userFile.c_str());
    EXPECT_EQ(std::wstring(stored), L"0");
}

}  // namespace
}  // namespace Orva::Plugin
