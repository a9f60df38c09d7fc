#include "ui/SpamDetectionPageModel.h"

#include <string>

#include "plugin/protocol/AgentProtocol.h"
#include "ui/LevelValue.h"

namespace Orva::Ui {
namespace {

using Settings::SettingId;

constexpr std::wstring_view kPageName = L"CSpamDetectionPage";

std::wstring FlagText(bool on) {
    return on ? L"1" : L"0";
}

}  // namespace

CSpamDetectionPageModel::CSpamDetectionPageModel(PageServices& services) : m_services(services) {}

// Only "0" chooses the custom level: a damaged value keeps the default level, which does not
// depend on seven category values being right.
void CSpamDetectionPageModel::Load() {
    const Settings::SettingsStore& settings = m_services.settings;
    m_defaultMode = TrimBlanks(settings.GetString(SettingId::GlobalLevel)) != L"0";
    m_sliderPosition = PositionOfLevel(ReadLevelText(settings.GetString(SettingId::ProtectLevel)));
    for (std::size_t index = 0; index < kCategoryCount; ++index) {
        m_categories[index] =
            PositionOfLevel(ReadLevelNumber(settings.GetInt(CategoryRows()[index].key)));
    }
    m_defaultCloud = settings.GetString(SettingId::EnableInTheCloud) == L"1";
    m_customCloud = m_defaultCloud;
    m_modified = false;
    m_loaded = true;
}

void CSpamDetectionPageModel::MoveSlider(int position) {
    position = ClampPosition(position);
    if (position != m_sliderPosition) {
        m_sliderPosition = position;
        Change();
    }
}

void CSpamDetectionPageModel::SetDefaultCloud(bool on) {
    if (on != m_defaultCloud || on != m_customCloud) {
        m_defaultCloud = on;
        m_customCloud = on;
        Change();
    }
}

void CSpamDetectionPageModel::SetCustomCloud(bool on) {
    if (on != m_customCloud) {
        m_customCloud = on;
        Change();
    }
}

// The dialog's OK counts as a change even when it kept every level: it also leaves the
// default level for the custom one.
void CSpamDetectionPageModel::AcceptCategories(const CategoryPositions& positions) {
    for (std::size_t index = 0; index < kCategoryCount; ++index) {
        m_categories[index] = ClampPosition(positions[index]);
    }
    m_defaultMode = false;
    Change();
}

void CSpamDetectionPageModel::BackToDefault() {
    m_sliderPosition = PositionOfLevel(kMiddleLevel);
    m_defaultMode = true;
    Change();
}

// Nothing before the page was read; otherwise everything the page shows, whether or not it
// changed. The cloud lookup is the box of the panel on show.
PendingWrites CSpamDetectionPageModel::PendingWrites() const {
    Ui::PendingWrites writes;
    if (!m_loaded) {
        return writes;
    }
    writes.push_back({SettingId::GlobalLevel, std::to_wstring(m_defaultMode ? 1 : 0)});
    writes.push_back({SettingId::ProtectLevel, std::to_wstring(LevelOfPosition(m_sliderPosition))});
    for (std::size_t index = 0; index < kCategoryCount; ++index) {
        writes.push_back(
            {CategoryRows()[index].key, std::to_wstring(LevelOfPosition(m_categories[index]))});
    }
    writes.push_back(
        {SettingId::EnableInTheCloud, FlagText(m_defaultMode ? m_defaultCloud : m_customCloud)});
    return writes;
}

// The agent rereads the levels on 1036; told of a file that was not written, it would read the
// old values, so it is told only when every value was written. The page then stays modified.
bool CSpamDetectionPageModel::Apply() {
    if (!m_loaded || !m_modified) {
        return false;
    }
    if (!WritePending(PendingWrites(), m_services.settings, m_services.log, kPageName)) {
        return false;
    }
    m_modified = false;
    m_services.agent.Notify(Plugin::AgentMessage::DetectionChanged);
    return true;
}

}  // namespace Orva::Ui
