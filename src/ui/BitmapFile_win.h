#pragma once

#include <string>

#include "common_src/platform/UniqueAny_win.h"

namespace Orva::Ui {

// A bitmap file that someone else may have put beside the add-in (a replacement slider or
// banner), loaded as a DIB section once its headers show a sane, whole bitmap: the system's
// loader trusts the sizes in the file. Null, with a log line, for anything else.
ZelCommon::Platform::unique_hbitmap LoadCheckedBitmapFile(const std::wstring& path);

}  // namespace Orva::Ui
