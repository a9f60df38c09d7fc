#include <windows.h>

#include <algorithm>
#include <string>

#include "common_src/platform/AtomicFile.h"
#include "common_src/platform/UniqueAny_win.h"

namespace ZelCommon::Platform {
namespace {

int64_t TicksOf(const FILETIME& time) {
    return static_cast<int64_t>((static_cast<uint64_t>(time.dwHighDateTime) << 32) |
                                time.dwLowDateTime);
}

uint64_t SizeOf(DWORD high, DWORD low) {
    return (static_cast<uint64_t>(high) << 32) | low;
}

uint32_t LastErrorOr(uint32_t fallback) {
    const DWORD error = GetLastError();
    return error != 0 ? static_cast<uint32_t>(error) : fallback;
}

// Writes and closes the file. The write time may settle only when the handle closes, so the
// stamp is asked of the closed file.
uint32_t WriteAndClose(unique_handle file, const std::wstring& path, std::string_view bytes,
                       FileStamp* stamp) {
    while (!bytes.empty()) {
        const DWORD chunk = static_cast<DWORD>(std::min<size_t>(bytes.size(), 1u << 20));
        DWORD written = 0;
        if (!WriteFile(file.get(), bytes.data(), chunk, &written, nullptr) || written == 0) {
            return LastErrorOr(ERROR_WRITE_FAULT);
        }
        bytes.remove_prefix(written);
    }
    file.reset();
    if (stamp != nullptr) {
        QueryFileStamp(path, *stamp);
    }
    return 0;
}

}  // namespace

// The stamp leaves the file index out, so that the cheap attribute query and the read of an
// open handle describe a version the same way.
uint32_t QueryFileStamp(const std::wstring& path, FileStamp& stamp) {
    WIN32_FILE_ATTRIBUTE_DATA data{};
    if (!GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) {
        return LastErrorOr(ERROR_FILE_NOT_FOUND);
    }
    if (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) {
        return ERROR_ACCESS_DENIED;
    }
    stamp =
        FileStamp{SizeOf(data.nFileSizeHigh, data.nFileSizeLow), TicksOf(data.ftLastWriteTime), 0};
    return 0;
}

uint32_t ReadWholeFile(const std::wstring& path, std::string& bytes, FileStamp* stamp) {
    const unique_handle file(CreateFileW(path.c_str(), GENERIC_READ,
                                         FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                         nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        return LastErrorOr(ERROR_FILE_NOT_FOUND);
    }
    BY_HANDLE_FILE_INFORMATION info{};
    if (!GetFileInformationByHandle(file.get(), &info)) {
        return LastErrorOr(ERROR_READ_FAULT);
    }
    bytes.clear();
    bytes.reserve(static_cast<size_t>(SizeOf(info.nFileSizeHigh, info.nFileSizeLow)));
    char chunk[65536];
    for (;;) {
        DWORD got = 0;
        if (!ReadFile(file.get(), chunk, sizeof(chunk), &got, nullptr)) {
            return LastErrorOr(ERROR_READ_FAULT);
        }
        if (got == 0) {
            break;
        }
        bytes.append(chunk, got);
    }
    if (stamp != nullptr) {
        *stamp = FileStamp{SizeOf(info.nFileSizeHigh, info.nFileSizeLow),
                           TicksOf(info.ftLastWriteTime), 0};
    }
    return 0;
}

namespace FileSteps {

uint32_t WriteNewFile(const std::wstring& path, const std::wstring&, std::string_view bytes,
                      FileStamp* stamp) {
    unique_handle file(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                   FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        return LastErrorOr(ERROR_WRITE_FAULT);
    }
    const uint32_t error = WriteAndClose(std::move(file), path, bytes, stamp);
    if (error != 0) {
        DeleteFileW(path.c_str());
    }
    return error;
}

// Shares reading and writing as the C runtime's "w+" does, so that a reader holding the file
// open does not stop it.
uint32_t RewriteFile(const std::wstring& path, std::string_view bytes, FileStamp* stamp) {
    unique_handle file(CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                   nullptr, TRUNCATE_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        return LastErrorOr(ERROR_WRITE_FAULT);
    }
    return WriteAndClose(std::move(file), path, bytes, stamp);
}

// The C runtime's rename fails when the target exists; MoveFileExW replaces it.
uint32_t RenameReplacing(const std::wstring& from, const std::wstring& to) {
    if (!MoveFileExW(from.c_str(), to.c_str(),
                     MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        return LastErrorOr(ERROR_WRITE_FAULT);
    }
    return 0;
}

void RemoveFile(const std::wstring& path) {
    DeleteFileW(path.c_str());
}

}  // namespace FileSteps

}  // namespace ZelCommon::Platform
