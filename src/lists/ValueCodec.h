#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace Orva::Lists {

// The UTF-8 coding of names and addresses between a list file and its entries. A whole list is
// read and written value after value, so each value is checked and coded in one pass where it
// is plain text, and checked in full only where it is not.

// The most UTF-8 bytes that one wchar_t gives: three for a UTF-16 unit, four for UTF-32.
inline constexpr size_t kMaxUtf8PerUnit = sizeof(wchar_t) == 2 ? 3 : 4;

// How a value read between its tags came out.
enum class ValueRead {
    Refused,    // it could not have been written (see IsStorableValue); `out` holds anything
    Decoded,    // decoded, broken sequences as U+FFFD: writing it may give other bytes
    AsWritten,  // decoded from well-formed UTF-8: writing it gives these bytes back
};

// Decodes a value as read between its tags into `out`. A value is Refused for what
// IsStorableValue refuses; broken sequences are not among these, as the decoder turns each into
// U+FFFD and never yields a lone surrogate.
ValueRead DecodeStoredValue(std::string_view utf8, std::wstring& out);

// Writes `text` as UTF-8 from `out`, which has room for kMaxUtf8PerUnit bytes per unit; what is
// not a scalar value becomes U+FFFD. Returns the end of what it wrote.
char* EncodeUtf8(std::wstring_view text, char* out);

// EncodeStorableValue's work for a value that is not all printable ASCII without '<'.
char* EncodeOtherStorableValue(std::wstring_view value, char* out);

// EncodeUtf8 when IsStorableValue holds for `value`; nothing (null) otherwise. Inline, as a
// list's save calls it twice an entry.
inline char* EncodeStorableValue(std::wstring_view value, char* out) {
    // Most addresses and names are printable ASCII without '<' and without a blank at either
    // end: copied in one pass, which the compiler vectorises, while one flag notes anything else.
    uint32_t special = 0;
    if (!value.empty()) {
        special = static_cast<uint32_t>(value.front() == L' ') |
                  static_cast<uint32_t>(value.back() == L' ');
    }
    char* target = out;
    for (const wchar_t c : value) {
        const auto code = static_cast<uint32_t>(c);
        special |=
            static_cast<uint32_t>(code - 0x20u >= 0x5Fu) | static_cast<uint32_t>(code == 0x3Cu);
        *target++ = static_cast<char>(code);
    }
    return special == 0 ? target : EncodeOtherStorableValue(value, out);
}

// Appends `text` to `out` as UTF-8, as EncodeUtf8 writes it.
void AppendUtf8(std::string& out, std::wstring_view text);

}  // namespace Orva::Lists
