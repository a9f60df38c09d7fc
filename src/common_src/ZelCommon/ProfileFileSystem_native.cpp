#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <ctime>
#include <string>
#include <utility>

#include "common_src/ZelCommon/ProfileFileSystem.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Storage::ProfileFile {
namespace {

constexpr uint32_t kFileNotFound = 2;
constexpr uint32_t kPathNotFound = 3;
constexpr uint32_t kAccessDenied = 5;
constexpr uint32_t kWriteFault = 29;
constexpr uint32_t kGenFailure = 31;
constexpr uint32_t kDiskFull = 112;

class FileDescriptor {
public:
    explicit FileDescriptor(int fd) : m_fd(fd) {}
    ~FileDescriptor() {
        if (m_fd >= 0) {
            ::close(m_fd);
        }
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    int Get() const { return m_fd; }
    int Release() { return std::exchange(m_fd, -1); }

private:
    int m_fd;
};

std::string NativePath(const std::wstring& path) {
    return Text::WideToUtf8(path);
}

// Windows tells a missing file from a missing folder; errno does not.
uint32_t ErrorFromErrno(int error, const std::wstring& path) {
    switch (error) {
        case ENOENT: {
            const std::wstring folder = Path::FolderOf(path);
            return (folder.empty() || Path::FolderExists(folder)) ? kFileNotFound : kPathNotFound;
        }
        case ENOTDIR:
        case ENAMETOOLONG:
            return kPathNotFound;
        case EACCES:
        case EPERM:
        case EISDIR:
        case EROFS:
            return kAccessDenied;
        case ENOSPC:
        case EDQUOT:
            return kDiskFull;
        case EIO:
            return kWriteFault;
        default:
            return kGenFailure;
    }
}

FileStamp StampOf(const struct stat& info) {
    FileStamp stamp;
    stamp.size = static_cast<uint64_t>(info.st_size);
    stamp.modified = static_cast<int64_t>(info.st_mtim.tv_sec) * 1000000000 +
                     static_cast<int64_t>(info.st_mtim.tv_nsec);
    stamp.identity =
        static_cast<uint64_t>(info.st_ino) ^ (static_cast<uint64_t>(info.st_dev) << 32);
    return stamp;
}

bool WriteAll(int fd, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(fd, bytes.data(), bytes.size());
        if (written < 0) {
            if (errno == EINTR) {
                continue;
            }
            return false;
        }
        bytes.remove_prefix(static_cast<size_t>(written));
    }
    return true;
}

std::string TemporaryNameFor(const std::string& target) {
    static std::atomic<unsigned> counter{0};
    return target + ".~" + std::to_string(::getpid()) + "." + std::to_string(++counter) + ".tmp";
}

}  // namespace

uint32_t QueryStamp(const std::wstring& path, FileStamp& stamp) {
    struct stat info {};
    if (::stat(NativePath(path).c_str(), &info) != 0) {
        return ErrorFromErrno(errno, path);
    }
    if (S_ISDIR(info.st_mode)) {
        return kAccessDenied;
    }
    stamp = StampOf(info);
    return 0;
}

uint32_t ReadWholeFile(const std::wstring& path, std::string& bytes, FileStamp& stamp) {
    FileDescriptor file(::open(NativePath(path).c_str(), O_RDONLY | O_CLOEXEC));
    if (file.Get() < 0) {
        return ErrorFromErrno(errno, path);
    }
    struct stat info {};
    if (::fstat(file.Get(), &info) != 0) {
        return ErrorFromErrno(errno, path);
    }
    if (S_ISDIR(info.st_mode)) {
        return kAccessDenied;
    }
    stamp = StampOf(info);
    bytes.clear();
    bytes.reserve(static_cast<size_t>(info.st_size));
    char chunk[65536];
    for (;;) {
        const ssize_t got = ::read(file.Get(), chunk, sizeof(chunk));
        if (got < 0) {
            if (errno == EINTR) {
                continue;
            }
            return ErrorFromErrno(errno, path);
        }
        if (got == 0) {
            break;
        }
        bytes.append(chunk, static_cast<size_t>(got));
    }
    return 0;
}

uint32_t ReplaceWholeFile(const std::wstring& path, std::string_view bytes, FileStamp& stamp) {
    const std::string target = NativePath(path);
    struct stat old {};
    const bool hadFile = ::stat(target.c_str(), &old) == 0;
    if (hadFile && S_ISDIR(old.st_mode)) {
        return kAccessDenied;
    }
    const std::string temporary = TemporaryNameFor(target);
    FileDescriptor file(
        ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, hadFile ? 0600 : 0666));
    if (file.Get() < 0) {
        return ErrorFromErrno(errno, path);
    }
    uint32_t error = 0;
    if (!WriteAll(file.Get(), bytes) ||
        (hadFile && ::fchmod(file.Get(), old.st_mode & 07777) != 0)) {
        error = ErrorFromErrno(errno, path);
    }
    struct stat written {};
    if (error == 0 && ::fstat(file.Get(), &written) != 0) {
        error = ErrorFromErrno(errno, path);
    }
    if (::close(file.Release()) != 0 && error == 0) {
        error = ErrorFromErrno(errno, path);
    }
    if (error == 0 && ::rename(temporary.c_str(), target.c_str()) != 0) {
        error = ErrorFromErrno(errno, path);
    }
    if (error != 0) {
        ::unlink(temporary.c_str());
        return error;
    }
    stamp = StampOf(written);
    return 0;
}

bool IsRecent(const FileStamp& stamp) {
    constexpr int64_t kSettleNanoseconds = 2100000000;
    struct timespec now {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const int64_t nowNanoseconds =
        static_cast<int64_t>(now.tv_sec) * 1000000000 + static_cast<int64_t>(now.tv_nsec);
    return stamp.modified + kSettleNanoseconds > nowNanoseconds;
}

// Linux has no ANSI code page; its text files are UTF-8.
std::wstring AnsiToWide(std::string_view bytes) {
    return Text::Utf8ToWide(bytes);
}

}  // namespace ZelCommon::Storage::ProfileFile
