#include "ui/UpdatesShortcuts_win.h"

#include <algorithm>
#include <vector>

#include "ui/UpdatesModel.h"

namespace Orva::Ui {
namespace {

// One hook per thread, shared by the dialogs open on it, innermost last.
struct ThreadWatch {
    HHOOK hook = nullptr;
    std::vector<const CDialogShortcuts*> watchers;
};
thread_local ThreadWatch t_watch;

}  // namespace

CDialogShortcuts::~CDialogShortcuts() {
    auto& watchers = t_watch.watchers;
    watchers.erase(std::remove(watchers.begin(), watchers.end(), this), watchers.end());
    if (watchers.empty() && t_watch.hook != nullptr) {
        ::UnhookWindowsHookEx(t_watch.hook);
        t_watch.hook = nullptr;
    }
}

void CDialogShortcuts::Watch(HWND dialog) {
    m_dialog = dialog;
    if (std::find(t_watch.watchers.begin(), t_watch.watchers.end(), this) ==
        t_watch.watchers.end()) {
        t_watch.watchers.push_back(this);
    }
    if (t_watch.hook == nullptr) {
        t_watch.hook = ::SetWindowsHookExW(WH_GETMESSAGE, &Hook, nullptr, ::GetCurrentThreadId());
    }
}

LRESULT CALLBACK CDialogShortcuts::Hook(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HC_ACTION && wParam == PM_REMOVE) {
        auto& message = *reinterpret_cast<MSG*>(lParam);
        for (const CDialogShortcuts* watcher : t_watch.watchers) {
            if (watcher->OnKey(message)) {
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
