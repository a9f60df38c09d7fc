#include "ui/AboutContent.h"

#include <gtest/gtest.h>

#include "PageRig.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

// The installation's branding wins where it is set; an empty value keeps the user's language,
// and the versions the agent has not written yet show their defaults.
TEST(AboutContent, BrandingWhereSet_LocalisedTextsElsewhere) {
    Testing::PageRig rig;
    rig.strings.texts = {{L"IDD_ABOUT_IDC_STATIC_TITLE", L"ORVA Anti-Spam"},
                         {L"IDS_PRODUCT_NAME", L"ORVA Anti-Spam"},
                         {L"IDS_CORP_NAME", L"Halvion"}};
    rig.files.SetInstall(SettingId::InstallAboutProductName, L"Partner Mail Guard");
    rig.files.SetInstall(SettingId::InstallAboutCompanyName, L"");
    rig.files.SetInstall(SettingId::InstallAboutBannerPath, L"Res\\Partner.bmp");
    rig.files.SetUserRaw(SettingId::EngineVer, L"5.1.2");

    const AboutContent content =
        ReadAboutContent(rig.files.store, rig.strings, L"C:\\Addin\\", {L"1.0.0.0", L"abc123"});

    EXPECT_EQ(content.title, L"ORVA Anti-Spam");
    EXPECT_EQ(content.productName, L"Partner Mail Guard");
    EXPECT_EQ(content.companyName, L"Halvion");
    EXPECT_EQ(content.bannerPath, L"C:\\Addin\\Res\\Partner.bmp");
    EXPECT_EQ(content.engineVersion, L"5.1.2");
    EXPECT_EQ(content.patchVersion, L"00000000");
    EXPECT_EQ(content.fileVersion, L"1.0.0.0");
    EXPECT_EQ(content.privateBuild, L"abc123");
}

TEST(AboutContent, NoBannerSet_KeepsTheBuiltInOne) {
    Testing::PageRig rig;
    EXPECT_EQ(ReadAboutContent(rig.files.store, rig.strings, L"C:\\Addin\\", {}).bannerPath, L"");
}

}  // namespace
}  // namespace Orva::Ui
