#include "ui/UpdatesShortcuts_win.h"

#include <algorithm>

#include "ui/UpdatesModel.h"

namespace Orva::Ui {
namespace {

// One hook per thread, shared by the dialogs open on it. Plain data only: a thread_local with a
// destructor would leave a call into this module at thread exit, after the host unloaded it.
constexpr int kMostNestedDialogs = 8;
struct ThreadWatch {
    HHOOK hook;
    int count;
    const CDialogShortcuts* watchers[kMostNestedDialogs];
};
thread_local ThreadWatch t_watch;

}  // namespace

CDialogShortcuts::~CDialogShortcuts() {
    const auto end = std::remove(t_watch.watchers, t_watch.watchers + t_watch.count, this);
    t_watch.count = static_cast<int>(end - t_watch.watchers);
    if (t_watch.count == 0 && t_watch.hook != nullptr) {
        ::UnhookWindowsHookEx(t_watch.hook);
        t_watch.hook = nullptr;
    }
}

void CDialogShortcuts::Watch(HWND dialog) {
    m_dialog = dialog;
    const auto end = t_watch.watchers + t_watch.count;
    if (std::find(t_watch.watchers, end, this) == end && t_watch.count < kMostNestedDialogs) {
        t_watch.watchers[t_watch.count++] = this;
    }
    if (t_watch.hook == nullptr) {
        t_watch.hook = ::SetWindowsHookExW(WH_GETMESSAGE, &Hook, nullptr, ::GetCurrentThreadId());
    }
}

LRESULT CALLBACK CDialogShortcuts::Hook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && wParam == PM_REMOVE) {
        auto& message = *reinterpret_cast<MSG*>(lParam);
        for (int at = 0; at < t_watch.count; ++at) {
            if (t_watch.watchers[at]->OnKey(message)) {
                message.message = WM_NULL;
                break;
            }
        }
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

bool CDialogShortcuts::OnKey(const MSG& message) const {
    if (m_dialog == nullptr || (message.hwnd != m_dialog && !::IsChild(m_dialog, message.hwnd))) {
        return false;
    }
    // The system keys carry Alt in their context bit; the others only in the key state.
    const bool altDown = (HIWORD(message.lParam) & KF_ALTDOWN) != 0 || ::GetKeyState(VK_MENU) < 0;
    const HWND ok = ::GetDlgItem(m_dialog, IDOK);
    const bool okEnabled = ok != nullptr && ::IsWindowEnabled(ok);
    switch (UpdatesDialogKey(message.message, message.wParam, altDown, okEnabled)) {
        case DialogKey::Ok:
            ::PostMessageW(m_dialog, WM_COMMAND, MAKEWPARAM(IDOK, BN_CLICKED),
                           reinterpret_cast<LPARAM>(ok));
            return true;
        case DialogKey::Cancel:
            ::PostMessageW(m_dialog, WM_COMMAND, MAKEWPARAM(IDCANCEL, BN_CLICKED),
                           reinterpret_cast<LPARAM>(::GetDlgItem(m_dialog, IDCANCEL)));
            return true;
        case DialogKey::Swallow:
            return true;
        default:
            return false;
    }
}

}  // namespace Orva::Ui
