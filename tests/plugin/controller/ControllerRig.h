#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "plugin/agent/AgentLink.h"
#include "plugin/controller/ToolBarController.h"
#include "plugin/protocol/AgentProtocol.h"
#include "plugin/protocol/ControllerProtocol.h"
#include "settings/SettingsStore.h"
#include "settings/log/DebugLog.h"
#include "settings/probes/OsInfo.h"
#include "support/TempFolder.h"
#include "support/fakes/ZelCommon/FakeProfileApi.h"
#include "support/fakes/platform/FakeClock.h"
#include "support/fakes/platform/FakeJournal.h"
#include "support/fakes/platform/FakeProcessContext.h"
#include "support/fakes/platform/FakeSystemPorts.h"
#include "support/fakes/platform/FakeWindowMessaging.h"
#include "support/fakes/platform/JournalDebuggerOutput.h"
#include "support/fakes/plugin/FakePluginPorts.h"

namespace Orva::Testing {

using ZelCommon::Fakes::JournalDebuggerOutput;
using ZelCommon::Fakes::JournalPlainDebugger;

class FakeOsInfo final : public Orva::Settings::IOsInfo {
public:
    bool QueryVersion(Orva::Settings::OsVersionRecord& record) override {
        record.platformId = 2;
        record.majorVersion = majorVersion;
        return true;
    }
    uint16_t NativeProcessorArchitecture() override { return 0; }
    int32_t ServerR2Metric() override { return 0; }

    uint32_t majorVersion = 6;
};

inline std::wstring LogEntry(const std::wstring& text) {
    return L"log " + text;
}

inline std::wstring AgentEntry(const wchar_t* delivery, uint32_t message, uintptr_t wParam = 0,
                               intptr_t lParam = 0) {
    return std::wstring(delivery) + L" " + std::wstring(Plugin::kAgentWindowTitle) + L" " +
           std::to_wstring(message) + L" " + std::to_wstring(wParam) + L" " +
           std::to_wstring(lParam);
}

// Log lines that scenarios of several of the controller's messages share.
inline const std::wstring kShadowRetry =
    LogEntry(L"CToolBarWnd::ShutdownShadowEX() Get Shadow handle failed, retry");
inline const std::wstring kClickIn = LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton  IN");
inline const std::wstring kClickOut = LogEntry(L"@@@ CToolBarWnd::OnClickRibbonButton  OUT");
inline const std::wstring kSwitchIn = LogEntry(L"@@@ CToolBarWnd::EnableRibbonToolbar  IN");
inline const std::wstring kSwitchOut = LogEntry(L"@@@ CToolBarWnd::EnableRibbonToolbar  OUT");
inline const std::wstring kReQueryIn = LogEntry(L"@@@ CToolBarWnd::OnReQueryDefaultAccount  IN");
inline const std::wstring kReQueryOut = LogEntry(L"@@@ CToolBarWnd::OnReQueryDefaultAccount  OUT");
inline const std::wstring kNoticeSent = LogEntry(
    L"@@@ CToolBarWnd::OnReQueryDefaultAccount(), Sucess to post message to ORVA_WLM "
    L"about default account info.");

// What a test puts in place of the rig's own fakes (the real messaging or
// hook under Wine, a part that fails).
struct ControllerReplacements {
    ZelCommon::Platform::IWindowMessaging* messaging = nullptr;
    ZelCommon::Platform::IWindowProcedureHook* hook = nullptr;
    Plugin::IRibbonCommands* ribbon = nullptr;
    Plugin::ISpamFolder* spamFolder = nullptr;
    Plugin::CAgentLink* agent = nullptr;
};

// A spam folder whose every operation but the delete-all does nothing.
class QuietSpamFolder : public Plugin::ISpamFolder {
public:
    int CreateSpamMailFolder(bool) override { return 1; }
    void PostCleanDeletedFolder() override {}
    void ReleaseStore() override {}
    void OnFolderSelectionChanged(uint64_t) override {}
};

// Every port and part of the controller as a recording fake, all writing into one journal.
struct ControllerRig {
    ControllerRig() {
        log.OpenLog(folder.File(L"plugin.log"));
        messaging.SetJournal(&journal);
        clock.SetJournal(&journal);
        for (ZelCommon::Fakes::JournalNotes* fake :
             std::initializer_list<ZelCommon::Fakes::JournalNotes*>{
                 &launcher, &shutdownDone, &hook, &shell, &window, &host, &ribbon, &classic,
                 &spamFolder, &account, &dialogs, &strings}) {
            fake->SetJournal(&journal);
        }
        controllerWindow = messaging.AddWindow(std::wstring(Plugin::kControllerWindowTitle),
                                               std::wstring(Plugin::kControllerClassName));
    }

