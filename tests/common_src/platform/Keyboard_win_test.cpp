#include <windows.h>

#include <gtest/gtest.h>

#include <array>

#include "common_src/platform/Keyboard.h"

namespace {

using ZelCommon::Platform::SystemKeyboard;

// Sets this thread's idea of the Shift key and puts the old state back afterwards.
class ShiftState {
public:
    ShiftState() { ::GetKeyboardState(m_saved.data()); }
    ~ShiftState() { ::SetKeyboardState(m_saved.data()); }
    ShiftState(const ShiftState&) = delete;
    ShiftState& operator=(const ShiftState&) = delete;

    bool Set(BYTE state) {
        std::array<BYTE, 256> keys = m_saved;
        keys[VK_SHIFT] = state;
        return ::SetKeyboardState(keys.data()) != FALSE;
    }

private:
    std::array<BYTE, 256> m_saved{};
};

// Only the key being held counts, not its toggle bit.
TEST(SystemKeyboardWin, ShiftState_IsDownOnlyWhilePressed) {
    const struct {
        BYTE state;
        bool down;
    } cases[] = {{0, false}, {0x80, true}, {0x01, false}, {0x81, true}};
    for (const auto& each : cases) {
        SCOPED_TRACE(each.state);
        ShiftState shift;
        ASSERT_TRUE(shift.Set(each.state));
        EXPECT_EQ(SystemKeyboard().IsShiftDown(), each.down);
    }
}

}  // namespace
