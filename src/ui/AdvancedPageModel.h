#pragma once

#include <string>
#include <string_view>

#include "ui/PageServices.h"
#include "ui/PendingWrite.h"

namespace Orva::Ui {

inline constexpr int kPurgeDaysMaximum = 365;
inline constexpr int kPurgeDaysDefault = 20;

// The stored purge days as the page shows them: digits only, from 1 to kPurgeDaysMaximum;
// anything else is kPurgeDaysDefault.
int ReadPurgeDays(std::wstring_view text);

// The advanced page without its windows: how long spam is kept, automatic moving, emptying the
// deleted items, the notification icon, and the delete-now action.
class CAdvancedPageModel {
public:
    explicit CAdvancedPageModel(PageServices& services) : m_services(services) {}

    // Reads the page's settings; the page is unmodified afterwards.
    void Load();
    bool Loaded() const { return m_loaded; }

    // The edit's text, written as it stands.
    const std::wstring& PurgeDaysText() const { return m_purgeDaysText; }
    void SetPurgeDaysText(std::wstring text);
    bool AutoMoved() const { return m_autoMoved; }
    void SetAutoMoved(bool on);
    // The purge-days edit takes input only while spam is moved automatically.
    bool PurgeDaysEnabled() const { return m_autoMoved; }
    bool DeleteDeleted() const { return m_deleteDeleted; }
    void SetDeleteDeleted(bool on);
    bool NotifyIcon() const { return m_notifyIcon; }
    void SetNotifyIcon(bool on);

    bool Modified() const { return m_modified; }
    // What the page's OK writes once something changed, in the order it writes it; nothing
    // before the page was read.
    Ui::PendingWrites PendingWrites() const;
    // The sheet's OK: only for a read and modified page, writes PendingWrites(), then sends the
    // agent 1044 if the icon box changed. False when it wrote nothing or a value could not be
    // written (the agent is then not asked).
    bool Apply();
    // Posts the agent 1035 (wParam 0, lParam 1) at once, whether or not the sheet's OK follows.
    void DeleteNow();

private:
    PageServices& m_services;
    bool m_loaded = false;
    bool m_modified = false;
    bool m_notifyIconChanged = false;
    std::wstring m_purgeDaysText;
    bool m_autoMoved = false;
    bool m_deleteDeleted = false;
    bool m_notifyIcon = false;
};

}  // namespace Orva::Ui
