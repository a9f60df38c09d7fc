#pragma once

#include <string>

#include "settings/SettingsStore.h"

namespace Orva::Ui {

// The user's part in the feedback programme as the feedback dialog shows and keeps it.
struct FeedbackChoice {
    bool takesPart = true;
    // The page the dialog's information link opens.
    std::wstring informationAddress;
};

FeedbackChoice ReadFeedbackChoice(const Settings::SettingsStore& settings);
// The dialog's OK: EnableWTC "1" for Yes, "0" for No.
bool SaveFeedbackChoice(Settings::SettingsStore& settings, bool takesPart);

}  // namespace Orva::Ui
