#include <gtest/gtest.h>

#include <random>
#include <string>

#include "common_src/platform/TextCodec.h"
#include "lists/ListText.h"

namespace Orva::Lists {
namespace {

struct ExtractCase {
    const char* label;
    std::string line;
    std::string expected;
};

void PrintTo(const ExtractCase& value, std::ostream* out) {
    *out << value.label;
}

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
    std::wstring surrogate = L"a";
    surrogate.push_back(static_cast<wchar_t>(0xDC00));
    EXPECT_FALSE(IsStorableValue(surrogate));
}

// The file writer's encoder must give the bytes of the shared converter for every valid text.
TEST(AppendUtf8, EqualsTheSharedConverterOnRandomText) {
    std::mt19937 random(99);
    std::uniform_int_distribution<uint32_t> plane(0, 3);
    for (int round = 0; round < 2000; ++round) {
        std::wstring text;
        for (int i = 0; i < 20; ++i) {
            const uint32_t limits[] = {0x80, 0x800, 0xD7FF, 0x10FFFF};
            uint32_t c = std::uniform_int_distribution<uint32_t>(1, limits[plane(random)])(random);
            if (c >= 0xD800 && c <= 0xDFFF) {
                c = 0xE000;
            }
            if (c >= 0x10000 && sizeof(wchar_t) == 2) {
                c -= 0x10000;
                text.push_back(static_cast<wchar_t>(0xD800 + (c >> 10)));
                text.push_back(static_cast<wchar_t>(0xDC00 + (c & 0x3FF)));
            } else {
                text.push_back(static_cast<wchar_t>(c));
            }
        }
        std::string appended = "x";
        AppendUtf8(appended, text);
        std::string expected = ZelCommon::Text::WideToUtf8(text);
        expected.insert(expected.begin(), 'x');
        ASSERT_EQ(expected, appended);
        ASSERT_EQ(text, ZelCommon::Text::Utf8ToWide(appended.substr(1)));
    }
}

// The save's one-pass check and encoding must agree with the check and the encoder apart.
TEST(AppendStorableUtf8, AgreesWithIsStorableValueAndAppendUtf8) {
    static const std::wstring kPieces[] = {L"a",      L" ",         L"\t",         L"\n",
                                           L"<",      L"<SN_ATTR>", L"<\\BL_REC>", L"\u00e9",
                                           L"\u4e2d", L"\u0001",    L"\u007f",     L"\uFFFD"};
    std::mt19937 random(5);
    std::uniform_int_distribution<size_t> piece(0, std::size(kPieces) - 1);
    std::uniform_int_distribution<int> parts(0, 6);
    size_t storable = 0;
    for (int round = 0; round < 20000; ++round) {
        std::wstring value;
        for (int i = parts(random); i > 0; --i) {
            value += kPieces[piece(random)];
        }
        if (round % 50 == 0) {
            value.push_back(static_cast<wchar_t>(0xD800));
        }
        std::string appended = "x";
        const bool stored = AppendStorableUtf8(appended, value);
        ASSERT_EQ(IsStorableValue(value), stored) << testing::PrintToString(value);
        if (stored) {
            std::string expected = "x";
            AppendUtf8(expected, value);
            ASSERT_EQ(expected, appended);
            ++storable;
        }
    }
    EXPECT_GT(storable, 1000u);
    EXPECT_LT(storable, 19000u);
}

}  // namespace
}  // namespace Orva::Lists
