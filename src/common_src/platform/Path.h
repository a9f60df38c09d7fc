#pragma once

#include <string>
#include <string_view>

namespace ZelCommon::Path {

// Folders handed around the add-in end with the separator, as Win32 code builds them; natively
// the separator is '/', so the same code serves the tools and tests on Linux.
#ifdef _WIN32
inline constexpr wchar_t kSeparator = L'\\';
#else
inline constexpr wchar_t kSeparator = L'/';
#endif

// Appends `name` and a separator to a folder, adding a separator between them when missing.
std::wstring ChildFolder(std::wstring_view folder, std::wstring_view name);
// Appends a file name to a folder, adding a separator between them when missing.
std::wstring ChildFile(std::wstring_view folder, std::wstring_view name);
// The folder part of a path, keeping its final separator (empty when there is none).
std::wstring FolderOf(std::wstring_view path);
// The file name part of a path, as PathFindFileNameW finds it (after the last '\\', '/' or ':').
std::wstring_view FileNameOf(std::wstring_view path);

bool FileExists(const std::wstring& path);
bool FolderExists(const std::wstring& path);
// Creates a folder and its missing parents; returns whether it exists afterwards.
bool CreateFolderWithParents(const std::wstring& path);

}  // namespace ZelCommon::Path
