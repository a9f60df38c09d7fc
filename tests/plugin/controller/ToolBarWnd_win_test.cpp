#include "plugin/controller/ToolBarWnd_win.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "ControllerRig.h"
#include "common_src/platform/Clock.h"
#include "common_src/platform/Path.h"
#include "common_src/platform/ProcessLauncher.h"
#include "common_src/platform/WindowProcedureHook.h"
#include "support/FileBytes.h"
#include "support/MessagePump_win.h"
#include "support/ProgramFolder.h"
#include "support/TempFolder.h"
#include "support/TestWindow_win.h"

namespace Orva::Plugin {
namespace {

using Testing::ControllerReplacements;
using Testing::ControllerRig;

// A spam folder whose delete-all fails with an exception.
class ThrowingSpamFolder final : public Testing::QuietSpamFolder {
public:
    void ProcDeleteAllSpamMsg(uint64_t, uint64_t, bool) override {
        throw std::runtime_error("store gone");
    }
};

// The controller window over the rig's fakes; messaging and the main-window hook are the
// test's choice, since some tests need the real ones.
struct WindowRig : ControllerRig {
    std::unique_ptr<CToolBarWnd> Open(ZelCommon::Platform::IWindowMessaging& messagingPort,
                                      ZelCommon::Platform::IWindowProcedureHook& hookPort,
                                      ISpamFolder& spamFolderPart,
                                      CAgentLink* agentLink = nullptr) {
        const ControllerReplacements with{.messaging = &messagingPort,
                                          .hook = &hookPort,
                                          .spamFolder = &spamFolderPart,
                                          .agent = agentLink};
        return CToolBarWnd::Create(::GetModuleHandleW(nullptr), Ports(with), Parts(with), log);
    }
    std::unique_ptr<CToolBarWnd> Open() { return Open(messaging, hook, spamFolder); }
};

LRESULT SendCopyData(HWND window, ULONG_PTR id, const void* bytes, DWORD size) {
    COPYDATASTRUCT record{id, size, const_cast<void*>(bytes)};
    return ::SendMessageW(window, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&record));
}

const std::wstring kClass(kControllerClassName);
// Delete-all in folder 0x100000002 of message 0x300000004, flagged.
const uint8_t kRecord[17] = {2, 0, 0, 0, 1, 0, 0, 0, 4, 0, 0, 0, 3, 0, 0, 0, 1};

TEST(ToolBarWndWin, Create_MakesTheTopMostPopupThatEveryoneFindsByClass) {
    WindowRig rig;
    {
        auto wnd = rig.Open();
        ASSERT_NE(wnd, nullptr);

        EXPECT_EQ(::FindWindowW(kClass.c_str(), nullptr), wnd->Handle());
        wchar_t title[64] = {};
        ::GetWindowTextW(wnd->Handle(), title, 64);
        EXPECT_EQ(std::wstring(title), std::wstring(kControllerWindowTitle));
        // Windows adds WS_CLIPSIBLINGS to every top-level window.
        EXPECT_EQ(static_cast<DWORD>(::GetWindowLongW(wnd->Handle(), GWL_STYLE)) &
                      ~static_cast<DWORD>(WS_CLIPSIBLINGS),
                  kControllerWindowStyle);
        EXPECT_NE(::GetWindowLongW(wnd->Handle(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
        EXPECT_FALSE(::IsWindowVisible(wnd->Handle()));
        // A second controller in the same process is refused.
        EXPECT_EQ(rig.Open(), nullptr);
    }
    WNDCLASSW unused{};
    EXPECT_EQ(::FindWindowW(kClass.c_str(), nullptr), nullptr);
    EXPECT_FALSE(::GetClassInfoW(::GetModuleHandleW(nullptr), kClass.c_str(), &unused));
}

// The record arrives through WM_COPYDATA's own structure: its size and data pointer count, not
// the buffer behind them (what a record must hold is the controller's own table).
TEST(ToolBarWndWin, CopyData_TheStructuresSizeAndDataAreWhatCounts) {
    WindowRig rig;
    auto wnd = rig.Open();
    ASSERT_NE(wnd, nullptr);
    rig.journal.Clear();

    EXPECT_EQ(SendCopyData(wnd->Handle(), 1078, kRecord, 16), 0);
    EXPECT_EQ(SendCopyData(wnd->Handle(), 1078, nullptr, 17), 0);
    EXPECT_EQ(SendCopyData(wnd->Handle(), 1078, kRecord, 17), 0);
    EXPECT_EQ(rig.Journal(),
              std::vector<std::wstring>{L"store delete-all 0x100000002 0x300000004 1"});
}

TEST(ToolBarWndWin, AFailingHandler_IsLoggedAndTheWindowLivesOn) {
    WindowRig rig;
    ThrowingSpamFolder throwing;
    auto wnd = rig.Open(rig.messaging, rig.hook, throwing);
    ASSERT_NE(wnd, nullptr);
    rig.journal.Clear();

    EXPECT_EQ(SendCopyData(wnd->Handle(), 1078, kRecord, 17), 0);

    EXPECT_TRUE(wnd->Exists());
    EXPECT_EQ(rig.Journal(),
              std::vector<std::wstring>{L"log xxx CToolBarWnd: message 74 failed: store gone"});
}

// The mail client's main window: its own procedure counts what reaches it.
int g_mainWindowMessages = 0;
bool g_mainWindowClosed = false;
LRESULT CALLBACK MainWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_USER + 7) {
        ++g_mainWindowMessages;
        return 77;
    }
    if (message == WM_CLOSE) {
        g_mainWindowClosed = true;
        return 0;
    }
    return ::DefWindowProcW(window, message, wParam, lParam);
}

TEST(ToolBarWndWin, HookedMainWindow_KeepsWorkingAndIsGivenBackOnItsClose) {
    g_mainWindowMessages = 0;
    g_mainWindowClosed = false;
    WindowRig rig;
    auto hook =
        ZelCommon::Platform::CreateWindowProcedureHook(CToolBarWnd::MainWindowHookProcedure());
    auto wnd = rig.Open(ZelCommon::Platform::SystemWindowMessaging(), *hook, rig.spamFolder);
    ASSERT_NE(wnd, nullptr);
    Testing::TestWindow main(L"Outlook Express Browser Class", L"Mail", MainWindowProcedure);
    const auto original = ::GetWindowLongPtrW(main.get(), GWLP_WNDPROC);

    EXPECT_EQ(::SendMessageW(wnd->Handle(), 1058, reinterpret_cast<WPARAM>(main.get()), 0), 1);
    EXPECT_EQ(::SendMessageW(wnd->Handle(), 1058, reinterpret_cast<WPARAM>(main.get()), 0), 1);
    EXPECT_EQ(static_cast<ZelCommon::Platform::WindowProcedure>(
                  ::GetWindowLongPtrW(main.get(), GWLP_WNDPROC)),
              CToolBarWnd::MainWindowHookProcedure());
    EXPECT_EQ(::SendMessageW(main.get(), WM_USER + 7, 0, 0), 77);
    EXPECT_EQ(g_mainWindowMessages, 1);

    ::SendMessageW(main.get(), WM_CLOSE, 0, 0);

    EXPECT_TRUE(g_mainWindowClosed);
    EXPECT_EQ(::GetWindowLongPtrW(main.get(), GWLP_WNDPROC), original);
}

TEST(ToolBarWndWin, ControllerGoneWhileHooked_GivesTheMainWindowItsProcedureBack) {
    WindowRig rig;
    auto hook =
        ZelCommon::Platform::CreateWindowProcedureHook(CToolBarWnd::MainWindowHookProcedure());
    Testing::TestWindow main(L"Outlook Express Browser Class", L"Mail", MainWindowProcedure);
    const auto original = ::GetWindowLongPtrW(main.get(), GWLP_WNDPROC);
    {
        auto wnd = rig.Open(ZelCommon::Platform::SystemWindowMessaging(), *hook, rig.spamFolder);
        ASSERT_NE(wnd, nullptr);
        ASSERT_EQ(::SendMessageW(wnd->Handle(), 1058, reinterpret_cast<WPARAM>(main.get()), 0), 1);
    }
    EXPECT_EQ(::GetWindowLongPtrW(main.get(), GWLP_WNDPROC), original);
    EXPECT_EQ(::SendMessageW(main.get(), WM_USER + 7, 0, 0), 77);
}

// The real agent, started by the controller's agent link from beside this program, recording
// what reaches it into a file of the test's.
class RealAgentTest : public testing::Test {
protected:
    RealAgentTest() {
        Testing::CloseWindowsTitled(kAgentTitle);
        ::SetEnvironmentVariableW(L"ORVA_SIM_AGENT_RECORD", record.c_str());
    }
    ~RealAgentTest() override {
        Testing::CloseWindowsTitled(kAgentTitle);
        ::SetEnvironmentVariableW(L"ORVA_SIM_AGENT_RECORD", nullptr);
    }

    std::unique_ptr<CToolBarWnd> OpenWithAgent() {
        auto wnd =
            rig.Open(ZelCommon::Platform::SystemWindowMessaging(), *hook, rig.spamFolder, &agent);
        agent.LaunchShadow();
        agentWindow = Testing::WaitForWindowTitled(kAgentTitle);
        return wnd;
    }
    bool RecordShows(const std::string& lines) {
        return Testing::PumpMessagesUntil(
            [&] { return Testing::ReadFileBytes(record).find(lines) != std::string::npos; });
    }

    const std::wstring kAgentTitle{kAgentWindowTitle};
    Testing::TempFolder folder;
    std::wstring record = folder.File(L"agent.txt");
    WindowRig rig;
    std::unique_ptr<ZelCommon::Platform::IWindowProcedureHook> hook =
        ZelCommon::Platform::CreateWindowProcedureHook(CToolBarWnd::MainWindowHookProcedure());
    CAgentLink agent{
        ZelCommon::Platform::SystemWindowMessaging(), ZelCommon::Platform::SystemClock(),
        ZelCommon::Platform::SystemProcessLauncher(), rig.log, Testing::ProgramFolder()};
    HWND agentWindow = nullptr;
};

TEST_F(RealAgentTest, ReportSpamAndNotSpamClicks_ReachTheAgentsProcess) {
    auto wnd = OpenWithAgent();
    ASSERT_NE(wnd, nullptr);
    ASSERT_NE(agentWindow, nullptr);
    ASSERT_EQ(::SendMessageW(wnd->Handle(), 4029, 0, 0), 0);  // the ribbon gets its ids

    ::PostMessageW(wnd->Handle(), 4031, 101, 108);
    ::PostMessageW(wnd->Handle(), 4031, 101, 109);
    EXPECT_TRUE(RecordShows("posted 1041 0 0\nposted 1042 0 0\n"));
}

}  // namespace
}  // namespace Orva::Plugin
