#include "kvopt/selection/select_responses.h"

#include <gmock/gmock.h>

#include "kvopt/stores.h"
#include "plotargs/plot_study.h"
#include "support/recording_section.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Offers items of its own instead of the study's responses.
class SpecialItems : public SelectResponseBase {
public:
    explicit SpecialItems(std::vector<std::string> offered)
        : SelectResponseBase(SelectResponseBase::Special), items(std::move(offered)) {}
    bool GetSpecialAvailable(std::vector<std::string>& available,
                             std::string& type) const override {
        available = items;
        type = "models";
        return true;
    }
    std::vector<std::string> items;
};

/// Of a study whose fill list is shorter than what it knows, and whose remembered selection is what
/// the test says.
class SelectionStudy : public PlotStudy {
public:
    void GetSelectedResponses(std::vector<std::string>& responses,
                              SelectResponseBase::ResponseType type) const override {
        asked.push_back(type);
        responses = selected;
    }
    void GetAllAvailableResponses(std::vector<std::string>& responses,
                                  SelectResponseBase::ResponseType type,
                                  bool fittedOnly) const override {
        availableAsked.emplace_back(type, fittedOnly);
        responses = known;
    }
    std::string GetFirstSelectedResponse(SelectResponseBase::ResponseType type) const override {
        firstAsked.push_back(type);
        return first;
    }
    void RemoveNonValidResponses(std::vector<std::string>& responses) const override {
        std::erase_if(responses, [&](const std::string& name) { return invalid.count(name) != 0; });
    }

    std::vector<std::string> selected;
    std::vector<std::string> known;
    std::string first;
    std::set<std::string> invalid;
    mutable std::vector<int> asked;
    mutable std::vector<std::pair<int, bool>> availableAsked;
    mutable std::vector<int> firstAsked;
};

class SelectResponsesTest : public testing::Test {
protected:
    SelectResponsesTest() {
        for (const char* name : {"Y1", "Y2", "Y3"}) {
            study.Response(name);
        }
        study.selected = {"Y2"};
    }

    SelectionStudy study;
    ConfigurationStore store;
    std::unique_ptr<ConfigurationSection> root = store.Root();
    IniFileSection ini;
};

TEST_F(SelectResponsesTest, StartsFromWhatTheStudyHasSelected) {
    study.selected = {"Y3", "Y1"};
    const SelectResponses responses(&study, true);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y3", "Y1"));
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("Y2"));
    EXPECT_EQ(responses.GetType(), "responses");
    EXPECT_EQ(responses.GetSelectResponseBase(), nullptr);
    EXPECT_FALSE(responses.IsSpecial());
}

TEST_F(SelectResponsesTest, AsksTheStudyForTheExtendedSetOrTheOrdinaryOne) {
    const SelectResponses extended(&study, true);
    const SelectResponses ordinary(&study, false);
    EXPECT_THAT(study.asked, ElementsAre(2, 1));
}

TEST_F(SelectResponsesTest, TakesTheOrdinaryUniverseFromTheVariablesAndTheOtherFromTheManager) {
    study.unavailable = {"Y1"};
    study.selected.clear();
    EXPECT_THAT(SelectResponses(&study, true).GetUnselectedResponses(), ElementsAre("Y2", "Y3"));
    EXPECT_THAT(SelectResponses(&study, false).GetUnselectedResponses(), ElementsAre("Y2", "Y3"));
    study.ExtraResponse("Y4");
    EXPECT_THAT(SelectResponses(&study, true).GetUnselectedResponses(),
                ElementsAre("Y2", "Y3", "Y4"));
    EXPECT_THAT(SelectResponses(&study, false).GetUnselectedResponses(), ElementsAre("Y2", "Y3"));
}

TEST_F(SelectResponsesTest, SelectsAResponseThatOnlyTheStudyKnows) {
    study.known = {"Y1", "Derived"};
    SelectResponses responses(&study, true);
    responses.SetResponses({"Derived", "Unknown", "y1"});
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Derived"));
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("Y1", "Y3", "Y2"));
    EXPECT_THAT(study.availableAsked,
                ElementsAre(std::pair(2, false), std::pair(2, false), std::pair(2, false)));
}

TEST_F(SelectResponsesTest, TakesANameTwiceWhenTheStudyKnowsItAsAvailable) {
    SelectResponses responses(&study, true);
    responses.SetResponses({"Y1", "Y1"});
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y1"));
    study.known = {"Y1"};
    responses.SetResponses({"Y1", "Y1"});
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y1", "Y1"));
}

TEST_F(SelectResponsesTest, WorksWithoutAStudy) {
    SelectResponses responses(static_cast<const Investigation*>(nullptr), true);
    EXPECT_THAT(responses.GetSelectedResponses(), IsEmpty());
    EXPECT_THAT(responses.GetUnselectedResponses(), IsEmpty());
    responses.SetResponses({"Y1"});
    EXPECT_THAT(responses.GetSelectedResponses(), IsEmpty());
}

