#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace Orva::Lists {

// The whole file as bytes; nothing when it is missing or cannot be read.
std::optional<std::string> ReadWholeFile(const std::wstring& path);

// Writes `bytes` to a new file beside `path` and renames it over `path`, so that a reader of
// `path` (the agent) sees either the old or the new file whole, and a failed write (full disk,
// crash) leaves the old file as it was. Only when the rename is refused for good (a reader
// holds the file open on Windows) is the file rewritten in place. False when nothing worked.
bool ReplaceFileContents(const std::wstring& path, std::string_view bytes);

namespace FileSystem {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

// Binary mode, "rb" or "wb"; null when the file cannot be opened.
FilePtr OpenFile(const std::wstring& path, const wchar_t* mode);
// Renames `from` to `to`, replacing an existing `to` in one step.
bool RenameReplacing(const std::wstring& from, const std::wstring& to);
void RemoveFile(const std::wstring& path);
bool IsRegularFile(const std::wstring& path);

}  // namespace FileSystem

}  // namespace Orva::Lists
