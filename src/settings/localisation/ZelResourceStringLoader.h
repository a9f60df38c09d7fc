#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "common_src/ZelCommon/IniFile.h"
#include "common_src/ZelCommon/StorageException.h"
#include "settings/localisation/StringLoaderServices.h"

// <windows.h> turns LoadString into LoadStringW in every file that includes it; the class keeps
// its own name, and answers to the renamed call as well.
#pragma push_macro("LoadString")
#undef LoadString

// Localised texts by string id, from the "StringTable.ini" of the best locale folder under the
// product's resource folder; also finds the product's registry key and the on-line help
// address. No operation throws: failures are logged and give an empty text or a cleared flag.
class ZelResourceStringLoader {
public:
    explicit ZelResourceStringLoader(Orva::Settings::StringLoaderServices services =
                                         Orva::Settings::SystemStringLoaderServices());
    ~ZelResourceStringLoader();
    ZelResourceStringLoader(const ZelResourceStringLoader&) = delete;
    ZelResourceStringLoader& operator=(const ZelResourceStringLoader&) = delete;

    // Chooses the language and opens that table's `section`; sets and returns the success flag.
    bool Initialize(const std::wstring& section);
    void UnInitialize();
    // The text of `id` with its "\n" and "\r" escapes turned into line breaks; empty when the
    // id is missing or empty. Sets the success flag.
    std::wstring LoadString(const std::wstring& id);
#ifdef _WIN32
    std::wstring LoadStringW(const std::wstring& id) {
        return LoadString(id);
    }
#endif

    // The locale whose table Initialize opens from `resourceFolder`, chosen and logged as it
    // chooses; "en-US" when not even that table exists.
    std::wstring ChooseTableLocale(const std::wstring& resourceFolder);
    // The locale folder under the resource folder, chosen as Initialize chooses the table, but
    // testing for the folder; empty when not even the "en-US" folder exists.
    std::wstring GetResFolderByAutoDetectLanguage();
    // The locale folder of the system default language's language and script; "en-US" for a
    // language of no known folder.
    std::wstring MapPrimaryLangID();
    // The installation folder (from the product key, else the default) + "ORVA\Resource\x86\".
    std::wstring GetResourcePath();
    // The product key under HKEY_LOCAL_MACHINE, from the installation file's OrvaReg.
    std::wstring GetOrvaRegPath();
    // The on-line help address of a help topic ("FunID_..."); empty when it cannot be built.
    // See OnlineHelpAddress.cpp for where the parts come from and how they are joined.
    std::wstring GetORVA_OLH_URL(const std::wstring& topic, const std::wstring& settingsFileName,
                                 const std::wstring& base);

    bool Succeeded() const {
        return m_succeeded;
    }
    const std::wstring& Section() const {
        return m_section;
    }
    const std::wstring& LocaleName() const {
        return m_localeName;
    }
    const std::wstring& TablePath() const {
        return m_tablePath;
    }
    // The text of the last successful LoadString.
    const std::wstring& LastString() const {
        return m_lastString;
    }
    const wchar_t* LastStringText() const {
        return m_lastString.c_str();
    }

    static constexpr std::wstring_view kDefaultLocale = L"en-US";
    static constexpr std::wstring_view kTableFileName = L"StringTable.ini";
    static constexpr std::wstring_view kLanguageMapFileName = L"LanguageMap.ini";
    static constexpr std::wstring_view kLanguageMapSection = L"LCID2NAME";
    static constexpr std::wstring_view kInstallPathValue = L"ORVAInstallPath";

private:
    // The log texts one language search writes; an empty text is not written.
    struct SearchTexts {
        std::wstring_view startMapping;  // locale, path
        std::wstring_view notSupported;  // mapped locale, path
        std::wstring_view usingDefault;  // "en-US", path
    };
    struct LanguageChoice {
        std::wstring localeName;
        std::wstring path;
        bool found = false;
    };

    // The string table Initialize opens from `resourceFolder`, logged as it searches.
    LanguageChoice ChooseTable(const std::wstring& resourceFolder);
    // System locale, the language map's override, the primary language, then "en-US": the first
    // whose `pathOf(locale)` passes `exists`.
    LanguageChoice ChooseLanguage(const std::wstring& resourceFolder,
                                  const std::function<std::wstring(const std::wstring&)>& pathOf,
                                  const std::function<bool(const std::wstring&)>& exists,
                                  const SearchTexts& texts);
    std::wstring SystemLocaleName();
    std::wstring LanguageMapOverride(const std::wstring& resourceFolder,
                                     const std::wstring& localeName);
    bool OpenTable(const std::wstring& section);
    std::wstring InstallFile() const;
    int RegistryView() const;
    // Reads a string value of HKEY_LOCAL_MACHINE; throws the storage layer's exceptions.
    std::wstring ReadMachineValue(const std::wstring& keyPath, const std::wstring& valueName);
    void LogStorageFailure(const ZelCommon::Storage::Exception& failure);
    template <class... Args>
    void Log(std::wstring_view format, const Args&... args) {
        m_services.log.LogText(format, args...);
    }

    Orva::Settings::StringLoaderServices m_services;
    ZelCommon::Storage::IniFile m_table;
    std::wstring m_section;
    std::wstring m_localeName;
    std::wstring m_tablePath;
    std::wstring m_lastString;
    bool m_succeeded = false;
};

#pragma pop_macro("LoadString")
