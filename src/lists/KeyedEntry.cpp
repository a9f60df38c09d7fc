#include "lists/KeyedEntry.h"

#include <cstdint>

#include "common_src/platform/TextCodec.h"

namespace Orva::Lists {
namespace {

// Whether an address is its own key: ASCII, which lowers alike on every platform, without
// capitals. Other text is left to the platform's case mapping.
bool IsLowerCaseAscii(std::wstring_view address) {
    uint32_t other = 0;
    for (const wchar_t c : address) {
        const auto code = static_cast<uint32_t>(c);
        other |= static_cast<uint32_t>(code >= 0x80) | static_cast<uint32_t>(code - L'A' < 26u);
    }
    return other == 0;
}

}  // namespace

std::wstring ListKeyOf(std::wstring_view address) {
    if (IsLowerCaseAscii(address)) {
        return std::wstring(address);
    }
    return ZelCommon::Text::ToLower(address);
}

KeyedEntry::KeyedEntry(std::wstring key, SenderEntry entry) : m_entry(std::move(entry)) {
    if (key != m_entry.address) {
        m_key = std::move(key);
    }
}

KeyedEntry::KeyedEntry(SenderEntry entry, std::string_view formattedLine)
    : m_entry(std::move(entry)), m_formattedLine(formattedLine) {
    if (!IsLowerCaseAscii(m_entry.address)) {
        std::wstring key = ZelCommon::Text::ToLower(m_entry.address);
        if (key != m_entry.address) {
            m_key = std::move(key);
        }
    }
}

}  // namespace Orva::Lists
