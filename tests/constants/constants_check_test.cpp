// What the grid finds fault with, and how it says so.

#include <ostream>

#include "constants/grid_test.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kHead =
    "The following constant settings are missing or outside the recommended range:\n\n";
const std::string kQuestion = "\nDo you still want to use these settings?";
const std::string kTooHigh = "The sum of all constant formulation factors can not exceed 1.";
const std::string kTooLow = "The sum of all formulation factors should be 1.";

/// The texts of the boxes with their styles, as "64 text".
Texts BoxesOf(const SheetDesktop& desktop) {
    Texts texts;
    for (const SheetDesktop::Box& box : desktop.boxes) {
        texts.push_back(std::to_string(box.style) + " " + box.text);
    }
    return texts;
}

class ConstantsCheck : public GridTest {
protected:
    bool Check() { return Grid().CheckInterfaceValues(-1, -1, nullptr); }
    void Put(int row, const std::string& value) { Grid().UpdateValue(2, row, value.c_str()); }
    static std::string Report(const std::string& lines) {
        return "68 " + kHead + lines + kQuestion;
    }
    Texts Boxes() const { return BoxesOf(desktop); }
    /// The last of them; empty without one.
    std::string LastBox() const { return Boxes().empty() ? std::string() : Boxes().back(); }
};

// The report.

TEST_F(ConstantsCheck, SaysNothingWhenAllIsWell) {
    study.Number("A", 0, 10);
    study.Names("Colour", {"red", "green"});
    study.Levels("Level", {"1", "2"});
    Free();
    EXPECT_TRUE(Check());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConstantsCheck, ListsWhatIsMissingOrDoubtfulInOneQuestion) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 10);
    study.Number("C", 0, 10);
    study.Number("D", 0, 10);
    Wish wish;
    wish.rows = 4;
    Make(wish);
    Put(1, "11");
    Put(2, "");
    Put(4, "much");
    desktop.answers = {BoxAnswer::Yes};
    EXPECT_TRUE(Check());
    EXPECT_THAT(Boxes(), ElementsAre(Report("A = 11\nB = Missing\nD = much\n")));
}

TEST_F(ConstantsCheck, IsOverruledByYesAlone) {
    study.Number("A", 0, 10);
    Free();
    Put(1, "11");
    desktop.answers = {BoxAnswer::Yes, BoxAnswer::No, BoxAnswer::Cancel, BoxAnswer::Ok};
    EXPECT_TRUE(Check());
    EXPECT_FALSE(Check());
    EXPECT_FALSE(Check());
    EXPECT_FALSE(Check());
    EXPECT_EQ(desktop.boxes.size(), 4U);
}

TEST_F(ConstantsCheck, AsksInFrontOfItsPageOrElseOfItsWindow) {
    study.Part("P");
    InPage();
    Put(1, "1.5");
    Check();
    Free();
    Put(1, "1.5");
    CWnd& window = *Window().GetTopLevelParent();
    Check();
    EXPECT_THAT(desktop.boxOwners, ElementsAre(&page, &page, &window, &window));
}

TEST_F(ConstantsCheck, TrimsTheValuesItReports) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 10);
    Free();
    Put(1, " \t11 x\r\n");
    Put(2, " \t ");
    EXPECT_FALSE(Check());
    EXPECT_THAT(Boxes(), ElementsAre(Report("A = 11 x\nB = Missing\n")));
}

TEST_F(ConstantsCheck, AcceptsBlanksAroundALegalValue) {
    study.Number("A", 0, 10);
    Free();
    Put(1, " 10 ");
    EXPECT_TRUE(Check());
}

TEST_F(ConstantsCheck, NamesFactorsAsTheyAreCalled) {
    study.Number("100 %d %1% of Öl", 0, 10);
    Free();
    Put(1, "50 %s");
    EXPECT_FALSE(Check());
    EXPECT_THAT(Boxes(), ElementsAre(Report("100 %d %1% of Öl = 50 %s\n")));
}

TEST_F(ConstantsCheck, ExemptsQualitativeFactors) {
    study.Names("Colour", {"red", "green"});
    study.Names("Shape", {"flat", "round"});
    Free();
    Put(1, "no colour");
    Put(2, "");
    EXPECT_TRUE(Check());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConstantsCheck, JudgesLevelsByTheirRange) {
    study.Levels("Two", {"1", "2"});
    study.Levels("Six", {"1", "2"}, CEType::Discrete);
    study.Number("Seven", 1, 2, CEType::Covariate);
    Free();
    Put(1, "3");
    Put(2, "0");
    Put(3, "5");
    EXPECT_FALSE(Check());
    EXPECT_THAT(Boxes(), ElementsAre(Report("Two = 3\nSix = 0\nSeven = 5\n")));
}

