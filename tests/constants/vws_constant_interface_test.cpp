#include "kvopt/constants/vws_constant_interface.h"

#include <boost/locale/message.hpp>
#include <locale>
#include <ostream>
#include <type_traits>

#include "constants/grid_test.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

static_assert(std::is_base_of_v<KivexListInterface, VWSConstantInterface>);
static_assert(std::is_base_of_v<BaseWorksheetInterface, KivexListInterface>);
static_assert(std::is_base_of_v<BasePropertyPageHelper, KivexListInterface>);
static_assert(std::is_base_of_v<SelectResponseBase, KivexListInterface>);
static_assert(std::is_base_of_v<PropertyPageListener, KivexListInterface>);

class VWSConstantInterfaceTest : public GridTest {
protected:
    FieldDef& Field(int column, int row) { return *Grid().GetFieldDef(column, row, true); }
    Texts Entries(int row) {
        const FieldDef* field = Grid().GetFieldDef(2, row, false);
        return field != nullptr ? field->ComboSettings() : Texts{};
    }
};

// Construction.

TEST_F(VWSConstantInterfaceTest, IsTheListOfConstantsWithThreeColumns) {
    const VWSConstantInterface grid(nullptr, &study, 4, nullptr, constants.data(), axes, false);
    EXPECT_EQ(grid.Name(), "Constants");
    EXPECT_EQ(grid.ColumnCount(), 3);
    EXPECT_EQ(grid.RowCount(), 4);
}

TEST_F(VWSConstantInterfaceTest, HasHeadingsAndNumbersItsRows) {
    const VWSConstantInterface grid(nullptr, &study, 11, nullptr, constants.data(), axes, false);
    EXPECT_EQ(grid.GetCellText(0, 0), "");
    EXPECT_EQ(grid.GetCellText(1, 0), "Factor");
    EXPECT_EQ(grid.GetCellText(2, 0), "Value");
    EXPECT_EQ(grid.GetCellText(3, 0), "Setting");
    EXPECT_EQ(grid.GetCellText(0, 1), "1");
    EXPECT_EQ(grid.GetCellText(0, 11), "11");
    EXPECT_EQ(grid.GetFieldType(1, 1), FieldDef::Plain);
    EXPECT_EQ(grid.DefaultVerticalLineStyle(), 9);
}

TEST_F(VWSConstantInterfaceTest, HidesTheRowNumbersAndGivesTheOtherColumnsRoom) {
    const VWSConstantInterface grid(nullptr, &study, 2, nullptr, constants.data(), axes, false);
    EXPECT_EQ(grid.ColumnWidth(0), 0);
    for (int column = 1; column <= 3; ++column) {
        EXPECT_EQ(grid.ColumnWidth(column), grid.GetMaxTextColWidth(column, -1) + 30) << column;
    }
    EXPECT_EQ(grid.DefaultRowHeight(), 22);
}

TEST_F(VWSConstantInterfaceTest, ScalesLengthsToTheScreen) {
    desktop.dpi = 144;
    const VWSConstantInterface grid(nullptr, &study, 2, nullptr, constants.data(), axes, false);
    EXPECT_EQ(grid.DefaultRowHeight(), 33);
    EXPECT_EQ(grid.ColumnWidth(2), grid.GetMaxTextColWidth(2, -1) + 45);
}

TEST_F(VWSConstantInterfaceTest, StartsWithTheStatesTold) {
    VWSConstantInterface grid(&page, &study, 2, nullptr, constants.data(), axes, true);
    EXPECT_TRUE(grid.UpdatePlotWhileSliding());
    EXPECT_TRUE(grid.IsReadOnly());
    EXPECT_EQ(grid.GetParent(), &page);
    EXPECT_EQ(grid.GetInvestigation(), &study);
    grid.SetUpdatePlotWhileSliding(false);
    EXPECT_FALSE(grid.UpdatePlotWhileSliding());
    grid.SetParent(nullptr);
    EXPECT_EQ(grid.GetParent(), nullptr);
}

