#include "ui/DigitEditRule.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace {

using Orva::Ui::CDigitEditRule;
constexpr auto Keep = CDigitEditRule::Reaction::Keep;
constexpr auto Post = CDigitEditRule::Reaction::PostRestore;

TEST(DigitEditRule, PassesCharacter_DigitsBackspaceAndCodes35To37_39_45_46Only) {
    const std::u32string passing = U"0123456789\b#$%'-.";
    for (char32_t code = 0; code < 0x300; ++code) {
        EXPECT_EQ(CDigitEditRule::PassesCharacter(code), passing.find(code) != passing.npos)
            << "code " << static_cast<unsigned>(code);
    }
    EXPECT_FALSE(CDigitEditRule::PassesCharacter(0x660));    // ARABIC-INDIC DIGIT ZERO
    EXPECT_FALSE(CDigitEditRule::PassesCharacter(0x10030));  // '0' in its low 16 bits
}

struct Step {
    std::wstring text;
    CDigitEditRule::Reaction reaction;
    std::wstring lastAccepted;
};

TEST(DigitEditRule, OnTextChanged_KeepsOrPostsAndRemembers) {
    const struct {
        std::optional<int> maximum;
        std::vector<Step> steps;
    } cases[] = {
        // clang-format off
        {365, {{L"1", Keep, L"1"}, {L"365", Keep, L"365"}, {L"366", Post, L"365"},
               {L"0", Post, L"365"}, {L"", Keep, L"365"}, {L"36", Keep, L"36"}}},
        {10, {{L"11", Post, L""}, {L"11", Keep, L""}, {L"", Keep, L""}}},
        // The same value keeps its first spelling.
        {365, {{L"12", Keep, L"12"}, {L"012", Keep, L"12"}, {L"0000000000012", Keep, L"12"}}},
        {65535, {{L"80", Keep, L"80"}, {L"12a", Post, L"80"}, {L"8-", Post, L"80"},
                 {L" 7", Post, L"80"}, {L"+7", Post, L"80"}, {L"\x0661", Post, L"80"}}},
        {2147483647, {{L"2147483647", Keep, L"2147483647"}, {L"2147483648", Post, L"2147483647"},
                      {L"99999999999", Post, L"2147483647"}}},
        {0, {{L"1", Post, L""}}},
        // Without a range nothing is posted, but numbers are remembered.
        {std::nullopt, {{L"0", Keep, L"0"}, {L"99999", Keep, L"99999"}, {L"1a", Keep, L"99999"}}},
        // clang-format on
    };
    for (std::size_t index = 0; index < std::size(cases); ++index) {
        CDigitEditRule rule;
        if (cases[index].maximum) {
            rule.SetRange(*cases[index].maximum);
        }
        for (const Step& step : cases[index].steps) {
            SCOPED_TRACE(testing::Message() << "case " << index << ", length " << step.text.size());
            EXPECT_EQ(rule.OnTextChanged(step.text), step.reaction);
            EXPECT_EQ(rule.LastAcceptedText(), step.lastAccepted);
        }
    }
}

TEST(DigitEditRule, OnRestore_LastAcceptedTextWithTheCaretAtThreeOrItsEnd) {
    const struct {
        std::wstring accepted;
        std::size_t caret;
    } cases[] = {{L"", 0}, {L"7", 1}, {L"365", 3}, {L"8080", 3}};
    for (const auto& c : cases) {
        CDigitEditRule rule;
        rule.SetRange(65535);
        rule.OnTextChanged(c.accepted);
        ASSERT_EQ(rule.OnTextChanged(L"70000"), Post);
        const CDigitEditRule::Restore restore = rule.OnRestore();
        EXPECT_EQ(restore.text, c.accepted);
        EXPECT_EQ(restore.caret, c.caret);
        EXPECT_EQ(rule.OnTextChanged(restore.text), Keep);
    }
}

}  // namespace
