#include "kvopt/platform/property_grid.h"

#include "kvopt/text.h"
#include "property_grid_fixture.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;

using Grid = PropertyGridTest;

TEST_F(Grid, StandsWhereTheTemplateHasIt) {
    EXPECT_EQ(dialog->GetDlgItem(kGrid), grid);
    EXPECT_EQ(grid->AccessibleName(), L"Options");
    EXPECT_EQ(colours->Grid(), grid);
    EXPECT_EQ(shade->Grid(), grid);
    EXPECT_EQ(shade->Window(), dialog.get());
    EXPECT_EQ(shade->Parent(), blue);
    EXPECT_EQ(colours->Parent(), nullptr);
    EXPECT_TRUE(colours->IsCategory());
    EXPECT_FALSE(red->IsCategory());
    const CXTPPropertyGridItem alone(L"Alone");
    EXPECT_EQ(alone.Grid(), nullptr);
    EXPECT_EQ(alone.Window(), nullptr);
}

TEST_F(Grid, SplitsALiteralAtItsFirstLineBreakAndTrimsNothing) {
    const CXTPPropertyGridItem item(L"Caption \n Described.\nOn two lines. ");
    EXPECT_EQ(item.GetCaption(), L"Caption ");
    EXPECT_EQ(item.GetDescription(), L" Described.\nOn two lines. ");
    EXPECT_EQ(red->GetDescription(), L"Is it red?");
    EXPECT_EQ(blue->GetCaption(), L"Blue");
    EXPECT_EQ(blue->GetDescription(), L"");
    EXPECT_EQ(colours->GetCaption(), L"Colours");
    EXPECT_EQ(colours->GetDescription(), L"What it is painted with.");
    red->SetDescription(red->GetDescription() + L" It is.");
    EXPECT_EQ(red->GetDescription(), L"Is it red? It is.");
}

TEST_F(Grid, ListsAllItsRowsAndThoseThatAreShown) {
    std::vector<std::wstring> all;
    for (const CXTPPropertyGridItem* row : grid->Rows()) {
        all.push_back(row->GetCaption());
    }
    EXPECT_THAT(all, ElementsAre(L"Colours", L"Red", L"Blue", L"Shade", L"Numbers", L"Count",
                                 L"Weight", L"Name"));
    EXPECT_THAT(Shown(),
                ElementsAre(L"Colours", L"Red", L"Blue", L"Numbers", L"Count", L"Weight", L"Name"));
    blue->Expand();
    EXPECT_TRUE(shade->IsShown());
    colours->Collapse();
    EXPECT_FALSE(shade->IsShown()) << "its parent is expanded, but not seen";
    EXPECT_THAT(Shown(), ElementsAre(L"Colours", L"Numbers", L"Count", L"Weight", L"Name"));
    numbers->SetHidden(true);
    EXPECT_FALSE(count->IsShown());
    EXPECT_FALSE(count->IsHidden()) << "its own flag";
    EXPECT_THAT(Shown(), ElementsAre(L"Colours"));
}

TEST_F(Grid, StartsARowCollapsedFreeAndVisible) {
    const CXTPPropertyGridItem item(L"New");
    EXPECT_FALSE(item.IsExpanded());
    EXPECT_FALSE(item.GetReadOnly());
    EXPECT_FALSE(item.IsHidden());
    EXPECT_EQ(item.GetID(), 0);
    EXPECT_EQ(item.GetValue(), L"");
    EXPECT_FALSE(grid->AddCategory(L"More").IsExpanded());
}

TEST_F(Grid, FindsTheFirstRowOfANumber) {
    EXPECT_THAT(grid->FindItem(22), IsNull());
    shade->SetID(22);
    weight->SetID(22);
    EXPECT_EQ(grid->FindItem(22), shade) << "also when it is not shown";
    EXPECT_THAT(grid->FindItem(0), IsNull()) << "rows without a number";
    EXPECT_EQ(grid->FindItem(L"Weight"), weight);
    EXPECT_EQ(grid->FindItem(L"Numbers"), numbers);
    EXPECT_THAT(grid->FindItem(L"weight"), IsNull());
}

