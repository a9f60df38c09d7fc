#include <windows.h>

#include "common_src/platform/Clock.h"

namespace ZelCommon::Platform {
namespace {

class WindowsClock final : public IClock {
public:
    LocalTime Now() const override {
        SYSTEMTIME st{};
        ::GetLocalTime(&st);
        LocalTime t;
        t.year = st.wYear;
        t.month = st.wMonth;
        t.dayOfWeek = st.wDayOfWeek;
        t.day = st.wDay;
        t.hour = st.wHour;
        t.minute = st.wMinute;
        t.second = st.wSecond;
        t.milliseconds = st.wMilliseconds;
        return t;
    }

    void Sleep(uint32_t milliseconds) override { ::Sleep(milliseconds); }
};

}  // namespace

IClock& SystemClock() {
    static WindowsClock clock;
    return clock;
}

}  // namespace ZelCommon::Platform
