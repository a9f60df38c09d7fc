#pragma once

#include <filesystem>
#include <string>

#include <gtest/gtest.h>

#include "common_src/platform/Path.h"
#include "lists/SenderEntry.h"
#include "support/FileBytes.h"
#include "support/TempFolder.h"

namespace Orva::Testing {

inline constexpr char kMark[] = "\xEF\xBB\xBF";
inline constexpr char kHeader[] = "; Written by ORVA v3.5 (c) 2005 Halvion";

}  // namespace Orva::Testing

namespace Orva::Lists {

inline void PrintTo(const SenderEntry& entry, std::ostream* out) {
    *out << testing::PrintToString(entry.name) << " " << testing::PrintToString(entry.address);
}

}  // namespace Orva::Lists
