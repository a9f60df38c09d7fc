#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "common_src/platform/Event.h"
#include "common_src/platform/Keyboard.h"
#include "common_src/platform/ProcessLauncher.h"
#include "common_src/platform/ShellOpen.h"
#include "common_src/platform/WindowProcedureHook.h"
#include "support/fakes/platform/FakeJournal.h"

namespace ZelCommon::Fakes {

// Writes a fake's calls into a shared journal when the test gave one.
class JournalNotes {
public:
    void SetJournal(FakeJournal* journal) { m_journal = journal; }

protected:
    void Note(const std::wstring& entry) const {
        if (m_journal != nullptr) {
            m_journal->Add(entry);
        }
    }

private:
    FakeJournal* m_journal = nullptr;
};

// Records each launch ("launch <command line>|<working folder>"); succeeds unless told to fail.
// onLaunch runs after a successful launch, e.g. to let the agent's window appear.
class FakeProcessLauncher final : public Platform::IProcessLauncher, public JournalNotes {
public:
    struct LaunchCall {
        std::wstring commandLine;
        std::wstring workingFolder;
    };
    bool Launch(const std::wstring& commandLine, const std::wstring& workingFolder) override;

    void SetResult(bool succeeds) { m_succeeds = succeeds; }
    std::function<void()> onLaunch;
    const std::vector<LaunchCall>& Launches() const { return m_launches; }

private:
    bool m_succeeds = true;
    std::vector<LaunchCall> m_launches;
};

// An auto-reset event in memory: a wait succeeds when the event was set (and consumes it), or
// when the test says the other side signals in time. Records "event set" and "event wait <ms>".
class FakeEvent final : public Platform::IEvent, public JournalNotes {
public:
    void Set() override;
    bool Wait(uint32_t milliseconds) override;

    void SignalDuringWaits(bool signals) { m_signalDuringWaits = signals; }

private:
    bool m_set = false;
    bool m_signalDuringWaits = false;
};

// Window procedures kept per window; the add-in's hook is a recognisable value.
class FakeWindowProcedureHook final : public Platform::IWindowProcedureHook, public JournalNotes {
public:
    static constexpr Platform::WindowProcedure kHookProcedure = 0xAD0;

    Platform::WindowProcedure CurrentProcedure(Platform::WindowHandle window) override;
    bool InstallHook(Platform::WindowHandle window) override;
    bool Restore(Platform::WindowHandle window, Platform::WindowProcedure procedure) override;
    // Recorded as "call 0x<procedure> <message>" and "default <message>"; both answer
    // `answer`.
    intptr_t CallProcedure(Platform::WindowProcedure procedure, Platform::WindowHandle window,
                           uint32_t message, uintptr_t wParam, intptr_t lParam) override;
    intptr_t CallDefault(Platform::WindowHandle window, uint32_t message, uintptr_t wParam,
                         intptr_t lParam) override;
    intptr_t answer = 0;

    void SetProcedure(Platform::WindowHandle window, Platform::WindowProcedure procedure) {
        m_procedures[window] = procedure;
    }
    Platform::WindowProcedure ProcedureOf(Platform::WindowHandle window) const;
    void FailInstalls(bool fail) { m_failInstalls = fail; }
    void FailRestores(bool fail) { m_failRestores = fail; }

private:
    std::map<Platform::WindowHandle, Platform::WindowProcedure> m_procedures;
    bool m_failInstalls = false;
    bool m_failRestores = false;
};

// Records each address handed to the browser ("open <address>").
// Records "open <address>"; a refusing shell opens nothing, as without a browser.
class FakeShellOpen final : public Platform::IShellOpen, public JournalNotes {
public:
    bool OpenAddress(const std::wstring& address) override {
        Note(L"open " + address);
        if (refuses) {
            return false;
        }
        opened = address;
        return true;
    }

    bool refuses = false;
    std::wstring opened;
};

class FakeKeyboard final : public Platform::IKeyboard {
public:
    bool IsShiftDown() override { return m_shiftDown; }
    void SetShiftDown(bool down) { m_shiftDown = down; }

private:
    bool m_shiftDown = false;
};

}  // namespace ZelCommon::Fakes
