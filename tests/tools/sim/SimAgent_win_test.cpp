#include <windows.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common_src/platform/Path.h"
#include "common_src/platform/UniqueAny_win.h"
#include "support/FileBytes.h"
#include "support/MessagePump_win.h"
#include "support/ProgramFolder.h"
#include "support/TempFolder.h"
#include "tools/sim/agent/SimAgentProtocol.h"

namespace Orva::Sim {
namespace {

constexpr wchar_t kControllerClass[] = L"{459F0EC1-7A80-47c5-A264-B8285F4041DD}";

using ZelCommon::Platform::unique_handle;
using ZelCommon::Platform::unique_hwnd;

// Starts the agent beside this program as the add-in does: quoted path, then the title.
class AgentProcess {
public:
    AgentProcess(const std::wstring& title, const std::wstring& recordPath) : m_title(title) {
        SetEnvironmentVariableW(kRecordVariable, recordPath.c_str());
        std::wstring commandLine = L"\"" + Testing::ProgramFolder() + L"ORVA_WLM.exe\" " + title;
        STARTUPINFOW startup{};
        startup.cb = sizeof(startup);
        PROCESS_INFORMATION info{};
        if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                           nullptr, &startup, &info)) {
            m_process.reset(info.hProcess);
            CloseHandle(info.hThread);
        }
    }
    ~AgentProcess() {
        if (m_process && WaitForSingleObject(m_process.get(), 0) == WAIT_TIMEOUT) {
            TerminateProcess(m_process.get(), 1);
        }
    }

    HWND WaitForWindow() const {
        return m_process ? Testing::WaitForWindowTitled(m_title) : nullptr;
    }
    bool WaitForExit() const {
        return m_process && WaitForSingleObject(m_process.get(), 10000) == WAIT_OBJECT_0;
    }

private:
    std::wstring m_title;
    unique_handle m_process;
};

std::wstring UniqueTitle() {
    return L"OrvaSimAgentTest-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
           std::to_wstring(GetTickCount());
}

TEST(SimulatedAgent, RecordsWhatItReceivesAndStopsOn1069) {
    Testing::TempFolder folder;
    const std::wstring record = folder.File(L"record.txt");
    AgentProcess agent(UniqueTitle(), record);
    const HWND window = agent.WaitForWindow();
    ASSERT_NE(window, nullptr);

    // Windows hands a thread its sent messages before its posted ones, so the sends go first.
    EXPECT_EQ(SendMessageW(window, 1045, 0, 0), 1);
    uint8_t payload[] = {1, 2, 3};
    COPYDATASTRUCT data{1078, sizeof(payload), payload};
    SendMessageW(window, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data));
    EXPECT_TRUE(PostMessageW(window, 1041, 0, 0));
    EXPECT_TRUE(PostMessageW(window, 1069, 0, 0));

    ASSERT_TRUE(agent.WaitForExit());
    EXPECT_EQ(Testing::ReadFileBytes(record),
              "sent 1045 0 0\ncopydata 1078 3 010203\nposted 1041 0 0\nposted 1069 0 0\n");
}

// A window of the controller's class that keeps what reaches it.
struct ReceivedMessage {
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    ULONG_PTR copyDataId;
    std::vector<uint8_t> copyData;
};
std::vector<ReceivedMessage>& Received() {
    static std::vector<ReceivedMessage> received;
    return received;
}

LRESULT CALLBACK ControllerProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_COPYDATA) {
        const auto* data = reinterpret_cast<const COPYDATASTRUCT*>(lParam);
        const auto* bytes = static_cast<const uint8_t*>(data->lpData);
        Received().push_back(
            {message, wParam, 0, data->dwData, std::vector<uint8_t>(bytes, bytes + data->cbData)});
        return 0;
    }
    if (message >= WM_USER) {
        Received().push_back({message, wParam, lParam, 0, {}});
        return 7;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

unique_hwnd CreateController() {
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = ControllerProc;
    windowClass.hInstance = GetModuleHandleW(nullptr);
    windowClass.lpszClassName = kControllerClass;
    RegisterClassW(&windowClass);
    return unique_hwnd(CreateWindowExW(0, kControllerClass, L"", WS_POPUP, 0, 0, 0, 0, nullptr,
                                       nullptr, GetModuleHandleW(nullptr), nullptr));
}

TEST(SimulatedAgent, DeliversCommandedMessagesToTheController) {
    Received().clear();
    unique_hwnd controller = CreateController();
    ASSERT_TRUE(controller);
    Testing::TempFolder folder;
    AgentProcess agent(UniqueTitle(), folder.File(L"record.txt"));
    const HWND window = agent.WaitForWindow();
    ASSERT_NE(window, nullptr);

    AgentCommand ready;
    ready.message = 1075;
    EXPECT_EQ(Testing::SendAgentCommand(window, ready), 1);
    Testing::PumpMessagesUntil([] { return !Received().empty(); });

    AgentCommand hook;
    hook.delivery = Delivery::Send;
    hook.message = 1058;
    hook.wParam = 0x1234;
    EXPECT_EQ(Testing::SendAgentCommand(window, hook), 1);

    AgentCommand deleteAll;
    deleteAll.delivery = Delivery::CopyData;
    deleteAll.copyDataId = 1078;
    deleteAll.payload.assign(17, 0);
    deleteAll.payload[16] = 1;
    EXPECT_EQ(Testing::SendAgentCommand(window, deleteAll), 1);

    ASSERT_EQ(Received().size(), 3u);
    EXPECT_EQ(Received()[0].message, 1075u);
    EXPECT_EQ(Received()[1].message, 1058u);
    EXPECT_EQ(Received()[1].wParam, 0x1234u);
    EXPECT_EQ(Received()[2].message, static_cast<UINT>(WM_COPYDATA));
    EXPECT_EQ(Received()[2].copyDataId, 1078u);
    EXPECT_EQ(Received()[2].copyData, deleteAll.payload);

    SendMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_TRUE(agent.WaitForExit());
}

}  // namespace
}  // namespace Orva::Sim
