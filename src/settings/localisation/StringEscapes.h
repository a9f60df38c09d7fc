#pragma once

#include <string>
#include <string_view>

namespace Orva::Settings {

// String tables are ini files, whose values are single lines: a backslash followed by 'n'
// stands for a line feed and one followed by 'r' for a carriage return. Any other backslash is
// kept as it is.
std::wstring ExpandStringEscapes(std::wstring_view text);

}  // namespace Orva::Settings
