#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include "ListTestFiles.h"
#include "lists/SenderListSet.h"

namespace Orva::Lists {
namespace {

// Readers run Finds and snapshots while one writer adds, modifies, removes, saves and reloads.
// Load empties the set before it refills it, so a reader that ever misses the entry that every
// file holds has seen a half-done load.
TEST(ListSetConcurrency, ReadersNeverSeeAHalfDoneChange) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"BlackList.dat");
    CBListSet set;
    set.Add(L"always@b.com", {L"Always", L"always@b.com"});
    for (int i = 0; i < 500; ++i) {
        const std::wstring address = L"base" + std::to_wstring(i) + L"@b.com";
        set.Add(address.c_str(), {L"", address});
    }
    set.Save(path);

    std::atomic<bool> done{false};
    std::atomic<int> misses{0};
    std::atomic<int> disorder{0};
    std::vector<std::thread> readers;
    for (int r = 0; r < 3; ++r) {
        readers.emplace_back([&] {
            while (!done.load()) {
                if (!set.Find(L"ALWAYS@b.com") || !set.Find(L"always@b.com", L"Always")) {
                    ++misses;
                }
                const std::vector<SenderEntry> entries = set.Entries();
                if (entries.empty() || entries.size() > kListLimit) {
                    ++misses;
                }
                for (size_t i = 1; i < entries.size(); ++i) {
                    if (!(entries[i - 1].address < entries[i].address)) {
                        ++disorder;
                        break;
                    }
                }
                set.Find(L"w7@b.com");
            }
        });
    }

    std::thread writer([&] {
        for (int round = 0; round < 40; ++round) {
            for (int i = 0; i < 20; ++i) {
                const std::wstring address = L"w" + std::to_wstring(i) + L"@b.com";
                set.Add(address.c_str(), {L"W", address});
            }
            set.Modify(L"w1@b.com", L"Moved", L"w1moved@b.com");
            set.Remove(L"w2@b.com");
            set.Remove(L"w1moved@b.com");
            if (round % 4 == 0) {
                set.Save(path);
            }
            if (round % 4 == 2) {
                set.Load(path);
            }
        }
        done = true;
    });
    writer.join();
    for (std::thread& reader : readers) {
        reader.join();
    }
    EXPECT_EQ(0, misses.load());
    EXPECT_EQ(0, disorder.load());
    EXPECT_TRUE(set.Find(L"always@b.com"));
    EXPECT_FALSE(set.Find(L"w2@b.com"));
    EXPECT_FALSE(set.Find(L"w1moved@b.com"));
}

// Two sets, each saved by its own thread, while a third thread reloads them: every load sees a
// whole file, either the old one or a new one.
TEST(ListSetConcurrency, LoadDuringSaveSeesAWholeFile) {
    Testing::TempFolder folder;
    const std::wstring path = folder.File(L"WhiteList.dat");
    CWListSet small;
    CWListSet large;
    for (int i = 0; i < 2000; ++i) {
        const std::wstring address = L"user" + std::to_wstring(i) + L"@b.com";
        large.Add(address.c_str(), {L"", address});
        if (i < 10) {
            small.Add(address.c_str(), {L"", address});
        }
    }
    small.Save(path);
    std::atomic<bool> done{false};
    std::atomic<int> partial{0};
    std::thread loader([&] {
        CWListSet seen;
        while (!done.load()) {
            seen.Load(path);
            const size_t count = seen.Count();
            if (count != 10 && count != 2000) {
                ++partial;
            }
            // Like the agent, the reader lets go between reads for longer than it reads: on
            // Windows a file held open most of the time refuses the renames for longer than a
            // save waits, and the save writes in place.
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    });
    std::thread smallSaver([&] {
        for (int i = 0; i < 30; ++i) {
            small.Save(path);
        }
    });
    std::thread largeSaver([&] {
        for (int i = 0; i < 30; ++i) {
            large.Save(path);
        }
    });
    smallSaver.join();
    largeSaver.join();
    done = true;
    loader.join();
    EXPECT_EQ(0, partial.load());
}

}  // namespace
}  // namespace Orva::Lists
