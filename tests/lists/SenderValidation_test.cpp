#include <gtest/gtest.h>

#include <random>
#include <regex>
#include <string>

#include "lists/SenderListSet.h"
#include "lists/SenderValidation.h"

namespace Orva::Lists {
namespace {

struct AddressCase {
    const char* label;
    std::wstring address;
    SenderCheck check;
    std::wstring stored;  // the address as accepted
};

class SenderValidationAddressTest : public ::testing::TestWithParam<AddressCase> {};

TEST_P(SenderValidationAddressTest, ValidateSender_AddressCases) {
    const SenderValidation result = ValidateSender(L"Name", GetParam().address);
    EXPECT_EQ(GetParam().check, result.check);
    if (result.Accepted()) {
        EXPECT_EQ(GetParam().stored, result.address);
        EXPECT_TRUE(result.messageId.empty());
    }
}

const std::wstring k256(256, L'a');
using enum SenderCheck;

INSTANTIATE_TEST_SUITE_P(
    Addresses, SenderValidationAddressTest,
    ::testing::Values(
        AddressCase{"Plain", L"ann@b.com", Accepted, L"ann@b.com"},
        AddressCase{"Trimmed", L" \r\n\tann@b.com\t\n", Accepted, L"ann@b.com"},
        AddressCase{"CaseKept", L"Ann@B.Com", Accepted, L"Ann@B.Com"},
        AddressCase{"DotsAndUnderscores", L"a.b_c-d@e-f.g_h.ij", Accepted, L"a.b_c-d@e-f.g_h.ij"},
        AddressCase{"LeadingDotInLocal", L".a@b.com", Accepted, L".a@b.com"},
        AddressCase{"DoubleDotInLocal", L"a..b@b.com", Accepted, L"a..b@b.com"},
        AddressCase{"LocalEndsWithDot", L"a.@b.com", NotAnEmailAddress, L""},
        AddressCase{"LocalEndsWithUnderscore", L"a_@b.com", NotAnEmailAddress, L""},
        AddressCase{"PlusInLocal", L"a+b@b.com", NotAnEmailAddress, L""},
        AddressCase{"SingleLabelDomain", L"a@localhost", NotAnEmailAddress, L""},
        AddressCase{"EmptyDomainLabel", L"a@b..com", NotAnEmailAddress, L""},
        AddressCase{"HyphenInLastLabel", L"a@b.c-m", NotAnEmailAddress, L""},
        AddressCase{"UnderscoreInLastLabel", L"a@b.c_m", Accepted, L"a@b.c_m"},
        AddressCase{"TwoAts", L"a@b@c.com", NotAnEmailAddress, L""},
        AddressCase{"Empty", L"", NotAnEmailAddress, L""},
        AddressCase{"BlanksOnly", L" \t ", NotAnEmailAddress, L""},
        AddressCase{"InnerSpace", L"a b@c.com", NotAnEmailAddress, L""},
        AddressCase{"StarLocal", L"*@spam.com", Accepted, L"*@spam.com"},
        AddressCase{"AdjacentStarsCollapsed", L"**@spam.com", Accepted, L"*@spam.com"},
        AddressCase{"StarRunInDomain", L"a@***.spam.com", Accepted, L"a@*.spam.com"},
        AddressCase{"StarsAroundLetter", L"*a*@spam.com", NotAnEmailAddress, L""},
        AddressCase{"StarsInBothParts", L"*@*.com", NotAnEmailAddress, L""},
        AddressCase{"StarAlone", L"*", NotAnEmailAddress, L""},
        AddressCase{"NonAsciiLetter", L"j\u00fcrgen@b.com", NotAnEmailAddress, L""},
        AddressCase{"NonAsciiInDomain", L"a@b\u00e9.com", NotAnEmailAddress, L""},
        AddressCase{"U0080PassesRangeButNotPattern", L"a\u0080@b.com", NotAnEmailAddress, L""},
        AddressCase{"TagText", L"a<SA_ATTR>@b.com", NotAnEmailAddress, L""},
        AddressCase{"Address256", k256.substr(0, 250) + L"@b.com", Accepted,
                    k256.substr(0, 250) + L"@b.com"},
        AddressCase{"Address257", k256.substr(0, 251) + L"@b.com", AddressTooLong, L""},
        AddressCase{"Address256AfterTrim", L"  " + k256.substr(0, 250) + L"@b.com  ", Accepted,
                    k256.substr(0, 250) + L"@b.com"}),
    [](const auto& test) { return std::string(test.param.label); });

// What a refusal shows: the address is checked before the name, the lengths before the pattern.
TEST(SenderValidation, Refusals_NameTheirMessageCaptionAndLimit) {
    const struct {
        const char* label;
        std::wstring name;
        std::wstring address;
        SenderCheck check;
        const wchar_t* messageId;
        const wchar_t* captionId;
        int number;
    } cases[] = {
        {"name 257", std::wstring(257, L'n'), L"a@b.com", SenderCheck::NameTooLong,
         L"IDS_TEXT_TOO_LONG_MSG", L"IDS_CONFIRMATION_CAPTION", 256},
        {"both too long", std::wstring(300, L'n'), std::wstring(300, L'a'),
         SenderCheck::AddressTooLong, L"IDS_TEXT_TOO_LONG_MSG", L"IDS_CONFIRMATION_CAPTION", 256},
        {"long name, bad address", std::wstring(257, L'n'), L"not an address",
         SenderCheck::NameTooLong, L"IDS_TEXT_TOO_LONG_MSG", L"IDS_CONFIRMATION_CAPTION", 256},
        {"bad address", L"", L"nope", SenderCheck::NotAnEmailAddress, L"IDS_WRONG_EMAILADDR_MSG",
         L"IDS_CONFIRMATION_CAPTION", 0},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.label);
        const SenderValidation result = ValidateSender(each.name, each.address);
        EXPECT_EQ(each.check, result.check);
        EXPECT_EQ(each.messageId, result.messageId);
        EXPECT_EQ(each.captionId, result.captionId);
        EXPECT_EQ(each.number, result.number);
    }
}

TEST(SenderValidation, Name256Accepted_AndNameTrimmed) {
    EXPECT_TRUE(ValidateSender(std::wstring(256, L'n'), L"a@b.com").Accepted());
    EXPECT_EQ(L"Ann Lee", ValidateSender(L"\t Ann Lee\r\n", L"a@b.com").name);
}

struct NameCase {
    const char* label;
    std::wstring name;
    bool accepted;
};

class SenderValidationNameTest : public ::testing::TestWithParam<NameCase> {};

TEST_P(SenderValidationNameTest, ValidateSender_RefusesNamesThatWouldBreakTheFile) {
    const SenderValidation result = ValidateSender(GetParam().name, L"a@b.com");
    EXPECT_EQ(GetParam().accepted, result.Accepted());
    if (!GetParam().accepted) {
        EXPECT_EQ(SenderCheck::NameNotPlainText, result.check);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Names, SenderValidationNameTest,
    ::testing::Values(
        NameCase{"Empty", L"", true}, NameCase{"Unicode", L"J\u00fcrgen \u4e2d", true},
        NameCase{"InnerTab", L"a\tb", true}, NameCase{"AngleBrackets", L"<Ann> <b@c.com>", true},
        NameCase{"InnerLineFeed", L"a\nb", false}, NameCase{"InnerCarriageReturn", L"a\rb", false},
        NameCase{"Nul", std::wstring(L"a\0b", 3), false},
        NameCase{"NameCloseTag", L"a<\\SN_ATTR>b", false},
        NameCase{"AddressOpenTag", L"<SA_ATTR>", false},
        NameCase{"RecordTag", L"<\\BL_REC>", false}, NameCase{"OtherRecordTag", L"<WL_REC>", false},
        NameCase{"UnpairedSurrogate", {L'a', wchar_t(0xD800)}, false}),
    [](const auto& test) { return std::string(test.param.label); });

// The hand-written matcher must agree with the pattern on every text validation hands it:
// characters up to U+0080, no "*". The corpus is built from address-shaped texts (local part,
// "@", labels) with random edits, so that it sits on the pattern's edges on both sides.
std::wstring RandomRun(std::mt19937& random, const std::wstring& alphabet, int most) {
    std::uniform_int_distribution<int> length(0, most);
    std::uniform_int_distribution<size_t> letter(0, alphabet.size() - 1);
    std::wstring text;
    for (int i = length(random); i > 0; --i) {
        text.push_back(alphabet[letter(random)]);
    }
    return text;
}

std::wstring RandomAddressLike(std::mt19937& random) {
    static const std::wstring kLocal = L"aZ09-aZ09-._";
    static const std::wstring kLabel = L"aZ09-_aZ09";
    static const std::wstring kAny = L"aZ09-_.@\u0080!+ <";
    std::uniform_int_distribution<int> labels(0, 4);
    std::uniform_int_distribution<int> edits(0, 3);
    std::wstring text = RandomRun(random, kLocal, 6) + L"@";
    for (int i = labels(random); i > 0; --i) {
        text += RandomRun(random, kLabel, 4);
        if (i > 1) {
            text += L".";
        }
    }
    for (int i = edits(random); i > 0 && !text.empty(); --i) {
        std::uniform_int_distribution<size_t> at(0, text.size() - 1);
        std::uniform_int_distribution<size_t> letter(0, kAny.size() - 1);
        switch (edits(random)) {
            case 0:
                text.erase(at(random), 1);
                break;
            case 1:
                text.insert(at(random), 1, kAny[letter(random)]);
                break;
            default:
                text[at(random)] = kAny[letter(random)];
                break;
        }
    }
    return text;
}

TEST(AddressPattern, HandMatcherEqualsRegexOnGeneratedCorpus) {
    const std::wregex pattern(kAddressPattern, std::regex_constants::ECMAScript);
    std::mt19937 random(20240131);
    size_t matched = 0;
    constexpr int kCorpus = 200000;
    for (int i = 0; i < kCorpus; ++i) {
        const std::wstring text = RandomAddressLike(random);
        const bool expected = std::regex_match(text, pattern);
        matched += expected ? 1 : 0;
        ASSERT_EQ(expected, MatchesAddressPattern(text))
            << "text: " << testing::PrintToString(text);
    }
    // A corpus that the pattern mostly refuses would prove little.
    EXPECT_GT(matched, static_cast<size_t>(kCorpus / 20));
    EXPECT_LT(matched, static_cast<size_t>(kCorpus - kCorpus / 20));
}

TEST(AddressPattern, HandMatcherEqualsRegexOnEveryShortText) {
    // Every text of up to seven characters over an alphabet holding one of each class.
    const std::wstring alphabet = L"a-_.@";
    const std::wregex pattern(kAddressPattern, std::regex_constants::ECMAScript);
    std::vector<std::wstring> texts{L""};
    for (int length = 1; length <= 7; ++length) {
        std::vector<std::wstring> longer;
        for (const std::wstring& text : texts) {
            for (const wchar_t c : alphabet) {
                longer.push_back(text + c);
            }
        }
        for (const std::wstring& text : longer) {
            ASSERT_EQ(std::regex_match(text, pattern), MatchesAddressPattern(text))
                << testing::PrintToString(text);
        }
        texts = std::move(longer);
    }
}

}  // namespace
}  // namespace Orva::Lists
