#include "ui/AdvancedPageModel.h"

#include <utility>

#include "plugin/protocol/AgentProtocol.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

std::wstring FlagText(bool on) {
    return on ? L"1" : L"0";
}

}  // namespace

// Reading stops as soon as the number is past the maximum, so no length of digits overflows.
int ReadPurgeDays(std::wstring_view text) {
    int days = 0;
    for (const wchar_t character : text) {
        if (character < L'0' || character > L'9') {
            return kPurgeDaysDefault;
        }
        if (days <= kPurgeDaysMaximum) {
            days = days * 10 + (character - L'0');
        }
    }
    return days >= 1 && days <= kPurgeDaysMaximum ? days : kPurgeDaysDefault;
}

// AutoMoved is on only as "1"; the other two boxes are on unless "0", as the agent reads them.
void CAdvancedPageModel::Load() {
    const Settings::SettingsStore& settings = m_services.settings;
    m_purgeDaysText = std::to_wstring(ReadPurgeDays(settings.GetString(SettingId::PurgeDays)));
    m_autoMoved = settings.GetString(SettingId::AutoMoved) == L"1";
    m_deleteDeleted = settings.GetString(SettingId::DeleteDeleted) != L"0";
    m_notifyIcon = settings.GetString(SettingId::NotifyIcon) != L"0";
    m_modified = false;
    m_notifyIconChanged = false;
    m_loaded = true;
}

void CAdvancedPageModel::SetPurgeDaysText(std::wstring text) {
    if (text != m_purgeDaysText) {
        m_purgeDaysText = std::move(text);
        m_modified = true;
    }
}

void CAdvancedPageModel::SetAutoMoved(bool on) {
    if (on != m_autoMoved) {
        m_autoMoved = on;
        m_modified = true;
    }
}

void CAdvancedPageModel::SetDeleteDeleted(bool on) {
    if (on != m_deleteDeleted) {
        m_deleteDeleted = on;
        m_modified = true;
    }
}

void CAdvancedPageModel::SetNotifyIcon(bool on) {
    if (on != m_notifyIcon) {
        m_notifyIcon = on;
        m_notifyIconChanged = true;
        m_modified = true;
    }
}

PendingWrites CAdvancedPageModel::PendingWrites() const {
    if (!m_loaded) {
        return {};
    }
    return {{SettingId::PurgeDays, m_purgeDaysText},
            {SettingId::AutoMoved, FlagText(m_autoMoved)},
            {SettingId::DeleteDeleted, FlagText(m_deleteDeleted)},
            {SettingId::NotifyIcon, FlagText(m_notifyIcon)}};
}

// The agent shows or hides its icon on 1044 and is waited for, so that the icon has its new
// state when the sheet closes. It is asked only when the box changed and the value was written.
bool CAdvancedPageModel::Apply() {
    if (!m_loaded || !m_modified) {
        return false;
    }
    if (!WritePending(PendingWrites(), m_services.settings, m_services.log, L"CAdvancedPage")) {
        return false;
    }
    if (m_notifyIconChanged) {
        m_services.agent.Notify(Plugin::AgentMessage::AdvancedApplied);
        m_notifyIconChanged = false;
    }
    m_modified = false;
    return true;
}

void CAdvancedPageModel::DeleteNow() {
    m_services.agent.Notify(Plugin::AgentMessage::AdvancedChanged, 0, 1);
}

}  // namespace Orva::Ui
