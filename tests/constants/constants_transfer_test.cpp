// Values from the constants to the grid and back.

#include <ostream>

#include "axes/axes_study.h"
#include "constants/grid_test.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ConstantsTransfer : public GridTest {};

// To the grid.

TEST_F(ConstantsTransfer, ShowsANumberWithSixDigits) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 1e7);
    study.Number("C", 0, 1);
    Store("A", 0.123456789);
    Store("B", 1234567.0);
    Store("C", 1e-7);
    Free();
    EXPECT_THAT(Rows(), ElementsAre("A=0.123457", "B=1.23457e+06", "C=1e-07"));
    EXPECT_THAT(Stored(),
                ElementsAre("A = 0.123456789 (CUSTOM)", "B = 1234567 (CUSTOM)", "C = 1e-07 (LOW)"));
}

TEST_F(ConstantsTransfer, RefreshesThePositionFromTheTextShown) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 10);
    Store("A", 10.0, FactorConstants::LOW);
    Store("B", 10.0000001, FactorConstants::LOW);
    VWSConstantInterface& grid = Free();
    EXPECT_EQ(grid.SetFactorConstantValue(2, 1, "A"), FactorConstants::HIGH);
    EXPECT_EQ(grid.SetFactorConstantValue(2, 2, "B"), FactorConstants::HIGH);
    EXPECT_THAT(Stored(), ElementsAre("A = 10 (HIGH)", "B = 10.0000001 (HIGH)"));
    constants[0].FloatValue(3.0);
    EXPECT_EQ(grid.SetFactorConstantValue(2, 1, "A"), FactorConstants::CUSTOM);
    EXPECT_THAT(Rows(), ElementsAre("A=3", "B=10", "="));
}

TEST_F(ConstantsTransfer, ShowsAValueThatIsNotSetAsAnEmptyCell) {
    study.Number("A", 0, 10);
    Store("A", kNotSet, FactorConstants::REF);
    VWSConstantInterface& grid = Free();
    EXPECT_THAT(Rows(), ElementsAre("A=", "=", "="));
    EXPECT_EQ(grid.SetFactorConstantValue(2, 1, "A"), FactorConstants::NO_SETTING);
    EXPECT_THAT(Stored(), ElementsAre("A = -99 (NO_SETTING)"));
}

TEST_F(ConstantsTransfer, ShowsTheSettingOfAQualitativeFactor) {
    study.Names("Colour", {"red", "green", "blue"});
    Store("Colour", "blue");
    VWSConstantInterface& grid = Free();
    EXPECT_THAT(Rows(), ElementsAre("Colour=blue", "=", "="));
    EXPECT_EQ(grid.SetFactorConstantValue(2, 1, "Colour"), FactorConstants::HIGH);
}

TEST_F(ConstantsTransfer, ShowsALevelByItsNumber) {
    study.Levels("Two", {"1", "2", "4"});
    study.Levels("Six", {"1", "2", "4"}, CEType::Discrete);
    Store("Two", 4.0);
    Store("Six", 2.0);
    Free();
    EXPECT_THAT(Rows(), ElementsAre("Two=4", "Six=2", "="));
}

TEST_F(ConstantsTransfer, AddsTheCenterOfAFactorThatHasNoConstant) {
    study.Number("A", 0, 10);
    study.Names("Colour", {"red", "green", "blue"});
    study.Levels("Level", {"1", "2", "8"});
    VWSConstantInterface& grid = Free();
    EXPECT_THAT(Rows(), ElementsAre("A=5", "Colour=green", "Level=2"));
    EXPECT_THAT(Stored(), ElementsAre("A = 5 (REF)", "Colour = green (REF)", "Level = 2 (REF)"));
    study.Number("Late", 0, 4);
    EXPECT_EQ(grid.SetFactorConstantValue(2, 3, "Late"), FactorConstants::REF);
    EXPECT_EQ(grid.GetCellText(2, 3), "2");
}

TEST_F(ConstantsTransfer, AddsTheCenterAsAFloat) {
    study.Number("A", 0, 0.2);
    Free();
    EXPECT_THAT(Rows(), ElementsAre("A=0.1", "=", "="));
    EXPECT_EQ(constants[0].FloatValue(), static_cast<double>(0.1F));
}

TEST_F(ConstantsTransfer, AddsWhatIsNotSetWithItsEmptyCell) {
    study.Number("A", kNotSet, kNotSet);
    Free();
    EXPECT_THAT(Rows(), ElementsAre("A=", "=", "="));
    EXPECT_THAT(Stored(), ElementsAre("A = -99 (REF)"));
}

TEST_F(ConstantsTransfer, EmptiesTheCellOfACenterThatIsTheSentinel) {
    study.Number("A", -100, -98);
    Free();
    EXPECT_THAT(Rows(), ElementsAre("A=", "=", "="));
    EXPECT_THAT(Stored(), ElementsAre("A = -99 (REF)"));
}