TEST_F(SelectResponsesTest, StartsFromTheSelectionOfItsOwner) {
    SelectResponseBase base(SelectResponseBase::Extended);
    base.SetSelResponses({"Y3"});
    const SelectResponses responses(&study, &base);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y3"));
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("Y1", "Y2"));
    EXPECT_EQ(responses.GetSelectResponseBase(), &base);
    EXPECT_EQ(responses.GetType(), "responses");
    EXPECT_THROW(SelectResponses(&study, static_cast<SelectResponseBase*>(nullptr)),
                 InvalidArgument);
}

TEST_F(SelectResponsesTest, TakesTheKindOfResponsesFromItsOwner) {
    study.ExtraResponse("Y4");
    SelectResponseBase extended(SelectResponseBase::Extended);
    SelectResponseBase ordinary(SelectResponseBase::Ordinary);
    EXPECT_THAT(SelectResponses(&study, &extended).GetUnselectedResponses(),
                ElementsAre("Y1", "Y2", "Y3", "Y4"));
    EXPECT_THAT(SelectResponses(&study, &ordinary).GetUnselectedResponses(),
                ElementsAre("Y1", "Y2", "Y3"));
}

TEST_F(SelectResponsesTest, TakesSpecialItemsAndTheirNounFromItsOwner) {
    SpecialItems special({"S1", "S2", "S3"});
    special.SetResponse("S2");
    const SelectResponses responses(&study, &special);
    EXPECT_TRUE(responses.IsSpecial());
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("S2"));
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("S1", "S3"));
    EXPECT_EQ(responses.GetType(), "models");
}

TEST_F(SelectResponsesTest, HasAnEmptyUniverseWhenItsSpecialOwnerOffersNothing) {
    SelectResponseBase base(SelectResponseBase::Special);
    const SelectResponses responses(&study, &base);
    EXPECT_THAT(responses.GetUnselectedResponses(), IsEmpty());
    EXPECT_EQ(responses.GetType(), "responses");
}

TEST_F(SelectResponsesTest, HoldsPlainLists) {
    const SelectResponses one({"A", "B"}, "factors");
    EXPECT_THAT(one.GetSelectedResponses(), ElementsAre("A", "B"));
    EXPECT_THAT(one.GetUnselectedResponses(), IsEmpty());
    EXPECT_EQ(one.GetType(), "factors");
    SelectResponses two({"A"}, {"B", "C"}, "factors", nullptr);
    EXPECT_THAT(two.GetUnselectedResponses(), ElementsAre("B", "C"));
    two.SetResponses({"C", "A", "X"});
    EXPECT_THAT(two.GetSelectedResponses(), ElementsAre("C", "A"));
    EXPECT_THAT(two.GetUnselectedResponses(), ElementsAre("B"));
}

TEST_F(SelectResponsesTest, AppendsWhatIsTakenBackToTheAvailableNames) {
    SelectResponses responses({"A", "D"}, {"B", "C"}, "factors", nullptr);
    responses.SetResponses({});
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("B", "C", "A", "D"));
    responses.SetResponses(responses.GetUnselectedResponses());
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("B", "C", "A", "D"));
    EXPECT_THAT(responses.GetUnselectedResponses(), IsEmpty());
}

TEST_F(SelectResponsesTest, TakesTheFirstOfANameThatIsAvailableMoreThanOnce) {
    SelectResponses responses({"A"}, {"B", "A", "C", "B", "B"}, "factors", nullptr);
    responses.SetResponses({"B", "A", "B", "D"});
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("B", "A", "B"));
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("C", "B", "A"));
}

TEST_F(SelectResponsesTest, KeepsItsMirrorEqualButNotWhenItAsserts) {
    std::vector<std::string> mirror;
    SelectResponses responses({"A"}, {"B"}, "factors", &mirror);
    EXPECT_THAT(mirror, ElementsAre("A"));
    responses.SetResponses({"B"});
    EXPECT_THAT(mirror, ElementsAre("B"));
    responses.SetSelectedResponses({"X", "Y"});
    EXPECT_THAT(mirror, ElementsAre("X", "Y"));
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("A"));
    responses.UpdateResponseName("X", "Z");
    EXPECT_THAT(mirror, ElementsAre("Z", "Y"));
    responses.SetResponses({});
    EXPECT_THAT(mirror, IsEmpty());
    responses.AssertSelectedResponses(true);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("A", "Z", "Y"));
    EXPECT_THAT(mirror, IsEmpty());
}

