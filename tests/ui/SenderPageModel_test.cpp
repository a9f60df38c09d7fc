#include "ui/SenderPageModel.h"

#include <gtest/gtest.h>

#include "SenderPageRig.h"
#include "support/FileBytes.h"
#include "ui/ApproveMailList.h"

namespace Orva::Ui {
namespace {

using enum BoxAnswer;
using Lists::CBListSet;
using Lists::CWListSet;
using Settings::SettingId;
using Strings = std::vector<std::wstring>;

Strings Shown(const CSenderPageModel& page) {
    Strings rows;
    for (size_t row = 0; row < page.Rows().Count(); ++row) {
        rows.push_back(page.Rows().At(row).address);
    }
    return rows;
}

struct AddCase {
    const char* scenario;
    SenderFields typed;
    std::deque<BoxAnswer> answers;
    Strings approvedFile;
    Strings blockedFile;
    Strings boxes;
};

TEST(SenderPageModel, AddThenOk_ListsFilesBoxesAndAgentFollowTheAnswers) {
    const AddCase cases[] = {
        {"new",
         {L"Cy", L" cy@example.com "},
         {},
         {L"ann@example.com", L"cy@example.com"},
         {L"bob@example.org"},
         {}},
        {"blocked, No",
         {L"", L"bob@example.org"},
         {No},
         {L"ann@example.com"},
         {L"bob@example.org"},
         {L"Confirm: move to approved?"}},
        {"blocked, Yes",
         {L"", L"BOB@example.org"},
         {Yes},
         {L"ann@example.com", L"BOB@example.org"},
         {},
         {L"Confirm: move to approved?"}},
        {"known",
         {L"", L"ANN@example.com"},
         {},
         {L"ann@example.com"},
         {L"bob@example.org"},
         {L"Warning: already listed"}},
    };
    for (const AddCase& test : cases) {
        Testing::SenderPageRig rig;
        rig.WriteList<CWListSet>(rig.paths.approved, {{L"Ann", L"ann@example.com"}});
        rig.WriteList<CBListSet>(rig.paths.blocked, {{L"", L"bob@example.org"}});
        rig.Open();
        rig.dialog.entries = {test.typed};
        rig.boxes.answers = test.answers;
        CSenderPageModel& page = rig.sheet.ApprovedSenders();

        const bool changed = page.Add(0);
        rig.sheet.ApplyAll();

        const bool expectChanged = test.approvedFile.size() == 2;
        EXPECT_EQ(changed, expectChanged) << test.scenario;
        EXPECT_EQ(rig.ApprovedFile(), test.approvedFile) << test.scenario;
        EXPECT_EQ(rig.BlockedFile(), test.blockedFile) << test.scenario;
        EXPECT_EQ(rig.boxes.shown, test.boxes) << test.scenario;
        EXPECT_EQ(rig.AgentReceived().size(), expectChanged ? 1u : 0u) << test.scenario;
        if (expectChanged) {
            EXPECT_EQ(page.Rows().SelectedAddresses(), Strings{test.approvedFile[1]});
        }
    }
}

TEST(SenderPageModel, MovingIntoAFullList_WarnsWith8000AndChangesNeitherList) {
    Testing::SenderPageRig rig;
    rig.Open();
    for (int i = 0; i < 8000; ++i) {
        const std::wstring address = L"a" + std::to_wstring(i) + L"@example.com";
        rig.sheet.Approved().Add(address.c_str(), {L"", address});
    }
    rig.sheet.Blocked().Add(L"new@example.com", {L"", L"new@example.com"});
    rig.dialog.entries = {{L"", L"new@example.com"}};
    rig.boxes.answers = {Yes};

    EXPECT_FALSE(rig.sheet.ApprovedSenders().Add(0));

    EXPECT_EQ(rig.boxes.shown, (Strings{L"Confirm: move to approved?", L"Warning: at most 8000"}));
    EXPECT_TRUE(rig.sheet.Blocked().Find(L"new@example.com"));
    EXPECT_EQ(rig.sheet.Approved().Count(), 8000u);
}

// The dialog comes back with what the user typed until the address is no other entry's.
TEST(SenderPageModel, EditToAnotherEntrysAddress_DialogAgainThenModified) {
    Testing::SenderPageRig rig;
    rig.WriteList<CBListSet>(rig.paths.blocked,
                             {{L"Ann", L"ann@example.com"}, {L"Bob", L"bob@example.com"}});
    rig.Open();
    CSenderPageModel& page = rig.sheet.BlockedSenders();
    EXPECT_FALSE(page.Edit(0));
    EXPECT_TRUE(rig.dialog.shownFields.empty());

    page.Rows().Select({1});
    rig.dialog.entries = {{L"Bobby", L"ann@example.com"}, {L"Bobby", L"rob@example.com"}};
    EXPECT_TRUE(page.Edit(0));

    EXPECT_EQ(rig.dialog.shownFields, (std::vector<SenderFields>{{L"Bob", L"bob@example.com"},
                                                                 {L"Bobby", L"ann@example.com"}}));
    EXPECT_EQ(rig.boxes.shown, Strings{L"Warning: already listed"});
    EXPECT_EQ(Shown(page), (Strings{L"ann@example.com", L"rob@example.com"}));
    EXPECT_EQ(page.Rows().SelectedAddresses(), Strings{L"rob@example.com"});
}

TEST(SenderPageModel, Remove_NothingSelectedAsksNothing_CancelKeeps_OkRemovesEverySelected) {
    for (const auto& [selection, answers, rows, asked] : std::initializer_list<
             std::tuple<std::vector<size_t>, std::deque<BoxAnswer>, Strings, size_t>>{
             {{}, {Ok}, {L"a@x.com", L"b@x.com", L"c@x.com"}, 0},
             {{0, 2}, {Cancel}, {L"a@x.com", L"b@x.com", L"c@x.com"}, 1},
             {{0, 2}, {Ok}, {L"b@x.com"}, 1}}) {
        Testing::SenderPageRig rig;
        rig.WriteList<CWListSet>(rig.paths.approved,
                                 {{L"", L"a@x.com"}, {L"", L"b@x.com"}, {L"", L"c@x.com"}});
        rig.Open();
        CSenderPageModel& page = rig.sheet.ApprovedSenders();
        page.Rows().Select(selection);
        rig.boxes.answers = answers;

        EXPECT_EQ(page.Remove(0), rows.size() == 1);
        rig.sheet.ApplyAll();

        EXPECT_EQ(rig.boxes.shown.size(), asked);
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
        rig.dialog.entries = {{L"", L"mine@example.com"}};
        ASSERT_TRUE(rig.sheet.BlockedSenders().Add(0));
        rig.boxes.answers = {answer};
        Strings blockedAtImport;
        rig.contacts.run = [&] {
            blockedAtImport = rig.BlockedFile();
            rig.WriteList<CWListSet>(rig.paths.approved, {{L"Kim", L"kim@example.com"}});
        };

        EXPECT_EQ(rig.sheet.ApprovedSenders().Import(0), answer == Yes);

        EXPECT_EQ(rig.boxes.shown, Strings{L"Apply: save first?"});
        EXPECT_EQ(rig.contacts.runs, answer == Yes ? 1 : 0);
        EXPECT_EQ(rig.BlockedFile(), answer == Yes ? Strings{L"mine@example.com"} : Strings{});
        EXPECT_EQ(blockedAtImport, rig.BlockedFile());
        EXPECT_EQ(Shown(rig.sheet.ApprovedSenders()),
                  answer == Yes ? Strings{L"kim@example.com"} : Strings{});
        EXPECT_EQ(rig.AgentReceived().size(), answer == Yes ? 2u : 0u);
        EXPECT_EQ(rig.sheet.ApprovedSenders().Modified(), answer == No);
    }
}

TEST(ApproveMailList, Separators_BlanksAndEmptyItems_AnyBadItemRefusesAll) {
    using Parsed = std::optional<Strings>;
    const std::pair<const wchar_t*, Parsed> cases[] = {
        {L"", Strings{}},
        {L" ; ,", Strings{}},
        {L"a@x.com", Strings{L"a@x.com"}},
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
        {L"new@x.com; bob@example.org", {L"new@x.com"}, {}},
        {L"new@x.com;oops", {}, {L"Format Error!: " + std::wstring(kMailListErrorText)}},
    };
    for (const auto& [value, approved, boxes] : cases) {
        Testing::SenderPageRig rig;
        rig.WriteList<CBListSet>(rig.paths.blocked, {{L"", L"bob@example.org"}});
        rig.files.SetInstall(SettingId::InstallApproveMailList, value);
        rig.Open();
        rig.sheet.ApplyAll();
        EXPECT_EQ(rig.ApprovedFile(), approved);
        EXPECT_EQ(rig.BlockedFile(), Strings{L"bob@example.org"});
        EXPECT_EQ(rig.boxes.shown, boxes);
    }
}

TEST(SenderPageModel, RefusedListFile_ReadOnlyWithItsNote_NeverWrittenOver) {
    Testing::SenderPageRig rig;
    const std::string foreign = "; Written by another tool\n<WL_REC>x</WL_REC>\n";
    Testing::WriteFileBytes(rig.paths.approved, foreign);
    rig.files.SetInstall(SettingId::InstallApproveMailList, L"new@x.com");
    rig.Open();
    CSenderPageModel& page = rig.sheet.ApprovedSenders();
    rig.dialog.entries = {{L"", L"a@x.com"}};
    page.SetAutoApprove(!page.AutoApprove());

    EXPECT_TRUE(page.ReadOnly());
    EXPECT_FALSE(page.CanImport());
    EXPECT_EQ(page.Note(), L"read-only");
    EXPECT_FALSE(page.Add(0));
    rig.dialog.entries = {{L"", L"b@x.com"}};
    EXPECT_TRUE(rig.sheet.BlockedSenders().Add(0));
    rig.sheet.ApplyAll();

    EXPECT_EQ(Testing::ReadFileBytes(rig.paths.approved), foreign);
    EXPECT_EQ(rig.BlockedFile(), Strings{L"b@x.com"});
    EXPECT_FALSE(rig.sheet.BlockedSenders().ReadOnly());
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
        Strings shown;
        for (size_t row = 0; row < rows.Count(); ++row) {
            shown.push_back(rows.At(row).address);
        }
        EXPECT_EQ(shown, order);
        EXPECT_EQ(rows.SelectedAddresses(), Strings{L"a@x.com"});
    }
    rows.Reset({{L"", L"0@x.com"}, {L"zed", L"A@x.com"}});
    EXPECT_EQ(rows.SelectedRows(), std::vector<size_t>{0});
}

TEST(EditSenderCheck, FirstRefusalInTheDialogsOrder_WithItsField) {
    const std::wstring longText(257, L'a');
    const std::tuple<std::wstring, std::wstring, Lists::SenderCheck, SenderField> cases[] = {
        {longText, longText + L"@x.com", Lists::SenderCheck::AddressTooLong, SenderField::Address},
        {longText, L"not an address", Lists::SenderCheck::NotAnEmailAddress, SenderField::Address},
        {longText, L"a@x.com", Lists::SenderCheck::NameTooLong, SenderField::Name},
        {L" Al ", L"**@x.com", Lists::SenderCheck::Accepted, SenderField::Address},
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
