#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ZelCommon::Storage::ProfileFile {

// What identifies one version of a file on disk. A file replaced by rename gets a new identity
// even when its size and time happen to match the old one's.
struct FileStamp {
    uint64_t size = 0;
    int64_t modified = 0;  // nanoseconds since 1970 natively, FILETIME ticks on Windows
    uint64_t identity = 0;

    bool operator==(const FileStamp&) const = default;
};

// Each function returns a Win32 error code: 0 on success, 2 for a missing file, 3 for a missing
// folder, 5 when access is denied, and so on.
uint32_t QueryStamp(const std::wstring& path, FileStamp& stamp);
// The whole file, and the stamp of exactly the version that was read.
uint32_t ReadWholeFile(const std::wstring& path, std::string& bytes, FileStamp& stamp);
// Writes a temporary file beside `path` and renames it over `path`, so that readers see either
// the old or the new contents; on failure the old file is untouched and no temporary remains.
uint32_t ReplaceWholeFile(const std::wstring& path, std::string_view bytes, FileStamp& stamp);

// Whether the stamp's write time is within about two seconds of now (or in the future): too
// close for the time to tell two versions of the file apart.
bool IsRecent(const FileStamp& stamp);

// Text in the system's ANSI code page, as files without a byte-order mark are read.
std::wstring AnsiToWide(std::string_view bytes);

}  // namespace ZelCommon::Storage::ProfileFile
