#include "ui/SliderRule.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <variant>
#include <vector>

namespace {

using Orva::Ui::CSliderRule;
using Orva::Ui::SliderBitmapLayout;
using Orva::Ui::SliderKey;

// The built-in bitmap's layout: 208 x 32, a 16-pixel thumb.
constexpr SliderBitmapLayout kBuiltIn{192, 16, 32};

TEST(SliderRule, KeyOrMouseX_GivesPosition) {
    // A control 240 pixels wide puts the thumb centres at 8, 120 and 232.
    struct MouseX {
        int x;
    };
    const struct {
        int current;
        std::variant<SliderKey, MouseX> input;
        int expected;
    } cases[] = {
        // clang-format off
        {1, SliderKey::Left, 0},     {0, SliderKey::Left, 0},      {1, SliderKey::Up, 0},
        {1, SliderKey::PageUp, 0},   {1, SliderKey::Right, 2},     {2, SliderKey::Right, 2},
        {1, SliderKey::Down, 2},     {1, SliderKey::PageDown, 2},  {2, SliderKey::Home, 0},
        {0, SliderKey::End, 2},      {7, SliderKey::Left, 1},      {-3, SliderKey::Right, 1},
        {2, MouseX{-40}, 0},         {2, MouseX{8}, 0},            {2, MouseX{64}, 0},
        {0, MouseX{65}, 1},          {0, MouseX{120}, 1},          {0, MouseX{176}, 1},
        {0, MouseX{177}, 2},         {0, MouseX{239}, 2},          {0, MouseX{900}, 2},
        // clang-format on
    };
    for (std::size_t index = 0; index < std::size(cases); ++index) {
        const auto& test = cases[index];
        const int position =
            std::holds_alternative<SliderKey>(test.input)
                ? CSliderRule::PositionForKey(test.current, std::get<SliderKey>(test.input))
                : CSliderRule::PositionForX(std::get<MouseX>(test.input).x, 240, kBuiltIn);
        EXPECT_EQ(position, test.expected) << "case " << index;
    }
}

TEST(SliderRule, ForBitmapSize_ThumbHalfTheHeightChannelAtLeastThreeThumbsAndTwo) {
    // {width, height, channel width or 0 for no layout}
    const int cases[][3] = {{208, 32, 192}, {66, 32, 50},  {65, 32, 0},
                            {208, 1, 0},    {4097, 32, 0}, {0, 0, 0}};
    for (const auto& [width, height, channel] : cases) {
        const auto layout = SliderBitmapLayout::ForBitmapSize(width, height);
        EXPECT_EQ(layout ? layout->channelWidth : 0, channel) << width << "x" << height;
    }
}

TEST(SliderRule, ChannelSlices_TileBothSidesAndPutEachTickZoneUnderItsThumb) {
    for (const int width : {50, 51, 97, 240, 241, 1000}) {
        SCOPED_TRACE(width);
        const auto slices = CSliderRule::ChannelSlices(width, kBuiltIn);
        ASSERT_EQ(slices.size(), 5u);
        int source = 0;
        int dest = 0;
        for (const auto& slice : slices) {
            EXPECT_EQ(slice.sourceLeft, source);
            EXPECT_EQ(slice.destLeft, dest);
            EXPECT_GT(slice.sourceWidth, 0);
            EXPECT_GT(slice.destWidth, 0);
            source += slice.sourceWidth;
            dest += slice.destWidth;
        }
        EXPECT_EQ(source, kBuiltIn.channelWidth);
        EXPECT_EQ(dest, width);
        for (int position = 0; position < 3; ++position) {
            const auto& zone = slices[static_cast<std::size_t>(position) * 2];
            const auto thumb = CSliderRule::ThumbBox(position, width, 40, kBuiltIn);
            EXPECT_EQ(zone.destWidth, kBuiltIn.thumbWidth);
            EXPECT_EQ(thumb.left, zone.destLeft);
            EXPECT_EQ(thumb.right, zone.destLeft + zone.destWidth);
        }
    }
    // Too narrow for the zones: the channel squeezed whole.
    EXPECT_EQ(CSliderRule::ChannelSlices(49, kBuiltIn),
              (std::vector<Orva::Ui::SliderSlice>{{0, 192, 0, 49}}));
}

// A bitmap file header with an information header of 40 bytes.
std::vector<std::uint8_t> BitmapHead(std::int32_t width, std::int32_t height, std::uint32_t bits,
                                     std::uint32_t compression, std::uint32_t pixelsAt,
                                     std::uint32_t compressedSize = 0) {
    std::vector<std::uint8_t> head(54, 0);
    head[0] = 'B';
    head[1] = 'M';
    const std::uint32_t fields[][2] = {
        {10, pixelsAt},       {14, 40},          {18, static_cast<std::uint32_t>(width)},
        {26, 1 | bits << 16}, {30, compression}, {22, static_cast<std::uint32_t>(height)},
        {34, compressedSize}};
    for (const auto& [at, value] : fields) {
        for (std::uint32_t byte = 0; byte < 4; ++byte) {
            head[at + byte] = static_cast<std::uint8_t>(value >> (8 * byte));
        }
    }
    return head;
}

TEST(SliderRule, IsUsableBitmapFile_EverythingInsideTheFileAndAtMost4096) {
    constexpr std::uint64_t kBuiltInSize = 54 + 624 * 32;  // rows of 208 * 3 bytes
    const auto builtIn = BitmapHead(208, 32, 24, 0, 54);
    std::vector<std::uint8_t> notBitmap{'B', 'A'};
    notBitmap.insert(notBitmap.end(), builtIn.begin() + 2, builtIn.end());
    const struct {
        const char* name;
        std::vector<std::uint8_t> head;
        std::uint64_t fileSize;
        bool usable;
    } cases[] = {
        {"built-in", builtIn, kBuiltInSize, true},
        {"one byte short", builtIn, kBuiltInSize - 1, false},
        {"top-down", BitmapHead(208, -32, 24, 0, 54), kBuiltInSize, true},
        {"4097 wide", BitmapHead(4097, 1, 32, 0, 54), 54 + 4097 * 4, false},
        {"palette", BitmapHead(4, 4, 8, 0, 54 + 1024), 54 + 1024 + 16, true},
        {"pixels over the palette", BitmapHead(4, 4, 8, 0, 54), 54 + 1024 + 16, false},
        {"run-length", BitmapHead(4, 4, 8, 1, 54 + 1024, 20), 54 + 1024 + 20, true},
        {"run-length cut", BitmapHead(4, 4, 8, 1, 54 + 1024, 20), 54 + 1024 + 19, false},
        {"PNG inside", BitmapHead(4, 4, 0, 5, 54, 20), 2000, false},
        {"not BM", notBitmap, kBuiltInSize, false},
        {"file ends in the header", {builtIn.begin(), builtIn.begin() + 20}, 20, false},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(CSliderRule::IsUsableBitmapFile(test.head, test.fileSize), test.usable)
            << test.name;
    }
}

}  // namespace
