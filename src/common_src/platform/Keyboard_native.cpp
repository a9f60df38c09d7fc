#include "common_src/platform/Keyboard.h"

namespace ZelCommon::Platform {
namespace {

// Natively no message carries a keyboard state: Shift never reads as held.
class NativeKeyboard final : public IKeyboard {
public:
    bool IsShiftDown() override { return false; }
};

}  // namespace

IKeyboard& SystemKeyboard() {
    static NativeKeyboard keyboard;
    return keyboard;
}

}  // namespace ZelCommon::Platform
