#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "settings/localisation/LocalisedStrings.h"
#include "support/ModalDriver_win.h"
#include "ui/ConfirmationDialog_win.h"
#include "ui/ConfirmationIds.h"

namespace Orva::Ui {
namespace {

class GermanBox final : public Settings::ILocalisedStrings {
public:
    std::wstring Load(const std::wstring& id) override {
        return id == L"IDS_DONT_SHOW_AGAIN" ? L"Nicht mehr anzeigen" : L"";
    }
    std::wstring LoadShown(const std::wstring& id) override { return Load(id); }
    void Release() override {}
};

// The real dialog from this program's resources, answered by a user who ticks the box or not.
TEST(ConfirmationDialog, OkWithOrWithoutTheBox_TellsWhetherToShowItAgain) {
    for (const bool tick : {true, false}) {
        GermanBox strings;
        CConfirmationDlg notice(L"Unsupported account", L"Filtering stays off.", strings);
        std::wstring boxText;
        Testing::CModalDriver driver({
            {"answer",
             [&] {
                 const HWND dialog = Testing::FindDialogHolding(IDC_CHECK_DONT_SHOW_AGAIN);
                 if (dialog == nullptr) {
                     return false;
                 }
                 wchar_t text[64] = {};
                 ::GetDlgItemTextW(dialog, IDC_CHECK_DONT_SHOW_AGAIN, text, 64);
                 boxText = text;
                 if (tick) {
                     Testing::Click(::GetDlgItem(dialog, IDC_CHECK_DONT_SHOW_AGAIN));
                 }
                 Testing::Click(::GetDlgItem(dialog, IDOK));
                 return true;
             }},
        });

        EXPECT_EQ(notice.RunModal(nullptr), IDOK);
        EXPECT_TRUE(driver.Finished()) << driver.Failure();
        EXPECT_EQ(boxText, L"Nicht mehr anzeigen");
        EXPECT_EQ(notice.DontShowAgain(), tick);
    }
}

}  // namespace
}  // namespace Orva::Ui
