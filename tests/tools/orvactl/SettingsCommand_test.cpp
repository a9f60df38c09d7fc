#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "OrvactlRun.h"
#include "common_src/platform/Path.h"
#include "support/TempFolder.h"
#include "tools/orvactl/SettingsReport.h"
#include "tools/orvactl/TextTable.h"

namespace Orva::Orvactl {
namespace {

using Testing::RunTool;

struct TableLine {
    std::wstring section;
    std::wstring key;
    std::wstring value;
    std::wstring source;
};

// Splits the printed table back into cells: columns start where the heading's words start.
std::vector<TableLine> ParseTable(const std::wstring& text) {
    std::wistringstream lines(text);
    std::wstring heading;
    std::getline(lines, heading);
    const size_t keyAt = heading.find(L"KEY");
    const size_t valueAt = heading.find(L"VALUE");
    const size_t sourceAt = heading.find(L"SOURCE");
    const auto cell = [](const std::wstring& line, size_t from, size_t to) {
        std::wstring part = line.substr(from, to == std::wstring::npos ? to : to - from);
        part.erase(part.find_last_not_of(L' ') + 1);
        return part;
    };
    std::vector<TableLine> rows;
    std::wstring line;
    std::getline(lines, line);  // the rule under the heading
    while (std::getline(lines, line)) {
        rows.push_back({cell(line, 0, keyAt), cell(line, keyAt, valueAt),
                        cell(line, valueAt, sourceAt), cell(line, sourceAt, std::wstring::npos)});
    }
    return rows;
}

const TableLine* Find(const std::vector<TableLine>& rows, const std::wstring& section,
                      const std::wstring& key) {
    for (const TableLine& row : rows) {
        if (row.section == section && row.key == key) {
            return &row;
        }
    }
    return nullptr;
}

class SettingsCommandTest : public testing::Test {
protected:
    void SetUp() override {
        for (const auto& [section, key, value] : std::vector<std::array<std::wstring, 3>>{
                 {L"General", L"ProtectLevel", L"3"},
                 {L"RuleFile-Update", L"AUServer", L"http://updates.corp.example/"},
                 {L"ReportFP", L"Address", L"fp@corp.example"},
                 {L"Wexor", L"EnableWexor", L"1"},
                 {L"Wexor", L"SecurityLevel", L"3"}}) {
            ASSERT_EQ(RunTool({L"ini", L"set", installFile, section, key, value}).exitCode,
                      kExitOk);
        }
    }

    Testing::OrvactlRun RunSettings() {
        return RunTool({L"settings", L"--install-dir", installDir, L"--user-dir", userDir});
    }

    Testing::TempFolder temp;
    std::wstring installDir = temp.Folder(L"install");
    std::wstring installFile = installDir + L"ORVA_WLM.ini";
    std::wstring userDir = temp.Folder(L"users") + L"Default";
    std::wstring userFile = ZelCommon::Path::ChildFile(userDir, L"ORVA_WLM.ini");

