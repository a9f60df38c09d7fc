#include "SettingsReport.h"

#include <algorithm>
#include <optional>

#include "common_src/platform/WideFormat.h"
#include "settings/LinkFilterSettings.h"

namespace Orva::Orvactl {
namespace {

using Settings::SettingEntry;
using Settings::SettingId;
using Settings::SettingsStore;

const Settings::PresetRule* PresetFor(SettingId userKey) {
    for (const Settings::PresetRule& rule : Settings::PresetRules()) {
        if (rule.userKey == userKey) {
            return &rule;
        }
    }
    return nullptr;
}

std::wstring EffectiveValue(const SettingsStore& store, const SettingEntry& entry) {
    if (entry.type == Settings::ValueType::Integer) {
        return ZelCommon::Text::Format(L"%d", store.GetInt(entry.id));
    }
    return store.GetString(entry.id);
}

ValueSource SourceOf(const SettingsStore& store, const SettingEntry& entry,
                     const std::optional<std::wstring>& stored) {
    if (!stored) {
        return ValueSource::Default;
    }
    const Settings::PresetRule* rule = PresetFor(entry.id);
    if (rule != nullptr && store.GetInt(rule->marker) != 0 &&
        *stored == store.GetString(rule->installKey)) {
        return ValueSource::Preset;
    }
    return ValueSource::Stored;
}

SettingRow Describe(const SettingsStore& store, const SettingEntry& entry,
                    const Settings::LinkFilterSettings& linkFilter) {
    SettingRow row{std::wstring(entry.section), std::wstring(entry.key),
                   EffectiveValue(store, entry), ValueSource::Default};
    row.source = SourceOf(store, entry, store.GetStored(entry.id));
    if (linkFilter.fromInstallFile) {
        if (entry.id == SettingId::EnableWexor) {
            row.value = ZelCommon::Text::Format(L"%d", linkFilter.enableWexor);
            row.source = ValueSource::InstallFile;
        } else if (entry.id == SettingId::SecurityLevel) {
            row.value = linkFilter.securityLevel;
            row.source = ValueSource::InstallFile;
        }
    }
    return row;
}

}  // namespace

std::wstring_view SourceName(ValueSource source) {
    switch (source) {
        case ValueSource::Stored:
            return L"stored";
        case ValueSource::Preset:
            return L"preset";
        case ValueSource::InstallFile:
            return L"install";
        case ValueSource::Default:
            break;
    }
    return L"default";
}

std::vector<SettingRow> DescribeUserSettings(const SettingsStore& store) {
    const Settings::LinkFilterSettings linkFilter = Settings::ReadLinkFilterSettings(store);
    std::vector<std::wstring_view> sectionOrder;
    std::vector<SettingRow> rows;
    for (const SettingEntry& entry : Settings::SettingsCatalogue()) {
        if (entry.file != Settings::SettingsFile::User) {
            continue;
        }
        if (std::find(sectionOrder.begin(), sectionOrder.end(), entry.section) ==
            sectionOrder.end()) {
            sectionOrder.push_back(entry.section);
        }
        rows.push_back(Describe(store, entry, linkFilter));
    }
    const auto rank = [&](const SettingRow& row) {
        return std::find(sectionOrder.begin(), sectionOrder.end(), row.section) -
               sectionOrder.begin();
    };
    std::stable_sort(rows.begin(), rows.end(),
                     [&](const SettingRow& a, const SettingRow& b) { return rank(a) < rank(b); });
    return rows;
}

}  // namespace Orva::Orvactl
