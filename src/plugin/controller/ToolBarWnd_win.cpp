#include "plugin/controller/ToolBarWnd_win.h"

#include <cstddef>
#include <exception>
#include <span>
#include <string>

#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {
namespace {

// The live controller window, for the hook procedure on the mail client's window, which has
// no other way to find it. Only the GUI thread touches it.
CToolBarWnd* g_live = nullptr;

const std::wstring& ClassName() {
    static const std::wstring name(kControllerClassName);
    return name;
}

ZelCommon::Platform::WindowHandle HandleOf(HWND window) {
    return reinterpret_cast<ZelCommon::Platform::WindowHandle>(window);
}

}  // namespace

CToolBarWnd::CToolBarWnd(Key, HINSTANCE module, ZelCommon::Library::DebugLog& log)
    : m_module(module), m_log(log) {}

std::unique_ptr<CToolBarWnd> CToolBarWnd::Create(HINSTANCE module, const ControllerPorts& ports,
                                                 const ControllerParts& parts,
                                                 ZelCommon::Library::DebugLog& log) {
    if (g_live != nullptr) {
        log.LogText(L"xxx CToolBarWnd: a controller window already exists");
        return nullptr;
    }
    auto wnd = std::make_unique<CToolBarWnd>(Key{}, module, log);
    wnd->m_controller = std::make_unique<CToolBarController>(ports, parts, *wnd);

    WNDCLASSW windowClass{};
    windowClass.lpfnWndProc = &CToolBarWnd::WindowProcedure;
    windowClass.hInstance = module;
    windowClass.lpszClassName = ClassName().c_str();
    if (::RegisterClassW(&windowClass) == 0) {
        log.LogText(L"xxx CToolBarWnd: RegisterClassW failed, error %u", ::GetLastError());
        return nullptr;
    }
    wnd->m_classRegistered = true;
    g_live = wnd.get();
    const std::wstring title(kControllerWindowTitle);
    if (::CreateWindowExW(0, ClassName().c_str(), title.c_str(), kControllerWindowStyle, 0, 0, 0, 0,
                          nullptr, nullptr, module, wnd.get()) == nullptr) {
        log.LogText(L"xxx CToolBarWnd: CreateWindowExW failed, error %u", ::GetLastError());
        return nullptr;
    }
    return wnd;
}

CToolBarWnd::~CToolBarWnd() {
    if (m_window != nullptr) {
        ::DestroyWindow(m_window);
    }
    RestoreHookedMainWindow();
    if (g_live == this) {
        g_live = nullptr;
    }
    if (m_classRegistered) {
        ::UnregisterClassW(ClassName().c_str(), m_module);
    }
}

void CToolBarWnd::ReleaseAtUnload(HINSTANCE module) {
    if (g_live != nullptr) {
        g_live->RestoreHookedMainWindow();
    }
    ::UnregisterClassW(ClassName().c_str(), module);
}

// The hook procedure lives in this module: once the controller is gone, the mail client's
// window must not call into it any more.
void CToolBarWnd::RestoreHookedMainWindow() {
    if (!m_controller) {
        return;
    }
    const auto saved = m_controller->SavedProcedure();
    const auto hooked = reinterpret_cast<HWND>(m_controller->HookedWindow());
    if (saved != 0 && ::IsWindow(hooked) &&
        ::GetWindowLongPtrW(hooked, GWLP_WNDPROC) ==
            static_cast<LONG_PTR>(MainWindowHookProcedure())) {
        ::SetWindowLongPtrW(hooked, GWLP_WNDPROC, static_cast<LONG_PTR>(saved));
    }
}

LRESULT CALLBACK CToolBarWnd::WindowProcedure(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    if (message == WM_NCCREATE) {
        auto* created =
            static_cast<CToolBarWnd*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
        created->m_window = window;
        created->m_calls = CreateSystemControllerWindow(HandleOf(window));
        created->m_controller->SetWindow(HandleOf(window));
        ::SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    auto* wnd = reinterpret_cast<CToolBarWnd*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
    if (wnd == nullptr) {
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    const LRESULT result = wnd->OnMessage(message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        ::SetWindowLongPtrW(window, GWLP_USERDATA, 0);
        wnd->m_window = nullptr;
    }
    return result;
}

LRESULT CToolBarWnd::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    try {
        ControllerMessageData data{message, wParam, lParam, 0, {}};
        if (message == WM_COPYDATA && lParam != 0) {
            // The record comes from another process; Windows copied exactly cbData bytes.
            const auto* record = reinterpret_cast<const COPYDATASTRUCT*>(lParam);
            data.copyDataId = record->dwData;
            if (record->lpData != nullptr) {
                data.copyData =
                    std::span(static_cast<const std::byte*>(record->lpData), record->cbData);
            }
        }
        if (const std::optional<intptr_t> result = m_controller->Dispatch(data)) {
            return *result;
        }
    } catch (const std::exception& error) {
        m_log.LogText(L"xxx CToolBarWnd: message %u failed: %S", message, error.what());
    } catch (...) {
        m_log.LogText(L"xxx CToolBarWnd: message %u failed", message);
    }
    return ::DefWindowProcW(m_window, message, wParam, lParam);
}

ZelCommon::Platform::WindowProcedure CToolBarWnd::MainWindowHookProcedure() {
    return reinterpret_cast<ZelCommon::Platform::WindowProcedure>(&CToolBarWnd::HookProcedure);
}

LRESULT CALLBACK CToolBarWnd::HookProcedure(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
    CToolBarWnd* wnd = g_live;
    if (wnd == nullptr || !wnd->m_controller) {
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    try {
        return wnd->m_controller->HookProcedure(HandleOf(window), message, wParam, lParam);
    } catch (...) {
        // The mail client's window must keep working whatever happened here.
        if (const auto saved = wnd->m_controller->SavedProcedure(); saved != 0) {
            return ::CallWindowProcW(reinterpret_cast<WNDPROC>(saved), window, message, wParam,
                                     lParam);
        }
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
}

void CToolBarWnd::MakeTopMost() {
    if (m_calls) {
        m_calls->MakeTopMost();
    }
}

bool CToolBarWnd::SetTimer(uintptr_t id, uint32_t milliseconds) {
    return m_calls && m_calls->SetTimer(id, milliseconds);
}

bool CToolBarWnd::KillTimer(uintptr_t id) {
    return m_calls && m_calls->KillTimer(id);
}

void CToolBarWnd::SendClose() {
    // A close from another thread would wait on this one: only the window's own thread may.
    if (m_window != nullptr &&
        ::GetWindowThreadProcessId(m_window, nullptr) == ::GetCurrentThreadId()) {
        ::SendMessageW(m_window, WM_CLOSE, 0, 0);
    }
}

void CToolBarWnd::SetMailClientWindow(ZelCommon::Platform::WindowHandle window) {
    m_controller->SetMailClientWindow(window);
}

}  // namespace Orva::Plugin
