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

TEST(SystemKeyboardWin, NoKeyHeld_ShiftIsNotDown) {
    ShiftState shift;
    ASSERT_TRUE(shift.Set(0));
    EXPECT_FALSE(SystemKeyboard().IsShiftDown());
}

TEST(SystemKeyboardWin, ShiftPressed_IsDown) {
    ShiftState shift;
    ASSERT_TRUE(shift.Set(0x80));
    EXPECT_TRUE(SystemKeyboard().IsShiftDown());
}

TEST(SystemKeyboardWin, ShiftOnlyToggled_IsNotDown) {
    ShiftState shift;
    ASSERT_TRUE(shift.Set(0x01));
    EXPECT_FALSE(SystemKeyboard().IsShiftDown());
}

TEST(SystemKeyboardWin, UntouchedKeyboardUnderTest_ShiftIsNotDown) {
    EXPECT_FALSE(SystemKeyboard().IsShiftDown());
}

}  // namespace
