#include <windows.h>

#include <algorithm>
#include <string>

#include "common_src/ZelCommon/ProfileFileSystem.h"
#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Storage::ProfileFile {

bool IsRecent(const Platform::FileStamp& stamp) {
    constexpr int64_t kSettleTicks = 21000000;  // 2.1 s in 100 ns ticks
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    const auto nowTicks =
        static_cast<int64_t>((static_cast<uint64_t>(now.dwHighDateTime) << 32) | now.dwLowDateTime);
    return stamp.modified + kSettleTicks > nowTicks;
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

std::string WideToAnsi(std::wstring_view text) {
    return Text::WideToAnsi(text);
}

}  // namespace ZelCommon::Storage::ProfileFile
