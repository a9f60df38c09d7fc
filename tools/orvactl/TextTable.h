#pragma once

#include <string>
#include <vector>

namespace Orva::Orvactl {

// Lays rows out in columns two spaces apart, each as wide as its longest cell; the last column
// is not padded. The first row is the heading and is followed by a rule of dashes.
std::wstring FormatTable(const std::vector<std::vector<std::wstring>>& rows);

}  // namespace Orva::Orvactl