    Plugin::ControllerPorts Ports(const ControllerReplacements& with = {}) {
        auto& messagingPort = with.messaging ? *with.messaging : messaging;
        auto& hookPort = with.hook ? *with.hook : hook;
        return {messagingPort, clock,         shutdownDone, hookPort, shell,   keyboard,
                process,       plainDebugger, os,           host,     version, log};
    }
    Plugin::ControllerParts Parts(const ControllerReplacements& with = {}) {
        auto& ribbonPart = with.ribbon ? *with.ribbon : ribbon;
        auto& spamFolderPart = with.spamFolder ? *with.spamFolder : spamFolder;
        return {ribbonPart, classic, spamFolderPart, account,
                dialogs,    strings, settings,       with.agent ? *with.agent : agent};
    }

    std::unique_ptr<Plugin::CToolBarController> MakeController(
        const ControllerReplacements& with = {}) {
        return std::make_unique<Plugin::CToolBarController>(Ports(with), Parts(with), window);
    }

    // Built on first use, so that a test can prepare the settings it reads when created.
    Plugin::CToolBarController& Controller() {
        if (!controller) {
            controller = MakeController();
            controller->SetWindow(controllerWindow);
        }
        return *controller;
    }

    std::optional<intptr_t> Dispatch(uint32_t message, uintptr_t wParam = 0, intptr_t lParam = 0) {
        return Controller().Dispatch({message, wParam, lParam, 0, {}});
    }

    ZelCommon::Platform::WindowHandle AddAgent(unsigned missedLookups = 0) {
        return messaging.AddWindow(std::wstring(Plugin::kAgentWindowTitle), L"", missedLookups);
    }
    ZelCommon::Platform::WindowHandle AddSuite() {
        return messaging.AddWindow(std::wstring(Plugin::kSuiteWindowTitle));
    }
    void SetEnableTBar(const std::wstring& value) {
        profile.Set(L"Antispam", L"EnableTBar", value);
    }

    std::vector<std::wstring> Journal() const { return journal.Entries(); }

    TempFolder folder;
    ZelCommon::Fakes::FakeJournal journal;
    ZelCommon::Fakes::FakeClock logClock;
    ZelCommon::Fakes::FakeProcessContext process;
    JournalDebuggerOutput debugger{journal};
    ZelCommon::Library::DebugLog log{logClock, process, debugger};

    ZelCommon::Fakes::FakeWindowMessaging messaging;
    ZelCommon::Fakes::FakeClock clock;
    ZelCommon::Fakes::FakeProcessLauncher launcher;
    ZelCommon::Fakes::FakeEvent shutdownDone;
    ZelCommon::Fakes::FakeWindowProcedureHook hook;
    ZelCommon::Fakes::FakeShellOpen shell;
    ZelCommon::Fakes::FakeKeyboard keyboard;
    JournalPlainDebugger plainDebugger{journal};
    FakeOsInfo os;
    ZelCommon::Fakes::FakeControllerWindow window;
    ZelCommon::Fakes::FakeHostObjects host;
    ZelCommon::Fakes::FakeMailClientVersion version{16};

