#include <windows.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <string>

#include "common_src/ZelCommon/ProfileFileSystem.h"

namespace ZelCommon::Storage::ProfileFile {
namespace {

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<void, HandleCloser>;

UniqueHandle OwnHandle(HANDLE handle) {
    return UniqueHandle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

int64_t TicksOf(const FILETIME& time) {
    return static_cast<int64_t>((static_cast<uint64_t>(time.dwHighDateTime) << 32) |
                                time.dwLowDateTime);
}

uint64_t SizeOf(DWORD high, DWORD low) {
    return (static_cast<uint64_t>(high) << 32) | low;
}

// The stamp leaves the file index out, so that the cheap attribute query and the read of an
// open handle describe a version the same way.
FileStamp StampOf(const BY_HANDLE_FILE_INFORMATION& info) {
    return FileStamp{SizeOf(info.nFileSizeHigh, info.nFileSizeLow), TicksOf(info.ftLastWriteTime),
                     0};
}

uint32_t LastErrorOr(uint32_t fallback) {
    const DWORD error = GetLastError();
    return error != 0 ? static_cast<uint32_t>(error) : fallback;
}

std::wstring TemporaryNameFor(const std::wstring& target) {
    static std::atomic<unsigned> counter{0};
    return target + L".~" + std::to_wstring(GetCurrentProcessId()) + L"." +
           std::to_wstring(++counter) + L".tmp";
}

}  // namespace

uint32_t QueryStamp(const std::wstring& path, FileStamp& stamp) {
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

uint32_t ReadWholeFile(const std::wstring& path, std::string& bytes, FileStamp& stamp) {
    UniqueHandle file = OwnHandle(CreateFileW(
        path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
        OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    if (!file) {
        return LastErrorOr(ERROR_FILE_NOT_FOUND);
    }
    BY_HANDLE_FILE_INFORMATION info{};
    if (!GetFileInformationByHandle(file.get(), &info)) {
        return LastErrorOr(ERROR_READ_FAULT);
    }
    stamp = StampOf(info);
    bytes.clear();
    bytes.reserve(static_cast<size_t>(stamp.size));
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
    return 0;
}

uint32_t ReplaceWholeFile(const std::wstring& path, std::string_view bytes, FileStamp& stamp) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY)) {
        return ERROR_ACCESS_DENIED;
    }
    const std::wstring temporary = TemporaryNameFor(path);
    uint32_t error = 0;
    {
        UniqueHandle file = OwnHandle(CreateFileW(temporary.c_str(), GENERIC_WRITE, 0, nullptr,
                                                  CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
        if (!file) {
            return LastErrorOr(ERROR_WRITE_FAULT);
        }
        while (error == 0 && !bytes.empty()) {
            const DWORD chunk = static_cast<DWORD>(std::min<size_t>(bytes.size(), 1u << 20));
            DWORD written = 0;
            if (!WriteFile(file.get(), bytes.data(), chunk, &written, nullptr) || written == 0) {
                error = LastErrorOr(ERROR_WRITE_FAULT);
            }
            bytes.remove_prefix(written);
        }
    }
    if (error == 0 && !MoveFileExW(temporary.c_str(), path.c_str(),
                                   MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
        error = LastErrorOr(ERROR_WRITE_FAULT);
    }
    if (error != 0) {
        DeleteFileW(temporary.c_str());
        return error;
    }
    // The write time may settle only when the handle closes, so ask the renamed file itself.
    QueryStamp(path, stamp);
    return 0;
}

bool IsRecent(const FileStamp& stamp) {
    constexpr int64_t kSettleTicks = 21000000;  // 2.1 s in 100 ns ticks
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    return stamp.modified + kSettleTicks > TicksOf(now);
}

std::wstring AnsiToWide(std::string_view bytes) {
    if (bytes.empty()) {
        return {};
    }
    const int length = static_cast<int>(std::min<size_t>(bytes.size(), 0x7FFFFFFF));
    const int needed = MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, nullptr, 0);
    if (needed <= 0) {
        return {};
    }
    std::wstring out(static_cast<size_t>(needed), L'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), length, out.data(), needed);
    return out;
}

}  // namespace ZelCommon::Storage::ProfileFile
