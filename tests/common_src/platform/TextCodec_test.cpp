#include "common_src/platform/TextCodec.h"

#include <gtest/gtest.h>

#include <string>

namespace ZelCommon::Text {
namespace {

struct Utf8Case {
    const char* name;
    std::string bytes;
    std::wstring text;
};

TEST(TextCodec, Utf8ToWide_DecodesAndReplacesBrokenSequences) {
    const Utf8Case cases[] = {
        {"ascii", "abc@example.com", L"abc@example.com"},
        {"latin1", "M\xC3\xBCller", L"M\u00FCller"},
        {"three bytes", "\xE2\x82\xAC", L"\u20AC"},
        {"four bytes", "\xF0\x9F\x98\x80", L"\U0001F600"},
        {"lone continuation", "a\x80z", L"a\uFFFDz"},
        {"truncated at end", "a\xE2\x82", L"a\uFFFD"},
        {"overlong slash", "\xC0\xAF", L"\uFFFD"},
        {"encoded surrogate", "\xED\xA0\x80", L"\uFFFD"},
        {"beyond U+10FFFF", "\xF4\x90\x80\x80", L"\uFFFD"},
        {"lead then ascii",
         "\xC3"
         "A",
         L"\uFFFD"
         "A"},
        {"embedded zero", std::string("a\0b", 3), std::wstring(L"a\0b", 3)},
    };
    for (const Utf8Case& c : cases) {
        EXPECT_EQ(Utf8ToWide(c.bytes), c.text) << c.name;
    }
}

TEST(TextCodec, Utf8_RoundTripsEveryPlane) {
    const std::wstring text = L"a\u00E9\u4E2D\U0001F600z";
    EXPECT_EQ(WideToUtf8(text), "a\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80z");
    EXPECT_EQ(Utf8ToWide(WideToUtf8(text)), text);
}

TEST(TextCodec, Utf16Le_RoundTripsWithSurrogatePairs) {
    const std::wstring text = L"A\u00E9\U0001F600";
    const std::string bytes = WideToUtf16Le(text);
    EXPECT_EQ(bytes, std::string("A\0\xE9\0\x3D\xD8\x00\xDE", 8));
    EXPECT_EQ(Utf16LeToWide(bytes), text);
}

TEST(TextCodec, Utf16LeToWide_DropsOddByteAndKeepsLoneSurrogateReadable) {
    EXPECT_EQ(Utf16LeToWide(std::string("A\0B", 3)), L"A");
    const std::wstring lone =
        Utf16LeToWide(std::string("\x00\xD8"
                                  "A\0",
                                  4));
    ASSERT_EQ(lone.size(), 2u);
    EXPECT_EQ(lone[1], L'A');
}

TEST(TextCodec, ToLower_FoldsAsciiAndLatin1) {
    EXPECT_EQ(ToLower(L"John.DOE@Example.COM"), L"john.doe@example.com");
    EXPECT_EQ(ToLower(L"\u00C4\u00D6\u00DC\u00D7"), L"\u00E4\u00F6\u00FC\u00D7");
}

TEST(TextCodec, WideToAnsi_KeepsAscii) {
    EXPECT_EQ(WideToAnsi(L"log line\n"), "log line\n");
}

}  // namespace
}  // namespace ZelCommon::Text
