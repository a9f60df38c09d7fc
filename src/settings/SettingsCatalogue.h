#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace Orva::Settings {

// Which ini file holds a setting.
enum class SettingsFile : uint8_t {
    Install,  // "ORVA_WLM.ini" beside the add-in: deployment presets and branding, read only
    User,     // "ORVA_WLM.ini" in the per-user folder
    Version,  // "ORVA_version.ini" in the shared folder
};

// How the readers read a value: as text (1024-character buffer), as a profile integer, or both.
enum class ValueType : uint8_t { String, Integer, StringAndInteger };

// The stored form a writer must use.
enum class ValueForm : uint8_t {
    Text,    // free text
    Flag,    // "1" or "0"
    YesNo,   // "yes" or "no"
    Number,  // decimal text written with "%d"
};

enum class Writer : uint8_t {
    Nobody,   // edited by hand or by the installer only
    AddIn,    // pages and start-up
    AtStart,  // rewritten at every start of the add-in
    Agent,    // the scanning agent (statistics may be reset by the add-in)
};

// Every setting of the add-in. The order is the catalogue's; SettingsCatalogue() is indexed by it.
enum class SettingId : uint16_t {
    // Installation file, General: switches and branding.
    InstallDebug,
    InstallAboutTitle,
    InstallAboutBannerPath,
    InstallAboutProductName,
    InstallAboutCompanyName,
    InstallCorpName,
    InstallAntiSpamTitle,
    InstallApproveSenderTitle,
    InstallApproveSenderNote,
    InstallApproveMailList,
    InstallBlockSenderTitle,
    InstallBlockSenderNote,
    InstallSliderBitmap,
    InstallShowWTCButton,
    InstallShowReportButton,
    InstallORVALogo,
    InstallORVALogoTooltip,
    InstallORVAMenuBarName,
    InstallWebSiteForLogo,
    InstallASGroupTitle,
    InstallWTCLink,
    InstallOrvaReg,
    // Installation file: presets copied once into each user's file.
    InstallAUServer,
    InstallEnableSchedule,
    InstallInterval,
    InstallUpdateUI,
    InstallProtectLevel,
    InstallEnableInTheCloud,
    InstallAutoApprove,
    InstallNotifyIcon,
    InstallAutoMoved,
    InstallPurgeDays,
    InstallDeleteDeleted,
    InstallReportSpamAddress,
    InstallReportFPAddress,
    InstallReportPhishAddress,
    // Installation file: the link filter's fall-back while the user has not chosen.
    InstallEnableWexor,
    InstallSecurityLevel,

    // Per-user file, General.
    AgentLog,
    HiddenFunc,
    ORVAStartTimes,
    PurgeDays,
    DeleteDeleted,
    NotifyIcon,
    AutoMoved,
    AutoApprove,
    GlobalLevel,
    ProtectLevel,
    EnableInTheCloud,
    SexualLevel,
    CommercialLevel,
    FinancialLevel,
    HealthLevel,
    OtherLevel,
    RacialLevel,
    SpiritualLevel,
    // Per-user file, Wexor.
    EnableWexor,
    SecurityLevel,
    // Per-user file, Antispam.
    EngineVer,
    PatchVer,
    ORVAOEVer,
    ORVAWLMVer,
    EnableTBar,
    // Per-user file, RuleFile-Update.
    Interval,
    EnableSchedule,
    UpdateUI,
    LastUpdateTime,
    UpToDate,
    AUServer,
    EnableProxy,
    HTTPProxy,
    HTTPPort,
    ProxyUserName,
    ProxyPassword,
    // Per-user file, Statistics.
    RunningSince,
    ProcessedMsg,
    DetectedSpam,
    ReportedSpam,
    ReportedFP,
    EnableWTC,
    WTCWebServer,
    // Per-user file, UnsupportedMailServer.
    DontBother,
    // Per-user file, the report addresses.
    ReportSpamAddress,
    ReportFPAddress,
    ReportPhishAddress,
    // Per-user file: markers of presets already applied.
    SettedAUUrl,
    SettedEnableScheduleUpdate,
    SettedSecUpdateInterval,
    SettedUpdateUI,
    SettedPLevel,
    SettedEnableInTheCloud,
    SettedAutoApprove,
    SettedNotifyIcon,
    SettedAutomove,
    SettedPurgeDays,
    SettedDeleteDeleted,
    SettedReportSpamAddr,
    SettedReportFPAddr,
    SettedReportPhishAddr,

    // Version file; the section of the first three depends on the machine (VersionSection).
    VersionPname,
    VersionClass,
    VersionType,
    VersionDeployVersion,

    Count
};

inline constexpr std::size_t kSettingCount = static_cast<std::size_t>(SettingId::Count);

struct SettingEntry {
    SettingId id;
    SettingsFile file;
    // Empty for the version file entries whose section is chosen at run time.
    std::wstring_view section;
    std::wstring_view key;
    ValueType type;
    ValueForm form;
    // The default of string reads, and of integer reads (0 when the catalogue names none).
    std::wstring_view defaultText;
    int32_t defaultNumber;
    Writer writer;
};

// The whole catalogue, in SettingId order.
std::span<const SettingEntry> SettingsCatalogue();
const SettingEntry& Entry(SettingId id);
std::optional<SettingId> FindSetting(SettingsFile file, std::wstring_view section,
                                     std::wstring_view key);

// The version file section: "ORVA_OE64" on a 64-bit Windows, "ORVA_OE" otherwise.
std::wstring_view VersionSection(bool windows64);
// The section an entry is read from or written to on this machine.
std::wstring_view SectionOf(const SettingEntry& entry, bool windows64);

// The stored texts of flags; EnableProxy alone says "yes"/"no".
std::wstring_view FlagText(ValueForm form, bool on);

// Registry names of the identity look-up (under HKEY_CURRENT_USER).
namespace IdentityRegistry {
inline constexpr std::wstring_view kKey = L"Identities";
inline constexpr std::wstring_view kLastUserId = L"Last User ID";
inline constexpr std::wstring_view kDefaultUserId = L"Default User ID";
// The identity name used when the registry names none.
inline constexpr std::wstring_view kFallbackIdentity = L"Default";
}  // namespace IdentityRegistry

}  // namespace Orva::Settings
