#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lists/ListChangeNotifier.h"
#include "lists/ListFileStatus.h"
#include "lists/SenderListSet.h"
#include "lists/SenderLists.h"
#include "lists/SenderValidation.h"

namespace Orva::Lists {

enum class SenderList { Approved, Blocked };

// What an edit came to.
enum class EditStatus {
    Done,
    Refused,      // the name or address failed validation
    InOtherList,  // the other list holds the address; edit again with OnConflict::Move to go on
    Existed,      // the list holds the address already (under another entry, for Modify)
    Full,         // the list holds 8000 entries
    NotFound,     // Modify, Remove: the list holds no such address
};

// What an edit does with an address that the other list holds: ask first, or take it out of
// the other list once this one has it (an address stands in one list only).
enum class OnConflict { Ask, Move };

struct EditOutcome {
    EditStatus status = EditStatus::Done;
    // The name and address as checked: trimmed, runs of "*" collapsed.
    SenderValidation checked;
    // What to show, as string ids, and the number the message is formatted with; empty for
    // Done and NotFound, and the caption where none is given for the question.
    std::wstring_view messageId;
    std::wstring_view captionId;
    int number = 0;
};

enum class TransferFormat {
    Addresses,  // one address a line
    Csv,        // "address,name" lines
};

// Why an import line was not taken.
enum class ImportIssue {
    NotAnAddressNameLine,  // a CSV line of more than two fields, or with an open quote
    Refused,               // validation refused it
    InOtherList,
};

struct ImportProblem {
    size_t line = 0;  // 1 for the first
    ImportIssue issue = ImportIssue::Refused;
    SenderValidation checked;
};

struct ImportOutcome {
    std::vector<ImportProblem> problems;
    size_t added = 0;
    size_t present = 0;      // already in the list, or twice in the text
    size_t overflowing = 0;  // new addresses beyond what the list can hold
    bool applied = false;    // whether the list took the new addresses
};

enum class SaveScope { Changed, BothWhenEitherChanged };

struct SaveOutcome {
    // Nothing for a list that did not change.
    std::optional<ListSave> approved;
    std::optional<ListSave> blocked;
    bool notified = false;
};

// The use cases of the approved- and blocked-sender lists, on the two sets and their files:
// what the list pages and the admin tool do. Outcomes are returned, never shown; edits change
// the sets, and Save writes the lists that changed and then tells the agent.
class CSenderListEditor {
public:
    CSenderListEditor(CWListSet& approved, CBListSet& blocked, SenderListPaths paths,
                      IListChangeNotifier& notifier);

    // Replaces both sets with their files.
    void Load();
    ListLoad LoadOf(SenderList list) const;

    // Validation, then the other list (InOtherList), then this list (Existed); changes nothing.
    EditOutcome Check(SenderList list, std::wstring_view name, std::wstring_view address) const;
    EditOutcome Add(SenderList list, std::wstring_view name, std::wstring_view address,
                    OnConflict onConflict);
    // Gives the entry of `oldAddress` a new name and address.
    EditOutcome Modify(SenderList list, std::wstring_view oldAddress, std::wstring_view name,
                       std::wstring_view address, OnConflict onConflict);
    // The address is trimmed and its runs of "*" collapsed, as every address that reaches a
    // list is.
    EditOutcome Remove(SenderList list, std::wstring_view address);

    // Adds the addresses of a text, all or nothing: nothing when any would not fit, nor when
    // any line is refused unless `skipRefused`. Blank lines are skipped, and a CSV text may
    // start with a heading line whose address field is "address".
    ImportOutcome Import(SenderList list, std::wstring_view text, TransferFormat format,
                         bool skipRefused);
    std::wstring Export(SenderList list, TransferFormat format) const;

    // Whether the list changed since it was loaded or saved.
    bool Changed(SenderList list) const;
    // Writes the lists that changed, or both when either changed (the pages keep the two files
    // in step), never over a file whose load was refused; then tells the agent if any file was
    // written.
    SaveOutcome Save(SaveScope scope = SaveScope::Changed);

private:
    template <class Run>
    decltype(auto) WithLists(SenderList list, Run&& run) const;
    void MarkChanged(SenderList list);

    CWListSet& m_approved;
    CBListSet& m_blocked;
    SenderListPaths m_paths;
    IListChangeNotifier& m_notifier;
    ListLoad m_approvedLoad = ListLoad::Absent;
    ListLoad m_blockedLoad = ListLoad::Absent;
    bool m_approvedChanged = false;
    bool m_blockedChanged = false;
};

// Runs run(set, otherSet, kind, otherKind) on the list and its counterpart.
template <class Run>
decltype(auto) CSenderListEditor::WithLists(SenderList list, Run&& run) const {
    if (list == SenderList::Approved) {
        return run(m_approved, m_blocked, ApprovedList{}, BlockedList{});
    }
    return run(m_blocked, m_approved, BlockedList{}, ApprovedList{});
}

}  // namespace Orva::Lists
