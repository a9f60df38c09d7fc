#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ZelCommon::Platform {

// Whole-file reads and replaces, shared by the profile engine and the sender-list files. Each
// function returns a Win32 error code: 0 on success, 2 for a missing file, 3 for a missing folder
// (or a name too long), 5 when access is denied, 112 for a full disk, and so on.

// What identifies one version of a file on disk. A file replaced by rename gets a new identity
// even when its size and time happen to match the old one's.
struct FileStamp {
    uint64_t size = 0;
    int64_t modified = 0;   // nanoseconds since 1970 natively, FILETIME ticks on Windows
    uint64_t identity = 0;  // 0 on Windows

    bool operator==(const FileStamp&) const = default;
};

uint32_t QueryFileStamp(const std::wstring& path, FileStamp& stamp);

// The whole file, and (when asked) the stamp of exactly the version that was read. Readers on
// Windows share delete access, so that they never block another save's rename.
uint32_t ReadWholeFile(const std::wstring& path, std::string& bytes, FileStamp* stamp = nullptr);

// Writes `bytes` to a new file beside `path` and renames it over `path`, so that a reader sees
// either the old or the new file whole; the stamp (when asked) is that of the version written.
// A refused rename is tried again for about 100 ms (Windows refuses while a reader holds the
// file open). A refusal that persists, or a folder that refuses the new file, leads to writing
// `path` in place, as the C runtime's "w+" would, rather than lose the change. Any other failure
// (a name too long, a full disk) leaves the old file exactly as it was. No temporary file is
// left behind.
uint32_t ReplaceFileContents(const std::wstring& path, std::string_view bytes,
                             FileStamp* stamp = nullptr);

// Whether ReplaceFileContents writes in place after the temporary file's creation or rename
// failed with `error`: only for a refusal (access denied, a sharing or lock violation).
bool WritesInPlaceAfter(uint32_t error);

// The steps of ReplaceFileContents that the OS does.
namespace FileSteps {

// Creates `path`, which must not exist yet, with `bytes`; natively it gets the permissions of
// `replacing` when that exists. On failure nothing is left of it.
uint32_t WriteNewFile(const std::wstring& path, const std::wstring& replacing,
                      std::string_view bytes, FileStamp* stamp);
// Truncates the existing file `path` and writes `bytes` into it; never creates a file.
uint32_t RewriteFile(const std::wstring& path, std::string_view bytes, FileStamp* stamp);
// Renames `from` to `to`, replacing an existing `to` in one step.
uint32_t RenameReplacing(const std::wstring& from, const std::wstring& to);
void RemoveFile(const std::wstring& path);

}  // namespace FileSteps

}  // namespace ZelCommon::Platform