TEST_F(VWSConstantInterfaceTest, ListsEveryFactorWithoutAChooser) {
    study.Number("A");
    study.Part("B");
    VWSConstantInterface grid(nullptr, &study, 2, nullptr, constants.data(), axes, false);
    ASSERT_NE(grid.GetConstantsChooser(), nullptr);
    EXPECT_FALSE(grid.GetConstantsChooser()->SkipFactor("A"));
    grid.UpdateInterface();
    EXPECT_EQ(grid.GetCellText(1, 1), "A");
    EXPECT_EQ(grid.GetCellText(1, 2), "B");
    grid.SetConstantsChooser(nullptr);
    grid.UpdateInterface();
    EXPECT_EQ(grid.GetCellText(1, 2), "B");
}

TEST_F(VWSConstantInterfaceTest, OwnsItsChoosers) {
    int firstDeaths = 0;
    int secondDeaths = 0;
    {
        auto* const first = new SkipThese({}, &firstDeaths);
        auto* const second = new SkipThese({}, &secondDeaths);
        VWSConstantInterface grid(nullptr, &study, 1, first, constants.data(), axes, false);
        EXPECT_EQ(grid.GetConstantsChooser(), first);
        grid.SetConstantsChooser(first);
        EXPECT_EQ(firstDeaths, 0);
        grid.SetConstantsChooser(second);
        EXPECT_EQ(firstDeaths, 1);
        EXPECT_EQ(grid.GetConstantsChooser(), second);
        EXPECT_EQ(secondDeaths, 0);
    }
    EXPECT_EQ(firstDeaths, 1);
    EXPECT_EQ(secondDeaths, 1);
}

// The rows as a whole.

TEST_F(VWSConstantInterfaceTest, HasARowForEachFactorThatIsNeitherFillerNorSkipped) {
    study.Number("A", 0, 10);
    study.Filler("Rest");
    study.Number("B", 0, 20);
    study.Number("C", 0, 30);
    study.Number("D", 0, 40);
    Wish wish;
    wish.skipped = {"B"};
    Make(wish);
    EXPECT_THAT(Rows(), ElementsAre("A=5", "C=15", "D=20"));
}

TEST_F(VWSConstantInterfaceTest, AddsTheRowsItLacks) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 20);
    study.Number("C", 0, 30);
    Wish wish;
    wish.rows = 1;
    Make(wish);
    EXPECT_EQ(Grid().RowCount(), 3);
    EXPECT_THAT(Rows(), ElementsAre("A=5", "B=10", "C=15"));
    EXPECT_EQ(Grid().GetCellText(0, 1), "1");
    EXPECT_EQ(Grid().GetCellText(0, 2), "");
}

TEST_F(VWSConstantInterfaceTest, LeavesRowsBeyondTheLastFactorAsTheyAre) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 20);
    study.Names("C", {"x", "y", "z"});
    Free();
    Chooser().skipped = {"A"};
    Grid().UpdateInterface();
    EXPECT_EQ(Grid().RowCount(), 3);
    EXPECT_THAT(Rows(), ElementsAre("B=10", "C=y", "C=y"));
    EXPECT_EQ(Grid().GetFieldType(2, 3), FieldDef::Combo);
    EXPECT_THAT(Entries(3), ElementsAre("x", "y", "z"));
}

TEST_F(VWSConstantInterfaceTest, AsksTheChooserAtEachRefresh) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 20);
    Free();
    Chooser().skipped = {"A"};
    EXPECT_THAT(Rows(), ElementsAre("A=5", "B=10", "="));
    Grid().UpdateInterface();
    EXPECT_THAT(Rows(), ElementsAre("B=10", "B=10", "="));
}

TEST_F(VWSConstantInterfaceTest, ColoursTheNamesAndTakesTheirFontFromTheListOptions) {
    ListOptions options;
    options.factorNameColour = 0x112233;
    ListOptions::Install(&options);
    study.Number("A");
    Free();
    EXPECT_EQ(Field(1, 1).FieldColour(), 0x112233U);
    EXPECT_EQ(Grid().ColumnFont(1), 0);
    options.boldFactorNames = true;
    Grid().UpdateInterface();
    EXPECT_EQ(Grid().ColumnFont(1), 2);
    options.boldFactorNames = false;
    Grid().UpdateInterface();
    EXPECT_EQ(Grid().ColumnFont(1), 0);
    ListOptions::Install(nullptr);
}

