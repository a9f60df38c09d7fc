#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// The simulated scanning agent's own protocol: how a test tells it what to send to the add-in's
// controller, and how it records what it received.
namespace Orva::Sim {

// The copy-data id of a command sent to the simulated agent's window. Chosen outside every id
// the add-in and the agent use.
inline constexpr uint32_t kCommandCopyDataId = 0x5349'4D41;  // "SIMA"

// How the agent delivers a commanded message to the controller.
enum class Delivery : uint32_t { Post = 0, Send = 1, CopyData = 2 };

// One command: deliver `message` (with its parameters) to the controller window; for
// CopyData, `copyDataId` and `payload` make the copy-data record instead.
struct AgentCommand {
    Delivery delivery = Delivery::Post;
    uint32_t message = 0;
    uint64_t wParam = 0;
    int64_t lParam = 0;
    uint32_t copyDataId = 0;
    std::vector<uint8_t> payload;
};

// Little-endian bytes: delivery, message, wParam, lParam, copyDataId, payload size, payload.
std::vector<uint8_t> EncodeCommand(const AgentCommand& command);
// None for a record that is cut short, too long for its stated payload, or of an unknown kind.
std::optional<AgentCommand> DecodeCommand(std::span<const uint8_t> bytes);

// One line of the agent's record: "posted 1041 0 0\n", "sent 16 0 0\n" or
// "copydata 1078 17 <hex bytes>\n".
std::string RecordLine(bool sent, uint32_t message, uint64_t wParam, int64_t lParam);
std::string CopyDataRecordLine(uint32_t copyDataId, std::span<const uint8_t> payload);

// The environment variable that names the record file; without it the agent records beside
// its own executable.
inline constexpr wchar_t kRecordVariable[] = L"ORVA_SIM_AGENT_RECORD";
inline constexpr wchar_t kDefaultRecordName[] = L"ORVA_WLM.record.txt";

}  // namespace Orva::Sim