TEST_F(Grid, TakesAllRowsAwayAndIsFilledAnew) {
    CountingView view;
    grid->SetSelectedItem(red);
    grid->UserScroll(3);
    grid->UserBeginEdit(count);
    grid->UserEdit(L"9");
    grid->AddListener(&view);
    grid->ResetContent();
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Items));
    grid->RemoveListener(&view);
    EXPECT_THAT(grid->Rows(), IsEmpty());
    EXPECT_THAT(grid->GetSelectedItem(), IsNull());
    EXPECT_THAT(grid->EditedItem(), IsNull());
    EXPECT_EQ(grid->GetTopIndex(), 0);
    EXPECT_EQ(boundCount, 3) << "the editor was abandoned";
    EXPECT_THAT(Heard(), IsEmpty());
    Fill();
    EXPECT_EQ(grid->GetTopIndex(), 0) << "the place of before is forgotten";
    EXPECT_EQ(Shown().size(), 7U);
    EXPECT_TRUE(grid->UserToggle(red));
}

TEST_F(Grid, KeepsItsTopRowWithinWhatIsShown) {
    EXPECT_EQ(grid->GetTopIndex(), 0);
    grid->SetTopIndex(4);
    EXPECT_EQ(grid->GetTopIndex(), 4);
    grid->SetTopIndex(70);
    EXPECT_EQ(grid->GetTopIndex(), 6);
    numbers->Collapse();
    EXPECT_EQ(grid->GetTopIndex(), 3);
    grid->SetTopIndex(-1);
    EXPECT_EQ(grid->GetTopIndex(), 0);
    EXPECT_TRUE(grid->UserScroll(2));
    EXPECT_EQ(grid->GetTopIndex(), 2);
    EXPECT_THAT(dialog->GetFocusControl(), IsNull()) << "scrolling moves no focus";
    grid->ResetContent();
    grid->SetTopIndex(2);
    EXPECT_EQ(grid->GetTopIndex(), 0);
}

TEST_F(Grid, TellsItsViewsWhatTheProgramSetsAndNobodyElse) {
    CountingView view;
    grid->AddListener(&view);
    red->SetBool(true);
    blue->SetEnum(5);
    shade->SetNumber(8);
    weight->SetDouble(2.0);
    name->SetValue(L"Ada");
    EXPECT_THAT(view.Take(), testing::Each(WindowChange::Cells));
    red->SetBool(true);
    blue->SetEnum(5);
    shade->SetNumber(8);
    weight->SetDouble(2.0);
    name->SetValue(L"Ada");
    red->SetReadOnly(false);
    red->SetHidden(false);
    colours->Expand();
    EXPECT_THAT(view.Take(), IsEmpty()) << "nothing differs";
    red->SetReadOnly(true);
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Cells));
    red->SetDescription(L"Other");
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Cells));
    name->SetDefaultValue(L"Eve");
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Cells));
    blue->EnableConstraint(1, false);
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Cells));
    red->SetHidden(true);
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Items));
    colours->Collapse();
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Items));
    grid->AddCategory(L"More").AddChildItem(std::make_unique<CXTPPropertyGridItem>(L"Row"));
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Items, WindowChange::Items));
    grid->SetSelectedItem(weight);
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Selection));
    grid->SetTopIndex(1);
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::TopRow));
    grid->ShowHelp(false);
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Pane));
    grid->SetViewDivider(0.4);
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Range));
    grid->SetSelectedItem(weight);
    grid->SetTopIndex(1);
    grid->ShowHelp(false);
    grid->SetViewDivider(0.4);
    EXPECT_THAT(view.Take(), IsEmpty());
    grid->RemoveListener(&view);
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(Grid, ShowsItsPaneAndDividesItsWidth) {
    EXPECT_TRUE(grid->IsHelpVisible());
    grid->ShowHelp(false);
    EXPECT_FALSE(grid->IsHelpVisible());
    grid->SetViewDivider(0.4);
    EXPECT_EQ(grid->GetViewDivider(), 0.4);
    EXPECT_THROW(grid->SetViewDivider(0.0), InvalidArgument);
    EXPECT_THROW(grid->SetViewDivider(1.0), InvalidArgument);
    EXPECT_EQ(grid->GetViewDivider(), 0.4);
}

TEST_F(Grid, LetsItsViewsLetGoOfRowsBeforeTheyDie) {
    class Mortal : public CXTPPropertyGridItem {
    public:
        explicit Mortal(bool& alive) : CXTPPropertyGridItem(L"Mortal"), alive_(alive) {
            alive_ = true;
        }
        ~Mortal() override { alive_ = false; }

    private:
        bool& alive_;
    };
    class View : public CountingView {
    public:
        explicit View(const bool& alive) : alive_(alive) {}
        void OnWindowChanged(CWnd& /*window*/, WindowChange /*change*/) override { seen = alive_; }
        bool seen = false;

    private:
        const bool& alive_;
    };
    bool alive = false;
    View view(alive);
    numbers->AddChildItem(std::make_unique<Mortal>(alive));
    grid->AddListener(&view);
    grid->ResetContent();
    EXPECT_TRUE(view.seen);
    EXPECT_FALSE(alive);
    grid->RemoveListener(&view);
}

