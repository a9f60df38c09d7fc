#include "common_src/platform/AtomicFile.h"

#include <atomic>
#include <chrono>
#include <thread>

#include "common_src/platform/Path.h"
#include "common_src/platform/ProcessContext.h"

namespace ZelCommon::Platform {
namespace {

constexpr uint32_t kAccessDenied = 5;
constexpr uint32_t kSharingViolation = 32;
constexpr uint32_t kLockViolation = 33;

// The process id keeps two processes saving the same file (the add-in and the admin tool) from
// sharing a temporary name; the counter keeps this process's threads apart.
std::wstring TemporaryNameBeside(const std::wstring& path) {
    static std::atomic<unsigned> counter{0};
    return path + L".~" + std::to_wstring(SystemProcessContext().ProcessId()) + L"." +
           std::to_wstring(++counter) + L".tmp";
}

// Reads are short, so a refused rename is tried again for about 100 ms. The budget is a time,
// not a count of attempts: a sleep may last longer than asked on a busy machine.
uint32_t RenameWithRetries(const std::wstring& from, const std::wstring& to) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(100);
    for (;;) {
        const uint32_t error = FileSteps::RenameReplacing(from, to);
        if (error == 0 || !WritesInPlaceAfter(error) ||
            std::chrono::steady_clock::now() >= deadline) {
            return error;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(4));
    }
}

}  // namespace

bool WritesInPlaceAfter(uint32_t error) {
    return error == kAccessDenied || error == kSharingViolation || error == kLockViolation;
}

uint32_t ReplaceFileContents(const std::wstring& path, std::string_view bytes, FileStamp* stamp) {
    if (Path::FolderExists(path)) {
        return kAccessDenied;
    }
    const std::wstring temporary = TemporaryNameBeside(path);
    uint32_t error = FileSteps::WriteNewFile(temporary, path, bytes, stamp);
    if (error == 0) {
        error = RenameWithRetries(temporary, path);
        if (error != 0) {
            FileSteps::RemoveFile(temporary);
        }
    }
    // A refusal is not about the bytes: they are written in place, which the folder (no new file
    // allowed) or a reader holding the file open (no rename over it) still lets through.
    if (error != 0 && WritesInPlaceAfter(error) &&
        FileSteps::RewriteFile(path, bytes, stamp) == 0) {
        return 0;
    }
    return error;
}

}  // namespace ZelCommon::Platform
