// A stand-in for the scanning agent ORVA_WLM.exe, for tests under Wine: it opens a hidden
// window with the title it is given, records every message it receives, answers sent ones,
// and on command sends the add-in's controller the agent's own messages.
#include <windows.h>

#include <shellapi.h>

#include <cstdio>
#include <span>
#include <string>

#include "common_src/platform/Path.h"
#include "common_src/platform/UniqueAny_win.h"
#include "tools/sim/agent/SimAgentProtocol.h"

namespace {

constexpr wchar_t kAgentTitle[] = L"{56639265-C81B-440d-B5CD-3A7ED4F42777}";
constexpr wchar_t kControllerClass[] = L"{459F0EC1-7A80-47c5-A264-B8285F4041DD}";
constexpr wchar_t kWindowClass[] = L"OrvaSimulatedAgent";
constexpr UINT kFirstUserMessage = WM_USER;
constexpr UINT kStopMessage = WM_USER + 45;  // 1069: the add-in tells the agent to stop

std::wstring ModuleFolder() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return ZelCommon::Path::FolderOf(path);
        }
        path.resize(path.size() * 2);
    }
}

std::wstring RecordPath() {
    wchar_t buffer[MAX_PATH * 2] = {};
    const DWORD length = GetEnvironmentVariableW(Orva::Sim::kRecordVariable, buffer, MAX_PATH * 2);
    if (length > 0 && length < MAX_PATH * 2) {
        return buffer;
    }
    return ZelCommon::Path::ChildFile(ModuleFolder(), Orva::Sim::kDefaultRecordName);
}

// The window title comes as the only argument, as the add-in starts the agent.
std::wstring TitleFromCommandLine() {
    int count = 0;
    const ZelCommon::Platform::unique_hlocal_ptr<LPWSTR> args(
        CommandLineToArgvW(GetCommandLineW(), &count));
    return (args && count > 1) ? std::wstring(args.get()[1]) : std::wstring(kAgentTitle);
}

class SimulatedAgent {
public:
    explicit SimulatedAgent(std::wstring recordPath) : m_recordPath(std::move(recordPath)) {}

    LRESULT Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const bool sent = InSendMessage() != FALSE;
        switch (message) {
            case WM_COPYDATA:
                return OnCopyData(*reinterpret_cast<const COPYDATASTRUCT*>(lParam));
            case WM_CLOSE:
                Record(Orva::Sim::RecordLine(sent, message, wParam, lParam));
                DestroyWindow(window);
                return 0;
            case WM_DESTROY:
                PostQuitMessage(0);
                return 0;
            default:
                break;
        }
        if (message < kFirstUserMessage) {
            return DefWindowProcW(window, message, wParam, lParam);
        }
        Record(Orva::Sim::RecordLine(sent, message, wParam, static_cast<int64_t>(lParam)));
        if (message == kStopMessage) {
            DestroyWindow(window);
        }
        return 1;
    }

private:
    LRESULT OnCopyData(const COPYDATASTRUCT& data) {
        const std::span<const uint8_t> bytes(static_cast<const uint8_t*>(data.lpData),
                                             data.lpData ? data.cbData : 0);
        if (data.dwData != Orva::Sim::kCommandCopyDataId) {
            Record(Orva::Sim::CopyDataRecordLine(static_cast<uint32_t>(data.dwData), bytes));
            return 0;
        }
        const std::optional<Orva::Sim::AgentCommand> command = Orva::Sim::DecodeCommand(bytes);
        return command ? Deliver(*command) : 0;
    }

    // Answers 1 when the controller was found and the message went out.
    static LRESULT Deliver(const Orva::Sim::AgentCommand& command) {
        const HWND controller = FindWindowW(kControllerClass, nullptr);
        if (controller == nullptr) {
            return 0;
        }
        const auto wParam = static_cast<WPARAM>(command.wParam);
        const auto lParam = static_cast<LPARAM>(command.lParam);
        switch (command.delivery) {
            case Orva::Sim::Delivery::Post:
                return PostMessageW(controller, command.message, wParam, lParam) ? 1 : 0;
            case Orva::Sim::Delivery::Send:
                SendMessageW(controller, command.message, wParam, lParam);
                return 1;
            case Orva::Sim::Delivery::CopyData: {
                COPYDATASTRUCT data{};
                data.dwData = command.copyDataId;
                data.cbData = static_cast<DWORD>(command.payload.size());
                data.lpData = const_cast<uint8_t*>(command.payload.data());
                SendMessageW(controller, WM_COPYDATA, 0, reinterpret_cast<LPARAM>(&data));
                return 1;
            }
        }
        return 0;
    }

    // Opened per line so that a test can read the record at any moment.
    void Record(const std::string& line) const {
        if (std::FILE* const file = _wfopen(m_recordPath.c_str(), L"ab")) {
            std::fwrite(line.data(), 1, line.size(), file);
            std::fclose(file);
        }
    }

    std::wstring m_recordPath;
};

LRESULT CALLBACK AgentWindowProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_NCCREATE) {
        const auto* create = reinterpret_cast<const CREATESTRUCTW*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA,
                          reinterpret_cast<LONG_PTR>(create->lpCreateParams));
    }
    auto* agent = reinterpret_cast<SimulatedAgent*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return agent ? agent->Handle(window, message, wParam, lParam)
                 : DefWindowProcW(window, message, wParam, lParam);
}

}  // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, LPWSTR, int) {
    SimulatedAgent agent(RecordPath());
    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = AgentWindowProc;
    windowClass.hInstance = instance;
    windowClass.lpszClassName = kWindowClass;
    if (RegisterClassW(&windowClass) == 0) {
        return 1;
    }
    // A hidden top-level window, not a message-only one: FindWindowW must find it by title.
    const std::wstring title = TitleFromCommandLine();
    if (CreateWindowExW(0, kWindowClass, title.c_str(), WS_POPUP, 0, 0, 0, 0, nullptr, nullptr,
                        instance, &agent) == nullptr) {
        return 1;
    }
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    return 0;
}
