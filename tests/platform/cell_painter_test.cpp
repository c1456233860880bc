#include "kvopt/platform/cell_painter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kvopt/platform/cell_renderer.h"
#include "kvopt/text/not_set.h"
#include "worksheet_fixture.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Notes what is drawn on it.
class RecordingCanvas : public CellCanvas {
public:
    void FillRect(const CRect& rect, Colour colour) override {
        drawn.push_back("fill " + Text(rect) + " " + std::to_string(colour));
    }
    void FrameRect(const CRect& rect, Colour colour) override {
        drawn.push_back("frame " + Text(rect) + " " + std::to_string(colour));
    }
    void Line(CPoint from, CPoint to, Colour colour) override {
        drawn.push_back("line " + Text({from.x, from.y, to.x, to.y}) + " " +
                        std::to_string(colour));
    }
    void SetTextColour(Colour colour) override {
        drawn.push_back("text colour " + std::to_string(colour));
    }
    void SetBackgroundColour(Colour colour) override {
        drawn.push_back("background " + std::to_string(colour));
    }
    void PrintText(const CRect& rect, std::string_view utf8, TextAlign /*align*/) override {
        drawn.push_back("text " + Text(rect) + " " + std::string(utf8));
    }

    std::vector<std::string> drawn;

private:
    static std::string Text(const CRect& rect) {
        return std::to_string(rect.left) + "," + std::to_string(rect.top) + "," +
               std::to_string(rect.right) + "," + std::to_string(rect.bottom);
    }
};

/// 100 pixels wide at 200, with 7 pixels free at each end: 10 lies at 207, 20 at 293.
const VWSCellPainter kPainter(nullptr, 10.0F, 20.0F, {200, 0, 300, 24}, 0.07F);

TEST(CellPainter, MapsLinearlyBetweenItsFreeEnds) {
    EXPECT_FLOAT_EQ(kPainter.ToValue(207.0F), 10.0F);
    EXPECT_FLOAT_EQ(kPainter.ToValue(250.0F), 15.0F);
    EXPECT_FLOAT_EQ(kPainter.ToValue(293.0F), 20.0F);
    EXPECT_FLOAT_EQ(kPainter.ToPixel(10.0F), 207.0F);
    EXPECT_FLOAT_EQ(kPainter.ToPixel(15.0F), 250.0F);
    EXPECT_FLOAT_EQ(kPainter.ToPixel(20.0F), 293.0F);
}

TEST(CellPainter, ExtrapolatesBeyondBothEnds) {
    EXPECT_FLOAT_EQ(kPainter.ToValue(121.0F), 0.0F);
    EXPECT_FLOAT_EQ(kPainter.ToValue(379.0F), 30.0F);
    EXPECT_FLOAT_EQ(kPainter.ToPixel(30.0F), 379.0F);
}

TEST(CellPainter, TakesBothLimitsAsLegal) {
    EXPECT_TRUE(kPainter.IsLegalValue(10.0F));
    EXPECT_TRUE(kPainter.IsLegalValue(20.0F));
    EXPECT_FALSE(kPainter.IsLegalValue(9.99F));
    EXPECT_FALSE(kPainter.IsLegalValue(20.01F));
}

TEST(CellPainter, FindsTheThumbWithinAShareOfTheRange) {
    EXPECT_TRUE(kPainter.IsAtPoint(15.0F, 16.0F, 0.1F));
    EXPECT_TRUE(kPainter.IsAtPoint(15.0F, 14.0F, 0.1F));
    EXPECT_FALSE(kPainter.IsAtPoint(15.0F, 16.1F, 0.1F));
    EXPECT_TRUE(kPainter.IsAtPoint(20.0F, 20.5F, 0.1F)) << "the pointer may lie outside";
}

