#include <ctime>

#include "common_src/ZelCommon/ProfileFileSystem.h"
#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Storage::ProfileFile {

bool IsRecent(const Platform::FileStamp& stamp) {
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