TEST_F(VWSConstantInterfaceTest, TellsItsWindowOnceOfARefresh) {
    study.Number("A", 0, 10);
    study.Names("B", {"x", "y"});
    Free();
    const ResetCounter counter(Window());
    Store("A", 3.0);
    Chooser().skipped = {"B"};
    Grid().UpdateInterface();
    EXPECT_EQ(counter.resets, 1);
}

TEST_F(VWSConstantInterfaceTest, ListsTheLevelsOnceHoweverOftenItIsRefreshed) {
    study.Names("Colour", {"red", "green", "blue"});
    Free();
    EXPECT_THAT(Entries(1), ElementsAre("red", "green", "blue"));
    Grid().UpdateInterface();
    EXPECT_THAT(Entries(1), ElementsAre("red", "green", "blue"));
}

TEST_F(VWSConstantInterfaceTest, ListsAsManyLevelsAsTheFactorCounts) {
    study.Names("Colour", {"red", "green", "blue"}).settingCount = 2;
    study.Levels("Level", {"1", "2", "4"}).factorValue.included = {1, 3};
    Free();
    EXPECT_THAT(Entries(1), ElementsAre("red", "green"));
    EXPECT_THAT(Entries(2), ElementsAre("1", "2", "4"));
}

TEST_F(VWSConstantInterfaceTest, TakesTheListAwayFromARowThatGetsANumber) {
    study.Names("Colour", {"red", "green"});
    study.Number("A", 0, 10);
    Free();
    Chooser().skipped = {"Colour"};
    Grid().UpdateInterface();
    EXPECT_EQ(Grid().GetFieldType(2, 1), FieldDef::Number);
    EXPECT_EQ(Field(2, 1).FieldColour(), FieldDef::kNoColour);
    EXPECT_THAT(Entries(1), IsEmpty());
}

// The block entry.

TEST_F(VWSConstantInterfaceTest, OffersRandomFirstWhenBlocksAreNoFixedEffect) {
    study.Block(2);
    SetFixedEffect(0);
    Free();
    EXPECT_THAT(Entries(1), ElementsAre("Random", "1", "2"));
    EXPECT_THAT(Rows(), ElementsAre("$BlockV=Random", "=", "="));
}

TEST_F(VWSConstantInterfaceTest, OffersTheBlocksAloneWhenTheyAreAFixedEffect) {
    study.Block(2);
    SetFixedEffect(1);
    Free();
    EXPECT_THAT(Entries(1), ElementsAre("1", "2"));
    EXPECT_THAT(Rows(), ElementsAre("$BlockV=1", "=", "="));
}

TEST_F(VWSConstantInterfaceTest, TakesBlocksAsAFixedEffectWhenNothingIsSaid) {
    study.Block(2);
    Free();
    EXPECT_THAT(Entries(1), ElementsAre("1", "2"));
}

TEST_F(VWSConstantInterfaceTest, OffersRandomForNoOtherFactor) {
    study.Names("BlockV", {"1", "2"});
    study.Names("$blockv", {"1", "2"});
    SetFixedEffect(0);
    Free();
    EXPECT_THAT(Entries(1), ElementsAre("1", "2"));
    EXPECT_THAT(Rows(), ElementsAre("BlockV=1", "$blockv=1", "="));
}

// Drop-downs of setting positions.

TEST_F(VWSConstantInterfaceTest, MakesACellAListOfTheStandardPositions) {
    Free();
    Grid().SetFieldConstantSettings(2, 1, nullptr);
    EXPECT_EQ(Grid().GetFieldType(2, 1), FieldDef::Combo);
    EXPECT_THAT(Entries(1), ElementsAre("LOW", "REF", "HIGH", "CUSTOM"));
    Grid().SetFieldConstantSettings(2, 1, nullptr);
    EXPECT_THAT(Entries(1), ElementsAre("LOW", "REF", "HIGH", "CUSTOM"));
}

