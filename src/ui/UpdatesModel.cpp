#include "ui/UpdatesModel.h"

#include <array>
#include <utility>

#include "common_src/ZelCommon/Registry.h"
#include "common_src/ZelCommon/StorageException.h"
#include "settings/localisation/Placeholders.h"
#include "settings/probes/SuiteVersionCheck.h"
#include "ui/FilteringSheetModel.h"

namespace Orva::Ui {

using Settings::SettingId;

namespace {

constexpr std::array<int32_t, kScheduleChoiceCount> kScheduleMinutes = {60,  180,  360, 540,
                                                                        720, 1440, 2880};

// The help file and the topic the dialog opens, in the suite's folder when the suite is there.
constexpr wchar_t kHelpViewer[] = L"hh.exe";
constexpr wchar_t kHelpTopic[] = L"206";
constexpr wchar_t kHelpFile[] = L"zelhelp.chm";
constexpr wchar_t kSuiteFolderValue[] = L"Application Path";

constexpr uint32_t kKeyDown = 0x100;        // WM_KEYDOWN
constexpr uint32_t kSystemKeyDown = 0x104;  // WM_SYSKEYDOWN

}  // namespace

int ScheduleIndexOf(int32_t storedMinutes) {
    // Interval 119 shows one hour and 120 three hours: the second boundary lies below its choice.
    if (storedMinutes < 120) {
        return 0;
    }
    for (int index = 1; index < kScheduleChoiceCount - 1; ++index) {
        if (storedMinutes <= kScheduleMinutes[static_cast<std::size_t>(index)]) {
            return index;
        }
    }
    return kScheduleChoiceCount - 1;
}

int32_t ScheduleMinutesAt(int index) {
    if (index < 0 || index >= kScheduleChoiceCount) {
        return kScheduleMinutes.back();
    }
    return kScheduleMinutes[static_cast<std::size_t>(index)];
}

UpdateAge AgeOf(int64_t lastUpdate, int64_t now) {
    if (lastUpdate == 0) {
        return UpdateAge::Never;
    }
    return now - lastUpdate < kStaleAfterSeconds ? UpdateAge::Current : UpdateAge::Stale;
}

DialogKey UpdatesDialogKey(uint32_t message, uintptr_t key, bool altDown, bool okEnabled) {
    const SheetShortcut shortcut = AltShortcut(message, key, altDown);
    // The key's release and its character must not press the button a second time.
    if (shortcut != SheetShortcut::None && message != kKeyDown && message != kSystemKeyDown) {
        return DialogKey::Swallow;
    }
    switch (shortcut) {
        case SheetShortcut::Ok:
            return okEnabled ? DialogKey::Ok : DialogKey::Swallow;
        case SheetShortcut::Cancel:
            return DialogKey::Cancel;
        default:
            return DialogKey::None;
    }
}

CUpdatesModel::CUpdatesModel(PageServices& services, const UpdatesPorts& ports,
                             std::wstring programFolder)
    : m_services(services), m_ports(ports), m_programFolder(std::move(programFolder)) {
    const Settings::SettingsStore& settings = m_services.settings;
    m_choices.scheduled = settings.GetInt(SettingId::EnableSchedule) != 0;
    m_choices.silent = settings.GetInt(SettingId::UpdateUI) == 0;
    m_choices.scheduleIndex = ScheduleIndexOf(settings.GetInt(SettingId::Interval));
    m_status = ReadStatus();
}

UpdateStatus CUpdatesModel::ReadStatus() const {
    const Settings::SettingsStore& settings = m_services.settings;
    return {settings.GetString(SettingId::EngineVer), settings.GetString(SettingId::PatchVer),
            settings.GetString(SettingId::ORVAOEVer), settings.GetInt(SettingId::LastUpdateTime),
            settings.GetInt(SettingId::UpToDate)};
}

bool CUpdatesModel::Refresh() {
    UpdateStatus status = ReadStatus();
    if (status == m_status) {
        return false;
    }
    m_status = std::move(status);
    return true;
}

std::wstring CUpdatesModel::LastUpdateText(std::wstring_view localDate, int64_t now) const {
    switch (AgeOf(m_status.lastUpdate, now)) {
        case UpdateAge::Never:
            return m_services.strings.LoadShown(L"IDS_STR_NOT_UPDATE_YET");
        case UpdateAge::Current:
            return std::wstring(localDate) + L" " + m_services.strings.LoadShown(L"IDS_UP_TO_DATE");
        default:
            return std::wstring(localDate) + L" " +
                   m_services.strings.LoadShown(L"IDS_OUT_OF_DATE");
    }
}

bool CUpdatesModel::IsLastUpdateRed(int64_t now) const {
    return AgeOf(m_status.lastUpdate, now) != UpdateAge::Current;
}

std::wstring CUpdatesModel::GroupTitle(std::wstring_view localised) const {
    std::wstring title = m_services.settings.GetString(SettingId::InstallASGroupTitle);
    if (title.empty()) {
        title = localised;
    }
    std::wstring spamName = m_services.settings.GetString(SettingId::InstallAntiSpamTitle);
    if (spamName.empty()) {
        spamName = m_services.strings.Load(L"IDS_SPAM_NAME");
    }
    return Settings::ReplaceAll(title, Settings::kSpamNamePlaceholder, spamName);
}

bool CUpdatesModel::Confirm(const UpdateChoices& shown) {
    if (m_services.agent.IsSuiteBusy()) {
        return false;
    }
    Settings::SettingsStore& settings = m_services.settings;
    const bool written =
        settings.SetInt(SettingId::EnableSchedule, shown.scheduled ? 1 : 0) &&
        settings.SetInt(SettingId::UpdateUI, shown.silent ? 0 : 1) &&
        settings.SetInt(SettingId::Interval, ScheduleMinutesAt(shown.scheduleIndex));
    if (!written) {
        m_services.log.LogText(L"xxx CUpdatesDlg::OnOK() the schedule cannot be written\n");
    }
    m_choices = shown;
    return true;
}

void CUpdatesModel::UpdateNow() {
    Settings::CheckSuiteVersion(m_ports.registry, m_ports.windows, m_services.log);
}

std::wstring CUpdatesModel::HelpArguments() const {
    std::wstring folder = m_programFolder;
    // No suite, or a suite that names no folder: the help file beside the add-in.
    ZelCommon::Exception::CatchThrown<ZelCommon::Storage::Exception>(
        [&] {
            ZelCommon::Storage::Registry suite(m_ports.registry);
            suite.Open(ZelCommon::Storage::RegRoot::LocalMachine, Settings::SuiteVersion::kKeyPath,
                       0);
            folder = suite.GetString(kSuiteFolderValue, std::wstring());
        },
        [](const ZelCommon::Storage::Exception&) {});
    return std::wstring(L" -mapid ") + kHelpTopic + L" \"" + folder + kHelpFile + L"\"";
}

bool CUpdatesModel::OpenHelp() {
    if (!m_ports.launcher.Launch(kHelpViewer + HelpArguments(), std::wstring())) {
        m_services.log.LogText(L"xxx CUpdatesDlg::OnHelp() hh.exe cannot be started\n");
        return false;
    }
    return true;
}

}  // namespace Orva::Ui
