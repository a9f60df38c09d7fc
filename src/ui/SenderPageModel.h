#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "common_src/platform/WindowMessaging.h"
#include "lists/SenderListEditor.h"
#include "lists/SenderListSet.h"
#include "settings/SettingsCatalogue.h"
#include "ui/ContactImport.h"
#include "ui/EditSenderCheck.h"
#include "ui/MessageBoxes.h"
#include "ui/PageServices.h"
#include "ui/SenderRows.h"

namespace Orva::Ui {

// The edit dialog of one sender. Its OK passes ConfirmEditedSender first.
class IEditSenderDialog {
public:
    virtual ~IEditSenderDialog() = default;
    // Modal over `owner`; the checked fields when it ended with OK, nothing otherwise.
    virtual std::optional<SenderFields> Run(ZelCommon::Platform::WindowHandle owner,
                                            const std::wstring& caption,
                                            const SenderFields& initial) = 0;
};

// What the sender pages ask the user through, and the contact import the approved page starts.
struct SenderPagePorts {
    IMessageBoxes& boxes;
    IEditSenderDialog& editDialog;
    IContactImport& contacts;
};

// The two lists both sender pages work on (an address added to one is checked against the
// other), and the editor over them.
struct SharedSenderLists {
    Lists::CWListSet& approved;
    Lists::CBListSet& blocked;
    Lists::CSenderListEditor& editor;
};

// What differs between the approved and the blocked page.
struct SenderPageKind {
    Lists::SenderList list;
    std::wstring_view addCaptionId;
    std::wstring_view editCaptionId;
    // The installation's own title and note, else the localised texts.
    Settings::SettingId titleKey;
    Settings::SettingId noteKey;
    std::wstring_view titleId;
    std::wstring_view noteId;
    // The AutoApprove box, the import button and the installation's ApproveMailList.
    bool approvedExtras;
};
const SenderPageKind& SenderPageKindOf(Lists::SenderList list);

// An approved- or blocked-sender page without its windows: the rows of its list, the user's
// add, edit, remove and import, and the sheet's OK. Answers come through the ports; what the
// methods return is whether the page's rows changed.
class CSenderPageModel {
public:
    CSenderPageModel(Lists::SenderList list, SharedSenderLists lists, PageServices& services,
                     SenderPagePorts ports);

    // The page's first showing: the texts, the AutoApprove box, the installation's
    // ApproveMailList (approved page; a malformed one is refused with a box over `owner`) and
    // the rows.
    void Load(ZelCommon::Platform::WindowHandle owner);
    bool Loaded() const { return m_loaded; }
    const SenderPageKind& Kind() const { return m_kind; }
    const std::wstring& Title() const { return m_title; }
    // The note, or for a read-only list what keeps it so.
    const std::wstring& Note() const { return m_note; }

    // A list whose file was refused is shown but never edited, nor saved over.
    bool ReadOnly() const;
    // The import works on the files, so it waits for both lists to be writable.
    bool CanImport() const;

    bool AutoApprove() const { return m_autoApprove; }
    void SetAutoApprove(bool on);

    const CSenderRows& Rows() const { return m_rows; }
    CSenderRows& Rows() { return m_rows; }
    // Takes the list's entries again (the other page may have moved some), keeping the order
    // and the selection.
    void Refresh();

    bool Add(ZelCommon::Platform::WindowHandle owner);
    // The first selected row; nothing without a selection.
    bool Edit(ZelCommon::Platform::WindowHandle owner);
    // Every selected row, once the user agreed; nothing asked without a selection.
    bool Remove(ZelCommon::Platform::WindowHandle owner);
    // The contact import: unsaved changes of either list are saved first, if the user agrees;
    // afterwards the agent is told and both lists are read again.
    bool Import(ZelCommon::Platform::WindowHandle owner);

    // Whether either list or the AutoApprove box changed and was not applied yet.
    bool Modified() const;
    // The sheet's OK: saves the lists that changed (both pages' changes at once) and tells the
    // agent; the approved page then writes AutoApprove.
    void Apply();

private:
    BoxAnswer Show(ZelCommon::Platform::WindowHandle owner, std::wstring_view messageId,
                   std::wstring_view captionId, int number, uint32_t style);
    BoxAnswer ShowOutcome(ZelCommon::Platform::WindowHandle owner,
                          const Lists::EditOutcome& outcome);
    void AddMailList(ZelCommon::Platform::WindowHandle owner);
    void Changed(const std::wstring& address);

    const SenderPageKind& m_kind;
    SharedSenderLists m_lists;
    PageServices& m_services;
    SenderPagePorts m_ports;
    CSenderRows m_rows;
    std::wstring m_title;
    std::wstring m_note;
    bool m_loaded = false;
    bool m_autoApprove = false;
    bool m_autoApproveChanged = false;
};

}  // namespace Orva::Ui
