#pragma once

#include <cstdint>
#include <optional>

#include "common_src/platform/WindowMessaging.h"

namespace Orva::Plugin {

// What pages and dialogs tell the agent, and whether the security suite is busy. The agent's
// window is looked up by title for each notice; an absent window silently drops it.
class CAgentNotices {
public:
    explicit CAgentNotices(ZelCommon::Platform::IWindowMessaging& messaging)
        : m_messaging(messaging) {}

    ZelCommon::Platform::WindowHandle FindAgentWindow();
    // True while the security suite's agent window exists.
    bool IsSuiteBusy();
    // Posted or sent as the message requires. Returns the agent's answer to a sent message, 0
    // for a post, nothing when the agent window is absent.
    std::optional<intptr_t> Notify(uint32_t message, uintptr_t wParam = 0, intptr_t lParam = 0);

private:
    ZelCommon::Platform::IWindowMessaging& m_messaging;
};

}  // namespace Orva::Plugin
