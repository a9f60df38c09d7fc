#pragma once

#include <cstdint>

namespace ZelCommon::Platform {

// Local wall-clock time with the fields of a SYSTEMTIME.
struct LocalTime {
    uint16_t year = 0;
    uint16_t month = 0;
    uint16_t dayOfWeek = 0;
    uint16_t day = 0;
    uint16_t hour = 0;
    uint16_t minute = 0;
    uint16_t second = 0;
    uint16_t milliseconds = 0;
};

// Time and waiting, so that tests can drive midnight and retries without waiting.
class IClock {
public:
    virtual ~IClock() = default;
    virtual LocalTime Now() const = 0;
    virtual void Sleep(uint32_t milliseconds) = 0;
};

IClock& SystemClock();

}  // namespace ZelCommon::Platform
