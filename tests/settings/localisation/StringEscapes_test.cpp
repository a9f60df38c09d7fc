#include "settings/localisation/StringEscapes.h"

#include <gtest/gtest.h>

namespace Orva::Settings {
namespace {

struct EscapeCase {
    const wchar_t* stored;
    const wchar_t* expected;
};

class StringEscapesTest : public testing::TestWithParam<EscapeCase> {};

TEST_P(StringEscapesTest, StoredText_BecomesTheShownText) {
    EXPECT_EQ(ExpandStringEscapes(GetParam().stored), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, StringEscapesTest,
    testing::Values(EscapeCase{L"", L""}, EscapeCase{L"plain", L"plain"},
                    EscapeCase{L"one\\ntwo", L"one\ntwo"}, EscapeCase{L"one\\rtwo", L"one\rtwo"},
                    EscapeCase{L"a\\r\\nb", L"a\r\nb"}, EscapeCase{L"\\n\\n", L"\n\n"},
                    EscapeCase{L"end\\", L"end\\"}, EscapeCase{L"C:\\temp", L"C:\\temp"},
                    EscapeCase{L"\\\\n", L"\\\n"}, EscapeCase{L"\\N", L"\\N"}));

}  // namespace
}  // namespace Orva::Settings
