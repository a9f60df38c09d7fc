#include <cstring>
#include <mutex>

#include "plugin/controller/ToolBarController.h"
#include "plugin/protocol/ControllerProtocol.h"

namespace Orva::Plugin {
namespace {

// The record's values sit at odd offsets in the sender's buffer: copy them out byte by byte.
uint64_t ReadLittleEndian64(std::span<const std::byte> bytes) {
    unsigned char raw[8];
    std::memcpy(raw, bytes.data(), sizeof raw);
    uint64_t value = 0;
    for (int index = 7; index >= 0; --index) {
        value = (value << 8) | raw[index];
    }
    return value;
}

}  // namespace

intptr_t CToolBarController::OnCopyData(uintptr_t copyDataId, std::span<const std::byte> payload) {
    std::lock_guard lock(m_copyDataLock);
    if (m_copyDataRunning || copyDataId != kDeleteAllSpamCopyDataId ||
        payload.size() < kDeleteAllSpamPayloadSize) {
        return 0;
    }
    const uint64_t folderId = ReadLittleEndian64(payload.subspan(0, 8));
    const uint64_t messageId = ReadLittleEndian64(payload.subspan(8, 8));
    const bool all = payload[16] != std::byte{0};
    if (all) {
        m_copyDataRunning = true;
        const struct Done {
            bool& running;
            ~Done() { running = false; }
        } done{m_copyDataRunning};
        m_parts.spamFolder.ProcDeleteAllSpamMsg(folderId, messageId, true);
    }
    return 0;
}

}  // namespace Orva::Plugin
