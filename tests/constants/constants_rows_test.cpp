// How the row of a factor is set up, case by case.

#include <optional>
#include <ostream>
#include <utility>

#include "constants/grid_test.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr Colour kOldColour = 0x123456;
constexpr Colour kReadOnly = 0xAAAAAA;
constexpr Colour kLockedFormulation = 0xBBBBBB;
constexpr Colour kNone = FieldDef::kNoColour;

struct RowCase {
    const char* label;
    CEType::EType kind;
    // The state.
    bool constantUse = false;
    bool readOnly = false;
    bool unavailable = false;
    bool inPage = false;
    bool formulationOnAxis = false;
    bool filler = false;
    // What comes of it.
    FieldDef::FieldType valueType = FieldDef::Plain;
    Colour valueColour = kNone;
    bool settingUnchanged = false;
    Colour settingColour = kReadOnly;
    bool settingEmptied = false;
    bool settingListCleared = false;
    bool renderer = false;
};

void PrintTo(const RowCase& row, std::ostream* out) {
    *out << row.label;
}

class ConstantsRows : public GridTest, public testing::WithParamInterface<RowCase> {
protected:
    ConstantsRows() {
        options_.readOnlyColour = kReadOnly;
        options_.lockedFormulationColour = kLockedFormulation;
        ListOptions::Install(&options_);
    }
    ~ConstantsRows() override { ListOptions::Install(nullptr); }

    FactorClass& AddFactor() {
        const RowCase& row = GetParam();
        FactorClass& factor = row.kind == CEType::Qualitative ? study.Names("F", {"1", "2", "3"})
                              : CEType::IsList(row.kind)
                                  ? study.Levels("F", {"1", "2", "3"}, row.kind)
                                  : study.Number("F", 0, 1, row.kind);
        if (row.constantUse) {
            factor.factorValue.use = CEUse::Constant;
        }
        if (row.unavailable) {
            study.unavailable = {"F"};
        }
        return factor;
    }

    void MakeRow() {
        const RowCase& row = GetParam();
        study.Part("Other");
        if (row.filler) {
            study.Filler("Rest");
        }
        Wish wish;
        wish.inPage = row.inPage;
        wish.readOnly = row.readOnly;
        wish.skipped = {"F", "Other"};
        Make(wish);
        for (const int column : {2, 3}) {
            FieldDef& field = *Grid().GetFieldDef(column, 1, true);
            field = FieldDef::Combo;
            field.AddComboSetting("old");
            field.SetFieldColour(kOldColour);
        }
        Grid().UpdateValue(3, 1, "old");
        Chooser().skipped.erase("F");
        if (!row.formulationOnAxis) {
            Chooser().skipped.erase("Other");
        }
        Grid().UpdateInterface();
    }

private:
    ListOptions options_;
};

TEST_P(ConstantsRows, FollowTheTable) {
    const RowCase& row = GetParam();
    FactorClass& factor = AddFactor();
    MakeRow();
    ASSERT_EQ(Grid().GetCellText(1, 1), "F");

    const FieldDef& value = *Grid().GetFieldDef(2, 1, true);
    EXPECT_EQ(value.Type(), row.valueType);
    EXPECT_EQ(value.FieldColour(), row.valueColour);
    if (row.valueType == FieldDef::Combo) {
        EXPECT_THAT(value.ComboSettings(), ElementsAre("1", "2", "3"));
    } else {
        EXPECT_THAT(value.ComboSettings(), IsEmpty());
    }

    const FieldDef& setting = *Grid().GetFieldDef(3, 1, true);
    EXPECT_EQ(setting.Type(), row.settingUnchanged ? FieldDef::Combo : FieldDef::Plain);
    EXPECT_EQ(setting.FieldColour(), row.settingUnchanged ? kOldColour : row.settingColour);
    EXPECT_EQ(Grid().GetCellText(3, 1), row.settingEmptied ? "" : "old");
    EXPECT_EQ(setting.ComboSettings().empty(), row.settingListCleared);

    // Whether there is a renderer shows once the factor may be plotted as a number.
    study.unavailable.clear();
    factor.factorValue.type = CEType::Quantitative;
    EXPECT_EQ(dynamic_cast<const ConstantsCellRenderer*>(Grid().GetCellRenderer(3, 1)) != nullptr,
              row.renderer);
}

