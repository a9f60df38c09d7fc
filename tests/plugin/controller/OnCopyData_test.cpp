#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string>
#include <thread>
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
class ReenteringSpamFolder final : public Orva::Testing::QuietSpamFolder {
public:
    Orva::Plugin::CToolBarController* controller = nullptr;
    int runs = 0;
    intptr_t nestedResult = -1;

    void ProcDeleteAllSpamMsg(uint64_t, uint64_t, bool) override {
        if (++runs == 1) {
            nestedResult = controller->OnCopyData(1078, Record(7, 7, 1));
        }
    }
};

TEST(ControllerCopyData, RequestDuringADeleteAllOnTheSameThread_DoesNothing) {
    ControllerRig rig;
    ReenteringSpamFolder folder;
    const auto controller = rig.MakeController({.spamFolder = &folder});
    folder.controller = controller.get();

    EXPECT_EQ(controller->OnCopyData(1078, Record(1, 2, 1)), 0);
    EXPECT_EQ(folder.runs, 1);
    EXPECT_EQ(folder.nestedResult, 0);

    // Once it is over, the next request runs again.
    EXPECT_EQ(controller->OnCopyData(1078, Record(3, 4, 1)), 0);
    EXPECT_EQ(folder.runs, 2);
}

// A delete-all that holds the first caller until the test lets it go, and notes who is inside.
class BlockingSpamFolder final : public Orva::Testing::QuietSpamFolder {
public:
    void ProcDeleteAllSpamMsg(uint64_t folderId, uint64_t, bool) override {
        std::unique_lock lock(m_mutex);
        m_order.push_back(folderId);
        ++m_inside;
        m_changed.notify_all();
        if (folderId == 1) {
            m_changed.wait(lock, [this] { return m_released; });
        }
        --m_inside;
    }
    void WaitUntilInside() {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_inside > 0; });
    }
    void Release() {
        std::lock_guard lock(m_mutex);
        m_released = true;
        m_changed.notify_all();
    }
    std::vector<uint64_t> Order() {
        std::lock_guard lock(m_mutex);
        return m_order;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<uint64_t> m_order;
    int m_inside = 0;
    bool m_released = false;
};

TEST(ControllerCopyData, SecondRequestFromAnotherThread_WaitsForTheFirstToFinish) {
    ControllerRig rig;
    BlockingSpamFolder folder;
    const auto controller = rig.MakeController({.spamFolder = &folder});
    const auto first = Record(1, 0, 1);
    const auto second = Record(2, 0, 1);
    std::thread firstCaller([&] { controller->OnCopyData(1078, first); });
    folder.WaitUntilInside();
    std::atomic<bool> secondDone{false};
    std::thread secondCaller([&] {
        controller->OnCopyData(1078, second);
        secondDone = true;
    });
    // Give the second caller time to reach the lock; it must not get past it.
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(secondDone.load());
    folder.Release();
    firstCaller.join();
    secondCaller.join();
    EXPECT_EQ(folder.Order(), (std::vector<uint64_t>{1, 2}));
}

}  // namespace
