#include "settings/StartRecord.h"

#include <gtest/gtest.h>

#include "SettingsTestFiles.h"

namespace Orva::Settings {
namespace {

TEST(RecordAddinStart, CountsEachStartAndRecordsTheFileVersion) {
    Testing::SettingsTestFiles t;
    EXPECT_EQ(RecordAddinStart(t.store, L"2.0.0.17"), 1);
    EXPECT_EQ(RecordAddinStart(t.store, L"2.0.0.18"), 2);
    EXPECT_EQ(t.UserRaw(SettingId::ORVAStartTimes), L"2");
    EXPECT_EQ(t.UserRaw(SettingId::ORVAWLMVer), L"2.0.0.18");
    // A damaged count starts over from its leading digits.
    t.SetUserRaw(SettingId::ORVAStartTimes, L"41abc");
    EXPECT_EQ(RecordAddinStart(t.store, L"1"), 42);
    EXPECT_EQ(t.UserRaw(SettingId::ORVAStartTimes), L"42");
}

}  // namespace
}  // namespace Orva::Settings
