#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "mailstore/SpamFolderRig.h"

namespace Orva::MailStore {
namespace {

using Fakes::StoreCall;
using Lines = std::vector<std::wstring>;

const std::wstring kMarked = L"X-HALVION-ANTISPAMADDIN-QUARANTINETIME: 1\r\n";
const std::wstring kZelMarked = L"x-zel-as-level: 2\r\nx-halvion-antispamaddin-quarantinetime: 2";
const std::wstring kZelOnly = L"X-ZEL-AS-Level: 3\r\n";
const std::wstring kPlain = L"Subject: lunch\r\n";
const std::wstring kDeleteIn = L"@@@ CToolBarWnd::ProcDeleteAllSpamMsg  IN";
const std::wstring kDeleteOut = L"@@@ CToolBarWnd::ProcDeleteAllSpamMsg  OUT";
const std::wstring kCleanIn = L"@@@ CToolBarWnd::PostCleanDeletedFolder  IN";
const std::wstring kCleanOut = L"@@@ CToolBarWnd::PostCleanDeletedFolder  OUT";

StoreId SpamFolderOf(SpamFolderRig& rig, const Lines& headers) {
    const StoreId folder = rig.store.AddFolder(kAccount, L"Spam Mail");
    for (const std::wstring& header : headers) {
        rig.store.AddMessage(folder, header);
    }
    return folder;
}

TEST(ProcDeleteAllSpamMsg, DeletesOnlyMarkedMessagesForGood) {
    SpamFolderRig rig;
    const StoreId folder = SpamFolderOf(rig, {kMarked, kPlain, kZelMarked, kZelOnly});

    rig.folder.ProcDeleteAllSpamMsg(folder, 0, true);

    EXPECT_EQ(rig.store.Headers(folder), (Lines{kPlain, kZelOnly}));
    for (const Fakes::Deletion& deletion : rig.store.Deletions()) {
        EXPECT_EQ(deletion.flags, 1);
    }
    const std::wstring deleted = L"@@@ [CToolBarWnd::ProcDeleteAllMsg] Spam mail deleted.";
    EXPECT_EQ(rig.Lines(), (Lines{kDeleteIn,
                                  L"@@@ [CToolBarWnd::ProcDeleteAllMsg] Start deleting all spam "
                                  L"mails inside folder...",
                                  deleted, deleted, kDeleteOut}));
}

TEST(ProcDeleteAllSpamMsg, NothingToWorkOn_LogsWhyAndDeletesNothing) {
    enum class Lack { OneMessage, Store, Folder };
    const std::pair<Lack, std::wstring> cases[] = {
        {Lack::OneMessage,
         L"@@@ [CToolBarWnd::ProcDeleteAllMsg] Error: This function cannot process deleting only "
         L"one mail!!"},
        {Lack::Store, L"@@@ Error: in oea spFolderMsg is NULL."},
        {Lack::Folder, L"@@@ Error: spFolder is NULL."},
    };
    for (const auto& [lack, line] : cases) {
        SpamFolderRig rig;
        const StoreId folder = SpamFolderOf(rig, {kMarked});
        if (lack == Lack::Store) {
            rig.store.NullOn(StoreCall::CreateStore);
        }

        rig.folder.ProcDeleteAllSpamMsg(lack == Lack::Folder ? folder + 100 : folder, 0,
                                        lack != Lack::OneMessage);

        EXPECT_EQ(rig.store.Headers(folder), Lines{kMarked});
        EXPECT_EQ(rig.Lines(), (Lines{kDeleteIn, line}));
    }
}

TEST(ProcDeleteAllSpamMsg, FailureWhileWalking_StopsAndLogsTheIncompleteAction) {
    SpamFolderRig rig;
    const StoreId folder = SpamFolderOf(rig, {kMarked, kMarked, kMarked});
    rig.store.FailOn(StoreCall::HeaderText, static_cast<int32_t>(0x80004005u), 2);

    rig.folder.ProcDeleteAllSpamMsg(folder, 0, true);

    EXPECT_EQ(rig.store.Headers(folder), (Lines{kMarked, kMarked}));
    const Lines lines = rig.Lines();
    EXPECT_EQ(Lines(lines.end() - 3, lines.end()),
              (Lines{L"@@@ Exception Catched in Function: CToolBarWnd::ProcDeleteAllSpamMsg",
                     L"!!! the action of delete item is not complete", kDeleteOut}));
}

TEST(PostCleanDeletedFolder, DeleteDeleted_AnythingButZeroPurgesMarkedMail) {
    const std::pair<const wchar_t*, bool> cases[] = {
        {nullptr, false}, {L"0", false}, {L"1", true}, {L"yes", true}};
    for (const auto& [value, purges] : cases) {
        SCOPED_TRACE(value == nullptr ? "missing" : "set");
        SpamFolderRig rig;
        if (value != nullptr) {
            rig.profile.Set(L"General", L"DeleteDeleted", value);
        }
        rig.store.AddMessage(rig.deletedItems, kMarked);
        rig.store.AddMessage(rig.deletedItems, kPlain);
        ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);
        const std::size_t before = rig.LineCount();

        rig.folder.PostCleanDeletedFolder();

        EXPECT_EQ(rig.store.Headers(rig.deletedItems),
                  (purges ? Lines{kPlain} : Lines{kMarked, kPlain}));
        EXPECT_EQ(rig.Lines(before),
                  (purges ? Lines{kCleanIn,
                                  L"@@@ [CToolBarWnd::PostCleanDeletedFolder] Total nCount=(2) in "
                                  L"folder(Deleted Items)",
                                  L"@@@ [COEShadow::PostCleanDeletedFolder] Spam mail deleted.",
                                  kCleanOut}
                          : Lines{kCleanIn, kCleanOut}));
    }
}

TEST(PostCleanDeletedFolder, EmptyDeletedItems_LogsNothingBetweenInAndOut) {
    SpamFolderRig rig;
    rig.profile.Set(L"General", L"DeleteDeleted", L"1");
    ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);
    const std::size_t before = rig.LineCount();

    rig.folder.PostCleanDeletedFolder();

    EXPECT_EQ(rig.Lines(before), (Lines{kCleanIn, kCleanOut}));
}

TEST(PostCleanDeletedFolder, StoreFailure_IsLoggedWithItsText) {
    SpamFolderRig rig;
    rig.profile.Set(L"General", L"DeleteDeleted", L"1");
    rig.store.AddMessage(rig.deletedItems, kMarked);
    ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);
    rig.store.FailOn(StoreCall::MessageCount, static_cast<int32_t>(0x80004005u));
    const std::size_t before = rig.LineCount();

    rig.folder.PostCleanDeletedFolder();

    EXPECT_EQ(
        rig.Lines(before),
        (Lines{kCleanIn,
               L"!!! CToolBarWnd::PostCleanDeletedFolder() excpetion:[scripted store failure]",
               kCleanOut}));
}

}  // namespace
}  // namespace Orva::MailStore
