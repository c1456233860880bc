// The slider: hovering, dragging, letting go, and the timer between.

#include <algorithm>
#include <ostream>

#include "constants/grid_test.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A cell whose frame of one pixel leaves 100 pixels, of which 86 are the slider's: a factor from 0
/// to 86 has the value x - 8 at the pixel x.
constexpr CRect kCell{0, 0, 102, 22};

CPoint PixelOf(int value) {
    return {value + 8, 10};
}

/// Two factors from 0 to 86, at 10 and 20, and one row without a factor.
class ConstantsSlider : public GridTest {
protected:
    ConstantsSlider() {
        study.Number("A", 0, 86);
        study.Number("B", 0, 86);
        Store("A", 10.0);
        Store("B", 20.0);
    }

    bool Move(int value, CPoint cell) { return Grid().MouseMove(PixelOf(value), cell, kCell); }
    bool Hover(int value, int row) { return Move(value, {3, row}); }
    bool Press(int row) { return Grid().LButtonDown({}, {3, row}); }
    bool Release(int row) { return Grid().LButtonUp({}, {3, row}); }
    /// Hovers over the thumb of a row and presses.
    void Take(int row) {
        Hover(row == 1 ? 10 : 20, row);
        Press(row);
    }
    std::string Value(int row) { return Grid().GetCellText(2, row); }
    Cursor PointerShape() const { return desktop.GetCursor(); }
    Texts Boxes() const {
        Texts texts;
        for (const SheetDesktop::Box& box : desktop.boxes) {
            texts.push_back(box.text);
        }
        return texts;
    }
};

// Hovering.

TEST_F(ConstantsSlider, ShowsByTheCursorWhereTheThumbIs) {
    Free();
    EXPECT_TRUE(Hover(10, 1));
    EXPECT_EQ(PointerShape(), Cursor::SizeHorizontal);
    EXPECT_TRUE(Hover(40, 1));
    EXPECT_EQ(PointerShape(), Cursor::Arrow);
    EXPECT_TRUE(Hover(20, 2));
    EXPECT_EQ(PointerShape(), Cursor::SizeHorizontal);
    EXPECT_TRUE(Hover(20, 1));
    EXPECT_EQ(PointerShape(), Cursor::Arrow);
}

TEST_F(ConstantsSlider, IsTakenWithinATenthOfTheRange) {
    Free();
    Hover(18, 1);
    EXPECT_EQ(PointerShape(), Cursor::SizeHorizontal);
    Hover(19, 1);
    EXPECT_EQ(PointerShape(), Cursor::Arrow);
    Hover(2, 1);
    EXPECT_EQ(PointerShape(), Cursor::SizeHorizontal);
    Hover(1, 1);
    EXPECT_EQ(PointerShape(), Cursor::Arrow);
}

TEST_F(ConstantsSlider, IsNotThereOutsideTheDataCellsOfItsColumn) {
    Free();
    for (const CPoint cell : {CPoint{2, 1}, CPoint{1, 1}, CPoint{3, 0}, CPoint{3, 4}, CPoint{4, 1},
                              CPoint{0, 0}, CPoint{-1, -1}}) {
        Hover(10, 1);
        EXPECT_FALSE(Move(10, cell)) << cell.x << "," << cell.y;
        // Leaving has cleared the state, so that a press takes nothing.
        Press(1);
        Hover(50, 1);
        EXPECT_EQ(Value(1), "10");
    }
}

TEST_F(ConstantsSlider, KeepsTheCursorWhenThePointerLeavesItsColumn) {
    Free();
    Hover(10, 1);
    Move(10, {2, 1});
    EXPECT_EQ(PointerShape(), Cursor::SizeHorizontal);
}

TEST_F(ConstantsSlider, AnswersFalseOnARowWithoutAFactor) {
    Free();
    EXPECT_FALSE(Hover(10, 3));
}

