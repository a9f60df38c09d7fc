#include "lists/AtomicFile.h"

#include <atomic>
#include <chrono>
#include <thread>

#include "common_src/platform/WideFormat.h"

namespace Orva::Lists {
namespace {

// Unique among this process's saves; the clock part keeps two processes saving the same list
// (the add-in and the admin tool) from sharing a temporary name.
std::wstring TemporaryNameBeside(const std::wstring& path) {
    static std::atomic<unsigned> counter{0};
    const auto ticks =
        static_cast<uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
    return path + ZelCommon::Text::Format(L".%u.%llx.tmp", counter.fetch_add(1), ticks);
}

// Windows refuses to rename over a file that a reader holds open; reads are short, so a
// refused rename is tried again for a moment.
bool RenameWithRetries(const std::wstring& from, const std::wstring& to) {
    constexpr int kAttempts = 25;
    for (int attempt = 1;; ++attempt) {
        if (FileSystem::RenameReplacing(from, to)) {
            return true;
        }
        if (attempt == kAttempts) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(4));
    }
}

bool WriteWholeFile(const std::wstring& path, std::string_view bytes) {
    FileSystem::FilePtr file = FileSystem::OpenFile(path, L"wb");
    if (!file) {
        return false;
    }
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    // fclose reports the errors of the last buffered write (a full disk shows up here).
    return std::fclose(file.release()) == 0 && written;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::wstring& path) {
    const FileSystem::FilePtr file = FileSystem::OpenFile(path, L"rb");
    if (!file) {
        return std::nullopt;
    }
    // One buffer of the file's size spares the heap a chain of growing copies; the loop still
    // reads whatever the file holds if it changes size meanwhile.
    std::string bytes;
    if (std::fseek(file.get(), 0, SEEK_END) == 0) {
        const long size = std::ftell(file.get());
        if (size > 0) {
            bytes.resize(static_cast<size_t>(size));
        }
        std::rewind(file.get());
    }
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    char chunk[16 * 1024];
    size_t got = 0;
    while ((got = std::fread(chunk, 1, sizeof chunk, file.get())) > 0) {
        bytes.append(chunk, got);
    }
    if (std::ferror(file.get()) != 0) {
        return std::nullopt;
    }
    return bytes;
}

bool ReplaceFileContents(const std::wstring& path, std::string_view bytes) {
    const std::wstring temporary = TemporaryNameBeside(path);
    if (!WriteWholeFile(temporary, bytes)) {
        FileSystem::RemoveFile(temporary);
        return false;
    }
    if (RenameWithRetries(temporary, path)) {
        return true;
    }
    FileSystem::RemoveFile(temporary);
    // A reader that keeps the file open makes Windows refuse the rename for good. The bytes just
    // fitted on the disk, so rewriting the file in place, as a plain save does, keeps the change
    // instead of losing it.
    return FileSystem::IsRegularFile(path) && WriteWholeFile(path, bytes);
}

}  // namespace Orva::Lists
