#include "settings/SettingsCatalogue.h"

#include <array>

#include "settings/FeedbackAddresses.h"

namespace Orva::Settings {
namespace {

constexpr std::wstring_view kGeneral = L"General";
constexpr std::wstring_view kWexor = L"Wexor";
constexpr std::wstring_view kAntispam = L"Antispam";
constexpr std::wstring_view kRuleFileUpdate = L"RuleFile-Update";
constexpr std::wstring_view kStatistics = L"Statistics";
constexpr std::wstring_view kUnsupportedMailServer = L"UnsupportedMailServer";
constexpr std::wstring_view kReportSpam = L"ReportSpam";
constexpr std::wstring_view kReportFP = L"ReportFP";
constexpr std::wstring_view kReportPhish = L"ReportPhish";
constexpr std::wstring_view kVersion32 = L"ORVA_OE";
constexpr std::wstring_view kVersion64 = L"ORVA_OE64";
// The version file's pname, class and type go to the section of the machine's bitness;
// DeployVersion stays in the 32-bit section on every machine.
constexpr std::wstring_view kRunTime = L"";

using enum SettingId;
using enum SettingsFile;
using enum ValueType;
using enum ValueForm;
using enum Writer;

// clang-format off
constexpr std::array<SettingEntry, kSettingCount> kCatalogue{{
    {InstallDebug,              Install, kGeneral, L"Debug",              String,  Flag,   L"0", 0, Nobody},
    {InstallAboutTitle,         Install, kGeneral, L"AboutTitle",         String,  Text,   L"", 0, Nobody},
    {InstallAboutBannerPath,    Install, kGeneral, L"AboutBannerPath",    String,  Text,   L"", 0, Nobody},
    {InstallAboutProductName,   Install, kGeneral, L"AboutProductName",   String,  Text,   L"", 0, Nobody},
    {InstallAboutCompanyName,   Install, kGeneral, L"AboutCompanyName",   String,  Text,   L"", 0, Nobody},
    {InstallCorpName,           Install, kGeneral, L"CorpName",           String,  Text,   L"", 0, Nobody},
    {InstallAntiSpamTitle,      Install, kGeneral, L"Anti-Spam",          String,  Text,   L"", 0, Nobody},
    {InstallApproveSenderTitle, Install, kGeneral, L"ApproveSenderTitle", String,  Text,   L"", 0, Nobody},
    {InstallApproveSenderNote,  Install, kGeneral, L"ApproveSenderNote",  String,  Text,   L"", 0, Nobody},
    {InstallApproveMailList,    Install, kGeneral, L"ApproveMailList",    String,  Text,   L"", 0, Nobody},
    {InstallBlockSenderTitle,   Install, kGeneral, L"BlockSenderTitle",   String,  Text,   L"", 0, Nobody},
    {InstallBlockSenderNote,    Install, kGeneral, L"BlockSenderNote",    String,  Text,   L"", 0, Nobody},
    {InstallSliderBitmap,       Install, kGeneral, L"SliderBitmap",       String,  Text,   L"", 0, Nobody},
    {InstallShowWTCButton,      Install, kGeneral, L"ShowWTCButton",      StringAndInteger, Flag, L"1", 1, Nobody},
    {InstallShowReportButton,   Install, kGeneral, L"ShowReportButton",   String,  Flag,   L"1", 1, Nobody},
    {InstallORVALogo,           Install, kGeneral, L"ORVALogo",           String,  Text,   L"", 0, Nobody},
    {InstallORVALogoTooltip,    Install, kGeneral, L"ORVALogoTooltip",    String,  Text,   L"", 0, Nobody},
    {InstallORVAMenuBarName,    Install, kGeneral, L"ORVAMenuBarName",    String,  Text,   L"", 0, Nobody},
    {InstallWebSiteForLogo,     Install, kGeneral, L"WebSiteForLogo",     String,  Text,   L"", 0, Nobody},
    {InstallASGroupTitle,       Install, kGeneral, L"ASGroupTitle",       String,  Text,   L"", 0, Nobody},
    {InstallWTCLink,            Install, kGeneral, L"WTCLink",            String,  Text,   L"", 0, Nobody},
    {InstallOrvaReg,            Install, kGeneral, L"OrvaReg",            String,  Text,   L"SOFTWARE\\Halvion\\Corelane\\1700\\ORVA", 0, Nobody},

    {InstallAUServer,           Install, kRuleFileUpdate, L"AUServer",       String, Text,   L"", 0, Nobody},
    {InstallEnableSchedule,     Install, kRuleFileUpdate, L"EnableSchedule", String, Number, L"", 0, Nobody},
    {InstallInterval,           Install, kRuleFileUpdate, L"Interval",       String, Number, L"", 0, Nobody},
    {InstallUpdateUI,           Install, kRuleFileUpdate, L"UpdateUI",       String, Number, L"", 0, Nobody},
    {InstallProtectLevel,       Install, kGeneral,  L"ProtectLevel",     String, Number, L"",  0, Nobody},
    {InstallEnableInTheCloud,   Install, kGeneral,  L"EnableInTheCloud", String, Flag,   L"1", 1, Nobody},
    {InstallAutoApprove,        Install, kGeneral,  L"AutoApprove",      String, Flag,   L"",  0, Nobody},
    {InstallNotifyIcon,         Install, kGeneral,  L"NotifyIcon",       String, Flag,   L"0", 0, Nobody},
    {InstallAutoMoved,          Install, kGeneral,  L"AutoMoved",        String, Flag,   L"",  0, Nobody},
    {InstallPurgeDays,          Install, kGeneral,  L"PurgeDays",        String, Number, L"",  0, Nobody},
    {InstallDeleteDeleted,      Install, kGeneral,  L"DeleteDeleted",    String, Flag,   L"",  0, Nobody},
    {InstallReportSpamAddress,  Install, kReportSpam,  L"Address",       String, Text,   L"",  0, Nobody},
    {InstallReportFPAddress,    Install, kReportFP,    L"Address",       String, Text,   L"",  0, Nobody},
    {InstallReportPhishAddress, Install, kReportPhish, L"Address",       String, Text,   L"",  0, Nobody},
    {InstallEnableWexor,        Install, kWexor,    L"EnableWexor",      Integer, Number, L"0", 0, Nobody},
    {InstallSecurityLevel,      Install, kWexor,    L"SecurityLevel",    String,  Number, L"2", 2, Nobody},

    {AgentLog,                  User, kGeneral, L"AgentLog",         String,  Text,   L"ORVAAgent.log", 0, Nobody},
    {HiddenFunc,                User, kGeneral, L"HiddenFunc",       Integer, Number, L"0",  0,  Nobody},
    {ORVAStartTimes,            User, kGeneral, L"ORVAStartTimes",   Integer, Number, L"0",  0,  AtStart},
    {PurgeDays,                 User, kGeneral, L"PurgeDays",        String,  Number, L"20", 20, AddIn},
    {DeleteDeleted,             User, kGeneral, L"DeleteDeleted",    String,  Flag,   L"0",  0,  AddIn},
    {NotifyIcon,                User, kGeneral, L"NotifyIcon",       String,  Flag,   L"0",  0,  AddIn},
    {AutoMoved,                 User, kGeneral, L"AutoMoved",        String,  Flag,   L"0",  0,  AddIn},
    {AutoApprove,               User, kGeneral, L"AutoApprove",      String,  Flag,   L"1",  1,  AddIn},
    {GlobalLevel,               User, kGeneral, L"GlobalLevel",      String,  Number, L"1",  1,  AddIn},
    {ProtectLevel,              User, kGeneral, L"ProtectLevel",     String,  Number, L"2",  2,  AddIn},
    {EnableInTheCloud,          User, kGeneral, L"EnableInTheCloud", StringAndInteger, Flag, L"1", 1, AddIn},
    {SexualLevel,               User, kGeneral, L"SexualLevel",      Integer, Number, L"2",  2,  AddIn},
    {CommercialLevel,           User, kGeneral, L"CommercialLevel",  Integer, Number, L"2",  2,  AddIn},
    {FinancialLevel,            User, kGeneral, L"FinancialLevel",   Integer, Number, L"2",  2,  AddIn},
    {HealthLevel,               User, kGeneral, L"HealthLevel",      Integer, Number, L"2",  2,  AddIn},
    {OtherLevel,                User, kGeneral, L"OtherLevel",       Integer, Number, L"2",  2,  AddIn},
    {RacialLevel,               User, kGeneral, L"RacialLevel",      Integer, Number, L"2",  2,  AddIn},
    {SpiritualLevel,            User, kGeneral, L"SpiritualLevel",   Integer, Number, L"2",  2,  AddIn},

    // 2 means the user has not chosen yet; the installation file decides until then.
    {EnableWexor,               User, kWexor,   L"EnableWexor",      Integer, Number, L"2",  2,  AddIn},
    {SecurityLevel,             User, kWexor,   L"SecurityLevel",    String,  Number, L"2",  2,  AddIn},

    {EngineVer,                 User, kAntispam, L"EngineVer",  String, Text, L"0.0.0",       0, Agent},
    {PatchVer,                  User, kAntispam, L"PatchVer",   String, Text, L"00000000",    0, Agent},
    {ORVAOEVer,                 User, kAntispam, L"ORVAOEVer",  String, Text, L"0.00.0.0000", 0, Agent},
    {ORVAWLMVer,                User, kAntispam, L"ORVAWLMVer", String, Text, L"",            0, AtStart},
    {EnableTBar,                User, kAntispam, L"EnableTBar", String, Flag, L"1",           1, AddIn},

    {Interval,                  User, kRuleFileUpdate, L"Interval",       Integer, Number, L"180", 180, AddIn},
    {EnableSchedule,            User, kRuleFileUpdate, L"EnableSchedule", Integer, Flag,   L"1",   1,   AddIn},
    {UpdateUI,                  User, kRuleFileUpdate, L"UpdateUI",       Integer, Flag,   L"0",   0,   AddIn},
    {LastUpdateTime,            User, kRuleFileUpdate, L"LastUpdateTime", Integer, Number, L"0",   0,   Agent},
    {UpToDate,                  User, kRuleFileUpdate, L"UpToDate",       Integer, Number, L"0",   0,   Agent},
    {AUServer,                  User, kRuleFileUpdate, L"AUServer",       String,  Text,   L"",    0,   AddIn},
    {EnableProxy,               User, kRuleFileUpdate, L"EnableProxy",    String,  YesNo,  L"no",  0,   AddIn},
    {HTTPProxy,                 User, kRuleFileUpdate, L"HTTPProxy",      String,  Text,   L"",    0,   AddIn},
    {HTTPPort,                  User, kRuleFileUpdate, L"HTTPPort",       Integer, Number, L"80",  80,  AddIn},
    {ProxyUserName,             User, kRuleFileUpdate, L"ProxyUserName",  String,  Text,   L"",    0,   AddIn},
    {ProxyPassword,             User, kRuleFileUpdate, L"ProxyPassword",  String,  Text,   L"",    0,   AddIn},

    {RunningSince,              User, kStatistics, L"RunningSince", Integer, Number, L"0", 0, Agent},
    {ProcessedMsg,              User, kStatistics, L"ProcessedMsg", Integer, Number, L"0", 0, Agent},
    {DetectedSpam,              User, kStatistics, L"DetectedSpam", Integer, Number, L"0", 0, Agent},
    {ReportedSpam,              User, kStatistics, L"ReportedSpam", Integer, Number, L"0", 0, Agent},
    {ReportedFP,                User, kStatistics, L"ReportedFP",   Integer, Number, L"0", 0, Agent},
    {EnableWTC,                 User, kStatistics, L"EnableWTC",    Integer, Flag,   L"1", 1, AddIn},
    {WTCWebServer,              User, kStatistics, L"WTCWebServer", String,  Text,   kFeedbackServer, 0, Nobody},

    {DontBother,                User, kUnsupportedMailServer, L"DontBother", Integer, Flag, L"0", 0, AddIn},

    {ReportSpamAddress,         User, kReportSpam,  L"Address", String, Text, L"", 0, AddIn},
    {ReportFPAddress,           User, kReportFP,    L"Address", String, Text, L"", 0, AddIn},
    {ReportPhishAddress,        User, kReportPhish, L"Address", String, Text, L"", 0, AddIn},

    {SettedAUUrl,                User, kRuleFileUpdate, L"SettedAUUrl",                Integer, Flag, L"0", 0, AddIn},
    {SettedEnableScheduleUpdate, User, kRuleFileUpdate, L"SettedEnableScheduleUpdate", Integer, Flag, L"0", 0, AddIn},
    {SettedSecUpdateInterval,    User, kRuleFileUpdate, L"SettedSecUpdateInterval",    Integer, Flag, L"0", 0, AddIn},
    {SettedUpdateUI,             User, kRuleFileUpdate, L"SettedUpdateUI",             Integer, Flag, L"0", 0, AddIn},
    {SettedPLevel,               User, kGeneral,        L"SettedPLevel",               Integer, Flag, L"0", 0, AddIn},
    {SettedEnableInTheCloud,     User, kGeneral,        L"SettedEnableInTheCloud",     Integer, Flag, L"0", 0, AddIn},
    {SettedAutoApprove,          User, kGeneral,        L"SettedAutoApprove",          Integer, Flag, L"0", 0, AddIn},
    {SettedNotifyIcon,           User, kGeneral,        L"SettedNotifyIcon",           Integer, Flag, L"0", 0, AddIn},
    {SettedAutomove,             User, kGeneral,        L"SettedAutomove",             Integer, Flag, L"0", 0, AddIn},
    {SettedPurgeDays,            User, kGeneral,        L"SettedPurgeDays",            Integer, Flag, L"0", 0, AddIn},
    {SettedDeleteDeleted,        User, kGeneral,        L"SettedDeleteDeleted",        Integer, Flag, L"0", 0, AddIn},
    {SettedReportSpamAddr,       User, kReportSpam,     L"SettedReportAddr",           Integer, Flag, L"0", 0, AddIn},
    {SettedReportFPAddr,         User, kReportFP,       L"SettedReportAddr",           Integer, Flag, L"0", 0, AddIn},
    {SettedReportPhishAddr,      User, kReportPhish,    L"SettedReportAddr",           Integer, Flag, L"0", 0, AddIn},

    // The written values of the version file; DeployVersion's comes from the add-in's version.
    {VersionPname,         Version, kRunTime,  L"pname",         String, Text, L"orva",  0, AtStart},
    {VersionClass,         Version, kRunTime,  L"class",         String, Text, L"WLMA",  0, AtStart},
    {VersionType,          Version, kRunTime,  L"type",          String, Text, L"addin", 0, AtStart},
    {VersionDeployVersion, Version, kVersion32, L"DeployVersion", String, Text, L"",     0, AtStart},
}};
// clang-format on

constexpr bool IdsFollowTheirIndex() {
    for (std::size_t i = 0; i < kCatalogue.size(); ++i) {
        if (static_cast<std::size_t>(kCatalogue[i].id) != i) {
            return false;
        }
    }
    return true;
}
static_assert(IdsFollowTheirIndex(), "catalogue rows must follow the SettingId order");

}  // namespace

std::span<const SettingEntry> SettingsCatalogue() {
    return kCatalogue;
}

const SettingEntry& Entry(SettingId id) {
    return kCatalogue.at(static_cast<std::size_t>(id));
}

std::optional<SettingId> FindSetting(SettingsFile file, std::wstring_view section,
                                     std::wstring_view key) {
    for (const SettingEntry& entry : kCatalogue) {
        if (entry.file == file && entry.section == section && entry.key == key) {
            return entry.id;
        }
    }
    return std::nullopt;
}

std::wstring_view VersionSection(bool windows64) {
    return windows64 ? kVersion64 : kVersion32;
}

std::wstring_view SectionOf(const SettingEntry& entry, bool windows64) {
    if (entry.file == SettingsFile::Version && entry.section.empty()) {
        return VersionSection(windows64);
    }
    return entry.section;
}

std::wstring_view FlagText(ValueForm form, bool on) {
    if (form == ValueForm::YesNo) {
        return on ? L"yes" : L"no";
    }
    return on ? L"1" : L"0";
}

}  // namespace Orva::Settings
