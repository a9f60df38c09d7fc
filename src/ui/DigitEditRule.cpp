#include "ui/DigitEditRule.h"

#include <algorithm>
#include <limits>

namespace Orva::Ui {
namespace {

// Where the caret goes when the last accepted text is put back.
constexpr std::size_t kRestoredCaret = 3;

// The value of a text made of the digits "0" to "9" only; none for anything else: an empty
// text, a sign, a blank, a letter, or a number too large for an int. A pasted "12a" or
// "99999999999" is therefore never read as 12 or as a wrapped-around value, and with a range
// it counts as out of it: the edit gets its last good text back. Leading zeros are read
// however many there are.
std::optional<int> NumberOf(std::wstring_view text) {
    if (text.empty()) {
        return std::nullopt;
    }
    constexpr int kLargest = std::numeric_limits<int>::max();
    int value = 0;
    for (const wchar_t character : text) {
        if (character < L'0' || character > L'9') {
            return std::nullopt;
        }
        const int digit = character - L'0';
        if (value > (kLargest - digit) / 10) {
            return std::nullopt;
        }
        value = value * 10 + digit;
    }
    return value;
}

}  // namespace

// The codes beside the digits and backspace are those of the navigation keys' virtual keys
// (End, Home, Left, Right, Insert, Delete). As characters they are '#', '$', '%', '\'', '-' and
// '.', which reach the edit; a text that holds one is not a number and is put back like one
// out of range.
bool CDigitEditRule::PassesCharacter(std::uint32_t code) {
    if (code >= U'0' && code <= U'9') {
        return true;
    }
    switch (code) {
        case 8:
        case 35:
        case 36:
        case 37:
        case 39:
        case 45:
        case 46:
            return true;
        default:
            return false;
    }
}

void CDigitEditRule::SetRange(int maximum) {
    m_rangeEnabled = true;
    m_minimum = 1;
    m_maximum = maximum;
}

// An empty text stays so that the user can clear the field and type a new number. Without a
// range there is nothing to keep the text within, but a number is still remembered, so that a
// text the dialog set before the range is the one put back later.
CDigitEditRule::Reaction CDigitEditRule::OnTextChanged(std::wstring_view text) {
    if (text == m_previousText) {
        return Reaction::Keep;
    }
    m_previousText = text;
    if (text.empty()) {
        return Reaction::Keep;
    }
    const std::optional<int> value = NumberOf(text);
    const bool inRange = value && (!m_rangeEnabled || (*value >= m_minimum && *value <= m_maximum));
    if (!inRange) {
        return m_rangeEnabled ? Reaction::PostRestore : Reaction::Keep;
    }
    if (value != m_lastAcceptedValue) {
        m_lastAcceptedValue = value;
        m_lastAcceptedText = text;
    }
    return Reaction::Keep;
}

// The edit clamps a caret past the end of its text; the answer says where it really lands.
CDigitEditRule::Restore CDigitEditRule::OnRestore() const {
    return {m_lastAcceptedText, std::min(kRestoredCaret, m_lastAcceptedText.size())};
}

}  // namespace Orva::Ui
