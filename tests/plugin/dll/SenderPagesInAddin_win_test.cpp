#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "lists/SenderListSet.h"
#include "plugin/dll/AddinRig_win.h"
#include "support/AddressBook_win.h"
#include "support/ModalDriver_win.h"
#include "ui/DialogIds.h"

namespace Orva::Plugin {
namespace {

using Testing::CModalDriver;
using Testing::FindDescendant;

class SenderPagesInAddin : public AddinWithRibbon {
protected:
    ~SenderPagesInAddin() override { std::filesystem::remove(approvedFile); }

    HWND List() const { return FindDescendant(sheet, IDC_LIST_VIEW); }
    bool ListShows(std::vector<std::wstring> rows) const {
        std::vector<std::wstring> shown(static_cast<size_t>(ListView_GetItemCount(List())));
        for (size_t row = 0; row < shown.size(); ++row) {
            wchar_t text[64] = {};
            ListView_GetItemText(List(), static_cast<int>(row), 0, text, 64);
            shown[row] = text;
        }
        return shown == rows;
    }
    // Waits for the sheet, turns to the approved page and waits for it to show `rows`.
    CModalDriver::NamedStep ApprovedPageShows(std::vector<std::wstring> rows) {
        return {"approved page", [this, rows] {
                    sheet = Testing::FindPropertySheet();
                    if (sheet != nullptr) {
                        PropSheet_SetCurSel(sheet, nullptr, 2);
                    }
                    return sheet != nullptr && ListShows(rows);
                }};
    }
    // Waits for the list to show `rows`, then acts.
    CModalDriver::NamedStep OnceListShows(const char* name, std::vector<std::wstring> rows,
                                          std::function<void()> act) {
        return {name, [this, rows, act] {
                    if (!ListShows(rows)) {
                        return false;
                    }
                    act();
                    return true;
                }};
    }
    // Types into the edit dialog once it shows `shown` as the address, and presses OK.
    static CModalDriver::NamedStep Type(std::wstring shown, std::wstring name,
                                        std::wstring address) {
        return {"typing over " + std::string(shown.begin(), shown.end()), [=] {
                    const HWND dialog = Testing::FindDialogHolding(IDC_EDIT_SENDER_ADDRESS);
                    wchar_t current[64] = {};
                    if (dialog != nullptr) {
                        ::GetDlgItemTextW(dialog, IDC_EDIT_SENDER_ADDRESS, current, 64);
                    }
                    if (dialog == nullptr || shown != current) {
                        return false;
                    }
                    ::SetDlgItemTextW(dialog, IDC_EDIT_SENDER_NAME, name.c_str());
                    ::SetDlgItemTextW(dialog, IDC_EDIT_SENDER_ADDRESS, address.c_str());
                    Testing::Click(::GetDlgItem(dialog, IDOK));
                    return true;
                }};
    }

