#pragma once

namespace ZelCommon::Platform {

// The state of the keyboard as the current message saw it.
class IKeyboard {
public:
    virtual ~IKeyboard() = default;
    // GetKeyState(VK_SHIFT) with the high bit set.
    virtual bool IsShiftDown() = 0;
};

IKeyboard& SystemKeyboard();

}  // namespace ZelCommon::Platform
