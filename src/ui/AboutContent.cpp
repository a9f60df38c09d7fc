#include "ui/AboutContent.h"

namespace Orva::Ui {

using Settings::SettingId;

namespace {

std::wstring BrandedOr(const Settings::SettingsStore& settings, SettingId key,
                       Settings::ILocalisedStrings& strings, const wchar_t* stringId) {
    std::wstring branded = settings.GetString(key);
    return branded.empty() ? strings.LoadShown(stringId) : branded;
}

}  // namespace

AboutContent ReadAboutContent(const Settings::SettingsStore& settings,
                              Settings::ILocalisedStrings& strings, std::wstring_view moduleFolder,
                              const ModuleVersion& version) {
    AboutContent content;
    content.caption = strings.LoadShown(L"IDS_ABOUT_CAPTION");
    content.title =
        BrandedOr(settings, SettingId::InstallAboutTitle, strings, L"IDD_ABOUT_IDC_STATIC_TITLE");
    content.productName =
        BrandedOr(settings, SettingId::InstallAboutProductName, strings, L"IDS_PRODUCT_NAME");
    content.companyName =
        BrandedOr(settings, SettingId::InstallAboutCompanyName, strings, L"IDS_CORP_NAME");
    content.copyright = strings.LoadShown(L"IDC_STATIC_COPYRIGHT");
    content.warning = strings.LoadShown(L"IDS_ABOUT_WARNING");
    if (const std::wstring banner = settings.GetString(SettingId::InstallAboutBannerPath);
        !banner.empty()) {
        content.bannerPath = std::wstring(moduleFolder) + banner;
    }
    content.engineVersion = settings.GetString(SettingId::EngineVer);
    content.patchVersion = settings.GetString(SettingId::PatchVer);
    content.fileVersion = version.fileVersion;
    content.privateBuild = version.privateBuild;
    content.showFeedbackButton = settings.GetInt(SettingId::InstallShowWTCButton) != 0;
    return content;
}

}  // namespace Orva::Ui
