#pragma once

#include <windows.h>

#include <exception>
#include <optional>
#include <utility>

#include "settings/log/DebugLog.h"

// windowsx.h's SubclassWindow macro would rename the controls' method of that name; whoever
// needs windowsx.h includes it before the controls' headers.
#ifdef SubclassWindow
#undef SubclassWindow
#endif

namespace Orva::Ui {

// The subclassing that the custom controls share. A control class derives from
// CControlSubclass<Itself> and gives two property names of its own (kObjectProperty,
// kProcedureProperty) and `LRESULT OnMessage(UINT, WPARAM, LPARAM)`; it may give
// `void OnWindowGone()`, called after the window's last message. The control's own procedure
// and its object travel with the window in those properties, so that nothing the dialog keeps
// in the window's user data is disturbed, and one window takes at most one object of a kind.
// Used on the window's own thread only.
template <class Derived>
class CControlSubclass {
public:
    CControlSubclass(const CControlSubclass&) = delete;
    CControlSubclass& operator=(const CControlSubclass&) = delete;

    HWND Handle() const { return m_window; }

protected:
    CControlSubclass() = default;
    ~CControlSubclass() { Detach(); }

    // Takes over `window`, a window of this thread; false when this object already holds one,
    // the window already has an object of this kind, or Windows refused.
    bool Attach(HWND window) {
        if (m_window != nullptr || ::IsWindow(window) == FALSE ||
            ::GetWindowThreadProcessId(window, nullptr) != ::GetCurrentThreadId() ||
            ::GetPropW(window, Derived::kObjectProperty) != nullptr ||
            ::GetPropW(window, Derived::kProcedureProperty) != nullptr) {
            return false;
        }
        const LONG_PTR original = ::GetWindowLongPtrW(window, GWLP_WNDPROC);
        if (::SetPropW(window, Derived::kProcedureProperty, reinterpret_cast<HANDLE>(original)) ==
                FALSE ||
            ::SetPropW(window, Derived::kObjectProperty, static_cast<Derived*>(this)) == FALSE) {
            ZEL_LOG_TEXT(L"xxx %s: SetPropW failed, error %u", Derived::kObjectProperty,
                         ::GetLastError());
            ForgetProperties(window);
            return false;
        }
        ::SetLastError(0);
        if (::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)) ==
                0 &&
            ::GetLastError() != 0) {
            ZEL_LOG_TEXT(L"xxx %s: SetWindowLongPtrW failed, error %u", Derived::kObjectProperty,
                         ::GetLastError());
            ForgetProperties(window);
            return false;
        }
        m_window = window;
        return true;
    }

    // Gives the window its own procedure back; nothing when none is held.
    void Detach() {
        if (m_window == nullptr) {
            return;
        }
        const HWND window = std::exchange(m_window, nullptr);
        ::RemovePropW(window, Derived::kObjectProperty);
        // When another procedure subclassed the window after this one, putting the window's own
        // back would cut that one out. Ours then stays in the chain without an object, passing
        // every message on, until the window goes.
        if (::GetWindowLongPtrW(window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&Procedure)) {
            ::SetWindowLongPtrW(window, GWLP_WNDPROC,
                                reinterpret_cast<LONG_PTR>(OriginalOf(window)));
            ::RemovePropW(window, Derived::kProcedureProperty);
        }
    }

    LRESULT CallOriginal(UINT message, WPARAM wParam, LPARAM lParam) const {
        return ::CallWindowProcW(OriginalOf(m_window), m_window, message, wParam, lParam);
    }

    void OnWindowGone() {}

    // Paints a control drawn whole by the add-in: WM_PAINT (into wParam's context when a
    // common control is asked to paint there) and WM_PRINTCLIENT through Derived::Paint(HDC),
    // and no erasing, which would flicker. Nothing for other messages.
    std::optional<LRESULT> PaintMessage(UINT message, WPARAM wParam) {
        auto& self = static_cast<Derived&>(*this);
        switch (message) {
            case WM_ERASEBKGND:
                return 1;
            case WM_PAINT:
                if (wParam == 0) {
                    PAINTSTRUCT paint{};
                    if (const HDC dc = ::BeginPaint(m_window, &paint)) {
                        self.Paint(dc);
                        ::EndPaint(m_window, &paint);
                    }
                    return 0;
                }
                [[fallthrough]];
            case WM_PRINTCLIENT:
                self.Paint(reinterpret_cast<HDC>(wParam));
                return 0;
            default:
                return std::nullopt;
        }
    }

    // The client coordinates of a mouse message (windowsx.h's GET_X_LPARAM and GET_Y_LPARAM).
    static POINT MousePoint(LPARAM lParam) {
        return POINT{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    }

private:
    static WNDPROC OriginalOf(HWND window) {
        return reinterpret_cast<WNDPROC>(
            reinterpret_cast<LONG_PTR>(::GetPropW(window, Derived::kProcedureProperty)));
    }

    static void ForgetProperties(HWND window) {
        ::RemovePropW(window, Derived::kProcedureProperty);
        ::RemovePropW(window, Derived::kObjectProperty);
    }

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const WNDPROC original = OriginalOf(window);
        if (original == nullptr) {
            return ::DefWindowProcW(window, message, wParam, lParam);
        }
        auto* const self = static_cast<Derived*>(::GetPropW(window, Derived::kObjectProperty));
        if (self == nullptr || message == WM_NCDESTROY) {
            const LRESULT result = ::CallWindowProcW(original, window, message, wParam, lParam);
            if (message == WM_NCDESTROY) {
                // No message comes after this one: whoever sits above this procedure, the
                // window and its properties are let go.
                if (self != nullptr) {
                    self->m_window = nullptr;
                    self->OnWindowGone();
                }
                if (::GetWindowLongPtrW(window, GWLP_WNDPROC) ==
                    reinterpret_cast<LONG_PTR>(&Procedure)) {
                    ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
                }
                ForgetProperties(window);
            }
            return result;
        }
        try {
            return self->OnMessage(message, wParam, lParam);
        } catch (const std::exception& error) {
            ZEL_LOG_TEXT(L"xxx %s: message 0x%04X failed: %S", Derived::kObjectProperty, message,
                         error.what());
        } catch (...) {
            ZEL_LOG_TEXT(L"xxx %s: message 0x%04X failed", Derived::kObjectProperty, message);
        }
        // The message was not finished; the default at least validates a paint and answers.
        return ::DefWindowProcW(window, message, wParam, lParam);
    }

    HWND m_window = nullptr;
};

}  // namespace Orva::Ui
