#include <ctime>

#include "common_src/ZelCommon/ProfileFileSystem.h"
#include "common_src/platform/TextCodec.h"

namespace ZelCommon::Storage::ProfileFile {
namespace {

// Linux has no ANSI code page; its text files are UTF-8. A file written on Windows in its code
// page holds bytes that are not: each stands for itself as a lone surrogate, which no UTF-8
// decodes to, so that rewriting the file gives every such byte back as it was.
constexpr wchar_t kRawByteBase = 0xDC00;

bool IsRawByte(wchar_t c) {
    return c >= kRawByteBase + 0x80 && c <= kRawByteBase + 0xFF;
}

// The length of the well-formed UTF-8 sequence at `at`, or 0; overlong forms, surrogates and
// code points beyond U+10FFFF are not well-formed, so what is accepted re-encodes to itself.
size_t SequenceLength(std::string_view bytes, size_t at) {
    const auto byte = [&](size_t i) { return static_cast<unsigned char>(bytes[at + i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) {
        return 1;
    }
    size_t length = 0;
    unsigned char low = 0x80;
    unsigned char high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        low = lead == 0xE0 ? 0xA0 : low;
        high = lead == 0xED ? 0x9F : high;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        low = lead == 0xF0 ? 0x90 : low;
        high = lead == 0xF4 ? 0x8F : high;
    } else {
        return 0;
    }
    if (bytes.size() - at < length || byte(1) < low || byte(1) > high) {
        return 0;
    }
    for (size_t i = 2; i < length; ++i) {
        if (byte(i) < 0x80 || byte(i) > 0xBF) {
            return 0;
        }
    }
    return length;
}

}  // namespace

bool IsRecent(const Platform::FileStamp& stamp) {
    constexpr int64_t kSettleNanoseconds = 2100000000;
    struct timespec now {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const int64_t nowNanoseconds =
        static_cast<int64_t>(now.tv_sec) * 1000000000 + static_cast<int64_t>(now.tv_nsec);
    return stamp.modified + kSettleNanoseconds > nowNanoseconds;
}

std::wstring AnsiToWide(std::string_view bytes) {
    std::wstring out;
    out.reserve(bytes.size());
    size_t start = 0;
    size_t at = 0;
    while (at < bytes.size()) {
        const size_t length = SequenceLength(bytes, at);
        if (length > 0) {
            at += length;
            continue;
        }
        out += Text::Utf8ToWide(bytes.substr(start, at - start));
        out.push_back(static_cast<wchar_t>(kRawByteBase + static_cast<unsigned char>(bytes[at])));
        start = ++at;
    }
    out += Text::Utf8ToWide(bytes.substr(start));
    return out;
}

std::string WideToAnsi(std::wstring_view text) {
    std::string out;
    out.reserve(text.size());
    size_t start = 0;
    for (size_t at = 0; at < text.size(); ++at) {
        if (IsRawByte(text[at])) {
            out += Text::WideToUtf8(text.substr(start, at - start));
            out.push_back(static_cast<char>(text[at] - kRawByteBase));
            start = at + 1;
        }
    }
    out += Text::WideToUtf8(text.substr(start));
    return out;
}

}  // namespace ZelCommon::Storage::ProfileFile
