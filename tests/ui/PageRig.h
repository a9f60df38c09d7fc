#pragma once

#include <map>
#include <string>
#include <vector>

#include "plugin/agent/AgentNotices.h"
#include "plugin/protocol/AgentProtocol.h"
#include "settings/SettingsTestFiles.h"
#include "settings/localisation/LocalisedStrings.h"
#include "settings/probes/ProbeLog.h"
#include "support/fakes/platform/FakeWindowMessaging.h"
#include "ui/PageServices.h"

namespace Orva::Testing {

// Localised texts from a map; a missing id gives an empty text.
class MapStrings final : public Settings::ILocalisedStrings {
public:
    std::wstring Load(const std::wstring& id) override {
        const auto found = texts.find(id);
        return found == texts.end() ? std::wstring() : found->second;
    }
    std::wstring LoadShown(const std::wstring& id) override { return Load(id); }
    void Release() override {}

    std::map<std::wstring, std::wstring> texts;
};

// A page's surroundings: settings files on disk, a running agent window, texts and a log.
struct PageRig {
    using Delivery = ZelCommon::Fakes::FakeWindowMessaging::Delivery;

    // What the agent's window received, and how.
    struct Received {
        uint32_t message;
        uintptr_t wParam;
        intptr_t lParam;
        Delivery delivery;
        bool operator==(const Received&) const = default;
    };

    std::vector<Received> AgentReceived() const {
        std::vector<Received> received;
        for (const auto& each : windows.Messages()) {
            if (each.delivered && each.window == agentWindow) {
                received.push_back({each.message, each.wParam, each.lParam, each.delivery});
            }
        }
        return received;
    }

    static Received Posted(uint32_t message, uintptr_t wParam = 0, intptr_t lParam = 0) {
        return {message, wParam, lParam, Delivery::Posted};
    }
    static Received Sent(uint32_t message) { return {message, 0, 0, Delivery::Sent}; }

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
