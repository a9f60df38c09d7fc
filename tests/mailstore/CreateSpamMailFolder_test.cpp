#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "mailstore/SpamFolderRig.h"
#include "mailstore/StoreError.h"

namespace Orva::MailStore {
namespace {

using Fakes::StoreCall;
using Lines = std::vector<std::wstring>;

constexpr int32_t kFail = static_cast<int32_t>(0x80004005u);

struct NameCase {
    const char* name;
    std::vector<std::wstring> existing;
    bool tableOpens;
    std::wstring localised;
    std::vector<std::wstring> foldersAfter;  // under the account's root, after Deleted Items
};

TEST(CreateSpamMailFolder, FolderName_FoundOnlyWhenExactlyEqual) {
    const NameCase cases[] = {
        {"found", {L"Inbox", L"Spam Mail"}, true, L"Spam Mail", {L"Inbox", L"Spam Mail"}},
        {"none yet", {L"Inbox"}, true, L"Spam Mail", {L"Inbox", L"Spam Mail"}},
        {"other letter case", {L"spam mail"}, true, L"Spam Mail", {L"spam mail", L"Spam Mail"}},
        {"trailing blank", {L"Spam Mail "}, true, L"Spam Mail", {L"Spam Mail ", L"Spam Mail"}},
        {"localised", {L"Spam Mail"}, true, L"Indésirables", {L"Spam Mail", L"Indésirables"}},
        {"no table", {L"Inbox"}, false, L"Indésirables", {L"Inbox", L"Spam Mail"}},
        {"table without the name", {}, true, L"", {L"Spam Mail"}},
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

        std::vector<std::wstring> expected{L"Deleted Items"};
        expected.insert(expected.end(), c.foldersAfter.begin(), c.foldersAfter.end());
        EXPECT_EQ(rig.store.SubFolderNames(kAccount), expected);
        const std::wstring wanted =
            c.tableOpens && !c.localised.empty() ? c.localised : L"Spam Mail";
        EXPECT_EQ(std::optional(rig.folder.SpamFolderId()),
                  rig.store.SubFolderId(kAccount, wanted));
        EXPECT_TRUE(rig.folder.IsFolderCreated());
        EXPECT_FALSE(rig.strings.IsOpen());
    }
}

TEST(CreateSpamMailFolder, Creation_LogsEachFolderSeenAndTheNewId) {
    SpamFolderRig rig;
    rig.strings.opens = false;
    const StoreId other = rig.store.AddFolder(kAccount, L"spam mail");

    ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);

    const Lines lines = rig.Lines();
    ASSERT_EQ(lines.size(), 10u);
    EXPECT_EQ(lines[0], L"@@@ CToolBarWnd::CreateSpamMailFolder  IN");
    EXPECT_EQ(lines[1], L"XXX Error: MUI string loader initialize failed! ");
    EXPECT_EQ(lines[2].rfind(L"!!! Error: MUI string loader initialize failed!, at: ToolBarWnd "
                             L"line: ",
                             0),
              0u)
        << lines[2];
    EXPECT_EQ(Lines(lines.begin() + 3, lines.end()),
              (Lines{L"@@@ CToolBarWnd::CreateSpamMailFolder(), Success get the default account "
                     L"id=[0x1F00000002]",
                     L"get the folder name in create spam folder = Deleted Items  ID = "
                     L"0xA00000001000",
                     L"get the folder name in create spam folder = spam mail  ID = 0xA00000001001",
                     L"@@@ Creating spam mail folder ... ",
                     L"@@@ Creating spam mail folder [Spam Mail]... Return=[a00000001002]",
                     L"@@@ spam mail folder was created.",
                     L"@@@ CToolBarWnd::CreateSpamMailFolder  OUT"}));
    EXPECT_EQ(rig.folder.SpamFolderId(), 0xA00000001002u);
    EXPECT_EQ(rig.folder.FolderIds(),
              (std::set<uint64_t>{rig.deletedItems, other, 0xA00000001002}));
}

TEST(CreateSpamMailFolder, Known_AnsweredAtOnceUnlessForced) {
    SpamFolderRig rig;
    rig.store.AddFolder(kAccount, L"Spam Mail");
    ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);
    // A folder that appears later is seen only by a search.
    const StoreId later = rig.store.AddFolder(kAccount, L"Later");
    rig.store.SetDefaultAccount(std::nullopt);

