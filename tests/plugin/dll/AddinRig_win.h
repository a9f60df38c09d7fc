#pragma once

#include <shlobj.h>
#include <windows.h>

#include <gtest/gtest.h>
#include <objbase.h>

#include <cwchar>
#include <filesystem>
#include <functional>
#include <string>

#include "common_src/platform/Path.h"
#include "common_src/platform/TextCodec.h"
#include "common_src/platform/UniqueAny_win.h"
#include "plugin/host/FakeHostObject_win.h"
#include "plugin/host/FakeRibbonHost_win.h"
#include "plugin/protocol/AgentProtocol.h"
#include "plugin/protocol/ControllerProtocol.h"
#include "support/FileBytes.h"
#include "support/MessagePump_win.h"
#include "support/ModalDriver_win.h"
#include "support/ProgramFolder.h"
#include "support/TempFolder.h"
#include "support/fakes/mailstore/ComMailStoreFacade_win.h"
#include "support/fakes/mailstore/FakeMailStore.h"
#include "tools/sim/agent/SimAgentProtocol.h"

namespace Orva::Plugin {

template <class Function>
Function ExportAs(FARPROC address) {
    // Going through void(*)() is the documented way to silence the function-type cast warning.
    return reinterpret_cast<Function>(reinterpret_cast<void (*)()>(address));
}

// The debug log's folder for the identity Wine has ("Default").
inline std::filesystem::path LogFolder() {
    wchar_t common[MAX_PATH] = {};
    ::SHGetSpecialFolderPathW(nullptr, common, CSIDL_COMMON_APPDATA, FALSE);
    return std::filesystem::path(common) / L"Halvion" / L"WLM" / L"Users" / L"Default" / L"log";
}

inline std::wstring ImagePathOfWindowsProcess(HWND window) {
    DWORD processId = 0;
    ::GetWindowThreadProcessId(window, &processId);
    const ZelCommon::Platform::unique_handle process(
        ::OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processId));
    wchar_t path[MAX_PATH] = {};
    DWORD size = MAX_PATH;
    if (process) {
        ::QueryFullProcessImageNameW(process.get(), 0, path, &size);
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
    std::wstring installFile = Testing::ProgramFolder() + L"ORVA_WLM.ini";
    ZelCommon::Platform::unique_hmodule addin;
};

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
inline IUnknown& Identity(Testing::FakeHostObject& object) {
    return static_cast<IConnectionPointContainer&>(object);
}
inline IUnknown& Identity(Testing::FakeRibbonHost& host) {
    return *host.object.Get();
}

// Hands out one fake host object, as the plug-in host's class factory would.
class FakeHostFactory final : public IClassFactory {
public:
    explicit FakeHostFactory(IUnknown& object) : m_object(object) {}

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (iid != IID_IUnknown && iid != IID_IClassFactory) {
            *object = nullptr;
            return E_NOINTERFACE;
        }
        *object = static_cast<IClassFactory*>(this);
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++m_references; }
    STDMETHODIMP_(ULONG) Release() override { return --m_references; }
    STDMETHODIMP CreateInstance(IUnknown* outer, REFIID iid, void** object) override {
        *object = nullptr;
        if (outer != nullptr) {
            return CLASS_E_NOAGGREGATION;
        }
        return m_object.QueryInterface(iid, object);
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    IUnknown& m_object;
    ULONG m_references = 0;
};
#pragma GCC diagnostic pop

// An object registered in this process under its ProgID, as the plug-in host registers its
// classes, for as long as the registration lives.
class RegisteredObject {
public:
    RegisteredObject(const wchar_t* progId, const CLSID& classId, IUnknown& object)
        : m_progId(progId), m_factory(object) {
        wchar_t text[40] = {};
        ::StringFromGUID2(classId, text, 40);
        // Wine's ProgID lookup reads the machine's classes only, not the user's overlay.
        const std::wstring key = m_progId + L"\\CLSID";
        ::RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, text,
                          static_cast<DWORD>((std::wcslen(text) + 1) * sizeof(wchar_t)));
        ::CoRegisterClassObject(classId, &m_factory, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE,
                                &m_cookie);
    }
    ~RegisteredObject() {
        ::CoRevokeClassObject(m_cookie);
        ::RegDeleteTreeW(HKEY_CLASSES_ROOT, m_progId.c_str());
    }
    RegisteredObject(const RegisteredObject&) = delete;
    RegisteredObject& operator=(const RegisteredObject&) = delete;

private:
    std::wstring m_progId;
    FakeHostFactory m_factory;
    DWORD m_cookie = 0;
};

