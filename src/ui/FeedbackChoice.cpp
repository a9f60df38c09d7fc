#include "ui/FeedbackChoice.h"

#include "settings/FeedbackAddresses.h"

namespace Orva::Ui {

using Settings::SettingId;

FeedbackChoice ReadFeedbackChoice(const Settings::SettingsStore& settings) {
    FeedbackChoice choice;
    choice.takesPart = settings.GetInt(SettingId::EnableWTC) != 0;
    choice.informationAddress = settings.GetString(SettingId::InstallWTCLink);
    if (choice.informationAddress.empty()) {
        choice.informationAddress = std::wstring(Settings::kFeedbackInformationPage);
    }
    return choice;
}

bool SaveFeedbackChoice(Settings::SettingsStore& settings, bool takesPart) {
    return settings.SetFlag(SettingId::EnableWTC, takesPart);
}

}  // namespace Orva::Ui
