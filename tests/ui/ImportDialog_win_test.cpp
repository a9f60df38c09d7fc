#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "lists/SenderListSet.h"
#include "settings/probes/ProbeLog.h"
#include "support/ModalDriver_win.h"
#include "support/TempFolder.h"
#include "support/TestWindow_win.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "support/fakes/platform/FakeWindowMessaging.h"
#include "support/fakes/plugin/FakeContacts.h"
#include "ui/ContactImportRun.h"
#include "ui/ImportDialog_win.h"
#include "ui/ImportIds.h"
#include "ui/PageRig.h"

namespace Orva::Ui {
namespace {

class NoQuestions final : public IMessageBoxes {
public:
    BoxAnswer Show(ZelCommon::Platform::WindowHandle, const std::wstring&, const std::wstring&,
                   uint32_t) override {
        return BoxAnswer::No;
    }
};

// The real window over a slow address book: the user waits for an address to show, then clicks
// Cancel; the run ends before the book does, with what it added saved.
TEST(ImportDialog, CancelClickedMidRun_StopsAndSavesWhatWasAdded) {
    Testing::TestWindow owner(L"OrvaImportOwner", L"Mail", &::DefWindowProcW);
    ::ShowWindow(owner.get(), SW_SHOW);
    constexpr int kContacts = 5000;
    ZelCommon::Fakes::FakeContacts book;
    for (int i = 0; i < kContacts; ++i) {
        book.contacts.push_back({L"P", {L"p" + std::to_wstring(i) + L"@example.com"}});
    }
    book.onRead = [](size_t) { ::Sleep(2); };
    Testing::TempFolder folder;
    const Lists::SenderListPaths paths = Lists::SenderListPathsIn(folder.Path());
    Testing::MapStrings strings;
    CImportDlg dialog(strings, owner.get());
    NoQuestions boxes;
    ZelCommon::Fakes::FakeWindowMessaging messaging;
    ZelCommon::Fakes::FakeProcessContext process;
    Testing::ProbeLog log;
    bool ownerDisabled = false;
    std::wstring shown;
    Testing::CModalDriver driver({
        {"an address is shown",
         [&] {
             const HWND window = Testing::FindDialogHolding(IDC_IMPORT_ADDRESS);
             wchar_t text[128] = {};
             ::GetDlgItemTextW(window, IDC_IMPORT_ADDRESS, text, 128);
             shown = text;
             return window != nullptr && !shown.empty();
         }},
        {"click Cancel",
         [&] {
             const HWND window = Testing::FindDialogHolding(IDC_IMPORT_ADDRESS);
             ownerDisabled = !::IsWindowEnabled(owner.get());
             Testing::Click(::GetDlgItem(window, IDCANCEL));
             return true;
         }},
    });
    const ContactImportOutcome outcome =
        ImportContactList({book, dialog, boxes, strings, messaging, process, log.Log()}, paths);
    EXPECT_TRUE(driver.Finished()) << driver.Failure();
    EXPECT_TRUE(outcome.cancelled);
    EXPECT_GT(outcome.added, 0);
    EXPECT_LT(outcome.added, kContacts);
    Lists::CWListSet saved;
    saved.Load(paths.approved);
    EXPECT_EQ(saved.Count(), static_cast<size_t>(outcome.added));
    EXPECT_TRUE(shown.ends_with(L"@example.com")) << shown;
    EXPECT_TRUE(ownerDisabled);
    EXPECT_TRUE(::IsWindowEnabled(owner.get()));
    EXPECT_EQ(Testing::FindDialogHolding(IDC_IMPORT_ADDRESS), nullptr);
}

}  // namespace
}  // namespace Orva::Ui
