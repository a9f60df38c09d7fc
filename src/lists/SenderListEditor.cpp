#include "lists/SenderListEditor.h"

#include <utility>

#include "common_src/platform/TextCodec.h"
#include "lists/ListText.h"

namespace Orva::Lists {
namespace {

constexpr std::wstring_view kWarningCaption = L"IDS_WARNING_CAPTION";

SenderList OtherList(SenderList list) {
    return list == SenderList::Approved ? SenderList::Blocked : SenderList::Approved;
}

EditOutcome Validated(std::wstring_view name, std::wstring_view address) {
    EditOutcome outcome;
    outcome.checked = ValidateSender(name, address);
    if (!outcome.checked.Accepted()) {
        outcome.status = EditStatus::Refused;
        outcome.messageId = outcome.checked.messageId;
        outcome.captionId = outcome.checked.captionId;
        outcome.number = outcome.checked.number;
    }
    return outcome;
}

EditOutcome WithStatus(EditOutcome outcome, EditStatus status, const AddMessage& message) {
    outcome.status = status;
    outcome.messageId = message.messageId;
    outcome.captionId = message.captionId;
    outcome.number = message.number;
    return outcome;
}

// The question asked before an address moves from the other list into `Kind`'s.
template <class Kind>
EditOutcome Conflict(EditOutcome outcome, std::wstring_view captionId) {
    return WithStatus(std::move(outcome), EditStatus::InOtherList,
                      AddMessage{Kind::kConflictMessageId, captionId, 0});
}

}  // namespace

CSenderListEditor::CSenderListEditor(CWListSet& approved, CBListSet& blocked, SenderListPaths paths,
                                     IListChangeNotifier& notifier)
    : m_approved(approved), m_blocked(blocked), m_paths(std::move(paths)), m_notifier(notifier) {}

void CSenderListEditor::Load() {
    m_approvedLoad = m_approved.Load(m_paths.approved);
    m_blockedLoad = m_blocked.Load(m_paths.blocked);
    m_approvedChanged = false;
    m_blockedChanged = false;
}

ListLoad CSenderListEditor::LoadOf(SenderList list) const {
    return list == SenderList::Approved ? m_approvedLoad : m_blockedLoad;
}

EditOutcome CSenderListEditor::Check(SenderList list, std::wstring_view name,
                                     std::wstring_view address) const {
    EditOutcome outcome = Validated(name, address);
    if (outcome.status != EditStatus::Done) {
        return outcome;
    }
    return WithLists(list, [&]<class Kind>(auto& set, auto& other, Kind, auto) {
        const wchar_t* checked = outcome.checked.address.c_str();
        if (other.Find(checked)) {
            return Conflict<Kind>(std::move(outcome), {});
        }
        if (set.Find(checked)) {
            return WithStatus(std::move(outcome), EditStatus::Existed,
                              MessageForAddResult(kAddExisted));
        }
        return outcome;
    });
}

EditOutcome CSenderListEditor::Add(SenderList list, std::wstring_view name,
                                   std::wstring_view address, OnConflict onConflict) {
    EditOutcome outcome = Validated(name, address);
    if (outcome.status != EditStatus::Done) {
        return outcome;
    }
    return WithLists(list, [&]<class Kind>(auto& set, auto& other, Kind, auto) {
        const SenderEntry entry{outcome.checked.name, outcome.checked.address};
        const bool inOther = other.Find(entry.address.c_str());
        if (inOther && onConflict == OnConflict::Ask) {
            return Conflict<Kind>(std::move(outcome), {});
        }
        const int added = set.Add(entry.address.c_str(), entry);
        if (added != kAddAdded) {
            const EditStatus status = added == kAddFull ? EditStatus::Full : EditStatus::Existed;
            return WithStatus(std::move(outcome), status, MessageForAddResult(added));
        }
        MarkChanged(list);
        if (inOther) {
            other.Remove(entry.address.c_str());
            MarkChanged(OtherList(list));
        }
        return outcome;
    });
}

EditOutcome CSenderListEditor::Modify(SenderList list, std::wstring_view oldAddress,
                                      std::wstring_view name, std::wstring_view address,
                                      OnConflict onConflict) {
    EditOutcome outcome = Validated(name, address);
    if (outcome.status != EditStatus::Done) {
        return outcome;
    }
    const std::wstring old(oldAddress);
    return WithLists(list, [&]<class Kind>(auto& set, auto& other, Kind, auto) {
        const std::wstring& checked = outcome.checked.address;
        if (!set.Find(old.c_str())) {
            outcome.status = EditStatus::NotFound;
            return outcome;
        }
        // Modify would lose the entry to the one that holds the new address rather than merge.
        if (ListKeyOf(checked) != ListKeyOf(old) && set.Find(checked.c_str())) {
            return WithStatus(std::move(outcome), EditStatus::Existed,
                              MessageForAddResult(kAddExisted));
        }
        const bool inOther = other.Find(checked.c_str());
        if (inOther && onConflict == OnConflict::Ask) {
            return Conflict<Kind>(std::move(outcome), kWarningCaption);
        }
        set.Modify(old.c_str(), outcome.checked.name, checked);
        MarkChanged(list);
        if (inOther) {
            other.Remove(checked.c_str());
            MarkChanged(OtherList(list));
        }
        return outcome;
    });
}

EditOutcome CSenderListEditor::Remove(SenderList list, std::wstring_view address) {
    EditOutcome outcome;
    outcome.checked.address = CollapseStars(ZelCommon::Text::TrimBlanks(address));
    return WithLists(list, [&](auto& set, auto&, auto, auto) {
        const wchar_t* removed = outcome.checked.address.c_str();
        if (!set.Find(removed)) {
            outcome.status = EditStatus::NotFound;
            return outcome;
        }
        set.Remove(removed);
        MarkChanged(list);
        return outcome;
    });
}

bool CSenderListEditor::Changed(SenderList list) const {
    return list == SenderList::Approved ? m_approvedChanged : m_blockedChanged;
}

void CSenderListEditor::MarkChanged(SenderList list) {
    (list == SenderList::Approved ? m_approvedChanged : m_blockedChanged) = true;
}

SaveOutcome CSenderListEditor::Save(SaveScope scope) {
    SaveOutcome outcome;
    const bool both =
        scope == SaveScope::BothWhenEitherChanged && (m_approvedChanged || m_blockedChanged);
    if (m_approvedChanged || both) {
        outcome.approved = m_approved.SaveTo(m_paths.approved);
        m_approvedChanged = m_approvedChanged && outcome.approved != ListSave::Saved;
    }
    if (m_blockedChanged || both) {
        outcome.blocked = m_blocked.SaveTo(m_paths.blocked);
        m_blockedChanged = m_blockedChanged && outcome.blocked != ListSave::Saved;
    }
    // The agent rereads both files; it is told as soon as either changed on disk.
    if (outcome.approved == ListSave::Saved || outcome.blocked == ListSave::Saved) {
        m_notifier.SenderListsChanged();
        outcome.notified = true;
    }
    return outcome;
}

}  // namespace Orva::Lists
