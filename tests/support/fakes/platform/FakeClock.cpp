#include "support/fakes/platform/FakeClock.h"

#include <chrono>

namespace ZelCommon::Fakes {
namespace {

using Platform::LocalTime;

std::chrono::sys_time<std::chrono::milliseconds> ToTimePoint(const LocalTime& t) {
    using namespace std::chrono;
    const sys_days day = year_month_day{year{t.year}, month{t.month}, std::chrono::day{t.day}};
    return day + hours{t.hour} + minutes{t.minute} + seconds{t.second} +
           milliseconds{t.milliseconds};
}

LocalTime FromTimePoint(std::chrono::sys_time<std::chrono::milliseconds> point) {
    using namespace std::chrono;
    const sys_days day = floor<days>(point);
    const year_month_day date{day};
    const hh_mm_ss<milliseconds> clock{point - day};
    LocalTime t;
    t.year = static_cast<uint16_t>(static_cast<int>(date.year()));
    t.month = static_cast<uint16_t>(static_cast<unsigned>(date.month()));
    t.day = static_cast<uint16_t>(static_cast<unsigned>(date.day()));
    t.dayOfWeek = static_cast<uint16_t>(weekday{day}.c_encoding());
    t.hour = static_cast<uint16_t>(clock.hours().count());
    t.minute = static_cast<uint16_t>(clock.minutes().count());
    t.second = static_cast<uint16_t>(clock.seconds().count());
    t.milliseconds = static_cast<uint16_t>(clock.subseconds().count());
    return t;
}

}  // namespace

FakeClock::FakeClock() : m_now(At(2024, 1, 31, 12, 0, 0, 0)) {}

FakeClock::FakeClock(const LocalTime& now) : m_now(now) {}

LocalTime FakeClock::Now() const {
    std::lock_guard lock(m_mutex);
    return m_now;
}

void FakeClock::Sleep(uint32_t milliseconds) {
    std::lock_guard lock(m_mutex);
    if (m_journal != nullptr) {
        m_journal->Add(L"sleep " + std::to_wstring(milliseconds));
    }
}

void FakeClock::SetJournal(FakeJournal* journal) {
    std::lock_guard lock(m_mutex);
    m_journal = journal;
}

void FakeClock::Set(const LocalTime& now) {
    std::lock_guard lock(m_mutex);
    m_now = now;
}

void FakeClock::Advance(uint64_t milliseconds) {
    std::lock_guard lock(m_mutex);
    m_now = FromTimePoint(ToTimePoint(m_now) +
                          std::chrono::milliseconds(static_cast<int64_t>(milliseconds)));
}

LocalTime FakeClock::At(uint16_t year, uint16_t month, uint16_t day, uint16_t hour, uint16_t minute,
                        uint16_t second, uint16_t milliseconds) {
    LocalTime t;
    t.year = year;
    t.month = month;
    t.day = day;
    t.hour = hour;
    t.minute = minute;
    t.second = second;
    t.milliseconds = milliseconds;
    return FromTimePoint(ToTimePoint(t));
}

}  // namespace ZelCommon::Fakes
