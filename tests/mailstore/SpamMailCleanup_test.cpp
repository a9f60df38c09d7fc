#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mailstore/SpamFolderRig.h"

namespace Orva::MailStore {
namespace {

using Fakes::StoreCall;
using Lines = std::vector<std::wstring>;

constexpr int32_t kFail = static_cast<int32_t>(0x80004005u);
const std::wstring kMarked = L"X-HALVION-ANTISPAMADDIN-QUARANTINETIME: 1\r\n";
const std::wstring kMarkedLower = L"x-zel-as-level: 2\r\nx-halvion-antispamaddin-quarantinetime: 2";
const std::wstring kZelOnly = L"X-ZEL-AS-Level: 3\r\n";
const std::wstring kPlain = L"Subject: lunch\r\n";

const std::wstring kDeleteIn = L"@@@ CToolBarWnd::ProcDeleteAllSpamMsg  IN";
const std::wstring kDeleteOut = L"@@@ CToolBarWnd::ProcDeleteAllSpamMsg  OUT";
const std::wstring kCleanIn = L"@@@ CToolBarWnd::PostCleanDeletedFolder  IN";
const std::wstring kCleanOut = L"@@@ CToolBarWnd::PostCleanDeletedFolder  OUT";

StoreId FolderOfMessages(SpamFolderRig& rig, const Lines& headers) {
    const StoreId folder = rig.store.AddFolder(kAccount, L"Spam Mail");
    for (const std::wstring& header : headers) {
        rig.store.AddMessage(folder, header);
    }
    return folder;
}

TEST(ProcDeleteAllSpamMsg, DeletesOnlyMarkedMessagesForGood) {
    SpamFolderRig rig;
    const StoreId folder = FolderOfMessages(rig, {kMarked, kPlain, kMarkedLower, kZelOnly});

    rig.folder.ProcDeleteAllSpamMsg(folder, 0, true);

    EXPECT_EQ(rig.store.Headers(folder), (Lines{kPlain, kZelOnly}));
    ASSERT_EQ(rig.store.Deletions().size(), 2u);
    for (const Fakes::Deletion& deletion : rig.store.Deletions()) {
        EXPECT_EQ(deletion.flags, 1);
    }
    EXPECT_EQ(rig.Lines(),
              (Lines{kDeleteIn,
                     L"@@@ [CToolBarWnd::ProcDeleteAllMsg] Start deleting all spam mails inside "
                     L"folder...",
                     L"@@@ [CToolBarWnd::ProcDeleteAllMsg] Spam mail deleted.",
                     L"@@@ [CToolBarWnd::ProcDeleteAllMsg] Spam mail deleted.", kDeleteOut}));
}

TEST(ProcDeleteAllSpamMsg, NothingToWorkOn_LogsWhyAndDeletesNothing) {
    struct Case {
        const char* name;
        bool all;
        bool noStore;
        bool unknownFolder;
        Lines lines;
    };
    const Case cases[] = {
        {"one message",
         false,
         false,
         false,
         {kDeleteIn,
          L"@@@ [CToolBarWnd::ProcDeleteAllMsg] Error: This function cannot process deleting only "
          L"one mail!!"}},
        {"no store", true, true, false, {kDeleteIn, L"@@@ Error: in oea spFolderMsg is NULL."}},
        {"unknown folder", true, false, true, {kDeleteIn, L"@@@ Error: spFolder is NULL."}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        SpamFolderRig rig;
        const StoreId folder = FolderOfMessages(rig, {kMarked});
        if (c.noStore) {
            rig.store.NullOn(StoreCall::CreateStore);
        }

        rig.folder.ProcDeleteAllSpamMsg(c.unknownFolder ? folder + 100 : folder, 0, c.all);

        EXPECT_EQ(rig.store.Headers(folder), Lines{kMarked});
        EXPECT_EQ(rig.Lines(), c.lines);
    }
}

TEST(ProcDeleteAllSpamMsg, FailureWhileWalking_StopsAndLogsTheIncompleteAction) {
    SpamFolderRig rig;
    const StoreId folder = FolderOfMessages(rig, {kMarked, kMarked, kMarked});
    rig.store.FailOn(StoreCall::HeaderText, kFail, 2);

    rig.folder.ProcDeleteAllSpamMsg(folder, 0, true);

    EXPECT_EQ(rig.store.Headers(folder), (Lines{kMarked, kMarked}));
    const Lines lines = rig.Lines();
    EXPECT_EQ(Lines(lines.end() - 3, lines.end()),
              (Lines{L"@@@ Exception Catched in Function: CToolBarWnd::ProcDeleteAllSpamMsg",
                     L"!!! the action of delete item is not complete", kDeleteOut}));
}

struct SettingCase {
    const char* name;
    const wchar_t* value;  // null: not in the file
    bool purges;
};

TEST(PostCleanDeletedFolder, DeleteDeleted_AnythingButZeroPurgesMarkedMail) {
    const SettingCase cases[] = {
        {"missing", nullptr, false}, {"0", L"0", false},  {"1", L"1", true},
        {"yes", L"yes", true},       {"no", L"no", true},
    };
    for (const SettingCase& c : cases) {
        SCOPED_TRACE(c.name);
        SpamFolderRig rig;
        if (c.value != nullptr) {
            rig.profile.Set(L"General", L"DeleteDeleted", c.value);
        }
        rig.store.AddMessage(rig.deletedItems, kMarked);
        rig.store.AddMessage(rig.deletedItems, kPlain);
        ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);
        const std::size_t before = rig.LineCount();

        rig.folder.PostCleanDeletedFolder();

        const Lines expectedHeaders = c.purges ? Lines{kPlain} : Lines{kMarked, kPlain};
        EXPECT_EQ(rig.store.Headers(rig.deletedItems), expectedHeaders);
        const Lines expectedLines =
            c.purges
                ? Lines{kCleanIn,
                        L"@@@ [CToolBarWnd::PostCleanDeletedFolder] Total nCount=(2) in "
                        L"folder(Deleted Items)",
                        L"@@@ [COEShadow::PostCleanDeletedFolder] Spam mail deleted.", kCleanOut}
                : Lines{kCleanIn, kCleanOut};
        EXPECT_EQ(rig.Lines(before), expectedLines);
    }
}

TEST(PostCleanDeletedFolder, EmptyOrUnknownDeletedItems_LogsNothingBetweenInAndOut) {
    for (const bool folderKnown : {true, false}) {
        SCOPED_TRACE(folderKnown ? "empty" : "never looked up");
        SpamFolderRig rig;
        rig.profile.Set(L"General", L"DeleteDeleted", L"1");
        if (folderKnown) {
            ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);
        } else {
            rig.store.AddMessage(rig.deletedItems, kMarked);
        }
        const std::size_t before = rig.LineCount();

        rig.folder.PostCleanDeletedFolder();

        EXPECT_EQ(rig.Lines(before), (Lines{kCleanIn, kCleanOut}));
        EXPECT_TRUE(rig.store.Deletions().empty());
    }
}

TEST(PostCleanDeletedFolder, StoreFailure_IsLoggedWithItsText) {
    SpamFolderRig rig;
    rig.profile.Set(L"General", L"DeleteDeleted", L"1");
    rig.store.AddMessage(rig.deletedItems, kMarked);
    ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);
    rig.store.FailOn(StoreCall::MessageCount, kFail);
    const std::size_t before = rig.LineCount();

    rig.folder.PostCleanDeletedFolder();

    EXPECT_EQ(
        rig.Lines(before),
        (Lines{kCleanIn,
               L"!!! CToolBarWnd::PostCleanDeletedFolder() excpetion:[scripted store failure]",
               kCleanOut}));
    EXPECT_EQ(rig.store.Headers(rig.deletedItems), Lines{kMarked});
}

}  // namespace
}  // namespace Orva::MailStore
