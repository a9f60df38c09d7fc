#pragma once

#include <windows.h>

#include <prsht.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace Orva::Testing {

// Acts as a user inside a modal loop that the test itself entered (a sheet or dialog opened by
// the code under test): a thread timer runs the steps in order, each until it reports done.
// A step that does not get done within its time is a failure: the driver then cancels every
// window of the thread until the modal loops end, so that the test goes on and reports.
class CModalDriver {
public:
    using Step = std::function<bool()>;
    struct NamedStep {
        std::string name;
        Step step;
    };

    explicit CModalDriver(std::vector<NamedStep> steps, DWORD stepMilliseconds = 10000)
        : m_steps(std::move(steps)), m_stepMilliseconds(stepMilliseconds) {
        Current() = this;
        m_stepStart = ::GetTickCount();
        m_timer = ::SetTimer(nullptr, 0, 30, &Tick);
    }
    ~CModalDriver() {
        ::KillTimer(nullptr, m_timer);
        Current() = nullptr;
    }
    CModalDriver(const CModalDriver&) = delete;
    CModalDriver& operator=(const CModalDriver&) = delete;

    bool Finished() const { return m_next == m_steps.size() && m_failure.empty(); }
    // The step that timed out, or empty.
    const std::string& Failure() const { return m_failure; }

private:
    static CModalDriver*& Current() {
        thread_local CModalDriver* current = nullptr;
        return current;
    }

    static void CALLBACK Tick(HWND, UINT, UINT_PTR, DWORD) {
        if (CModalDriver* driver = Current(); driver != nullptr && !driver->m_running) {
            driver->m_running = true;
            driver->Advance();
            driver->m_running = false;
        }
    }

    void Advance() {
        if (!m_failure.empty()) {
            CancelEverything();
            return;
        }
        while (m_next < m_steps.size()) {
            if (!m_steps[m_next].step()) {
                if (::GetTickCount() - m_stepStart > m_stepMilliseconds) {
                    m_failure = m_steps[m_next].name;
                    CancelEverything();
                }
                return;
            }
            ++m_next;
            m_stepStart = ::GetTickCount();
        }
    }

    static void CancelEverything() {
        ::EnumThreadWindows(
            ::GetCurrentThreadId(),
            [](HWND window, LPARAM) -> BOOL {
                if (::IsWindowVisible(window)) {
                    ::PostMessageW(window, WM_COMMAND, IDCANCEL, 0);
                }
                return TRUE;
            },
            0);
    }

    std::vector<NamedStep> m_steps;
    DWORD m_stepMilliseconds;
    size_t m_next = 0;
    DWORD m_stepStart = 0;
    UINT_PTR m_timer = 0;
    bool m_running = false;
    std::string m_failure;
};

// The control with `controlId` anywhere under `root` (pages and panels nest dialogs).
inline HWND FindDescendant(HWND root, int controlId) {
    struct Search {
        int id;
        HWND found;
    } search{controlId, nullptr};
    ::EnumChildWindows(
        root,
        [](HWND child, LPARAM data) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(data);
            if (::GetDlgCtrlID(child) == wanted.id && ::IsWindowVisible(child)) {
                wanted.found = child;
                return FALSE;
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

// A visible top-level window of this thread that holds a control with `controlId` somewhere
// inside.
inline HWND FindDialogHolding(int controlId) {
    struct Search {
        int id;
        HWND found;
    } search{controlId, nullptr};
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM data) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(data);
            if (::IsWindowVisible(window) && FindDescendant(window, wanted.id) != nullptr) {
                wanted.found = window;
                return FALSE;
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

// The visible property sheet of this thread: the window with a sheet's tab strip inside.
inline HWND FindPropertySheet() {
    HWND found = nullptr;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND window, LPARAM data) -> BOOL {
            if (::IsWindowVisible(window) && ::SendMessageW(window, PSM_GETTABCONTROL, 0, 0) != 0) {
                *reinterpret_cast<HWND*>(data) = window;
                return FALSE;
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&found));
    return found;
}

// A key pressed and released on `window` (the focused control), queued as the keyboard queues
// it, so that the modal loop's hooks and dialog manager see it; `alt` marks it typed with Alt.
inline void PostKey(HWND window, WORD key, bool alt = false) {
    const UINT scan = ::MapVirtualKeyW(key, MAPVK_VK_TO_VSC);
    const LPARAM down = 1 | static_cast<LPARAM>(scan << 16) | (alt ? (1 << 29) : 0);
    const LPARAM up = down | (1 << 30) | static_cast<LPARAM>(1u << 31);
    ::PostMessageW(window, alt ? WM_SYSKEYDOWN : WM_KEYDOWN, key, down);
    ::PostMessageW(window, alt ? WM_SYSKEYUP : WM_KEYUP, key, up);
}

// Characters typed into `window`.
inline void PostText(HWND window, const std::wstring& text) {
    for (const wchar_t character : text) {
        ::PostMessageW(window, WM_CHAR, character, 1);
    }
}

// A click on a button or check box, handled when the modal loop dispatches it.
inline void Click(HWND button) {
    ::PostMessageW(button, BM_CLICK, 0, 0);
}

}  // namespace Orva::Testing