TEST_F(Grid, SelectsRowsThatAreShown) {
    EXPECT_FALSE(grid->UserSelect(shade));
    EXPECT_THAT(dialog->GetFocusControl(), IsNull()) << "what is refused moves no focus";
    EXPECT_TRUE(grid->UserSelect(colours));
    EXPECT_EQ(grid->GetSelectedItem(), colours);
    EXPECT_EQ(dialog->GetFocusControl(), grid);
    red->SetReadOnly(true);
    EXPECT_TRUE(grid->UserSelect(red)) << "to read what it says";
    EXPECT_FALSE(grid->UserSelect(shade)) << "its parent is collapsed";
    EXPECT_EQ(grid->GetSelectedItem(), red);
    grid->SetSelectedItem(shade);
    EXPECT_THAT(grid->GetSelectedItem(), IsNull());
    EXPECT_FALSE(grid->UserSelect(nullptr));
    CXTPPropertyGridItem stranger(L"Red");
    EXPECT_FALSE(grid->UserSelect(&stranger));
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(Grid, GivesTheSelectionOfAVanishedRowToTheOneAboveIt) {
    blue->Expand();
    grid->UserSelect(shade);
    EXPECT_TRUE(grid->UserExpand(blue, false));
    EXPECT_EQ(grid->GetSelectedItem(), blue);
    blue->SetHidden(true);
    EXPECT_EQ(grid->GetSelectedItem(), colours);
    colours->SetHidden(true);
    EXPECT_THAT(grid->GetSelectedItem(), IsNull());
}

TEST_F(Grid, ExpandsAndCollapsesForTheUser) {
    EXPECT_TRUE(grid->UserExpand(blue, true));
    EXPECT_TRUE(shade->IsShown());
    colours->SetReadOnly(true);
    EXPECT_TRUE(grid->UserExpand(colours, false)) << "reading is free";
    EXPECT_FALSE(red->IsShown());
    EXPECT_FALSE(grid->UserExpand(red, true)) << "not shown";
    EXPECT_FALSE(grid->UserExpand(weight, true)) << "nothing stands below";
    EXPECT_FALSE(weight->IsExpanded());
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(Grid, TurnsABoolOver) {
    EXPECT_TRUE(grid->UserToggle(red));
    EXPECT_THAT(Heard(), ElementsAre("3 Red=Yes"));
    EXPECT_EQ(grid->GetSelectedItem(), red);
    EXPECT_TRUE(grid->UserToggle(red));
    EXPECT_THAT(Heard(), ElementsAre("3 Red=No"));
    EXPECT_FALSE(grid->UserToggle(blue)) << "no bool";
    red->SetReadOnly(true);
    EXPECT_FALSE(grid->UserToggle(red));
    EXPECT_FALSE(red->GetBool());
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(Grid, PicksAChoice) {
    EXPECT_TRUE(grid->UserPick(blue, 2));
    EXPECT_EQ(blue->GetEnum(), 5);
    EXPECT_THAT(Heard(), ElementsAre("3 Blue=Much"));
    EXPECT_TRUE(grid->UserPick(blue, 2)) << "the present one";
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_TRUE(grid->UserPick(red, 0));
    EXPECT_THAT(Heard(), ElementsAre("3 Red=Yes"));
    int flag = 2;
    red->BindToBool(&flag);
    EXPECT_TRUE(grid->UserPick(red, 0));
    EXPECT_EQ(flag, 2) << "the choice that stands there is not stored again";
    blue->EnableConstraint(1, false);
    EXPECT_FALSE(grid->UserPick(blue, 0)) << "disabled";
    EXPECT_FALSE(grid->UserPick(blue, 3));
    EXPECT_FALSE(grid->UserPick(blue, -1));
    EXPECT_FALSE(grid->UserPick(count, 0)) << "offers nothing";
    blue->SetReadOnly(true);
    EXPECT_FALSE(grid->UserPick(blue, 1));
    EXPECT_EQ(blue->GetEnum(), 5);
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(Grid, TypesIntoARow) {
    EXPECT_TRUE(grid->UserBeginEdit(count));
    EXPECT_EQ(grid->EditedItem(), count);
    EXPECT_EQ(grid->EditorText(), L"3") << "it begins with the value";
    EXPECT_EQ(grid->GetSelectedItem(), count);
    EXPECT_TRUE(grid->UserEdit(L"12"));
    EXPECT_EQ(boundCount, 3) << "not before it is committed";
    EXPECT_TRUE(grid->UserCommit());
    EXPECT_EQ(boundCount, 12);
    EXPECT_THAT(Heard(), ElementsAre("3 Count=12"));
    EXPECT_THAT(grid->EditedItem(), IsNull());
    EXPECT_FALSE(grid->UserEdit(L"13"));
    EXPECT_FALSE(grid->UserCommit());
    EXPECT_FALSE(grid->UserAbandon());
    EXPECT_FALSE(grid->UserBeginEdit(blue)) << "its value is picked";
    EXPECT_FALSE(grid->UserBeginEdit(red));
    EXPECT_FALSE(grid->UserBeginEdit(numbers));
    count->SetReadOnly(true);
    EXPECT_FALSE(grid->UserBeginEdit(count));
    EXPECT_THAT(grid->EditedItem(), IsNull());
}

TEST_F(Grid, AbandonsAnEdit) {
    grid->UserBeginEdit(count);
    grid->UserEdit(L"12");
    EXPECT_TRUE(grid->UserAbandon());
    EXPECT_THAT(grid->EditedItem(), IsNull());
    EXPECT_EQ(boundCount, 3);
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(Grid, BeginsAnEditOnceAndKeepsItOnItsRow) {
    grid->UserBeginEdit(count);
    grid->UserEdit(L"12");
    EXPECT_TRUE(grid->UserBeginEdit(count));
    EXPECT_TRUE(grid->UserSelect(count));
    EXPECT_EQ(grid->EditorText(), L"12");
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(Grid, TellsNobodyOfAValueThatIsTheSameAsBefore) {
    EXPECT_TRUE(Type(count, L"3"));
    EXPECT_TRUE(Type(count, L" +3 ")) << "another text, the same number";
    EXPECT_TRUE(Type(count, L"three"));
    EXPECT_TRUE(Type(count, L""));
    EXPECT_EQ(boundCount, 3);
    EXPECT_TRUE(Type(weight, L"heavy"));
    EXPECT_TRUE(Type(weight, L"1,6"));
    EXPECT_EQ(weight->GetDouble(), 1.5);
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(Grid, KeepsTheDigitsThatItDoesNotShowWhenTheirTextIsNotTouched) {
    weight->SetDouble(1.23456789);
    EXPECT_EQ(weight->GetValue(), L"1.23457");
    EXPECT_TRUE(Type(weight, L"1.23457"));
    EXPECT_EQ(weight->GetDouble(), 1.23456789);
    EXPECT_TRUE(Type(weight, L"1.23456"));
    EXPECT_EQ(weight->GetDouble(), 1.23456);
    EXPECT_THAT(Heard(), ElementsAre("3 Weight=1.23456"));
}

TEST_F(Grid, CommitsWhenTheUserGoesElsewhere) {
    const std::vector<std::function<bool()>> ways{
        [&] { return grid->UserSelect(weight); },
        [&] { return grid->UserToggle(red); },
        [&] { return grid->UserPick(blue, 1); },
        [&] { return grid->UserBeginEdit(weight); },
        [&] { return grid->UserExpand(blue, true); },
        [&] { return dialog->Item<CButton>(kBesideGrid)->UserClick(); },
        [&] {
            dialog->GetDlgItem(kBesideGrid)->SetFocus();
            return true;
        },
    };
    for (std::size_t way = 0; way < ways.size(); ++way) {
        count->SetNumber(3);
        Heard();
        grid->UserBeginEdit(count);
        grid->UserEdit(L"12");
        EXPECT_TRUE(ways[way]()) << way;
        EXPECT_EQ(boundCount, 12) << way;
        ASSERT_FALSE(heard.empty()) << way;
        EXPECT_EQ(heard.front(), "3 Count=12") << way;
        EXPECT_NE(grid->EditedItem(), count) << way;
    }
}

TEST_F(Grid, CommitsTheRowThatTheUserCloses) {
    blue->Expand();
    grid->UserBeginEdit(shade);
    grid->UserEdit(L"9");
    EXPECT_TRUE(grid->UserExpand(blue, false));
    EXPECT_EQ(shade->GetNumber(), 9);
    EXPECT_THAT(Heard(), ElementsAre("3 Shade=9"));
}

TEST_F(Grid, AbandonsTheEditorOfARowThatTheProgramTakesAway) {
    const std::vector<std::function<void()>> ways{[&] { count->SetReadOnly(true); },
                                                  [&] { count->SetHidden(true); },
                                                  [&] { numbers->Collapse(); }};
    for (std::size_t way = 0; way < ways.size(); ++way) {
        count->SetReadOnly(false);
        count->SetHidden(false);
        numbers->Expand();
        ASSERT_TRUE(grid->UserBeginEdit(count)) << way;
        grid->UserEdit(L"12");
        ways[way]();
        EXPECT_THAT(grid->EditedItem(), IsNull()) << way;
        EXPECT_EQ(boundCount, 3) << way;
    }
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(Grid, RefusesTheUserWhereItCannotBeReached) {
    const auto refuses = [&] {
        return !grid->UserSelect(red) && !grid->UserToggle(red) && !grid->UserPick(blue, 0) &&
               !grid->UserBeginEdit(count) && !grid->UserExpand(blue, true) && !grid->UserScroll(1);
    };
    grid->EnableWindow(false);
    EXPECT_TRUE(refuses());
    grid->EnableWindow(true);
    grid->ShowWindow(false);
    EXPECT_TRUE(refuses());
    grid->ShowWindow(true);
    EXPECT_FALSE(refuses());
}

TEST_F(Grid, SurvivesBeingFilledAnewByTheHandlerOfACommit) {
    also = [&](CXTPPropertyGridItem&) {
        grid->ResetContent();
        Fill();
    };
    const CXTPPropertyGridItem* const before = weight;
    grid->UserBeginEdit(count);
    grid->UserEdit(L"12");
    EXPECT_FALSE(grid->UserSelect(weight)) << "the row is gone";
    EXPECT_NE(weight, before);
    EXPECT_EQ(count->GetNumber(), 12);
    EXPECT_THAT(Heard(), ElementsAre("3 Count=12"));
    EXPECT_TRUE(grid->UserToggle(red));
}

TEST_F(Grid, NotifiesOnceWhenTheHandlerCorrectsTheValue) {
    also = [&](CXTPPropertyGridItem& item) {
        if (&item == weight && weight->GetDouble() > 10.0) {
            weight->SetDouble(1.5);
        }
    };
    EXPECT_TRUE(Type(weight, L"11"));
    EXPECT_EQ(weight->GetDouble(), 1.5);
    EXPECT_THAT(Heard(), ElementsAre("3 Weight=11"));
}

/// Takes even numbers alone, and says so.
class EvenNumber : public CXTPPropertyGridItemNumber {
public:
    using CXTPPropertyGridItemNumber::CXTPPropertyGridItemNumber;
    void SetValue(std::wstring_view text) override {
        int value = 0;
        if (KvString::ToInt(text, value) && value % 2 != 0) {
            ShowMessage(Window(), L"The number should be even.", BoxStyle::Error);
            return;
        }
        CXTPPropertyGridItemNumber::SetValue(text);
    }
};

TEST_F(Grid, LetsARowRefuseWhatWasTyped) {
    auto& even = numbers->AddChildItem(std::make_unique<EvenNumber>(L"Even", 2));
    Log();
    EXPECT_TRUE(Type(&even, L"5"));
    EXPECT_THAT(Log(), ElementsAre("box 16 \"Grid\" \"The number should be even.\" -> ok"));
    EXPECT_EQ(even.GetNumber(), 2);
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_TRUE(Type(&even, L"6"));
    EXPECT_THAT(Heard(), ElementsAre("3 Even=6"));
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Grid, RunsWhatTheHandlerPostsBehindTheUsersAct) {
    also = [&](CXTPPropertyGridItem&) {
        dialog->PostStep("", [&] { heard.emplace_back("posted"); });
        heard.emplace_back("handled");
    };
    grid->UserToggle(red);
    EXPECT_THAT(Heard(), ElementsAre("3 Red=Yes", "handled", "posted"));
}

TEST_F(Grid, NeedsNobodyToListen) {
    grid->SetNotifyHandler({});
    EXPECT_TRUE(grid->UserToggle(red));
    EXPECT_TRUE(red->GetBool());
}

}  // namespace
}  // namespace kvopt