    const std::filesystem::path approvedFile = LogFolder().parent_path() / L"WhiteList.dat";
    HWND sheet = nullptr;
};

// The user adds a sender, renames it with a double click on its row, removes the older one
// after the question, and presses OK: the file holds the result and the agent is told.
TEST_F(SenderPagesInAddin, AddEditByDoubleClickRemoveThenOk_FileWrittenAndAgentTold) {
    {
        Lists::CWListSet approved;
        approved.Add(L"old@example.com", {L"Old", L"old@example.com"});
        approved.Save(approvedFile.wstring());
    }
    ASSERT_TRUE(StartAddin()) << LogText();

    const std::string stopped = RunAfterClick(
        kSettingsEntry,
        {ApprovedPageShows({L"old@example.com"}),
         {"add",
          [this] {
              Testing::Click(FindDescendant(sheet, IDC_BUTTON_ADD_SENDER));
              return true;
          }},
         Type(L"", L"Ann", L" ann@example.com "),
         OnceListShows("double click on the new row, none selected",
                       {L"ann@example.com", L"old@example.com"},
                       [this] {
                           ListView_SetItemState(List(), -1, 0, LVIS_SELECTED);
                           RECT row{};
                           ListView_GetItemRect(List(), 0, &row, LVIR_LABEL);
                           ::PostMessageW(List(), WM_LBUTTONDBLCLK, MK_LBUTTON,
                                          MAKELPARAM(row.left + 4, (row.top + row.bottom) / 2));
                       }),
         Type(L"ann@example.com", L"Ann Smith", L"anna@example.com"),
         OnceListShows("remove the old one", {L"anna@example.com", L"old@example.com"},
                       [this] {
                           ListView_SetItemState(List(), -1, 0, LVIS_SELECTED);
                           ListView_SetItemState(List(), 1, LVIS_SELECTED, LVIS_SELECTED);
                           Testing::Click(FindDescendant(sheet, IDC_BUTTON_REMOVE_SENDER));
                       }),
         {"OK in the question",
          [this] {
              const HWND box = ::GetActiveWindow();
              wchar_t type[16] = {};
              ::GetClassNameW(box, type, 16);
              if (box == sheet || std::wstring(type) != L"#32770") {
                  return false;
              }
              Testing::Click(::GetDlgItem(box, IDOK));
              return true;
          }},
         OnceListShows("sheet OK", {L"anna@example.com"},
                       [this] { Testing::Click(::GetDlgItem(sheet, IDOK)); })});

    EXPECT_EQ(stopped, "");
    EXPECT_TRUE(Testing::PumpMessagesUntil([] { return Testing::FindPropertySheet() == nullptr; }));
    Lists::CWListSet written;
    written.Load(approvedFile.wstring());
    EXPECT_EQ(written.Entries(),
              (std::vector<Lists::SenderEntry>{{L"Ann Smith", L"anna@example.com"}}));
    EXPECT_TRUE(Testing::PumpMessagesUntil([&] {
        return AgentRecord().find("posted 1033 0 0") != std::string::npos;
    })) << AgentRecord();
}

constexpr CLSID kContactsClass = {
    0x3f0b5a63, 0x2c1e, 0x4d7a, {0x8e, 0x21, 0x5b, 0x6c, 0x11, 0x02, 0x9a, 0x43}};

// The Import button runs the import over the host's contacts while the sheet stays open: the
// addresses are saved and shown at once, the blocked list that the import empties is kept as
// its backup, and the agent is told, whatever the sheet's own answer.
TEST_F(SenderPagesInAddin, ImportButton_ContactsSavedAndShown_BlockedListKept) {
    const std::wstring blockedFile = (approvedFile.parent_path() / L"BlackList.dat").wstring();
    {
        Lists::CBListSet blocked;
        blocked.Add(L"spam@example.com", {L"", L"spam@example.com"});
        blocked.Save(blockedFile);
    }
    Testing::AddressBook book;
    book.contacts = {Testing::Contact(L"Ann", L"ann@work.example"),
                     Testing::Contact(L"Bo", L"bo@work.example")};
    const RegisteredObject contacts(L"NktWLMailApiContacts.ContactManager", kContactsClass,
                                    *book.manager.Get());
    ASSERT_TRUE(StartAddin()) << LogText();

    const std::string stopped = RunAfterClick(
        kSettingsEntry, {ApprovedPageShows({}),
                         {"import",
                          [this] {
                              Testing::Click(FindDescendant(sheet, IDC_BUTTON_IMPORT_CONTACTS));
                              return true;
                          }},
                         OnceListShows("sheet Cancel", {L"ann@work.example", L"bo@work.example"},
                                       [this] { Testing::Click(::GetDlgItem(sheet, IDCANCEL)); })});

    EXPECT_EQ(stopped, "") << LogText();
    EXPECT_TRUE(Testing::PumpMessagesUntil([] { return Testing::FindPropertySheet() == nullptr; }));
    Lists::CWListSet approved;
    approved.Load(approvedFile.wstring());
    EXPECT_EQ(approved.Entries(), (std::vector<Lists::SenderEntry>{{L"Ann", L"ann@work.example"},
                                                                   {L"Bo", L"bo@work.example"}}));
    Lists::CBListSet blocked;
    Lists::CBListSet kept;
    EXPECT_EQ(blocked.Load(blockedFile), Lists::ListLoad::Loaded);
    EXPECT_EQ(blocked.Count(), 0u);
    kept.Load(blockedFile + L".bak");
    EXPECT_TRUE(kept.Find(L"spam@example.com"));
    EXPECT_TRUE(Testing::PumpMessagesUntil([&] {
        return AgentRecord().find("posted 1033 0 0") != std::string::npos;
    })) << AgentRecord();
    ::DeleteFileW(blockedFile.c_str());
    ::DeleteFileW((blockedFile + L".bak").c_str());
}

}  // namespace
}  // namespace Orva::Plugin
