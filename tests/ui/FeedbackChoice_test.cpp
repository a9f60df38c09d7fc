#include "ui/FeedbackChoice.h"

#include <gtest/gtest.h>

#include "PageRig.h"
#include "settings/FeedbackAddresses.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

TEST(FeedbackChoice, StoredValueAndLink_AsTheDialogShowsThem) {
    struct Case {
        const wchar_t* enableWtc;  // nullptr: absent
        const wchar_t* link;
        bool takesPart;
        std::wstring_view address;
    };
    const Case cases[] = {
        {nullptr, L"", true, Settings::kFeedbackInformationPage},
        {L"0", L"", false, Settings::kFeedbackInformationPage},
        {L"7", L"https://partner.example/wtc", true, L"https://partner.example/wtc"},
        {L"no", L"", false, Settings::kFeedbackInformationPage},
    };
    for (const Case& each : cases) {
        Testing::PageRig rig;
        if (each.enableWtc != nullptr) {
            rig.files.SetUserRaw(SettingId::EnableWTC, each.enableWtc);
        }
        rig.files.SetInstall(SettingId::InstallWTCLink, each.link);
        const FeedbackChoice choice = ReadFeedbackChoice(rig.files.store);
        EXPECT_EQ(choice.takesPart, each.takesPart) << (each.enableWtc ? each.enableWtc : L"-");
        EXPECT_EQ(choice.informationAddress, each.address);
    }
}

TEST(FeedbackChoice, Ok_WritesOneForYesAndZeroForNo) {
    Testing::PageRig rig;
    ASSERT_TRUE(SaveFeedbackChoice(rig.files.store, false));
    EXPECT_EQ(rig.files.UserRaw(SettingId::EnableWTC), L"0");
    ASSERT_TRUE(SaveFeedbackChoice(rig.files.store, true));
    EXPECT_EQ(rig.files.UserRaw(SettingId::EnableWTC), L"1");
}

}  // namespace
}  // namespace Orva::Ui
