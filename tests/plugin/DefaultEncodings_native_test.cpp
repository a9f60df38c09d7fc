#include "plugin/DefaultEncodings.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "lists/EncodingSet.h"
#include "lists/ListFileText.h"
#include "settings/probes/ProbeLog.h"
#include "support/FileBytes.h"
#include "support/SourceRoot.h"
#include "support/TempFolder.h"

namespace Orva::Plugin {
namespace {

const std::filesystem::path kShipped =
    Testing::SourceRoot() / "res" / "sample-install" / "BlockEncodings.dat";

// What the start-up finds and leaves: the user's file is never replaced, and only a copy that
// was written says so.
TEST(DefaultEncodings, Copy_OnlyIntoADataFolderWithoutAFile) {
    const struct {
        bool withDefault, withUserFile, dataFolderExists;
        DefaultEncodingsCopy outcome;
        const char* userFileAfter;
        const wchar_t* logStart;
    } cases[] = {
        {true, false, true, DefaultEncodingsCopy::Copied, "default", L"@@@ Encodings: default"},
        {true, true, true, DefaultEncodingsCopy::UserHasFile, "mine", nullptr},
        {false, false, true, DefaultEncodingsCopy::NoDefault, "<missing>", L"### Encodings: no"},
        {true, false, false, DefaultEncodingsCopy::NotWritten, "<missing>", L"xxx Encodings:"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.userFileAfter);
        Testing::TempFolder temp;
        Testing::ProbeLog log;
        const std::wstring addin = temp.Folder(L"addin");
        const std::wstring data = temp.Folder(L"data");
        std::filesystem::create_directories(std::filesystem::path(addin));
        if (each.dataFolderExists) {
            std::filesystem::create_directories(std::filesystem::path(data));
        }
        if (each.withDefault) {
            Testing::WriteFileBytes(addin + L"BlockEncodings.dat", "default");
        }
        if (each.withUserFile) {
            Testing::WriteFileBytes(data + L"BlockEncodings.dat", "mine");
        }
        EXPECT_EQ(CopyDefaultEncodings(addin, data, log.Log()), each.outcome);
        EXPECT_EQ(Testing::ReadFileBytes(data + L"BlockEncodings.dat"), each.userFileAfter);
        const std::vector<std::wstring> lines = log.Lines();
        ASSERT_EQ(lines.size(), each.logStart ? 1u : 0u);
        if (each.logStart) {
            EXPECT_TRUE(lines[0].starts_with(each.logStart)) << lines[0].size();
        }
    }
}

// The shipped default reads back into the same bytes the add-in would write, offers groups that
// nobody has blocked yet, and gives each code page to one group only.
TEST(DefaultEncodings, ShippedFile_IsExactlyTheFileFormat_NothingBlocked) {
    const std::string bytes = Testing::ReadFileBytes(kShipped);
    Lists::CEncodingSet set;
    set.Load(kShipped.wstring());
    EXPECT_EQ(Lists::EncodeListText(set.Format()), bytes);
    EXPECT_EQ(set.Value(), 0);
    EXPECT_GE(set.Groups().size(), 10u);
    std::set<int32_t> seen;
    for (const auto& [name, group] : set.Groups()) {
        EXPECT_FALSE(group.blocked) << name.size();
        EXPECT_FALSE(group.codePages.empty()) << name.size();
        for (const int32_t codePage : group.codePages) {
            EXPECT_GT(codePage, 0);
            EXPECT_TRUE(seen.insert(codePage).second) << codePage;
        }
    }
    // The system code pages of the East Asian languages stand in groups of their own.
    for (const auto& [name, codePage] :
         std::vector<std::pair<std::wstring, int32_t>>{{L"Chinese Simplified", 936},
                                                       {L"Chinese Traditional", 950},
                                                       {L"Japanese", 932},
                                                       {L"Korean", 949}}) {
        ASSERT_TRUE(set.Groups().contains(name)) << codePage;
        EXPECT_EQ(set.Groups().at(name).codePages.front(), codePage);
    }
}

}  // namespace
}  // namespace Orva::Plugin