TEST_F(VWSConstantInterfaceTest, MakesACellAListOfPositionsByOtherNames) {
    Free();
    const char* const names[] = {"low", "middle", "high", "own", "none"};
    Grid().SetFieldConstantSettings(2, 2, names);
    EXPECT_THAT(Entries(2), ElementsAre("low", "middle", "high", "own"));
}

TEST_F(VWSConstantInterfaceTest, LocksACellOfPositionsWhenItIsReadOnly) {
    Wish wish;
    wish.readOnly = true;
    Make(wish);
    Field(2, 1) = FieldDef::Combo;
    Field(2, 1).AddComboSetting("old");
    Field(3, 1) = FieldDef::Number;
    Grid().SetFieldConstantSettings(2, 1, nullptr);
    const Colour readOnly = ListOptions::Instance().readOnlyColour;
    EXPECT_EQ(Grid().GetFieldType(2, 1), FieldDef::Locked);
    EXPECT_EQ(Field(2, 1).FieldColour(), readOnly);
    EXPECT_THAT(Entries(1), IsEmpty());
    EXPECT_EQ(Grid().GetFieldType(3, 1), FieldDef::Plain);
    EXPECT_EQ(Field(3, 1).FieldColour(), readOnly);
}

// Cells.

TEST_F(VWSConstantInterfaceTest, GivesAnEmptyTextWhereThereIsNoData) {
    Free();
    EXPECT_EQ(Grid().GetCellText(3, 2), "");
    EXPECT_EQ(Grid().GetCellText(2, 99), "");
    EXPECT_EQ(Grid().GetCellText(-1, 1), "");
}

TEST_F(VWSConstantInterfaceTest, WritesACellWithoutTellingAnybody) {
    InPage();
    const ResetCounter counter(Window());
    Grid().UpdateValue(2, 1, "7");
    EXPECT_EQ(Grid().GetCellText(2, 1), "7");
    Grid().UpdateValue(2, 1, nullptr);
    EXPECT_EQ(Grid().GetCellText(2, 1), "");
    EXPECT_EQ(counter.resets, 0);
    EXPECT_EQ(page.changes, 0);
}

TEST_F(VWSConstantInterfaceTest, MarksThePageBeforeItTakesAnEditOver) {
    study.Number("A", 0, 10);
    InPage();
    const ResetCounter counter(Window());
    std::string during;
    page.onChanged = [&] { during = Grid().GetCellText(2, 1); };
    EXPECT_TRUE(Grid().UserChangedData(2, 1, "7"));
    EXPECT_EQ(during, "5");
    EXPECT_EQ(Grid().GetCellText(2, 1), "7");
    EXPECT_EQ(page.changes, 1);
    EXPECT_EQ(counter.resets, 1);
    EXPECT_THAT(Stored(), ElementsAre("A = 5 (REF)"));
}

TEST_F(VWSConstantInterfaceTest, TakesAnEditOverWithoutAPage) {
    study.Number("A", 0, 10);
    Free();
    EXPECT_TRUE(Grid().UserChangedData(2, 1, "7"));
    EXPECT_EQ(Grid().GetCellText(2, 1), "7");
    EXPECT_EQ(page.changes, 0);
}

TEST_F(VWSConstantInterfaceTest, CannotBeClearedByTyping) {
    study.Number("A", 0, 10);
    InPage();
    EXPECT_FALSE(Grid().UserChangedData(2, 1, nullptr));
    EXPECT_FALSE(Grid().UserChangedData(2, 1, ""));
    EXPECT_EQ(Grid().GetCellText(2, 1), "5");
    EXPECT_EQ(page.changes, 0);
    EXPECT_TRUE(Grid().UserChangedData(2, 1, " "));
}

TEST_F(VWSConstantInterfaceTest, TakesNoEditWhenItIsReadOnly) {
    study.Number("A", 0, 10);
    Wish wish;
    wish.inPage = true;
    wish.readOnly = true;
    Make(wish);
    EXPECT_FALSE(Grid().UserChangedData(2, 1, "7"));
    EXPECT_EQ(Grid().GetCellText(2, 1), "5");
    EXPECT_EQ(page.changes, 0);
}

