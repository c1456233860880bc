#include "kvopt/selection/multiple_response_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "kvopt/platform.h"
#include "kvopt/selection/select_responses.h"
#include "support/fake_study.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Names = std::vector<std::string>;

/// The owner of a selection, which notes what it is given.
class NotedOwner : public SelectResponseBase {
public:
    explicit NotedOwner(bool multiple, ResponseType type = Extended)
        : SelectResponseBase(type), multiple_(multiple) {}
    bool UseMultipleResponses() const override { return multiple_; }
    void SetSelResponses(const std::vector<std::string>& responses) override {
        given.push_back(responses);
    }
    std::vector<std::string> GetSelResponses() const override { return chosen; }
    bool GetSpecialAvailable(std::vector<std::string>& items, std::string& type) const override {
        if (GetResponseType() != Special) {
            return false;
        }
        items = special;
        type = "models";
        return true;
    }

    Names chosen;
    Names special{"S1", "S2", "S3"};
    std::vector<Names> given;

private:
    bool multiple_;
};

class ProbePage : public MultipleResponsePage {
public:
    using MultipleResponsePage::AddSelectedIndex;
    using MultipleResponsePage::ApplyPage;
    using MultipleResponsePage::GetResponseIndex;
    using MultipleResponsePage::MoveResponse;
    using MultipleResponsePage::MultipleResponsePage;
    using MultipleResponsePage::TransferToPage;

    CListBox& Available() const { return *Item<CListBox>(6076); }
    CListBox& Selected() const { return *Item<CListBox>(6078); }
    CButton& AddArrow() const { return *Item<CButton>(6005); }
    CButton& RemoveArrow() const { return *Item<CButton>(6017); }
    CButton& Reset() const { return *Item<CButton>(6313); }

    /// The entries, marked ones with a "*" before them.
    static Names Entries(const CListBox& list) {
        Names names;
        for (int i = 0; i < list.GetCount(); ++i) {
            names.push_back((list.GetSel(i) ? "*" : "") + KvStdString::ToUtf8(list.GetItemText(i)));
        }
        return names;
    }
    Names Left() const { return Entries(Available()); }
    Names Right() const { return Entries(Selected()); }
    /// Which arrows are on: "add remove".
    std::string Arrows() const {
        return std::string(AddArrow().IsEnabled() ? "add" : "-") +
               (RemoveArrow().IsEnabled() ? " remove" : " -");
    }
    std::string Label(int number) const {
        return KvStdString::ToUtf8(GetDlgItem(number)->GetText());
    }

    int changes = 0;
    void Changed() override {
        ++changes;
        MultipleResponsePage::Changed();
    }
};

class MultipleResponsePageTest : public testing::Test {
protected:
    MultipleResponsePageTest() {
        for (const char* name : {"Y1", "Y2", "Y3", "Y4", "Y5"}) {
            study.Response(name);
        }
    }
    ~MultipleResponsePageTest() override { Investigation::SetActiveInvestigation(nullptr); }

    std::unique_ptr<ProbePage> Make(const Names& selected, int maxSelections = -1,
                                    BasePropertyPageHelper* helper = nullptr) {
        responses = std::make_unique<SelectResponses>(&study, true);
        responses->SetResponses(selected);
        return std::make_unique<ProbePage>(&study, *responses, 6172U, maxSelections, helper, 65U);
    }
    std::unique_ptr<ProbePage> Shown(const Names& selected, int maxSelections = -1,
                                     BasePropertyPageHelper* helper = nullptr) {
        auto page = Make(selected, maxSelections, helper);
        Show(*page);
        return page;
    }
    static void Show(ProbePage& page) {
        page.Create();
        page.OnSetActive();
    }
    /// Of items that come from an owner.
    std::unique_ptr<ProbePage> ShownOf(SelectResponseBase& owner, int maxSelections = -1) {
        responses = std::make_unique<SelectResponses>(&study, &owner);
        auto page =
            std::make_unique<ProbePage>(&study, *responses, 6172U, maxSelections, nullptr, 65U);
        Show(*page);
        return page;
    }
    static void Mark(CListBox& list, const std::vector<int>& indices) { list.UserMark(indices); }

