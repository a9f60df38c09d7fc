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

// The value without the spaces and tabs at its ends, as reading trims every value.
std::string_view TrimTagBlanks(std::string_view value);

// Reduces every run of "*" to one "*".
std::wstring CollapseStars(std::wstring_view address);

// Whether a value can be written between tags and read back unchanged: no tag text of either
// list, no control character but the tab, nothing that is not a Unicode scalar value, and no
// space or tab at either end (reading trims them).
bool IsStorableValue(std::wstring_view value);

// The value with what IsStorableValue refuses taken out: control characters but the tab, what
// is not a Unicode scalar value and every tag text; then the blanks at its ends.
std::wstring StorableForm(std::wstring_view value);

// Whether UTF-8 text holds the text of a tag of either list.
bool HoldsTagText(std::string_view utf8);

}  // namespace Orva::Lists
