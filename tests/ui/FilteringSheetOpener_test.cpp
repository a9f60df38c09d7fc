#include "ui/FilteringSheetOpener.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "SenderPageRig.h"
#include "settings/localisation/StringIds.h"
#include "ui/ControlTexts.h"

namespace Orva::Ui {
namespace {

// Records what the sheet would have shown, and answers as the user closed it.
class FakeSheetWindows final : public ISheetWindows {
public:
    bool RunFilteringSheet(CFilteringSheetModel&, PageServices&, const std::wstring& caption,
                           ZelCommon::Platform::WindowHandle parent) override {
        shownCaption = caption;
        shownParent = parent;
        return userPressedOk;
    }

    bool userPressedOk = true;
    std::wstring shownCaption = L"<not shown>";
    ZelCommon::Platform::WindowHandle shownParent = 0;
};

TEST(FilteringSheetOpener, SuiteBusyOrNot_TheSheetOpensOnlyWhenTheSuiteIsIdle) {
    for (const bool suiteBusy : {false, true}) {
        Testing::SenderPageRig rig;
        rig.strings.texts[L"IDS_STRING_FILTERING_SHEET"] = L"Spam Filter Settings";
        if (suiteBusy) {
            rig.windows.AddWindow(std::wstring(Plugin::kSuiteWindowTitle));
        }
        FakeSheetWindows windows;

        const bool ok =
            OpenFilteringSheet(rig.services, {}, {rig.user, rig.user, rig.user}, windows, 77);

        EXPECT_EQ(ok, !suiteBusy);
        EXPECT_EQ(windows.shownCaption, suiteBusy ? L"<not shown>" : L"Spam Filter Settings");
        EXPECT_EQ(windows.shownParent, suiteBusy ? 0u : 77u);
    }
}

// Every text a page puts over its template comes from the tables the shipped languages are
// checked against, so that no control keeps its English text in another language.
TEST(ControlTexts, EveryStringIdOfThePages_IsOneTheShippedTablesMustHold) {
    const auto known = Settings::AddinStringIds();
    const auto isKnown = [&](std::wstring_view id) {
        return std::find(known.begin(), known.end(), id) != known.end();
    };
    for (const auto& table :
         {DefaultLevelTexts(), CustomLevelTexts(), CategoryLevelTexts(), WorryFreeLevelTexts(),
          AdvancedPageTexts(), ApprovedPageTexts(), BlockedPageTexts(), EditSenderTexts(),
          EncodingsPageTexts(), ConfirmationTexts(), AboutTexts(), FeedbackTexts(),
          StatisticsDialogTexts(), ImportDialogTexts(), UpdatesTexts(), ProxyTexts()}) {
        for (const ControlText& text : table) {
            EXPECT_TRUE(isKnown(text.stringId))
                << std::string(text.stringId.begin(), text.stringId.end());
        }
    }
    for (const auto& ids : {LevelNameIds(), PageTitleIds(), IntervalNameIds()}) {
        for (const std::wstring_view id : ids) {
            EXPECT_TRUE(isKnown(id)) << std::string(id.begin(), id.end());
        }
    }
}

}  // namespace
}  // namespace Orva::Ui