TEST_F(SelectResponsesTest, TakesAMirrorOfItselfAsNone) {
    SelectResponses responses({"A"}, {"B"}, "factors", nullptr);
    auto& own = const_cast<std::vector<std::string>&>(responses.GetSelectedResponses());
    responses = SelectResponses({"A"}, {"B"}, "factors", &own);
    responses.SetResponses({"B"});
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("B"));
}

TEST_F(SelectResponsesTest, AssertsWithoutAStudyOnlyAnEmptySelectionOfAll) {
    SelectResponses responses({}, {"B", "C"}, "factors", nullptr);
    responses.AssertSelectedResponses(false);
    EXPECT_THAT(responses.GetSelectedResponses(), IsEmpty());
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("B", "C"));
    responses.AssertSelectedResponses(true);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("B", "C"));
    EXPECT_THAT(responses.GetUnselectedResponses(), IsEmpty());
    SelectResponses some({"A"}, {"B"}, "factors", nullptr);
    some.AssertSelectedResponses(true);
    EXPECT_THAT(some.GetSelectedResponses(), ElementsAre("A"));
}

TEST_F(SelectResponsesTest, AssertsAnEmptySelectionFromTheStudy) {
    SelectResponses responses(&study, true);
    responses.SetSelectedResponses({});
    responses.AssertSelectedResponses(false);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y2"));
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("Y1", "Y3"));
    responses.SetSelectedResponses({});
    responses.AssertSelectedResponses(true);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y1", "Y2", "Y3"));
    EXPECT_THAT(responses.GetUnselectedResponses(), IsEmpty());
    study.selected.clear();
    responses.SetSelectedResponses({});
    responses.AssertSelectedResponses(false);
    EXPECT_THAT(responses.GetSelectedResponses(), IsEmpty()) << "empty is legal here";
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("Y1", "Y2", "Y3"));
}

TEST_F(SelectResponsesTest, AssertsByDroppingWhatIsNoLongerValid) {
    SelectResponses responses(&study, true);
    responses.SetResponses({"Y3", "Y1"});
    study.RemoveResponse("Y3");
    study.invalid = {"Y3"};
    study.Response("Y4");
    responses.AssertSelectedResponses(true);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y1"));
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("Y2", "Y4"));
}

TEST_F(SelectResponsesTest, AssertsSpecialItemsAgainstTheirOwnerAlone) {
    SpecialItems special({"S1", "S2", "S3"});
    SelectResponses responses(&study, &special);
    responses.SetResponses({"S3", "S1"});
    special.items = {"S1", "S4"};
    study.invalid = {"S1"};
    responses.AssertSelectedResponses(false);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("S1")) << "the study is not asked";
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("S4"));
    special.items = {"S5", "S6"};
    responses.AssertSelectedResponses(false);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("S5", "S6"))
        << "the whole list, not the study's selection";
    EXPECT_THAT(responses.GetUnselectedResponses(), IsEmpty());
}

TEST_F(SelectResponsesTest, KeepsItsNounWhenItGetsASpecialOwner) {
    SpecialItems special({"S1"});
    SelectResponses responses(&study, true);
    responses.SetSelectResponseBase(&special);
    responses.AssertSelectedResponses(false);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("S1"));
    EXPECT_EQ(responses.GetType(), "responses");
}

TEST_F(SelectResponsesTest, RenamesTheFirstInEachList) {
    SelectResponses responses({"A", "B", "A"}, {"A", "C", "A"}, "factors", nullptr);
    responses.UpdateResponseName("A", "New");
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("New", "B", "A"));
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("New", "C", "A"));
    responses.UpdateResponseName("Nobody", "X");
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("New", "B", "A"));
}

TEST_F(SelectResponsesTest, RemembersItsSelectionInTheIniFile) {
    SelectResponses responses(&study, true);
    responses.SetResponses({"Y3", "Y1"});
    PlotWizardIniSection view(ini);
    view.AddSelectedResponse("Old");
    responses.SaveSettings(view);
    EXPECT_EQ(view.GetNumSelectedResponses(), 2);
    EXPECT_EQ(view.GetSelectedResponse(1), "Y3");
    EXPECT_EQ(view.GetSelectedResponse(2), "Y1");
    SelectResponses other(&study, true);
    other.LoadSettings(view);
    EXPECT_THAT(other.GetSelectedResponses(), ElementsAre("Y3", "Y1"));
    EXPECT_THAT(other.GetUnselectedResponses(), ElementsAre("Y2"));
}

TEST_F(SelectResponsesTest, LeavesItsListsWhenTheIniFileHoldsNoSelection) {
    SelectResponses responses(&study, true);
    responses.SetResponses({"Y3"});
    responses.LoadSettings(PlotWizardIniSection(ini));
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y3"));
    PlotWizardIniSection(ini).AddSelectedResponse("B");
    SelectResponses plain({"A"}, {"B"}, "factors", nullptr);
    plain.LoadSettings(PlotWizardIniSection(ini));
    EXPECT_THAT(plain.GetSelectedResponses(), ElementsAre("A")) << "nothing without a study";
}

