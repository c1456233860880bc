#include "kvopt/axes/axis_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "axes/axis_page_fixture.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;

// Before the page has a window, and after.

TEST_F(AxisPageTest, AnswersFromTheAxesBeforeItHasAWindow) {
    axes = MakeAxes({{"Time", 1, 2}, {kNone}, {}});
    const Page page(*this);
    EXPECT_EQ(page.NAxis(), 3);
    EXPECT_EQ(page.NameAxis(1), "Time");
    EXPECT_TRUE(page.CompareAxis(1, "Time"));
    EXPECT_FALSE(page.CompareAxis(1, "Tim"));
    EXPECT_TRUE(page.IsUsedAxis(1));
    EXPECT_FALSE(page.IsUsedAxis(2));
    EXPECT_FALSE(page.IsUsedAxis(3));
    EXPECT_EQ(page.GetMin(1), 1.0);
    EXPECT_EQ(page.GetMax(1), 2.0);
    EXPECT_EQ(page.GetMin(3), -99.0);
}

TEST_F(AxisPageTest, AnswersNothingOfAnAxisThatDoesNotExist) {
    const Page page(*this);
    for (const int axis : {-1, 0, 3, 9}) {
        EXPECT_EQ(page.NameAxis(axis), "");
        EXPECT_FALSE(page.IsUsedAxis(axis));
        EXPECT_EQ(page.GetMin(axis), -99.0);
        EXPECT_EQ(page.GetMax(axis), -99.0);
    }
}

TEST_F(AxisPageTest, AnswersFromTheControlsOnceItHasAWindow) {
    const auto page = Shown();
    RowProbe(*page, 1).Pick("Speed");
    RowProbe(*page, 1).low.UserEdit(L"1.5");
    RowProbe(*page, 1).high.UserEdit(L"abc");
    EXPECT_EQ(page->NameAxis(1), "Speed");
    EXPECT_TRUE(page->CompareAxis(1, "Speed"));
    EXPECT_FALSE(page->CompareAxis(1, "Time"));
    EXPECT_TRUE(page->IsUsedAxis(1));
    EXPECT_EQ(page->GetMin(1), 1.5);
    EXPECT_EQ(page->GetMax(1), -99.0);
    EXPECT_EQ(axes[1]->GetName(), "Time");
}

TEST_F(AxisPageTest, ReadsSettingsAsFloats) {
    const auto page = Shown();
    RowProbe(*page, 1).low.UserEdit(L"0.1");
    EXPECT_EQ(page->GetMin(1), static_cast<double>(0.1F));
}

TEST_F(AxisPageTest, CountsARowWithoutASelectionAsUsed) {
    const auto page = Shown();
    RowProbe(*page, 1).list.SetCurSel(-1);
    EXPECT_TRUE(page->IsUsedAxis(1));
    EXPECT_EQ(page->NameAxis(1), "");
}

TEST_F(AxisPageTest, AnswersFromTheAxesAgainAfterTheWindow) {
    const auto page = Shown();
    RowProbe(*page, 1).Pick("Speed");
    page->DestroyWindow();
    EXPECT_EQ(page->NameAxis(1), "Time");
    EXPECT_EQ(page->GetMax(1), 2.0);
}

TEST_F(AxisPageTest, DoesNothingToControlsItDoesNotHave) {
    Page page(*this);
    page.TransferFromPage();
    page.SetDefault(1);
    page.SetRange(1, 5, 6);
    page.AddUnusedOption(1);
    page.EnableAxis(1, false);
    page.SetUnused(1);
    page.SetupComboBox();
    EXPECT_EQ(page.SelectString(1, "Time"), -1);
    EXPECT_EQ(page.IsAxisLegal(1), 0U);
    std::string message;
    EXPECT_EQ(page.AreAxesLegal(message), AxisPage::AxisNoError);
    EXPECT_TRUE(page.CheckLegalAxes());
    EXPECT_EQ(message, "");
    EXPECT_EQ(axes[1]->GetName(), "Time");
    EXPECT_TRUE(desktop.boxes.empty());
}

// Filling the lists.

TEST_F(AxisPageTest, OffersAllButQualitativeFactors) {
    const auto page = Shown();
    EXPECT_EQ(RowProbe(*page, 1).Entries(), (Texts{"Temp2", "Temp", "Time", "Speed"}));
    EXPECT_THAT(page->fills, ElementsAre(1, 2));
    EXPECT_TRUE(page->selectedWasNull);
}

