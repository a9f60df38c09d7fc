#pragma once

#include <string>
#include <vector>

#include "settings/Presets.h"
#include "settings/SettingsStore.h"

namespace Orva::Orvactl {

enum class ValueSource {
    Stored,       // the user's own value in the per-user file
    Preset,       // copied from the installation file and unchanged since
    InstallFile,  // read from the installation file while the user has not chosen
    Default,      // the key is absent: the catalogue default applies
};

std::wstring_view SourceName(ValueSource source);

struct SettingRow {
    std::wstring section;
    std::wstring key;
    std::wstring value;
    ValueSource source;
};

// Every per-user setting with the value the add-in would use and where it comes from, grouped
// by section in the order the catalogue first names each section.
std::vector<SettingRow> DescribeUserSettings(const Settings::SettingsStore& store);

}  // namespace Orva::Orvactl
