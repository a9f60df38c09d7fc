#pragma once

#include <map>
#include <string>
#include <vector>

#include "plugin/agent/AgentNotices.h"
#include "plugin/protocol/AgentProtocol.h"
#include "settings/SettingsTestFiles.h"
#include "settings/probes/ProbeLog.h"
#include "support/fakes/platform/FakeWindowMessaging.h"
#include "ui/PageServices.h"

namespace Orva::Testing {

class MapStrings final : public Settings::ILocalisedStrings {
public:
    std::wstring Load(const std::wstring& id) override { return texts[id]; }
    std::wstring LoadShown(const std::wstring& id) override { return Load(id); }
    void Release() override {}
    std::map<std::wstring, std::wstring> texts;
};

// A page's surroundings: settings files on disk, a running agent window, texts and a log.
struct PageRig {
    using Message = ZelCommon::Fakes::FakeWindowMessaging::Message;
    using Delivery = ZelCommon::Fakes::FakeWindowMessaging::Delivery;

    // What the agent's window received.
    std::vector<Message> AgentReceived() const {
        std::vector<Message> received;
        for (const Message& each : windows.Messages()) {
            if (each.delivered && each.window == agentWindow) {
                received.push_back(each);
            }
        }
        return received;
    }
    Message Received(uint32_t message, Delivery delivery = Delivery::Posted, intptr_t lParam = 0) {
        return {agentWindow, message, 0, lParam, delivery, true};
    }

    SettingsTestFiles files;
    ZelCommon::Fakes::FakeWindowMessaging windows;
    ZelCommon::Platform::WindowHandle agentWindow =
        windows.AddWindow(std::wstring(Plugin::kAgentWindowTitle));
    Plugin::CAgentNotices agent{windows};
    MapStrings strings;
    ProbeLog log;
    Ui::PageServices services{files.store, agent, strings, log.Log()};
};

}  // namespace Orva::Testing
