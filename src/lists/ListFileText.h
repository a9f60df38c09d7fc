#pragma once

#include <string>
#include <string_view>

namespace Orva::Lists {

// The text of a UTF-8 list file, with or without a byte-order mark.
std::wstring DecodeListText(std::string_view bytes);
// The bytes of a list file: a UTF-8 byte-order mark, as the Windows runtime's UTF-8 text mode
// writes one when it creates a file, then the text.
std::string EncodeListText(std::wstring_view text);

// Calls `visit` with each line of `text`, without its line end; "\n" and "\r\n" end a line
// alike (text mode on Windows reads both the same). A last line without an end counts.
template <class Visit>
void ForEachLine(std::wstring_view text, Visit&& visit) {
    while (!text.empty()) {
        const size_t end = text.find(L'\n');
        std::wstring_view line = text.substr(0, end);
        if (!line.empty() && line.back() == L'\r') {
            line.remove_suffix(1);
        }
        if (!visit(line) || end == std::wstring_view::npos) {
            return;
        }
        text.remove_prefix(end + 1);
    }
}

// Whether a list file's first line carries a header of the family's products.
bool HasAcceptedHeader(std::wstring_view firstLine);

}  // namespace Orva::Lists
