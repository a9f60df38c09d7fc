#include "settings/probes/SuiteVersionCheck.h"

#include <gtest/gtest.h>

#include <optional>

#include "ProbeLog.h"
#include "common_src/ZelCommon/MemoryRegistry.h"
#include "common_src/platform/TextCodec.h"
#include "support/fakes/platform/FakeWindowMessaging.h"

namespace Orva::Settings {
namespace {

using namespace ZelCommon::Storage;
using ZelCommon::Fakes::FakeWindowMessaging;

// The registry, the agent's window and the log the check runs against.
struct SuiteRig {
    // Writes the suite's version value as REG_SZ, terminated unless `size` says otherwise; no
    // text means the key exists without it.
    void InstallSuite(std::optional<std::wstring> version, uint32_t size = 0) {
        RegHandle key = 0;
        ASSERT_EQ(
            registry.CreateKey(RootHandle(RegRoot::LocalMachine), L"SOFTWARE\\Halvion\\Vantor",
                               RegAccess::AllAccess, nullptr, &key),
            0);
        if (version) {
            const std::string bytes =
                ZelCommon::Text::WideToUtf16Le(*version) + std::string(2, '\0');
            ASSERT_EQ(registry.SetValue(key, L"version", RegType::Sz,
                                        reinterpret_cast<const uint8_t*>(bytes.data()),
                                        size ? size : static_cast<uint32_t>(bytes.size())),
                      0);
        }
        registry.CloseKey(key);
    }

    void Run() { CheckSuiteVersion(registry, windows, log.Log()); }

    MemoryRegistry registry;
    FakeWindowMessaging windows;
    ZelCommon::Platform::WindowHandle agent =
        windows.AddWindow(L"{56639265-C81B-440d-B5CD-3A7ED4F42777}");
    Testing::ProbeLog log;
};

// The agent is told to update now (1030, posted) unless the suite's version starts with "17.";
// the version read is logged, and whatever cannot be read is logged and counts as another
// version. No key stays open.
TEST(SuiteVersionCheck, Version_DecidesTheUpdateNotice) {
    const std::wstring kRead = L"@@@ VNS version is ";
    const std::wstring kUnreadable = L"@@@ Error:get VNS version  failed\n";
    const std::wstring kNoKey =
        L"@@@ Error:open HKEY_LOCAL_MACHINE\\SOFTWARE\\Halvion\\Vantor failed\n";
    const std::wstring kIs17 = L"@@@ Error:VNS version is 17\n";
    const std::wstring kTooLong = L"17." + std::wstring(600, L'9');
    const struct {
        const char* name;
        bool key;
        std::optional<std::wstring> version;
        bool posts;
        std::vector<std::wstring> log;
    } cases[] = {
        {"17.0", true, L"17.0", false, {kRead + L"17.0\n", kIs17}},
        {"17.", true, L"17.", false, {kRead + L"17.\n", kIs17}},
        {"17.5.2.1", true, L"17.5.2.1", false, {kRead + L"17.5.2.1\n", kIs17}},
        {"16.5", true, L"16.5", true, {kRead + L"16.5\n"}},
        {"170", true, L"170", true, {kRead + L"170\n"}},
        {"17", true, L"17", true, {kRead + L"17\n"}},
        {"empty", true, L"", true, {kRead + L"\n"}},
        {"7.0", true, L"7.0", true, {kRead + L"7.0\n"}},
        {"blank first", true, L" 17.0", true, {kRead + L" 17.0\n"}},
        {"18.0", true, L"18.0", true, {kRead + L"18.0\n"}},
        {"no key", false, std::nullopt, true, {kNoKey, kUnreadable, kRead + L"\n"}},
        {"no value", true, std::nullopt, true, {kUnreadable, kRead + L"\n"}},
        {"larger than the buffer", true, kTooLong, true, {kUnreadable, kRead + L"\n"}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        SuiteRig rig;
        if (each.key) {
            rig.InstallSuite(each.version);
        }
        rig.Run();
        const std::vector<FakeWindowMessaging::Message> posted =
            each.posts
                ? std::vector<FakeWindowMessaging::Message>{{rig.agent, 1030, 0, 0,
                                                             FakeWindowMessaging::Delivery::Posted,
                                                             true}}
                : std::vector<FakeWindowMessaging::Message>{};
        EXPECT_EQ(rig.windows.Messages(), posted);
        EXPECT_EQ(rig.log.Lines(), each.log);
        EXPECT_EQ(rig.registry.OpenHandleCount(), 0u);
    }
}

TEST(SuiteVersionCheck, ValueFillingTheBufferWithoutTerminator_IsReadWithinIt) {
    SuiteRig rig;
    // 512 characters exactly fill the 1024-byte buffer, leaving no room for a terminator.
    const std::wstring version = L"17." + std::wstring(509, L'1');
    rig.InstallSuite(version + L"xx", 1024);  // no zero follows: stored unterminated
    rig.Run();
    EXPECT_TRUE(rig.windows.Messages().empty());
    // The log cuts long lines, so only the line's start is compared.
    EXPECT_EQ(rig.log.Lines().front().substr(0, 40),
              (L"@@@ VNS version is " + version).substr(0, 40));
}

TEST(SuiteVersionCheck, NoAgentWindow_NothingIsDelivered) {
    SuiteRig rig;
    rig.windows.RemoveWindow(rig.agent);
    rig.InstallSuite(L"16.5");
    rig.Run();
    for (const auto& m : rig.windows.Messages()) {
        EXPECT_FALSE(m.delivered);
    }
}

}  // namespace
}  // namespace Orva::Settings