// A fake host object of the test's, registered.
template <class Object>
class RegisteredHostClass {
public:
    RegisteredHostClass(const wchar_t* progId, const CLSID& classId)
        : m_registration(progId, classId, Identity(object)) {}

    Object object;

private:
    RegisteredObject m_registration;
};

constexpr CLSID kInitClass = {
    0x3f0b5a61, 0x2c1e, 0x4d7a, {0x8e, 0x21, 0x5b, 0x6c, 0x11, 0x02, 0x9a, 0x41}};
constexpr CLSID kApiClass = {
    0x3f0b5a62, 0x2c1e, 0x4d7a, {0x8e, 0x21, 0x5b, 0x6c, 0x11, 0x02, 0x9a, 0x42}};

// A step that waits until `ready` and then acts.
inline Testing::CModalDriver::NamedStep When(const char* name, std::function<bool()> ready,
                                             std::function<void()> act) {
    return {name, [ready, act] {
                if (!ready()) {
                    return false;
                }
                act();
                return true;
            }};
}

// The loaded add-in with the host's objects and the simulated agent: a ribbon entry opens a
// window of the add-in, and a driver acts inside its modal loop as the user.
class AddinWithRibbon : public AddinInWine {
protected:
    AddinWithRibbon() {
        std::filesystem::create_directories(LogFolder().parent_path());
        ::DeleteFileW(userFile.c_str());
        ::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        init = std::make_unique<RegisteredHostClass<Testing::FakeHostObject>>(
            L"NktWLMailApiInit.WLMailApiInit", kInitClass);
        api = std::make_unique<RegisteredHostClass<Testing::FakeRibbonHost>>(
            L"NktWLMailApi.WLMailApi", kApiClass);
    }
    ~AddinWithRibbon() override {
        if (Controller() != nullptr) {
            init->object.Fire(2, {});  // shut-down
            Testing::PumpMessagesUntil([&] { return Controller() == nullptr; });
        }
        addin.reset();
        api.reset();
        init.reset();
        ::CoUninitialize();
        ::DeleteFileW(userFile.c_str());
    }

    // Starts the add-in as the host does; false when the ribbon's Settings entry is missing.
    bool StartAddin() {
        if (!addin || InitializePlugin() != TRUE ||
            Testing::WaitForWindowTitled(kAgentTitle) == nullptr) {
            return false;
        }
        init->object.Fire(1, {});  // ready
        return api->object.entries.size() == 5;
    }
    // The logo's drop-down entries, in the order the ribbon adds them.
    static constexpr size_t kSettingsEntry = 0;
    static constexpr size_t kStatisticsEntry = 1;
    static constexpr size_t kAboutEntry = 4;

    // Clicks an entry and runs `steps` inside the modal loop of the window it opens. The click
    // reaches the controller as a posted message: the window opens while this thread pumps.
    std::string RunAfterClick(size_t entry, std::vector<Testing::CModalDriver::NamedStep> steps) {
        Testing::CModalDriver driver(std::move(steps));
        api->object.entries[entry]->Fire(1, {});
        Testing::PumpMessagesUntil([&] { return driver.Finished() || !driver.Failure().empty(); },
                                   60000);
        return driver.Finished() ? std::string() : "stopped at: " + driver.Failure();
    }
    std::wstring Setting(const wchar_t* section, const wchar_t* key) const {
        wchar_t value[64] = {};
        ::GetPrivateProfileStringW(section, key, L"<none>", value, 64, userFile.c_str());
        return value;
    }
    std::string AgentRecord() const { return Testing::ReadFileBytes(record); }

    const std::wstring userFile = (LogFolder().parent_path() / L"ORVA_WLM.ini").wstring();
    std::unique_ptr<RegisteredHostClass<Testing::FakeHostObject>> init;
    std::unique_ptr<RegisteredHostClass<Testing::FakeRibbonHost>> api;
};

}  // namespace Orva::Plugin
