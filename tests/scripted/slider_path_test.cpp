#include "kvopt/scripted/slider_path.h"

#include <gtest/gtest.h>

#include "tests/scripted/sample_pages.h"

namespace kvopt {
namespace {

// The sample's columns are 102 pixels wide; less one at each side leaves 100, of which a tenth
// stays free at each end: 0 lies at pixel 11 and 10 at pixel 91.
class SliderPathTest : public testing::Test {
protected:
    int PixelOf(double value) {
        const CPoint cell{3, 1};
        return CellPixelOfValue(grid_, cell, SliderOfCell(grid_, cell).value(), value).x;
    }
    int PixelAt(double percent) { return CellPixelAtShare(grid_, {3, 1}, percent).x; }

    test::SampleGrid grid_;
};

TEST_F(SliderPathTest, TheNominalCellStandsAtTheOriginInTheColumnsWidth) {
    EXPECT_EQ(NominalCellRect(grid_, {2, 1}), (CRect{0, 0, 102, grid_.DefaultRowHeight()}));
}

TEST_F(SliderPathTest, AValueLiesWhereItsThumbStands) {
    EXPECT_EQ(PixelOf(0.0), 11);
    EXPECT_EQ(PixelOf(5.0), 51);
    EXPECT_EQ(PixelOf(10.0), 91);
}

TEST_F(SliderPathTest, AValueBetweenTwoPixelsTakesTheNearer) {
    EXPECT_EQ(PixelOf(0.05), 11);
    EXPECT_EQ(PixelOf(0.07), 12);
}

TEST_F(SliderPathTest, AValueBeyondTheEndsStaysWithinTheCell) {
    EXPECT_EQ(PixelOf(-100.0), 0);
    EXPECT_EQ(PixelOf(100.0), 101);
}

TEST_F(SliderPathTest, AShareRunsFromTheFirstPixelToTheLast) {
    EXPECT_EQ(PixelAt(0.0), 0);
    EXPECT_EQ(PixelAt(50.0), 51);
    EXPECT_EQ(PixelAt(100.0), 101);
    EXPECT_EQ(PixelAt(-5.0), 0);
    EXPECT_EQ(PixelAt(200.0), 101);
}

TEST_F(SliderPathTest, ThePixelLiesInTheMiddleRow) {
    EXPECT_EQ(CellPixelAtShare(grid_, {3, 1}, 50.0).y, grid_.DefaultRowHeight() / 2);
}

TEST_F(SliderPathTest, OnlyASliderCellHasASlider) {
    EXPECT_TRUE(SliderOfCell(grid_, {3, 1}).has_value());
    EXPECT_FALSE(SliderOfCell(grid_, {3, 2}).has_value());
    EXPECT_FALSE(SliderOfCell(grid_, {2, 1}).has_value());
}

}  // namespace
}  // namespace kvopt
