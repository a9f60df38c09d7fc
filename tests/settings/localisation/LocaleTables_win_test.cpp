#include <windows.h>

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "common_src/ZelCommon/ProfileApi.h"
#include "common_src/platform/TextCodec.h"
#include "settings/localisation/PrimaryLanguageFolder.h"
#include "support/SourceRoot.h"

namespace Orva::Testing {
namespace {

// Every locale id Windows knows, with its sort orders; none of the locales that have no id.
std::set<LCID> WindowsLocaleIds() {
    std::set<LCID> ids;
    ::EnumSystemLocalesEx(
        [](LPWSTR name, DWORD, LPARAM found) -> BOOL {
            const LCID id = ::LocaleNameToLCID(name, LOCALE_ALLOW_NEUTRAL_NAMES);
            const WORD primary = PRIMARYLANGID(LANGIDFROMLCID(id));
            if (primary != LANG_NEUTRAL && primary != LANG_INVARIANT) {
                reinterpret_cast<std::set<LCID>*>(found)->insert(id);
            }
            return TRUE;
        },
        LOCALE_ALL, reinterpret_cast<LPARAM>(&ids), nullptr);
    return ids;
}

std::wstring NameOf(LCID id) {
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = {};
    ::LCIDToLocaleName(id, name, LOCALE_NAME_MAX_LENGTH, 0);
    return name;
}

std::wstring ScriptsOf(const std::wstring& localeName) {
    wchar_t scripts[64] = {};
    ::GetLocaleInfoEx(localeName.c_str(), LOCALE_SSCRIPTS, scripts, 64);
    return scripts;
}

// Windows' own locale data is the judge of the folder names: each must be a locale of the same
// primary language written in the same script as the locale it serves.
TEST(LocaleTablesWin, EveryWindowsLocale_HasAFolderOfItsLanguageAndScript) {
    const std::set<LCID> ids = WindowsLocaleIds();
    ASSERT_GT(ids.size(), 200u);
    for (const LCID id : ids) {
        const std::wstring name = NameOf(id);
        const std::wstring folder(Settings::PrimaryLanguageFolder(id));
        const LCID folderId = ::LocaleNameToLCID(folder.c_str(), LOCALE_ALLOW_NEUTRAL_NAMES);
        EXPECT_EQ(PRIMARYLANGID(LANGIDFROMLCID(folderId)), PRIMARYLANGID(LANGIDFROMLCID(id)))
            << ZelCommon::Text::WideToUtf8(name) << " -> " << ZelCommon::Text::WideToUtf8(folder);
        EXPECT_EQ(ScriptsOf(folder), ScriptsOf(name.substr(0, name.find(L'_'))))
            << ZelCommon::Text::WideToUtf8(name) << " -> " << ZelCommon::Text::WideToUtf8(folder);
    }
}

TEST(LocaleTablesWin, ShippedLanguageMap_ListsEveryGermanAndEnglishLocale) {
    const std::wstring map = (BundleFolder() / "LanguageMap.ini").wstring();
    for (const LCID id : WindowsLocaleIds()) {
        // A neutral locale ("de") is never the system's.
        const WORD primary = PRIMARYLANGID(LANGIDFROMLCID(id));
        if ((primary != LANG_GERMAN && primary != LANG_ENGLISH) ||
            SUBLANGID(LANGIDFROMLCID(id)) == SUBLANG_NEUTRAL) {
            continue;
        }
        EXPECT_EQ(ZelCommon::Storage::ReadProfileString(ZelCommon::Storage::SystemProfileApi(), map,
                                                        L"LCID2NAME", std::to_wstring(id), L""),
                  primary == LANG_GERMAN ? L"de-DE" : L"en-US")
            << ZelCommon::Text::WideToUtf8(NameOf(id));
    }
}

}  // namespace
}  // namespace Orva::Testing
