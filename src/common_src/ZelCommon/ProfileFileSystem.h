#pragma once

#include <string>
#include <string_view>

#include "common_src/platform/AtomicFile.h"

namespace ZelCommon::Storage::ProfileFile {

// Whether the stamp's write time is within about two seconds of now (or in the future): too
// close for the time to tell two versions of the file apart.
bool IsRecent(const Platform::FileStamp& stamp);

// Text in the system's ANSI code page, as files without a byte-order mark are read and written.
// What AnsiToWide reads, WideToAnsi writes back byte for byte.
std::wstring AnsiToWide(std::string_view bytes);
std::string WideToAnsi(std::wstring_view text);

}  // namespace ZelCommon::Storage::ProfileFile
