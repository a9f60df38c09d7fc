#include "common_src/platform/WindowMessaging.h"

namespace ZelCommon::Platform {
namespace {

// No windows exist natively: nothing is found and nothing is delivered.
class NativeMessaging final : public IWindowMessaging {
public:
    WindowHandle FindByTitle(const std::wstring&) override { return 0; }
    WindowHandle FindByClass(const std::wstring&) override { return 0; }
    bool Post(WindowHandle, uint32_t, uintptr_t, intptr_t) override { return false; }
    intptr_t Send(WindowHandle, uint32_t, uintptr_t, intptr_t) override { return 0; }
};

}  // namespace

IWindowMessaging& SystemWindowMessaging() {
    static NativeMessaging messaging;
    return messaging;
}

}  // namespace ZelCommon::Platform