TEST_F(ConstantsSlider, LeavesTheStateAloneOverAFactorThatMayNotBePlotted) {
    Free();
    Hover(10, 1);
    study.unavailable = {"B"};
    EXPECT_FALSE(Hover(70, 2));
    EXPECT_EQ(PointerShape(), Cursor::SizeHorizontal);
    // The state of the row before still stands.
    Press(1);
    study.unavailable.clear();
    Hover(30, 1);
    EXPECT_EQ(Value(1), "30");
}

struct ClosedRow {
    const char* label;
    CEType::EType kind;
    bool inPage;
    bool readOnly;
    bool filler;
    bool otherOnAxis;
    bool open;
};

void PrintTo(const ClosedRow& row, std::ostream* out) {
    *out << row.label;
}

class ClosedSliders : public GridTest, public testing::WithParamInterface<ClosedRow> {};

TEST_P(ClosedSliders, ShowAnArrowAndAreNotTaken) {
    const ClosedRow& row = GetParam();
    if (CEType::IsList(row.kind)) {
        study.Levels("F", {"0", "43", "86"}, row.kind);
    } else {
        study.Number("F", 0, 86, row.kind);
    }
    study.Part("Other", 0, 86);
    if (row.filler) {
        study.Filler("Rest", 0, 86);
    }
    Wish wish;
    wish.inPage = row.inPage;
    wish.readOnly = row.readOnly;
    wish.skipped = row.otherOnAxis ? std::set<std::string>{"Other"} : std::set<std::string>{};
    Make(wish);
    Grid().UpdateValue(2, 1, "43");
    desktop.SetCursor(row.open ? Cursor::Arrow : Cursor::SizeHorizontal);
    EXPECT_TRUE(Grid().MouseMove(PixelOf(43), {3, 1}, kCell));
    EXPECT_EQ(desktop.GetCursor(), row.open ? Cursor::SizeHorizontal : Cursor::Arrow);
    Grid().LButtonDown({}, {3, 1});
    Grid().MouseMove(PixelOf(60), {3, 1}, kCell);
    EXPECT_EQ(Grid().GetCellText(2, 1), row.open ? "60" : "43");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ClosedSliders,
    testing::Values(
        ClosedRow{"ANumber", CEType::Quantitative, false, false, false, false, true},
        ClosedRow{"ACovariate", CEType::Covariate, false, false, false, false, true},
        ClosedRow{"ReadOnly", CEType::Quantitative, false, true, false, false, false},
        ClosedRow{"ReadOnlyInAPage", CEType::Quantitative, true, true, false, false, false},
        ClosedRow{"Qualitative", CEType::Qualitative, false, false, false, false, false},
        ClosedRow{"Kind2", CEType::Multilevel, false, false, false, false, false},
        ClosedRow{"Kind6", CEType::Discrete, false, false, false, false, false},
        ClosedRow{"FreeFormulationWithoutFiller", CEType::Formulation, false, false, false, false,
                  false},
        ClosedRow{"FreeFormulationWithAFiller", CEType::Formulation, false, false, true, false,
                  true},
        ClosedRow{"FreeFormulationWithAnotherOnAnAxis", CEType::Formulation, false, false, true,
                  true, false},
        ClosedRow{"FormulationInAPage", CEType::Formulation, true, false, false, false, true},
        ClosedRow{"FormulationInAPageWithAnotherOnAnAxis", CEType::Formulation, true, false, true,
                  true, true},
        ClosedRow{"ANumberBesideAFormulationFactorOnAnAxis", CEType::Quantitative, false, false,
                  true, true, true}),
    testing::PrintToStringParamName());

TEST_F(ConstantsSlider, IsClosedOnTheRowOfAFactorThatIsHeldConstant) {
    Constant(*study.GetVariables()->GetFactor("A"));
    Free();
    EXPECT_TRUE(Hover(10, 1));
    EXPECT_EQ(PointerShape(), Cursor::Arrow);
    Press(1);
    Hover(50, 1);
    EXPECT_EQ(Value(1), "10");
}