    ZelCommon::Fakes::FakeRibbonCommands ribbon;
    ZelCommon::Fakes::FakeClassicBand classic;
    ZelCommon::Fakes::FakeSpamFolder spamFolder;
    ZelCommon::Fakes::FakeAccountCheck account;
    ZelCommon::Fakes::FakeCommandDialogs dialogs;
    ZelCommon::Fakes::FakeLocalisedStrings strings;

    ZelCommon::Fakes::FakeProfileApi profile;
    Orva::Settings::SettingsStore settings{
        profile, Orva::Settings::SettingsFiles{L"C:\\Addin\\ORVA_WLM.ini",
                                               L"C:\\Data\\Users\\Default\\ORVA_WLM.ini",
                                               L"C:\\Data\\ORVA_version.ini", false}};
    Plugin::CAgentLink agent{messaging, clock, launcher, log, L"C:\\Addin\\"};
    std::unique_ptr<Plugin::CToolBarController> controller;
    ZelCommon::Platform::WindowHandle controllerWindow = 0;
};

// The arrangements most scenarios start from: the user interface built, the agent running.
inline void Built(ControllerRig& rig) {
    rig.Dispatch(4029);
}
inline void BuiltWithAgent(ControllerRig& rig) {
    Built(rig);
    rig.AddAgent();
}

// A message to the controller window, or with `mainWindow` set, to the procedure that
// subclasses the mail client's main window.
struct Sent {
    uint32_t message;
    uintptr_t wParam = 0;
    intptr_t lParam = 0;
    uintptr_t mainWindow = 0;
};

// How the controller answered a message: "answer <n>", or "answer default" when the message is
// left to the default processing.
inline std::wstring Answer(std::optional<intptr_t> result) {
    return L"answer " + (result ? std::to_wstring(*result) : std::wstring(L"default"));
}

// Journal entries in a row, for the long stretches a scenario repeats.
inline std::vector<std::wstring> Journal(std::initializer_list<std::vector<std::wstring>> parts) {
    std::vector<std::wstring> entries;
    for (const std::vector<std::wstring>& part : parts) {
        entries.insert(entries.end(), part.begin(), part.end());
    }
    return entries;
}
inline std::vector<std::wstring> Times(int count, const std::vector<std::wstring>& entries) {
    std::vector<std::wstring> repeated;
    for (int i = 0; i < count; ++i) {
        repeated.insert(repeated.end(), entries.begin(), entries.end());
    }
    return repeated;
}

// One scenario of the controller: the rig arranged (messages it dispatches there are not
// journaled), then `messages` dispatched, each followed in the journal by its answer.
struct ControllerCase {
    const char* name;
    std::function<void(ControllerRig&)> arrange;
    std::vector<Sent> messages;
    std::vector<std::wstring> journal;
    // What else the scenario leaves behind, when the journal cannot show it.
    std::function<void(ControllerRig&)> check = nullptr;
};

inline void RunControllerCases(const std::vector<ControllerCase>& cases) {
    for (const ControllerCase& each : cases) {
        SCOPED_TRACE(each.name);
        ControllerRig rig;
        if (each.arrange) {
            each.arrange(rig);
        }
        rig.journal.Clear();
        rig.messaging.ClearMessages();
        for (const Sent& sent : each.messages) {
            const std::optional<intptr_t> result =
                sent.mainWindow != 0 ? std::optional<intptr_t>(rig.Controller().HookProcedure(
                                           sent.mainWindow, sent.message, sent.wParam, sent.lParam))
                                     : rig.Dispatch(sent.message, sent.wParam, sent.lParam);
            rig.journal.Add(Answer(result));
        }
        EXPECT_EQ(rig.Journal(), each.journal);
        if (each.check) {
            each.check(rig);
        }
    }
}

}  // namespace Orva::Testing
