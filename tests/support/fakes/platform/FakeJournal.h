#pragma once

#include <mutex>
#include <string>
#include <vector>

namespace ZelCommon::Fakes {

// One time line shared by several fakes, so that a test can state the order of a whole scenario
// (log lines, sleeps, posts, launches) rather than each fake's calls on their own.
class FakeJournal {
public:
    void Add(std::wstring entry) {
        std::lock_guard lock(m_mutex);
        m_entries.push_back(std::move(entry));
    }
    std::vector<std::wstring> Entries() const {
        std::lock_guard lock(m_mutex);
        return m_entries;
    }
    void Clear() {
        std::lock_guard lock(m_mutex);
        m_entries.clear();
    }

private:
    mutable std::mutex m_mutex;
    std::vector<std::wstring> m_entries;
};

}  // namespace ZelCommon::Fakes