// Tips.

struct TipRow {
    const char* label;
    FieldDef::FieldType type;
    bool told;
};

void PrintTo(const TipRow& row, std::ostream* out) {
    *out << row.label;
}

class GridTips : public GridTest, public testing::WithParamInterface<TipRow> {};

TEST_P(GridTips, GoByTheTypeOfTheValueCellAlone) {
    study.Number("A", 0, 10);
    Free();
    *Grid().GetFieldDef(2, 1, true) = GetParam().type;
    for (const int column : {2, 3}) {
        std::wstring tip = L"before";
        EXPECT_EQ(Grid().GetToolTipText(column, 1, tip), GetParam().told) << column;
        EXPECT_EQ(tip, GetParam().told ? L"Formulation factors can only be edited in 'Properties'"
                                       : L"before");
    }
    std::wstring tip;
    for (const int column : {0, 1, 4}) {
        EXPECT_FALSE(Grid().GetToolTipText(column, 1, tip)) << column;
    }
    for (const int row : {0, 2}) {
        EXPECT_FALSE(Grid().GetToolTipText(2, row, tip)) << row;
    }
    EXPECT_EQ(tip, L"");
}

INSTANTIATE_TEST_SUITE_P(Types, GridTips,
                         testing::Values(TipRow{"Plain", FieldDef::Plain, true},
                                         TipRow{"Locked", FieldDef::Locked, false},
                                         TipRow{"List", FieldDef::Combo, false},
                                         TipRow{"Number", FieldDef::Number, false}));

TEST_F(VWSConstantInterfaceTest, TellsOfFormulationFactorsOnALockedQualitativeRowToo) {
    study.Names("Colour", {"red", "green"});
    Wish wish;
    wish.readOnly = true;
    Make(wish);
    std::wstring tip;
    EXPECT_TRUE(Grid().GetToolTipText(2, 1, tip));
    EXPECT_EQ(tip, L"Formulation factors can only be edited in 'Properties'");
}

// The menu.

TEST_F(VWSConstantInterfaceTest, ShowsItsMenuAtThePointer) {
    study.Number("A", 0, 10);
    Free();
    Window();
    CPoint point{17, 23};
    EXPECT_TRUE(Grid().RButtonDown(point));
    ASSERT_EQ(desktop.menus.size(), 1U);
    EXPECT_EQ(desktop.menus[0].owner, Grid().Worksheet());
    EXPECT_EQ(desktop.menus[0].point, (CPoint{17, 23}));
    EXPECT_THAT(desktop.menus[0].items, ElementsAre(Pair(57642, "&Select all"), Pair(0, ""),
                                                    Pair(57634, "&Copy"), Pair(57637, "&Paste")));
}

TEST_F(VWSConstantInterfaceTest, OffersToPasteWhenThereIsSomethingToPaste) {
    study.Number("A", 0, 10);
    Free();
    Window().SetSelection({2, 1, 2, 1});
    CPoint point;
    Grid().RButtonDown(point);
    desktop.SetClipboardText(L"7");
    Grid().RButtonDown(point);
    EXPECT_THAT(desktop.menus[0].enabled, ElementsAre(true, true, true, false));
    EXPECT_THAT(desktop.menus[1].enabled, ElementsAre(true, true, true, true));
}

TEST_F(VWSConstantInterfaceTest, LeavesTheCommandsOfTheMenuToTheWorksheet) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 20);
    Free();
    Window().SetSelection({2, 2, 2, 2});
    CPoint point;
    desktop.menuChoice = kCommandCopy;
    Grid().RButtonDown(point);
    EXPECT_EQ(desktop.ClipboardText(), L"10");
    Window().SetSelection({2, 1, 2, 1});
    desktop.menuChoice = kCommandPaste;
    Grid().RButtonDown(point);
    EXPECT_THAT(Rows(), ElementsAre("A=10", "B=10", "="));
    desktop.menuChoice = kCommandSelectAll;
    Grid().RButtonDown(point);
    EXPECT_EQ(Window().Selection(), (CellRange{1, 1, 3, 3}));
}

