#include "lists/SenderListEditor.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "RecordingNotifier.h"

namespace Orva::Lists {
namespace {

using Entries = std::vector<SenderEntry>;

using Testing::RecordingNotifier;

template <class Set>
void Fill(Set& set, const Entries& entries) {
    for (const SenderEntry& entry : entries) {
        set.Add(entry.address.c_str(), entry);
    }
}

class SenderListEditorTest : public ::testing::Test {
protected:
    Testing::TempFolder m_folder;
    CWListSet m_approved;
    CBListSet m_blocked;
    RecordingNotifier m_notifier{m_folder.Path()};
    CSenderListEditor m_editor{m_approved, m_blocked, SenderListPathsIn(m_folder.Path()),
                               m_notifier};
};

struct EditCase {
    const char* label;
    std::function<EditOutcome(CSenderListEditor&)> edit;
    EditStatus status;
    std::wstring_view messageId;
    Entries approvedAfter;
    Entries blockedAfter;
};

// Each edit of the blocked list starts from the same two lists.
TEST_F(SenderListEditorTest, Edits_CheckBothListsAndChangeOnlyOnSuccess) {
    using enum EditStatus;
    const auto add = [](std::wstring name, std::wstring address, OnConflict onConflict) {
        return [=](CSenderListEditor& e) {
            return e.Add(SenderList::Blocked, name, address, onConflict);
        };
    };
    const auto modify = [](std::wstring old, std::wstring address, OnConflict onConflict) {
        return [=](CSenderListEditor& e) {
            return e.Modify(SenderList::Blocked, old, L"New", address, onConflict);
        };
    };
    const auto check = [](std::wstring address) {
        return [=](CSenderListEditor& e) { return e.Check(SenderList::Blocked, L"", address); };
    };
    const auto remove = [](std::wstring address) {
        return [=](CSenderListEditor& e) { return e.Remove(SenderList::Blocked, address); };
    };
    const Entries approved{{L"F", L"friend@b.com"}};
    const Entries blocked{{L"S", L"*@s.com"}, {L"A", L"a@b.com"}};  // in key order
    const SenderEntry star{L"S", L"*@s.com"};
    const std::wstring_view conflict = L"IDS_BLOCKLISTCONLICT_MSG";
    const std::wstring_view existed = L"IDS_LISTEXISTED_MSG";
    // clang-format off
    const EditCase cases[] = {
        {"AddStoresTheCheckedEntry", add(L" Spammer ", L" **@Spam.com ", OnConflict::Ask), Done, {},
         approved, {star, {L"Spammer", L"*@Spam.com"}, {L"A", L"a@b.com"}}},
        {"AddRefused", add(L"", L"a*b*@c.com", OnConflict::Ask), Refused, L"IDS_WRONG_EMAILADDR_MSG",
         approved, blocked},
        {"AddAsks", add(L"", L"FRIEND@b.com", OnConflict::Ask), InOtherList, conflict, approved,
         blocked},
        {"AddMoves", add(L"", L"FRIEND@b.com", OnConflict::Move), Done, {}, {},
         {star, {L"A", L"a@b.com"}, {L"", L"FRIEND@b.com"}}},
        {"AddExisting", add(L"New", L"A@B.com", OnConflict::Move), Existed, existed, approved, blocked},
        {"ModifyRekeys", modify(L"A@B.COM", L"C@d.com", OnConflict::Ask), Done, {}, approved,
         {star, {L"New", L"c@d.com"}}},
        {"ModifyOntoAnotherEntry", modify(L"a@b.com", L"*@S.com", OnConflict::Ask), Existed, existed,
         approved, blocked},
        {"ModifyAsks", modify(L"a@b.com", L"friend@b.com", OnConflict::Ask), InOtherList, conflict,
         approved, blocked},
        {"ModifyMoves", modify(L"a@b.com", L"friend@b.com", OnConflict::Move), Done, {}, {},
         {star, {L"New", L"friend@b.com"}}},
        {"ModifyAbsent", modify(L"x@b.com", L"y@b.com", OnConflict::Ask), NotFound, {}, approved,
         blocked},
        {"RemoveWhateverCaseAndStarRuns", remove(L" ***@S.com"), Done, {}, approved,
         {{L"A", L"a@b.com"}}},
        {"RemoveAbsent", remove(L"x@b.com"), NotFound, {}, approved, blocked},
        {"CheckAsks", check(L"Friend@b.com"), InOtherList, conflict, approved, blocked},
        {"CheckExisting", check(L" A@b.com"), Existed, existed, approved, blocked},
        {"CheckFree", check(L"new@b.com"), Done, {}, approved, blocked},
    };
    // clang-format on
    for (const EditCase& test : cases) {
        CWListSet approvedSet;
        CBListSet blockedSet;
        CSenderListEditor editor(approvedSet, blockedSet, {}, m_notifier);
        Fill(approvedSet, approved);
        Fill(blockedSet, blocked);
        const EditOutcome outcome = test.edit(editor);
        EXPECT_EQ(test.status, outcome.status) << test.label;
        EXPECT_EQ(test.messageId, outcome.messageId) << test.label;
        EXPECT_EQ(test.approvedAfter, approvedSet.Entries()) << test.label;
        EXPECT_EQ(test.blockedAfter, blockedSet.Entries()) << test.label;
        EXPECT_EQ(test.approvedAfter != approved, editor.Changed(SenderList::Approved))
            << test.label;
    }
}

TEST_F(SenderListEditorTest, Save_WritesTheChangedListsThenTellsTheAgentOnce) {
    Fill(m_approved, {{L"F", L"friend@b.com"}});
    m_editor.Add(SenderList::Blocked, L"", L"friend@b.com", OnConflict::Move);
    const SaveOutcome saved = m_editor.Save();
    EXPECT_EQ(ListSave::Saved, saved.approved);
    EXPECT_EQ(ListSave::Saved, saved.blocked);
    EXPECT_EQ(1, m_notifier.senderLists);
    EXPECT_EQ(std::string(Testing::kMark) + Testing::kHeader + "\n", m_notifier.approvedOnDisk);
    EXPECT_NE(std::string::npos, m_notifier.blockedOnDisk.find("friend@b.com"));
    // Nothing changed since: nothing is written and the agent is not told again.
    const SaveOutcome again = m_editor.Save();
    EXPECT_FALSE(again.approved || again.blocked || again.notified);
    EXPECT_EQ(1, m_notifier.senderLists);
}

TEST_F(SenderListEditorTest, Save_KeepsAFileWhoseLoadWasRefused) {
    const std::string notes = "my notes\n";
    Testing::WriteFileBytes(BlockedListPath(m_folder.Path()), notes);
    m_editor.Load();
    EXPECT_EQ(ListLoad::RejectedHeader, m_editor.LoadOf(SenderList::Blocked));
    EXPECT_EQ(ListLoad::Absent, m_editor.LoadOf(SenderList::Approved));
    m_editor.Add(SenderList::Blocked, L"", L"a@b.com", OnConflict::Ask);
    const SaveOutcome saved = m_editor.Save();
    EXPECT_EQ(ListSave::KeptRefusedFile, saved.blocked);
    EXPECT_FALSE(saved.notified);
    EXPECT_EQ(notes, Testing::ReadFileBytes(BlockedListPath(m_folder.Path())));
}

struct ImportCase {
    const char* label;
    std::wstring text;
    TransferFormat format;
    bool skipRefused;
    std::vector<std::pair<size_t, ImportIssue>> problems;
    size_t added;
    size_t present;
    bool applied;
    Entries blockedAfter;
};

TEST_F(SenderListEditorTest, Import_TakesAllOrNothingAndReportsLinesByNumber) {
    using enum ImportIssue;
    const Entries old{{L"", L"old@b.com"}};
    // clang-format off
    const ImportCase cases[] = {
        {"CountsPresent", L"new@b.com\r\n\r\nOLD@b.com\n  *@spam.biz  \nnew@b.com",
         TransferFormat::Addresses, false, {}, 2, 2, true,
         {{L"", L"*@spam.biz"}, {L"", L"new@b.com"}, {L"", L"old@b.com"}}},
        {"RefusedLinesStopIt", L"good@b.com\nnot an address\n\nx*y*@b.com\nFriend@b.com\n",
         TransferFormat::Addresses, false, {{2, Refused}, {4, Refused}, {5, InOtherList}}, 0, 0,
         false, old},
        {"SkipRefused", L"good@b.com\nnot an address\n", TransferFormat::Addresses, true,
         {{2, Refused}}, 1, 0, true, {{L"", L"good@b.com"}, {L"", L"old@b.com"}}},
        {"CsvTakesNamesAfterAHeading",
         L"Address,Name\n\"a@b.com\",\"Lee, Ann\"\nc@d.com\ne@f.com,x,y\n\"open,\n",
         TransferFormat::Csv, true, {{4, NotAnAddressNameLine}, {5, NotAnAddressNameLine}}, 2, 0,
         true, {{L"Lee, Ann", L"a@b.com"}, {L"", L"c@d.com"}, {L"", L"old@b.com"}}},
    };
    // clang-format on
    for (const ImportCase& test : cases) {
        CWListSet approved;
        CBListSet blocked;
        approved.Add(L"friend@b.com", {L"", L"friend@b.com"});
        blocked.Add(L"old@b.com", {L"", L"old@b.com"});
        CSenderListEditor editor(approved, blocked, {}, m_notifier);
        const ImportOutcome outcome =
            editor.Import(SenderList::Blocked, test.text, test.format, test.skipRefused);
        std::vector<std::pair<size_t, ImportIssue>> problems;
        for (const ImportProblem& problem : outcome.problems) {
            problems.emplace_back(problem.line, problem.issue);
        }
        EXPECT_EQ(test.problems, problems) << test.label;
        EXPECT_EQ(test.added, outcome.added) << test.label;
        EXPECT_EQ(test.present, outcome.present) << test.label;
        EXPECT_EQ(test.applied, outcome.applied) << test.label;
        EXPECT_EQ(test.blockedAfter, blocked.Entries()) << test.label;
    }
}

TEST_F(SenderListEditorTest, Import_BeyondTheLimitTakesNothingAndAddRefusesTheEntry8001) {
    for (int i = 0; i < 7999; ++i) {
        const std::wstring address = L"u" + std::to_wstring(i) + L"@b.com";
        m_blocked.Add(address.c_str(), {L"", address});
    }
    const std::wstring text = L"n1@b.com\nu1@b.com\nn2@b.com\n";
    EXPECT_EQ(
        1u,
        m_editor.Import(SenderList::Blocked, text, TransferFormat::Addresses, true).overflowing);
    EXPECT_EQ(7999u, m_blocked.Count());
    m_editor.Add(SenderList::Blocked, L"", L"n1@b.com", OnConflict::Ask);
    const EditOutcome full = m_editor.Add(SenderList::Blocked, L"", L"n2@b.com", OnConflict::Ask);
    EXPECT_EQ(EditStatus::Full, full.status);
    EXPECT_EQ(L"IDS_LISTFULL_MSG", full.messageId);
    EXPECT_EQ(8000, full.number);
}

TEST_F(SenderListEditorTest, ExportThenImport_CarriesNamesOver) {
    const Entries entries{{L"Lee, Ann \"A\"", L"a@b.com"}, {L"\u00e9t\u00e9", L"c@d.com"}};
    Fill(m_approved, entries);
    const std::wstring csv = m_editor.Export(SenderList::Approved, TransferFormat::Csv);
    EXPECT_EQ(L"a@b.com,\"Lee, Ann \"\"A\"\"\"\nc@d.com,\u00e9t\u00e9\n", csv);
    EXPECT_EQ(L"a@b.com\nc@d.com\n",
              m_editor.Export(SenderList::Approved, TransferFormat::Addresses));
    CWListSet approved;
    CBListSet blocked;
    CSenderListEditor peer(approved, blocked, {}, m_notifier);
    EXPECT_TRUE(peer.Import(SenderList::Approved, csv, TransferFormat::Csv, false).applied);
    EXPECT_EQ(entries, approved.Entries());
}

}  // namespace
}  // namespace Orva::Lists
