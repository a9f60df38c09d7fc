#include "settings/SettingsCatalogue.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>

#include "common_src/platform/TextCodec.h"

namespace Orva::Settings {
namespace {

TEST(SettingsCatalogue, Rows_FollowTheirIdOrder) {
    const auto rows = SettingsCatalogue();
    ASSERT_EQ(rows.size(), kSettingCount);
    for (size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(static_cast<size_t>(rows[i].id), i);
        EXPECT_EQ(&Entry(rows[i].id), &rows[i]);
    }
}

// The profile functions compare section and key names without case.
TEST(SettingsCatalogue, FileSectionKey_AreUniqueIgnoringCase) {
    std::set<std::tuple<SettingsFile, std::wstring, std::wstring>> seen;
    for (const SettingEntry& entry : SettingsCatalogue()) {
        const auto place = std::make_tuple(entry.file, ZelCommon::Text::ToLower(entry.section),
                                           ZelCommon::Text::ToLower(entry.key));
        EXPECT_TRUE(seen.insert(place).second)
            << ZelCommon::Text::WideToUtf8(entry.section) << "/"
            << ZelCommon::Text::WideToUtf8(entry.key) << " appears twice";
    }
}

TEST(SettingsCatalogue, EveryEntry_HasAKeyAndASectionOrARunTimeVersionSection) {
    for (const SettingEntry& entry : SettingsCatalogue()) {
        EXPECT_FALSE(entry.key.empty());
        if (entry.file != SettingsFile::Version) {
            EXPECT_FALSE(entry.section.empty()) << ZelCommon::Text::WideToUtf8(entry.key);
        }
    }
}

TEST(SettingsCatalogue, NumericDefaults_MatchTheirText) {
    for (const SettingEntry& entry : SettingsCatalogue()) {
        if (entry.type != ValueType::String) {
            EXPECT_EQ(std::to_wstring(entry.defaultNumber), entry.defaultText)
                << ZelCommon::Text::WideToUtf8(entry.key);
        }
    }
}

struct Row {
    SettingId id;
    SettingsFile file;
    const wchar_t* section;
    const wchar_t* key;
    ValueType type;
    const wchar_t* defaultText;
    int32_t defaultNumber;
};

class SettingsCatalogueRow : public testing::TestWithParam<Row> {};

TEST_P(SettingsCatalogueRow, Entry_HasTheDocumentedPlaceTypeAndDefault) {
    const Row& row = GetParam();
    const SettingEntry& entry = Entry(row.id);
    EXPECT_EQ(entry.file, row.file);
    EXPECT_EQ(entry.section, row.section);
    EXPECT_EQ(entry.key, row.key);
    EXPECT_EQ(entry.type, row.type);
    EXPECT_EQ(entry.defaultText, row.defaultText);
    if (row.type != ValueType::String) {
        EXPECT_EQ(entry.defaultNumber, row.defaultNumber);
    }
}

using enum SettingId;
using enum SettingsFile;
using enum ValueType;

INSTANTIATE_TEST_SUITE_P(
    RiskyRows, SettingsCatalogueRow,
    testing::Values(
        Row{InstallDebug, Install, L"General", L"Debug", String, L"0", 0},
        Row{AgentLog, User, L"General", L"AgentLog", String, L"ORVAAgent.log", 0},
        Row{HiddenFunc, User, L"General", L"HiddenFunc", Integer, L"0", 0},
        Row{PurgeDays, User, L"General", L"PurgeDays", String, L"20", 0},
        Row{AutoApprove, User, L"General", L"AutoApprove", String, L"1", 0},
        Row{GlobalLevel, User, L"General", L"GlobalLevel", String, L"1", 0},
        Row{ProtectLevel, User, L"General", L"ProtectLevel", String, L"2", 0},
        Row{EnableInTheCloud, User, L"General", L"EnableInTheCloud", StringAndInteger, L"1", 1},
        Row{SpiritualLevel, User, L"General", L"SpiritualLevel", Integer, L"2", 2},
        Row{RacialLevel, User, L"General", L"RacialLevel", Integer, L"2", 2},
        Row{EnableWexor, User, L"Wexor", L"EnableWexor", Integer, L"2", 2},
        Row{SecurityLevel, User, L"Wexor", L"SecurityLevel", String, L"2", 0},
        Row{InstallEnableWexor, Install, L"Wexor", L"EnableWexor", Integer, L"0", 0},
        Row{InstallSecurityLevel, Install, L"Wexor", L"SecurityLevel", String, L"2", 0},
        Row{EngineVer, User, L"Antispam", L"EngineVer", String, L"0.0.0", 0},
        Row{PatchVer, User, L"Antispam", L"PatchVer", String, L"00000000", 0},
        Row{ORVAOEVer, User, L"Antispam", L"ORVAOEVer", String, L"0.00.0.0000", 0},
        Row{EnableTBar, User, L"Antispam", L"EnableTBar", String, L"1", 0},
        Row{Interval, User, L"RuleFile-Update", L"Interval", Integer, L"180", 180},
        Row{EnableSchedule, User, L"RuleFile-Update", L"EnableSchedule", Integer, L"1", 1},
        Row{EnableProxy, User, L"RuleFile-Update", L"EnableProxy", String, L"no", 0},
        Row{HTTPPort, User, L"RuleFile-Update", L"HTTPPort", Integer, L"80", 80},
        Row{EnableWTC, User, L"Statistics", L"EnableWTC", Integer, L"1", 1},
        Row{DontBother, User, L"UnsupportedMailServer", L"DontBother", Integer, L"0", 0},
        Row{ReportSpamAddress, User, L"ReportSpam", L"Address", String, L"", 0},
        Row{ReportFPAddress, User, L"ReportFP", L"Address", String, L"", 0},
        Row{ReportPhishAddress, User, L"ReportPhish", L"Address", String, L"", 0},
        Row{InstallAntiSpamTitle, Install, L"General", L"Anti-Spam", String, L"", 0},
        Row{InstallShowWTCButton, Install, L"General", L"ShowWTCButton", StringAndInteger, L"1", 1},
        Row{InstallShowReportButton, Install, L"General", L"ShowReportButton", String, L"1", 0},
        Row{InstallOrvaReg, Install, L"General", L"OrvaReg", String,
            L"SOFTWARE\\Halvion\\Corelane\\1700\\ORVA", 0},
        Row{InstallNotifyIcon, Install, L"General", L"NotifyIcon", String, L"0", 0},
        Row{InstallEnableInTheCloud, Install, L"General", L"EnableInTheCloud", String, L"1", 0},
        Row{InstallProtectLevel, Install, L"General", L"ProtectLevel", String, L"", 0},
        Row{InstallReportFPAddress, Install, L"ReportFP", L"Address", String, L"", 0},
        Row{SettedPLevel, User, L"General", L"SettedPLevel", Integer, L"0", 0},
        Row{SettedAutomove, User, L"General", L"SettedAutomove", Integer, L"0", 0},
        Row{SettedSecUpdateInterval, User, L"RuleFile-Update", L"SettedSecUpdateInterval", Integer,
            L"0", 0},
        Row{SettedReportPhishAddr, User, L"ReportPhish", L"SettedReportAddr", Integer, L"0", 0},
        Row{VersionPname, Version, L"", L"pname", String, L"orva", 0},
        Row{VersionDeployVersion, Version, L"ORVA_OE", L"DeployVersion", String, L"", 0}));

TEST(SettingsCatalogue, Flags_AreOneAndZeroExceptTheProxySwitch) {
    EXPECT_EQ(Entry(SettingId::EnableProxy).form, ValueForm::YesNo);
    EXPECT_EQ(FlagText(Entry(SettingId::EnableProxy).form, true), L"yes");
    EXPECT_EQ(FlagText(Entry(SettingId::EnableProxy).form, false), L"no");
    for (const SettingEntry& entry : SettingsCatalogue()) {
        if (entry.id == SettingId::EnableProxy) {
            continue;
        }
        EXPECT_NE(entry.form, ValueForm::YesNo) << ZelCommon::Text::WideToUtf8(entry.key);
        if (entry.form == ValueForm::Flag) {
            EXPECT_EQ(FlagText(entry.form, true), L"1");
            EXPECT_EQ(FlagText(entry.form, false), L"0");
        }
    }
}

TEST(SettingsCatalogue, InstallFileEntries_AreNeverWrittenByTheAddIn) {
    for (const SettingEntry& entry : SettingsCatalogue()) {
        if (entry.file == SettingsFile::Install) {
            EXPECT_EQ(entry.writer, Writer::Nobody) << ZelCommon::Text::WideToUtf8(entry.key);
        }
    }
}

TEST(SettingsCatalogue, VersionSection_DependsOnTheMachine) {
    EXPECT_EQ(VersionSection(true), L"ORVA_OE64");
    EXPECT_EQ(VersionSection(false), L"ORVA_OE");
    EXPECT_EQ(SectionOf(Entry(SettingId::VersionClass), true), L"ORVA_OE64");
    EXPECT_EQ(SectionOf(Entry(SettingId::VersionType), false), L"ORVA_OE");
    EXPECT_EQ(SectionOf(Entry(SettingId::VersionDeployVersion), true), L"ORVA_OE");
    EXPECT_EQ(SectionOf(Entry(SettingId::AUServer), true), L"RuleFile-Update");
}

TEST(SettingsCatalogue, FindSetting_TellsTheReportSectionsApart) {
    EXPECT_EQ(FindSetting(SettingsFile::User, L"ReportFP", L"Address"), SettingId::ReportFPAddress);
    EXPECT_EQ(FindSetting(SettingsFile::Install, L"ReportPhish", L"Address"),
              SettingId::InstallReportPhishAddress);
    EXPECT_EQ(FindSetting(SettingsFile::User, L"General", L"NoSuchKey"), std::nullopt);
}

// Every key of the per-user file, section by section, so that no row goes missing.
TEST(SettingsCatalogue, UserFile_HoldsExactlyTheDocumentedKeys) {
    const std::set<std::wstring> expected{L"General/AgentLog",
                                          L"General/HiddenFunc",
                                          L"General/ORVAStartTimes",
                                          L"General/PurgeDays",
                                          L"General/DeleteDeleted",
                                          L"General/NotifyIcon",
                                          L"General/AutoMoved",
                                          L"General/AutoApprove",
                                          L"General/GlobalLevel",
                                          L"General/ProtectLevel",
                                          L"General/EnableInTheCloud",
                                          L"General/SexualLevel",
                                          L"General/CommercialLevel",
                                          L"General/FinancialLevel",
                                          L"General/HealthLevel",
                                          L"General/OtherLevel",
                                          L"General/RacialLevel",
                                          L"General/SpiritualLevel",
                                          L"Wexor/EnableWexor",
                                          L"Wexor/SecurityLevel",
                                          L"Antispam/EngineVer",
                                          L"Antispam/PatchVer",
                                          L"Antispam/ORVAOEVer",
                                          L"Antispam/ORVAWLMVer",
                                          L"Antispam/EnableTBar",
                                          L"RuleFile-Update/Interval",
                                          L"RuleFile-Update/EnableSchedule",
                                          L"RuleFile-Update/UpdateUI",
                                          L"RuleFile-Update/LastUpdateTime",
                                          L"RuleFile-Update/UpToDate",
                                          L"RuleFile-Update/AUServer",
                                          L"RuleFile-Update/EnableProxy",
                                          L"RuleFile-Update/HTTPProxy",
                                          L"RuleFile-Update/HTTPPort",
                                          L"RuleFile-Update/ProxyUserName",
                                          L"RuleFile-Update/ProxyPassword",
                                          L"Statistics/RunningSince",
                                          L"Statistics/ProcessedMsg",
                                          L"Statistics/DetectedSpam",
                                          L"Statistics/ReportedSpam",
                                          L"Statistics/ReportedFP",
                                          L"Statistics/EnableWTC",
                                          L"Statistics/WTCWebServer",
                                          L"UnsupportedMailServer/DontBother",
                                          L"ReportSpam/Address",
                                          L"ReportFP/Address",
                                          L"ReportPhish/Address",
                                          L"RuleFile-Update/SettedAUUrl",
                                          L"RuleFile-Update/SettedEnableScheduleUpdate",
                                          L"RuleFile-Update/SettedSecUpdateInterval",
                                          L"RuleFile-Update/SettedUpdateUI",
                                          L"General/SettedPLevel",
                                          L"General/SettedEnableInTheCloud",
                                          L"General/SettedAutoApprove",
                                          L"General/SettedNotifyIcon",
                                          L"General/SettedAutomove",
                                          L"General/SettedPurgeDays",
                                          L"General/SettedDeleteDeleted",
                                          L"ReportSpam/SettedReportAddr",
                                          L"ReportFP/SettedReportAddr",
                                          L"ReportPhish/SettedReportAddr"};
    std::set<std::wstring> actual;
    for (const SettingEntry& entry : SettingsCatalogue()) {
        if (entry.file == SettingsFile::User) {
            actual.insert(std::wstring(entry.section) + L"/" + std::wstring(entry.key));
        }
    }
    EXPECT_EQ(actual, expected);
}

TEST(SettingsCatalogue, IdentityNames_AreTheRegistryNames) {
    EXPECT_EQ(IdentityRegistry::kKey, L"Identities");
    EXPECT_EQ(IdentityRegistry::kLastUserId, L"Last User ID");
    EXPECT_EQ(IdentityRegistry::kDefaultUserId, L"Default User ID");
    EXPECT_EQ(IdentityRegistry::kFallbackIdentity, L"Default");
}

}  // namespace
}  // namespace Orva::Settings
