#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "StringLoaderFixture.h"
#include "common_src/platform/TextCodec.h"
#include "settings/localisation/StringIds.h"
#include "settings/localisation/StringTableCheck.h"
#include "support/FileBytes.h"
#include "support/SourceRoot.h"

namespace Orva::Testing {
namespace {

namespace fs = std::filesystem;

std::vector<Settings::StringTableEntry> ShippedTable(const std::wstring& localeName) {
    const fs::path file = BundleFolder() / localeName / "StringTable.ini";
    auto entries = Settings::ReadStringTableSection(ZelCommon::Storage::SystemProfileApi(),
                                                    file.wstring(), L"ORVA_WLM");
    return entries ? *entries : std::vector<Settings::StringTableEntry>{};
}

std::set<std::wstring> IdsOf(const std::vector<Settings::StringTableEntry>& table) {
    std::set<std::wstring> ids;
    for (const auto& entry : table) {
        ids.insert(entry.id);
    }
    return ids;
}

TEST(StringBundleTest, EnglishTable_HasATextForEveryIdTheSourcesLoad) {
    // A string id in a string literal anywhere under src/ (L"IDS_X", _T("IDS_X")) is an id the
    // add-in loads by name; resource headers define numeric ids without quotes.
    const std::regex literal(R"re("(IDS_[A-Z0-9_]+)")re");
    std::set<std::wstring> loaded;
    for (const auto& item : fs::recursive_directory_iterator(SourceRoot() / "src")) {
        const std::string extension = item.path().extension().string();
        if (!item.is_regular_file() || (extension != ".cpp" && extension != ".h")) {
            continue;
        }
        std::ifstream in(item.path(), std::ios::binary);
        std::stringstream text;
        text << in.rdbuf();
        const std::string source = text.str();
        for (std::sregex_iterator it(source.begin(), source.end(), literal), end; it != end; ++it) {
            loaded.insert(ZelCommon::Text::Utf8ToWide((*it)[1].str()));
        }
    }
    // The id catalogue alone names more than sixty; fewer means the scan went wrong.
    ASSERT_GE(loaded.size(), 60u);
    const std::set<std::wstring> shipped = IdsOf(ShippedTable(L"en-US"));
    for (const std::wstring& id : loaded) {
        EXPECT_TRUE(shipped.count(id) == 1)
            << "en-US table lacks " << ZelCommon::Text::WideToUtf8(id);
    }
}

TEST(StringBundleTest, EveryShippedLocale_IsCompleteAgainstEnglish) {
    const std::vector<Settings::StringTableEntry> english = ShippedTable(L"en-US");
    ASSERT_FALSE(english.empty());
    for (const wchar_t* localeName : {L"en-US", L"de-DE"}) {
        const std::vector<Settings::StringTableEntry> table = ShippedTable(localeName);
        const Settings::StringTableFindings findings =
            Settings::CheckStringTable(table, Settings::AddinStringIds(), &english);
        EXPECT_THAT(findings.missingIds, testing::IsEmpty()) << localeName;
        EXPECT_THAT(findings.missingFromLocale, testing::IsEmpty()) << localeName;
        EXPECT_TRUE(findings.unknownPlaceholders.empty()) << localeName;
        EXPECT_THAT(findings.conversionMismatches, testing::IsEmpty()) << localeName;
        EXPECT_EQ(IdsOf(table), IdsOf(english)) << localeName;
    }
}

TEST(StringBundleTest, Tables_AreUtf16WithByteOrderMark) {
    for (const char* file : {"en-US/StringTable.ini", "de-DE/StringTable.ini", "LanguageMap.ini"}) {
        EXPECT_EQ(ReadFileBytes(BundleFolder() / file).substr(0, 2), "\xFF\xFE") << file;
    }
}

TEST(StringBundleTest, RibbonBitmaps_Are24BitBitmaps) {
    for (const char* name : {"Q-orb.bmp", "Spam.bmp", "NotSpam.bmp"}) {
        const std::string header = ReadFileBytes(SourceRoot() / "res" / "Res" / name);
        ASSERT_GE(header.size(), 30u) << name;
        EXPECT_EQ(header.substr(0, 2), "BM") << name;
        EXPECT_EQ(header[28], 24) << name;
    }
}

// The shipped bundle installed under a temporary product folder, read by the real loader.
class InstalledBundleTest : public StringLoaderTest {
protected:
    void SetUp() override {
        // File by file: under mingw and Wine a recursive fs::copy left the target empty and
        // reported no error.
        const fs::path target(ResourceFolder());
        std::error_code error;
        for (const auto& item : fs::recursive_directory_iterator(BundleFolder())) {
            const fs::path to = target / fs::relative(item.path(), BundleFolder());
            if (item.is_directory()) {
                fs::create_directories(to, error);
            } else {
                fs::create_directories(to.parent_path(), error);
                fs::copy_file(item.path(), to, fs::copy_options::overwrite_existing, error);
            }
            ASSERT_FALSE(error) << error.message();
        }
        ASSERT_TRUE(fs::exists(target / "en-US" / "StringTable.ini"));
    }
    std::wstring Load(uint32_t lcid, const std::wstring& id) {
        locale.SetSystemDefaultLcid(lcid);
        ZelResourceStringLoader loader(Services());
        if (!loader.Initialize(L"ORVA_WLM")) {
            return L"<not initialised>";
        }
        return loader.LoadString(id);
    }
};

// The shipped map sends every German locale and its near languages to German and everything
// else to English, whatever the system's own locale would find.
TEST_F(InstalledBundleTest, EachSystemLocale_GetsItsLanguage) {
    for (const uint32_t german : {0x0407u, 0x0807u, 0x0C07u, 0x1007u, 0x1407u, 0x10407u, 1047u}) {
        EXPECT_EQ(Load(german, L"IDS_CANCEL"), L"Abbrechen") << german;
    }
    for (const uint32_t other : {0x0409u, 0x0809u, 0x1009u, 0x0411u, 0x040Cu}) {
        EXPECT_EQ(Load(other, L"IDS_CANCEL"), L"Cancel") << other;
    }
}

TEST_F(InstalledBundleTest, GermanText_KeepsItsUmlautsAndLineBreaks) {
    EXPECT_EQ(Load(0x0407, L"IDS_WARN_RESET_STATISTICS"),
              L"Alle Statistiken auf null zur\u00fccksetzen?\nDies kann nicht r\u00fcckg\u00e4ngig "
              L"gemacht werden.");
}

}  // namespace
}  // namespace Orva::Testing
