#include "common_src/platform/WindowProcedureHook.h"

namespace ZelCommon::Platform {
namespace {

// No windows exist natively: there is no procedure to read, swap or call.
class NativeProcedureHook final : public IWindowProcedureHook {
public:
    WindowProcedure CurrentProcedure(WindowHandle) override { return 0; }
    bool InstallHook(WindowHandle) override { return false; }
    bool Restore(WindowHandle, WindowProcedure) override { return false; }
    intptr_t CallProcedure(WindowProcedure, WindowHandle, uint32_t, uintptr_t, intptr_t) override {
        return 0;
    }
    intptr_t CallDefault(WindowHandle, uint32_t, uintptr_t, intptr_t) override { return 0; }
};

}  // namespace

std::unique_ptr<IWindowProcedureHook> CreateWindowProcedureHook(WindowProcedure) {
    return std::make_unique<NativeProcedureHook>();
}

}  // namespace ZelCommon::Platform
