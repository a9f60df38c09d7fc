#include "plugin/DefaultEncodings.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "lists/EncodingSet.h"
#include "lists/ListFileText.h"
#include "settings/probes/ProbeLog.h"
#include "support/FileBytes.h"
#include "support/SourceRoot.h"
#include "support/TempFolder.h"

namespace Orva::Plugin {
namespace {

// The user's own file is never replaced; a missing default or data folder is logged.
TEST(DefaultEncodings, Copy_OnlyIntoADataFolderWithoutAFile) {
    const struct {
        const char *shipped, *users;  // null: no such file
        bool dataFolder;
        DefaultEncodingsCopy outcome;
        const char* usersAfter;
        const wchar_t* logged;
    } cases[] = {
        {"default", nullptr, true, DefaultEncodingsCopy::Copied, "default", L"@@@ Encodings:"},
        {"default", "mine", true, DefaultEncodingsCopy::UserHasFile, "mine", nullptr},
        {nullptr, nullptr, true, DefaultEncodingsCopy::NoDefault, "<missing>", L"### Encodings:"},
        {"default", nullptr, false, DefaultEncodingsCopy::NotWritten, "<missing>", L"xxx Encod"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(static_cast<int>(each.outcome));
        Testing::TempFolder temp;
        Testing::ProbeLog log;
        const std::filesystem::path addin = temp.Root() / "addin", data = temp.Root() / "data";
        std::filesystem::create_directories(addin);
        if (each.dataFolder) {
            std::filesystem::create_directories(data);
        }
        if (each.shipped) {
            Testing::WriteFileBytes(addin / "BlockEncodings.dat", each.shipped);
        }
        if (each.users) {
            Testing::WriteFileBytes(data / "BlockEncodings.dat", each.users);
        }
        EXPECT_EQ(CopyDefaultEncodings(temp.Folder(L"addin"), temp.Folder(L"data"), log.Log()),
                  each.outcome);
        EXPECT_EQ(Testing::ReadFileBytes(data / "BlockEncodings.dat"), each.usersAfter);
        ASSERT_EQ(log.Lines().size(), each.logged ? 1u : 0u);
        EXPECT_TRUE(!each.logged || log.Lines()[0].starts_with(each.logged));
    }
}

// The shipped default is byte for byte what the add-in writes for its own content, blocks
// nothing, and gives each code page to one group only.
TEST(DefaultEncodings, ShippedFile_IsExactlyTheFileFormat_NothingBlocked) {
    const auto shipped = Testing::SourceRoot() / "res" / "sample-install" / "BlockEncodings.dat";
    Lists::CEncodingSet set;
    set.Load(shipped.wstring());
    EXPECT_EQ(Lists::EncodeListText(set.Format()), Testing::ReadFileBytes(shipped));
    EXPECT_EQ(set.Value(), 0);
    EXPECT_GE(set.Groups().size(), 10u);
    std::set<int32_t> seen;
    for (const auto& [name, group] : set.Groups()) {
        EXPECT_FALSE(group.blocked || group.codePages.empty()) << name.size();
        for (const int32_t codePage : group.codePages) {
            EXPECT_TRUE(codePage > 0 && seen.insert(codePage).second) << codePage;
        }
    }
    EXPECT_EQ(set.Groups().at(L"Japanese").codePages.front(), 932);
}

}  // namespace
}  // namespace Orva::Plugin
