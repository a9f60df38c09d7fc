#include "tools/sim/agent/SimAgentProtocol.h"

#include <gtest/gtest.h>

namespace Orva::Sim {
namespace {

TEST(SimAgentProtocol, Command_RoundTripsEveryField) {
    AgentCommand command;
    command.delivery = Delivery::CopyData;
    command.message = 74;
    command.wParam = 0x1122334455667788ull;
    command.lParam = -2;
    command.copyDataId = 1078;
    command.payload = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 1};

    const std::optional<AgentCommand> decoded = DecodeCommand(EncodeCommand(command));
    ASSERT_TRUE(decoded.has_value());
    EXPECT_EQ(decoded->delivery, Delivery::CopyData);
    EXPECT_EQ(decoded->message, 74u);
    EXPECT_EQ(decoded->wParam, 0x1122334455667788ull);
    EXPECT_EQ(decoded->lParam, -2);
    EXPECT_EQ(decoded->copyDataId, 1078u);
    EXPECT_EQ(decoded->payload, command.payload);
}

TEST(SimAgentProtocol, Decode_RefusesDamagedRecords) {
    AgentCommand command;
    command.payload = {7, 7};
    const std::vector<uint8_t> good = EncodeCommand(command);

    std::vector<uint8_t> shortened(good.begin(), good.end() - 1);
    std::vector<uint8_t> longer = good;
    longer.push_back(0);
    std::vector<uint8_t> unknownDelivery = good;
    unknownDelivery.at(0) = 3;
    std::vector<uint8_t> hugeSize = good;
    hugeSize.at(31) = 0xFF;

    EXPECT_TRUE(DecodeCommand(good).has_value());
    EXPECT_FALSE(DecodeCommand(shortened).has_value());
    EXPECT_FALSE(DecodeCommand(longer).has_value());
    EXPECT_FALSE(DecodeCommand(unknownDelivery).has_value());
    EXPECT_FALSE(DecodeCommand(hugeSize).has_value());
    EXPECT_FALSE(DecodeCommand({}).has_value());
}

TEST(SimAgentProtocol, RecordLines_NameDeliveryAndValues) {
    EXPECT_EQ(RecordLine(false, 1041, 0, 0), "posted 1041 0 0\n");
    EXPECT_EQ(RecordLine(true, 1031, 5, -1), "sent 1031 5 -1\n");
    const uint8_t payload[] = {0x00, 0xAB, 0x10};
    EXPECT_EQ(CopyDataRecordLine(1078, payload), "copydata 1078 3 00AB10\n");
}

}  // namespace
}  // namespace Orva::Sim