TEST_F(ConstantsTransfer, StartsRandomBlocksWithRandom) {
    study.Block(3);
    SetFixedEffect(0);
    Free();
    EXPECT_THAT(Rows(), ElementsAre("$BlockV=Random", "=", "="));
    EXPECT_THAT(Stored(), ElementsAre("$BlockV = Random (REF)"));
}

TEST_F(ConstantsTransfer, KeepsABlockThatWasChosenBefore) {
    study.Block(3);
    SetFixedEffect(0);
    Store("$BlockV", "3");
    Free();
    EXPECT_THAT(Rows(), ElementsAre("$BlockV=3", "=", "="));
}

TEST_F(ConstantsTransfer, EditsTheArrayThatItWasGivenLast) {
    study.Number("A", 0, 10);
    Free();
    std::array<FactorConstants::Constant, 4> others;
    others[0] = {"A", 8.0, FactorConstants::CUSTOM};
    Grid().SetConstants(others.data());
    Grid().UpdateInterface();
    EXPECT_THAT(Rows(), ElementsAre("A=8", "=", "="));
    Grid().UserChangedData(2, 1, "2");
    Grid().SaveInterfaceValues();
    EXPECT_EQ(others[0].FloatValue(), 2.0);
    EXPECT_THAT(Stored(), ElementsAre("A = 5 (REF)"));
}

// To the constants.

TEST_F(ConstantsTransfer, StoresANumberThatWasReadAsAFloat) {
    study.Number("A", 0, 10);
    Free();
    Grid().UserChangedData(2, 1, " 0.1 ");
    Grid().GetFactorConstantValue(2, 1, "A");
    EXPECT_EQ(constants[0].FloatValue(), static_cast<double>(0.1F));
    EXPECT_EQ(constants[0].SettingPos(), FactorConstants::CUSTOM);
    Grid().UserChangedData(2, 1, "10");
    Grid().GetFactorConstantValue(2, 1, "A");
    EXPECT_THAT(Stored(), ElementsAre("A = 10 (HIGH)"));
}

TEST_F(ConstantsTransfer, StoresATextThatIsNoNumberAsNotSet) {
    study.Number("A", 0, 10);
    Free();
    Grid().UserChangedData(2, 1, "much");
    Grid().GetFactorConstantValue(2, 1, "A");
    EXPECT_THAT(Stored(), ElementsAre("A = -99 (NO_SETTING)"));
}

struct KindRow {
    CEType::EType kind;
    bool asText;
};

void PrintTo(const KindRow& row, std::ostream* out) {
    *out << "kind " << row.kind;
}

class StoredKinds : public GridTest, public testing::WithParamInterface<KindRow> {};

TEST_P(StoredKinds, AreTextForQualitativeFactorsAlone) {
    study.Levels("F", {"1", "2", "4"}, GetParam().kind);
    Free();
    Grid().UserChangedData(2, 1, "4");
    Grid().GetFactorConstantValue(2, 1, "F");
    EXPECT_EQ(constants[0].kind, GetParam().asText ? FactorConstants::kQualitativeKind
                                                   : FactorConstants::kQuantitativeKind);
    EXPECT_EQ(constants[0].FloatValue(), GetParam().asText ? kNotSet : 4.0);
    EXPECT_EQ(constants[0].QualValue(), GetParam().asText ? "4" : "");
    EXPECT_EQ(constants[0].SettingPos(), FactorConstants::HIGH);
}

INSTANTIATE_TEST_SUITE_P(Lists, StoredKinds,
                         testing::Values(KindRow{CEType::Multilevel, false},
                                         KindRow{CEType::Qualitative, true},
                                         KindRow{CEType::Discrete, false}));

TEST_F(ConstantsTransfer, LeavesAConstantAloneForAnEmptyCell) {
    study.Number("A", 0, 10);
    Store("A", 3.0);
    Free();
    Grid().UpdateValue(2, 1, "");
    Grid().GetFactorConstantValue(2, 1, "A");
    EXPECT_THAT(Stored(), ElementsAre("A = 3 (CUSTOM)"));
}

TEST_F(ConstantsTransfer, AddsAConstantThatIsNotThere) {
    study.Number("A", 0, 10);
    Free();
    constants[0] = FactorConstants::Constant();
    Grid().GetFactorConstantValue(2, 1, "A");
    EXPECT_THAT(Stored(), ElementsAre("A = 5 (REF)"));
}

TEST_F(ConstantsTransfer, StoresNothingForAnUnknownFactor) {
    study.Number("A", 0, 10);
    Free();
    Grid().GetFactorConstantValue(2, 1, "Unknown");
    EXPECT_THAT(Stored(), ElementsAre("A = 5 (REF)"));
}

