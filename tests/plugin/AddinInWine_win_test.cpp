#include <shlobj.h>
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>
#include <type_traits>

#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"
#include "plugin/AgentProtocol.h"
#include "plugin/ControllerProtocol.h"
#include "support/FileBytes.h"
#include "support/MessagePump_win.h"
#include "support/TempFolder.h"
#include "tools/sim/agent/SimAgentProtocol.h"

namespace Orva::Plugin {
namespace {

struct LibraryCloser {
    void operator()(HMODULE module) const { ::FreeLibrary(module); }
};
using UniqueModule = std::unique_ptr<std::remove_pointer_t<HMODULE>, LibraryCloser>;

template <class Function>
Function ExportAs(FARPROC address) {
    // Going through void(*)() is the documented way to silence the function-type cast warning.
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(address));
}

std::wstring ProgramFolder() {
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    return ZelCommon::Path::FolderOf(path);
}

// The debug log's folder for the identity Wine has ("Default").
std::filesystem::path LogFolder() {
    wchar_t common[MAX_PATH] = {};
    ::SHGetSpecialFolderPathW(nullptr, common, CSIDL_COMMON_APPDATA, FALSE);
    return std::filesystem::path(common) / L"Halvion" / L"WLM" / L"Users" / L"Default" / L"log";
}

std::wstring ImagePathOfWindowsProcess(HWND window) {
    DWORD processId = 0;
    ::GetWindowThreadProcessId(window, &processId);
    const HANDLE process = ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId);
    wchar_t path[MAX_PATH] = {};
    DWORD size = MAX_PATH;
    if (process != nullptr) {
        ::QueryFullProcessImageNameW(process, 0, path, &size);
        ::CloseHandle(process);
    }
    return path;
}

// The x86_64 build of the add-in, loaded from beside this program as the host loads it, with
// the simulated agent beside it and the deployment's debug log switched on.
class AddinInWine : public testing::Test {
protected:
    AddinInWine() {
        Testing::CloseWindowsTitled(kAgentTitle);
        std::error_code ignored;
        std::filesystem::remove_all(LogFolder(), ignored);
        ::SetEnvironmentVariableW(Orva::Sim::kRecordVariable, record.c_str());
        ::WritePrivateProfileStringW(L"General", L"Debug", L"1", installFile.c_str());
        addin.reset(::LoadLibraryW(L"ORVA_WLMA.dll"));
    }
    ~AddinInWine() override {
        addin.reset();
        Testing::CloseWindowsTitled(kAgentTitle);
        ::SetEnvironmentVariableW(Orva::Sim::kRecordVariable, nullptr);
        ::DeleteFileW(installFile.c_str());
    }

    BOOL InitializePlugin() {
        return ExportAs<BOOL (*)()>(::GetProcAddress(addin.get(), "InitializePlugin"))();
    }
    HWND Controller() const { return ::FindWindowW(kControllerClass.c_str(), nullptr); }

    // What the init sink does when the mail client shuts down, as far as the controller sees.
    void ShutDownController() {
        const HWND controller = Controller();
        ::SendMessageW(controller, ControllerMessage::MailClientShutdown, 0, 0);
        ::PostMessageW(controller, ControllerMessage::Close, 0, 0);
        Testing::PumpMessagesUntil([&] { return !::IsWindow(controller); });
    }

    // Every line the add-in's debug log holds so far.
    static std::string LogText() {
        std::string text;
        std::error_code error;
        for (const auto& file : std::filesystem::directory_iterator(LogFolder(), error)) {
            text += Testing::ReadFileBytes(file.path());
        }
        return text;
    }
    static bool LogShows(const std::string& line) {
        return Testing::PumpMessagesUntil([&] { return LogText().find(line) != std::string::npos; },
                                          2000);
    }

