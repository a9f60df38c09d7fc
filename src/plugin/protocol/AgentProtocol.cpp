#include "plugin/protocol/AgentProtocol.h"

namespace Orva::Plugin {

AgentDelivery DeliveryOf(uint32_t message) {
    switch (message) {
        case AgentMessage::Close:
        case AgentMessage::AdvancedRequest:
        case AgentMessage::AdvancedApplied:
        case AgentMessage::RefreshStatistics:
        case AgentMessage::ResetStatistics:
            return AgentDelivery::Sent;
        default:
            return AgentDelivery::Posted;
    }
}

bool IsButtonCommand(uint32_t message) {
    switch (message) {
        case AgentMessage::ClassicCommand1038:
        case AgentMessage::ClassicCommand1039:
        case AgentMessage::ReportSpam:
        case AgentMessage::ReportNotSpam:
        case AgentMessage::ClassicCommand1043:
            return true;
        default:
            return false;
    }
}

}  // namespace Orva::Plugin
