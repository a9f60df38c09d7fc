#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "lists/SenderEntry.h"

namespace Orva::Lists {

// The key of an address: the address in lower case.
std::wstring ListKeyOf(std::wstring_view address);

// An entry of a list with its key. Most entries are keyed by their own address, already in
// lower case; only a key that differs from the address is kept as a string of its own, which
// spares a list of those most of its allocations.
//
// An entry read from a file may also keep its record line there, when formatting the entry
// gives that line back byte for byte: a save after a load then copies the lines of the entries
// that did not change. The line points into the file's text, which the list keeps.
class KeyedEntry {
public:
    KeyedEntry(std::wstring key, SenderEntry entry);
    // Keyed by the entry's own address.
    explicit KeyedEntry(SenderEntry entry, std::string_view formattedLine = {});

    std::wstring_view Key() const { return m_key ? std::wstring_view(*m_key) : m_entry.address; }
    const SenderEntry& Entry() const { return m_entry; }
    // The record line (without its end) that formatting the entry gives; empty when unknown.
    std::string_view FormattedLine() const { return m_formattedLine; }
    // The name is no part of the key.
    void SetName(std::wstring name) {
        m_entry.name = std::move(name);
        m_formattedLine = {};
    }

private:
    std::optional<std::wstring> m_key;  // nothing when the key is the entry's address
    SenderEntry m_entry;
    std::string_view m_formattedLine;
};

}  // namespace Orva::Lists