TEST_F(SelectResponsesTest, SkipsRememberedNamesThatNoLongerExist) {
    PlotWizardIniSection view(ini);
    for (const char* name : {"Gone", "Y3", "Also gone", "Y1"}) {
        view.AddSelectedResponse(name);
    }
    SelectResponses responses(&study, true);
    responses.LoadSettings(view);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y3", "Y1"));
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("Y2"));
}

TEST_F(SelectResponsesTest, TakesTheFirstSelectedResponseWhenNothingRememberedExists) {
    PlotWizardIniSection view(ini);
    view.AddSelectedResponse("Gone");
    SelectResponses responses(&study, true);
    study.first = "Y3";
    responses.LoadSettings(view);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y3"));
    EXPECT_THAT(responses.GetUnselectedResponses(), ElementsAre("Y1", "Y2"));
    study.first = "Unknown";
    study.known = {"Unknown"};
    responses.LoadSettings(view);
    EXPECT_THAT(responses.GetSelectedResponses(), IsEmpty()) << "only an available one is taken";
    SelectResponses(&study, false).LoadSettings(view);
    EXPECT_THAT(study.firstAsked, ElementsAre(2, 2, 1));
}

TEST_F(SelectResponsesTest, SavesAndReadsAPlotsSelection) {
    SelectResponses responses(&study, true);
    responses.SetResponses({"Y3", "Y1"});
    responses.Save(root.get());
    SelectResponses other(&study, true);
    other.Read(root.get());
    EXPECT_THAT(other.GetSelectedResponses(), ElementsAre("Y3", "Y1"));
    EXPECT_THAT(other.GetUnselectedResponses(), ElementsAre("Y2"));
}

TEST_F(SelectResponsesTest, SavesTheTypeOfItsOwnerOrOfItsSet) {
    const auto savedType = [&](const SelectResponses& responses) {
        responses.Save(root.get());
        std::vector<std::string> names;
        bool all = false;
        SelectResponseBase::ResponseType type = SelectResponseBase::Ordinary;
        EXPECT_TRUE(SelectResponseBase::ReadSection(root.get(), names, all, type));
        return static_cast<int>(type);
    };
    EXPECT_EQ(savedType(SelectResponses(&study, true)), 2);
    EXPECT_EQ(savedType(SelectResponses(&study, false)), 1);
    SpecialItems special({"S1"});
    EXPECT_EQ(savedType(SelectResponses(&study, &special)), 3);
}

TEST_F(SelectResponsesTest, KeepsASelectionOfAllWhenTheStudyGrows) {
    SelectResponses responses(&study, true);
    responses.SetResponses({"Y3", "Y2", "Y1"});
    responses.Save(root.get());
    study.Response("Y4");
    SelectResponses other(&study, true);
    other.Read(root.get());
    EXPECT_THAT(other.GetSelectedResponses(), ElementsAre("Y1", "Y2", "Y3", "Y4"));
    EXPECT_THAT(other.GetUnselectedResponses(), IsEmpty());
}

TEST_F(SelectResponsesTest, FallsBackOnTheStudysSelectionWhenASavedResponseIsGone) {
    SelectResponses responses(&study, true);
    responses.SetResponses({"Y3"});
    responses.Save(root.get());
    study.RemoveResponse("Y3");
    study.invalid = {"Y3"};
    SelectResponses other(&study, true);
    other.SetResponses({"Y1"});
    other.Read(root.get());
    EXPECT_THAT(other.GetSelectedResponses(), ElementsAre("Y2"));
    study.selected.clear();
    other.Read(root.get());
    EXPECT_THAT(other.GetSelectedResponses(), IsEmpty());
}

TEST_F(SelectResponsesTest, ReadsASectionWithoutASelectionAsNone) {
    SelectResponses responses(&study, true);
    responses.SetResponses({"Y3"});
    study.invalid = {"Y3"};
    responses.Read(root.get());
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y2"))
        << "the lists are brought in line all the same";
    responses.SetSelectedResponses({});
    responses.Read(nullptr);
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("Y2"));
    EXPECT_THROW(responses.Save(nullptr), InvalidArgument);
}

TEST_F(SelectResponsesTest, IsAValueThatSharesOnlyItsMirrorAndOwner) {
    std::vector<std::string> mirror;
    const SelectResponses responses({"A"}, {"B"}, "factors", &mirror);
    SelectResponses copy(responses);
    copy.SetResponses({"B"});
    EXPECT_THAT(responses.GetSelectedResponses(), ElementsAre("A"));
    EXPECT_THAT(mirror, ElementsAre("B"));
}

}  // namespace
}  // namespace kvopt::test
