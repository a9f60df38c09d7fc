#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "plugin/controller/ControllerRig.h"

namespace {

using Orva::Testing::ControllerRig;
using Orva::Testing::LogEntry;
using testing::ElementsAre;
using testing::IsEmpty;

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

intptr_t SendCopyData(ControllerRig& rig, uintptr_t id, std::span<const std::byte> bytes) {
    const auto result = rig.Controller().Dispatch({74, 0x9900, 0, id, bytes});
    EXPECT_EQ(result, 0);
    return result.value_or(-1);
}

TEST(ControllerCopyData, DeleteAllWithFlag_RunsWithBothIds) {
    ControllerRig rig;
    const auto record = Record(0x100000002ull, 0xAABBCCDD11223344ull, 1);
    SendCopyData(rig, 1078, record);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"store delete-all 0x100000002 0xAABBCCDD11223344 1"));
}

TEST(ControllerCopyData, RecordAtAnOddAddress_ReadsTheSameValues) {
    ControllerRig rig;
    const auto record = Record(0x1122334455667788ull, 5, 0xFF);
    std::vector<std::byte> shifted(1, std::byte{0x5A});
    shifted.insert(shifted.end(), record.begin(), record.end());
    SendCopyData(rig, 1078, std::span<const std::byte>(shifted).subspan(1));
    EXPECT_THAT(rig.Journal(), ElementsAre(L"store delete-all 0x1122334455667788 0x5 1"));
}

TEST(ControllerCopyData, LongerRecord_ReadsTheFirstSeventeenBytes) {
    ControllerRig rig;
    auto record = Record(9, 8, 1);
    record.resize(64, std::byte{0xEE});
    SendCopyData(rig, 1078, record);
    EXPECT_THAT(rig.Journal(), ElementsAre(L"store delete-all 0x9 0x8 1"));
}

TEST(ControllerCopyData, FlagZero_DoesNothing) {
    ControllerRig rig;
    SendCopyData(rig, 1078, Record(0x100000002ull, 1, 0));
    EXPECT_THAT(rig.Journal(), IsEmpty());
}

TEST(ControllerCopyData, ThreeBytes_IgnoredAndLogged) {
    ControllerRig rig;
    const std::array<std::byte, 3> bytes{std::byte{1}, std::byte{2}, std::byte{3}};
    SendCopyData(rig, 1078, bytes);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(LogEntry(L"@@@ CToolBarWnd::OnCopyData() ignored dwData=[1078], "
                                     L"cbData=[3]")));
}

TEST(ControllerCopyData, SixteenBytes_IgnoredAndLogged) {
    ControllerRig rig;
    auto record = Record(1, 2, 1);
    record.pop_back();
    SendCopyData(rig, 1078, record);
    EXPECT_THAT(rig.Journal(),
                ElementsAre(LogEntry(L"@@@ CToolBarWnd::OnCopyData() ignored dwData=[1078], "
                                     L"cbData=[16]")));
}

TEST(ControllerCopyData, NoBytes_IgnoredAndLogged) {
    ControllerRig rig;
    SendCopyData(rig, 1078, {});
    EXPECT_EQ(rig.Journal().size(), 1u);
}

TEST(ControllerCopyData, OtherIds_IgnoredAndLogged) {
    for (const uintptr_t id : {uintptr_t{1076}, uintptr_t{0}, uintptr_t{1079}}) {
        ControllerRig rig;
        SendCopyData(rig, id, Record(1, 2, 1));
        EXPECT_THAT(rig.Journal(),
                    ElementsAre(LogEntry(L"@@@ CToolBarWnd::OnCopyData() ignored dwData=[" +
                                         std::to_wstring(id) + L"], cbData=[17]")));
    }
}

}  // namespace
