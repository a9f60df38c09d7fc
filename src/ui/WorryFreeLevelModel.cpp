#include "ui/WorryFreeLevelModel.h"

#include <string>

#include "settings/LinkFilterSettings.h"
#include "ui/LevelValue.h"

namespace Orva::Ui {

void CWorryFreeLevelModel::Load(const Settings::SettingsStore& settings) {
    const Settings::LinkFilterSettings read = Settings::ReadLinkFilterSettings(settings);
    m_sliderPosition = PositionOfLevel(ReadLevelText(read.securityLevel));
    m_filterEnabled = read.enableWexor != 0;
}

void CWorryFreeLevelModel::MoveSlider(int position) {
    m_sliderPosition = ClampPosition(position);
}

Ui::PendingWrites CWorryFreeLevelModel::Save() const {
    return {
        {Settings::SettingId::EnableWexor, std::to_wstring(m_filterEnabled ? 1 : 0)},
        {Settings::SettingId::SecurityLevel, std::to_wstring(LevelOfPosition(m_sliderPosition))}};
}

}  // namespace Orva::Ui
