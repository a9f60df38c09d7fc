#pragma once

#include <string>
#include <string_view>

namespace Orva::Lists {

// The value between `open` and `close` in `line`, trimmed of spaces and tabs. The close tag is
// searched from one character past the open tag's position; a missing tag gives an empty value.
// Lines are UTF-8: tags, blanks and line ends are ASCII, and no UTF-8 sequence, whole or broken,
// holds an ASCII byte, so matching them in the bytes finds what matching the text would.
std::string_view ExtractTaggedValue(std::string_view line, std::string_view open,
                                    std::string_view close);

// Reduces every run of "*" to one "*".
std::wstring CollapseStars(std::wstring_view address);

// Whether a value can be written between tags and read back unchanged: no tag text of either
// list, no control character but the tab, nothing that is not a Unicode scalar value, and no
// space or tab at either end (reading trims them).
bool IsStorableValue(std::wstring_view value);

// The value with what IsStorableValue refuses taken out: control characters but the tab, what
// is not a Unicode scalar value and every tag text; then the blanks at its ends.
std::wstring StorableForm(std::wstring_view value);

// The wide text of a UTF-8 value; plain ASCII, the common case, is widened without decoding.
std::wstring DecodeValue(std::string_view utf8);

// IsStorableValue for a value still in UTF-8, as read from a file: the decoder turns broken
// sequences into U+FFFD and never yields a lone surrogate, so only the ASCII rules remain.
bool IsStorableUtf8(std::string_view value);

// Appends `text` to `out` as UTF-8; what is not a scalar value becomes U+FFFD.
void AppendUtf8(std::string& out, std::wstring_view text);

// Appends `value` as UTF-8 when IsStorableValue holds for it, in one pass over the text, as a
// whole list is saved value after value. False, with `out` in an unspecified state, otherwise.
bool AppendStorableUtf8(std::string& out, std::wstring_view value);

}  // namespace Orva::Lists
