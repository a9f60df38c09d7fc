#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "mailstore/SpamFolderRig.h"

namespace Orva::MailStore {
namespace {

using Fakes::StoreCall;
using Lines = std::vector<std::wstring>;

constexpr int32_t kFail = static_cast<int32_t>(0x80004005u);
const std::wstring kIn = L"@@@ CToolBarWnd::CreateSpamMailFolder  IN";

struct NameCase {
    const char* name;
    Lines existing;
    bool tableOpens;
    std::wstring localised;
    Lines after;  // the root's folders after Deleted Items
    std::wstring spamFolder;
};

TEST(CreateSpamMailFolder, FolderName_FoundOnlyWhenExactlyEqual) {
    const std::wstring kSpam = L"Spam Mail", kLocal = L"Indésirables";
    const NameCase cases[] = {
        {"found", {L"Inbox", kSpam}, true, kSpam, {L"Inbox", kSpam}, kSpam},
        {"other letter case", {L"spam mail"}, true, kSpam, {L"spam mail", kSpam}, kSpam},
        {"trailing blank", {L"Spam Mail "}, true, kSpam, {L"Spam Mail ", kSpam}, kSpam},
        {"localised", {kSpam}, true, kLocal, {kSpam, kLocal}, kLocal},
        {"no table", {}, false, kLocal, {kSpam}, kSpam},
        {"table without the name", {}, true, L"", {kSpam}, kSpam},
    };
    for (const NameCase& c : cases) {
        SCOPED_TRACE(c.name);
        SpamFolderRig rig;
        for (const std::wstring& name : c.existing) {
            rig.store.AddFolder(kAccount, name);
        }
        rig.strings.opens = c.tableOpens;
        rig.strings.folderName = c.localised;

        EXPECT_NE(rig.folder.CreateSpamMailFolder(false), 0);

        Lines expected{L"Deleted Items"};
        expected.insert(expected.end(), c.after.begin(), c.after.end());
        EXPECT_EQ(rig.store.SubFolderNames(kAccount), expected);
        EXPECT_EQ(std::optional(rig.folder.SpamFolderId()),
                  rig.store.SubFolderId(kAccount, c.spamFolder));
        EXPECT_FALSE(rig.strings.IsOpen());
    }
}

TEST(CreateSpamMailFolder, Creation_LogsEachFolderSeenAndTheNewId) {
    SpamFolderRig rig;
    rig.strings.opens = false;
    const StoreId other = rig.store.AddFolder(kAccount, L"spam mail");

    ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);

    // The loader's failure names the source line it was raised at; the rest is compared whole.
    const std::wstring kAt =
        L"!!! Error: MUI string loader initialize failed!, at: ToolBarWnd line: ";
    Lines lines = rig.Lines();
    for (std::wstring& line : lines) {
        line = line.starts_with(kAt) ? kAt : line;
    }
    EXPECT_EQ(lines,
              (Lines{kIn, L"XXX Error: MUI string loader initialize failed! ", kAt,
                     L"@@@ CToolBarWnd::CreateSpamMailFolder(), Success get the default account "
                     L"id=[0x1F00000002]",
                     L"get the folder name in create spam folder = Deleted Items  ID = "
                     L"0xA00000001000",
                     L"get the folder name in create spam folder = spam mail  ID = 0xA00000001001",
                     L"@@@ Creating spam mail folder ... ",
                     L"@@@ Creating spam mail folder [Spam Mail]... Return=[a00000001002]",
                     L"@@@ spam mail folder was created.",
                     L"@@@ CToolBarWnd::CreateSpamMailFolder  OUT"}));
    EXPECT_EQ(rig.folder.FolderIds(),
              (std::set<uint64_t>{rig.deletedItems, other, 0xA00000001002}));
}

TEST(CreateSpamMailFolder, Known_AnsweredAtOnceUnlessForced) {
    SpamFolderRig rig;
    ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);
    const StoreId later = rig.store.AddFolder(kAccount, L"Later");
    rig.strings.folderName = L"Later";

    const std::size_t before = rig.LineCount();
    EXPECT_NE(rig.folder.CreateSpamMailFolder(false), 0);
    EXPECT_EQ(rig.Lines(before),
              (Lines{kIn, L"@@@ CToolBarWnd::CreateSpamMailFolder() Spam Mail folder created"}));
    EXPECT_NE(rig.folder.CreateSpamMailFolder(true), 0);
    EXPECT_EQ(rig.folder.SpamFolderId(), later);
}

