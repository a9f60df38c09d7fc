#include "settings/localisation/OnlineHelpAddress.h"

#include "common_src/ZelCommon/IniFile.h"
#include "common_src/ZelCommon/Registry.h"
#include "common_src/ZelCommon/StorageException.h"
#include "common_src/platform/Path.h"
#include "settings/SettingsPaths.h"
#include "settings/localisation/ZelResourceStringLoader.h"

namespace Orva::Settings {
namespace {

std::wstring_view TrimSlashes(std::wstring_view part) {
    while (!part.empty() && part.front() == L'/') {
        part.remove_prefix(1);
    }
    while (!part.empty() && part.back() == L'/') {
        part.remove_suffix(1);
    }
    return part;
}

}  // namespace

RegistryLocation SplitRegistryLocation(std::wstring_view location) {
    const std::size_t last = location.find_last_of(L'\\');
    if (last == std::wstring_view::npos) {
        return {std::wstring(), std::wstring(location)};
    }
    return {std::wstring(location.substr(0, last)), std::wstring(location.substr(last + 1))};
}

std::wstring JoinHelpAddress(std::wstring_view site, std::wstring_view localeName,
                             std::wstring_view productId, std::wstring_view topicPage) {
    std::wstring address(site);
    while (!address.empty() && address.back() == L'/') {
        address.pop_back();
    }
    for (const std::wstring_view part : {localeName, productId, topicPage}) {
        address += L'/';
        address += TrimSlashes(part);
    }
    return address;
}

}  // namespace Orva::Settings

using ZelCommon::Exception::CatchThrown;
using ZelCommon::Storage::Exception;

// The installation settings file (`settingsFileName` in the folder `base`, or in the add-in's
// folder when `base` is empty) says, in [OnlinHelp]:
//   ProductRootRegKey = a key under HKEY_LOCAL_MACHINE, e.g. SOFTWARE\Halvion\Corelane\1700
//   URLKey            = where under that key the help site is kept, e.g. OnlineHelp\URL
//   PIDKey            = where the product id is kept, e.g. OnlineHelp\PID
//   FunID_...         = where each topic's page is kept, e.g. OnlineHelp\Topics\FunID_...
// Each location is a subkey path and a value name after its last backslash (no backslash: a
// value of the root key itself). The address is site/locale/product id/page, the locale being
// the one whose string table the add-in would load.
std::wstring ZelResourceStringLoader::GetORVA_OLH_URL(const std::wstring& topic,
                                                      const std::wstring& settingsFileName,
                                                      const std::wstring& base) {
    try {
        const std::wstring folder =
            base.empty() ? Orva::Settings::AddinFolderOf(m_services.process.ModuleFilePath())
                         : base;
        const std::wstring settingsFile = ZelCommon::Path::ChildFile(folder, settingsFileName);
        std::wstring rootKey;
        std::wstring urlLocation;
        std::wstring pidLocation;
        std::wstring topicLocation;
        CatchThrown<Exception>(
            [&] {
                ZelCommon::Storage::IniFile settings(m_services.profile);
                settings.Open(settingsFile, std::wstring(Orva::Settings::kOnlineHelpSection), 0);
                rootKey = settings.GetString(std::wstring(Orva::Settings::kProductRootRegKey), L"");
                urlLocation = settings.GetString(std::wstring(Orva::Settings::kUrlKey), L"");
                pidLocation = settings.GetString(std::wstring(Orva::Settings::kPidKey), L"");
                topicLocation = topic.empty() ? std::wstring() : settings.GetString(topic, L"");
            },
            [this](const Exception& failure) { LogStorageFailure(failure); });

        bool rootOpens = false;
        if (!rootKey.empty()) {
            rootOpens = CatchThrown<Exception>(
                [&] {
                    ZelCommon::Storage::Registry key(m_services.registry);
                    key.Open(ZelCommon::Storage::RegRoot::LocalMachine, rootKey, RegistryView());
                },
                [](const Exception&) {});
        }
        if (!rootOpens) {
            Log(L"!!! Get Product Root RegKey failed: from=[%s], result=[%s]", settingsFile,
                rootKey);
            return {};
        }
        // Reads one part; on failure `from` names the full registry location that was tried.
        const auto readPart = [&](const std::wstring& location, std::wstring& from) {
            const Orva::Settings::RegistryLocation split =
                Orva::Settings::SplitRegistryLocation(location);
            const std::wstring keyPath =
                split.subKey.empty() ? rootKey : rootKey + L"\\" + split.subKey;
            from = keyPath + L"\\" + split.valueName;
            std::wstring value;
            if (!location.empty()) {
                CatchThrown<Exception>([&] { value = ReadMachineValue(keyPath, split.valueName); },
                                       [](const Exception&) {});
            }
            return value;
        };
        std::wstring from;
        const std::wstring site = readPart(urlLocation, from);
        if (site.empty()) {
            Log(L"!!! Get URL SubKey failed: from=[%s], result=[%s]", from, site);
            return {};
        }
        const std::wstring productId = readPart(pidLocation, from);
        if (productId.empty()) {
            Log(L"!!! Get PID SubKey failed: from=[%s], result=[%s]", from, productId);
            return {};
        }
        const std::wstring page = readPart(topicLocation, from);
        if (page.empty()) {
            Log(L"!!! Get FunID failed: from=[%s], result=[%s]", from, page);
            return {};
        }
        const std::wstring resourceFolder = GetResourcePath();
        const auto tableOf = [&resourceFolder](const std::wstring& locale) {
            return ZelCommon::Path::ChildFile(ZelCommon::Path::ChildFolder(resourceFolder, locale),
                                              kTableFileName);
        };
        const LanguageChoice language = ChooseLanguage(
            resourceFolder, tableOf, ZelCommon::Path::FileExists,
            SearchTexts{L"", L"<%s> Language not support!!", L"Using default language <%s>"});
        return Orva::Settings::JoinHelpAddress(site, language.localeName, productId, page);
    } catch (...) {
        return {};
    }
}