    SheetDesktop desktop;
    FakeStudy study;
    std::unique_ptr<SelectResponses> responses;
};

// Construction.

TEST_F(MultipleResponsePageTest, KeepsTheTitleOfItsTemplateForResponses) {
    const auto page = Make({"Y1"});
    EXPECT_EQ(page->PageTitle(), L"Select responses");
    EXPECT_EQ(page->TemplateNumber(), 6172);
    EXPECT_EQ(page->HelpTopicID(), 65U);
    EXPECT_EQ(page->CaptionNumber(), 0U);
}

TEST_F(MultipleResponsePageTest, NamesOtherItemsInItsTitleAndLabels) {
    NotedOwner owner(true, SelectResponseBase::Special);
    const auto page = ShownOf(owner);
    EXPECT_EQ(page->PageTitle(), L"Select models");
    EXPECT_EQ(page->Label(6303), "Select the models you want to display.");
    EXPECT_EQ(page->Label(6215), "Available models:");
    EXPECT_EQ(page->Label(6216), "Selected models:");
}

TEST_F(MultipleResponsePageTest, LabelsItsListsForResponses) {
    const auto page = Shown({"Y1"});
    EXPECT_EQ(page->Label(6303), "Select the responses you want to display.");
    EXPECT_EQ(page->Label(6215), "Available responses:");
    EXPECT_EQ(page->Label(6216), "Selected responses:");
}

