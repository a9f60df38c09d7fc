#include <gtest/gtest.h>

#include <string>

#include "ListTestFiles.h"
#include "common_src/platform/TextCodec.h"
#include "lists/EncodingSet.h"

namespace Orva::Lists {
namespace {

using Testing::kHeader;
using Testing::kMark;

using Groups = std::map<std::wstring, EncodingGroup>;

EncodingGroup Group(bool blocked, std::vector<int32_t> codePages) {
    return EncodingGroup{blocked, std::move(codePages)};
}

TEST(CEncodingSet, Save_WritesHeaderValueAndGroupsInNameOrder_LoadReadsThemBack) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"BlockEncodings.dat");
    CEncodingSet set;
    set.SetValue(-3);
    set.AddGroup(L"Korean", Group(false, {949, 51949}));
    set.AddGroup(L"Chinese Simplified", Group(true, {936, 20936, 52936}));
    set.AddGroup(L"Empty", Group(true, {}));
    set.Save(path);
    EXPECT_EQ(
        std::string(kMark) + kHeader +
            "\n-3\nChinese Simplified\t1\t936\t20936\t52936\nEmpty\t1\nKorean\t0\t949\t51949\n",
        Testing::ReadFileBytes(path));
    set.AddGroup(L"Cyrillic \u0416", Group(true, {866, 1251, -1, 2147483647}));
    set.Save(path);
    CEncodingSet loaded;
    loaded.Load(path);
    EXPECT_EQ(-3, loaded.Value());
    EXPECT_EQ(set.Groups(), loaded.Groups());
}

TEST(CEncodingSet, Load_MissingFileOrFolderGivesEmptySet) {
    Testing::TempFolder folder;
    std::filesystem::create_directories(std::filesystem::path(folder.File(L"folder.dat")));
    for (const wchar_t* name : {L"none.dat", L"folder.dat"}) {
        CEncodingSet set;
        set.SetValue(4);
        set.AddGroup(L"Thai", Group(true, {874}));
        set.Load(folder.File(name));
        EXPECT_EQ(0, set.Value());
        EXPECT_TRUE(set.Groups().empty());
    }
}

// Line one is never read, line two is the value (its number prefix, else 0), groups follow.
TEST(CEncodingSet, Parse_ValueFromLineTwoGroupsFromLineThree) {
    const struct {
        std::wstring text;
        int32_t value;
        Groups groups;
    } cases[] = {
        {L"whatever is here\n12\nThai\t1\t874\n", 12, {{L"Thai", Group(true, {874})}}},
        {L"h\n0\nThai\t1\t874\nThai\t0\t1\n", 0, {{L"Thai", Group(true, {874})}}},
        {L"h\nabc\n", 0, {}},
        {L"h\n  42x\n", 42, {}},
        {L"h\n", 0, {}},
    };
    for (const auto& each : cases) {
        CEncodingSet set;
        set.SetValue(3);
        set.Parse(each.text);
        EXPECT_EQ(each.value, set.Value()) << testing::PrintToString(each.text);
        EXPECT_EQ(each.groups, set.Groups()) << testing::PrintToString(each.text);
    }
}

TEST(CEncodingSet, Parse_CrLfAndMarksReadLikeLf) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"BlockEncodings.dat");
    const std::string text = std::string(kHeader) + "\r\n5\r\nThai\t1\t874\r\nA\t0\r\n";
    for (const std::string& bytes :
         {kMark + text,
          "\xFF\xFE" + ZelCommon::Text::WideToUtf16Le(ZelCommon::Text::Utf8ToWide(text))}) {
        Testing::WriteFileBytes(path, bytes);
        CEncodingSet set;
        set.Load(path);
        EXPECT_EQ(5, set.Value());
        EXPECT_EQ((Groups{{L"A", Group(false, {})}, {L"Thai", Group(true, {874})}}), set.Groups());
    }
}

struct DamagedCase {
    const char* label;
    std::wstring line;
    std::wstring name;  // empty: the line adds nothing
    EncodingGroup group;
};

class EncodingDamagedLineTest : public ::testing::TestWithParam<DamagedCase> {};

// The damaged line sits between two good ones, which must survive it.
TEST_P(EncodingDamagedLineTest, Parse_KeepsWhatMakesSenseAndTheOtherLines) {
    CEncodingSet set;
    set.Parse(L"h\n9\nAlpha\t1\t1\n" + GetParam().line + L"\nZulu\t0\t2\n");
    Groups expected{{L"Alpha", Group(true, {1})}, {L"Zulu", Group(false, {2})}};
    if (!GetParam().name.empty()) {
        expected.emplace(GetParam().name, GetParam().group);
    }
    EXPECT_EQ(9, set.Value());
    EXPECT_EQ(expected, set.Groups());
}

INSTANTIATE_TEST_SUITE_P(
    Lines, EncodingDamagedLineTest,
    ::testing::Values(
        DamagedCase{"NameOnly", L"Mid", L"Mid", Group(false, {})},
        DamagedCase{"NonNumericFlag", L"Mid\tyes\t5", L"Mid", Group(false, {5})},
        DamagedCase{"FlagTwo", L"Mid\t2\t5", L"Mid", Group(true, {5})},
        DamagedCase{"NonNumericCodePage", L"Mid\t1\tabc\t5", L"Mid", Group(true, {5})},
        DamagedCase{"NumberWithTail", L"Mid\t1\t12ab\t 7", L"Mid", Group(true, {12, 7})},
        DamagedCase{"EmptyFields", L"Mid\t1\t\t5\t", L"Mid", Group(true, {5})},
        DamagedCase{"Overflow", L"Mid\t1\t99999999999\t-99999999999", L"Mid",
                    Group(true, {2147483647, -2147483647 - 1})},
        DamagedCase{"SignOnly", L"Mid\t1\t-\t+", L"Mid", Group(true, {})},
        DamagedCase{"EmptyName", L"\t1\t5", L"", EncodingGroup{}},
        DamagedCase{"Blank", L"", L"", EncodingGroup{}},
        DamagedCase{"TabsOnly", L"\t\t\t", L"", EncodingGroup{}},
        DamagedCase{"RepeatOfAlpha", L"Alpha\t0\t3", L"", EncodingGroup{}}),
    [](const auto& test) { return std::string(test.param.label); });

TEST(CEncodingSet, AddGroup_RefusesNamesThatWouldBreakTheFile) {
    CEncodingSet set;
    EXPECT_FALSE(set.AddGroup(L"", Group(true, {})));
    EXPECT_FALSE(set.AddGroup(L"a\tb", Group(true, {})));
    EXPECT_FALSE(set.AddGroup(L"a\nb", Group(true, {})));
    EXPECT_TRUE(set.AddGroup(L"a b", Group(true, {})));
    EXPECT_FALSE(set.AddGroup(L"a b", Group(false, {})));
    EXPECT_TRUE(set.Groups().at(L"a b").blocked);
}

TEST(CEncodingSet, SetBlocked_ChangesOnlyAnExistingGroup) {
    CEncodingSet set;
    set.AddGroup(L"Thai", Group(false, {874}));
    EXPECT_TRUE(set.SetBlocked(L"Thai", true));
    EXPECT_FALSE(set.SetBlocked(L"thai", true));
    EXPECT_EQ((Groups{{L"Thai", Group(true, {874})}}), set.Groups());
}

}  // namespace
}  // namespace Orva::Lists
