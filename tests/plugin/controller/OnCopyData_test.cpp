#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Testing::ControllerRig;

// The agent's record: folder id, message id (little-endian 64-bit each), the flag byte.
std::vector<std::byte> Record(uint64_t folderId, uint64_t messageId, uint8_t flag) {
    std::vector<std::byte> bytes;
    for (const uint64_t value : {folderId, messageId}) {
        for (int shift = 0; shift < 64; shift += 8) {
            bytes.push_back(static_cast<std::byte>((value >> shift) & 0xFFu));
        }
    }
    bytes.push_back(static_cast<std::byte>(flag));
    return bytes;
}

std::vector<std::byte> Resized(std::vector<std::byte> bytes, std::size_t size) {
    bytes.resize(size, std::byte{0xEE});
    return bytes;
}

struct CopyDataCase {
    const char* name;
    uintptr_t id;
    std::vector<std::byte> bytes;
    std::size_t offset;  // where the record starts in the sender's buffer
    std::vector<std::wstring> journal;
};

// Whatever arrives, the controller answers 0; only a whole flagged record of 1078 deletes.
TEST(ControllerCopyData, Records_OnlyAWholeFlaggedDeleteAllRuns) {
    const std::vector<CopyDataCase> cases = {
        {"flagged",
         1078,
         Record(0x100000002ull, 0xAABBCCDD11223344ull, 1),
         0,
         {L"store delete-all 0x100000002 0xAABBCCDD11223344 1"}},
        {"odd address",
         1078,
         Record(0x1122334455667788ull, 5, 0xFF),
         1,
         {L"store delete-all 0x1122334455667788 0x5 1"}},
        {"longer", 1078, Resized(Record(9, 8, 1), 64), 0, {L"store delete-all 0x9 0x8 1"}},
        {"flag zero", 1078, Record(0x100000002ull, 1, 0), 0, {}},
        {"three bytes", 1078, Resized({}, 3), 0, {}},
        {"sixteen bytes", 1078, Resized(Record(1, 2, 1), 16), 0, {}},
        {"no bytes", 1078, {}, 0, {}},
        {"folder id", 1076, Record(1, 2, 1), 0, {}},
        {"id 0", 0, Record(1, 2, 1), 0, {}},
        {"id 1079", 1079, Record(1, 2, 1), 0, {}},
    };
    for (const CopyDataCase& test : cases) {
        SCOPED_TRACE(test.name);
        ControllerRig rig;
        std::vector<std::byte> buffer(test.offset, std::byte{0x5A});
        buffer.insert(buffer.end(), test.bytes.begin(), test.bytes.end());
        const auto record = std::span<const std::byte>(buffer).subspan(test.offset);
        EXPECT_EQ(rig.Controller().Dispatch({74, 0x9900, 0, test.id, record}), 0);
        EXPECT_EQ(rig.Journal(), test.journal);
    }
}

// A delete-all that pumps messages receives the agent's next request on the same thread: it
// must not start a second deletion inside the first.
class ReenteringSpamFolder final : public Orva::Plugin::ISpamFolder {
public:
    Orva::Plugin::CToolBarController* controller = nullptr;
    int runs = 0;
    intptr_t nestedResult = -1;

    int CreateSpamMailFolder(bool) override { return 1; }
    void ProcDeleteAllSpamMsg(uint64_t, uint64_t, bool) override {
        if (++runs == 1) {
            nestedResult = controller->OnCopyData(1078, Record(7, 7, 1));
        }
    }
    void PostCleanDeletedFolder() override {}
    void OnFolderSelectionChanged(uint64_t) override {}
};

TEST(ControllerCopyData, RequestDuringADeleteAllOnTheSameThread_DoesNothing) {
    ControllerRig rig;
    ReenteringSpamFolder folder;
    const auto controller = rig.MakeController({nullptr, nullptr, &folder});
    folder.controller = controller.get();

    EXPECT_EQ(controller->OnCopyData(1078, Record(1, 2, 1)), 0);
    EXPECT_EQ(folder.runs, 1);
    EXPECT_EQ(folder.nestedResult, 0);

    // Once it is over, the next request runs again.
    EXPECT_EQ(controller->OnCopyData(1078, Record(3, 4, 1)), 0);
    EXPECT_EQ(folder.runs, 2);
}

}  // namespace