TEST_F(MultipleResponsePageTest, BringsTheSelectionInLineWithTheStudyFirst) {
    study.unavailable = {"Y1"};
    study.SetSelectedResponses({"Y3"});
    const auto page = Shown({"Y1"});
    EXPECT_THAT(page->Right(), ElementsAre("*Y3"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y2", "Y4", "Y5"));
}

TEST_F(MultipleResponsePageTest, TakesANegativeBoundForAll) {
    EXPECT_EQ(Make({"Y1"}, -1)->MaxSelections(), 5);
    EXPECT_EQ(Make({"Y1", "Y4"}, -99)->MaxSelections(), 5);
    EXPECT_EQ(Make({"Y1"}, 0)->MaxSelections(), 0);
    EXPECT_EQ(Make({"Y1"}, 3)->MaxSelections(), 3);
}

// Opening.

TEST_F(MultipleResponsePageTest, ShowsTheModelsListsInTheirOrderWithTheFirstMarked) {
    const auto page = Shown({"Y4", "Y2"});
    EXPECT_THAT(page->Right(), ElementsAre("*Y4", "Y2"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y1", "Y3", "Y5"));
    EXPECT_EQ(page->Arrows(), "add remove");
    EXPECT_FALSE(page->IsChanged());
    EXPECT_EQ(page->changes, 0);
}

TEST_F(MultipleResponsePageTest, ShowsTheModelsAvailableOrderAsItIs) {
    auto page = Make({"Y1"});
    responses->SetUnselectedResponses({"Y5", "Y2"});
    Show(*page);
    EXPECT_THAT(page->Left(), ElementsAre("*Y5", "Y2"));
}

TEST_F(MultipleResponsePageTest, EmptiesItsListsBeforeItFillsThem) {
    const auto page = Shown({"Y1"});
    responses->SetResponses({"Y2", "Y3"});
    page->TransferToPage();
    EXPECT_THAT(page->Right(), ElementsAre("Y2", "Y3"));
    EXPECT_THAT(page->Left(), ElementsAre("Y4", "Y5", "Y1"));
}

struct ResetRow {
    const char* label;
    Names defaults;
    bool readOnly;
    bool shown;
};

void PrintTo(const ResetRow& row, std::ostream* out) {
    *out << row.label;
}

class ResetButton : public MultipleResponsePageTest,
                    public testing::WithParamInterface<ResetRow> {};

TEST_P(ResetButton, IsThereForDefaultsThatMayBeRestored) {
    const auto page = Make({"Y1"});
    page->SetDefauts(GetParam().defaults);
    page->SetResponseReadOnly(GetParam().readOnly);
    Show(*page);
    EXPECT_EQ(page->Reset().IsVisible(), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(States, ResetButton,
                         testing::Values(ResetRow{"Defaults", {"Y2"}, false, true},
                                         ResetRow{"NoDefaults", {}, false, false},
                                         ResetRow{"ReadOnly", {"Y2"}, true, false},
                                         ResetRow{"ReadOnlyWithoutDefaults", {}, true, false}),
                         testing::PrintToStringParamName());

// Adding.

TEST_F(MultipleResponsePageTest, AddsWhatIsMarkedToTheEnd) {
    const auto page = Shown({"Y4"});
    Mark(page->Available(), {0, 2});
    EXPECT_TRUE(page->AddArrow().UserClick());
    EXPECT_THAT(page->Right(), ElementsAre("*Y4", "Y1", "Y3"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y2", "Y5"));
    EXPECT_EQ(page->changes, 1);
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(MultipleResponsePageTest, AddsByDoubleClick) {
    const auto page = Shown({"Y4"});
    EXPECT_TRUE(page->Available().UserDoubleClick(1));
    EXPECT_THAT(page->Right(), ElementsAre("*Y4", "Y2"));
}

TEST_F(MultipleResponsePageTest, MovesNothingAndIsMarkedWhenNothingIsMarked) {
    const auto page = Shown({"Y4"});
    Mark(page->Available(), {});
    Mark(page->Selected(), {});
    page->OnBAddResponse();
    EXPECT_THAT(page->Right(), ElementsAre("*Y4"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y1", "Y2", "Y3", "Y5"));
    EXPECT_EQ(page->changes, 1);
}

TEST_F(MultipleResponsePageTest, AddsTheFirstOfTheMarkedUpToTheBound) {
    const auto page = Shown({"Y4", "Y5"}, 3);
    Mark(page->Available(), {0, 1, 2});
    page->AddArrow().UserClick();
    EXPECT_THAT(page->Right(), ElementsAre("*Y4", "Y5", "Y1"));
    // The others stay unmarked; something has to be marked, and that is the first.
    EXPECT_THAT(page->Left(), ElementsAre("*Y2", "Y3"));
    EXPECT_EQ(page->Arrows(), "- remove");
}

TEST_F(MultipleResponsePageTest, AddsNothingBeyondTheBound) {
    const auto page = Shown({"Y3", "Y4", "Y5"}, 3);
    EXPECT_EQ(page->Arrows(), "- remove");
    EXPECT_FALSE(page->AddArrow().UserClick());
    EXPECT_TRUE(page->Available().UserDoubleClick(1));
    EXPECT_THAT(page->Right(), ElementsAre("*Y3", "Y4", "Y5"));
    EXPECT_THAT(page->Left(), ElementsAre("Y1", "*Y2"));
    EXPECT_EQ(page->changes, 1);  // also when nothing could move
    EXPECT_THAT(desktop.boxes, IsEmpty());
}

TEST_F(MultipleResponsePageTest, AddsNothingWithABoundOfNone) {
    const auto page = Shown({"Y3"}, 0);
    page->OnBAddResponse();
    EXPECT_THAT(page->Right(), ElementsAre("*Y3"));
    EXPECT_EQ(page->Arrows(), "- remove");
}

TEST_F(MultipleResponsePageTest, ReplacesTheOneSelection) {
    const auto page = Shown({"Y3"}, 1);
    EXPECT_EQ(page->Arrows(), "add -");
    Mark(page->Available(), {2, 3});
    EXPECT_TRUE(page->AddArrow().UserClick());
    EXPECT_THAT(page->Right(), ElementsAre("*Y4"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y1", "Y2", "Y3", "Y5"));
    EXPECT_EQ(page->Arrows(), "add -");
    // And again, from the order that was made up anew.
    EXPECT_TRUE(page->Available().UserDoubleClick(0));
    EXPECT_THAT(page->Right(), ElementsAre("*Y1"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y2", "Y3", "Y4", "Y5"));
}

TEST_F(MultipleResponsePageTest, ReplacesSeveralWithABoundOfOne) {
    // A selection can be larger than the bound that the page was opened with.
    const auto page = Shown({"Y5", "Y2"}, 1);
    Mark(page->Available(), {1});
    page->AddArrow().UserClick();
    EXPECT_THAT(page->Right(), ElementsAre("*Y3"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y1", "Y2", "Y4", "Y5"));
}

TEST_F(MultipleResponsePageTest, FillsAnEmptySelectionWithABoundOfOne) {
    const auto page = Shown({}, 1);
    ASSERT_THAT(page->Right(), IsEmpty());
    Mark(page->Available(), {1, 3});
    page->AddArrow().UserClick();
    EXPECT_THAT(page->Right(), ElementsAre("*Y2"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y1", "Y3", "Y4", "Y5"));
}

TEST_F(MultipleResponsePageTest, ReplacesNothingWhenNothingIsMarked) {
    const auto page = Shown({"Y3"}, 1);
    Mark(page->Available(), {});
    page->OnBAddResponse();
    EXPECT_THAT(page->Right(), ElementsAre("*Y3"));
}

// Removing.

TEST_F(MultipleResponsePageTest, PutsWhatIsRemovedIntoItsNaturalPlace) {
    const auto page = Shown({"Y4", "Y2", "Y1"});
    Mark(page->Selected(), {0, 1});
    EXPECT_TRUE(page->RemoveArrow().UserClick());
    EXPECT_THAT(page->Right(), ElementsAre("*Y1"));
    EXPECT_THAT(page->Left(), ElementsAre("Y2", "*Y3", "Y4", "Y5"));
    EXPECT_EQ(page->changes, 1);
}

TEST_F(MultipleResponsePageTest, RemovesByDoubleClick) {
    const auto page = Shown({"Y4", "Y2"});
    EXPECT_TRUE(page->Selected().UserDoubleClick(1));
    EXPECT_THAT(page->Right(), ElementsAre("*Y4"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y1", "Y2", "Y3", "Y5"));
}

TEST_F(MultipleResponsePageTest, DoesNothingAtAllWhenNothingIsMarkedToRemove) {
    const auto page = Shown({"Y4"});
    Mark(page->Selected(), {});
    page->OnBRemoveResponse();
    EXPECT_THAT(page->Right(), ElementsAre("Y4"));
    EXPECT_EQ(page->changes, 0);
}

TEST_F(MultipleResponsePageTest, RemovesTheLastOne) {
    const auto page = Shown({"Y4"});
    EXPECT_TRUE(page->RemoveArrow().UserClick());
    EXPECT_THAT(page->Right(), IsEmpty());
    EXPECT_EQ(page->Arrows(), "add -");
}

TEST_F(MultipleResponsePageTest, MarksTheFirstAvailableOneAgainWhenThereWasNone) {
    const auto page = Shown({"Y1", "Y2", "Y3", "Y4", "Y5"});
    EXPECT_EQ(page->Arrows(), "- remove");
    Mark(page->Selected(), {2});
    page->RemoveArrow().UserClick();
    EXPECT_THAT(page->Left(), ElementsAre("*Y3"));
    EXPECT_THAT(page->Right(), ElementsAre("*Y1", "Y2", "Y4", "Y5"));
    EXPECT_EQ(page->Arrows(), "add remove");
}

TEST_F(MultipleResponsePageTest, RemovesByDoubleClickAlsoWithABoundOfOne) {
    const auto page = Shown({"Y3"}, 1);
    EXPECT_FALSE(page->RemoveArrow().UserClick());
    EXPECT_TRUE(page->Selected().UserDoubleClick(0));
    EXPECT_THAT(page->Right(), IsEmpty());
    EXPECT_EQ(page->Arrows(), "add -");
}

TEST_F(MultipleResponsePageTest, KeepsTheNaturalOrderHoweverOftenItemsMove) {
    const auto page = Shown({"Y1"});
    for (const int index : {3, 1, 0}) {
        Mark(page->Available(), {index});
        page->AddArrow().UserClick();
    }
    EXPECT_THAT(page->Right(), ElementsAre("*Y1", "Y5", "Y3", "Y2"));
    for (const int index : {2, 0, 0}) {
        Mark(page->Selected(), {index});
        page->RemoveArrow().UserClick();
    }
    EXPECT_THAT(page->Right(), ElementsAre("*Y2"));
    EXPECT_THAT(ProbePage::Entries(page->Available()).size(), 4U);
    Names left = page->Left();
    for (std::string& name : left) {
        std::erase(name, '*');
    }
    EXPECT_THAT(left, ElementsAre("Y1", "Y3", "Y4", "Y5"));
}

TEST_F(MultipleResponsePageTest, PutsAnItemBackByAnOrderThatWasNotAdjusted) {
    // Of 1 2 3 4 5 the first and the third go: position 1, then position 3 of what is left, which
    // was the fourth. So the order holds 2 3 5, and 4 is put behind the entry of 3.
    const auto page = Shown({});
    Mark(page->Available(), {0, 2});
    page->AddArrow().UserClick();
    ASSERT_THAT(page->Left(), ElementsAre("*Y2", "Y4", "Y5"));
    Mark(page->Selected(), {1});
    page->RemoveArrow().UserClick();
    EXPECT_THAT(page->Left(), ElementsAre("*Y2", "Y4", "Y3", "Y5"));
}

TEST_F(MultipleResponsePageTest, TakesTheLastOfTheOrderForAPositionBehindItsEnd) {
    // The fourth and the fifth go: position 4, then position 5 of four. The order keeps 1 2 3.
    const auto page = Shown({});
    Mark(page->Available(), {3, 4});
    page->AddArrow().UserClick();
    Mark(page->Selected(), {0});
    page->RemoveArrow().UserClick();
    EXPECT_THAT(page->Left(), ElementsAre("*Y1", "Y2", "Y3", "Y4"));
    Mark(page->Selected(), {0});
    page->RemoveArrow().UserClick();
    EXPECT_THAT(page->Left(), ElementsAre("*Y1", "Y2", "Y3", "Y4", "Y5"));
}

TEST_F(MultipleResponsePageTest, TellsThePlaceOfEachItem) {
    const auto page = Shown({"Y4", "Y1", "Y5"});
    EXPECT_EQ(page->AddSelectedIndex(0), 2);
    EXPECT_EQ(page->AddSelectedIndex(1), 0);
    EXPECT_EQ(page->AddSelectedIndex(2), 4);
}

TEST_F(MultipleResponsePageTest, KnowsTheNaturalIndexOfAResponseOfAnyKind) {
    study.ExtraResponse("Z", ResponseEx::Derived);
    const auto page = Shown({"Y1"});
    EXPECT_EQ(page->GetResponseIndex("Y1"), 1);
    EXPECT_EQ(page->GetResponseIndex("Y5"), 5);
    EXPECT_EQ(page->GetResponseIndex("Z"), 6);
    EXPECT_EQ(page->GetResponseIndex("Unknown"), -1);
}

TEST_F(MultipleResponsePageTest, KnowsTheNaturalIndexOfASpecialItem) {
    NotedOwner owner(true, SelectResponseBase::Special);
    owner.chosen = {"S2"};
    const auto page = ShownOf(owner);
    EXPECT_EQ(page->GetResponseIndex("S1"), 1);
    EXPECT_EQ(page->GetResponseIndex("S3"), 3);
    EXPECT_EQ(page->GetResponseIndex("Y1"), -1);
    Mark(page->Selected(), {0});
    page->RemoveArrow().UserClick();
    EXPECT_THAT(page->Left(), ElementsAre("*S1", "S2", "S3"));
}

// Read-only.

TEST_F(MultipleResponsePageTest, MovesNothingWhenItIsReadOnly) {
    const auto page = Make({"Y4"});
    page->SetDefauts({"Y1"});
    page->SetResponseReadOnly(true);
    Show(*page);
    EXPECT_EQ(page->Arrows(), "- -");
    EXPECT_TRUE(page->Available().UserDoubleClick(0));
    EXPECT_TRUE(page->Selected().UserDoubleClick(0));
    page->OnResetButton();
    EXPECT_THAT(page->Right(), ElementsAre("*Y4"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y1", "Y2", "Y3", "Y5"));
    EXPECT_EQ(page->changes, 0);
    EXPECT_THAT(responses->GetSelectedResponses(), ElementsAre("Y4"));
}

TEST_F(MultipleResponsePageTest, SwitchesBothArrowsOffWhenItIsReadOnlyWithABoundOfOne) {
    const auto page = Make({"Y4"}, 1);
    page->SetResponseReadOnly(true);
    Show(*page);
    EXPECT_EQ(page->Arrows(), "- -");
}

// The bound.

TEST_F(MultipleResponsePageTest, SendsTheLastSelectedBackWhenTheBoundFalls) {
    const auto page = Shown({"Y5", "Y2", "Y4"});
    page->SetMaxSelections(1);
    EXPECT_EQ(page->MaxSelections(), 1);
    EXPECT_THAT(page->Right(), ElementsAre("*Y5"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y1", "Y2", "Y3", "Y4"));
    EXPECT_EQ(page->Arrows(), "add -");
    EXPECT_EQ(page->changes, 2);
}

TEST_F(MultipleResponsePageTest, ChangesNothingButTheArrowsWhenTheBoundRises) {
    const auto page = Shown({"Y5", "Y2"}, 2);
    EXPECT_EQ(page->Arrows(), "- remove");
    page->SetMaxSelections(-1);
    EXPECT_EQ(page->MaxSelections(), 5);
    EXPECT_EQ(page->Arrows(), "add remove");
    page->SetMaxSelections(2);
    EXPECT_EQ(page->Arrows(), "- remove");
    EXPECT_EQ(page->changes, 0);
}

TEST_F(MultipleResponsePageTest, TakesABoundBeforeItIsShown) {
    const auto page = Make({"Y5", "Y2"});
    page->SetMaxSelections(1);
    Show(*page);
    EXPECT_THAT(page->Right(), ElementsAre("*Y5", "Y2"));
    EXPECT_EQ(page->Arrows(), "add -");
}

// Reset.

TEST_F(MultipleResponsePageTest, RestoresTheDefaultsInTheModelAtOnce) {
    const auto page = Make({"Y4"});
    page->SetDefauts({"Y3", "Y1"});
    Show(*page);
    EXPECT_TRUE(page->Reset().UserClick());
    EXPECT_THAT(responses->GetSelectedResponses(), ElementsAre("Y3", "Y1"));
    EXPECT_THAT(page->Right(), ElementsAre("*Y3", "Y1"));
    EXPECT_THAT(page->Left(), ElementsAre("*Y2", "Y5", "Y4"));
    EXPECT_EQ(page->Arrows(), "add remove");
    EXPECT_EQ(page->changes, 1);
}

TEST_F(MultipleResponsePageTest, MakesTheOrderUpAnewWithTheDefaults) {
    const auto page = Make({"Y4", "Y5"});
    page->SetDefauts({"Y1", "Y2"});
    Show(*page);
    page->Reset().UserClick();
    ASSERT_THAT(page->Left(), ElementsAre("*Y3", "Y4", "Y5"));
    Mark(page->Selected(), {0});
    page->RemoveArrow().UserClick();
    EXPECT_THAT(page->Left(), ElementsAre("Y1", "*Y3", "Y4", "Y5"));
}

// Storing.

TEST_F(MultipleResponsePageTest, StoresBothLists) {
    Investigation::SetActiveInvestigation(nullptr);
    const auto page = Shown({"Y4"});
    Mark(page->Available(), {1});
    page->AddArrow().UserClick();
    EXPECT_TRUE(page->ApplyPage());
    EXPECT_THAT(responses->GetSelectedResponses(), ElementsAre("Y4", "Y2"));
    EXPECT_THAT(responses->GetUnselectedResponses(), ElementsAre("Y1", "Y3", "Y5"));
}

TEST_F(MultipleResponsePageTest, RefreshesTheMirrorOfTheModel) {
    Names mirror;
    SelectResponses plain({"a"}, {"b"}, "responses", &mirror);
    mirror.clear();
    ProbePage page(nullptr, plain, 6172, -1, nullptr, kNoHelp);
    Show(page);
    EXPECT_TRUE(page.ApplyPage());
    EXPECT_THAT(mirror, ElementsAre("a"));
}

TEST_F(MultipleResponsePageTest, TellsTheActiveStudyAndNotItsOwn) {
    FakeStudy active;
    active.Response("Y2");
    Investigation::SetActiveInvestigation(&active);
    const auto page = Shown({"Y2"});
    page->ApplyPage();
    Names remembered;
    active.GetSelectedResponses(remembered, SelectResponseBase::Extended);
    EXPECT_THAT(remembered, ElementsAre("Y2"));
    study.GetSelectedResponses(remembered, SelectResponseBase::Extended);
    EXPECT_THAT(remembered, IsEmpty());
}

struct PushRow {
    const char* label;
    bool multiple;
    Names selected;
    std::vector<Names> given;
};

void PrintTo(const PushRow& row, std::ostream* out) {
    *out << row.label;
}

class OwnersOfSelections : public MultipleResponsePageTest,
                           public testing::WithParamInterface<PushRow> {};

TEST_P(OwnersOfSelections, AreGivenWhatTheyCanTake) {
    NotedOwner owner(GetParam().multiple);
    owner.chosen = GetParam().selected;
    const auto page = ShownOf(owner);
    EXPECT_TRUE(page->ApplyPage());
    EXPECT_EQ(owner.given, GetParam().given);
}

INSTANTIATE_TEST_SUITE_P(Sizes, OwnersOfSelections,
                         testing::Values(PushRow{"OneToOneOfMany", true, {"Y2"}, {{"Y2"}}},
                                         PushRow{
                                             "TwoToOneOfMany", true, {"Y2", "Y1"}, {{"Y2", "Y1"}}},
                                         PushRow{"OneToOneOfOne", false, {"Y2"}, {{"Y2"}}},
                                         PushRow{"TwoToOneOfOne", false, {"Y2", "Y1"}, {}}),
                         testing::PrintToStringParamName());

// Applying.

TEST_F(MultipleResponsePageTest, StoresWhenItIsAppliedChanged) {
    ConnectedHelper helper;
    const auto page = Shown({"Y4"}, -1, &helper);
    Mark(page->Available(), {0});
    page->AddArrow().UserClick();
    EXPECT_THAT(responses->GetSelectedResponses(), ElementsAre("Y4"));
    EXPECT_TRUE(page->OnApply());
    EXPECT_THAT(responses->GetSelectedResponses(), ElementsAre("Y4", "Y1"));
    EXPECT_EQ(helper.updates, 1);
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(MultipleResponsePageTest, StoresNothingWhenItIsAppliedUnchanged) {
    const auto page = Shown({"Y4"});
    page->Selected().ResetContent();
    EXPECT_TRUE(page->OnApply());
    EXPECT_THAT(responses->GetSelectedResponses(), ElementsAre("Y4"));
    EXPECT_THAT(desktop.boxes, IsEmpty());
}

TEST_F(MultipleResponsePageTest, RefusesToApplyAnEmptySelection) {
    ConnectedHelper helper;
    const auto page = Shown({"Y4"}, -1, &helper);
    page->RemoveArrow().UserClick();
    EXPECT_FALSE(page->OnApply());
    EXPECT_THAT(desktop.boxes,
                ElementsAre(SheetDesktop::Box{
                    "No responses are selected. Please select at least one.", "", 16}));
    EXPECT_EQ(page->GetFocusControl(), &page->Selected());
    EXPECT_THAT(responses->GetSelectedResponses(), ElementsAre("Y4"));
    EXPECT_EQ(helper.updates, 0);
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(MultipleResponsePageTest, NamesTheItemsItMisses) {
    NotedOwner owner(true, SelectResponseBase::Special);
    owner.chosen = {"S1"};
    const auto page = ShownOf(owner);
    page->RemoveArrow().UserClick();
    EXPECT_FALSE(page->ApplyPage());
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].text, "No models are selected. Please select at least one.");
    EXPECT_THAT(owner.given, IsEmpty());
}

TEST_F(MultipleResponsePageTest, ComesUpThenTellsThenMovesTheFocus) {
    const auto page = Make({"Y4"});
    KvPropertyPage other(6157, 0, nullptr, kNoHelp);
    KvPropertySheet sheet(L"The sheet", nullptr, 0);
    sheet.AddPage(page.get());
    sheet.AddPage(&other);
    desktop.user = [&](CPropertySheet& running) {
        page->RemoveArrow().UserClick();
        running.UserSelectPage(1);
        desktop.log.Clear();
        EXPECT_TRUE(running.UserOk());
        EXPECT_FALSE(running.HasEnded());
    };
    sheet.DoModal();
    const std::vector<std::string>& log = desktop.log.Lines();
    const auto at = std::find(log.begin(), log.end(), "page 6172 \"Select responses\"");
    ASSERT_LE(at + 3, log.end());
    EXPECT_EQ(at[0], "page 6172 \"Select responses\"");
    EXPECT_EQ(at[1],
              "box 16 \"The sheet\" \"No responses are selected. Please select at least one.\" -> "
              "ok");
    EXPECT_EQ(at[2], "focus 6172:6078");
}

TEST_F(MultipleResponsePageTest, LetsAWizardGoOnWithASelectionAlone) {
    const auto page = Shown({"Y4"});
    EXPECT_EQ(page->OnWizardNext(), 0);
    Mark(page->Available(), {0});
    page->AddArrow().UserClick();
    EXPECT_EQ(page->OnWizardNext(), 0);
    EXPECT_THAT(responses->GetSelectedResponses(), ElementsAre("Y4", "Y1"));
    Mark(page->Selected(), {0, 1});
    page->RemoveArrow().UserClick();
    EXPECT_EQ(page->OnWizardNext(), -1);
    EXPECT_EQ(desktop.boxes.size(), 1U);
    EXPECT_THAT(responses->GetSelectedResponses(), ElementsAre("Y4", "Y1"));
}

TEST_F(MultipleResponsePageTest, ChecksForAWizardAlsoWhenNothingWasChanged) {
    const auto page = Shown({});
    ASSERT_THAT(page->Right(), IsEmpty());
    EXPECT_EQ(page->OnWizardNext(), -1);
    EXPECT_EQ(desktop.boxes.size(), 1U);
}

TEST_F(MultipleResponsePageTest, TakesABoundAgainAfterItsWindow) {
    const auto page = Shown({"Y4", "Y1"});
    page->DestroyWindow();
    page->SetMaxSelections(1);
    Show(*page);
    EXPECT_THAT(page->Right(), ElementsAre("*Y4", "Y1"));
    EXPECT_EQ(page->Arrows(), "add -");
}

}  // namespace
}  // namespace kvopt::test
