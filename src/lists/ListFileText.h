#pragma once

#include <string>
#include <string_view>

namespace Orva::Lists {

// The UTF-8 byte-order mark that the Windows runtime's UTF-8 text mode writes when it creates a
// file and skips when it reads one.
inline constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
// Reading in that mode, the runtime lets a file's mark decide: this one makes it read UTF-16LE.
inline constexpr std::string_view kUtf16LeMark = "\xFF\xFE";

// The bytes after a leading byte-order mark, if any.
std::string_view SkipUtf8Mark(std::string_view bytes);
// Whether a file's bytes are UTF-16LE text by their mark.
bool IsUtf16LeText(std::string_view bytes);
// The UTF-8 text of a UTF-16LE file's bytes (after the mark).
std::string Utf16LeTextToUtf8(std::string_view bytes);
// The text of a file: UTF-8 with or without a byte-order mark, or UTF-16LE with one.
std::wstring DecodeListText(std::string_view bytes);
// The bytes of a file: the byte-order mark, then the text as UTF-8.
std::string EncodeListText(std::wstring_view text);

// Calls `visit` with each line of `text` (bytes or wide text), without its line end; "\n" and
// "\r\n" end a line alike, as text mode on Windows reads both the same. A last line without an
// end counts. `visit` returns false to stop.
template <class Char, class Visit>
void ForEachLine(std::basic_string_view<Char> text, Visit&& visit) {
    while (!text.empty()) {
        const size_t end = text.find(Char('\n'));
        std::basic_string_view<Char> line = text.substr(0, end);
        if (!line.empty() && line.back() == Char('\r')) {
            line.remove_suffix(1);
        }
        if (!visit(line) || end == std::basic_string_view<Char>::npos) {
            return;
        }
        text.remove_prefix(end + 1);
    }
}

// Whether a list file's first line carries a header of the family's products.
bool HasAcceptedHeader(std::string_view firstLine);

}  // namespace Orva::Lists
