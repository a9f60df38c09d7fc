#include <chrono>
#include <condition_variable>
#include <mutex>

#include "common_src/platform/Event.h"

namespace ZelCommon::Platform {
namespace {

class PortableEvent final : public IEvent {
public:
    void Set() override {
        {
            const std::lock_guard<std::mutex> lock(m_mutex);
            m_signalled = true;
        }
        m_changed.notify_one();
    }

    bool Wait(uint32_t milliseconds) override {
        std::unique_lock<std::mutex> lock(m_mutex);
        if (!m_changed.wait_for(lock, std::chrono::milliseconds(milliseconds),
                                [this] { return m_signalled; })) {
            return false;
        }
        // Auto-reset: the waiter that sees the signal takes it.
        m_signalled = false;
        return true;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_signalled = false;
};

}  // namespace

std::unique_ptr<IEvent> CreateAutoResetEvent() {
    return std::make_unique<PortableEvent>();
}

}  // namespace ZelCommon::Platform
