#include "ui/SliderRule.h"

#include <algorithm>
#include <cstdlib>

namespace Orva::Ui {
namespace {

// Where zone `position` starts: the zones share out the width left beside one thumb.
int ZoneLeft(int position, int width, int thumbWidth) {
    return position * std::max(width - thumbWidth, 0) / (kSliderPositionCount - 1);
}

std::uint32_t Read16(std::span<const std::uint8_t> bytes, std::size_t at) {
    return static_cast<std::uint32_t>(bytes[at] | bytes[at + 1] << 8);
}

std::uint32_t Read32(std::span<const std::uint8_t> bytes, std::size_t at) {
    return Read16(bytes, at) | Read16(bytes, at + 2) << 16;
}

// The parts of a bitmap file the loader reads: 14 bytes of file header, then the information
// header (12 bytes in the old OS/2 form, 40 or more otherwise), a colour table or the masks,
// and the pixels from `pixelsAt` on.
constexpr std::size_t kFileHeaderSize = 14;
constexpr std::uint32_t kCoreHeaderSize = 12;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kUncompressed = 0;
constexpr std::uint32_t kRunLength8 = 1;
constexpr std::uint32_t kRunLength4 = 2;
constexpr std::uint32_t kBitFields = 3;

}  // namespace

std::optional<SliderBitmapLayout> SliderBitmapLayout::ForBitmapSize(int width, int height) {
    if (width <= 0 || height <= 0 || width > kSliderBitmapLargestSide ||
        height > kSliderBitmapLargestSide) {
        return std::nullopt;
    }
    const int thumbWidth = height / 2;
    const int channelWidth = width - thumbWidth;
    // Each stretched part of the channel needs a column to stretch.
    if (thumbWidth < 1 || channelWidth < kSliderPositionCount * thumbWidth + 2) {
        return std::nullopt;
    }
    return SliderBitmapLayout{channelWidth, thumbWidth, height};
}

int CSliderRule::Clamp(int position) {
    return std::clamp(position, 0, kSliderPositionCount - 1);
}

int CSliderRule::PositionForKey(int current, SliderKey key) {
    switch (key) {
        case SliderKey::Left:
        case SliderKey::Up:
        case SliderKey::PageUp:
            return Clamp(Clamp(current) - 1);
        case SliderKey::Right:
        case SliderKey::Down:
        case SliderKey::PageDown:
            return Clamp(Clamp(current) + 1);
        case SliderKey::Home:
            return 0;
        case SliderKey::End:
            return kSliderPositionCount - 1;
    }
    return Clamp(current);
}

int CSliderRule::PositionForX(int x, int width, const SliderBitmapLayout& layout) {
    int nearest = 0;
    int nearestDistance = -1;
    for (int position = 0; position < kSliderPositionCount; ++position) {
        const int centre = ZoneLeft(position, width, layout.thumbWidth) + layout.thumbWidth / 2;
        const int distance = std::abs(x - centre);
        // On a tie the lower position wins.
        if (nearestDistance < 0 || distance < nearestDistance) {
            nearest = position;
            nearestDistance = distance;
        }
    }
    return nearest;
}

SliderBox CSliderRule::ChannelBox(int width, int height, const SliderBitmapLayout& layout) {
    const int drawnHeight = std::clamp(height, 0, layout.height);
    const int top = (std::max(height, 0) - drawnHeight) / 2;
    return SliderBox{0, top, std::max(width, 0), top + drawnHeight};
}

SliderBox CSliderRule::ThumbBox(int position, int width, int height,
                                const SliderBitmapLayout& layout) {
    SliderBox box = ChannelBox(width, height, layout);
    box.left = ZoneLeft(Clamp(position), width, layout.thumbWidth);
    box.right = box.left + layout.thumbWidth;
    return box;
}

std::vector<SliderSlice> CSliderRule::ChannelSlices(int width, const SliderBitmapLayout& layout) {
    const int thumb = layout.thumbWidth;
    if (width <= 0) {
        return {};
    }
    if (width < kSliderPositionCount * thumb + 2) {
        return {{0, layout.channelWidth, 0, width}};
    }
    const int sourceMiddle = ZoneLeft(1, layout.channelWidth, thumb);
    const int sourceEnd = ZoneLeft(2, layout.channelWidth, thumb);
    const int destMiddle = ZoneLeft(1, width, thumb);
    const int destEnd = ZoneLeft(2, width, thumb);
    return {
        {0, thumb, 0, thumb},
        {thumb, sourceMiddle - thumb, thumb, destMiddle - thumb},
        {sourceMiddle, thumb, destMiddle, thumb},
        {sourceMiddle + thumb, sourceEnd - sourceMiddle - thumb, destMiddle + thumb,
         destEnd - destMiddle - thumb},
        {sourceEnd, thumb, destEnd, thumb},
    };
}

bool CSliderRule::IsUsableBitmapFile(std::span<const std::uint8_t> head, std::uint64_t fileSize) {
    if (head.size() < kFileHeaderSize + kCoreHeaderSize || head.size() > fileSize ||
        head[0] != 'B' || head[1] != 'M') {
        return false;
    }
    const std::uint64_t pixelsAt = Read32(head, 10);
    const std::uint32_t headerSize = Read32(head, kFileHeaderSize);
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::uint32_t planes = 0;
    std::uint32_t bitsPerPixel = 0;
    std::uint32_t compression = kUncompressed;
    std::uint64_t compressedSize = 0;
    std::uint64_t coloursUsed = 0;
    std::uint64_t colourEntrySize = 4;
    std::uint64_t masksSize = 0;
    if (headerSize == kCoreHeaderSize) {
        width = Read16(head, 18);
        height = Read16(head, 20);
        planes = Read16(head, 22);
        bitsPerPixel = Read16(head, 24);
        colourEntrySize = 3;
    } else if (headerSize >= kInfoHeaderSize && head.size() >= kFileHeaderSize + kInfoHeaderSize) {
        width = static_cast<std::int32_t>(Read32(head, 18));
        height = static_cast<std::int32_t>(Read32(head, 22));
        planes = Read16(head, 26);
        bitsPerPixel = Read16(head, 28);
        compression = Read32(head, 30);
        compressedSize = Read32(head, 34);
        coloursUsed = Read32(head, 46);
        // The three masks follow the short form of the header; the longer forms hold them.
        masksSize = compression == kBitFields && headerSize == kInfoHeaderSize ? 12 : 0;
    } else {
        return false;
    }
    const std::int64_t rows = height < 0 ? -height : height;
    const bool knownDepth = bitsPerPixel == 1 || bitsPerPixel == 4 || bitsPerPixel == 8 ||
                            bitsPerPixel == 16 || bitsPerPixel == 24 || bitsPerPixel == 32;
    if (width <= 0 || rows == 0 || width > kSliderBitmapLargestSide ||
        rows > kSliderBitmapLargestSide || planes != 1 || !knownDepth) {
        return false;
    }
    const std::uint64_t paletteSize = bitsPerPixel <= 8 ? std::uint64_t{1} << bitsPerPixel : 0;
    if (coloursUsed > paletteSize) {
        return false;
    }
    const std::uint64_t tableEnd = kFileHeaderSize + headerSize + masksSize +
                                   (coloursUsed != 0 ? coloursUsed : paletteSize) * colourEntrySize;
    if (tableEnd > pixelsAt || pixelsAt > fileSize) {
        return false;
    }
    std::uint64_t pixelBytes = 0;
    if (compression == kUncompressed || compression == kBitFields) {
        if (compression == kBitFields && bitsPerPixel != 16 && bitsPerPixel != 32) {
            return false;
        }
        const std::uint64_t rowBytes =
            (static_cast<std::uint64_t>(width) * bitsPerPixel + 31) / 32 * 4;
        pixelBytes = rowBytes * static_cast<std::uint64_t>(rows);
    } else if ((compression == kRunLength8 && bitsPerPixel == 8) ||
               (compression == kRunLength4 && bitsPerPixel == 4)) {
        // Run-length pictures are stored bottom-up only, and say how long their data is.
        if (height < 0 || compressedSize == 0) {
            return false;
        }
        pixelBytes = compressedSize;
    } else {
        return false;
    }
    return pixelsAt + pixelBytes <= fileSize;
}

}  // namespace Orva::Ui
