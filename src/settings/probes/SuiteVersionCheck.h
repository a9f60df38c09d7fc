#pragma once

#include <cstdint>

#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/platform/WindowMessaging.h"
#include "settings/log/DebugLog.h"

namespace Orva::Settings {

// Where the maker's security suite records its version, and whom we ask for an update.
namespace SuiteVersion {
inline constexpr wchar_t kKeyPath[] = L"SOFTWARE\\Halvion\\Vantor";
inline constexpr wchar_t kValueName[] = L"version";
inline constexpr wchar_t kSuppressingPrefix[] = L"17.";
inline constexpr uint32_t kValueBufferBytes = 1024;
inline constexpr wchar_t kAgentWindowTitle[] = L"{56639265-C81B-440d-B5CD-3A7ED4F42777}";
inline constexpr uint32_t kUpdateNowMessage = 1030;
}  // namespace SuiteVersion

// Asks the agent for an update now, unless the installed suite is version 17, which updates
// itself. Failures only log; an unreadable version counts as another version.
void CheckSuiteVersion();
void CheckSuiteVersion(ZelCommon::Storage::IRegistryApi& registry,
                       ZelCommon::Platform::IWindowMessaging& windows,
                       ZelCommon::Library::DebugLog& log);

}  // namespace Orva::Settings
