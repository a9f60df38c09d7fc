#include "lists/SenderIndex.h"

#include <algorithm>

namespace Orva::Lists {
namespace {

template <class Entries>
auto LowerBound(Entries& entries, std::wstring_view key) {
    return std::lower_bound(
        entries.begin(), entries.end(), key,
        [](const KeyedEntry& entry, std::wstring_view k) { return entry.Key() < k; });
}

}  // namespace

const KeyedEntry* SenderIndex::Find(std::wstring_view key) const {
    const auto at = LowerBound(m_entries, key);
    return at != m_entries.end() && at->Key() == key ? &*at : nullptr;
}

bool SenderIndex::Insert(KeyedEntry entry) {
    if (m_entries.empty() || m_entries.back().Key() < entry.Key()) {
        m_entries.push_back(std::move(entry));
        return true;
    }
    const auto at = LowerBound(m_entries, entry.Key());
    if (at != m_entries.end() && at->Key() == entry.Key()) {
        return false;
    }
    m_entries.insert(at, std::move(entry));
    return true;
}

bool SenderIndex::Erase(std::wstring_view key) {
    const auto at = LowerBound(m_entries, key);
    if (at == m_entries.end() || at->Key() != key) {
        return false;
    }
    m_entries.erase(at);
    return true;
}

bool SenderIndex::SetName(std::wstring_view key, std::wstring name) {
    const auto at = LowerBound(m_entries, key);
    if (at == m_entries.end() || at->Key() != key) {
        return false;
    }
    at->SetName(std::move(name));
    return true;
}

}  // namespace Orva::Lists