TEST_F(ConstantsTransfer, SavesEveryRowWithAName) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 20);
    Wish wish;
    wish.rows = 4;
    Make(wish);
    Grid().UserChangedData(2, 1, "1");
    Grid().UserChangedData(2, 2, "2");
    Grid().UpdateValue(2, 3, "3");
    Grid().SaveInterfaceValues();
    EXPECT_THAT(Stored(), ElementsAre("A = 1 (CUSTOM)", "B = 2 (CUSTOM)"));
}

TEST_F(ConstantsTransfer, SavesARangeOfRowsFromOtherColumns) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 20);
    study.Number("C", 0, 30);
    Free();
    for (int row = 1; row <= 3; ++row) {
        Grid().UpdateValue(3, row, "7");
    }
    Grid().SaveInterfaceValues(2, 3, 1, 3);
    EXPECT_THAT(Stored(), ElementsAre("A = 5 (REF)", "B = 7 (CUSTOM)", "C = 7 (CUSTOM)"));
    Grid().UpdateValue(3, 1, "C");
    Grid().SaveInterfaceValues(1, 1, 3, 2);
    EXPECT_THAT(Stored(), ElementsAre("A = 5 (REF)", "B = 7 (CUSTOM)", "C = 5 (CUSTOM)"));
}

TEST_F(ConstantsTransfer, SavesRowsBeyondTheLastFactorToo) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 20);
    Free();
    Grid().UserChangedData(2, 2, "3");
    Chooser().skipped = {"A"};
    Grid().UpdateInterface();
    ASSERT_THAT(Rows(), ElementsAre("B=10", "B=3", "="));
    Grid().UserChangedData(2, 1, "4");
    Grid().SaveInterfaceValues();
    EXPECT_THAT(Stored(), ElementsAre("A = 5 (REF)", "B = 3 (CUSTOM)"));
}

TEST_F(ConstantsTransfer, SavesRowsThatAreLockedToo) {
    study.Number("A", 0, 10);
    Wish wish;
    wish.readOnly = true;
    Make(wish);
    Grid().UpdateValue(2, 1, "7");
    Grid().SaveInterfaceValues();
    EXPECT_THAT(Stored(), ElementsAre("A = 7 (CUSTOM)"));
}

// Looking a value up.

TEST_F(ConstantsTransfer, FindsTheValueOfTheFirstRowOfAName) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 20);
    Free();
    Grid().UpdateValue(1, 3, "A");
    Grid().UpdateValue(2, 3, "9");
    std::string value = "before";
    Grid().GetConstantValue("A", value);
    EXPECT_EQ(value, "5");
    Grid().GetConstantValue(2, 3, 1, 2, "A", value);
    EXPECT_EQ(value, "9");
    Grid().UpdateValue(2, 1, "");
    Grid().GetConstantValue("A", value);
    EXPECT_EQ(value, "");
}

TEST_F(ConstantsTransfer, LeavesTheValueAloneWhenNoRowHasTheName) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 20);
    Free();
    for (const char* name : {"a", "A ", "C"}) {
        std::string value = "before";
        Grid().GetConstantValue(name, value);
        EXPECT_EQ(value, "before") << name;
    }
    std::string value = "before";
    Grid().GetConstantValue(2, 2, 1, 2, "A", value);
    EXPECT_EQ(value, "before");
    Grid().GetConstantValue(1, 2, 2, 1, "10", value);
    EXPECT_EQ(value, "B");
}

// What is asked of the models.

TEST(ConstantsQuestions, AreWhetherAModelUsesAFactorFittedOrNot) {
    const GridDesktop desktop;
    AxesStudy study;
    study.Number("A", 0, 10);
    std::array<FactorConstants::Constant, 4> constants;
    const std::vector<std::shared_ptr<AxisInfo>> axes;
    VWSConstantInterface grid(nullptr, &study, 1, nullptr, constants.data(), axes, false);
    grid.UpdateInterface();
    grid.GetCellRenderer(3, 1);
    grid.MouseMove({10, 10}, {3, 1}, {0, 0, 100, 20});
    EXPECT_EQ(study.questions, (std::vector<FactorQuestion>(3, FactorQuestion{"A", true, false})));
}

TEST(ConstantsQuestions, LeaveTheReferenceMixtureToTheStudy) {
    const GridDesktop desktop;
    AxesStudy study;
    study.Part("A");
    study.Part("B");
    study.references = {{"A", 0.25}};
    std::array<FactorConstants::Constant, 4> constants;
    const std::vector<std::shared_ptr<AxisInfo>> axes;
    VWSConstantInterface grid(nullptr, &study, 2, nullptr, constants.data(), axes, false);
    grid.UpdateInterface();
    EXPECT_EQ(grid.GetCellText(2, 1), "0.25");
    EXPECT_EQ(grid.GetCellText(2, 2), "");
    EXPECT_EQ(constants[1].FloatValue(), kNotSet);
}

}  // namespace
}  // namespace kvopt::test