TEST(CreateSpamMailFolder, NoDefaultAccount_FailsAndTheNextCallTriesAgain) {
    for (const std::optional<StoreId> account :
         {std::optional<StoreId>(), std::optional<StoreId>(0)}) {
        SCOPED_TRACE(account ? "id 0" : "none");
        SpamFolderRig rig;
        rig.store.SetDefaultAccount(account);

        EXPECT_EQ(rig.folder.CreateSpamMailFolder(false), 0);
        EXPECT_EQ(rig.Lines().back(),
                  L"@@@ CToolBarWnd::CreateSpamMailFolder(), Fail to get the default account, "
                  L"m_nDefaultAccountID==0");
        EXPECT_TRUE(rig.store.CreatedFolders().empty());

        rig.store.SetDefaultAccount(kAccount);
        EXPECT_NE(rig.folder.CreateSpamMailFolder(false), 0);
        EXPECT_EQ(rig.store.SubFolderNames(kAccount), (Lines{L"Deleted Items", L"Spam Mail"}));
    }
}

struct FailureCase {
    StoreCall call;
    bool null;  // the call answers no object rather than failing
    std::wstring error;
};

TEST(CreateSpamMailFolder, StoreFailure_ReturnsZeroAndKeepsWhatWasKnown) {
    const FailureCase cases[] = {
        {StoreCall::CreateStore, true, L"Invalid pointer"},
        {StoreCall::DefaultAccount, false, L"scripted store failure"},
        {StoreCall::FolderById, true, L"Invalid pointer"},
        {StoreCall::NextSibling, false, L"scripted store failure"},
        {StoreCall::FolderName, false, L"scripted store failure"},
        {StoreCall::CreateSubFolder, false, L"scripted store failure"},
        {StoreCall::CreateSubFolder, true, L"The spam mail folder could not be created"},
    };
    for (const FailureCase& c : cases) {
        SCOPED_TRACE(static_cast<int>(c.call));
        SpamFolderRig rig;
        const StoreId spam = rig.store.AddFolder(kAccount, L"Spam Mail");
        ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);
        // The next search walks every folder, one of them new, and creates one.
        rig.strings.folderName = L"Junk";
        rig.store.AddFolder(kAccount, L"Unseen");
        c.null ? rig.store.NullOn(c.call) : rig.store.FailOn(c.call, kFail);

        EXPECT_EQ(rig.folder.CreateSpamMailFolder(true), 0);
        EXPECT_EQ(rig.Lines().back(),
                  L"!!! CToolBarWnd::CreateSpamMailFolder() excpetion:[" + c.error + L"]");
        EXPECT_FALSE(rig.folder.IsFolderCreated());
        EXPECT_FALSE(rig.strings.IsOpen());
        EXPECT_EQ(rig.folder.SpamFolderId(), spam);
        EXPECT_EQ(rig.folder.FolderIds(), (std::set<uint64_t>{rig.deletedItems, spam}));
        EXPECT_TRUE(rig.store.CreatedFolders().empty());
    }
}

TEST(CreateSpamMailFolder, RootGoneBeforeCreation_LogsTheSystemError) {
    SpamFolderRig rig;
    rig.process.SetLastError(1168);
    rig.store.NullOn(StoreCall::FolderById, 2);

    EXPECT_EQ(rig.folder.CreateSpamMailFolder(false), 0);
    const Lines lines = rig.Lines();
    EXPECT_EQ(Lines(lines.end() - 2, lines.end()),
              (Lines{L"@@@ Exception Catched in Function: CToolBarWnd::CreateSpamMailFolder",
                     L"create spam mail error : GetLastError: 1168."}));
    EXPECT_FALSE(rig.folder.IsFolderCreated());
}

// Announced once while held; let go with the store before COM shuts down, and announced again
// when a later call needs it.
TEST(CreateSpamMailFolder, AccountManager_AnnouncedOnceWhileHeld) {
    SpamFolderRig rig;
    rig.store.NullOn(StoreCall::CreateAccountManager, 1);

    EXPECT_EQ(rig.folder.CreateSpamMailFolder(false), 0);
    EXPECT_EQ(rig.watcher.told, 0);
    EXPECT_NE(rig.folder.CreateSpamMailFolder(false), 0);
    EXPECT_NE(rig.folder.CreateSpamMailFolder(true), 0);
    EXPECT_EQ(rig.watcher.told, 1);

    rig.folder.ReleaseStore();
    EXPECT_FALSE(rig.watcher.listening);
    EXPECT_NE(rig.folder.CreateSpamMailFolder(true), 0);
    EXPECT_EQ(rig.watcher.told, 2);
    EXPECT_TRUE(rig.watcher.listening);
}

}  // namespace
}  // namespace Orva::MailStore
