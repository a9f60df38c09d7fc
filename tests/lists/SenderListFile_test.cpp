#include <gtest/gtest.h>

#include <string>

#include "ListTestFiles.h"
#include "common_src/platform/TextCodec.h"
#include "lists/SenderListSet.h"

namespace Orva::Lists {
namespace {

using Testing::kHeader;
using Testing::kMark;
using Testing::ReadFileBytes;
using Testing::WriteFileBytes;

std::string BlockedRecord(const std::string& name, const std::string& address) {
    return "<BL_REC><SN_ATTR>" + name + "<\\SN_ATTR><SA_ATTR>" + address + "<\\SA_ATTR><\\BL_REC>";
}

class SenderListFileTest : public ::testing::Test {
protected:
    std::vector<SenderEntry> LoadBlocked(const std::string& bytes) {
        WriteFileBytes(m_path, bytes);
        CBListSet set;
        set.Load(m_path);
        return set.Entries();
    }

    Testing::TempFolder m_folder;
    std::wstring m_path = m_folder.File(L"BlackList.dat");
};

// Mark, header, then the records in key order, names in UTF-8, lines ended by line feeds; the old
// file replaced and no temporary file left.
TEST_F(SenderListFileTest, Save_WritesMarkHeaderAndRecordsInKeyOrder) {
    WriteFileBytes(m_path, std::string(kHeader) + "\n" + BlockedRecord("", "old@b.com") + "\n");
    CBListSet set;
    set.Save(m_path);
    EXPECT_EQ(std::string(kMark) + kHeader + "\n", ReadFileBytes(m_path));
    set.Add(L"Zed@b.com", {L"Zed", L"Zed@b.com"});
    set.Add(L"al@b.com", {L"J\u00fcrgen \u4e2d", L"al@b.com"});
    EXPECT_EQ(1, set.Save(m_path));
    EXPECT_EQ(std::string(kMark) + kHeader + "\n" +
                  BlockedRecord("J\xC3\xBCrgen \xE4\xB8\xAD", "al@b.com") + "\n" +
                  BlockedRecord("Zed", "Zed@b.com") + "\n",
              ReadFileBytes(m_path));
    EXPECT_EQ(1u, m_folder.FileCount());

    CWListSet approved;
    approved.Add(L"a@b.com", {L"A", L"a@b.com"});
    const std::wstring path = m_folder.File(L"WhiteList.dat");
    approved.Save(path);
    EXPECT_EQ(std::string(kMark) + kHeader +
                  "\n<WL_REC><SN_ATTR>A<\\SN_ATTR><SA_ATTR>a@b.com<\\SA_ATTR><\\WL_REC>\n",
              ReadFileBytes(path));
}

TEST_F(SenderListFileTest, Save_UnwritableLocationReportsSuccessAndCreatesNothing) {
    CBListSet set;
    set.Add(L"a@b.com", {L"", L"a@b.com"});
    const std::wstring path = m_folder.File(L"missing-folder") + L"/BlackList.dat";
    EXPECT_EQ(1, set.Save(path));
    EXPECT_EQ(0u, m_folder.FileCount());
}

// A name of 250 bytes leaves no room under the limit of 255 for the temporary name beside it, so
// the save fails whoever runs it (root too). The old file stays exactly as it was.
TEST_F(SenderListFileTest, Save_TemporaryFileCannotBeCreated_OldFileUnchangedAndFailureReported) {
    const std::wstring path = m_folder.File(std::wstring(246, L'b') + L".dat");
    const std::string old = std::string(kHeader) + "\n" + BlockedRecord("", "old@b.com") + "\n";
    WriteFileBytes(path, old);
    ASSERT_EQ(old, ReadFileBytes(path));
    CBListSet set;
    set.Add(L"new@b.com", {L"", L"new@b.com"});
    EXPECT_EQ(ListSave::Unwritable, set.SaveTo(path));
    EXPECT_EQ(old, ReadFileBytes(path));
    EXPECT_EQ(1u, m_folder.FileCount());
}

TEST_F(SenderListFileTest, Save_TargetThatCannotBeReplacedLeavesNoTemporaryFile) {
    std::filesystem::create_directories(std::filesystem::path(m_path) / "inside");
    CBListSet set;
    set.Add(L"new@b.com", {L"", L"new@b.com"});
    EXPECT_EQ(1, set.Save(m_path));
    EXPECT_EQ(1u, m_folder.FileCount());
    EXPECT_TRUE(std::filesystem::is_directory(std::filesystem::path(m_path)));
}

// A file that is not a list this version reads may be another program's, or a newer list.
TEST_F(SenderListFileTest, Save_NeverWritesOverTheFileALoadRefused) {
    const std::string foreign = "my notes\n" + BlockedRecord("", "a@b.com") + "\n";
    WriteFileBytes(m_path, foreign);
    CBListSet set;
    set.Load(m_path);
    set.Add(L"new@b.com", {L"", L"new@b.com"});
    EXPECT_EQ(1, set.Save(m_path));
    EXPECT_EQ(ListSave::KeptRefusedFile, set.SaveTo(m_path));
    EXPECT_EQ(foreign, ReadFileBytes(m_path));
    EXPECT_EQ(ListSave::Saved, set.SaveTo(m_folder.File(L"elsewhere.dat")));
    // Once a load accepts the file, it may be written again.
    WriteFileBytes(m_path, std::string(kHeader) + "\n");
    EXPECT_EQ(ListLoad::Loaded, set.Load(m_path));
    EXPECT_EQ(ListSave::Saved, set.SaveTo(m_path));
}

// A save copies the record lines it loaded unchanged; a line that reading changed in any way
// must be formatted afresh.
TEST_F(SenderListFileTest, Save_AfterLoad_WritesWhatFormattingTheEntriesWrites) {
    WriteFileBytes(
        m_path, std::string(kHeader) + "\r\n" + BlockedRecord("Ann \xC3\xA9", "ann@b.com") +
                    "\r\n" + BlockedRecord(" Bob\t", "bob@b.com") + "\n" +
                    BlockedRecord("Cy", " cy@b.com") + "\n" + BlockedRecord("", "**@d.com") + "\n" +
                    BlockedRecord("E\xFF", "e@b.com") + "\n" + BlockedRecord("F\x01", "f@b.com") +
                    "\n" + BlockedRecord("G", "G@B.com") + "\n" + BlockedRecord("Dup", "g@b.com") +
                    "\n" + "x" + BlockedRecord("H", "h@b.com") + "\n" +
                    BlockedRecord("I", "i@b.com"));
    CBListSet loaded;
    loaded.Load(m_path);
    CBListSet fresh;
    for (const SenderEntry& entry : loaded.Entries()) {
        fresh.Add(entry.address.c_str(), entry);
    }
    const std::wstring freshPath = m_folder.File(L"fresh.dat");
    fresh.Save(freshPath);
    loaded.Save(m_path);
    EXPECT_EQ(9u, loaded.Count());
    EXPECT_EQ(ReadFileBytes(freshPath), ReadFileBytes(m_path));
}

// A load replaces what the set held, wildcards too; a missing or unreadable file leaves it empty.
TEST_F(SenderListFileTest, Load_ReplacesEarlierContent_MissingOrUnreadableFileGivesEmptyList) {
    WriteFileBytes(m_path, std::string(kHeader) + "\n" + BlockedRecord("", "a@b.com") + "\n");
    const std::wstring folder = m_folder.File(L"folder.dat");
    std::filesystem::create_directories(std::filesystem::path(folder));
    const std::tuple<std::wstring, ListLoad, std::vector<SenderEntry>> cases[] = {
        {m_path, ListLoad::Loaded, {{L"", L"a@b.com"}}},
        {m_folder.File(L"nothing.dat"), ListLoad::Absent, {}},
        {folder, ListLoad::Unreadable, {}}};
    for (const auto& [path, load, entries] : cases) {
        CBListSet set;
        set.Add(L"*@gone.com", {L"", L"*@gone.com"});
        EXPECT_EQ(load, set.Load(path));
        EXPECT_EQ(entries, set.Entries());
        EXPECT_TRUE(set.WildcardKeys().empty());
    }
}

struct HeaderCase {
    const char* label;
    std::string firstLine;
    bool accepted;
};

class SenderListHeaderTest : public SenderListFileTest,
                             public ::testing::WithParamInterface<HeaderCase> {};

// A save after the load of an accepted file writes this version's header back.
TEST_P(SenderListHeaderTest, Load_AcceptsOnlyTheFamilysHeaders_SaveWritesOursBack) {
    const std::string record = BlockedRecord("N", "a@b.com") + "\n";
    WriteFileBytes(m_path, GetParam().firstLine + "\n" + record);
    CBListSet set;
    EXPECT_EQ(GetParam().accepted ? ListLoad::Loaded : ListLoad::RejectedHeader, set.Load(m_path));
    EXPECT_EQ(GetParam().accepted ? 1u : 0u, set.Count());
    if (GetParam().accepted) {
        set.Save(m_path);
        EXPECT_EQ(std::string(kMark) + kHeader + "\n" + record, ReadFileBytes(m_path));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Headers, SenderListHeaderTest,
    ::testing::Values(
        HeaderCase{"Orva", kHeader, true},
        HeaderCase{"ZelQuillon", "; Written by ZelQuillon v1.0 (c) 2003 Halvion", true},
        HeaderCase{"ZelAntiSpam", "; Written by ZelAnti-Spam v1.0 (c) 2003 Halvion", true},
        HeaderCase{"WithMark", std::string(kMark) + kHeader, true},
        HeaderCase{"ContainedInLongerLine", std::string("xx") + kHeader + " yy", true},
        HeaderCase{"BlankFirstLine", "", false},
        HeaderCase{"OtherProduct", "; Written by Other v1.0 (c) 2005 Halvion", false},
        HeaderCase{"LowerCase", "; written by orva v3.5 (c) 2005 halvion", false},
        HeaderCase{"Record", BlockedRecord("", "x@b.com"), false},
        HeaderCase{"Utf16Mark", "\xFF\xFE", false}),
    [](const auto& test) { return std::string(test.param.label); });

// The runtime's UTF-8 text mode lets a file's mark decide: a UTF-16LE mark reads UTF-16.
TEST_F(SenderListFileTest, Load_LineEndsAndMarksReadTheSame) {
    const std::string lf = std::string(kHeader) + "\n" + BlockedRecord("J\xC3\xBCrgen", "a@b.com") +
                           "\n" + BlockedRecord("C", "c@d.com") + "\n";
    std::string crlf;
    for (const char c : lf) {
        crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
    }
    const auto utf16 = [](const std::string& utf8) {
        return "\xFF\xFE" + ZelCommon::Text::WideToUtf16Le(ZelCommon::Text::Utf8ToWide(utf8));
    };
    const auto fromLf = LoadBlocked(lf);
    EXPECT_EQ((std::vector<SenderEntry>{{L"J\u00fcrgen", L"a@b.com"}, {L"C", L"c@d.com"}}), fromLf);
    EXPECT_EQ(fromLf, LoadBlocked(crlf));
    EXPECT_EQ(fromLf, LoadBlocked(std::string(kMark) + crlf));
    EXPECT_EQ(fromLf, LoadBlocked(utf16(crlf)));
    EXPECT_EQ(fromLf, LoadBlocked(utf16(lf) + "\x01"));
}

TEST_F(SenderListFileTest, Load_WholeFiles) {
    const std::string head = std::string(kHeader) + "\n";
    const struct {
        const char* label;
        std::string bytes;
        std::vector<SenderEntry> entries;
    } cases[] = {
        {"header on the second line", "\n" + head + BlockedRecord("", "a@b.com") + "\n", {}},
        {"last line without line end", head + BlockedRecord("", "a@b.com"), {{L"", L"a@b.com"}}},
        {"approved records",
         std::string(kMark) + head +
             "<WL_REC><SN_ATTR>A<\\SN_ATTR><SA_ATTR>a@b.com<\\SA_ATTR><\\WL_REC>\n",
         {}},
        {"duplicate key keeps the first",
         head + BlockedRecord("1", "A@b.com") + "\n" + BlockedRecord("2", "a@B.com") + "\n",
         {{L"1", L"A@b.com"}}},
    };
    for (const auto& each : cases) {
        EXPECT_EQ(each.entries, LoadBlocked(each.bytes)) << each.label;
    }
}

TEST_F(SenderListFileTest, Load_StopsAtTheLimit) {
    std::string bytes = std::string(kHeader) + "\n";
    for (int i = 0; i < 8005; ++i) {
        bytes += BlockedRecord("", std::to_string(i) + "@b.com") + "\n";
    }
    EXPECT_EQ(8000u, LoadBlocked(bytes).size());
}

struct LineCase {
    const char* label;
    std::string line;
    std::wstring name;  // expected; an empty address means the line is skipped
    std::wstring address;
};

class SenderListLineTest : public SenderListFileTest,
                           public ::testing::WithParamInterface<LineCase> {};

TEST_P(SenderListLineTest, Load_TakesValuesOutByTheTagRule) {
    std::vector<SenderEntry> expected;
    if (!GetParam().address.empty()) {
        expected.push_back({GetParam().name, GetParam().address});
    }
    EXPECT_EQ(expected, LoadBlocked(std::string(kHeader) + "\n" + GetParam().line + "\n"));
}

INSTANTIATE_TEST_SUITE_P(
    Lines, SenderListLineTest,
    ::testing::Values(
        LineCase{"Plain", BlockedRecord("Ann", "ann@b.com"), L"Ann", L"ann@b.com"},
        LineCase{"BlanksTrimmed", BlockedRecord(" \tAnn B ", "  ann@b.com\t"), L"Ann B",
                 L"ann@b.com"},
        LineCase{"ForwardSlashCloseTag",
                 "<BL_REC><SN_ATTR>A<\\SN_ATTR><SA_ATTR>a@b.com</SA_ATTR><\\BL_REC>", L"", L""},
        LineCase{"MissingRecordClose", "<BL_REC><SN_ATTR>A<\\SN_ATTR><SA_ATTR>a@b.com<\\SA_ATTR>",
                 L"", L""},
        LineCase{"MissingNameKeepsAddress", "<BL_REC><SA_ATTR>a@b.com<\\SA_ATTR><\\BL_REC>", L"",
                 L"a@b.com"},
        LineCase{"TextAroundRecord", "junk " + BlockedRecord("A", "a@b.com") + " junk", L"A",
                 L"a@b.com"},
        LineCase{"AttributesInAnyOrder",
                 "<BL_REC><SA_ATTR>a@b.com<\\SA_ATTR><SN_ATTR>A<\\SN_ATTR><\\BL_REC>", L"A",
                 L"a@b.com"},
        LineCase{"StarRunsCollapsed", BlockedRecord("", "***@b.com"), L"", L"*@b.com"},
        LineCase{"BlankAddress", BlockedRecord("A", " \t "), L"", L""},
        LineCase{"Comment", "; a comment", L"", L""}, LineCase{"Blank", "", L"", L""},
        LineCase{"AddressNotCheckedAsEmail", BlockedRecord("", "not an address"), L"",
                 L"not an address"},
        LineCase{"NameHoldingAddressTagDropsLine",
                 "<BL_REC><SN_ATTR>x<SA_ATTR>y<\\SN_ATTR><SA_ATTR>a@b.com<\\SA_ATTR><\\BL_REC>",
                 L"", L""},
        LineCase{"NameHoldingOtherListsTagDropsName", BlockedRecord("x<WL_REC>", "a@b.com"), L"",
                 L"a@b.com"},
        LineCase{"ControlCharacterDropsName", BlockedRecord("a\x01z", "a@b.com"), L"", L"a@b.com"},
        LineCase{"InnerCarriageReturnDropsName", BlockedRecord("a\rb", "a@b.com"), L"", L"a@b.com"},
        LineCase{"ControlCharacterInAddressDropsLine", BlockedRecord("A", "a\x02@b.com"), L"", L""},
        LineCase{"InnerTabKept", BlockedRecord("a\tb", "a@b.com"), L"a\tb", L"a@b.com"},
        LineCase{"BrokenSequenceRightBeforeTag", BlockedRecord("a\xE0", "a@b.com"), L"a\uFFFD",
                 L"a@b.com"},
        LineCase{"BrokenSequenceInAddress", BlockedRecord("", "a\xF0\x9F@b.com"), L"",
                 L"a\uFFFD@b.com"},
        LineCase{"BadUtf8BecomesReplacement", BlockedRecord("a\xFF", "a@b.com"), L"a\uFFFD",
                 L"a@b.com"}),
    [](const auto& test) { return std::string(test.param.label); });

}  // namespace
}  // namespace Orva::Lists