TEST_F(ConstantsSlider, HasNoThumbWithoutLimitsOrForAValueOutsideThem) {
    Free();
    Grid().UpdateValue(2, 1, "-1");
    Hover(0, 1);
    EXPECT_EQ(PointerShape(), Cursor::Arrow);
    Grid().UpdateValue(2, 1, "87");
    Hover(86, 1);
    EXPECT_EQ(PointerShape(), Cursor::Arrow);
    Grid().UpdateValue(2, 1, "86");
    Hover(86, 1);
    EXPECT_EQ(PointerShape(), Cursor::SizeHorizontal);
    study.GetVariables()->GetFactor("A")->low = kNotSet;
    Hover(86, 1);
    EXPECT_EQ(PointerShape(), Cursor::Arrow);
}

TEST_F(ConstantsSlider, HasNoThumbWithoutAValue) {
    Free();
    Grid().UpdateValue(2, 1, "");
    Hover(0, 1);
    EXPECT_EQ(PointerShape(), Cursor::Arrow);
}

// Pressing.

TEST_F(ConstantsSlider, LetsTheWorksheetSelectTheCellThatIsPressed) {
    Free();
    EXPECT_FALSE(Press(1));
    Hover(10, 1);
    EXPECT_FALSE(Press(1));
    EXPECT_FALSE(Grid().LButtonDown({}, {2, 1}));
}

TEST_F(ConstantsSlider, IsNotTakenBesideTheThumb) {
    Free();
    Hover(60, 1);
    Press(1);
    Hover(50, 1);
    EXPECT_EQ(Value(1), "10");
    EXPECT_FALSE(Release(1));
    EXPECT_THAT(desktop.startedTimers, IsEmpty());
}

TEST_F(ConstantsSlider, LetsGoWhenItIsPressedBesideTheThumb) {
    Free();
    Take(1);
    Move(50, {3, 2});  // another row: the hover branch says that there is no thumb
    Press(2);
    EXPECT_FALSE(Release(2));
    Hover(30, 1);
    EXPECT_EQ(Value(1), "10");
}

TEST_F(ConstantsSlider, IgnoresAPressInAnotherColumn) {
    Free();
    Take(1);
    Grid().LButtonDown({}, {2, 1});
    Hover(30, 1);
    EXPECT_EQ(Value(1), "30");
}

// Dragging.

TEST_F(ConstantsSlider, WritesTheValueWhileItIsDragged) {
    InPage();
    Take(2);
    const ResetCounter counter(Window());
    EXPECT_TRUE(Hover(50, 2));
    EXPECT_EQ(Value(2), "50");
    EXPECT_EQ(Value(1), "10");
    EXPECT_EQ(PointerShape(), Cursor::SizeHorizontal);
    EXPECT_EQ(counter.resets, 1);
    EXPECT_EQ(page.changes, 0);
}

TEST_F(ConstantsSlider, TakesTheCellLessItsFrameWhereDrawingTakesTheWholeCell) {
    Free();
    Take(1);
    // The whole cell would give 41.9 and a bit.
    Grid().MouseMove({50, 10}, {3, 1}, kCell);
    EXPECT_EQ(Value(1), "42");
    RecordingCanvas canvas;
    Grid().GetCellRenderer(3, 1)->DrawCell(canvas, Grid(), 3, 1, kCell);
    EXPECT_THAT(canvas.calls, testing::Contains("line 7,5 7,17 0000FF"));
    EXPECT_THAT(canvas.calls, testing::Contains("line 95,5 95,17 0000FF"));
}

TEST_F(ConstantsSlider, ShowsSixDigits) {
    FactorClass& factor = *study.GetVariables()->GetFactor("A");
    factor.high = 1.0 / 3.0;
    Free();
    Grid().UpdateValue(2, 1, "0.3");
    Hover(77, 1);
    Press(1);
    Hover(43, 1);
    EXPECT_EQ(Value(1), "0.166667");
}

TEST_F(ConstantsSlider, StopsAtTheLimits) {
    Free();
    Take(1);
    Hover(87, 1);
    EXPECT_EQ(Value(1), "86");
    Hover(2000, 1);
    EXPECT_EQ(Value(1), "86");
    Hover(-1, 1);
    EXPECT_EQ(Value(1), "0");
    Hover(86, 1);
    EXPECT_EQ(Value(1), "86");
    Hover(0, 1);
    EXPECT_EQ(Value(1), "0");
}