TEST_F(AxisPageTest, AsksTheModelsUnlessThereIsAResponseFromOutside) {
    study.unavailable.insert("Temp2");
    EXPECT_EQ(RowProbe(*Shown(), 1).Entries(), (Texts{"Temp", "Time", "Speed"}));
    study.ExtraResponse("Outside", ResponseEx::External);
    EXPECT_EQ(RowProbe(*Shown(), 1).Entries(), (Texts{"Temp2", "Temp", "Time", "Speed"}));
}

TEST_F(AxisPageTest, ShowsTheStoredAxesWithTheirRanges) {
    EXPECT_EQ(Rows(*Shown()), (Texts{"Time|1|2", "Temp|3|4"}));
}

TEST_F(AxisPageTest, IsCleanWhenItIsShown) {
    Page page(*this);
    page.Create();
    EXPECT_GT(page.changes, 0);
    EXPECT_FALSE(page.IsChanged());
}

TEST_F(AxisPageTest, LeavesTheHelperWithoutUpdatesWhenItIsShown) {
    ConnectedHelper helper;
    Page page(*this, &helper);
    page.Create();
    EXPECT_EQ(helper.UpdateCount(), 0);
    RowProbe(page, 1).low.UserEdit(L"5");
    EXPECT_EQ(helper.UpdateCount(), 1);
}

TEST_F(AxisPageTest, FindsANameAmongNamesThatItBegins) {
    axes = MakeAxes({{"Temp", 1, 2}, {"Temp2", 3, 4}});
    EXPECT_EQ(Rows(*Shown()), (Texts{"Temp|1|2", "Temp2|3|4"}));
}

TEST_F(AxisPageTest, ShowsAnUnusedAxisAndOffersItThere) {
    axes = MakeAxes({{"Time", 1, 2}, {kNone, 5, 6}});
    const auto page = Shown();
    EXPECT_EQ(Rows(*page), (Texts{"Time|1|2", kNone + "|| (off)"}));
    EXPECT_THAT(RowProbe(*page, 1).Entries(), testing::Not(testing::Contains(kNone)));
    EXPECT_EQ(RowProbe(*page, 2).Entries().back(), kNone);
}

TEST_F(AxisPageTest, ProposesTheFirstDefaultsThatNoAxisTook) {
    axes = MakeAxes({{}, {"Time", 1, 2}, {"Gone", 1, 2}});
    EXPECT_EQ(Rows(*Shown()), (Texts{"Temp|20|80", "Time|1|2", "Temp2|30|70"}));
}

TEST_F(AxisPageTest, BeginsWithTheDefaultAtElementOne) {
    axes = MakeAxes({{}});
    defaults[0] = defaults.back();
    EXPECT_EQ(Rows(*Shown()), (Texts{"Time|10|50"}));
}

TEST_F(AxisPageTest, TreatsAnAxisBeyondTheSetAndAnEmptyPointerAsInNeed) {
    axes = MakeAxes({{"Temp", 3, 4}});
    axes.push_back(nullptr);
    AxisPage::Arguments arguments = Arguments();
    arguments.numAxes = 3;
    AxisPage page(&study, arguments, 6152, nullptr, 1);
    page.Create();
    EXPECT_EQ(Rows(page), (Texts{"Temp|3|4", "Time|10|50", "Temp2|30|70"}));
    RowProbe(page, 1).low.UserEdit(L"7");
    page.TransferFromPage();
    EXPECT_EQ(axes[1]->GetMin(), 7.0F);
    EXPECT_EQ(axes.size(), 3U);
}

TEST_F(AxisPageTest, FallsBackOnTheNotUsedNameWhenTheDefaultsRunOut) {
    axes = MakeAxes({{}, {}, {}, {}});
    const auto page = Shown();
    EXPECT_EQ(Rows(*page), (Texts{"Time|10|50", "Temp|20|80", "Temp2|30|70", kNone + "|| (off)"}));
    // The list still offers what no default named.
    EXPECT_EQ(RowProbe(*page, 4).Entries(), (Texts{"Temp2", "Temp", "Time", "Speed", kNone}));
}

