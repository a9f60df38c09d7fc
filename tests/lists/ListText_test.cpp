#include <gtest/gtest.h>

#include <string>

#include "lists/ListText.h"

namespace Orva::Lists {
namespace {

struct ExtractCase {
    const char* label;
    std::string line;
    std::string expected;
};

class ExtractTaggedValueTest : public ::testing::TestWithParam<ExtractCase> {};

TEST_P(ExtractTaggedValueTest, FindsTheValueByTheTagRule) {
    EXPECT_EQ(GetParam().expected, ExtractTaggedValue(GetParam().line, "<T>", "<\\T>"));
}

INSTANTIATE_TEST_SUITE_P(
    Values, ExtractTaggedValueTest,
    ::testing::Values(ExtractCase{"Plain", "<T>v<\\T>", "v"}, ExtractCase{"Empty", "<T><\\T>", ""},
                      ExtractCase{"BlanksTrimmed", "<T> \t v w\t <\\T>", "v w"},
                      ExtractCase{"OtherWhitespaceKept", "<T>\v v\r<\\T>", "\v v\r"},
                      ExtractCase{"FirstOpenAndFirstCloseAfterIt", "<T>a<\\T><T>b<\\T>", "a"},
                      ExtractCase{"CloseBeforeOpenIgnored", "<\\T>x<T>a<\\T>", "a"},
                      ExtractCase{"NoOpen", "a<\\T>", ""}, ExtractCase{"NoClose", "<T>a", ""},
                      ExtractCase{"SlashClose", "<T>a</T>", ""}, ExtractCase{"EmptyLine", "", ""}),
    [](const auto& test) { return std::string(test.param.label); });

TEST(ExtractTaggedValue, CloseTagIsSearchedFromOnePastTheOpenTag) {
    // With an open tag that is a prefix of the close tag, the close tag may start inside it.
    EXPECT_EQ("", ExtractTaggedValue("<AB>", "<A", "A"));
    EXPECT_EQ("[x", ExtractTaggedValue("[[x]", "[", "]"));
}

TEST(CollapseStars, ReducesEveryRunToOneStar) {
    EXPECT_EQ(L"*a*b*", CollapseStars(L"***a**b*"));
    EXPECT_EQ(L"ab", CollapseStars(L"ab"));
    EXPECT_EQ(L"", CollapseStars(L""));
}

TEST(IsStorableValue, RefusesWhatReadingWouldChange) {
    EXPECT_TRUE(IsStorableValue(L""));
    EXPECT_TRUE(IsStorableValue(L"a\tb <x> \u00e9\U0001F600"));
    EXPECT_FALSE(IsStorableValue(L" a"));
    EXPECT_FALSE(IsStorableValue(L"a\t"));
    EXPECT_FALSE(IsStorableValue(L"a\nb"));
    EXPECT_FALSE(IsStorableValue(L"a<\\SA_ATTR>"));
    EXPECT_FALSE(IsStorableValue(L"<WL_REC>"));
    EXPECT_FALSE(IsStorableValue(std::wstring{L'a', static_cast<wchar_t>(0xDC00)}));
}

}  // namespace
}  // namespace Orva::Lists
