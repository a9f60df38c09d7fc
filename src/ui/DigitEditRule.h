#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Orva::Ui {

// The message a digit edit posts itself when its text left the range; on it the edit puts the
// last accepted text back.
inline constexpr unsigned kDigitEditRestoreMessage = 2024;

// The input rule of a digit edit (an edit control for a number such as a port or a count of
// days), without a window: which typed characters reach the edit, and what the edit does when
// its text changed. The window feeds it and does what it answers.
class CDigitEditRule {
public:
    enum class Reaction {
        // Leave the text as it is.
        Keep,
        // Post kDigitEditRestoreMessage to the edit itself.
        PostRestore,
    };

    // What the edit shows again on kDigitEditRestoreMessage, and where its caret goes.
    struct Restore {
        std::wstring text;
        std::size_t caret = 0;
    };

    // Whether a typed character (WM_CHAR's code) reaches the edit.
    static bool PassesCharacter(std::uint32_t code);

    // Numbers from 1 to `maximum` are accepted from now on.
    void SetRange(int maximum);
    bool RangeEnabled() const { return m_rangeEnabled; }
    int Minimum() const { return m_minimum; }
    int Maximum() const { return m_maximum; }

    // To be called with the edit's whole text whenever it may have changed.
    Reaction OnTextChanged(std::wstring_view text);
    Restore OnRestore() const;

    const std::wstring& LastAcceptedText() const { return m_lastAcceptedText; }

private:
    bool m_rangeEnabled = false;
    int m_minimum = 0;
    int m_maximum = 0;
    std::wstring m_lastAcceptedText;
    std::optional<int> m_lastAcceptedValue;
    // The text last seen, so that a call that changed nothing causes nothing.
    std::wstring m_previousText;
};

}  // namespace Orva::Ui
