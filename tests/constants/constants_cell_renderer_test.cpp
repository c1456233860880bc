#include "kvopt/constants/constants_cell_renderer.h"

#include <ostream>

#include "constants/grid_test.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A cell of 200 by 24 pixels at (100, 50): seven hundredths of its width stay free at each end, so
// that low lies at 114 and high at 286.
constexpr CRect kCell{100, 50, 300, 74};
const std::string kChannel = "line 114,62 286,62 808080";
const std::string kLowLimit = "line 114,56 114,68 0000FF";
const std::string kHighLimit = "line 286,56 286,68 0000FF";

std::string ThumbAt(int x) {
    return "fill " + std::to_string(x - 4) + ",54.." + std::to_string(x + 5) + ",70 404040";
}

class ConstantsCellRendererTest : public GridTest {
protected:
    Texts Draw(int row = 1) {
        RecordingCanvas canvas;
        Grid().GetCellRenderer(3, row)->DrawCell(canvas, Grid(), 3, row, kCell);
        return canvas.calls;
    }
    std::optional<CellSlider> Slider(int row = 1) {
        return Grid().GetCellRenderer(3, row)->Slider(Grid(), 3, row);
    }
};

struct SliderRow {
    const char* label;
    const char* value;
    Texts drawn;
};

void PrintTo(const SliderRow& row, std::ostream* out) {
    *out << row.label;
}

class DrawnSliders : public ConstantsCellRendererTest,
                     public testing::WithParamInterface<SliderRow> {};

TEST_P(DrawnSliders, FollowTheValue) {
    study.Number("A", 0, 10);
    Free();
    Grid().UpdateValue(2, 1, GetParam().value);
    EXPECT_THAT(Draw(), testing::ElementsAreArray(GetParam().drawn));
}

const Texts kBelow{kLowLimit,
                   kHighLimit,
                   "text colour FF0000",
                   "background FFFFFF",
                   "print '<<<' 101,51..299,73 left",
                   "text colour 000000"};
const Texts kAbove{kLowLimit,
                   kHighLimit,
                   "text colour FF0000",
                   "background FFFFFF",
                   "print '>>>' 101,51..299,73 right",
                   "text colour 000000"};

INSTANTIATE_TEST_SUITE_P(
    Values, DrawnSliders,
    testing::Values(SliderRow{"Inside", "5", {kChannel, kLowLimit, kHighLimit, ThumbAt(200)}},
                    SliderRow{"AtLow", "0", {kChannel, kLowLimit, kHighLimit, ThumbAt(114)}},
                    SliderRow{"AtHigh", "10", {kChannel, kLowLimit, kHighLimit, ThumbAt(286)}},
                    SliderRow{"JustBelow", "-0.00001", kBelow},
                    SliderRow{"JustAbove", "10.00001", kAbove}, SliderRow{"Empty", "", kBelow},
                    SliderRow{"NoNumber", "some", kBelow}, SliderRow{"FarAbove", "1e30", kAbove}),
    testing::PrintToStringParamName());

TEST_F(ConstantsCellRendererTest, DrawsTheCellFirst) {
    study.Number("A", 0, 10);
    Free();
    Grid().GetFieldDef(3, 1, true)->SetFieldColour(0x112233);
    EXPECT_THAT(Draw(),
                ElementsAre("background 112233", "fill 100,50..300,74 112233", "text colour 000000",
                            kChannel, kLowLimit, kHighLimit, ThumbAt(200)));
}

TEST_F(ConstantsCellRendererTest, WritesOnTheColourOfTheCell) {
    study.Number("A", 0, 10);
    Free();
    Grid().GetFieldDef(3, 1, true)->SetFieldColour(0x112233);
    Grid().UpdateValue(2, 1, "-1");
    EXPECT_THAT(Draw(),
                ElementsAre("background 112233", "fill 100,50..300,74 112233", "text colour 000000",
                            kLowLimit, kHighLimit, "text colour FF0000", "background 112233",
                            "print '<<<' 101,51..299,73 left", "text colour 000000"));
}

TEST_F(ConstantsCellRendererTest, DrawsNoSliderWithoutALimit) {
    study.Number("NoLow", kNotSet, 10);
    study.Number("NoHigh", 0, kNotSet);
    study.Number("Neither", kNotSet, kNotSet);
    Free();
    for (const int row : {1, 2, 3}) {
        Grid().UpdateValue(2, row, "5");
        EXPECT_NE(dynamic_cast<const ConstantsCellRenderer*>(Grid().GetCellRenderer(3, row)),
                  nullptr);
        EXPECT_THAT(Draw(row), IsEmpty()) << row;
        EXPECT_FALSE(Slider(row).has_value()) << row;
    }
}

TEST_F(ConstantsCellRendererTest, ComparesInSinglePrecision) {
    study.Number("A", 0, 0.1);
    Free();
    Grid().UpdateValue(2, 1, "0.10000000149");
    EXPECT_THAT(Draw(), ElementsAre(kChannel, kLowLimit, kHighLimit, ThumbAt(286)));
}

TEST_F(ConstantsCellRendererTest, TellsWhatItsSliderShows) {
    study.Number("A", -2, 10);
    Free();
    std::optional<CellSlider> slider = Slider();
    ASSERT_TRUE(slider.has_value());
    EXPECT_EQ(slider->low, -2.0F);
    EXPECT_EQ(slider->high, 10.0F);
    EXPECT_EQ(slider->value, 4.0F);
    EXPECT_EQ(slider->margin, 0.07F);
    Grid().UpdateValue(2, 1, "some");
    slider = Slider();
    ASSERT_TRUE(slider.has_value());
    EXPECT_EQ(slider->value, kNotSetF);
}

TEST_F(ConstantsCellRendererTest, DrawsAValueThatIsNoNumberWhereTheSentinelLies) {
    study.Number("A", -199, 1);
    Free();
    Grid().UpdateValue(2, 1, "some");
    EXPECT_THAT(Draw(), ElementsAre(kChannel, kLowLimit, kHighLimit, ThumbAt(200)));
}

TEST_F(ConstantsCellRendererTest, TakesTheValueFromItsOwnRow) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 10);
    Free();
    Grid().UpdateValue(2, 2, "10");
    EXPECT_EQ(Draw(1).back(), ThumbAt(200));
    EXPECT_EQ(Draw(2).back(), ThumbAt(286));
}

}  // namespace
}  // namespace kvopt::test