TEST(CellPainter, FindsNoThumbOutsideTheLimitsOrWithoutThem) {
    EXPECT_FALSE(kPainter.IsAtPoint(9.9F, 9.9F, 0.1F));
    EXPECT_FALSE(kPainter.IsAtPoint(20.1F, 20.1F, 0.1F));
    EXPECT_FALSE(kPainter.IsAtPoint(kNotSetF, kNotSetF, 0.1F));
    const VWSCellPainter noLow(nullptr, kNotSetF, 20.0F, {0, 0, 100, 24}, 0.07F);
    EXPECT_FALSE(noLow.IsAtPoint(0.0F, 0.0F, 0.1F));
    const VWSCellPainter noHigh(nullptr, -200.0F, kNotSetF, {0, 0, 100, 24}, 0.07F);
    EXPECT_FALSE(noHigh.IsAtPoint(-150.0F, -150.0F, 0.1F));
}

TEST(CellPainter, StandsCellsWithoutRoomAndRangesWithoutWidth) {
    const VWSCellPainter narrow(nullptr, 10.0F, 20.0F, {5, 0, 5, 24}, 0.07F);
    EXPECT_FLOAT_EQ(narrow.ToValue(50.0F), 10.0F);
    const VWSCellPainter point(nullptr, 10.0F, 10.0F, {0, 0, 100, 24}, 0.07F);
    EXPECT_FLOAT_EQ(point.ToPixel(10.0F), 7.0F);
    EXPECT_FLOAT_EQ(point.ToValue(50.0F), 10.0F);
    EXPECT_TRUE(point.IsAtPoint(10.0F, 10.0F, 0.1F));
}

TEST(CellPainter, DrawsChannelThumbAndLimits) {
    RecordingCanvas canvas;
    const VWSCellPainter painter(&canvas, 10.0F, 20.0F, {200, 0, 300, 24}, 0.07F);
    painter.DrawChannel();
    painter.DrawLimit(10.0F, 0x0000FF);
    painter.DrawThumb(15.0F);
    EXPECT_THAT(canvas.drawn, ElementsAre("line 207,12,293,12 8421504", "line 207,6,207,18 255",
                                          "fill 246,4,255,20 4210752"));
}

TEST(CellPainter, DrawsNothingWithoutACanvas) {
    kPainter.DrawChannel();
    kPainter.DrawThumb(15.0F);
    kPainter.DrawLimit(10.0F, 0);
    EXPECT_FLOAT_EQ(kPainter.ToValue(250.0F), 15.0F);
}

TEST(CellRenderer, DrawsTheFieldsColourAndTheCellsText) {
    TestContent content;
    const VWSCellRenderer renderer;
    RecordingCanvas canvas;
    renderer.DrawCell(canvas, content, 1, 1, {0, 0, 50, 20});
    EXPECT_THAT(canvas.drawn, ElementsAre("text 2,0,48,20 name1")) << "the palette's own colours";
    canvas.drawn.clear();
    content.SetFieldColor(1, 1, 0xC0C0C0);
    renderer.DrawCell(canvas, content, 1, 1, {0, 0, 50, 20});
    EXPECT_THAT(canvas.drawn, ElementsAre("background 12632256", "fill 0,0,50,20 12632256",
                                          "text colour 0", "text 2,0,48,20 name1"));
    canvas.drawn.clear();
    renderer.DrawCell(canvas, content, 3, 3, {0, 0, 50, 20});
    EXPECT_THAT(canvas.drawn, IsEmpty()) << "an empty cell";
}

TEST(Geometry, KnowsWhatLiesInside) {
    CRect rect{1, 2, 11, 22};
    EXPECT_EQ(rect.Width(), 10);
    EXPECT_EQ(rect.Height(), 20);
    EXPECT_TRUE(rect.Contains({1, 2}));
    EXPECT_FALSE(rect.Contains({11, 2}));
    EXPECT_FALSE(rect.Contains({1, 22}));
    rect.DeflateRect(1, 2);
    EXPECT_EQ(rect, (CRect{2, 4, 10, 20}));
}

}  // namespace
}  // namespace kvopt