RowCase HeldConstant(const char* label, CEType::EType kind) {
    RowCase row{label, kind};
    row.constantUse = true;
    row.valueType = FieldDef::Locked;
    row.valueColour = kReadOnly;
    row.settingEmptied = true;
    return row;
}

RowCase List(const char* label, CEType::EType kind) {
    RowCase row{label, kind};
    row.valueType = FieldDef::Combo;
    row.settingEmptied = true;
    row.settingListCleared = true;
    return row;
}

RowCase ClosedList(const char* label, CEType::EType kind) {
    RowCase row = List(label, kind);
    row.valueType = FieldDef::Plain;
    row.valueColour = kReadOnly;
    return row;
}

RowCase LockedFormulation(const char* label) {
    RowCase row{label, CEType::Formulation};
    row.valueType = FieldDef::Plain;
    row.valueColour = kLockedFormulation;
    row.settingColour = kLockedFormulation;
    row.renderer = true;
    return row;
}

RowCase Open(const char* label, CEType::EType kind) {
    RowCase row{label, kind};
    row.valueType = FieldDef::Number;
    row.settingUnchanged = true;
    row.renderer = true;
    return row;
}

RowCase Closed(const char* label, CEType::EType kind) {
    RowCase row{label, kind};
    row.valueType = FieldDef::Locked;
    row.valueColour = kReadOnly;
    row.renderer = true;
    return row;
}

/// The row with some of its state told by name.
RowCase With(RowCase row, std::initializer_list<bool RowCase::*> states) {
    for (bool RowCase::*state : states) {
        row.*state = true;
    }
    return row;
}

