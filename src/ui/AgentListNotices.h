#pragma once

#include "lists/ListChangeNotifier.h"
#include "plugin/agent/AgentNotices.h"
#include "plugin/protocol/AgentProtocol.h"

namespace Orva::Ui {

// The list editor's notices, through the pages' own way to the agent.
class CAgentListNotices final : public Lists::IListChangeNotifier {
public:
    explicit CAgentListNotices(Plugin::CAgentNotices& agent) : m_agent(agent) {}

    void SenderListsChanged() override { m_agent.Notify(Plugin::AgentMessage::SenderListsChanged); }
    void EncodingsChanged() override { m_agent.Notify(Plugin::AgentMessage::EncodingsChanged); }

private:
    Plugin::CAgentNotices& m_agent;
};

}  // namespace Orva::Ui
