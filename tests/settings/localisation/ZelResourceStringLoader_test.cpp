#include "settings/localisation/ZelResourceStringLoader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "StringLoaderFixture.h"

namespace Orva::Testing {
namespace {

using testing::ElementsAre;

using ZelResourceStringLoaderTest = StringLoaderTest;

TEST_F(ZelResourceStringLoaderTest, ConstructionAndDestruction_LogEnterAndLeave) {
    { ZelResourceStringLoader loader(Services()); }
    EXPECT_THAT(TakeLines(),
                ElementsAre(L"[Enter] ZelResourceStringLoader::ZelResourceStringLoader()...",
                            L"[Leave] ZelResourceStringLoader::ZelResourceStringLoader()...",
                            L"[Enter] ZelResourceStringLoader::~ZelResourceStringLoader()...",
                            L"[Leave] ZelResourceStringLoader::~ZelResourceStringLoader()..."));
}

TEST_F(ZelResourceStringLoaderTest, SystemLocaleTable_IsLoadedAndLogged) {
    WriteTable(L"en-US", L"IDS_OK", L"OK");
    ZelResourceStringLoader loader(Services());
    TakeLines();

    EXPECT_TRUE(loader.Initialize(L"ORVA_WLM"));

    EXPECT_TRUE(loader.Succeeded());
    EXPECT_EQ(loader.LocaleName(), L"en-US");
    EXPECT_EQ(loader.TablePath(), TableOf(L"en-US"));
    EXPECT_THAT(
        TakeLines(),
        ElementsAre(L"ORVA registry path: [SOFTWARE\\Halvion\\Corelane\\1700\\ORVA]",
                    L"String Table Path: [" + ResourceFolder() + L"]",
                    L"Successfully loaded MUI stringTable. Lang: [en-US], Section: [ORVA_WLM], "
                    L"File: [" +
                        TableOf(L"en-US") + L"]"));
    EXPECT_EQ(loader.LoadString(L"IDS_OK"), L"OK");
    EXPECT_THAT(TakeLines(), ElementsAre(L"<IDS_OK> String loaded."));
}

// The product key comes from the module's own name; a foreign name is logged and still answered.
TEST_F(ZelResourceStringLoaderTest, ModuleName_EveryMailClientVariantPassesTheRegex) {
    const std::wstring found = L"ORVA registry path: [SOFTWARE\\Halvion\\Corelane\\1700\\ORVA]";
    for (const wchar_t* name :
         {L"ORVA_OLA.dll", L"ORVA_OEA.dll", L"ORVA_WLMA.dll", L"Zel_Addin.dll"}) {
        process.SetModuleFilePath(ZelCommon::Path::ChildFile(InstallFolder(), name));
        ZelResourceStringLoader loader(Services());
        TakeLines();
        EXPECT_EQ(loader.GetOrvaRegPath(), L"SOFTWARE\\Halvion\\Corelane\\1700\\ORVA");
        std::vector<std::wstring> lines{found};
        if (std::wstring(name) == L"Zel_Addin.dll") {
            lines.insert(lines.begin(), L"regex match error, please check current path: [" +
                                            process.ModuleFilePath() + L"]");
        }
        EXPECT_EQ(TakeLines(), lines) << name;
    }
}

// An empty section name fails before any table is looked for; a table without the section fails
// as a read error.
TEST_F(ZelResourceStringLoaderTest, EmptyOrMissingSection_Fails) {
    WriteTable(L"en-US", L"IDS_OK", L"OK", L"OTHER_CONSUMER");
    ZelResourceStringLoader loader(Services());
    TakeLines();

    EXPECT_FALSE(loader.Initialize(L""));
    EXPECT_FALSE(loader.Succeeded());
    EXPECT_THAT(TakeLines(), ElementsAre(L"*** Error: Length of _tszSectionName is zero."));

    EXPECT_FALSE(loader.Initialize(L"ORVA_WLM"));
    EXPECT_EQ(TakeLines().back(),
              L"*** Error occurred!! Read stringTable failed. Lang.: [en-US], "
              L"File: [" +
                  TableOf(L"en-US") + L"]");
}

// The fall-back chain: the system locale's table, else the primary language's, else English.
TEST_F(ZelResourceStringLoaderTest, NoTableForLocale_FallsBackAlongTheChain) {
    struct ChainCase {
        uint32_t lcid;
        const wchar_t* locale;
        const wchar_t* text;
        std::vector<std::wstring> steps;
    };
    const ChainCase cases[] = {
        {0x0807,  // de-CH: the primary language's table
         L"de-DE",
         L"Gut",
         {L"Start mapping primary language ID due to <de-CH> StringTable is not existed: [" +
              TableOf(L"de-CH") + L"]",
          L"Primary language mapped result: [de-DE]",
          L"Successfully loaded MUI stringTable. Lang: [de-DE], Section: [ORVA_WLM], File: [" +
              TableOf(L"de-DE") + L"]"}},
        {0x0411,  // ja-JP: neither its own nor its primary language's table, so English
         L"en-US",
         L"OK",
         {L"Start mapping primary language ID due to <ja-JP> StringTable is not existed: [" +
              TableOf(L"ja-JP") + L"]",
          L"Primary language mapped result: [ja-JP]",
          L"<ja-JP> Language not support!!\n Mapped primary language's StringTable is still not "
          L"existed: [" +
              TableOf(L"ja-JP") + L"]",
          L"Using default language <en-US>: [" + TableOf(L"en-US") + L"]"}},
        {0x0C1A, L"en-US", L"OK", {}},  // a locale the fake cannot name counts as missing
    };
    WriteTable(L"de-DE", L"IDS_OK", L"Gut");
    WriteTable(L"en-US", L"IDS_OK", L"OK");
    for (const ChainCase& test : cases) {
        SCOPED_TRACE(test.locale);
        locale.SetSystemDefaultLcid(test.lcid);
        ZelResourceStringLoader loader(Services());
        TakeLines();

        ASSERT_TRUE(loader.Initialize(L"ORVA_WLM"));

        EXPECT_EQ(loader.LocaleName(), test.locale);
        EXPECT_EQ(loader.LoadString(L"IDS_OK"), test.text);
        EXPECT_THAT(TakeLines(), HasInOrder(test.steps));
    }
}

TEST_F(ZelResourceStringLoaderTest, NoEnglishTableEither_FailsAndEveryLoadIsEmpty) {
    locale.SetSystemDefaultLcid(0x0411);
    WriteTable(L"de-DE", L"IDS_OK", L"Gut");
    ZelResourceStringLoader loader(Services());
    TakeLines();

    EXPECT_FALSE(loader.Initialize(L"ORVA_WLM"));

    EXPECT_EQ(TakeLines().back(), L"*** Error occurred!! <en-US> StringTable is not existed: [" +
                                      TableOf(L"en-US") + L"]");
    EXPECT_EQ(loader.LoadString(L"IDS_OK"), L"");
    EXPECT_FALSE(loader.Succeeded());
    EXPECT_THAT(TakeLines(), ElementsAre(L"*** ZelCommon::Storage::Exception(): [0x000000a0]"));
}

// With a map, the map alone decides: a locale it does not list reads as English, even where
// the system's own locale has a table.
TEST_F(ZelResourceStringLoaderTest, LanguageMap_DecidesTheLocaleWithEnglishForUnlistedIds) {
    struct Case {
        uint32_t systemLcid;
        const wchar_t* chosen;
        const wchar_t* matchLine;
    };
    WriteTable(L"de-DE", L"IDS_OK", L"Gut");
    WriteTable(L"en-US", L"IDS_OK", L"OK");
    WriteLanguageMap(0x0809, L"de-DE");
    for (const Case& row : {Case{0x0809, L"de-DE", L"from [en-GB] to [de-DE]"},
                            Case{0x0407, L"en-US", L"from [de-DE] to [en-US]"}}) {
        locale.SetSystemDefaultLcid(row.systemLcid);
        ZelResourceStringLoader loader(Services());
        TakeLines();

        ASSERT_TRUE(loader.Initialize(L"ORVA_WLM"));

        EXPECT_EQ(loader.LocaleName(), row.chosen);
        EXPECT_THAT(TakeLines(),
                    HasInOrder(std::vector<std::wstring>{
                        L"Using LanguageMap.ini to perform language mapping, path: [" +
                            ResourceFolder() + L"LanguageMap.ini]",
                        L"<LanguageMap.ini> Matched Locale Name " + std::wstring(row.matchLine)}));
    }
}

// Escapes are expanded (their rules are the escapes' own tests), and a long text comes whole.
TEST_F(ZelResourceStringLoaderTest, LoadedTexts_HaveRealLineBreaksAndComeWhole) {
    const std::wstring longText(5000, L'x');
    WriteTable(L"en-US", L"IDS_LONG", longText + L"\\r\\nC:\\temp");
    ZelResourceStringLoader loader(Services());
    ASSERT_TRUE(loader.Initialize(L"ORVA_WLM"));

    EXPECT_EQ(loader.LoadString(L"IDS_LONG"), longText + L"\r\nC:\\temp");
}

// An empty id clears the success flag; an unknown one only logs; a closed table loads nothing.
TEST_F(ZelResourceStringLoaderTest, EmptyOrMissingIdOrClosedTable_GivesEmptyText) {
    WriteTable(L"en-US", L"IDS_OK", L"OK");
    ZelResourceStringLoader loader(Services());
    ASSERT_TRUE(loader.Initialize(L"ORVA_WLM"));
    TakeLines();

    EXPECT_EQ(loader.LoadString(L"IDS_NOWHERE"), L"");
    EXPECT_TRUE(loader.Succeeded());
    EXPECT_THAT(TakeLines(), ElementsAre(L"*** Error! Get string failed. ID: [IDS_NOWHERE]",
                                         L"<IDS_NOWHERE> String loaded."));
    EXPECT_EQ(loader.LoadString(L""), L"");
    EXPECT_FALSE(loader.Succeeded());
    EXPECT_THAT(TakeLines(), ElementsAre(L"*** Error! Load empty string ID."));
    // Once the table is closed, nothing loads.
    loader.UnInitialize();
    EXPECT_EQ(loader.LoadString(L"IDS_OK"), L"");
    EXPECT_FALSE(loader.Succeeded());
}

TEST_F(ZelResourceStringLoaderTest, DamagedTable_IsRefusedWithoutHarm) {
    ZelCommon::Path::CreateFolderWithParents(ResourceFolder() + L"en-US");
    {
        std::ofstream garbage(std::filesystem::path(TableOf(L"en-US")), std::ios::binary);
        for (int i = 0; i < 4096; ++i) {
            garbage.put(static_cast<char>((i * 7919) & 0xFF));
        }
    }
    ZelResourceStringLoader loader(Services());

    EXPECT_FALSE(loader.Initialize(L"ORVA_WLM"));
    EXPECT_EQ(loader.LoadString(L"IDS_OK"), L"");
}

}  // namespace
}  // namespace Orva::Testing
