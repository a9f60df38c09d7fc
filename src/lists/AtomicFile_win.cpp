#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <stdio.h>

#include "lists/AtomicFile.h"

namespace Orva::Lists::FileSystem {
namespace {

// Readers share delete access, so that a read does not fail while a save's rename holds the
// file.
FilePtr OpenForReading(const std::wstring& path) {
    const HANDLE handle = ::CreateFileW(path.c_str(), GENERIC_READ,
                                        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                        nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle == INVALID_HANDLE_VALUE) {
        return nullptr;
    }
    const int descriptor =
        ::_open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_RDONLY | _O_BINARY);
    if (descriptor == -1) {
        ::CloseHandle(handle);
        return nullptr;
    }
    // From here the descriptor owns the handle, and the stream the descriptor.
    FILE* file = ::_fdopen(descriptor, "rb");
    if (file == nullptr) {
        ::_close(descriptor);
    }
    return FilePtr(file);
}

}  // namespace

FilePtr OpenFile(const std::wstring& path, const wchar_t* mode) {
    if (std::wstring_view(mode) == L"rb") {
        return OpenForReading(path);
    }
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

bool IsRegularFile(const std::wstring& path) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace Orva::Lists::FileSystem