    void SetUpFolders() { ZelCommon::Path::CreateFolderWithParents(installDir); }

public:
    SettingsCommandTest() { SetUpFolders(); }
};

TEST_F(SettingsCommandTest, FreshUser_GetsThePresetsAndTheirSource) {
    const auto run = RunSettings();
    ASSERT_EQ(run.exitCode, kExitOk) << run.err.size();
    const auto rows = ParseTable(run.out);

    const TableLine* level = Find(rows, L"General", L"ProtectLevel");
    ASSERT_NE(level, nullptr);
    EXPECT_EQ(level->value, L"3");
    EXPECT_EQ(level->source, L"preset");
    EXPECT_EQ(Find(rows, L"General", L"SettedPLevel")->value, L"1");
    EXPECT_EQ(Find(rows, L"General", L"SettedPLevel")->source, L"stored");
    EXPECT_EQ(Find(rows, L"RuleFile-Update", L"AUServer")->value, L"http://updates.corp.example/");
    EXPECT_EQ(Find(rows, L"ReportFP", L"Address")->source, L"preset");
    EXPECT_EQ(Find(rows, L"ReportSpam", L"Address")->source, L"default");
    EXPECT_EQ(Find(rows, L"General", L"NotifyIcon")->value, L"0");
    EXPECT_EQ(Find(rows, L"General", L"NotifyIcon")->source, L"preset");
    EXPECT_EQ(Find(rows, L"General", L"PurgeDays")->value, L"20");
    EXPECT_EQ(Find(rows, L"General", L"PurgeDays")->source, L"default");
    EXPECT_EQ(Find(rows, L"RuleFile-Update", L"Interval")->value, L"180");
    EXPECT_EQ(Find(rows, L"RuleFile-Update", L"EnableProxy")->value, L"no");
    EXPECT_EQ(Find(rows, L"Wexor", L"EnableWexor")->value, L"1");
    EXPECT_EQ(Find(rows, L"Wexor", L"EnableWexor")->source, L"install");
    EXPECT_EQ(Find(rows, L"Wexor", L"SecurityLevel")->value, L"3");
    EXPECT_EQ(Find(rows, L"Wexor", L"SecurityLevel")->source, L"install");
}

TEST_F(SettingsCommandTest, EveryPerUserSetting_IsListedOnce) {
    const auto rows = ParseTable(RunSettings().out);
    size_t userEntries = 0;
    for (const Settings::SettingEntry& entry : Settings::SettingsCatalogue()) {
        if (entry.file == Settings::SettingsFile::User) {
            ++userEntries;
            EXPECT_NE(Find(rows, std::wstring(entry.section), std::wstring(entry.key)), nullptr);
        }
    }
    EXPECT_EQ(rows.size(), userEntries);
    for (const TableLine& row : rows) {
        EXPECT_TRUE(row.source == L"stored" || row.source == L"preset" ||
                    row.source == L"default" || row.source == L"install");
    }
}

TEST_F(SettingsCommandTest, UsersChange_SurvivesTheNextStartAsStored) {
    ASSERT_EQ(RunSettings().exitCode, kExitOk);
    ASSERT_EQ(RunTool({L"ini", L"set", userFile, L"General", L"ProtectLevel", L"1"}).exitCode,
              kExitOk);

    const auto rows = ParseTable(RunSettings().out);

    EXPECT_EQ(Find(rows, L"General", L"ProtectLevel")->value, L"1");
    EXPECT_EQ(Find(rows, L"General", L"ProtectLevel")->source, L"stored");
    EXPECT_EQ(RunTool({L"ini", L"get", userFile, L"General", L"ProtectLevel"}).out, L"1\n");
}

TEST_F(SettingsCommandTest, Table_HasAlignedColumnsUnderAHeading) {
    const auto run = RunSettings();
    std::wistringstream lines(run.out);
    std::wstring heading;
    std::wstring rule;
    std::getline(lines, heading);
    std::getline(lines, rule);
    EXPECT_EQ(heading.rfind(L"SECTION", 0), 0u);
    EXPECT_EQ(rule.find_first_not_of(L"- "), std::wstring::npos);
    const size_t sourceAt = heading.find(L"SOURCE");
    std::wstring line;
    while (std::getline(lines, line)) {
        ASSERT_GT(line.size(), sourceAt);
        EXPECT_NE(line[sourceAt], L' ');
        EXPECT_EQ(line[sourceAt - 1], L' ');
    }
}

TEST_F(SettingsCommandTest, InstallFileIsNeverWritten) {
    const auto before = RunTool({L"ini", L"keys", installFile, L"General"}).out;
    RunSettings();
    EXPECT_EQ(RunTool({L"ini", L"keys", installFile, L"General"}).out, before);
    EXPECT_EQ(RunTool({L"ini", L"sections", installFile}).out,
              L"General\nRuleFile-Update\nReportFP\nWexor\n");
}

TEST_F(SettingsCommandTest, MissingInstallFolder_FailsWithAMessage) {
    const auto run =
        RunTool({L"settings", L"--install-dir", temp.Folder(L"gone"), L"--user-dir", userDir});
    EXPECT_EQ(run.exitCode, kExitFailure);
    EXPECT_EQ(run.out, L"");
    EXPECT_NE(run.err.find(L"gone"), std::wstring::npos);
}

TEST_F(SettingsCommandTest, UserFileThatIsAFolder_Fails) {
    ZelCommon::Path::CreateFolderWithParents(userFile);
    const auto run = RunSettings();
    EXPECT_EQ(run.exitCode, kExitFailure);
    EXPECT_NE(run.err.find(L"folder"), std::wstring::npos);
}

TEST_F(SettingsCommandTest, UserFolderThatIsAFile_Fails) {
    const std::wstring file = temp.File(L"plain.txt");
    ASSERT_EQ(RunTool({L"ini", L"set", file, L"S", L"K", L"V"}).exitCode, kExitOk);
    const auto run = RunTool({L"settings", L"--install-dir", installDir, L"--user-dir", file});
    EXPECT_EQ(run.exitCode, kExitFailure);
    EXPECT_NE(run.err.find(L"not a folder"), std::wstring::npos);
}

TEST_F(SettingsCommandTest, InstallFolderWithoutIni_NotesItAndShowsDefaults) {
    const std::wstring bare = temp.Folder(L"bare");
    ZelCommon::Path::CreateFolderWithParents(bare);
    const auto run = RunTool({L"settings", L"--install-dir", bare, L"--user-dir", userDir});
    EXPECT_EQ(run.exitCode, kExitOk);
    EXPECT_NE(run.err.find(L"does not exist"), std::wstring::npos);
    EXPECT_EQ(Find(ParseTable(run.out), L"General", L"NotifyIcon")->source, L"preset");
    EXPECT_EQ(Find(ParseTable(run.out), L"General", L"ProtectLevel")->value, L"2");
}

TEST_F(SettingsCommandTest, EqualsForm_IsAccepted) {
    const auto run =
        RunTool({L"settings", L"--install-dir=" + installDir, L"--user-dir=" + userDir});
    EXPECT_EQ(run.exitCode, kExitOk);
}

TEST(SettingsCommandArgs, MissingOrUnknownOptions_AreUsageErrors) {
    for (const std::vector<std::wstring>& args : std::vector<std::vector<std::wstring>>{
             {L"settings"},
             {L"settings", L"--install-dir", L"x"},
             {L"settings", L"--user-dir", L"x"},
             {L"settings", L"--install-dir", L"x", L"--user-dir"},
             {L"settings", L"--install-dir", L"x", L"--user-dir", L"y", L"--colour", L"z"}}) {
        const auto run = RunTool(args);
        EXPECT_EQ(run.exitCode, kExitUsage);
        EXPECT_EQ(run.out, L"");
        EXPECT_NE(run.err.find(L"--help"), std::wstring::npos);
    }
}

TEST(TextTable, PadsEveryColumnButTheLast) {
    EXPECT_EQ(FormatTable({{L"A", L"BB", L"C"}, {L"long", L"x", L"y"}}),
              L"A     BB  C\n----  --  -\nlong  x   y\n");
}

}  // namespace
}  // namespace Orva::Orvactl
