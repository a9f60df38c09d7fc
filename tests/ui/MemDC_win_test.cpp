#include <windows.h>

#include <gtest/gtest.h>

#include <optional>

#include "ui/MemDC_win.h"
#include "ui/PixelCanvas_win.h"

namespace {

TEST(MemDCWin, DrawingInTargetCoordinates_ReachesTheTargetOnlyWhenItGoes) {
    const Orva::Testing::PixelCanvas target(20, 20, RGB(255, 255, 255));
    const RECT area{5, 5, 15, 15};
    std::optional<Orva::Ui::CMemDC> memory(std::in_place, target.Dc(), area);
    ::FillRect(memory->Dc(), &area, static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH)));
    EXPECT_EQ(target.Pixel(10, 10), RGB(255, 255, 255));
    memory.reset();
    EXPECT_EQ(target.Pixel(5, 5), RGB(0, 0, 0));
    EXPECT_EQ(target.Pixel(14, 14), RGB(0, 0, 0));
    EXPECT_EQ(target.Pixel(15, 15), RGB(255, 255, 255));
    EXPECT_EQ(target.Pixel(4, 10), RGB(255, 255, 255));
}

}  // namespace