TEST_F(ConstantsCheck, ReportsAConstantThatIsNotSetAsMissing) {
    study.Number("A", kNotSet, kNotSet);
    Free();
    EXPECT_FALSE(Check());
    EXPECT_THAT(Boxes(), ElementsAre(Report("A = Missing\n")));
}

TEST_F(ConstantsCheck, JudgesTheRowAskedForAlone) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 10);
    study.Number("C", 0, 10);
    Free();
    for (const int row : {1, 2, 3}) {
        Put(row, "11");
    }
    EXPECT_FALSE(Grid().CheckInterfaceValues(2, -1, nullptr));
    EXPECT_THAT(Boxes(), ElementsAre(Report("B = 11\n")));
}

TEST_F(ConstantsCheck, PassesOverRowsThatNameNoFactor) {
    study.Number("A", 0, 10);
    Free();
    Put(2, "1e9");
    Grid().UpdateValue(1, 3, "Unknown");
    Put(3, "1e9");
    EXPECT_TRUE(Check());
    EXPECT_TRUE(Grid().CheckInterfaceValues(99, -1, nullptr));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConstantsCheck, JudgesRowsBeyondTheLastFactorToo) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 10);
    Free();
    Put(2, "11");
    Grid().SaveInterfaceValues();
    Chooser().skipped = {"A", "B"};
    Grid().UpdateInterface();
    EXPECT_FALSE(Check());
    EXPECT_THAT(Boxes(), ElementsAre(Report("B = 11\n")));
}

TEST_F(ConstantsCheck, SaysNothingWhenAnOpenEditorHoldsNoNumber) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 10);
    Free();
    Put(2, "11");
    ASSERT_TRUE(Window().UserBeginEdit({2, 1}));
    Window().UserEdit("abc");
    EXPECT_FALSE(Check());
    EXPECT_THAT(Boxes(), IsEmpty());
    EXPECT_TRUE(Window().EditedCell().has_value());
}

TEST_F(ConstantsCheck, JudgesTheCellAndNotItsOpenEditor) {
    study.Number("A", 0, 10);
    Free();
    ASSERT_TRUE(Window().UserBeginEdit({2, 1}));
    Window().UserEdit("11");
    EXPECT_TRUE(Check());
    EXPECT_EQ(Grid().GetCellText(2, 1), "5");
}

TEST_F(ConstantsCheck, ChangesNothing) {
    study.Number("A", 0, 10);
    InPage();
    Put(1, "11");
    EXPECT_FALSE(Check());
    desktop.answers = {BoxAnswer::Yes};
    EXPECT_TRUE(Check());
    EXPECT_THAT(Stored(), ElementsAre("A = 5 (REF)"));
    EXPECT_EQ(Grid().GetCellText(2, 1), "11");
    EXPECT_EQ(page.changes, 0);
}

// A text that stands in for a cell.

TEST_F(ConstantsCheck, JudgesAValueBeforeItLands) {
    study.Number("A", 0, 10);
    Free();
    EXPECT_FALSE(Grid().CheckInterfaceValues(1, 2, "11"));
    EXPECT_THAT(Boxes(), ElementsAre(Report("A = 11\n")));
    EXPECT_FALSE(Grid().CheckInterfaceValues(1, 2, ""));
    EXPECT_EQ(LastBox(), Report("A = Missing\n"));
    Put(1, "11");
    EXPECT_TRUE(Grid().CheckInterfaceValues(1, 2, "9"));
    EXPECT_EQ(desktop.boxes.size(), 2U);
}

TEST_F(ConstantsCheck, JudgesANameBeforeItLands) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 1);
    Free();
    EXPECT_FALSE(Grid().CheckInterfaceValues(1, 1, "B"));
    EXPECT_THAT(Boxes(), ElementsAre(Report("B = 5\n")));
    Put(1, "11");
    EXPECT_TRUE(Grid().CheckInterfaceValues(1, 1, "Unknown"));
    EXPECT_TRUE(Grid().CheckInterfaceValues(1, 1, ""));
}

TEST_F(ConstantsCheck, LetsATextStandInForNoOtherColumn) {
    study.Number("A", 0, 10);
    Free();
    EXPECT_TRUE(Grid().CheckInterfaceValues(1, 3, "11"));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConstantsCheck, LetsATextStandInForEveryRowWhenAllAreAskedFor) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 100);
    study.Part("P", 0, 100);
    study.Part("Q", 0, 100);
    Wish wish;
    wish.rows = 4;
    Make(wish);
    Put(3, "0.5");
    Put(4, "0.5");
    EXPECT_FALSE(Grid().CheckInterfaceValues(-1, 2, "50"));
    // The sum takes the cells as they are.
    EXPECT_THAT(Boxes(), ElementsAre(Report("A = 50\n")));
}

