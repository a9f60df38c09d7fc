#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <vector>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Testing::ControllerRig;

// A delete-all that holds the first caller until the test lets it go, and notes who is inside.
class BlockingSpamFolder final : public Orva::Plugin::ISpamFolder {
public:
    int CreateSpamMailFolder(bool) override { return 1; }
    void PostCleanDeletedFolder() override {}
    void OnFolderSelectionChanged(uint64_t) override {}
    void ProcDeleteAllSpamMsg(uint64_t folderId, uint64_t, bool) override {
        std::unique_lock lock(m_mutex);
        m_order.push_back(folderId);
        ++m_inside;
        m_maxInside = std::max(m_maxInside, m_inside);
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
    int MaxInside() {
        std::lock_guard lock(m_mutex);
        return m_maxInside;
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<uint64_t> m_order;
    int m_inside = 0;
    int m_maxInside = 0;
    bool m_released = false;
};

std::vector<std::byte> DeleteAllRecord(uint8_t folderId) {
    std::vector<std::byte> bytes(17, std::byte{0});
    bytes[0] = static_cast<std::byte>(folderId);
    bytes[16] = std::byte{1};
    return bytes;
}

TEST(ControllerCopyDataLock, SecondRequestWaitsForTheFirstToFinish) {
    ControllerRig rig;
    BlockingSpamFolder folder;
    Orva::Plugin::CToolBarController controller(
        Orva::Plugin::ControllerPorts{rig.messaging, rig.clock, rig.shutdownDone, rig.hook,
                                      rig.shell, rig.keyboard, rig.process, rig.plainDebugger,
                                      rig.os, rig.host, rig.version, rig.log},
        Orva::Plugin::ControllerParts{rig.ribbon, rig.classic, folder, rig.account, rig.dialogs,
                                      rig.strings, rig.settings, rig.agent},
        rig.window);
    const auto first = DeleteAllRecord(1);
    const auto second = DeleteAllRecord(2);
    std::thread firstCaller([&] { controller.OnCopyData(1078, first); });
    folder.WaitUntilInside();
    std::atomic<bool> secondDone{false};
    std::thread secondCaller([&] {
        controller.OnCopyData(1078, second);
        secondDone = true;
    });
    // Give the second caller time to reach the lock; it must not get past it.
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(secondDone.load());
    folder.Release();
    firstCaller.join();
    secondCaller.join();
    EXPECT_EQ(folder.Order(), (std::vector<uint64_t>{1, 2}));
    EXPECT_EQ(folder.MaxInside(), 1);
}

}  // namespace
