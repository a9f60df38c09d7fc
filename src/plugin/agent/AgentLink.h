#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "common_src/platform/Clock.h"
#include "common_src/platform/ProcessLauncher.h"
#include "common_src/platform/WindowMessaging.h"
#include "plugin/agent/AgentNotices.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// Starting, stopping and messaging the agent process. The add-in keeps no handle of the agent:
// its window is looked up by title each time, and an absent window silently drops the message.
class CAgentLink {
public:
    CAgentLink(ZelCommon::Platform::IWindowMessaging& messaging, ZelCommon::Platform::IClock& clock,
               ZelCommon::Platform::IProcessLauncher& launcher, ZelCommon::Library::DebugLog& log,
               std::wstring pluginFolder);

    void LaunchShadow();
    void ShutdownShadowEX(uint32_t retries, uint32_t intervalMilliseconds);

    // The quoted agent program in the add-in folder, a blank and the agent window's title.
    std::wstring CommandLine() const;

    ZelCommon::Platform::WindowHandle FindAgentWindow();
    bool IsAgentRunning() { return FindAgentWindow() != 0; }
    // True while the security suite's agent window exists.
    bool IsSuiteBusy();

    // A toolbar command (report spam, not spam, the classic band's commands): nothing while the
    // suite is busy or the agent is absent.
    void SendButtonCommand(uint32_t message);
    // A notice from a page or dialog, posted or sent as the message requires. Returns the
    // agent's answer to a sent message, 0 for a post, nothing when the agent window is absent.
    std::optional<intptr_t> Notify(uint32_t message, uintptr_t wParam = 0, intptr_t lParam = 0);

    const std::wstring& PluginFolder() const { return m_pluginFolder; }

private:
    ZelCommon::Platform::IWindowMessaging& m_messaging;
    CAgentNotices m_notices;
    ZelCommon::Platform::IClock& m_clock;
    ZelCommon::Platform::IProcessLauncher& m_launcher;
    ZelCommon::Library::DebugLog& m_log;
    std::wstring m_pluginFolder;
};

}  // namespace Orva::Plugin
