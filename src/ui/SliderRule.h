#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace Orva::Ui {

// The level slider has three positions, 0 at the left end.
inline constexpr int kSliderPositionCount = 3;
// Neither side of a slider bitmap may be longer; a larger file is refused before it is loaded.
inline constexpr int kSliderBitmapLargestSide = 4096;

// The keys that move the slider; the Win32 adapter maps the virtual keys onto them.
enum class SliderKey { Left, Right, Up, Down, Home, End, PageUp, PageDown };

// A rectangle in client pixels, right and bottom excluded.
struct SliderBox {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const SliderBox&) const = default;
};

// One piece of the channel: columns [sourceLeft, +sourceWidth) of the bitmap are drawn over
// [destLeft, +destWidth) of the control.
struct SliderSlice {
    int sourceLeft = 0;
    int sourceWidth = 0;
    int destLeft = 0;
    int destWidth = 0;
    bool operator==(const SliderSlice&) const = default;
};

// How a slider bitmap is cut. The bitmap is one strip, `height` pixels high:
//   - its rightmost `thumbWidth` = height / 2 columns are the thumb;
//   - the columns left of it are the channel, `channelWidth` wide, at least 3 thumbs and 2
//     pixels wide. Seen as three zones one thumb wide — at the left end, in the middle
//     (starting at (channelWidth - thumbWidth) / 2) and at the right end — with plain channel
//     between them, each zone holds the tick mark of one position at its centre.
// The control draws the zones unscaled and stretches the plain parts between them, so the ticks
// stay under the thumb's centre whatever the control's width. Magenta (255, 0, 255) pixels are
// transparent in both parts. A control lower than the bitmap draws it squeezed to its height;
// a higher one centres it.
struct SliderBitmapLayout {
    int channelWidth = 0;
    int thumbWidth = 0;
    int height = 0;

    // The layout of a bitmap of this size; none when it does not fit the description above.
    static std::optional<SliderBitmapLayout> ForBitmapSize(int width, int height);
};

// Where the slider's parts go and which position an input gives, without a window.
class CSliderRule {
public:
    static int Clamp(int position);
    // The position a key gives from `current`: Left, Up and PageUp step towards 0, Right, Down
    // and PageDown towards 2, Home and End jump to the ends.
    static int PositionForKey(int current, SliderKey key);
    // The position whose thumb centre lies nearest to a mouse x in a control `width` wide.
    static int PositionForX(int x, int width, const SliderBitmapLayout& layout);

    // Where the thumb of `position` is drawn in a control of this size.
    static SliderBox ThumbBox(int position, int width, int height,
                              const SliderBitmapLayout& layout);
    // The rows the channel and the thumb are drawn on.
    static SliderBox ChannelBox(int width, int height, const SliderBitmapLayout& layout);
    // The channel's pieces for a control `width` wide; one stretched piece when the control is
    // too narrow to keep the zones apart.
    static std::vector<SliderSlice> ChannelSlices(int width, const SliderBitmapLayout& layout);

    // Whether a .bmp file, of which `head` holds the first bytes (at least 54 when the file
    // has that many) and `fileSize` is the length, holds an uncompressed or run-length picture
    // whose header, colours and pixels all lie inside the file and whose sides are at most
    // kSliderBitmapLargestSide. Such a file is safe to hand to the system's loader.
    static bool IsUsableBitmapFile(std::span<const std::uint8_t> head, std::uint64_t fileSize);
};

}  // namespace Orva::Ui
