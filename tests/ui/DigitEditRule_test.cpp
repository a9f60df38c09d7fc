#include "ui/DigitEditRule.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace {

using Orva::Ui::CDigitEditRule;
using Reaction = CDigitEditRule::Reaction;
constexpr Reaction Keep = Reaction::Keep;
constexpr Reaction Post = Reaction::PostRestore;

TEST(DigitEditRule, PassesCharacter_DigitsAndTheListedCodesOnly) {
    const struct {
        std::uint32_t code;
        bool passes;
    } cases[] = {
        {U'0', true}, {U'5', true}, {U'9', true}, {U'/', false},  {U':', false},    {U'a', false},
        {7, false},   {8, true},    {9, false},   {34, false},    {35, true},       {36, true},
        {37, true},   {38, false},  {39, true},   {40, false},    {44, false},      {45, true},
        {46, true},   {47, false},  {0, false},   {0x660, false}, {0x10030, false}, {0x130, false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CDigitEditRule::PassesCharacter(c.code), c.passes) << "code " << c.code;
    }
}

struct Step {
    std::wstring text;
    Reaction reaction;
    std::wstring lastAccepted;
};

struct Sequence {
    const char* name;
    std::optional<int> maximum;
    std::vector<Step> steps;
};

TEST(DigitEditRule, OnTextChanged_KeepsOrPostsAndRemembers) {
    const Sequence sequences[] = {
        {"range edges",
         365,
         {{L"1", Keep, L"1"},
          {L"365", Keep, L"365"},
          {L"366", Post, L"365"},
          {L"0", Post, L"365"},
          {L"", Keep, L"365"},
          {L"36", Keep, L"36"}}},
        {"nothing accepted yet", 10, {{L"11", Post, L""}, {L"", Keep, L""}}},
        {"same value keeps its first spelling",
         365,
         {{L"12", Keep, L"12"},
          {L"012", Keep, L"12"},
          {L"0000000000000012", Keep, L"12"},
          {L"13", Keep, L"13"}}},
        {"the same text twice posts once", 10, {{L"99", Post, L""}, {L"99", Keep, L""}}},
        {"non-numbers are out of range",
         65535,
         {{L"80", Keep, L"80"},
          {L"12a", Post, L"80"},
          {L"8-", Post, L"80"},
          {L"1.5", Post, L"80"},
          {L" 7", Post, L"80"},
          {L"+7", Post, L"80"},
          {L"\x0661", Post, L"80"}}},
        {"overflow is out of range",
         2147483647,
         {{L"2147483647", Keep, L"2147483647"},
          {L"2147483648", Post, L"2147483647"},
          {L"99999999999", Post, L"2147483647"},
          {L"7", Keep, L"7"}}},
        {"an empty range accepts no number", 0, {{L"1", Post, L""}, {L"0", Post, L""}}},
        {"without a range numbers are remembered, nothing posted",
         std::nullopt,
         {{L"0", Keep, L"0"}, {L"99999", Keep, L"99999"}, {L"12a", Keep, L"99999"}}},
    };
    for (const Sequence& sequence : sequences) {
        CDigitEditRule rule;
        if (sequence.maximum) {
            rule.SetRange(*sequence.maximum);
        }
        for (const Step& step : sequence.steps) {
            SCOPED_TRACE(testing::Message()
                         << sequence.name << ", text of " << step.text.size() << " characters");
            EXPECT_EQ(rule.OnTextChanged(step.text), step.reaction);
            EXPECT_EQ(rule.LastAcceptedText(), step.lastAccepted);
        }
    }
}

TEST(DigitEditRule, OnRestore_LastAcceptedTextWithTheCaretAtThreeOrItsEnd) {
    const struct {
        std::wstring accepted;
        std::size_t caret;
    } cases[] = {{L"", 0}, {L"7", 1}, {L"365", 3}, {L"8080", 3}, {L"65535", 3}};
    for (const auto& c : cases) {
        CDigitEditRule rule;
        rule.SetRange(65535);
        rule.OnTextChanged(c.accepted);
        rule.OnTextChanged(L"70000");
        const CDigitEditRule::Restore restore = rule.OnRestore();
        EXPECT_EQ(restore.text, c.accepted);
        EXPECT_EQ(restore.caret, c.caret);
        EXPECT_EQ(rule.OnTextChanged(restore.text), Keep);
    }
}

}  // namespace