TEST_F(ConstantsSlider, WritesALimitWithSixDigits) {
    FactorClass& factor = *study.GetVariables()->GetFactor("A");
    factor.low = 1.23456789;
    factor.high = 86.7654321;
    Free();
    Take(1);
    Hover(200, 1);
    EXPECT_EQ(Value(1), "86.7654");
    Hover(-200, 1);
    EXPECT_EQ(Value(1), "1.23457");
}

TEST_F(ConstantsSlider, EmptiesTheCellAtTheSentinel) {
    FactorClass& factor = *study.GetVariables()->GetFactor("A");
    factor.low = -100;
    factor.high = -14;
    Free();
    Grid().UpdateValue(2, 1, "-90");
    Hover(10, 1);
    Press(1);
    Hover(1, 1);
    EXPECT_EQ(Value(1), "");
    Hover(2, 1);
    EXPECT_EQ(Value(1), "-98");
}

TEST_F(ConstantsSlider, ChangesNothingAndGoesOnInAnotherRowOfItsColumn) {
    Free();
    Take(1);
    EXPECT_TRUE(Hover(60, 2));
    EXPECT_EQ(Value(1), "10");
    EXPECT_EQ(Value(2), "20");
    EXPECT_EQ(PointerShape(), Cursor::Arrow);
    Hover(60, 1);
    EXPECT_EQ(Value(1), "60");
    EXPECT_TRUE(Release(1));
}

TEST_F(ConstantsSlider, StandsStillOverAnotherRowWithoutAFactor) {
    Free();
    Take(1);
    EXPECT_FALSE(Hover(60, 3));
    Hover(60, 1);
    EXPECT_EQ(Value(1), "60");
}

// Leaving the column.

TEST_F(ConstantsSlider, EndsThroughTheFirstRowWhenTheDragLeavesTheColumn) {
    Free();
    Take(2);
    Hover(50, 2);
    desktop.clock.Advance(100);  // what is pushed last is row 2's 50
    Grid().UpdateValue(2, 1, "11");
    EXPECT_TRUE(Move(50, {2, 2}));
    EXPECT_EQ(Value(2), "50");
    EXPECT_EQ(Value(1), "11");
    // It has ended.
    EXPECT_FALSE(Release(2));
    Hover(30, 2);
    EXPECT_EQ(Value(2), "50");
}

TEST_F(ConstantsSlider, MarksThePageForTheTextOfTheFirstRowWhenTheDragLeaves) {
    InPage();
    Take(2);
    Hover(50, 2);
    Move(50, {2, 2});
    EXPECT_EQ(page.changes, 1);
    // The first row holds what was pushed last, which is nothing: there is no change.
    Take(2);
    Grid().UpdateValue(2, 2, "20");
    Take(2);
    Grid().UpdateValue(2, 1, "");
    Move(50, {1, 2});
    EXPECT_EQ(page.changes, 1);
    EXPECT_FALSE(Release(2));
}

TEST_F(ConstantsSlider, ChecksTheFirstRowWhenTheDragLeaves) {
    Free();
    Take(2);
    Hover(50, 2);
    Grid().UpdateValue(2, 1, "900");
    Move(50, {3, 0});
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_THAT(Boxes().front(), testing::HasSubstr("\n\nA = 900\n\n"));
}

TEST_F(ConstantsSlider, GoesOnWhenItLeavesAndTheFirstRowMayNotBePlotted) {
    Free();
    Take(2);
    study.unavailable = {"A"};
    EXPECT_FALSE(Move(50, {2, 2}));
    Hover(50, 2);
    EXPECT_EQ(Value(2), "50");
    EXPECT_TRUE(Release(2));
}

TEST_F(ConstantsSlider, LooksForTheThumbOfTheFirstRowWhenItLeaves) {
    Free();
    Take(2);
    Move(10, {2, 2});  // the pixel of row 1's thumb
    EXPECT_EQ(PointerShape(), Cursor::SizeHorizontal);
    // So a press takes the thumb at once.
    Press(1);
    Hover(30, 1);
    EXPECT_EQ(Value(1), "30");
}

