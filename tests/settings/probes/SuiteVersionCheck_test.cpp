#include "settings/probes/SuiteVersionCheck.h"

#include <gtest/gtest.h>

#include <optional>

#include "ProbeLog.h"
#include "common_src/ZelCommon/MemoryRegistry.h"
#include "support/fakes/platform/FakeWindowMessaging.h"
#include "common_src/platform/TextCodec.h"

namespace Orva::Settings {
namespace {

using namespace ZelCommon::Storage;
using ZelCommon::Fakes::FakeWindowMessaging;

class SuiteVersionCheckTest : public testing::Test {
protected:
    // Writes the suite's version value as REG_SZ; no text means the key exists without it.
    void InstallSuite(std::optional<std::wstring> version, uint32_t type = RegType::Sz) {
        RegHandle key = 0;
        ASSERT_EQ(
            m_registry.CreateKey(RootHandle(RegRoot::LocalMachine), L"SOFTWARE\\Halvion\\Vantor",
                                 RegAccess::AllAccess, nullptr, &key),
            0);
        if (version) {
            std::string bytes = ZelCommon::Text::WideToUtf16Le(*version);
            bytes.append(2, '\0');
            ASSERT_EQ(m_registry.SetValue(key, L"version", type,
                                          reinterpret_cast<const uint8_t*>(bytes.data()),
                                          static_cast<uint32_t>(bytes.size())),
                      0);
        }
        m_registry.CloseKey(key);
    }

    void Run() { CheckSuiteVersion(m_registry, m_windows, m_log.Log()); }

    std::vector<FakeWindowMessaging::Message> AgentMessages() const {
        return m_windows.MessagesTo(m_agent);
    }

    MemoryRegistry m_registry;
    FakeWindowMessaging m_windows;
    ZelCommon::Platform::WindowHandle m_agent =
        m_windows.AddWindow(L"{56639265-C81B-440d-B5CD-3A7ED4F42777}");
    Testing::ProbeLog m_log;
};

bool IsUpdateNow(const FakeWindowMessaging::Message& m) {
    return m.message == 1030 && m.wParam == 0 && m.lParam == 0 &&
           m.delivery == FakeWindowMessaging::Delivery::Posted;
}

struct VersionCase {
    const wchar_t* version;
    bool posts;
};

const VersionCase kVersionCases[] = {
    {L"17.0", false}, {L"17.", false}, {L"17.5.2.1", false}, {L"16.5", true},  {L"170", true},
    {L"17", true},    {L"", true},     {L"7.0", true},       {L" 17.0", true}, {L"18.0", true},
};

TEST_F(SuiteVersionCheckTest, VersionTable_Only17DotSuppressesThePost) {
    for (const VersionCase& c : kVersionCases) {
        SCOPED_TRACE(testing::Message() << "version length " << std::wstring(c.version).size());
        m_windows.ClearMessages();
        InstallSuite(std::wstring(c.version));
        Run();
        const auto messages = AgentMessages();
        if (c.posts) {
            ASSERT_EQ(messages.size(), 1u);
            EXPECT_TRUE(IsUpdateNow(messages[0]));
        } else {
            EXPECT_TRUE(messages.empty());
        }
    }
}

TEST_F(SuiteVersionCheckTest, Version17_LogsAndPostsNothing) {
    InstallSuite(L"17.0");
    Run();
    EXPECT_TRUE(AgentMessages().empty());
    EXPECT_EQ(m_log.Lines(), (std::vector<std::wstring>{L"@@@ VNS version is 17.0\n",
                                                        L"@@@ Error:VNS version is 17\n"}));
}

TEST_F(SuiteVersionCheckTest, Version16_5_PostsUpdateNow) {
    InstallSuite(L"16.5");
    Run();
    ASSERT_EQ(AgentMessages().size(), 1u);
    EXPECT_TRUE(IsUpdateNow(AgentMessages()[0]));
    EXPECT_EQ(m_log.Lines(), std::vector<std::wstring>{L"@@@ VNS version is 16.5\n"});
}

TEST_F(SuiteVersionCheckTest, MissingKey_LogsBothFailuresAndPosts) {
    Run();
    ASSERT_EQ(AgentMessages().size(), 1u);
    EXPECT_TRUE(IsUpdateNow(AgentMessages()[0]));
    EXPECT_EQ(m_log.Lines(),
              (std::vector<std::wstring>{
                  L"@@@ Error:open HKEY_LOCAL_MACHINE\\SOFTWARE\\Halvion\\Vantor failed\n",
                  L"@@@ Error:get VNS version  failed\n", L"@@@ VNS version is \n"}));
    EXPECT_EQ(m_registry.OpenHandleCount(), 0u);
}

TEST_F(SuiteVersionCheckTest, MissingValue_LogsAndPosts) {
    InstallSuite(std::nullopt);
    Run();
    EXPECT_EQ(AgentMessages().size(), 1u);
    EXPECT_EQ(m_log.Lines(), (std::vector<std::wstring>{L"@@@ Error:get VNS version  failed\n",
                                                        L"@@@ VNS version is \n"}));
    EXPECT_EQ(m_registry.OpenHandleCount(), 0u);
}

TEST_F(SuiteVersionCheckTest, ValueLargerThanBuffer_CountsAsUnreadable) {
    InstallSuite(L"17." + std::wstring(600, L'9'));
    Run();
    EXPECT_EQ(AgentMessages().size(), 1u);
    EXPECT_EQ(m_log.Lines().front(), L"@@@ Error:get VNS version  failed\n");
}

TEST_F(SuiteVersionCheckTest, ValueFillingTheBufferWithoutTerminator_IsReadWithinIt) {
    // 512 characters exactly fill the 1024-byte buffer, leaving no room for a terminator.
    const std::wstring version = L"17." + std::wstring(509, L'1');
    std::string bytes = ZelCommon::Text::WideToUtf16Le(version);
    bytes += "xx";  // not a zero, so the registry stores the value unterminated
    RegHandle key = 0;
    ASSERT_EQ(m_registry.CreateKey(RootHandle(RegRoot::LocalMachine), L"SOFTWARE\\Halvion\\Vantor",
                                   RegAccess::AllAccess, nullptr, &key),
              0);
    ASSERT_EQ(m_registry.SetValue(key, L"version", RegType::Sz,
                                  reinterpret_cast<const uint8_t*>(bytes.data()), 1024),
              0);
    m_registry.CloseKey(key);
    Run();
    EXPECT_TRUE(AgentMessages().empty());
    // The log cuts long lines, so only the line's start is compared.
    EXPECT_EQ(m_log.Lines().front().substr(0, 40),
              (L"@@@ VNS version is " + version).substr(0, 40));
}

TEST_F(SuiteVersionCheckTest, NoAgentWindow_PostsNothing) {
    m_windows.RemoveWindow(m_agent);
    InstallSuite(L"16.5");
    Run();
    for (const auto& m : m_windows.Messages()) {
        EXPECT_FALSE(m.delivered);
    }
    EXPECT_TRUE(AgentMessages().empty());
}

}  // namespace
}  // namespace Orva::Settings
