#pragma once

#include <string>
#include <string_view>

namespace Orva::Lists {

// The value between `open` and `close` in `line`, trimmed of spaces and tabs. The close tag is
// searched from one character past the open tag's position; a missing tag gives an empty value.
std::wstring_view ExtractTaggedValue(std::wstring_view line, std::wstring_view open,
                                     std::wstring_view close);

// Reduces every run of "*" to one "*".
std::wstring CollapseStars(std::wstring_view address);

// Whether a value can be written between tags and read back unchanged: no tag text of either
// list, no control character but the tab, nothing that is not a Unicode scalar value, and no
// space or tab at either end (reading trims them).
bool IsStorableValue(std::wstring_view value);

}  // namespace Orva::Lists
