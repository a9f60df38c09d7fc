#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "lists/KeyedEntry.h"

namespace Orva::Lists {

// The entries of a list in key order (plain code-unit order), at most one per key, kept in one
// array: a list is loaded and saved whole far more often than it is edited, and loading appends
// to the array and saving walks it, where a tree would allocate and walk a node per entry.
class SenderIndex {
public:
    using const_iterator = std::vector<KeyedEntry>::const_iterator;

    const_iterator begin() const { return m_entries.begin(); }
    const_iterator end() const { return m_entries.end(); }
    size_t size() const { return m_entries.size(); }
    void clear() { m_entries.clear(); }

    // The entry of `key`, or null.
    const KeyedEntry* Find(std::wstring_view key) const;
    // Adds the entry unless its key is present; false then. An entry whose key sorts after every
    // other, as each does while a saved list loads, is appended.
    bool Insert(KeyedEntry entry);
    // Takes the entry of `key` out; false when there is none.
    bool Erase(std::wstring_view key);
    // Renames the entry of `key`; false when there is none.
    bool SetName(std::wstring_view key, std::wstring name);

private:
    std::vector<KeyedEntry> m_entries;
};

}  // namespace Orva::Lists
