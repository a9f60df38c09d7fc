#include "settings/probes/SuiteVersionCheck.h"

#include <array>
#include <string>
#include <string_view>

#include "common_src/platform/TextCodec.h"

namespace Orva::Settings {

namespace {

using namespace ZelCommon::Storage;

// What RegOpenKeyW asks for.
constexpr uint32_t kMaximumAllowed = 0x02000000u;

// The buffer holds UTF-16LE text; it ends at the first zero unit or at the buffer's end.
std::wstring TextOf(const std::array<uint8_t, SuiteVersion::kValueBufferBytes>& buffer) {
    std::size_t units = 0;
    while (units * 2 + 1 < buffer.size() &&
           (buffer[units * 2] != 0 || buffer[units * 2 + 1] != 0)) {
        ++units;
    }
    return ZelCommon::Text::Utf16LeToWide(
        std::string_view(reinterpret_cast<const char*>(buffer.data()), units * 2));
}

}  // namespace

void CheckSuiteVersion(IRegistryApi& registry, ZelCommon::Platform::IWindowMessaging& windows,
                       ZelCommon::Library::DebugLog& log) {
    RegHandle raw = 0;
    if (registry.OpenKey(RootHandle(RegRoot::LocalMachine), SuiteVersion::kKeyPath, kMaximumAllowed,
                         &raw) != RegStatus::Success) {
        log.LogText(L"@@@ Error:open HKEY_LOCAL_MACHINE\\SOFTWARE\\Halvion\\Vantor failed\n");
        raw = 0;
    }
    UniqueRegKey key(registry, raw);

    std::array<uint8_t, SuiteVersion::kValueBufferBytes> buffer{};
    uint32_t size = static_cast<uint32_t>(buffer.size());
    // Without the key the query fails on the null handle, and that is logged too.
    if (registry.QueryValue(key.Get(), SuiteVersion::kValueName, nullptr, buffer.data(), &size) !=
        RegStatus::Success) {
        log.LogText(L"@@@ Error:get VNS version  failed\n");
        buffer.fill(0);
    }
    key.Reset();
    const std::wstring version = TextOf(buffer);
    log.LogText(L"@@@ VNS version is %s\n", version);

    if (version.compare(0, 3, SuiteVersion::kSuppressingPrefix) == 0) {
        log.LogText(L"@@@ Error:VNS version is 17\n");
        return;
    }
    const ZelCommon::Platform::WindowHandle agent =
        windows.FindByTitle(SuiteVersion::kAgentWindowTitle);
    if (agent != 0) {
        windows.Post(agent, SuiteVersion::kUpdateNowMessage, 0, 0);
    }
}

void CheckSuiteVersion() {
    CheckSuiteVersion(SystemRegistryApi(), ZelCommon::Platform::SystemWindowMessaging(),
                      ZelCommon::Library::TheLog());
}

}  // namespace Orva::Settings
