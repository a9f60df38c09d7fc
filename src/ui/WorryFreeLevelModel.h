#pragma once

#include "settings/SettingsStore.h"
#include "ui/PendingWrite.h"

namespace Orva::Ui {

// The link filter's panel without its window: the URL-filtering switch and its level on a
// three-position slider.
class CWorryFreeLevelModel {
public:
    // While the user has not chosen (no EnableWexor in the settings file, or 2), the switch and
    // the level are the installation file's.
    void Load(const Settings::SettingsStore& settings);

    int SliderPosition() const { return m_sliderPosition; }
    void MoveSlider(int position);
    bool FilterEnabled() const { return m_filterEnabled; }
    void SetFilterEnabled(bool on) { m_filterEnabled = on; }

    // Both keys, into the settings file, whatever the file they were read from.
    Ui::PendingWrites Save() const;

private:
    int m_sliderPosition = 1;
    bool m_filterEnabled = false;
};

}  // namespace Orva::Ui
