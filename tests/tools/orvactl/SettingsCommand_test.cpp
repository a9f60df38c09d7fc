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
        ZelCommon::Path::CreateFolderWithParents(installDir);
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
};

// Options may also be given as --name=value. The installation file is never written.
TEST_F(SettingsCommandTest, FreshUser_GetsThePresetsAndTheirSource) {
    const auto installKeys = RunTool({L"ini", L"keys", installFile, L"General"}).out;
    const auto run =
        RunTool({L"settings", L"--install-dir=" + installDir, L"--user-dir=" + userDir});
    ASSERT_EQ(run.exitCode, kExitOk) << run.err.size();
    const auto rows = ParseTable(run.out);

    const TableLine expected[] = {
        {L"General", L"ProtectLevel", L"3", L"preset"},
        {L"General", L"SettedPLevel", L"1", L"stored"},
        {L"RuleFile-Update", L"AUServer", L"http://updates.corp.example/", L"preset"},
        {L"ReportFP", L"Address", L"fp@corp.example", L"preset"},
        {L"ReportSpam", L"Address", L"", L"default"},
        {L"General", L"NotifyIcon", L"0", L"preset"},
        {L"General", L"PurgeDays", L"20", L"default"},
        {L"RuleFile-Update", L"Interval", L"180", L"default"},
        {L"RuleFile-Update", L"EnableProxy", L"no", L"default"},
        {L"Wexor", L"EnableWexor", L"1", L"install"},
        {L"Wexor", L"SecurityLevel", L"3", L"install"},
    };
    for (const TableLine& line : expected) {
        const TableLine* found = Find(rows, line.section, line.key);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->value, line.value) << testing::PrintToString(line.key);
        EXPECT_EQ(found->source, line.source) << testing::PrintToString(line.key);
    }
    EXPECT_EQ(RunTool({L"ini", L"keys", installFile, L"General"}).out, installKeys);
    EXPECT_EQ(RunTool({L"ini", L"sections", installFile}).out,
              L"General\nRuleFile-Update\nReportFP\nWexor\n");
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

// Folders that cannot be used fail naming the problem; missing or unknown options are usage
// errors.
TEST_F(SettingsCommandTest, UnusableFoldersAndBadOptions_FailOnStandardErrorOnly) {
    ZelCommon::Path::CreateFolderWithParents(userFile);
    const std::wstring plainFile = temp.File(L"plain.txt");
    ASSERT_EQ(RunTool({L"ini", L"set", plainFile, L"S", L"K", L"V"}).exitCode, kExitOk);
    const std::wstring settings = L"settings", install = L"--install-dir", user = L"--user-dir";
    const struct {
        std::vector<std::wstring> args;
        int exitCode;
        const wchar_t* said;
    } cases[] = {
        {{settings, install, temp.Folder(L"gone"), user, userDir}, kExitFailure, L"gone"},
        {{settings, install, installDir, user, userDir}, kExitFailure, L"folder"},  // user's file
        {{settings, install, installDir, user, plainFile}, kExitFailure, L"not a folder"},
        {{settings}, kExitUsage, L"--help"},
        {{settings, install, L"x"}, kExitUsage, L"--help"},
        {{settings, user, L"x"}, kExitUsage, L"--help"},
        {{settings, install, L"x", user}, kExitUsage, L"--help"},
        {{settings, install, L"x", user, L"y", L"--colour", L"z"}, kExitUsage, L"--help"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(testing::PrintToString(each.args));
        const auto run = RunTool(each.args);
        EXPECT_EQ(run.exitCode, each.exitCode);
        EXPECT_EQ(run.out, L"");
        EXPECT_NE(run.err.find(each.said), std::wstring::npos);
    }
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

TEST(TextTable, PadsEveryColumnButTheLast) {
    EXPECT_EQ(FormatTable({{L"A", L"BB", L"C"}, {L"long", L"x", L"y"}}),
              L"A     BB  C\n----  --  -\nlong  x   y\n");
}

}  // namespace
}  // namespace Orva::Orvactl
