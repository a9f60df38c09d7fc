#include <gtest/gtest.h>

#include <string>

#include "ListTestFiles.h"
#include "RecordingNotifier.h"
#include "common_src/platform/Path.h"
#include "lists/SenderLists.h"

namespace Orva::Lists {
namespace {

using Testing::RecordingNotifier;

TEST(SenderLists, Paths_NameTheTwoFilesInTheFolder) {
    EXPECT_EQ(ZelCommon::Path::ChildFile(L"data", L"WhiteList.dat"), ApprovedListPath(L"data"));
    EXPECT_EQ(ZelCommon::Path::ChildFile(L"data", L"BlackList.dat"), BlockedListPath(L"data"));
}

TEST(SenderLists, ApplyEncodings_TellsTheAgentOnlyOfASavedFile) {
    Testing::TempFolder folder;
    CEncodingSet encodings;
    encodings.AddGroup(L"Thai", EncodingGroup{true, {874}});
    RecordingNotifier notifier(folder.Path());
    EXPECT_TRUE(ApplyEncodings(encodings, folder.Path(), notifier));
    EXPECT_EQ(0, notifier.senderLists);
    EXPECT_EQ(1, notifier.encodings);
    EXPECT_EQ(std::string(Testing::kMark) + Testing::kHeader + "\n0\nThai\t1\t874\n",
              notifier.encodingsOnDisk);
    EXPECT_EQ(ZelCommon::Path::ChildFile(folder.Path(), L"BlockEncodings.dat"),
              EncodingsPath(folder.Path()));

    // A data folder that is gone: nothing written, and the agent is not sent to reread.
    RecordingNotifier unsaved(folder.Path());
    EXPECT_FALSE(ApplyEncodings(encodings, folder.Folder(L"gone"), unsaved));
    EXPECT_EQ(0, unsaved.encodings);
}

}  // namespace
}  // namespace Orva::Lists