// Letting go.

TEST_F(ConstantsSlider, IgnoresAReleaseInAnotherColumnOrWithoutADrag) {
    InPage();
    EXPECT_FALSE(Release(1));
    Take(1);
    Hover(50, 1);
    EXPECT_FALSE(Grid().LButtonUp({}, {2, 1}));
    EXPECT_EQ(page.changes, 0);
    EXPECT_TRUE(Release(1));
    EXPECT_FALSE(Release(1));
}

TEST_F(ConstantsSlider, MarksThePageWhenItIsLetGo) {
    InPage();
    Take(1);
    Hover(50, 1);
    EXPECT_TRUE(Release(1));
    EXPECT_EQ(page.changes, 1);
    EXPECT_THAT(Stored(), ElementsAre("A = 10 (CUSTOM)", "B = 20 (CUSTOM)"));
    Hover(60, 1);
    EXPECT_EQ(Value(1), "50");
}

TEST_F(ConstantsSlider, MarksThePageAlsoWhenItWasNotMoved) {
    InPage();
    Take(1);
    EXPECT_TRUE(Release(1));
    EXPECT_EQ(page.changes, 1);
}

TEST_F(ConstantsSlider, TakesEffectWithoutAPageWhenItIsLetGo) {
    Free();
    Take(1);
    Hover(86, 1);
    Grid().UpdateValue(2, 1, "87");
    const ResetCounter counter(Window());
    EXPECT_TRUE(Release(1));
    EXPECT_EQ(counter.resets, 1);
    EXPECT_EQ(Value(1), "87");
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_THAT(Boxes().front(), testing::HasSubstr("\n\nA = 87\n\n"));
}

TEST_F(ConstantsSlider, ChecksTheReleasedRowAlone) {
    Free();
    Grid().UpdateValue(2, 2, "900");
    Take(1);
    Hover(50, 1);
    Release(1);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConstantsSlider, ComparesTheRowInWhichItIsLetGo) {
    InPage();
    Take(1);
    Hover(50, 1);
    Grid().UpdateValue(2, 2, "");
    EXPECT_TRUE(Release(2));
    EXPECT_EQ(page.changes, 0);
}

TEST_F(ConstantsSlider, AddsNothingWhenWhatWasPushedLastIsCurrent) {
    Free();
    Take(1);
    Hover(50, 1);
    const ResetCounter counter(Window());
    desktop.clock.Advance(100);
    EXPECT_EQ(counter.resets, 1);
    EXPECT_TRUE(Release(1));
    EXPECT_EQ(counter.resets, 1);
}

// The timer.

TEST_F(ConstantsSlider, StartsItsTimerAfreshWithEachMove) {
    InPage();
    Take(1);
    Hover(30, 1);
    desktop.clock.Advance(60);
    Hover(40, 1);
    desktop.clock.Advance(60);
    EXPECT_EQ(page.changes, 0);
    desktop.clock.Advance(39);
    EXPECT_EQ(page.changes, 0);
    desktop.clock.Advance(1);
    EXPECT_EQ(page.changes, 1);
    EXPECT_THAT(desktop.startedTimers, ElementsAre(100U, 100U));
    const auto stops = [&] {
        return std::count(desktop.log.Lines().begin(), desktop.log.Lines().end(), "timer stopped");
    };
    EXPECT_EQ(stops(), 2);  // the second move's, and the callback's
    desktop.clock.Advance(1000);
    EXPECT_EQ(page.changes, 1);
    EXPECT_FALSE(desktop.clock.IsRunning(&Grid()));
}

TEST_F(ConstantsSlider, HasATimerOfItsOwn) {
    Free();
    Take(1);
    Hover(30, 1);
    EXPECT_TRUE(desktop.clock.IsRunning(&Grid()));
}

