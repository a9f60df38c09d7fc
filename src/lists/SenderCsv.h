#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orva::Lists {

// The "address,name" lines that lists are exported to and imported from. A field is quoted
// when it holds a comma, a quote or blanks at either end; a quote inside is doubled.
std::wstring CsvField(std::wstring_view value);

// The fields of one line; nothing when a quoted field is not closed.
std::optional<std::vector<std::wstring>> CsvFields(std::wstring_view line);

}  // namespace Orva::Lists
