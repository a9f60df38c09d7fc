#include "settings/localisation/Placeholders.h"

#include <gtest/gtest.h>

#include "StringLoaderFixture.h"

namespace Orva::Testing {
namespace {

using Settings::ExpandPlaceholders;

class PlaceholdersTest : public StringLoaderTest {
protected:
    std::wstring Expand(const std::wstring& text) {
        ZelResourceStringLoader loader(Services());
        loader.Initialize(L"ORVA_WLM");
        return ExpandPlaceholders(text, InstallFile(), profile, loader);
    }
    void Brand(const std::wstring& key, const std::wstring& value) {
        WriteEntry(InstallFile(), L"General", key, value);
    }
};

TEST_F(PlaceholdersTest, InstallationBranding_WinsOverTheTable) {
    WriteTable(L"en-US", L"IDS_PRODUCT_NAME", L"Table Product");
    WriteTable(L"en-US", L"IDS_CORP_NAME", L"Table Corp");
    WriteTable(L"en-US", L"IDS_SPAM_NAME", L"Table Spam");
    const std::wstring text = L"<$PRODUCT NAME> by <$CORP_NAME> stops <$SPAM_NAME>";
    EXPECT_EQ(Expand(text), L"Table Product by Table Corp stops Table Spam");

    Brand(L"AboutProductName", L"Branded Product");
    Brand(L"CorpName", L"Branded Corp");
    Brand(L"Anti-Spam", L"Branded Spam");
    EXPECT_EQ(Expand(text), L"Branded Product by Branded Corp stops Branded Spam");
}

TEST_F(PlaceholdersTest, NeitherBrandingNorTable_SpamNameIsAntiSpamAndNamesAreLeftOut) {
    WriteTable(L"en-US", L"IDS_OK", L"OK");
    EXPECT_EQ(Expand(L"[<$PRODUCT NAME>][<$CORP_NAME>][<$SPAM_NAME>]"), L"[][][Anti-Spam]");
}

TEST_F(PlaceholdersTest, NoTableAtAll_StillExpandsFromTheBranding) {
    Brand(L"AboutProductName", L"Branded Product");
    EXPECT_EQ(Expand(L"About <$PRODUCT NAME>, <$SPAM_NAME>"), L"About Branded Product, Anti-Spam");
}

TEST_F(PlaceholdersTest, EveryOccurrence_IsReplaced) {
    Brand(L"CorpName", L"Corp");
    EXPECT_EQ(Expand(L"<$CORP_NAME>/<$CORP_NAME>/<$CORP_NAME>"), L"Corp/Corp/Corp");
}

TEST_F(PlaceholdersTest, TextWithoutPlaceholders_ReadsNoString) {
    WriteTable(L"en-US", L"IDS_PRODUCT_NAME", L"Table Product");
    ZelResourceStringLoader loader(Services());
    ASSERT_TRUE(loader.Initialize(L"ORVA_WLM"));
    TakeLines();

    EXPECT_EQ(ExpandPlaceholders(L"Plain <$OTHER> text", InstallFile(), profile, loader),
              L"Plain <$OTHER> text");
    EXPECT_TRUE(TakeLines().empty());
}

TEST(ReplaceAll, EmptyPlaceholder_LeavesTheTextAlone) {
    EXPECT_EQ(Settings::ReplaceAll(L"abc", L"", L"x"), L"abc");
    EXPECT_EQ(Settings::ReplaceAll(L"<a><a>", L"<a>", L""), L"");
    EXPECT_EQ(Settings::ReplaceAll(L"<a>", L"<a>", L"<a><a>"), L"<a><a>");
}

}  // namespace
}  // namespace Orva::Testing
