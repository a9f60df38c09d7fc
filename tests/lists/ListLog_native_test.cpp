#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "ListTestFiles.h"
#include "lists/SenderListSet.h"
#include "settings/log/DebugLog.h"

namespace Orva::Lists {
namespace {

// The log, once on, stays on for the process, so this runs only where each test has its own.
size_t Occurrences(const std::string& text, const std::string& part) {
    size_t count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

std::string ReadWholeLogFolder(const std::wstring& folder) {
    std::string text;
    for (const auto& file : std::filesystem::directory_iterator(std::filesystem::path(folder))) {
        text += Testing::ReadFileBytes(file.path().wstring());
    }
    return text;
}

// Both lists log under the blocked list's name; a save logs the entry it leaves out.
TEST(ListLog, FindAddAndSave_WriteTheirLinesUnderTheBlockedListsName) {
    Testing::TempFolder folder;
    ZelCommon::Library::TheLog().OpenLog(folder.File(L"lists.log"));
    ASSERT_TRUE(ZelCommon::Library::TheLog().IsLogOn());
    CWListSet approved;
    approved.Add(L"Ann@b.com", {L"A", L"Ann@b.com"});
    approved.Find(L"Ann@b.com");
    approved.Find(L"bob@b.com");
    CBListSet blocked;
    blocked.Add(L"a\nb@c.com", {L"N", L"a\nb@c.com"});
    blocked.Save(folder.File(L"BlackList.dat"));
    const std::string log = ReadWholeLogFolder(folder.Path());
    EXPECT_EQ(1u, Occurrences(log, "@@@ CBListSet::Add Ann@b.com, at: BlackList line: "));
    EXPECT_EQ(2u, Occurrences(log, "@@@ CBListSet::Find Ann@b.com, at: BlackList line: "));
    EXPECT_EQ(1u, Occurrences(log, "@@@ CBListSet::Find bob@b.com, at: BlackList line: "));
    EXPECT_EQ(1u, Occurrences(log,
                              "!!! xxx CBListSet::Save left out the entry of an address that "
                              "cannot be written: ab@c.com, at: BlackList line: "));
}

}  // namespace
}  // namespace Orva::Lists