INSTANTIATE_TEST_SUITE_P(
    HeldConstant, ConstantsRows,
    testing::Values(HeldConstant("ANumber", CEType::Quantitative),
                    With(HeldConstant("ANumberInAPage", CEType::Quantitative), {&RowCase::inPage}),
                    HeldConstant("AName", CEType::Qualitative),
                    HeldConstant("ALevel", CEType::Multilevel),
                    HeldConstant("AFormulationFactor", CEType::Formulation),
                    With(HeldConstant("ANameReadOnly", CEType::Qualitative), {&RowCase::readOnly}),
                    With(HeldConstant("ANumberThatMayNotBePlotted", CEType::Quantitative),
                         {&RowCase::unavailable})),
    testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(
    Lists, ConstantsRows,
    testing::Values(
        List("Kind2", CEType::Multilevel), List("Kind3", CEType::Qualitative),
        List("Kind6", CEType::Discrete),
        With(List("Kind3InAPage", CEType::Qualitative), {&RowCase::inPage}),
        With(ClosedList("Kind2ReadOnly", CEType::Multilevel), {&RowCase::readOnly}),
        With(ClosedList("Kind3ReadOnly", CEType::Qualitative), {&RowCase::readOnly}),
        With(ClosedList("Kind6ReadOnly", CEType::Discrete), {&RowCase::readOnly}),
        With(ClosedList("Kind2Unavailable", CEType::Multilevel), {&RowCase::unavailable}),
        With(ClosedList("Kind3Unavailable", CEType::Qualitative), {&RowCase::unavailable}),
        With(ClosedList("Kind6Unavailable", CEType::Discrete), {&RowCase::unavailable}),
        With(ClosedList("Kind3ReadOnlyAndUnavailable", CEType::Qualitative),
             {&RowCase::readOnly, &RowCase::unavailable})),
    testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(
    Formulation, ConstantsRows,
    testing::Values(LockedFormulation("FreeWithoutFiller"),
                    With(LockedFormulation("FreeWithAnotherOnAnAxis"),
                         {&RowCase::formulationOnAxis}),
                    With(LockedFormulation("FreeWithAFillerAndAnotherOnAnAxis"),
                         {&RowCase::formulationOnAxis, &RowCase::filler}),
                    With(LockedFormulation("FreeReadOnly"), {&RowCase::readOnly}),
                    With(LockedFormulation("FreeUnavailable"), {&RowCase::unavailable}),
                    With(Open("FreeWithAFiller", CEType::Formulation), {&RowCase::filler}),
                    With(Closed("FreeWithAFillerReadOnly", CEType::Formulation),
                         {&RowCase::filler, &RowCase::readOnly}),
                    With(Open("InAPage", CEType::Formulation), {&RowCase::inPage}),
                    With(Open("InAPageWithAnotherOnAnAxis", CEType::Formulation),
                         {&RowCase::inPage, &RowCase::formulationOnAxis}),
                    With(Closed("InAPageReadOnly", CEType::Formulation),
                         {&RowCase::inPage, &RowCase::readOnly}),
                    With(Closed("InAPageUnavailable", CEType::Formulation),
                         {&RowCase::inPage, &RowCase::unavailable})),
    testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(
    Numbers, ConstantsRows,
    testing::Values(Open("Kind1", CEType::Quantitative), Open("Kind7", CEType::Covariate),
                    With(Open("Kind1InAPage", CEType::Quantitative), {&RowCase::inPage}),
                    With(Open("Kind1BesideAFormulationFactorOnAnAxis", CEType::Quantitative),
                         {&RowCase::formulationOnAxis}),
                    With(Closed("Kind1ReadOnly", CEType::Quantitative), {&RowCase::readOnly}),
                    With(Closed("Kind7ReadOnly", CEType::Covariate), {&RowCase::readOnly}),
                    With(Closed("Kind1Unavailable", CEType::Quantitative),
                         {&RowCase::unavailable})),
    testing::PrintToStringParamName());

// What a list of states cannot show.

TEST_F(GridTest, LocksAllFormulationRowsForOneFormulationFactorOnAnAxis) {
    study.Part("A");
    study.Number("P", 0, 10);
    study.Part("B");
    study.Part("C");
    study.Filler("Rest");
    Wish wish;
    wish.rows = 4;
    Make(wish);
    for (const int row : {1, 3, 4}) {
        EXPECT_EQ(Grid().GetFieldType(2, row), FieldDef::Number) << row;
    }
    Chooser().skipped = {"A"};
    Grid().UpdateInterface();
    EXPECT_EQ(Grid().GetFieldType(2, 1), FieldDef::Number);
    EXPECT_EQ(Grid().GetFieldType(2, 2), FieldDef::Plain);
    EXPECT_EQ(Grid().GetFieldType(2, 3), FieldDef::Plain);
    Chooser().skipped = {};
    Grid().UpdateInterface();
    EXPECT_EQ(Grid().GetFieldType(2, 1), FieldDef::Number);
}

TEST_F(GridTest, DoesNotLockFormulationRowsForAProcessFactorOnAnAxis) {
    study.Part("A");
    study.Number("P", 0, 10);
    study.Filler("Rest");
    Wish wish;
    wish.skipped = {"P", "Rest"};
    Make(wish);
    EXPECT_EQ(Grid().GetFieldType(2, 1), FieldDef::Number);
}

TEST_F(GridTest, TakesTheSliderAwayWhenAFactorIsHeldConstantLater) {
    FactorClass& factor = study.Number("A", 0, 10);
    Free();
    EXPECT_NE(Grid().GetCellRenderer(3, 1), Grid().GetCellRenderer(1, 1));
    Constant(factor);
    Grid().UpdateInterface();
    EXPECT_EQ(Grid().GetCellRenderer(3, 1), Grid().GetCellRenderer(1, 1));
}

}  // namespace
}  // namespace kvopt::test
