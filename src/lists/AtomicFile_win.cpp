#include <windows.h>

#include <stdio.h>

#include "lists/AtomicFile.h"

namespace Orva::Lists::FileSystem {

FilePtr OpenFile(const std::wstring& path, const wchar_t* mode) {
    return FilePtr(::_wfopen(path.c_str(), mode));
}

// The C runtime's rename fails when the target exists; MoveFileExW replaces it.
bool RenameReplacing(const std::wstring& from, const std::wstring& to) {
    return ::MoveFileExW(from.c_str(), to.c_str(),
                         MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

void RemoveFile(const std::wstring& path) {
    ::DeleteFileW(path.c_str());
}

}  // namespace Orva::Lists::FileSystem
