#pragma once

#include <cstdint>
#include <mutex>

#include "common_src/platform/Clock.h"
#include "support/fakes/platform/FakeJournal.h"

namespace ZelCommon::Fakes {

// A clock that stands still until a test sets or advances it; Sleep returns at once.
class FakeClock final : public Platform::IClock {
public:
    FakeClock();
    explicit FakeClock(const Platform::LocalTime& now);

    Platform::LocalTime Now() const override;
    void Sleep(uint32_t milliseconds) override;

    void Set(const Platform::LocalTime& now);
    // Moves the clock forward, across midnight, month and year ends.
    void Advance(uint64_t milliseconds);
    // Also writes each sleep into `journal` as "sleep <milliseconds>".
    void SetJournal(FakeJournal* journal);

    static Platform::LocalTime At(uint16_t year, uint16_t month, uint16_t day, uint16_t hour = 0,
                                  uint16_t minute = 0, uint16_t second = 0,
                                  uint16_t milliseconds = 0);

private:
    mutable std::mutex m_mutex;
    Platform::LocalTime m_now;
    FakeJournal* m_journal = nullptr;
};

}  // namespace ZelCommon::Fakes