    const std::wstring kAgentTitle{kAgentWindowTitle};
    const std::wstring kControllerClass{kControllerClassName};
    Testing::TempFolder folder;
    std::wstring record = folder.File(L"agent.txt");
    std::wstring installFile = ProgramFolder() + L"ORVA_WLM.ini";
    UniqueModule addin;
};

TEST_F(AddinInWine, FirstCall_StartsTheAgentFromTheAddinFolderAndTheControllerOnce) {
    ASSERT_NE(addin, nullptr) << ::GetLastError();
    EXPECT_EQ(Controller(), nullptr);

    EXPECT_EQ(InitializePlugin(), TRUE);
    EXPECT_EQ(InitializePlugin(), TRUE);

    const HWND controller = Controller();
    ASSERT_NE(controller, nullptr);
    EXPECT_EQ(::GetWindowThreadProcessId(controller, nullptr), ::GetCurrentThreadId());
    const HWND agent = Testing::WaitForWindowTitled(kAgentTitle);
    ASSERT_NE(agent, nullptr);
    EXPECT_EQ(ZelCommon::Path::FolderOf(ImagePathOfWindowsProcess(agent)), ProgramFolder());
    EXPECT_EQ(::SendMessageW(controller, ControllerMessage::AgentReady, 0, 0), 0);
    EXPECT_TRUE(LogShows("WLM Shadow is OK now!"));

    ShutDownController();
    EXPECT_FALSE(::IsWindow(controller));
    EXPECT_TRUE(LogShows("CToolBarWnd::OnClose() wait for on shutdown success"));

    // Classes are kept by module handle: the value is enough to ask after the unload.
    const HMODULE loadedAt = addin.get();
    addin.reset();
    WNDCLASSW registered{};
    EXPECT_FALSE(::GetClassInfoW(loadedAt, kControllerClass.c_str(), &registered));
}

TEST_F(AddinInWine, UnloadWithoutTheHostsShutdown_LeavesNoWindowBehind) {
    ASSERT_NE(addin, nullptr) << ::GetLastError();
    ASSERT_EQ(InitializePlugin(), TRUE);
    ASSERT_NE(Controller(), nullptr);
    const HMODULE loadedAt = addin.get();
    WNDCLASSW registered{};
    ASSERT_TRUE(::GetClassInfoW(loadedAt, kControllerClass.c_str(), &registered));

    addin.reset();

    EXPECT_EQ(Controller(), nullptr);
    EXPECT_FALSE(::GetClassInfoW(loadedAt, kControllerClass.c_str(), &registered));
}

TEST_F(AddinInWine, CopyDataFromTheAgent_OnlyAWholeFlaggedRecordAsksToDeleteAllSpam) {
    ASSERT_NE(addin, nullptr) << ::GetLastError();
    ASSERT_EQ(InitializePlugin(), TRUE);
    const HWND agent = Testing::WaitForWindowTitled(kAgentTitle);
    ASSERT_NE(agent, nullptr);
    // The spam folder's part is not built yet: its first use is logged.
    const std::string deletion = "### The spam folder is not part of this build yet";

    Orva::Sim::AgentCommand copy;
    copy.delivery = Orva::Sim::Delivery::CopyData;
    copy.copyDataId = 1078;
    copy.payload = {1, 2, 3};
    EXPECT_EQ(Testing::SendAgentCommand(agent, copy), 1);
    copy.payload.assign(17, 0);
    EXPECT_EQ(Testing::SendAgentCommand(agent, copy), 1);
    EXPECT_TRUE(LogShows("ignored dwData=[1078], cbData=[3]"));
    EXPECT_EQ(LogText().find(deletion), std::string::npos);
    EXPECT_NE(Controller(), nullptr);

    copy.payload[16] = 1;
    EXPECT_EQ(Testing::SendAgentCommand(agent, copy), 1);
    EXPECT_TRUE(LogShows(deletion));

    ShutDownController();
}

}  // namespace
}  // namespace Orva::Plugin