TEST_F(VWSConstantInterfaceTest, PastesThroughItsOwnRules) {
    study.Number("A", 0, 10);
    study.Names("Colour", {"red", "green"});
    Constant(study.Number("Fixed", 0, 4));
    InPage();
    Window().SetSelection({2, 1, 2, 1});
    desktop.SetClipboardText(L"7\ngreen\n3");
    Grid().OnEditPaste();
    EXPECT_THAT(Rows(), ElementsAre("A=7", "Colour=green", "Fixed=2"));
    EXPECT_EQ(page.changes, 2);
    Window().SetSelection({2, 1, 2, 1});
    desktop.SetClipboardText(L"\nblue");
    Grid().OnEditPaste();
    EXPECT_THAT(Rows(), ElementsAre("A=7", "Colour=green", "Fixed=2"));
    EXPECT_EQ(page.changes, 2);
}

TEST_F(VWSConstantInterfaceTest, ShowsNoMenuWithoutAWindow) {
    Free();
    CPoint point;
    Grid().RButtonDown(point);
    EXPECT_THAT(desktop.menus, IsEmpty());
}

/// A catalogue that puts brackets around everything.
class Brackets : public boost::locale::message_format<char> {
public:
    const char* get(int /*domain*/, const char* /*context*/, const char* text) const override {
        last_ = "[" + std::string(text) + "]";
        return last_.c_str();
    }
    const char* get(int /*domain*/, const char* /*context*/, const char* /*single*/,
                    int /*count*/) const override {
        return nullptr;
    }
    int domain(const std::string& /*name*/) const override { return 0; }
    const char* convert(const char* message, std::string& /*buffer*/) const override {
        return message;
    }

private:
    mutable std::string last_;
};

TEST_F(VWSConstantInterfaceTest, TranslatesTheLabelsOfItsMenu) {
    const std::locale former = std::locale::global(std::locale(std::locale(), new Brackets));
    Free();
    Window();
    CPoint point;
    Grid().RButtonDown(point);
    std::locale::global(former);
    EXPECT_THAT(desktop.menus.at(0).items,
                ElementsAre(Pair(57642, "[&Select all]"), Pair(0, ""), Pair(57634, "[&Copy]"),
                            Pair(57637, "[&Paste]")));
}

// Renderers.

TEST_F(VWSConstantInterfaceTest, DrawsTheSliderOfTheFactorInItsThirdColumnAlone) {
    study.Number("A", 0, 10);
    study.Number("B", 0, 20);
    Free();
    const VWSRenderer* plain = Grid().GetCellRenderer(1, 1);
    const auto* first = dynamic_cast<const ConstantsCellRenderer*>(Grid().GetCellRenderer(3, 1));
    const auto* second = dynamic_cast<const ConstantsCellRenderer*>(Grid().GetCellRenderer(3, 2));
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);
    EXPECT_EQ(Grid().GetCellRenderer(2, 1), plain);
    EXPECT_EQ(Grid().GetCellRenderer(3, 0), plain);
    EXPECT_EQ(Grid().GetCellRenderer(3, 3), plain);
    EXPECT_EQ(Grid().GetCellRenderer(4, 1), plain);
}

TEST_F(VWSConstantInterfaceTest, DrawsNoSliderForAFactorThatMayNotBePlotted) {
    study.Number("A", 0, 10);
    Free();
    study.unavailable = {"A"};
    EXPECT_EQ(Grid().GetCellRenderer(3, 1), Grid().GetCellRenderer(1, 1));
    study.unavailable.clear();
    EXPECT_NE(Grid().GetCellRenderer(3, 1), Grid().GetCellRenderer(1, 1));
}

TEST_F(VWSConstantInterfaceTest, DrawsNoSliderForAFactorThatItNeverListed) {
    study.Number("A", 0, 10);
    Free();
    study.Number("Late", 0, 10);
    Grid().UpdateValue(1, 1, "Late");
    EXPECT_EQ(Grid().GetCellRenderer(3, 1), Grid().GetCellRenderer(1, 1));
}

}  // namespace
}  // namespace kvopt::test
