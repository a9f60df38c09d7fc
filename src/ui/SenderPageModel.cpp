#include "ui/SenderPageModel.h"

#include <utility>

#include "plugin/protocol/AgentProtocol.h"
#include "settings/localisation/Placeholders.h"
#include "ui/ApproveMailList.h"

namespace Orva::Ui {
namespace {

using Lists::EditStatus;
using Lists::OnConflict;
using Lists::SenderList;
using Settings::SettingId;
using ZelCommon::Platform::WindowHandle;

// clang-format off
constexpr SenderPageKind kApprovedPage{
    SenderList::Approved, L"IDS_ADDAPPROVESENDER_CAPTION", L"IDS_EDITAPPROVESENDER_CAPTION",
    SettingId::InstallApproveSenderTitle, SettingId::InstallApproveSenderNote,
    L"IDS_PAGE_APPROVED", L"IDS_APPROVED_NOTE", true};
constexpr SenderPageKind kBlockedPage{
    SenderList::Blocked, L"IDS_ADDBLOCKSENDER_CAPTION", L"IDS_EDITBLOCKSENDER_CAPTION",
    SettingId::InstallBlockSenderTitle, SettingId::InstallBlockSenderNote,
    L"IDS_PAGE_BLOCKED", L"IDS_BLOCKED_NOTE", false};
// clang-format on

constexpr std::wstring_view kConfirmationCaption = L"IDS_CONFIRMATION_CAPTION";
constexpr std::wstring_view kReadOnlyNote = L"IDS_LIST_READONLY_NOTE";

bool Refused(Lists::ListLoad load) {
    return !Lists::MayWriteOver(load);
}

}  // namespace

const SenderPageKind& SenderPageKindOf(SenderList list) {
    return list == SenderList::Approved ? kApprovedPage : kBlockedPage;
}

CSenderPageModel::CSenderPageModel(SenderList list, SharedSenderLists lists, PageServices& services,
                                   SenderPagePorts ports)
    : m_kind(SenderPageKindOf(list)), m_lists(lists), m_services(services), m_ports(ports) {}

void CSenderPageModel::Load(WindowHandle owner) {
    Settings::SettingsStore& settings = m_services.settings;
    Settings::ILocalisedStrings& strings = m_services.strings;
    const auto branded = [&](SettingId key, std::wstring_view id) {
        std::wstring text = settings.GetString(key);
        if (text.empty()) {
            return strings.LoadShown(std::wstring(id));
        }
        return Settings::ReplaceAll(text, Settings::kSpamNamePlaceholder,
                                    strings.LoadShown(L"IDS_SPAM_NAME"));
    };
    m_title = branded(m_kind.titleKey, m_kind.titleId);
    m_note = ReadOnly() ? strings.LoadShown(std::wstring(kReadOnlyNote))
                        : branded(m_kind.noteKey, m_kind.noteId);
    if (m_kind.approvedExtras) {
        m_autoApprove = settings.GetString(SettingId::AutoApprove) != L"0";
        if (!ReadOnly()) {
            AddMailList(owner);
        }
    }
    m_autoApproveChanged = false;
    m_loaded = true;
    Refresh();
}

// Addresses already in either list stay where they are: the installation only adds new ones.
void CSenderPageModel::AddMailList(WindowHandle owner) {
    const std::wstring value = m_services.settings.GetString(SettingId::InstallApproveMailList);
    const auto addresses = ParseApproveMailList(value);
    if (!addresses) {
        m_services.log.LogText(L"xxx CApproveSenderPage::OnInitDialog() ApproveMailList [%s]\n",
                               value);
        m_ports.boxes.Show(owner, std::wstring(kMailListErrorText),
                           std::wstring(kMailListErrorCaption),
                           BoxStyle::kOk | BoxStyle::kIconExclamation);
        return;
    }
    for (const std::wstring& address : *addresses) {
        m_lists.editor.Add(m_kind.list, {}, address, OnConflict::Ask);
    }
}

bool CSenderPageModel::ReadOnly() const {
    return Refused(m_lists.editor.LoadOf(m_kind.list));
}

bool CSenderPageModel::CanImport() const {
    return m_kind.approvedExtras && !Refused(m_lists.editor.LoadOf(SenderList::Approved)) &&
           !Refused(m_lists.editor.LoadOf(SenderList::Blocked));
}

void CSenderPageModel::SetAutoApprove(bool on) {
    if (on != m_autoApprove) {
        m_autoApprove = on;
        m_autoApproveChanged = !m_autoApproveChanged;
    }
}

void CSenderPageModel::Refresh() {
    m_rows.Reset(m_kind.list == SenderList::Approved ? m_lists.approved.Entries()
                                                     : m_lists.blocked.Entries());
}

BoxAnswer CSenderPageModel::Show(WindowHandle owner, std::wstring_view messageId,
                                 std::wstring_view captionId, int number, uint32_t style) {
    return ShowListMessage(m_ports.boxes, m_services.strings, owner, messageId, captionId, number,
                           style);
}

// Refusals inform, a full or known address warns, an address of the other list is a question.
BoxAnswer CSenderPageModel::ShowOutcome(WindowHandle owner, const Lists::EditOutcome& outcome) {
    switch (outcome.status) {
        case EditStatus::InOtherList:
            return Show(owner, outcome.messageId, outcome.captionId, 0,
                        BoxStyle::kYesNo | BoxStyle::kIconQuestion);
        case EditStatus::Existed:
        case EditStatus::Full:
            return Show(owner, outcome.messageId, outcome.captionId, outcome.number,
                        BoxStyle::kOk | BoxStyle::kIconExclamation);
        case EditStatus::Refused:
            return Show(owner, outcome.messageId, outcome.captionId, outcome.number,
                        BoxStyle::kOk | BoxStyle::kIconInformation);
        default:
            return BoxAnswer::Ok;
    }
}

void CSenderPageModel::Changed(const std::wstring& address) {
    Refresh();
    m_rows.SelectAddress(address);
}

bool CSenderPageModel::Add(WindowHandle owner) {
    if (ReadOnly()) {
        return false;
    }
    const std::optional<SenderFields> fields = m_ports.editDialog.Run(
        owner, m_services.strings.LoadShown(std::wstring(m_kind.addCaptionId)), {});
    if (!fields) {
        return false;
    }
    Lists::EditOutcome outcome =
        m_lists.editor.Add(m_kind.list, fields->name, fields->address, OnConflict::Ask);
    if (outcome.status == EditStatus::InOtherList) {
        if (ShowOutcome(owner, outcome) != BoxAnswer::Yes) {
            return false;
        }
        outcome = m_lists.editor.Add(m_kind.list, fields->name, fields->address, OnConflict::Move);
    }
    if (outcome.status != EditStatus::Done) {
        ShowOutcome(owner, outcome);
        return false;
    }
    Changed(outcome.checked.address);
    return true;
}

// A new address that another entry holds brings the dialog back with what the user typed.
bool CSenderPageModel::Edit(WindowHandle owner) {
    const std::vector<size_t> selected = m_rows.SelectedRows();
    if (ReadOnly() || selected.empty()) {
        return false;
    }
    const Lists::SenderEntry old = m_rows.At(selected.front());
    const std::wstring caption = m_services.strings.LoadShown(std::wstring(m_kind.editCaptionId));
    SenderFields shown{old.name, old.address};
    for (;;) {
        const std::optional<SenderFields> fields = m_ports.editDialog.Run(owner, caption, shown);
        if (!fields) {
            return false;
        }
        Lists::EditOutcome outcome = m_lists.editor.Modify(m_kind.list, old.address, fields->name,
                                                           fields->address, OnConflict::Ask);
        if (outcome.status == EditStatus::Existed) {
            ShowOutcome(owner, outcome);
            shown = *fields;
            continue;
        }
        if (outcome.status == EditStatus::InOtherList) {
            if (ShowOutcome(owner, outcome) != BoxAnswer::Yes) {
                return false;
            }
            outcome = m_lists.editor.Modify(m_kind.list, old.address, fields->name, fields->address,
                                            OnConflict::Move);
        }
        if (outcome.status != EditStatus::Done) {
            ShowOutcome(owner, outcome);
            return false;
        }
        Changed(outcome.checked.address);
        return true;
    }
}

bool CSenderPageModel::Remove(WindowHandle owner) {
    const std::vector<std::wstring> addresses = m_rows.SelectedAddresses();
    if (ReadOnly() || addresses.empty()) {
        return false;
    }
    if (Show(owner, L"IDS_REMOVEADDR_MSG", kConfirmationCaption, 0,
             BoxStyle::kOkCancel | BoxStyle::kIconInformation) != BoxAnswer::Ok) {
        return false;
    }
    for (const std::wstring& address : addresses) {
        m_lists.editor.Remove(m_kind.list, address);
    }
    Refresh();
    m_rows.Select({});
    return true;
}

// The import reads and writes the list files itself, so the files must hold what the user sees
// before, and the pages must show what the files hold after.
bool CSenderPageModel::Import(WindowHandle owner) {
    if (!CanImport()) {
        return false;
    }
    Lists::CSenderListEditor& editor = m_lists.editor;
    if (editor.Changed(SenderList::Approved) || editor.Changed(SenderList::Blocked)) {
        if (Show(owner, L"IDS_MSG_APPLYFIRST", L"IDS_CAP_CONFIMATION", 0,
                 BoxStyle::kYesNo | BoxStyle::kIconQuestion) != BoxAnswer::Yes) {
            return false;
        }
        const Lists::SaveOutcome saved = editor.Save(Lists::SaveScope::BothWhenEitherChanged);
        const auto failed = [](const std::optional<Lists::ListSave>& save) {
            return save && *save != Lists::ListSave::Saved;
        };
        // The reload after the import would throw away what could not be saved.
        if (failed(saved.approved) || failed(saved.blocked)) {
            m_services.log.LogText(
                L"xxx CApproveSenderPage::OnImport() the lists could not be saved: no import");
            return false;
        }
    }
    m_ports.contacts.RunContactImport(owner);
    m_services.agent.Notify(Plugin::AgentMessage::SenderListsChanged);
    editor.Load();
    Refresh();
    return true;
}

bool CSenderPageModel::Modified() const {
    return m_autoApproveChanged || m_lists.editor.Changed(SenderList::Approved) ||
           m_lists.editor.Changed(SenderList::Blocked);
}

void CSenderPageModel::Apply() {
    if (!m_loaded) {
        return;
    }
    Lists::CSenderListEditor& editor = m_lists.editor;
    if (editor.Changed(SenderList::Approved) || editor.Changed(SenderList::Blocked)) {
        editor.Save(Lists::SaveScope::BothWhenEitherChanged);
    }
    if (m_kind.approvedExtras) {
        m_services.settings.SetFlag(SettingId::AutoApprove, m_autoApprove);
        m_autoApproveChanged = false;
    }
}

}  // namespace Orva::Ui