TEST_F(AxisPageTest, ShowsTheNotUsedNameWhenNoFactorPasses) {
    study.unavailable = {"Temp2", "Temp", "Time", "Speed"};
    const auto page = Shown();
    EXPECT_EQ(Rows(*page), (Texts{kNone + "|| (off)", kNone + "|| (off)"}));
    EXPECT_EQ(RowProbe(*page, 1).Entries(), (Texts{kNone}));
}

TEST_F(AxisPageTest, ShowsAStoredQualitativeAxisWithoutARange) {
    axes = MakeAxes({{"Colour", 1, 2}, {"Temp", 3, 4}});
    Page page(*this);
    page.offers = {"Temp", "Colour"};
    page.Create();
    EXPECT_EQ(Rows(page), (Texts{"Colour|| (off)", "Temp|3|4"}));
}

TEST_F(AxisPageTest, LosesTheRangeOfTheFirstAxisToALaterAxisThatIsNotFound) {
    axes = MakeAxes({{"Time", 1, 2}, {"Gone", 3, 4}});
    EXPECT_EQ(Rows(*Shown()), (Texts{"Time|10|50", "Temp|20|80"}));
}

TEST_F(AxisPageTest, KeepsTheRangeOfTheFirstAxisBesideALaterAxisThatHoldsNothing) {
    axes = MakeAxes({{"Time", 1, 2}, {}});
    EXPECT_EQ(Rows(*Shown()), (Texts{"Time|1|2", "Temp|20|80"}));
}

TEST_F(AxisPageTest, LeavesNamesOfDefaultsThatDifferInCaseAlone) {
    defaults = MakeAxes({{"TIME", 1, 1}, {"Temp", 20, 80}});
    axes = MakeAxes({{}});
    EXPECT_EQ(Rows(*Shown()), (Texts{"Temp|20|80"}));
}

TEST_F(AxisPageTest, ProposesADefaultWhereALaterRowTookTheSelectionAway) {
    class Taking : public Page {
    public:
        using Page::Page;
        void SetDefault(int axis) override {
            if (axis == 2) {
                AxisCombo(1)->SetCurSel(-1);
            }
            Page::SetDefault(axis);
        }
    };
    axes = MakeAxes({{"Speed", 1, 2}, {"Time", 3, 4}});
    Taking page(*this);
    page.Create();
    EXPECT_EQ(Rows(page), (Texts{"Temp|20|80", "Time|3|4"}));
}

TEST_F(AxisPageTest, OffersTheBlockEntryLikeAnyFactor) {
    study.Add(kBlockFactorName, CEType::Multilevel);
    EXPECT_EQ(RowProbe(*Shown(), 1).Entries(),
              (Texts{"Temp2", "Temp", "Time", "Speed", kBlockFactorName}));
}

// SelectString.

TEST_F(AxisPageTest, SelectsExactlyTheNameAndShowsItsDefaults) {
    const auto page = Shown();
    EXPECT_EQ(page->SelectString(2, "Temp"), 1);
    EXPECT_EQ(page->SelectString(2, "Temp2"), 0);
    EXPECT_EQ(page->steps, (Texts{"default 2", "default 2"}));
    EXPECT_EQ(RowProbe(*page, 2).Text(), "Temp2|30|70");
}

TEST_F(AxisPageTest, SelectsExactlyTheNameWhicheverComesFirst) {
    for (const Texts& offers : {Texts{"Temp", "Temp2"}, Texts{"Temp2", "Temp"},
                                Texts{"temp", "TEMP2", "Temp"}, Texts{"Temp"}}) {
        Page page(*this);
        page.offers = offers;
        page.Create();
        const int index = page.SelectString(1, "Temp");
        ASSERT_NE(index, -1);
        EXPECT_EQ(offers[static_cast<std::size_t>(index)], "Temp");
        EXPECT_EQ(page.NameAxis(1), "Temp");
    }
}

TEST_F(AxisPageTest, FindsEachOfManyNamesThatBeginEachOther) {
    Page page(*this);
    for (const char* name : {"F", "F1", "F12", "f", "F123", "F1", "G", "F2", "FF"}) {
        page.offers.emplace_back(name);
    }
    page.Create();
    for (const auto& [name, index] :
         {std::pair("F", 0), std::pair("F12", 2), std::pair("f", 3), std::pair("F123", 4),
          std::pair("G", 6), std::pair("F2", 7), std::pair("FF", 8)}) {
        EXPECT_EQ(page.SelectString(1, name), index) << name;
        EXPECT_EQ(page.NameAxis(1), name);
    }
    EXPECT_EQ(page.SelectString(1, "F1"), 1) << "the first of two";
    EXPECT_EQ(page.SelectString(1, "F3"), -1);
    EXPECT_EQ(page.SelectString(1, "fF"), -1);
    EXPECT_EQ(page.NameAxis(1), "FF") << "where the search came to";
}

