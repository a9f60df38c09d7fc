#include "ui/AboutContent.h"

#include <gtest/gtest.h>

#include <tuple>

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

    EXPECT_EQ(std::tie(content.title, content.productName, content.companyName, content.bannerPath,
                       content.engineVersion, content.patchVersion, content.fileVersion,
                       content.privateBuild),
              std::make_tuple(L"ORVA Anti-Spam", L"Partner Mail Guard", L"Halvion",
                              L"C:\\Addin\\Res\\Partner.bmp", L"5.1.2", L"00000000", L"1.0.0.0",
                              L"abc123"));
}

TEST(AboutContent, NoBannerSet_KeepsTheBuiltInOne) {
    Testing::PageRig rig;
    EXPECT_EQ(ReadAboutContent(rig.files.store, rig.strings, L"C:\\Addin\\", {}).bannerPath, L"");
}

}  // namespace
}  // namespace Orva::Ui
