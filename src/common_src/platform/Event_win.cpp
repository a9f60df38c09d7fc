#include <windows.h>

#include "common_src/platform/Event.h"
#include "common_src/platform/UniqueAny_win.h"

namespace ZelCommon::Platform {
namespace {

class WindowsEvent final : public IEvent {
public:
    WindowsEvent() : m_handle(::CreateEventW(nullptr, FALSE, FALSE, nullptr)) {}

    void Set() override {
        if (m_handle) {
            ::SetEvent(m_handle.get());
        }
    }

    bool Wait(uint32_t milliseconds) override {
        return m_handle && ::WaitForSingleObject(m_handle.get(), milliseconds) == WAIT_OBJECT_0;
    }

private:
    unique_handle m_handle;
};

}  // namespace

std::unique_ptr<IEvent> CreateAutoResetEvent() {
    return std::make_unique<WindowsEvent>();
}

}  // namespace ZelCommon::Platform
