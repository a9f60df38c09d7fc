#pragma once

#include <cstdint>

#include "common_src/platform/WindowMessaging.h"
#include "settings/log/DebugLog.h"

namespace Orva::Plugin {

// What the host's event sinks do: find the controller window by its class and post or send it
// one message. A sink whose controller window is gone does nothing.
class CHostEventRelay {
public:
    CHostEventRelay(ZelCommon::Platform::IWindowMessaging& messaging,
                    ZelCommon::Library::DebugLog& log);

    // WLMailApiInit: the host is ready (sent, so the interface exists when the event returns).
    void OnReady();
    // WLMailApiInit: the mail client shuts down. The agent is closed first, then the controller
    // runs its shut-down work and is asked to close.
    void OnShutdown();
    // WLMailApi events.
    void OnFolderSelectionChanged(uint64_t folderId);
    void OnToolbarButtonClicked(int32_t toolbarId, int32_t buttonId);
    // The account manager's default account changed.
    void OnDefaultAccountChanged();
    // A drop-down entry of the ribbon's logo button; `entry` is its event index (0 to 4).
    void OnSubButtonClicked(int32_t entry);

private:
    ZelCommon::Platform::WindowHandle FindController();

    ZelCommon::Platform::IWindowMessaging& m_messaging;
    ZelCommon::Library::DebugLog& m_log;
};

}  // namespace Orva::Plugin