// The sum of the formulation factors.

struct SumRow {
    const char* label;
    Texts values;  ///< of three formulation factors; "-" for one without a row
    bool filler;
    Texts boxes;
};

void PrintTo(const SumRow& row, std::ostream* out) {
    *out << row.label;
}

class FormulationSum : public GridTest, public testing::WithParamInterface<SumRow> {};

TEST_P(FormulationSum, IsJudgedAgainstOne) {
    const char* const names[] = {"P", "Q", "R"};
    Wish wish;
    wish.inPage = true;
    for (std::size_t i = 0; i < GetParam().values.size(); ++i) {
        study.Part(names[i], -1000, 1000);
        if (GetParam().values[i] == "-") {
            wish.skipped.insert(names[i]);
        }
    }
    if (GetParam().filler) {
        study.Filler("Rest");
    }
    Make(wish);
    int row = 1;
    for (const std::string& value : GetParam().values) {
        if (value != "-") {
            Grid().UpdateValue(2, row++, value.c_str());
        }
    }
    desktop.answers = {BoxAnswer::Yes};
    const bool judged = Grid().CheckInterfaceValues(-1, -1, nullptr);
    EXPECT_THAT(BoxesOf(desktop), testing::ElementsAreArray(GetParam().boxes));
    const bool refused = !GetParam().boxes.empty() && GetParam().boxes.back().starts_with("64");
    EXPECT_EQ(judged, !refused);
}

const std::string kBoxHigh = "64 " + kTooHigh;
const std::string kBoxLow = "64 " + kTooLow;
const std::string kMissingR = "68 " + kHead + "R = Missing\n" + kQuestion;
const std::string kNoNumberR = "68 " + kHead + "R = some\n" + kQuestion;

