#include "lists/SenderListEditor.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "ListTestFiles.h"
#include "RecordingNotifier.h"

namespace Orva::Lists {
namespace {

using Entries = std::vector<SenderEntry>;

using Testing::RecordingNotifier;

class SenderListEditorTest : public ::testing::Test {
protected:
    void Fill(const Entries& approved, const Entries& blocked) {
        for (const SenderEntry& entry : approved) {
            m_approved.Add(entry.address.c_str(), entry);
        }
        for (const SenderEntry& entry : blocked) {
            m_blocked.Add(entry.address.c_str(), entry);
        }
    }

    Testing::TempFolder m_folder;
    CWListSet m_approved;
    CBListSet m_blocked;
    RecordingNotifier m_notifier{m_folder.Path()};
    CSenderListEditor m_editor{
        m_approved,
        m_blocked,
        {ApprovedListPath(m_folder.Path()), BlockedListPath(m_folder.Path())},
        m_notifier};
};

struct EditCase {
    const char* label;
    Entries approved;
    Entries blocked;
    std::function<EditOutcome(CSenderListEditor&)> edit;
    EditStatus status;
    std::wstring_view messageId;
    Entries approvedAfter;
    Entries blockedAfter;
};

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
    const auto remove = [](std::wstring address) {
        return [=](CSenderListEditor& e) { return e.Remove(SenderList::Blocked, address); };
    };
    const Entries friendOnly{{L"F", L"friend@b.com"}};
    const Entries twoBlocked{{L"S", L"*@s.com"}, {L"A", L"a@b.com"}};  // in key order
    const EditCase cases[] = {
        {"AddStoresTheCheckedEntry",
         {},
         {},
         add(L" Spammer ", L" **@Spam.com ", OnConflict::Ask),
         Done,
         {},
         {},
         {{L"Spammer", L"*@Spam.com"}}},
        {"AddRefused",
         {},
         {},
         add(L"", L"a*b*@c.com", OnConflict::Ask),
         Refused,
         L"IDS_WRONG_EMAILADDR_MSG",
         {},
         {}},
        {"AddAsksAboutTheOtherList",
         friendOnly,
         {},
         add(L"", L"FRIEND@b.com", OnConflict::Ask),
         InOtherList,
         L"IDS_BLOCKLISTCONLICT_MSG",
         friendOnly,
         {}},
        {"AddMovesFromTheOtherList",
         friendOnly,
         {},
         add(L"", L"FRIEND@b.com", OnConflict::Move),
         Done,
         {},
         {},
         {{L"", L"FRIEND@b.com"}}},
        {"AddExisting",
         {},
         twoBlocked,
         add(L"New", L"A@B.com", OnConflict::Move),
         Existed,
         L"IDS_LISTEXISTED_MSG",
         {},
         twoBlocked},
        {"ModifyRekeys",
         {},
         twoBlocked,
         modify(L"A@B.COM", L"C@d.com", OnConflict::Ask),
         Done,
         {},
         {},
         {{L"S", L"*@s.com"}, {L"New", L"c@d.com"}}},
        {"ModifyOntoAnotherEntry",
         {},
         twoBlocked,
         modify(L"a@b.com", L"*@S.com", OnConflict::Ask),
         Existed,
         L"IDS_LISTEXISTED_MSG",
         {},
         twoBlocked},
        {"ModifyAsksAboutTheOtherList", friendOnly, twoBlocked,
         modify(L"a@b.com", L"friend@b.com", OnConflict::Ask), InOtherList,
         L"IDS_BLOCKLISTCONLICT_MSG", friendOnly, twoBlocked},
        {"ModifyMovesFromTheOtherList",
         friendOnly,
         twoBlocked,
         modify(L"a@b.com", L"friend@b.com", OnConflict::Move),
         Done,
         {},
         {},
         {{L"S", L"*@s.com"}, {L"New", L"friend@b.com"}}},
        {"ModifyAbsent",
         {},
         twoBlocked,
         modify(L"x@b.com", L"y@b.com", OnConflict::Ask),
         NotFound,
         {},
         {},
         twoBlocked},
        {"RemoveWhateverCaseAndStarRuns",
         {},
         twoBlocked,
         remove(L" ***@S.com"),
         Done,
         {},
         {},
         {{L"A", L"a@b.com"}}},
        {"RemoveAbsent", {}, twoBlocked, remove(L"x@b.com"), NotFound, {}, {}, twoBlocked},
    };
    for (const EditCase& test : cases) {
        CWListSet approved;
        CBListSet blocked;
        CSenderListEditor editor(approved, blocked, {}, m_notifier);
        for (const SenderEntry& entry : test.approved) {
            approved.Add(entry.address.c_str(), entry);
        }
        for (const SenderEntry& entry : test.blocked) {
            blocked.Add(entry.address.c_str(), entry);
        }
        const EditOutcome outcome = test.edit(editor);
        EXPECT_EQ(test.status, outcome.status) << test.label;
        EXPECT_EQ(test.messageId, outcome.messageId) << test.label;
        EXPECT_EQ(test.approvedAfter, approved.Entries()) << test.label;
        EXPECT_EQ(test.blockedAfter, blocked.Entries()) << test.label;
        EXPECT_EQ(test.approvedAfter != test.approved, editor.Changed(SenderList::Approved))
            << test.label;
    }
}

TEST_F(SenderListEditorTest, Save_WritesTheChangedListsThenTellsTheAgentOnce) {
    Fill({{L"F", L"friend@b.com"}}, {});
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
    const ImportCase cases[] = {
        {"CountsPresent",
         L"new@b.com\r\n\r\nOLD@b.com\n  *@spam.biz  \nnew@b.com",
         TransferFormat::Addresses,
         false,
         {},
         2,
         2,
         true,
         {{L"", L"*@spam.biz"}, {L"", L"new@b.com"}, {L"", L"old@b.com"}}},
        {"RefusedLinesStopIt",
         L"good@b.com\nnot an address\n\nx*y*@b.com\nFriend@b.com\n",
         TransferFormat::Addresses,
         false,
         {{2, Refused}, {4, Refused}, {5, InOtherList}},
         0,
         0,
         false,
         old},
        {"SkipRefused",
         L"good@b.com\nnot an address\n",
         TransferFormat::Addresses,
         true,
         {{2, Refused}},
         1,
         0,
         true,
         {{L"", L"good@b.com"}, {L"", L"old@b.com"}}},
        {"CsvTakesNamesAfterAHeading",
         L"Address,Name\n\"a@b.com\",\"Lee, Ann\"\nc@d.com\ne@f.com,x,y\n\"open,\n",
         TransferFormat::Csv,
         true,
         {{4, NotAnAddressNameLine}, {5, NotAnAddressNameLine}},
         2,
         0,
         true,
         {{L"Lee, Ann", L"a@b.com"}, {L"", L"c@d.com"}, {L"", L"old@b.com"}}},
    };
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
    const ImportOutcome outcome =
        m_editor.Import(SenderList::Blocked, L"n1@b.com\nn2@b.com\nu1@b.com\nn3@b.com\n",
                        TransferFormat::Addresses, true);
    EXPECT_EQ(2u, outcome.overflowing);
    EXPECT_FALSE(outcome.applied);
    EXPECT_EQ(7999u, m_blocked.Count());
    EXPECT_EQ(EditStatus::Done,
              m_editor.Add(SenderList::Blocked, L"", L"n0@b.com", OnConflict::Ask).status);
    const EditOutcome full = m_editor.Add(SenderList::Blocked, L"", L"n1@b.com", OnConflict::Ask);
    EXPECT_EQ(EditStatus::Full, full.status);
    EXPECT_EQ(L"IDS_LISTFULL_MSG", full.messageId);
    EXPECT_EQ(8000, full.number);
}

TEST_F(SenderListEditorTest, ExportThenImport_CarriesNamesOver) {
    const Entries entries{{L"Lee, Ann \"A\"", L"a@b.com"}, {L"\u00e9t\u00e9", L"c@d.com"}};
    Fill(entries, {});
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
