#include "settings/localisation/LoaderStrings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "settings/localisation/StringLoaderFixture.h"

namespace {

using Orva::Settings::CLoaderStrings;

class LoaderStrings : public Orva::Testing::StringLoaderTest {};

TEST_F(LoaderStrings, Load_ReadsTheProductTable) {
    WriteTable(L"en-US", L"IDS_QUILLON_HALVION_HOMEWEB", L"http://home.example/");
    ZelResourceStringLoader loader(Services());
    CLoaderStrings strings(loader, InstallFile(), profile);
    EXPECT_EQ(strings.Load(L"IDS_QUILLON_HALVION_HOMEWEB"), L"http://home.example/");
    EXPECT_EQ(loader.Section(), L"ORVA_WLM");
    EXPECT_EQ(strings.Load(L"IDS_MISSING"), L"");
    EXPECT_EQ(strings.Load(L"IDS_QUILLON_HALVION_HOMEWEB"), L"http://home.example/");
}

TEST_F(LoaderStrings, NoTable_GivesEmptyTextsAndIsLookedForOnce) {
    ZelResourceStringLoader loader(Services());
    CLoaderStrings strings(loader, InstallFile(), profile);
    for (int load = 0; load < 3; ++load) {
        EXPECT_EQ(strings.Load(L"IDS_QUILLON_HALVION_HOMEWEB"), L"");
    }
    const std::vector<std::wstring> lines = TakeLines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(),
                         L"*** Error occurred!! <en-US> StringTable is not existed: [" +
                             TableOf(L"en-US") + L"]"),
              1);
}

TEST_F(LoaderStrings, Release_ClosesTheTableAndTheNextLoadReopensIt) {
    WriteTable(L"en-US", L"IDS_PRODUCT_NAME", L"ORVA");
    ZelResourceStringLoader loader(Services());
    CLoaderStrings strings(loader, InstallFile(), profile);
    ASSERT_EQ(strings.Load(L"IDS_PRODUCT_NAME"), L"ORVA");
    strings.Release();
    EXPECT_EQ(loader.Section(), L"");
    EXPECT_EQ(strings.Load(L"IDS_PRODUCT_NAME"), L"ORVA");
}

// The ribbon's captions name the product through placeholders; a closed table leaves none.
TEST_F(LoaderStrings, LoadShown_ExpandsPlaceholdersOnlyFromAnOpenTable) {
    ZelResourceStringLoader missing(Services());
    CLoaderStrings noTable(missing, InstallFile(), profile);
    EXPECT_EQ(noTable.LoadShown(L"IDS_ABOUT_CAPTION"), L"");

    WriteTable(L"en-US", L"IDS_PRODUCT_NAME", L"Table Product");
    WriteTable(L"en-US", L"IDS_ABOUT_CAPTION", L"About <$PRODUCT NAME>");
    WriteEntry(InstallFile(), L"General", L"AboutProductName", L"Branded");
    ZelResourceStringLoader loader(Services());
    CLoaderStrings strings(loader, InstallFile(), profile);
    EXPECT_EQ(strings.LoadShown(L"IDS_ABOUT_CAPTION"), L"About Branded");
    EXPECT_EQ(strings.Load(L"IDS_ABOUT_CAPTION"), L"About <$PRODUCT NAME>");
}

}  // namespace