INSTANTIATE_TEST_SUITE_P(
    Tolerance, FormulationSum,
    testing::Values(SumRow{"One", {"0.5", "0.25", "0.25"}, false, {}},
                    SumRow{"1_0001", {"0.5", "0.25", "0.2501"}, false, {}},
                    SumRow{"1_00019", {"0.5", "0.25", "0.25019"}, false, {}},
                    SumRow{"1_00021", {"0.5", "0.25", "0.25021"}, false, {kBoxHigh}},
                    SumRow{"1_001", {"0.5", "0.25", "0.251"}, false, {kBoxHigh}},
                    SumRow{"0_9999", {"0.5", "0.25", "0.2499"}, false, {}},
                    SumRow{"0_99981", {"0.5", "0.25", "0.24981"}, false, {}},
                    SumRow{"0_99979", {"0.5", "0.25", "0.24979"}, false, {kBoxLow}},
                    SumRow{"0_999", {"0.5", "0.25", "0.249"}, false, {kBoxLow}},
                    SumRow{"Nine", {"3", "3", "3"}, false, {kBoxHigh}},
                    SumRow{"Zero", {"0", "0", "0"}, false, {kBoxLow}},
                    SumRow{"FarBelowZero", {"-300", "-300", "-400"}, false, {kBoxLow}}),
    testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(
    Counts, FormulationSum,
    testing::Values(SumRow{"TwoOfThree", {"0.2", "0.2", "-"}, false, {}},
                    SumRow{"TwoOfThreeTooHigh", {"0.8", "0.8", "-"}, false, {kBoxHigh}},
                    SumRow{"NoneOfThree", {"-", "-", "-"}, false, {}},
                    SumRow{"ThreeAndAFiller", {"0.2", "0.2", "0.2"}, true, {}},
                    SumRow{"ThreeAndAFillerTooHigh", {"0.5", "0.5", "0.5"}, true, {kBoxHigh}},
                    SumRow{"OneIsMissing", {"0.2", "0.2", ""}, false, {kMissingR}},
                    SumRow{"OneIsNoNumber", {"0.2", "0.2", "some"}, false, {kNoNumberR}},
                    SumRow{"OneIsMissingTooHigh", {"0.8", "0.8", ""}, false, {kMissingR, kBoxHigh}},
                    // A sum that is -99 counts as not begun, so the next value replaces it.
                    SumRow{"TheSentinelIsNoPartOfTheSum", {"-99", "0.5", "0.5"}, false, {}},
                    SumRow{"TheSentinelCountsAsOne", {"-99", "0.2", "0.2"}, false, {kBoxLow}},
                    SumRow{"TheSentinelAlone", {"-99", "-", "-"}, false, {}},
                    SumRow{"BlanksAround", {" 0.8 ", "0.8\t", "0"}, false, {kBoxHigh}}),
    testing::PrintToStringParamName());

TEST_F(ConstantsCheck, AddsFormulationFactorsAlone) {
    study.Number("A", 0, 10);
    study.Part("P");
    study.Part("Q");
    Free();
    Put(1, "7");
    Put(2, "0.5");
    Put(3, "0.5");
    EXPECT_TRUE(Check());
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConstantsCheck, KnowsNoSumWithoutFormulationFactors) {
    study.Number("A", 0, 10);
    Free();
    Put(1, "7");
    EXPECT_TRUE(Check());
}

TEST_F(ConstantsCheck, KnowsNoSumWithoutRows) {
    study.Part("P");
    VWSConstantInterface grid(nullptr, &study, 0, nullptr, constants.data(), axes, false);
    EXPECT_TRUE(grid.CheckInterfaceValues(-1, -1, nullptr));
    EXPECT_THAT(Boxes(), IsEmpty());
}

TEST_F(ConstantsCheck, AddsAllRowsWhicheverRowIsAskedFor) {
    study.Part("P", 0, 2);
    study.Part("Q", 0, 2);
    study.Number("A", 0, 10);
    Free();
    Put(1, "0.8");
    Put(2, "0.8");
    EXPECT_FALSE(Grid().CheckInterfaceValues(3, -1, nullptr));
    EXPECT_THAT(Boxes(), ElementsAre(kBoxHigh));
}

TEST_F(ConstantsCheck, AddsTheTextThatStandsInForTheRowAskedFor) {
    study.Part("P", 0, 2);
    study.Part("Q", 0, 2);
    Free();
    Put(1, "0.5");
    Put(2, "0.5");
    EXPECT_FALSE(Grid().CheckInterfaceValues(2, 2, "0.7"));
    EXPECT_FALSE(Grid().CheckInterfaceValues(1, 2, "0.3"));
    EXPECT_THAT(Boxes(), ElementsAre(kBoxHigh, kBoxLow));
    EXPECT_TRUE(Grid().CheckInterfaceValues(2, 3, "0.7"));
}

TEST_F(ConstantsCheck, AddsRowsBeyondTheLastFactorToo) {
    study.Part("P", 0, 2);
    study.Part("Q", 0, 2);
    Wish wish;
    wish.inPage = true;
    Make(wish);
    Put(1, "0.4");
    Put(2, "0.6");
    Grid().SaveInterfaceValues();
    Chooser().skipped = {"P"};
    Grid().UpdateInterface();
    ASSERT_THAT(Rows(), ElementsAre("Q=0.6", "Q=0.6", "="));
    EXPECT_FALSE(Check());
    EXPECT_THAT(Boxes(), ElementsAre(kBoxHigh));
}

TEST_F(ConstantsCheck, TellsOfTheSumAlsoAfterANo) {
    study.Number("A", 0, 10);
    study.Part("P", 0, 2);
    study.Part("Q", 0, 2);
    Free();
    Put(1, "11");
    Put(2, "0.8");
    Put(3, "0.8");
    desktop.answers = {BoxAnswer::No};
    EXPECT_FALSE(Check());
    EXPECT_THAT(Boxes(), ElementsAre(Report("A = 11\n"), kBoxHigh));
    Put(3, "0.1");
    desktop.answers = {BoxAnswer::No};
    EXPECT_FALSE(Check());
    EXPECT_EQ(LastBox(), kBoxLow);
}

TEST_F(ConstantsCheck, RefusesAWrongSumAlsoAfterAYes) {
    study.Part("P");
    study.Part("Q");
    Free();
    Put(1, "1.5");
    Put(2, "0.1");
    desktop.answers = {BoxAnswer::Yes, BoxAnswer::Ok};
    EXPECT_FALSE(Check());
    EXPECT_THAT(Boxes(), ElementsAre(Report("P = 1.5\n"), kBoxHigh));
}

TEST_F(ConstantsCheck, StaysRefusedAfterANoWithASumOfOne) {
    study.Number("A", 0, 10);
    study.Part("P");
    Free();
    Put(1, "11");
    Put(2, "1");
    EXPECT_FALSE(Check());
    EXPECT_EQ(desktop.boxes.size(), 1U);
}

TEST_F(ConstantsCheck, AddsInSinglePrecision) {
    // The sum is 1.00019999; the nearest float is beyond the tolerance.
    study.Part("P");
    study.Part("Q");
    Free();
    Put(1, "0.500001");
    Put(2, "0.50019899");
    EXPECT_FALSE(Check());
    EXPECT_THAT(Boxes(), ElementsAre(kBoxHigh));
}

}  // namespace
}  // namespace kvopt::test