    const std::size_t before = rig.LineCount();
    EXPECT_NE(rig.folder.CreateSpamMailFolder(false), 0);
    EXPECT_EQ(rig.Lines(before),
              (Lines{L"@@@ CToolBarWnd::CreateSpamMailFolder  IN",
                     L"@@@ CToolBarWnd::CreateSpamMailFolder() Spam Mail folder created"}));

    rig.store.SetDefaultAccount(kAccount);
    rig.store.RefuseFolderCreation();
    rig.strings.folderName = L"Junk";
    EXPECT_EQ(rig.folder.CreateSpamMailFolder(true), 0);
    EXPECT_FALSE(rig.folder.FolderIds().contains(later));

    rig.strings.folderName = L"Later";
    EXPECT_NE(rig.folder.CreateSpamMailFolder(true), 0);
    EXPECT_EQ(rig.folder.SpamFolderId(), later);
    EXPECT_EQ(rig.watcher.told, 1);
}

TEST(CreateSpamMailFolder, NoDefaultAccount_FailsAndTheNextCallTriesAgain) {
    struct Case {
        const char* name;
        std::optional<StoreId> account;
        Lines lines;
    };
    const Case cases[] = {
        {"none",
         std::nullopt,
         {L"@@@ CToolBarWnd::CreateSpamMailFolder  IN",
          L"@@@ CToolBarWnd::CreateSpamMailFolder(), Fail to get the default account",
          L"@@@ CToolBarWnd::CreateSpamMailFolder(), Fail to get the default account, "
          L"m_nDefaultAccountID==0"}},
        {"id 0",
         StoreId{0},
         {L"@@@ CToolBarWnd::CreateSpamMailFolder  IN",
          L"@@@ CToolBarWnd::CreateSpamMailFolder(), Success get the default account id=[0x0]",
          L"@@@ CToolBarWnd::CreateSpamMailFolder(), Fail to get the default account, "
          L"m_nDefaultAccountID==0"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        SpamFolderRig rig;
        rig.store.SetDefaultAccount(c.account);

        EXPECT_EQ(rig.folder.CreateSpamMailFolder(false), 0);
        EXPECT_EQ(rig.Lines(), c.lines);
        EXPECT_TRUE(rig.store.CreatedFolders().empty());
        EXPECT_FALSE(rig.folder.IsFolderCreated());
        EXPECT_FALSE(rig.strings.IsOpen());

        rig.store.SetDefaultAccount(kAccount);
        EXPECT_NE(rig.folder.CreateSpamMailFolder(false), 0);
        EXPECT_EQ(rig.store.SubFolderNames(kAccount), (Lines{L"Deleted Items", L"Spam Mail"}));
    }
}

TEST(CreateSpamMailFolder, LaterWithoutDefaultAccount_KeepsTheAccountKnownBefore) {
    SpamFolderRig rig;
    ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);
    rig.store.SetDefaultAccount(std::nullopt);

    EXPECT_NE(rig.folder.CreateSpamMailFolder(true), 0);
    EXPECT_EQ(rig.folder.DefaultAccountId(), kAccount);
    EXPECT_EQ(rig.store.CreatedFolders().size(), 1u);
}

struct FailureCase {
    const char* name;
    StoreCall call;
    bool null;  // the call answers no object rather than failing
    std::wstring lastLine;
};

TEST(CreateSpamMailFolder, StoreFailure_ReturnsZeroAndKeepsWhatWasKnown) {
    const std::wstring scripted =
        L"!!! CToolBarWnd::CreateSpamMailFolder() excpetion:[scripted store failure]";
    const std::wstring pointer =
        L"!!! CToolBarWnd::CreateSpamMailFolder() excpetion:[Invalid pointer]";
    const FailureCase cases[] = {
        {"store", StoreCall::CreateStore, false, scripted},
        {"no store", StoreCall::CreateStore, true, pointer},
        {"default account", StoreCall::DefaultAccount, false, scripted},
        {"account id", StoreCall::AccountId, false, scripted},
        {"deleted items", StoreCall::DeletedItemsFolder, false, scripted},
        {"root folder", StoreCall::FolderById, false, scripted},
        {"no root folder", StoreCall::FolderById, true, pointer},
        {"first sub-folder", StoreCall::FirstSubFolder, false, scripted},
        {"next sibling", StoreCall::NextSibling, false, scripted},
        {"folder name", StoreCall::FolderName, false, scripted},
        {"folder id", StoreCall::FolderId, false, scripted},
        {"create", StoreCall::CreateSubFolder, false, scripted},
    };
    for (const FailureCase& c : cases) {
        SCOPED_TRACE(c.name);
        SpamFolderRig rig;
        const StoreId inbox = rig.store.AddFolder(kAccount, L"Inbox");
        const StoreId spam = rig.store.AddFolder(kAccount, L"Spam Mail");
        ASSERT_NE(rig.folder.CreateSpamMailFolder(false), 0);
        // The next search is for another name, so it walks every folder and creates one.
        rig.strings.folderName = L"Junk";
        rig.store.AddFolder(kAccount, L"Unseen");
        if (c.null) {
            rig.store.NullOn(c.call);
        } else {
            rig.store.FailOn(c.call, kFail);
        }

        EXPECT_EQ(rig.folder.CreateSpamMailFolder(true), 0);
        EXPECT_EQ(rig.Lines().back(), c.lastLine);
        EXPECT_FALSE(rig.folder.IsFolderCreated());
        EXPECT_FALSE(rig.strings.IsOpen());
        EXPECT_EQ(rig.folder.SpamFolderId(), spam);
        EXPECT_EQ(rig.folder.FolderIds(), (std::set<uint64_t>{rig.deletedItems, inbox, spam}));
        EXPECT_TRUE(rig.store.CreatedFolders().empty());
    }
}

TEST(CreateSpamMailFolder, RefusedCreation_IsAFailure) {
    SpamFolderRig rig;
    rig.store.RefuseFolderCreation();

    EXPECT_EQ(rig.folder.CreateSpamMailFolder(false), 0);
    const Lines lines = rig.Lines();
    ASSERT_GE(lines.size(), 2u);
    EXPECT_EQ(lines[lines.size() - 2],
              L"@@@ Creating spam mail folder [Spam Mail]... Return=[ffffffffffffffff]");
    EXPECT_EQ(rig.folder.SpamFolderId(), 0u);
    EXPECT_TRUE(rig.folder.FolderIds().empty());
}

TEST(CreateSpamMailFolder, RootGoneBeforeCreation_LogsTheSystemError) {
    SpamFolderRig rig;
    rig.process.SetLastError(1168);
    rig.store.NullOn(StoreCall::FolderById, 2);

    EXPECT_EQ(rig.folder.CreateSpamMailFolder(false), 0);
    const Lines lines = rig.Lines();
    EXPECT_EQ(Lines(lines.end() - 3, lines.end()),
              (Lines{L"@@@ Creating spam mail folder ... ",
                     L"@@@ Exception Catched in Function: CToolBarWnd::CreateSpamMailFolder",
                     L"create spam mail error : GetLastError: 1168."}));
    EXPECT_FALSE(rig.folder.IsFolderCreated());
    EXPECT_TRUE(rig.store.CreatedFolders().empty());
}

TEST(CreateSpamMailFolder, AccountManager_AnnouncedOnceWhenFirstObtained) {
    for (const bool null : {false, true}) {
        SCOPED_TRACE(null ? "no manager" : "manager failed");
        SpamFolderRig rig;
        if (null) {
            rig.store.NullOn(StoreCall::CreateAccountManager, 1);
        } else {
            rig.store.FailOn(StoreCall::CreateAccountManager, kFail, 1);
        }

        EXPECT_EQ(rig.folder.CreateSpamMailFolder(false), 0);
        EXPECT_EQ(rig.Lines().back(),
                  null ? L"!!! CToolBarWnd::CreateSpamMailFolder() excpetion:[Invalid pointer]"
                       : L"!!! CToolBarWnd::CreateSpamMailFolder() excpetion:[scripted store "
                         L"failure]");
        EXPECT_EQ(rig.watcher.told, 0);
        EXPECT_NE(rig.folder.CreateSpamMailFolder(false), 0);
        EXPECT_NE(rig.folder.CreateSpamMailFolder(true), 0);
        EXPECT_EQ(rig.watcher.told, 1);
    }
}

}  // namespace
}  // namespace Orva::MailStore
