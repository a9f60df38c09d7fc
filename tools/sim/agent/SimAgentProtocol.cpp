#include "SimAgentProtocol.h"

#include <cstring>

#include "common_src/platform/TextCodec.h"
#include "common_src/platform/WideFormat.h"

namespace Orva::Sim {
namespace {

// Fixed part: delivery, message (4 + 4), wParam, lParam (8 + 8), copyDataId, size (4 + 4).
constexpr size_t kHeaderBytes = 32;
// Far more than any copy-data record of the add-in; keeps a damaged size from allocating much.
constexpr size_t kMaxPayloadBytes = 64 * 1024;

template <class T>
void Put(std::vector<uint8_t>& out, T value) {
    for (size_t i = 0; i < sizeof(T); ++i) {
        out.push_back(static_cast<uint8_t>(static_cast<uint64_t>(value) >> (8 * i)));
    }
}

template <class T>
T Get(std::span<const uint8_t> bytes, size_t at) {
    uint64_t value = 0;
    for (size_t i = 0; i < sizeof(T); ++i) {
        value |= static_cast<uint64_t>(bytes[at + i]) << (8 * i);
    }
    return static_cast<T>(value);
}

}  // namespace

std::vector<uint8_t> EncodeCommand(const AgentCommand& command) {
    std::vector<uint8_t> out;
    out.reserve(kHeaderBytes + command.payload.size());
    Put(out, static_cast<uint32_t>(command.delivery));
    Put(out, command.message);
    Put(out, command.wParam);
    Put(out, static_cast<uint64_t>(command.lParam));
    Put(out, command.copyDataId);
    Put(out, static_cast<uint32_t>(command.payload.size()));
    out.insert(out.end(), command.payload.begin(), command.payload.end());
    return out;
}

std::optional<AgentCommand> DecodeCommand(std::span<const uint8_t> bytes) {
    if (bytes.size() < kHeaderBytes) {
        return std::nullopt;
    }
    const auto delivery = Get<uint32_t>(bytes, 0);
    const auto payloadSize = Get<uint32_t>(bytes, 28);
    if (delivery > static_cast<uint32_t>(Delivery::CopyData) || payloadSize > kMaxPayloadBytes ||
        bytes.size() != kHeaderBytes + payloadSize) {
        return std::nullopt;
    }
    AgentCommand command;
    command.delivery = static_cast<Delivery>(delivery);
    command.message = Get<uint32_t>(bytes, 4);
    command.wParam = Get<uint64_t>(bytes, 8);
    command.lParam = static_cast<int64_t>(Get<uint64_t>(bytes, 16));
    command.copyDataId = Get<uint32_t>(bytes, 24);
    command.payload.assign(bytes.begin() + kHeaderBytes, bytes.end());
    return command;
}

std::string RecordLine(bool sent, uint32_t message, uint64_t wParam, int64_t lParam) {
    return ZelCommon::Text::WideToUtf8(ZelCommon::Text::Format(
        L"%s %u %llu %lld\n", sent ? L"sent" : L"posted", message, wParam, lParam));
}

std::string CopyDataRecordLine(uint32_t copyDataId, std::span<const uint8_t> payload) {
    std::wstring line = ZelCommon::Text::Format(L"copydata %u %u ", copyDataId,
                                                static_cast<uint32_t>(payload.size()));
    for (const uint8_t byte : payload) {
        line += ZelCommon::Text::Format(L"%02X", byte);
    }
    line += L"\n";
    return ZelCommon::Text::WideToUtf8(line);
}

}  // namespace Orva::Sim
