#include "ui/SenderPageModel.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "SenderPageRig.h"
#include "support/FileBytes.h"
#include "ui/ApproveMailList.h"

namespace Orva::Ui {
namespace {

using enum BoxAnswer;
using Settings::SettingId;
using Strings = std::vector<std::wstring>;

Strings Shown(const CSenderRows& rows) {
    Strings shown;
    for (size_t row = 0; row < rows.Count(); ++row) {
        shown.push_back(rows.At(row).address);
    }
    return shown;
}
Strings Shown(const CSenderPageModel& page) {
    return Shown(page.Rows());
}

TEST(SenderPageModel, AddThenOk_ListsFilesBoxesAndAgentFollowTheAnswers) {
    const std::tuple<const wchar_t*, std::deque<BoxAnswer>, Strings, Strings, Strings> cases[] = {
        {L" cy@x.com ", {}, {L"ann@x.com", L"cy@x.com"}, {L"bob@y.org"}, {}},
        {L"bob@y.org", {No}, {L"ann@x.com"}, {L"bob@y.org"}, {L"Confirm: move to approved?"}},
        {L"BOB@y.org", {Yes}, {L"ann@x.com", L"BOB@y.org"}, {}, {L"Confirm: move to approved?"}},
        {L"ANN@x.com", {}, {L"ann@x.com"}, {L"bob@y.org"}, {L"Warning: already listed"}},
    };
    for (const auto& [typed, answers, approved, blocked, boxes] : cases) {
        Testing::SenderPageRig rig;
        rig.WriteApproved({L"ann@x.com"});
        rig.WriteBlocked({L"bob@y.org"});
        rig.Open();
        rig.user.entries = {SenderFields{L"", typed}};
        rig.user.answers = answers;
        CSenderPageModel& page = rig.sheet.ApprovedSenders();

        const bool added = page.Add(0);
        rig.sheet.ApplyAll();

        EXPECT_EQ(added, approved.size() == 2) << typed;
        EXPECT_EQ(rig.ApprovedFile(), approved) << typed;
        EXPECT_EQ(rig.BlockedFile(), blocked) << typed;
        EXPECT_EQ(rig.user.shown, boxes) << typed;
        EXPECT_EQ(rig.AgentReceived().size(), added ? 1u : 0u) << typed;
        EXPECT_EQ(page.Rows().SelectedAddresses(), added ? Strings{approved[1]} : Strings{});
    }
}

TEST(SenderPageModel, MovingIntoAFullList_WarnsWith8000AndChangesNeitherList) {
    Testing::SenderPageRig rig;
    rig.Open();
    for (int i = 0; i < 8000; ++i) {
        const std::wstring address = L"a" + std::to_wstring(i) + L"@x.com";
        rig.sheet.Approved().Add(address.c_str(), {L"", address});
    }
    rig.sheet.Blocked().Add(L"new@x.com", {L"", L"new@x.com"});
    rig.user.entries = {SenderFields{L"", L"new@x.com"}};
    rig.user.answers = {Yes};

    EXPECT_FALSE(rig.sheet.ApprovedSenders().Add(0));
    EXPECT_EQ(rig.user.shown, (Strings{L"Confirm: move to approved?", L"Warning: at most 8000"}));
    EXPECT_TRUE(rig.sheet.Blocked().Find(L"new@x.com"));
    EXPECT_EQ(rig.sheet.Approved().Count(), 8000u);
}

// The dialog comes back with what the user typed until the address is no other entry's.
TEST(SenderPageModel, EditToAnotherEntrysAddress_DialogAgainThenModified) {
    Testing::SenderPageRig rig;
    rig.WriteBlocked({L"ann@x.com", L"bob@x.com"});
    rig.Open();
    CSenderPageModel& page = rig.sheet.BlockedSenders();
    page.Rows().Select({1});
    rig.user.entries = {SenderFields{L"Bo", L"ann@x.com"}, SenderFields{L"Bo", L"rob@x.com"}};

    EXPECT_TRUE(page.Edit(0));
    EXPECT_EQ(rig.user.dialogShowed,
              (std::vector<SenderFields>{{L"", L"bob@x.com"}, {L"Bo", L"ann@x.com"}}));
    EXPECT_EQ(rig.user.shown, Strings{L"Warning: already listed"});
    EXPECT_EQ(Shown(page), (Strings{L"ann@x.com", L"rob@x.com"}));
    EXPECT_EQ(page.Rows().SelectedAddresses(), Strings{L"rob@x.com"});
}

TEST(SenderPageModel, Remove_NothingSelectedAsksNothing_CancelKeeps_OkRemovesEverySelected) {
    const std::tuple<std::vector<size_t>, BoxAnswer, Strings, size_t> cases[] = {
        {{}, Ok, {L"a@x.com", L"b@x.com", L"c@x.com"}, 0},
        {{0, 2}, Cancel, {L"a@x.com", L"b@x.com", L"c@x.com"}, 1},
        {{0, 2}, Ok, {L"b@x.com"}, 1}};
    for (const auto& [selection, answer, rows, asked] : cases) {
        Testing::SenderPageRig rig;
        rig.WriteApproved({L"a@x.com", L"b@x.com", L"c@x.com"});
        rig.Open();
        CSenderPageModel& page = rig.sheet.ApprovedSenders();
        page.Rows().Select(selection);
        rig.user.answers = {answer};

        EXPECT_EQ(page.Remove(0), rows.size() == 1);
        rig.sheet.ApplyAll();
        EXPECT_EQ(rig.user.shown.size(), asked);
        EXPECT_EQ(Shown(page), rows);
        EXPECT_EQ(rig.ApprovedFile(), rows);
    }
}

// The import works on the files: it sees the user's changes only when they were saved first,
// and the pages show what it left in them.
TEST(SenderPageModel, ImportWithUnappliedChanges_NoDoesNothing_YesSavesImportsAndReloads) {
    for (const BoxAnswer answer : {No, Yes}) {
        Testing::SenderPageRig rig;
        rig.Open();
        rig.user.entries = {SenderFields{L"", L"mine@x.com"}};
        ASSERT_TRUE(rig.sheet.BlockedSenders().Add(0));
        rig.user.answers = {answer};
        std::optional<Strings> blockedAtImport;
        rig.user.import = [&] {
            blockedAtImport = rig.BlockedFile();
            rig.WriteApproved({L"kim@x.com"});
        };

        EXPECT_EQ(rig.sheet.ApprovedSenders().Import(0), answer == Yes);
        EXPECT_EQ(rig.user.shown, Strings{L"Apply: save first?"});
        const Strings saved = answer == Yes ? Strings{L"mine@x.com"} : Strings{};
        EXPECT_EQ(blockedAtImport, answer == Yes ? std::optional(saved) : std::nullopt);
        EXPECT_EQ(rig.BlockedFile(), saved);
        EXPECT_EQ(Shown(rig.sheet.ApprovedSenders()),
                  answer == Yes ? Strings{L"kim@x.com"} : Strings{});
        EXPECT_EQ(rig.AgentReceived().size(), answer == Yes ? 2u : 0u);
    }
}

TEST(SenderPageModel, ImportAfterAFailedSave_DoesNotRunAndKeepsTheChanges) {
    Testing::SenderPageRig rig;
    rig.Open();
    rig.user.entries = {SenderFields{L"", L"mine@x.com"}};
    ASSERT_TRUE(rig.sheet.BlockedSenders().Add(0));
    std::filesystem::create_directory(rig.paths.blocked);
    rig.user.answers = {Yes};
    bool imported = false;
    rig.user.import = [&] { imported = true; };

    EXPECT_FALSE(rig.sheet.ApprovedSenders().Import(0));
    EXPECT_FALSE(imported);
    rig.sheet.BlockedSenders().Refresh();
    EXPECT_EQ(Shown(rig.sheet.BlockedSenders()), Strings{L"mine@x.com"});
    EXPECT_TRUE(rig.sheet.BlockedSenders().Modified());
}

TEST(ApproveMailList, Separators_BlanksAndEmptyItems_AnyBadItemRefusesAll) {
    const std::pair<const wchar_t*, std::optional<Strings>> cases[] = {
        {L"", Strings{}},
        {L" ; ,", Strings{}},
        {L" a@x.com ;b@y.org, *@z.net;", Strings{L"a@x.com", L"b@y.org", L"*@z.net"}},
        {L"a@x.com b@y.org", std::nullopt},
        {L"a@x.com;nobody", std::nullopt},
    };
    for (const auto& [value, parsed] : cases) {
        EXPECT_EQ(ParseApproveMailList(value), parsed) << std::wstring(value).size();
    }
}

TEST(SenderPageModel, ApproveMailListOnOpening_AddedUnlessMalformedOrBlocked) {
    const std::tuple<const wchar_t*, Strings, Strings> cases[] = {
        {L"new@x.com; bob@y.org", {L"new@x.com"}, {}},
        {L"new@x.com;oops", {}, {L"Format Error!: " + std::wstring(kMailListErrorText)}},
    };
    for (const auto& [value, approved, boxes] : cases) {
        Testing::SenderPageRig rig;
        rig.WriteBlocked({L"bob@y.org"});
        rig.files.SetInstall(SettingId::InstallApproveMailList, value);
        rig.Open();
        rig.sheet.ApplyAll();
        EXPECT_EQ(rig.ApprovedFile(), approved);
        EXPECT_EQ(rig.BlockedFile(), Strings{L"bob@y.org"});
        EXPECT_EQ(rig.user.shown, boxes);
    }
}

TEST(SenderPageModel, RefusedListFile_ReadOnlyWithItsNote_NeverWrittenOver) {
    Testing::SenderPageRig rig;
    const std::string foreign = "; Written by another tool\n<WL_REC>x</WL_REC>\n";
    Testing::WriteFileBytes(rig.paths.approved, foreign);
    rig.files.SetInstall(SettingId::InstallApproveMailList, L"new@x.com");
    rig.Open();
    CSenderPageModel& page = rig.sheet.ApprovedSenders();
    rig.user.entries = {SenderFields{L"", L"a@x.com"}, SenderFields{L"", L"b@x.com"}};

    EXPECT_TRUE(page.ReadOnly());
    EXPECT_FALSE(page.CanImport());
    EXPECT_EQ(page.Note(), L"read-only");
    EXPECT_FALSE(page.Add(0));
    EXPECT_TRUE(rig.sheet.BlockedSenders().Add(0));
    rig.sheet.ApplyAll();
    EXPECT_EQ(Testing::ReadFileBytes(rig.paths.approved), foreign);
    EXPECT_EQ(rig.BlockedFile(), Strings{L"a@x.com"});
}

// The agent reads the two files as one state, so an OK writes both even when one list changed.
TEST(SenderPageModel, OkAfterAnAddToOneList_WritesBothFiles) {
    Testing::SenderPageRig rig;
    rig.Open();
    rig.user.entries = {SenderFields{L"", L"a@x.com"}};
    ASSERT_TRUE(rig.sheet.ApprovedSenders().Add(0));
    rig.sheet.ApplyAll();
    EXPECT_EQ(rig.ApprovedFile(), Strings{L"a@x.com"});
    EXPECT_TRUE(std::filesystem::exists(rig.paths.blocked));
    EXPECT_EQ(rig.BlockedFile(), Strings{});
}

TEST(SenderPageModel, OpeningAndOk_BrandedNote_AutoApproveWrittenWithoutTellingTheAgent) {
    Testing::SenderPageRig rig;
    rig.files.SetInstall(SettingId::InstallBlockSenderNote, L"<$SPAM_NAME> blocks these");
    rig.Open();
    EXPECT_EQ(rig.sheet.BlockedSenders().Note(), L"SpamStop blocks these");
    EXPECT_TRUE(rig.sheet.ApprovedSenders().AutoApprove());
    rig.sheet.ApprovedSenders().SetAutoApprove(false);
    rig.sheet.ApplyAll();
    EXPECT_EQ(rig.files.UserRaw(SettingId::AutoApprove), L"0");
    EXPECT_TRUE(rig.AgentReceived().empty());
}

TEST(SenderRows, SortByEitherColumnAndRefresh_SelectionStaysWithItsAddress) {
    CSenderRows rows;
    rows.Reset({{L"zed", L"a@x.com"}, {L"Amy", L"b@x.com"}, {L"max", L"c@x.com"}});
    rows.Select({0});
    const std::pair<SortColumn, Strings> steps[] = {
        {SortColumn::Name, {L"b@x.com", L"c@x.com", L"a@x.com"}},
        {SortColumn::Name, {L"a@x.com", L"c@x.com", L"b@x.com"}},
        {SortColumn::Address, {L"a@x.com", L"b@x.com", L"c@x.com"}},
        {SortColumn::Address, {L"c@x.com", L"b@x.com", L"a@x.com"}},
    };
    for (const auto& [column, order] : steps) {
        rows.SortBy(column);
        EXPECT_EQ(Shown(rows), order);
        EXPECT_EQ(rows.SelectedAddresses(), Strings{L"a@x.com"});
    }
    rows.Reset({{L"", L"0@x.com"}, {L"zed", L"A@x.com"}});
    EXPECT_EQ(rows.SelectedRows(), std::vector<size_t>{0});
}

TEST(EditSenderCheck, FirstRefusalInTheDialogsOrder_WithItsField) {
    using enum Lists::SenderCheck;
    const std::wstring tooLong(257, L'a');
    const std::tuple<std::wstring, std::wstring, Lists::SenderCheck, SenderField> cases[] = {
        {tooLong, tooLong + L"@x.com", AddressTooLong, SenderField::Address},
        {tooLong, L"no address", NotAnEmailAddress, SenderField::Address},
        {tooLong, L"a@x.com", NameTooLong, SenderField::Name},
    };
    for (const auto& [name, address, check, field] : cases) {
        const EditSenderCheck result = CheckEditedSender(name, address);
        EXPECT_EQ(result.validation.check, check) << address.size();
        EXPECT_EQ(result.field, field) << address.size();
    }
    EXPECT_EQ(CheckEditedSender(L" Al ", L"**@x.com").validation.address, L"*@x.com");
}

}  // namespace
}  // namespace Orva::Ui
