#include "common_src/ZelCommon/IniFile.h"
#include "common_src/ZelCommon/StorageException.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/WideFormat.h"
#include "settings/localisation/PrimaryLanguageFolder.h"
#include "settings/localisation/ZelResourceStringLoader.h"

using ZelCommon::Exception::CatchThrown;
using ZelCommon::Storage::Exception;

std::wstring ZelResourceStringLoader::SystemLocaleName() {
    return m_services.locale.LcidToLocaleName(m_services.locale.SystemDefaultLcid());
}

// A map is the installation's whole choice: an id it does not list reads as "en-US", even where
// the system's own locale has a table.
std::wstring ZelResourceStringLoader::LanguageMapOverride(const std::wstring& resourceFolder,
                                                          const std::wstring& localeName) {
    const std::wstring mapPath = ZelCommon::Path::ChildFile(resourceFolder, kLanguageMapFileName);
    if (!ZelCommon::Path::FileExists(mapPath)) {
        return {};
    }
    Log(L"Using LanguageMap.ini to perform language mapping, path: [%s]", mapPath);
    std::wstring mapped;
    CatchThrown<Exception>(
        [&] {
            ZelCommon::Storage::IniFile map(m_services.profile);
            map.Open(mapPath, std::wstring(kLanguageMapSection), 0);
            const std::wstring key =
                ZelCommon::Text::Format(L"%u", m_services.locale.SystemDefaultLcid());
            mapped = map.GetString(key, std::wstring(kDefaultLocale));
        },
        [this](const Exception& failure) { LogStorageFailure(failure); });
    if (!mapped.empty()) {
        Log(L"<LanguageMap.ini> Matched Locale Name from [%s] to [%s]", localeName, mapped);
    }
    return mapped;
}

// Not Windows' name of the primary language's default sub-language: that is no folder name for
// Spanish ("es-ES_tradnl"), Traditional Chinese for every Chinese reader and Croatian for the
// Serbs and Bosnians.
std::wstring ZelResourceStringLoader::MapPrimaryLangID() {
    std::wstring name(Orva::Settings::PrimaryLanguageFolder(m_services.locale.SystemDefaultLcid()));
    if (name.empty()) {
        name = kDefaultLocale;
    }
    Log(L"Primary language mapped result: [%s]", name);
    return name;
}

ZelResourceStringLoader::LanguageChoice ZelResourceStringLoader::ChooseLanguage(
    const std::wstring& resourceFolder,
    const std::function<std::wstring(const std::wstring&)>& pathOf,
    const std::function<bool(const std::wstring&)>& exists, const SearchTexts& texts) {
    const auto present = [&exists](const LanguageChoice& choice) {
        // Without a locale name the path would name the resource folder itself.
        return !choice.localeName.empty() && exists(choice.path);
    };
    LanguageChoice choice;
    choice.localeName = SystemLocaleName();
    std::wstring mapped = LanguageMapOverride(resourceFolder, choice.localeName);
    if (!mapped.empty()) {
        choice.localeName = std::move(mapped);
    }
    choice.path = pathOf(choice.localeName);
    if (!present(choice)) {
        if (!texts.startMapping.empty()) {
            Log(texts.startMapping, choice.localeName, choice.path);
        }
        choice.localeName = MapPrimaryLangID();
        choice.path = pathOf(choice.localeName);
        if (!present(choice)) {
            Log(texts.notSupported, choice.localeName, choice.path);
            choice.localeName = kDefaultLocale;
            choice.path = pathOf(choice.localeName);
            Log(texts.usingDefault, choice.localeName, choice.path);
        }
    }
    choice.found = present(choice);
    return choice;
}

ZelResourceStringLoader::LanguageChoice ZelResourceStringLoader::ChooseTable(
    const std::wstring& resourceFolder) {
    const auto tableOf = [&resourceFolder](const std::wstring& locale) {
        return ZelCommon::Path::ChildFile(ZelCommon::Path::ChildFolder(resourceFolder, locale),
                                          kTableFileName);
    };
    return ChooseLanguage(
        resourceFolder, tableOf, ZelCommon::Path::FileExists,
        SearchTexts{
            L"Start mapping primary language ID due to <%s> StringTable is not existed: [%s]",
            L"<%s> Language not support!!\n Mapped primary language's StringTable is still "
            L"not existed: [%s]",
            L"Using default language <%s>: [%s]"});
}

std::wstring ZelResourceStringLoader::ChooseTableLocale(const std::wstring& resourceFolder) {
    try {
        return ChooseTable(resourceFolder).localeName;
    } catch (...) {
        return std::wstring(kDefaultLocale);
    }
}

std::wstring ZelResourceStringLoader::GetResFolderByAutoDetectLanguage() {
    try {
        const std::wstring resourceFolder = GetResourcePath();
        const auto folderOf = [&resourceFolder](const std::wstring& locale) {
            return ZelCommon::Path::ChildFolder(resourceFolder, locale);
        };
        const LanguageChoice choice = ChooseLanguage(
            resourceFolder, folderOf, ZelCommon::Path::FolderExists,
            SearchTexts{L"Start mapping primary language ID due to <%s> resource folder is not "
                        L"existed: [%s]",
                        L"<%s> Language not support!!\n Mapped primary language, but still not "
                        L"existed: [%s]",
                        L"Using default language <%s>: [%s]"});
        if (!choice.found) {
            Log(L"*** Error occurred!! Resource folder is not existed: [%s]", choice.path);
            return {};
        }
        Log(L"Lang: [%s], Resource Folder: [%s]", choice.localeName, choice.path);
        return choice.path;
    } catch (...) {
        return {};
    }
}
