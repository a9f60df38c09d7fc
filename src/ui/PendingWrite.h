#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "settings/SettingsCatalogue.h"
#include "settings/SettingsStore.h"
#include "settings/log/DebugLog.h"

namespace Orva::Ui {

// One setting a page's OK writes, with the text it writes.
struct PendingWrite {
    Settings::SettingId id;
    std::wstring value;

    friend bool operator==(const PendingWrite&, const PendingWrite&) = default;
};

using PendingWrites = std::vector<PendingWrite>;

// Writes every value, in order, into the settings file. A value that could not be written is
// logged with the page's name and does not stop the others; false when any failed.
bool WritePending(const PendingWrites& writes, Settings::SettingsStore& settings,
                  ZelCommon::Library::DebugLog& log, std::wstring_view page);

}  // namespace Orva::Ui
