#include "plugin/controller/ControllerWindow.h"

namespace Orva::Plugin {
namespace {

class NoControllerWindow final : public IControllerWindow {
public:
    void MakeTopMost() override {}
    bool SetTimer(uintptr_t, uint32_t) override { return false; }
    bool KillTimer(uintptr_t) override { return false; }
};

}  // namespace

std::unique_ptr<IControllerWindow> CreateSystemControllerWindow(ZelCommon::Platform::WindowHandle) {
    return std::make_unique<NoControllerWindow>();
}

}  // namespace Orva::Plugin
