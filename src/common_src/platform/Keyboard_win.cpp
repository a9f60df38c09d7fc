#include <windows.h>

#include "common_src/platform/Keyboard.h"

namespace ZelCommon::Platform {
namespace {

class WindowsKeyboard final : public IKeyboard {
public:
    bool IsShiftDown() override {
        // The high bit of the 16-bit state is "pressed"; the low bit is only the toggle.
        return (static_cast<unsigned short>(::GetKeyState(VK_SHIFT)) & 0x8000u) != 0;
    }
};

}  // namespace

IKeyboard& SystemKeyboard() {
    static WindowsKeyboard keyboard;
    return keyboard;
}

}  // namespace ZelCommon::Platform