TEST_F(ConstantsSlider, StartsNoTimerByHovering) {
    InPage();
    Hover(10, 1);
    Take(1);
    Hover(60, 2);
    EXPECT_THAT(desktop.startedTimers, IsEmpty());
}

TEST_F(ConstantsSlider, PushesWhatItShowsWhenTheDragPauses) {
    Free();
    Take(2);
    Hover(50, 2);
    const ResetCounter counter(Window());
    desktop.clock.Advance(100);
    EXPECT_EQ(counter.resets, 1);
    Hover(60, 2);
    EXPECT_EQ(counter.resets, 2);
    desktop.clock.Advance(100);
    EXPECT_EQ(counter.resets, 3);
    EXPECT_EQ(Value(2), "60");
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConstantsSlider, ChecksTheDraggedRowWhenTheDragPauses) {
    FactorClass& factor = *study.GetVariables()->GetFactor("B");
    Free();
    Take(2);
    Hover(86, 2);
    factor.high = 80;
    desktop.clock.Advance(100);
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_THAT(Boxes().front(), testing::HasSubstr("\n\nB = 86\n\n"));
}

TEST_F(ConstantsSlider, LeavesThePlotAloneWhileSlidingWhenToldTo) {
    InPage();
    Grid().SetUpdatePlotWhileSliding(false);
    Take(1);
    Hover(50, 1);
    desktop.clock.Advance(500);
    EXPECT_EQ(page.changes, 0);
    EXPECT_FALSE(desktop.clock.IsRunning(&Grid()));
    EXPECT_TRUE(Release(1));
    EXPECT_EQ(page.changes, 1);
}

TEST_F(ConstantsSlider, DoesNothingWithoutAPageWhenTheTimerComesAfterTheRelease) {
    Free();
    Take(1);
    Hover(50, 1);
    Release(1);
    const ResetCounter counter(Window());
    desktop.clock.Advance(100);
    EXPECT_EQ(counter.resets, 0);
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConstantsSlider, JudgesNoSumWhenTheTimerComesAfterTheRelease) {
    study.Part("P", 0, 86);
    study.Filler("Rest");
    Free();
    Grid().UpdateValue(2, 3, "10");
    Hover(10, 3);
    Press(3);
    Hover(50, 3);
    Release(3);
    ASSERT_EQ(desktop.boxes.size(), 1U);
    desktop.clock.Advance(100);
    EXPECT_EQ(desktop.boxes.size(), 1U);
}

TEST_F(ConstantsSlider, MarksThePageAlsoWhenTheTimerComesAfterTheRelease) {
    InPage();
    Take(1);
    Hover(50, 1);
    Release(1);
    page.Unchanged();
    desktop.clock.Advance(100);
    EXPECT_EQ(page.changes, 2);
    EXPECT_TRUE(page.IsChanged());
}

TEST_F(ConstantsSlider, TakesItsTimerAlong) {
    std::array<FactorConstants::Constant, 8> own;
    {
        VWSConstantInterface grid(&page, &study, 2, nullptr, own.data(), axes, false);
        grid.UpdateInterface();
        grid.UpdateValue(2, 1, "10");
        grid.MouseMove(PixelOf(10), {3, 1}, kCell);
        grid.LButtonDown({}, {3, 1});
        grid.MouseMove(PixelOf(50), {3, 1}, kCell);
        EXPECT_TRUE(desktop.clock.IsRunning(&grid));
    }
    desktop.clock.Advance(1000);
    EXPECT_EQ(page.changes, 0);
}

TEST_F(ConstantsSlider, MarksAPageOrPushesAtOnce) {
    InPage();
    Grid().UpdateFromSlider();
    EXPECT_EQ(page.changes, 1);
    Grid().SetParent(nullptr);
    Grid().UpdateFromSlider();
    EXPECT_EQ(page.changes, 1);
    Take(1);
    Hover(50, 1);
    const ResetCounter counter(Window());
    Grid().UpdateFromSlider();
    EXPECT_EQ(counter.resets, 1);
    EXPECT_TRUE(Release(1));
    EXPECT_EQ(counter.resets, 1);
}

}  // namespace
}  // namespace kvopt::test
