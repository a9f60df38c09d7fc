#include "plugin/controller/MailClientVersion.h"

#include <gtest/gtest.h>

namespace Orva::Plugin {
namespace {

TEST(MailClientVersion, MajorVersionOf_ReadsTheLeadingNumberOnly) {
    const struct {
        const wchar_t* text;
        std::optional<int> major;
    } cases[] = {
        {L"16.4.3528.0331", 16},
        {L"14, 0, 8117, 0416", 14},
        {L"15", 15},
        {L"017.1", 17},
        {L"65535.0", 65535},
        {L"65536.0", std::nullopt},
        {L"123456.0", std::nullopt},
        {L"", std::nullopt},
        {L" 16.4", std::nullopt},
        {L"v16", std::nullopt},
        {L".16", std::nullopt},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(MajorVersionOf(c.text), c.major) << testing::PrintToString(std::wstring(c.text));
    }
}

}  // namespace
}  // namespace Orva::Plugin
