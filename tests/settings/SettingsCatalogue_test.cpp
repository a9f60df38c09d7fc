#include "settings/SettingsCatalogue.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <tuple>

#include "common_src/platform/TextCodec.h"

namespace Orva::Settings {
namespace {

std::string Name(const SettingEntry& entry) {
    return ZelCommon::Text::WideToUtf8(entry.section) + "/" +
           ZelCommon::Text::WideToUtf8(entry.key);
}

TEST(SettingsCatalogue, Rows_FollowTheirIdOrder) {
    const auto rows = SettingsCatalogue();
    ASSERT_EQ(rows.size(), kSettingCount);
    for (size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(static_cast<size_t>(rows[i].id), i);
        EXPECT_EQ(&Entry(rows[i].id), &rows[i]);
    }
}

// Each key has one place, found again by its file, section and key (the profile functions
// compare names without case); numeric defaults parse as their text; only the proxy switch is a
// yes/no flag (what a written flag looks like is shown by the store's tests); the add-in writes
// nothing of the installation file.
TEST(SettingsCatalogue, EveryKey_HasOneSectionOfItsFileAndKeepsTheRowRules) {
    std::set<std::tuple<SettingsFile, std::wstring, std::wstring>> seen;
    for (const SettingEntry& entry : SettingsCatalogue()) {
        SCOPED_TRACE(Name(entry));
        EXPECT_FALSE(entry.key.empty());
        if (entry.file != SettingsFile::Version) {
            EXPECT_FALSE(entry.section.empty());
            EXPECT_EQ(FindSetting(entry.file, entry.section, entry.key), entry.id);
        }
        EXPECT_TRUE(seen.insert({entry.file, ZelCommon::Text::ToLower(entry.section),
                                 ZelCommon::Text::ToLower(entry.key)})
                        .second);
        if (entry.type != ValueType::String) {
            EXPECT_EQ(std::to_wstring(entry.defaultNumber), entry.defaultText);
        }
        EXPECT_EQ(entry.form == ValueForm::YesNo, entry.id == SettingId::EnableProxy);
        if (entry.file == SettingsFile::Install) {
            EXPECT_EQ(entry.writer, Writer::Nobody);
        }
    }
    EXPECT_EQ(FindSetting(SettingsFile::User, L"General", L"NoSuchKey"), std::nullopt);
}

}  // namespace
}  // namespace Orva::Settings