TEST_F(AxisPageTest, MeetsTheTopEntryOfTheListLast) {
    Page page(*this);
    page.offers = {"Temp", "Temp2", "Temp"};
    page.Create();
    EXPECT_EQ(page.SelectString(1, "Temp"), 2) << "the search begins behind the first entry";
    EXPECT_EQ(page.SelectString(1, "Temp2"), 1);
}

TEST_F(AxisPageTest, RestoresTheDefaultsOfAxisOneForANameThatIsNotInTheList) {
    const auto page = Shown();
    EXPECT_EQ(page->SelectString(2, "Gone"), -1);
    EXPECT_EQ(page->steps, (Texts{"default 1"}));
    EXPECT_EQ(Rows(*page), (Texts{"Time|10|50", "Temp|3|4"}));
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(AxisPageTest, DoesNotFindANameThatOnlyBeginsAnother) {
    const auto page = Shown();
    EXPECT_EQ(page->SelectString(2, "Tem"), -1);
    EXPECT_EQ(page->steps, (Texts{"default 1"}));
    EXPECT_EQ(page->SelectString(2, ""), -1);
}

// SetDefault and its companions.

TEST_F(AxisPageTest, ShowsTheDefaultRangeWhenTheButtonIsPressed) {
    const auto page = Shown();
    EXPECT_TRUE(RowProbe(*page, 2).button.UserClick());
    EXPECT_EQ(page->steps, (Texts{"default 2"}));
    EXPECT_EQ(RowProbe(*page, 2).Text(), "Temp|20|80");
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(AxisPageTest, ShowsMinus99ForAFactorWithoutADefault) {
    const auto page = Shown();
    RowProbe(*page, 1).Pick("Speed");
    RowProbe(*page, 1).button.UserClick();
    EXPECT_EQ(RowProbe(*page, 1).Text(), "Speed|-99|-99");
}

TEST_F(AxisPageTest, ShowsSixDigitsOfARange) {
    const auto page = Shown();
    page->SetRange(1, 0.123456789F, 1234567.0F);
    EXPECT_EQ(RowProbe(*page, 1).Text(), "Time|0.123457|1.23457e+06");
}

TEST_F(AxisPageTest, EmptiesAndDisablesARowWithoutARange) {
    Page page(*this);
    page.offers = {"Time", "Colour", kNone};
    page.Create();
    for (const char* name : {"Colour", kNone.c_str()}) {
        RowProbe(page, 1).Pick("Time");
        EXPECT_EQ(RowProbe(page, 1).Text(), "Time|10|50");
        RowProbe(page, 1).Pick(name);
        EXPECT_EQ(RowProbe(page, 1).Text(), std::string(name) + "|| (off)");
    }
    RowProbe(page, 1).list.SetCurSel(-1);
    page.SetDefault(1);
    EXPECT_EQ(RowProbe(page, 1).Text(), "|| (off)");
    EXPECT_TRUE(RowProbe(page, 1).list.IsEnabled());
}

TEST_F(AxisPageTest, MakesAnAxisUnusedOnlyWhereTheListHoldsTheName) {
    const auto page = Shown();
    page->AddUnusedOption(2);
    page->SetUnused(2);
    EXPECT_EQ(RowProbe(*page, 2).Text(), kNone + "|| (off)");
    page->SetUnused(1);
    EXPECT_EQ(RowProbe(*page, 1).Text(), "|| (off)");
    EXPECT_EQ(page->steps, (Texts{"default 2", "default 1"}));
}

TEST_F(AxisPageTest, OffersTheNotUsedNameOnceAndLast) {
    const auto page = Shown();
    page->AddUnusedOption(1);
    page->AddUnusedOption(1);
    EXPECT_EQ(RowProbe(*page, 1).Entries(), (Texts{"Temp2", "Temp", "Time", "Speed", kNone}));
    EXPECT_EQ(RowProbe(*page, 1).Name(), "Time");
}

TEST_F(AxisPageTest, SwitchesTheListAlone) {
    const auto page = Shown();
    page->EnableAxis(1, false);
    EXPECT_FALSE(RowProbe(*page, 1).list.IsEnabled());
    EXPECT_EQ(RowProbe(*page, 1).Text(), "Time|1|2");
    page->EnableAxis(1, true);
    EXPECT_TRUE(RowProbe(*page, 1).list.IsEnabled());
}

TEST_F(AxisPageTest, ConnectsOnlyTheRowsOfItsAxes) {
    const auto page = Shown();
    RowProbe third(*page, 3);
    third.button.UserClick();
    third.low.UserEdit(L"5");
    EXPECT_TRUE(page->steps.empty());
    EXPECT_FALSE(page->IsChanged());
    EXPECT_EQ(page->SelectString(3, "Time"), -1);
}

TEST_F(AxisPageTest, ConnectsEachRowToControlsOfItsOwn) {
    axes = MakeAxes({{}, {}, {}, {}, {}, {}});
    for (int axis = 1; axis <= 6; ++axis) {
        const auto page = Shown();
        const Texts before = Rows(*page);
        const std::string number = std::to_string(axis);
        RowProbe row(*page, axis);
        row.Pick("Speed");
        EXPECT_EQ(page->steps, (Texts{"default " + number, "change " + number}));
        EXPECT_TRUE(row.button.IsEnabled());
        page->steps.clear();
        page->changes = 0;
        row.button.UserClick();
        EXPECT_EQ(page->steps, (Texts{"default " + number}));
        EXPECT_EQ(page->changes, 2) << "by the two edits that it writes, and no more";
        page->changes = 0;
        row.low.UserEdit(L"1.5");
        row.high.UserEdit(L"2.5");
        EXPECT_EQ(page->changes, 2);
        EXPECT_EQ(page->GetMin(axis), 1.5);
        EXPECT_EQ(page->GetMax(axis), 2.5);
        page->TransferFromPage();
        const auto index = static_cast<std::size_t>(axis);
        EXPECT_EQ(axes[index]->GetName(), "Speed");
        EXPECT_EQ(axes[index]->GetMin(), 1.5F);
        EXPECT_EQ(axes[index]->GetMax(), 2.5F);
        Texts after = Rows(*page);
        EXPECT_EQ(after[index - 1], "Speed|1.5|2.5");
        after[index - 1] = before[index - 1];
        EXPECT_EQ(after, before) << "the other rows are left alone";
        axes = MakeAxes({{}, {}, {}, {}, {}, {}});
    }
}

// Events.

TEST_F(AxisPageTest, ShowsDefaultsThenReportsThePick) {
    const auto page = Shown();
    RowProbe(*page, 2).Pick("Temp2");
    EXPECT_EQ(page->steps, (Texts{"default 2", "change 2"}));
    EXPECT_EQ(RowProbe(*page, 2).Text(), "Temp2|30|70");
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(AxisPageTest, IsMarkedByAPickThatWritesNoEdit) {
    Page page(*this);
    page.Create();
    page.changes = 0;
    page.AxisPage::OnChangeAxis(1);
    EXPECT_EQ(page.changes, 1);
}

TEST_F(AxisPageTest, IsMarkedByEachEdit) {
    for (int axis = 1; axis <= 2; ++axis) {
        const auto low = Shown();
        RowProbe(*low, axis).low.UserEdit(L"7");
        EXPECT_EQ(low->changes, 1);
        EXPECT_TRUE(low->IsChanged());
        const auto high = Shown();
        RowProbe(*high, axis).high.UserEdit(L"7");
        EXPECT_EQ(high->changes, 1);
    }
}

// Defaults and settings by name.

TEST_F(AxisPageTest, FindsTheFirstDefaultOfANameAndSkipsEmptyPointers) {
    AxisVector some = MakeAxes({{"A", 1, 2}, {"B", 3, 4}, {"A", 5, 6}});
    some.insert(some.begin() + 1, nullptr);
    EXPECT_EQ(AxisPage::GetDefaultValue(some, AxisPage::LowValue, "A"), 1.0F);
    EXPECT_EQ(AxisPage::GetDefaultValue(some, AxisPage::HighValue, "A"), 2.0F);
    EXPECT_EQ(AxisPage::GetDefaultValue(some, AxisPage::HighValue, "B"), 4.0F);
    EXPECT_EQ(AxisPage::GetDefaultValue(some, AxisPage::LowValue, "a"), -99.0F);
    EXPECT_EQ(AxisPage::GetDefaultValue({}, AxisPage::LowValue, "A"), -99.0F);
}

TEST_F(AxisPageTest, WalksTheDefaultsFromTheVeryFirstElement) {
    const AxisVector some = MakeAxes({{"A", 1, 2}, {"A", 3, 4}});
    EXPECT_EQ(AxisPage::GetDefaultValue({some[2], some[1]}, AxisPage::LowValue, "A"), 3.0F);
}

TEST_F(AxisPageTest, SplitsSettingsAndTellsWhenAnyIsUnknown) {
    const Variables* variables = study.GetVariables();
    Texts settings{"kept"};
    EXPECT_TRUE(AxisPage::ToVectorString(variables, "Colour", "blue;;red", settings));
    EXPECT_EQ(settings, (Texts{"kept", "blue", "red"}));
    settings.clear();
    EXPECT_FALSE(AxisPage::ToVectorString(variables, "Colour", "blue;pink;red; red", settings));
    EXPECT_EQ(settings, (Texts{"blue", "red"}));
    settings.clear();
    EXPECT_TRUE(AxisPage::ToVectorString(variables, "Colour", "", settings));
    EXPECT_FALSE(AxisPage::ToVectorString(variables, "Gone", "blue", settings));
    EXPECT_TRUE(settings.empty());
}

// Writing back.

TEST_F(AxisPageTest, WritesNamesAndRangesButNotUnitsAndSettings) {
    axes[1]->SetUnit("min");
    axes[1]->SetSettings("a;b");
    const auto page = Shown();
    RowProbe(*page, 1).Pick("Speed");
    RowProbe(*page, 1).low.UserEdit(L" 1.25 ");
    RowProbe(*page, 1).high.UserEdit(L"x");
    page->AxisPage::TransferFromPage();
    EXPECT_EQ(axes[1]->GetName(), "Speed");
    EXPECT_EQ(axes[1]->GetMin(), 1.25F);
    EXPECT_EQ(axes[1]->GetMax(), -99.0F);
    EXPECT_EQ(axes[1]->GetUnit(), "min");
    EXPECT_EQ(axes[1]->GetSettings(), "a;b");
    EXPECT_EQ(axes[2]->GetName(), "Temp");
    EXPECT_EQ(axes[2]->GetMin(), 3.0F);
}

TEST_F(AxisPageTest, LeavesTheRangeOfAnUnusedOrQualitativeAxisAlone) {
    Page page(*this);
    page.offers = {"Time", "Temp", "Colour", kNone};
    page.Create();
    RowProbe(page, 1).Pick(kNone);
    RowProbe(page, 2).Pick("Colour");
    page.TransferFromPage();
    EXPECT_EQ(axes[1]->GetName(), kNone);
    EXPECT_EQ(axes[1]->GetMin(), 1.0F);
    EXPECT_EQ(axes[2]->GetName(), "Colour");
    EXPECT_EQ(axes[2]->GetMax(), 4.0F);
}

// Judging. The rules themselves are tested with AxisRules.

TEST_F(AxisPageTest, JudgesWhatItsControlsShow) {
    const auto page = Shown();
    EXPECT_EQ(page->IsAxisLegal(1), 0U);
    RowProbe(*page, 2).low.UserEdit(L"x");
    EXPECT_EQ(page->IsAxisLegal(1), 0U);
    EXPECT_EQ(page->IsAxisLegal(2), AxisPage::AxisLowNotNumber);
    std::string message;
    EXPECT_EQ(page->AreAxesLegal(message), AxisPage::AxisError);
    EXPECT_EQ(message, "The low setting on the 2nd axis (Temp) is not a number.");
}

TEST_F(AxisPageTest, IgnoresTheRowsBeyondItsAxes) {
    const auto page = Shown();
    std::string message;
    EXPECT_EQ(page->AreAxesLegal(message), AxisPage::AxisNoError);
    EXPECT_EQ(page->IsAxisLegal(3), 0U);
}

TEST_F(AxisPageTest, TellsAnErrorWithoutASheetToo) {
    const auto page = Shown();
    RowProbe(*page, 1).low.UserEdit(L"x");
    EXPECT_FALSE(page->CheckLegalAxes());
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].caption, "");
}

}  // namespace
}  // namespace kvopt::test
