#include <chrono>
#include <ctime>
#include <thread>

#include "common_src/platform/Clock.h"

namespace ZelCommon::Platform {
namespace {

class NativeClock final : public IClock {
public:
    LocalTime Now() const override {
        const auto now = std::chrono::system_clock::now();
        const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
        const auto sinceEpoch = now.time_since_epoch();
        const auto millis =
            std::chrono::duration_cast<std::chrono::milliseconds>(sinceEpoch).count() % 1000;
        std::tm local{};
        localtime_r(&seconds, &local);
        LocalTime t;
        t.year = static_cast<uint16_t>(local.tm_year + 1900);
        t.month = static_cast<uint16_t>(local.tm_mon + 1);
        t.dayOfWeek = static_cast<uint16_t>(local.tm_wday);
        t.day = static_cast<uint16_t>(local.tm_mday);
        t.hour = static_cast<uint16_t>(local.tm_hour);
        t.minute = static_cast<uint16_t>(local.tm_min);
        t.second = static_cast<uint16_t>(local.tm_sec);
        t.milliseconds = static_cast<uint16_t>(millis < 0 ? millis + 1000 : millis);
        return t;
    }

    void Sleep(uint32_t milliseconds) override {
        std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
    }
};

}  // namespace

IClock& SystemClock() {
    static NativeClock clock;
    return clock;
}

}  // namespace ZelCommon::Platform
