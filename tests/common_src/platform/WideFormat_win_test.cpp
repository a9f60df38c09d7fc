#include <windows.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <string>

#include "common_src/platform/TextCodec.h"
#include "common_src/platform/WideFormat.h"

namespace {

using ZelCommon::Text::Format;

// The system C runtime's own formatter, looked up directly so that no mingw replacement stands
// in for it.
using SnwprintfFn = int(__cdecl*)(wchar_t*, size_t, const wchar_t*, ...);

SnwprintfFn RuntimeFormatter() {
    static const SnwprintfFn fn = [] {
        const HMODULE crt = ::LoadLibraryW(L"msvcrt.dll");
        return crt == nullptr ? nullptr
                              : reinterpret_cast<SnwprintfFn>(
                                    reinterpret_cast<void*>(::GetProcAddress(crt, "_snwprintf")));
    }();
    return fn;
}

template <class... Args>
std::wstring Runtime(const wchar_t* format, Args... args) {
    wchar_t buffer[4096] = {};
    const int written = RuntimeFormatter()(buffer, 4095, format, args...);
    return written < 0 ? L"<overflow>" : std::wstring(buffer, static_cast<size_t>(written));
}

#define EXPECT_AS_RUNTIME(format, ...)                                   \
    EXPECT_EQ(Format(format, __VA_ARGS__), Runtime(format, __VA_ARGS__)) \
        << ZelCommon::Text::WideToUtf8(format)

TEST(WideFormatRuntime, IntegerConversions_SameAsSystemRuntime) {
    ASSERT_NE(RuntimeFormatter(), nullptr);
    const int ints[] = {0, 1, -1, 7, 255, -255, 65535, 70000, 40000, 2147483647, -2147483647 - 1};
    const wchar_t* formats[] = {
        L"%d",     L"%i",     L"%u",     L"%x",     L"%X",    L"%o",      L"%08X",   L"%04x",
        L"%03u",   L"%-10d|", L"%+d",    L"% d",    L"%#x",   L"%#o",     L"%.0d",   L"%.5d",
        L"%08.3d", L"%hd",    L"%hu",    L"%hx",    L"%hhd",  L"%ld",     L"%lx",    L"%I32d",
        L"%+5d|",  L"%-+5d|", L"%#010x", L"%5.0d|", L"% 05d", L"%#5.3x|", L"%-#8o|", L"%+.3d",
    };
    for (const wchar_t* format : formats) {
        for (const int value : ints) {
            EXPECT_AS_RUNTIME(format, value);
        }
    }
}

TEST(WideFormatRuntime, SixtyFourBitConversions_SameAsSystemRuntime) {
    const int64_t values[] = {0, -1, 1, INT64_MAX, INT64_MIN, 0x123456789ABCDEF0LL};
    const wchar_t* formats[] = {L"%lld",    L"%llu",      L"%llX", L"%I64d", L"%I64x",
                                L"%020llX", L"%-22I64u|", L"%llo", L"%#llx"};
    for (const wchar_t* format : formats) {
        for (const int64_t value : values) {
            EXPECT_AS_RUNTIME(format, value);
        }
    }
    EXPECT_AS_RUNTIME(L"%zu", size_t{12345});
    EXPECT_AS_RUNTIME(L"%Iu", size_t{12345});
    EXPECT_AS_RUNTIME(L"%p", reinterpret_cast<const void*>(std::uintptr_t{0xABCDEF}));
}

TEST(WideFormatRuntime, TextAndCharacters_SameAsSystemRuntime) {
    const wchar_t* wide[] = {L"", L"a", L"abcdef", L"Halvion WLM"};
    const wchar_t* formats[] = {L"%s",    L"%ls",   L"%ws",     L"%.3s", L"%-10s|",
                                L"%10s|", L"%05s|", L"%10.1s|", L"%.0s|"};
    for (const wchar_t* format : formats) {
        for (const wchar_t* text : wide) {
            EXPECT_AS_RUNTIME(format, text);
        }
    }
    EXPECT_AS_RUNTIME(L"%S|%hs|%.2S|%-6S|", "ansi", "h", "cut", "pad");
    EXPECT_AS_RUNTIME(L"%c%C%lc%hc|%5c|%-3C|", L'a', 'b', L'c', 'd', L'e', 'f');
    EXPECT_AS_RUNTIME(L"%*d|%-*d|%.*d|%*.*s|", 6, 42, 6, 42, 4, 42, 8, 3, L"abcdef");
    EXPECT_AS_RUNTIME(L"100%% %y %I6d", 1);
}

TEST(WideFormatRuntime, FloatingConversions_SameAsSystemRuntime) {
    const double values[] = {0.0,      -0.0,    1.5,    2.5,      0.125,    2.675,
                             -3.14159, 1e20,    1e-5,   1e300,    123456.0, 0.35,
                             9.5,      1.0 / 3, 1e-300, 100000.0, INFINITY, -INFINITY};
    const wchar_t* formats[] = {L"%f",   L"%e",   L"%E",       L"%g",     L"%G",
                                L"%.0f", L"%.1f", L"%.2f",     L"%.0e",   L"%.3e",
                                L"%.0g", L"%.1g", L"%.2g",     L"%.5g",   L"%#.0f",
                                L"%#g",  L"%+e",  L"%012.3f|", L"%-12g|", L"%10.4e|"};
    for (const wchar_t* format : formats) {
        for (const double value : values) {
            EXPECT_AS_RUNTIME(format, value);
        }
    }
}

}  // namespace
