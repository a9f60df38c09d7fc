#include "ui/ContactImportRun.h"

#include <array>
#include <memory>
#include <string>

#include "lists/ListBackup.h"
#include "lists/SenderListSet.h"
#include "lists/SenderValidation.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Ui {
namespace {

using ZelCommon::Platform::WindowHandle;

constexpr wchar_t kName[] = L"CToolBarWnd::ImportContactList";

// The log's name for each address field, in the order of kContactAddresses.
constexpr std::array<const wchar_t*, Plugin::kContactAddresses.size()> kAddressLines = {
    L"\tHomeEmail:%s", L"\tWorkEmail:%s", L"\tOtherEmail:%s", L"\tDefaultIMEmail:%s",
    L"\tOtherIMEmail:%s"};

// Open for the run, closed however it ends.
class ProgressWindow {
public:
    explicit ProgressWindow(IImportProgress& progress) : m_progress(progress) { m_progress.Open(); }
    ~ProgressWindow() { m_progress.Close(); }
    ProgressWindow(const ProgressWindow&) = delete;
    ProgressWindow& operator=(const ProgressWindow&) = delete;

private:
    IImportProgress& m_progress;
};

class ImportRun {
public:
    explicit ImportRun(const ContactImportPorts& ports) : m_ports(ports) {}

    // The controller window, which owns the conflict question; 0 skips the question.
    void SetQuestionOwner(WindowHandle controller) { m_controller = controller; }

    void LoadLists(const Lists::SenderListPaths& paths) {
        m_approved.Load(paths.approved);
        // The approved list's file, as the add-in has always read it here: the blocked set
        // starts empty (see ContactImportRun.h).
        m_blocked.Load(paths.approved);
    }

    // Throws HostCallError for any failure of the contacts library.
    void ReadContacts(ContactImportOutcome& outcome) {
        const std::unique_ptr<Plugin::IContactManager> manager =
            m_ports.contacts.CreateContactManager();
        Log(L"@@@ Succeed in calling NktWLMailApiContacts::IContactManager::create()");
        std::unique_ptr<Plugin::IContact> contact = manager->FirstContact();
        Log(L"@@@ NktWLMailApiContacts::IContactManager::GetFirstContact()");
        const int count = manager->Count();
        m_ports.progress.SetRange(count);
        Log(L"@@@ Ready to import [%d] contact item(s)", count);
        while (contact != nullptr) {
            if (m_ports.progress.Cancelled()) {
                outcome.cancelled = true;
                break;
            }
            ImportContact(*contact, outcome);
            contact = manager->NextContact();
            m_ports.progress.Step();
        }
    }

    void Save(const Lists::SenderListPaths& paths, ContactImportOutcome& outcome) {
        if (m_approved.SaveTo(paths.approved) != Lists::ListSave::Saved) {
            // Nothing was gained, so nothing of the blocked list is given up either.
            Log(L"XXX CToolBarWnd::ImportContactList() the approved list [%s] was not written; "
                L"the blocked list stays as it was",
                paths.approved);
            return;
        }
        const uint32_t kept = Lists::KeepBackup(paths.blocked);
        if (kept == 0) {
            Log(L"@@@ CToolBarWnd::ImportContactList() the blocked list is kept as [%s]",
                Lists::BackupPathOf(paths.blocked));
        } else if (kept != kNoSuchFile) {
            // Without its backup the user's blocked list is not given up.
            Log(L"XXX CToolBarWnd::ImportContactList() the blocked list could not be kept as "
                L"[%s], error %u; it stays as it was",
                Lists::BackupPathOf(paths.blocked), kept);
            return;
        }
        outcome.saved = m_blocked.SaveTo(paths.blocked) == Lists::ListSave::Saved;
    }

private:
    static constexpr uint32_t kNoSuchFile = 2;

    template <class... Args>
    void Log(const wchar_t* format, const Args&... args) {
        m_ports.log.LogText(format, args...);
    }

    void ImportContact(Plugin::IContact& contact, ContactImportOutcome& outcome) {
        const std::wstring name = contact.DisplayName();
        Log(L"CToolBarWnd::ImportContactListThread Display name is [%s]", name);
        std::array<std::wstring, Plugin::kContactAddresses.size()> addresses;
        for (size_t i = 0; i < addresses.size(); ++i) {
            addresses[i] = contact.Address(Plugin::kContactAddresses[i]);
            Log(kAddressLines[i], addresses[i]);
        }
        for (const std::wstring& address : addresses) {
            ImportAddress(name, address, outcome);
        }
    }

    void ImportAddress(const std::wstring& name, const std::wstring& address,
                       ContactImportOutcome& outcome) {
        const Lists::SenderValidation checked = Lists::ValidateSender(L"", address);
        if (!checked.Accepted()) {
            return;
        }
        // A name the list file cannot hold does not cost the address: it goes in without one.
        const Lists::SenderValidation named = Lists::ValidateSender(name, address);
        const Lists::SenderEntry entry{named.Accepted() ? named.name : std::wstring(),
                                       checked.address};
        m_ports.progress.ShowAddress(entry.address);
        if (m_blocked.Find(entry.address.c_str()) && m_controller != 0) {
            if (AskToMove() != BoxAnswer::Yes) {
                return;
            }
            m_blocked.Remove(entry.address.c_str());
        }
        if (m_approved.Add(entry.address.c_str(), entry) == Lists::kAddAdded) {
            ++outcome.added;
            Log(L"@@@ Imported contact item: %s, %s", entry.address, entry.name);
        }
    }

    BoxAnswer AskToMove() {
        return m_ports.boxes.Show(m_controller,
                                  m_ports.strings.LoadShown(L"IDS_APPROVELISTCONLICT_MSG"),
                                  m_ports.strings.LoadShown(L"IDS_WARNING_CAPTION"),
                                  BoxStyle::kYesNo | BoxStyle::kIconQuestion);
    }

    const ContactImportPorts& m_ports;
    WindowHandle m_controller = 0;
    Lists::CWListSet m_approved;
    Lists::CBListSet m_blocked;
};

}  // namespace

ContactImportOutcome ImportContactList(const ContactImportPorts& ports,
                                       const Lists::SenderListPaths& paths) {
    ports.log.LogText(L"@@@ %s  IN", kName);
    ImportRun run(ports);
    run.LoadLists(paths);
    const WindowHandle controller =
        ports.messaging.FindByClass(std::wstring(Plugin::kControllerClassName));
    if (controller == 0) {
        ports.log.LogText(L"CToolBarWnd::ImportContactList() Get Agent handle failed, error: [%d]",
                          static_cast<int>(ports.process.LastError()));
    }
    run.SetQuestionOwner(controller);
    ContactImportOutcome outcome;
    {
        const ProgressWindow window(ports.progress);
        try {
            run.ReadContacts(outcome);
        } catch (const Plugin::HostCallError& error) {
            ports.log.LogText(
                L"!!! CToolBarWnd::ImportContactList() Contact Manager excpetion:[%S]",
                error.what());
            outcome.failed = true;
        }
    }
    if (!outcome.failed && outcome.added > 0) {
        run.Save(paths, outcome);
    }
    ports.log.LogText(L"@@@ %s  OUT", kName);
    return outcome;
}

}  // namespace Orva::Ui
