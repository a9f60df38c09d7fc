#pragma once

#include <string>
#include <string_view>

#include "settings/SettingsStore.h"
#include "settings/localisation/LocalisedStrings.h"

namespace Orva::Ui {

// The add-in module's own version strings, as its version resource holds them.
struct ModuleVersion {
    std::wstring fileVersion;
    std::wstring privateBuild;
    // The installation offers the feedback programme from the About box.
    bool showFeedbackButton = true;
};

// What the About box shows: the installation's branding where it sets one, the user's language
// otherwise, and the four versions.
struct AboutContent {
    std::wstring caption;
    std::wstring title;
    std::wstring productName;
    std::wstring companyName;
    std::wstring copyright;
    std::wstring warning;
    // The replacement banner's full path; empty keeps the built-in one.
    std::wstring bannerPath;
    std::wstring engineVersion;
    std::wstring patchVersion;
    std::wstring fileVersion;
    std::wstring privateBuild;
    // The installation offers the feedback programme from the About box.
    bool showFeedbackButton = true;
};

// `moduleFolder` is the add-in's folder with its final separator.
AboutContent ReadAboutContent(const Settings::SettingsStore& settings,
                              Settings::ILocalisedStrings& strings, std::wstring_view moduleFolder,
                              const ModuleVersion& version);

}  // namespace Orva::Ui
