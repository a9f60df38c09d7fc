#include <gtest/gtest.h>

#include <string>

#include "ListTestFiles.h"
#include "common_src/platform/Path.h"
#include "lists/SenderLists.h"

namespace Orva::Lists {
namespace {

// Records what the agent would find on disk at the moment it is told.
class RecordingNotifier : public IListChangeNotifier {
public:
    explicit RecordingNotifier(std::wstring folder) : m_folder(std::move(folder)) {}
    void SenderListsChanged() override {
        ++senderLists;
        approvedOnDisk = Testing::ReadFileBytes(ApprovedListPath(m_folder));
        blockedOnDisk = Testing::ReadFileBytes(BlockedListPath(m_folder));
    }
    void EncodingsChanged() override {
        ++encodings;
        encodingsOnDisk = Testing::ReadFileBytes(EncodingsPath(m_folder));
    }

    int senderLists = 0;
    int encodings = 0;
    std::string approvedOnDisk;
    std::string blockedOnDisk;
    std::string encodingsOnDisk;

private:
    std::wstring m_folder;
};

TEST(SenderLists, Paths_NameTheTwoFilesInTheFolder) {
    EXPECT_EQ(ZelCommon::Path::ChildFile(L"data", L"WhiteList.dat"), ApprovedListPath(L"data"));
    EXPECT_EQ(ZelCommon::Path::ChildFile(L"data", L"BlackList.dat"), BlockedListPath(L"data"));
}

TEST(SenderLists, Apply_SavesBothFilesBeforeTellingTheAgentOnce) {
    Testing::TempFolder folder;
    CWListSet approved;
    CBListSet blocked;
    approved.Add(L"friend@b.com", {L"F", L"friend@b.com"});
    RecordingNotifier notifier(folder.Path());
    ApplySenderLists(approved, blocked, folder.Path(), notifier);
    EXPECT_EQ(1, notifier.senderLists);
    EXPECT_EQ(0, notifier.encodings);
    EXPECT_NE(std::string::npos, notifier.approvedOnDisk.find("<WL_REC><SN_ATTR>F<\\SN_ATTR>"));
    EXPECT_EQ(std::string(Testing::kMark) + Testing::kHeader + "\n", notifier.blockedOnDisk);
}

TEST(SenderLists, ApplyEncodings_SavesTheFileBeforeTellingTheAgent) {
    Testing::TempFolder folder;
    CEncodingSet encodings;
    encodings.AddGroup(L"Thai", EncodingGroup{true, {874}});
    RecordingNotifier notifier(folder.Path());
    ApplyEncodings(encodings, folder.Path(), notifier);
    EXPECT_EQ(0, notifier.senderLists);
    EXPECT_EQ(1, notifier.encodings);
    EXPECT_EQ(std::string(Testing::kMark) + Testing::kHeader + "\n0\nThai\t1\t874\n",
              notifier.encodingsOnDisk);
    EXPECT_EQ(ZelCommon::Path::ChildFile(folder.Path(), L"BlockEncodings.dat"),
              EncodingsPath(folder.Path()));
}

}  // namespace
}  // namespace Orva::Lists
