#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <utility>

#include "common_src/platform/AtomicFile.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Platform {
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

// Writes and closes the file; the stamp is taken before the close, of exactly what was written.
// `mode`, when given, becomes the file's permissions.
uint32_t WriteAndClose(FileDescriptor& file, const std::wstring& path, std::string_view bytes,
                       const mode_t* mode, FileStamp* stamp) {
    uint32_t error = 0;
    struct stat written {};
    if (!WriteAll(file.Get(), bytes) || (mode != nullptr && ::fchmod(file.Get(), *mode) != 0) ||
        ::fstat(file.Get(), &written) != 0) {
        error = ErrorFromErrno(errno, path);
    }
    if (::close(file.Release()) != 0 && error == 0) {
        error = ErrorFromErrno(errno, path);
    }
    if (error == 0 && stamp != nullptr) {
        *stamp = StampOf(written);
    }
    return error;
}

}  // namespace

uint32_t QueryFileStamp(const std::wstring& path, FileStamp& stamp) {
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

uint32_t ReadWholeFile(const std::wstring& path, std::string& bytes, FileStamp* stamp) {
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
    if (stamp != nullptr) {
        *stamp = StampOf(info);
    }
    return 0;
}

namespace FileSteps {

// The new file keeps the permissions of the file it replaces; until they are set, only its owner
// may open it.
uint32_t WriteNewFile(const std::wstring& path, const std::wstring& replacing,
                      std::string_view bytes, FileStamp* stamp) {
    struct stat old {};
    const bool replaces = ::stat(NativePath(replacing).c_str(), &old) == 0;
    const std::string name = NativePath(path);
    FileDescriptor file(
        ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, replaces ? 0600 : 0666));
    if (file.Get() < 0) {
        return ErrorFromErrno(errno, path);
    }
    const mode_t mode = old.st_mode & 07777;
    const uint32_t error = WriteAndClose(file, path, bytes, replaces ? &mode : nullptr, stamp);
    if (error != 0) {
        ::unlink(name.c_str());
    }
    return error;
}

uint32_t RewriteFile(const std::wstring& path, std::string_view bytes, FileStamp* stamp) {
    FileDescriptor file(::open(NativePath(path).c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC));
    if (file.Get() < 0) {
        return ErrorFromErrno(errno, path);
    }
    return WriteAndClose(file, path, bytes, nullptr, stamp);
}

// rename(2) replaces the target atomically.
uint32_t RenameReplacing(const std::wstring& from, const std::wstring& to) {
    if (std::rename(NativePath(from).c_str(), NativePath(to).c_str()) != 0) {
        return ErrorFromErrno(errno, to);
    }
    return 0;
}

void RemoveFile(const std::wstring& path) {
    ::unlink(NativePath(path).c_str());
}

}  // namespace FileSteps

}  // namespace ZelCommon::Platform
