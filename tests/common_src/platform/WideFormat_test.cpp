#include "common_src/platform/WideFormat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "common_src/platform/TextCodec.h"

namespace {

using ZelCommon::Text::Format;
using ZelCommon::Text::FormatArg;
using ZelCommon::Text::FormatV;

struct Row {
    const wchar_t* format;
    std::vector<FormatArg> args;
    const wchar_t* expected;
};

// Expectations are what the Windows C runtime (msvcrt) prints for the same format and values.
const std::vector<Row>& Rows() {
    static const std::vector<Row> rows = {
        // text
        {L"plain text", {}, L"plain text"},
        {L"", {}, L""},
        {L"%s", {L"wide"}, L"wide"},
        {L"%ls", {L"l"}, L"l"},
        {L"%ws", {L"w"}, L"w"},
        {L"%S", {"narrow"}, L"narrow"},
        {L"%hs", {"h"}, L"h"},
        {L"%hS", {"x"}, L"x"},
        {L"%lS", {L"x"}, L"x"},
        {L"%I64s", {L"x"}, L"x"},
        {L"%.3s", {L"abcdef"}, L"abc"},
        {L"%.3hs|", {"abcdef"}, L"abc|"},
        {L"%-10s|", {L"ab"}, L"ab        |"},
        {L"%10s|", {L"ab"}, L"        ab|"},
        {L"%10.1s|", {L"ab"}, L"         a|"},
        {L"%5.0s|", {L"x"}, L"     |"},
        {L"%05s|", {L"ab"}, L"000ab|"},
        {L"%s", {static_cast<const wchar_t*>(nullptr)}, L"(null)"},
        {L"%S", {static_cast<const char*>(nullptr)}, L"(null)"},
        {L"%.2s", {static_cast<const wchar_t*>(nullptr)}, L"(n"},
        {L"@@@ %s  IN", {L"CToolBarWnd::OnCreate"}, L"@@@ CToolBarWnd::OnCreate  IN"},
        {L"excpetion:[%S]", {"Invalid pointer"}, L"excpetion:[Invalid pointer]"},
        // characters
        {L"%c", {L'B'}, L"B"},
        {L"%C", {'A'}, L"A"},
        {L"%lc", {L'x'}, L"x"},
        {L"%hc", {'y'}, L"y"},
        {L"%c", {0x10041}, L"A"},
        {L"%hc", {0x141}, L"A"},
        {L"%5c|", {L'A'}, L"    A|"},
        {L"%-5C|", {'B'}, L"B    |"},
        {L"%05c|", {L'a'}, L"0000a|"},
        {L"%.0c|", {L'A'}, L"|"},
        {L"%C", {0xE9}, L"\u00E9"},
        // signed integers
        {L"%d", {42}, L"42"},
        {L"%i", {-42}, L"-42"},
        {L"%d", {std::numeric_limits<int32_t>::min()}, L"-2147483648"},
        {L"%d", {4294967295u}, L"-1"},
        {L"%ld", {2147483647}, L"2147483647"},
        {L"%lld", {int64_t{-1}}, L"-1"},
        {L"%lld", {std::numeric_limits<int64_t>::min()}, L"-9223372036854775808"},
        {L"%I64d", {int64_t{-5}}, L"-5"},
        {L"%hd", {40000}, L"-25536"},
        {L"%hhd", {200}, L"200"},
        {L"%hhd", {65535}, L"-1"},
        {L"%d", {int64_t{0x100000005}}, L"5"},
        {L"%+d", {5}, L"+5"},
        {L"% d", {5}, L" 5"},
        {L"% +d", {5}, L"+5"},
        {L"%+5d|", {-3}, L"   -3|"},
        {L"%-+5d|", {3}, L"+3   |"},
        {L"%+05d", {3}, L"+0003"},
        {L"% 05d", {3}, L" 0003"},
        {L"%+.3d", {3}, L"+003"},
        {L"%-08d|", {5}, L"5       |"},
        {L"%08.3d", {5}, L"00000005"},
        {L"%.0d", {0}, L""},
        {L"%5.0d|", {0}, L"     |"},
        {L"%5.1d|", {0}, L"    0|"},
        {L"%+.0d|", {0}, L"+|"},
        {L"%d", {true}, L"1"},
        // unsigned integers
        {L"%u", {3000000000u}, L"3000000000"},
        {L"%03u", {7u}, L"007"},
        {L"%03u", {1234u}, L"1234"},
        {L"%hu", {70000}, L"4464"},
        {L"%hhu", {70000}, L"4464"},
        {L"%lu", {4294967295u}, L"4294967295"},
        {L"%u", {-1}, L"4294967295"},
        {L"%I64u", {UINT64_MAX}, L"18446744073709551615"},
        {L"%+u", {5u}, L"5"},
        {L"% u", {5u}, L"5"},
        {L"%zu", {size_t{7}}, L"7"},
        {L"%Iu", {size_t{7}}, L"7"},
        // hexadecimal and octal
        {L"%x", {-1}, L"ffffffff"},
        {L"%08X", {255}, L"000000FF"},
        {L"%08x", {-2}, L"fffffffe"},
        {L"%04x", {0x1A2B3C}, L"1a2b3c"},
        {L"%04x", {0xAB}, L"00ab"},
        {L"%X", {0xDEADBEEFu}, L"DEADBEEF"},
        {L"%llX", {uint64_t{0xABCDEF0123456789}}, L"ABCDEF0123456789"},
        {L"%llX", {-1}, L"FFFFFFFFFFFFFFFF"},
        {L"%I64x", {int64_t{-1}}, L"ffffffffffffffff"},
        {L"%I32x", {-1}, L"ffffffff"},
        {L"%lx", {-1}, L"ffffffff"},
        {L"%hx", {-1}, L"ffff"},
        {L"%hhx", {0x1ff}, L"1ff"},
        {L"%.5x", {255}, L"000ff"},
        {L"%#x", {0}, L"0"},
        {L"%#X", {255}, L"0XFF"},
        {L"%#010x", {255}, L"0x000000ff"},
        {L"%-#8x|", {255}, L"0xff    |"},
        {L"%#5.3x|", {1}, L"0x001|"},
        {L"%o", {-1}, L"37777777777"},
        {L"%llo", {int64_t{-1}}, L"1777777777777777777777"},
        {L"%#o", {0}, L"0"},
        {L"%#o", {8}, L"010"},
        {L"%#.3o", {8}, L"010"},
        {L"%#5o|", {8}, L"  010|"},
        {L"%p",
         {reinterpret_cast<const void*>(std::uintptr_t{0x1234})},
         sizeof(void*) == 8 ? L"0000000000001234" : L"00001234"},
        {L"%#p",
         {reinterpret_cast<const void*>(std::uintptr_t{0x1234})},
         sizeof(void*) == 8 ? L"0X0000000000001234" : L"0X00001234"},
        // width and precision from the arguments
        {L"%*d|", {5, 3}, L"    3|"},
        {L"%*d|", {-5, 3}, L"3    |"},
        {L"%-*d|", {5, 3}, L"3    |"},
        {L"%0*d|", {5, 3}, L"00003|"},
        {L"%.*d|", {4, 3}, L"0003|"},
        {L"%.*d|", {-5, 3}, L"3|"},
        {L"%*.*s|", {6, 2, L"abcdef"}, L"    ab|"},
        // floating point
        {L"%f", {1.5}, L"1.500000"},
        {L"%.2f", {2.675}, L"2.67"},
        {L"%.1f", {0.05}, L"0.1"},
        {L"%5.1f|", {9.96}, L" 10.0|"},
        {L"%10.3f|", {-3.14159}, L"    -3.142|"},
        {L"%010.2f|", {-3.14159}, L"-000003.14|"},
        {L"%#.0f", {3.0}, L"3."},
        {L"%lf", {1.5}, L"1.500000"},
        {L"%f", {1e20}, L"100000000000000000000.000000"},
        {L"%e", {1.5}, L"1.500000e+000"},
        {L"%E", {123456.0}, L"1.234560E+005"},
        {L"%.3e", {0.0}, L"0.000e+000"},
        {L"%.0e", {12345.0}, L"1e+004"},
        {L"%#.0e", {12345.0}, L"1.e+004"},
        {L"%e", {1e300}, L"1.000000e+300"},
        {L"%e", {1e-300}, L"1.000000e-300"},
        {L"%+e", {1.0}, L"+1.000000e+000"},
        {L"% e", {1.0}, L" 1.000000e+000"},
        {L"%015e|", {-1.0}, L"-01.000000e+000|"},
        {L"%g", {1e20}, L"1e+020"},
        {L"%g", {0.0001}, L"0.0001"},
        {L"%g", {0.00001}, L"1e-005"},
        {L"%G", {1e-10}, L"1E-010"},
        {L"%g", {100000.0}, L"100000"},
        {L"%g", {1000000.0}, L"1e+006"},
        {L"%g", {-0.0}, L"-0"},
        {L"%.0g", {2.5}, L"3"},
        {L"%#g", {1.0}, L"1.00000"},
        {L"%.10g", {1.0 / 3}, L"0.3333333333"},
        {L"%-15g|", {2.5}, L"2.5            |"},
        {L"%.0f", {0.5}, L"1"},
        {L"%.1f", {0.25}, L"0.3"},
        {L"%.2f", {0.125}, L"0.13"},
        {L"%.0e", {25.0}, L"3e+001"},
        {L"%.1g", {0.25}, L"0.3"},
        {L"%.0f", {1.5}, L"2"},
        {L"%.0f", {2.5}, L"3"},
        {L"%.0f", {-2.5}, L"-3"},
        {L"%.2e", {1.125}, L"1.13e+000"},
        {L"%.2g", {0.0000125}, L"1.3e-005"},
        {L"%.1f", {0.35}, L"0.3"},
        {L"%.0g", {9.5}, L"1e+001"},
        {L"%.1g", {95.0}, L"1e+002"},
        {L"%.0e", {1e23}, L"1e+023"},
        {L"%.3f", {1.0005}, L"1.000"},
        {L"%.3f", {1.0625}, L"1.063"},
        {L"%.1e", {0.0625}, L"6.3e-002"},
        {L"%f", {INFINITY}, L"1.#INF00"},
        {L"%f", {-INFINITY}, L"-1.#INF00"},
        {L"%f", {static_cast<double>(NAN)}, L"1.#QNAN0"},
        {L"%f", {-static_cast<double>(NAN)}, L"-1.#IND00"},
        {L"%e", {INFINITY}, L"1.#INF00e+000"},
        {L"%E", {INFINITY}, L"1.#INF00E+000"},
        {L"%e", {static_cast<double>(NAN)}, L"1.#QNAN0e+000"},
        {L"%g", {INFINITY}, L"1.#INF"},
        {L"%g", {static_cast<double>(NAN)}, L"1.#QNAN"},
        {L"%.2f", {INFINITY}, L"1.#J"},
        {L"%.1f", {INFINITY}, L"1.$"},
        {L"%.0f", {INFINITY}, L"1"},
        {L"%.3f", {INFINITY}, L"1.#IO"},
        {L"%.8f", {INFINITY}, L"1.#INF0000"},
        {L"%.3e", {INFINITY}, L"1.#IOe+000"},
        {L"%.2g", {INFINITY}, L"1.$"},
        {L"%12f|", {INFINITY}, L"    1.#INF00|"},
        {L"%+f", {INFINITY}, L"+1.#INF00"},
        {L"%012f", {INFINITY}, L"00001.#INF00"},
        // percent signs, unknown conversions and truncated formats
        {L"%%%d", {1}, L"%1"},
        {L"100%%", {}, L"100%"},
        {L"%y", {1}, L"y"},
        {L"%5y|", {1}, L"y|"},
        {L"%I", {1}, L"I"},
        {L"%I6d", {1}, L"I6d"},
        {L"%w", {1}, L""},
        {L"%", {1}, L""},
        {L"abc%", {1}, L"abc"},
        {L"%-", {1}, L""},
        {L"%ll", {5}, L""},
        {L"%F", {1.5}, L""},
        // the log's own heads
        {L"%04x:%04x %04u/%02u/%02u %02u:%02u:%02u:%03u ",
         {0x1234u, 0x0Bu, 2024, 1, 31, 9, 5, 7, 42},
         L"1234:000b 2024/01/31 09:05:07:042 "},
        {L"ZelCommon::Storage::Exception - ln(%u), er(0x%08X)",
         {120u, 5u},
         L"ZelCommon::Storage::Exception - ln(120), er(0x00000005)"},
        {L"%s() - %s [%s(%u)]",
         {L"Load", L"failed", L"IniFile.cpp", 77u},
         L"Load() - failed [IniFile.cpp(77)]"},
    };
    return rows;
}

TEST(WideFormat, TableOfFormats_MatchWindowsRuntime) {
    for (const Row& row : Rows()) {
        EXPECT_EQ(FormatV(row.format, row.args), std::wstring(row.expected))
            << "format: " << ZelCommon::Text::WideToUtf8(row.format);
    }
}

TEST(WideFormat, MismatchedOrMissingArguments_PrintNothingForThem) {
    const std::vector<Row> rows = {
        {L"[%d]", {}, L"[]"},         {L"[%d %d]", {1}, L"[1 ]"},
        {L"[%s]", {42}, L"[]"},       {L"[%s]", {"narrow"}, L"[]"},
        {L"[%S]", {L"wide"}, L"[]"},  {L"[%d]", {L"text"}, L"[]"},
        {L"[%d]", {1.5}, L"[]"},      {L"[%f]", {3}, L"[]"},
        {L"[%c]", {L"x"}, L"[]"},     {L"[%*d]", {L"x", 5}, L"[5]"},
        {L"[%10s]", {}, L"[]"},       {L"[%s|%d]", {L"a", L"b"}, L"[a|]"},
        {L"[%d]", {1, 2, 3}, L"[1]"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(FormatV(row.format, row.args), std::wstring(row.expected))
            << "format: " << ZelCommon::Text::WideToUtf8(row.format);
    }
}

TEST(WideFormat, TemplateFront_AcceptsStringsAndNumbers) {
    const std::wstring wide = L"folder";
    const std::string narrow = "ansi";
    EXPECT_EQ(Format(L"%s/%S/%d/%llX", wide, narrow, 7, uint64_t{0xFFFFFFFFFFFFFFFF}),
              L"folder/ansi/7/FFFFFFFFFFFFFFFF");
    EXPECT_EQ(Format(L"no arguments %d"), L"no arguments ");
    EXPECT_EQ(Format(L"%s", std::wstring_view(L"view")), L"view");
}

TEST(WideFormat, NarrowUtf8Text_IsDecoded) {
    EXPECT_EQ(Format(L"%S", "caf\xC3\xA9"), L"caf\u00E9");
    EXPECT_EQ(Format(L"%.3S|", "caf\xC3\xA9"), L"caf|");
}

TEST(WideFormat, HugeWidthOrPrecision_IsClampedNotFatal) {
    const std::wstring wide = Format(L"%999999999999d", 1);
    EXPECT_LE(wide.size(), 100000u);
    EXPECT_EQ(wide.back(), L'1');
    const std::wstring precise = Format(L"%.999999999f", 1.0);
    EXPECT_EQ(precise.substr(0, 2), L"1.");
    EXPECT_LE(precise.size(), 1000u);
}

TEST(WideFormat, LongText_IsCopiedWhole) {
    const std::wstring text(5000, L'x');
    EXPECT_EQ(Format(L"<%s>", text), L"<" + text + L">");
    const std::string narrow(5000, 'n');
    EXPECT_EQ(Format(L"%S", narrow), std::wstring(5000, L'n'));
}

TEST(WideFormat, EmbeddedNulInFormat_IsCopied) {
    const std::wstring format(L"a\0%d", 4);
    EXPECT_EQ(FormatV(format, std::vector<FormatArg>{9}), std::wstring(L"a\0"
                                                                       L"9",
                                                                       3));
}

}  // namespace
