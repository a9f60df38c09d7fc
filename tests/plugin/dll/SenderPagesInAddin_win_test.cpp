#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "lists/SenderListSet.h"
#include "plugin/dll/AddinRig_win.h"
#include "support/ModalDriver_win.h"
#include "ui/DialogIds.h"

namespace Orva::Plugin {
namespace {

using Testing::CModalDriver;
using Testing::FindDescendant;

class SenderPagesInAddin : public AddinWithRibbon {
protected:
    ~SenderPagesInAddin() override { std::filesystem::remove(approvedFile); }

    HWND List() const { return sheet ? FindDescendant(sheet, IDC_LIST_VIEW) : nullptr; }
    std::wstring RowText(int row) const {
        wchar_t text[64] = {};
        ListView_GetItemText(List(), row, 0, text, 64);
        return text;
    }
    // Fills the edit dialog once it shows `shown` in its address field, and presses OK.
    CModalDriver::NamedStep TypeSender(const char* name, std::wstring shown, std::wstring sender,
                                       std::wstring address) {
        return {name, [=] {
                    const HWND dialog = Testing::FindDialogHolding(IDC_EDIT_SENDER_ADDRESS);
                    wchar_t current[64] = {};
                    if (dialog != nullptr) {
                        ::GetDlgItemTextW(dialog, IDC_EDIT_SENDER_ADDRESS, current, 64);
                    }
                    if (dialog == nullptr || shown != current) {
                        return false;
                    }
                    ::SetDlgItemTextW(dialog, IDC_EDIT_SENDER_NAME, sender.c_str());
                    ::SetDlgItemTextW(dialog, IDC_EDIT_SENDER_ADDRESS, address.c_str());
                    Testing::Click(::GetDlgItem(dialog, IDOK));
                    return true;
                }};
    }

    const std::filesystem::path approvedFile = LogFolder().parent_path() / L"WhiteList.dat";
    HWND sheet = nullptr;
};

// The user adds a sender, renames it with a double click, removes the older one after the
// question, and presses OK: the file holds the result and the agent is told.
TEST_F(SenderPagesInAddin, AddEditByDoubleClickRemoveThenOk_FileWrittenAndAgentTold) {
    {
        Lists::CWListSet approved;
        approved.Add(L"old@example.com", {L"Old", L"old@example.com"});
        approved.Save(approvedFile.wstring());
    }
    ASSERT_TRUE(StartAddin()) << LogText();

    const std::string stopped = RunAfterClick(
        kSettingsEntry,
        {{"approved page",
          [this] {
              sheet = Testing::FindPropertySheet();
              if (sheet == nullptr) {
                  return false;
              }
              PropSheet_SetCurSel(sheet, nullptr, 2);
              return List() != nullptr && ListView_GetItemCount(List()) == 1;
          }},
         {"add",
          [this] {
              Testing::Click(FindDescendant(sheet, IDC_BUTTON_ADD_SENDER));
              return true;
          }},
         TypeSender("new sender", L"", L"Ann", L" ann@example.com "),
         {"double click on the new row",
          [this] {
              if (ListView_GetItemCount(List()) != 2 || RowText(0) != L"ann@example.com") {
                  return false;
              }
              ListView_SetItemState(List(), -1, 0, LVIS_SELECTED);
              RECT row{};
              ListView_GetItemRect(List(), 0, &row, LVIR_LABEL);
              ::PostMessageW(List(), WM_LBUTTONDBLCLK, MK_LBUTTON,
                             MAKELPARAM(row.left + 4, (row.top + row.bottom) / 2));
              return true;
          }},
         TypeSender("renamed", L"ann@example.com", L"Ann Smith", L"anna@example.com"),
         {"remove the old one",
          [this] {
              if (RowText(0) != L"anna@example.com") {
                  return false;
              }
              ListView_SetItemState(List(), -1, 0, LVIS_SELECTED);
              ListView_SetItemState(List(), 1, LVIS_SELECTED, LVIS_SELECTED);
              Testing::Click(FindDescendant(sheet, IDC_BUTTON_REMOVE_SENDER));
              return true;
          }},
         {"OK in the question",
          [this] {
              const HWND box = ::GetActiveWindow();
              wchar_t type[16] = {};
              ::GetClassNameW(box, type, 16);
              if (box == nullptr || box == sheet || std::wstring(type) != L"#32770") {
                  return false;
              }
              Testing::Click(::GetDlgItem(box, IDOK));
              return true;
          }},
         {"sheet OK", [this] {
              if (ListView_GetItemCount(List()) != 1) {
                  return false;
              }
              Testing::Click(::GetDlgItem(sheet, IDOK));
              return true;
          }}});

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

}  // namespace
}  // namespace Orva::Plugin
