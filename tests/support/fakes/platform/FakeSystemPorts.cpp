#include "support/fakes/platform/FakeSystemPorts.h"

#include "common_src/platform/WideFormat.h"

namespace ZelCommon::Fakes {

using Platform::WindowHandle;
using Platform::WindowProcedure;

bool FakeProcessLauncher::Launch(const std::wstring& commandLine,
                                 const std::wstring& workingFolder) {
    Note(L"launch " + commandLine + L"|" + workingFolder);
    m_launches.push_back({commandLine, workingFolder});
    if (m_succeeds && onLaunch) {
        onLaunch();
    }
    return m_succeeds;
}

void FakeEvent::Set() {
    Note(L"event set");
    m_set = true;
}

bool FakeEvent::Wait(uint32_t milliseconds) {
    Note(L"event wait " + std::to_wstring(milliseconds));
    const bool signalled = m_set || m_signalDuringWaits;
    m_set = false;
    return signalled;
}

WindowProcedure FakeWindowProcedureHook::CurrentProcedure(WindowHandle window) {
    Note(Text::Format(L"hook read 0x%Ix", window));
    return ProcedureOf(window);
}

bool FakeWindowProcedureHook::InstallHook(WindowHandle window) {
    Note(Text::Format(L"hook install 0x%Ix", window));
    if (m_failInstalls) {
        return false;
    }
    m_procedures[window] = kHookProcedure;
    return true;
}

bool FakeWindowProcedureHook::Restore(WindowHandle window, WindowProcedure procedure) {
    Note(Text::Format(L"hook restore 0x%Ix 0x%Ix", window, procedure));
    if (m_failRestores) {
        return false;
    }
    m_procedures[window] = procedure;
    return true;
}

intptr_t FakeWindowProcedureHook::CallProcedure(WindowProcedure procedure, WindowHandle /*window*/,
                                                uint32_t message, uintptr_t /*wParam*/,
                                                intptr_t /*lParam*/) {
    Note(Text::Format(L"call 0x%Ix %u", procedure, message));
    return answer;
}

intptr_t FakeWindowProcedureHook::CallDefault(WindowHandle /*window*/, uint32_t message,
                                              uintptr_t /*wParam*/, intptr_t /*lParam*/) {
    Note(Text::Format(L"default %u", message));
    return answer;
}

WindowProcedure FakeWindowProcedureHook::ProcedureOf(WindowHandle window) const {
    const auto found = m_procedures.find(window);
    return found == m_procedures.end() ? 0 : found->second;
}

}  // namespace ZelCommon::Fakes
