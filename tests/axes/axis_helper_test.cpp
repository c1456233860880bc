#include "kvopt/axes/axis_helper.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "axes/axes_study.h"
#include "kvopt/axes/axis_type.h"
#include "kvopt/text.h"

namespace kvopt::test {
namespace {

using Texts = std::vector<std::string>;

const std::string kNone = AxisInfo::GetNotUsedName();

class AxisHelperTest : public testing::Test {
protected:
    AxisHelperTest() {
        study.Number("Temp", 0, 100);
        study.Number("Time", 0, 60).units = "min";
        study.Names("Colour");
        study.Number("Speed", 0, 9);
    }

    AxisPage::Arguments Arguments() {
        return {&axes, static_cast<int>(axes.size()) - 1, 0, &defaults,
                static_cast<int>(defaults.size()) - 1};
    }

    /// Opens the protected steps, and offers what a test wants.
    class Helper : public AxisHelper {
    public:
        explicit Helper(const Investigation* investigation) : AxisHelper(investigation) {}
        Helper(AxisHelperTest& test) : AxisHelper(&test.study, test.Arguments()) {}

        void FillAxis(int axis, const char* selected) override {
            fills.push_back(axis);
            selectedWasNull = selectedWasNull && selected == nullptr;
            if (offersAll) {
                const UseFactor all(nullptr);
                filled = FillFactor(&all, axis);
            } else {
                AxisHelper::FillAxis(axis, selected);
            }
        }
        void SetDefault(int axis) override {
            defaultsAsked.push_back(axis);
            AxisHelper::SetDefault(axis);
        }
        using AxisHelper::AddUnusedOption;
        using AxisHelper::FillFactor;
        using AxisHelper::SelectString;
        using AxisHelper::SetRange;
        using AxisHelper::Transfer;

        /// "name|low|high"
        std::string Row(int axis) const {
            const Texts& options = Options(axis);
            return (options.empty() ? "" : options.front()) + "|" + LowText(axis) + "|" +
                   HighText(axis);
        }
        /// How many lists there are.
        int Lists() {
            int count = 0;
            for (int axis = 1; axis < 20; ++axis) {
                AddUnusedOption(axis);
                count += Options(axis).empty() ? 0 : 1;
            }
            return count;
        }

        bool offersAll = false;
        bool filled = false;
        bool selectedWasNull = true;
        std::vector<int> fills;
        std::vector<int> defaultsAsked;
    };

    /// "name low high" of each axis.
    Texts Axes() const {
        Texts texts;
        for (std::size_t i = 1; i < axes.size(); ++i) {
            texts.push_back(axes[i]->GetName() + " " + KvString::FormatG(axes[i]->GetMin()) + " " +
                            KvString::FormatG(axes[i]->GetMax()));
        }
        return texts;
    }

    AxesStudy study;
    AxisVector axes = MakeAxes({{}, {}});
    AxisVector defaults = MakeAxes({{"Time", 10, 50}, {"Temp", 20, 80}, {"Speed"}});
};

// Construction.

TEST_F(AxisHelperTest, SizesItsListsToTheGreaterNumberInTheConstructor) {
    EXPECT_EQ(Helper(*this).Lists(), 3);
    axes = MakeAxes({{}, {}, {}, {}, {}});
    EXPECT_EQ(Helper(*this).Lists(), 5);
}

TEST_F(AxisHelperTest, SizesItsListsToTheSmallerNumberWithNewArguments) {
    Helper helper(&study);
    helper.SetArguments(Arguments());
    EXPECT_EQ(helper.Lists(), 2);
    axes = MakeAxes({{}, {}, {}, {}, {}});
    helper.SetArguments(Arguments());
    EXPECT_EQ(helper.Lists(), 3);
}

TEST_F(AxisHelperTest, HasSixListsWithoutArguments) {
    Helper helper(&study);
    EXPECT_EQ(helper.Lists(), 6);
    helper.SetDefault(1);
    EXPECT_EQ(helper.LowText(1), "");
}

TEST_F(AxisHelperTest, DoesNothingWithFewerThanOneAxis) {
    Helper helper(&study);
    helper.Setup();
    EXPECT_TRUE(helper.fills.empty());
    AxisPage::Arguments arguments = Arguments();
    arguments.numDefaults = 0;
    helper.SetArguments(arguments);
    helper.Setup();
    EXPECT_TRUE(helper.fills.empty());
    EXPECT_EQ(Axes(), (Texts{" -99 -99", " -99 -99"}));
}

TEST_F(AxisHelperTest, AnswersNothingForAListThatIsNotThere) {
    const Helper helper(*this);
    EXPECT_TRUE(helper.Options(0).empty());
    EXPECT_TRUE(helper.Options(9).empty());
    EXPECT_EQ(helper.LowText(-1), "");
    EXPECT_EQ(helper.HighText(9), "");
}

// The small steps.

TEST_F(AxisHelperTest, OffersAllButQualitativeFactors) {
    Helper helper(*this);
    helper.FillAxis(1, nullptr);
    EXPECT_EQ(helper.Options(1), (Texts{"Temp", "Time", "Speed"}));
    study.unavailable = {"Temp"};
    helper.FillAxis(1, nullptr);
    EXPECT_EQ(helper.Options(1), (Texts{"Time", "Speed"}));
    study.ExtraResponse("Outside", ResponseEx::External);
    helper.FillAxis(1, nullptr);
    EXPECT_EQ(helper.Options(1), (Texts{"Temp", "Time", "Speed"}));
}

TEST_F(AxisHelperTest, KeepsTheBlockEntryAndTellsWhetherAnyFactorPassed) {
    study.Add(kBlockFactorName, CEType::Qualitative);
    Helper helper(*this);
    const UseFactor all(nullptr);
    EXPECT_TRUE(helper.FillFactor(&all, 1));
    EXPECT_EQ(helper.Options(1), (Texts{"Temp", "Time", "Colour", "Speed", kBlockFactorName}));
    const AxisType::AddMixtureFactor none(study.GetVariables(), nullptr);
    EXPECT_FALSE(helper.FillFactor(&none, 1));
    EXPECT_TRUE(helper.Options(1).empty());
    EXPECT_FALSE(helper.FillFactor(&all, 9));
}

TEST_F(AxisHelperTest, OffersTheNotUsedNameOnceAndLast) {
    Helper helper(*this);
    helper.FillAxis(1, nullptr);
    helper.AddUnusedOption(1);
    helper.AddUnusedOption(1);
    EXPECT_EQ(helper.Options(1), (Texts{"Temp", "Time", "Speed", kNone}));
}

TEST_F(AxisHelperTest, LetsTheSelectionChangePlacesWithTheFirst) {
    Helper helper(*this);
    helper.FillAxis(2, nullptr);
    EXPECT_EQ(helper.SelectString(2, "Speed"), 2);
    EXPECT_EQ(helper.Options(2), (Texts{"Speed", "Time", "Temp"}));
    EXPECT_EQ(helper.SelectString(2, "Speed"), 0);
    EXPECT_EQ(helper.Options(2), (Texts{"Speed", "Time", "Temp"}));
    EXPECT_EQ(helper.SelectString(2, "Time"), 1);
    EXPECT_EQ(helper.Options(2), (Texts{"Time", "Speed", "Temp"}));
    EXPECT_EQ(helper.defaultsAsked, (std::vector<int>{2, 2, 2}));
    EXPECT_EQ(helper.Row(2), "Time|10|50");
}

TEST_F(AxisHelperTest, ReadsTheDefaultsOfAxisOneForANameThatIsNotInTheList) {
    Helper helper(*this);
    helper.FillAxis(1, nullptr);
    helper.FillAxis(2, nullptr);
    helper.SetRange(1, 1, 2);
    for (const char* name : {"Gone", "temp", ""}) {
        EXPECT_EQ(helper.SelectString(2, name), -1);
    }
    EXPECT_EQ(helper.defaultsAsked, (std::vector<int>{1, 1, 1}));
    EXPECT_EQ(helper.Row(1), "Temp|20|80");
    EXPECT_EQ(helper.Row(2), "Temp||");
}

TEST_F(AxisHelperTest, DoesNotSearchForAnEmptyName) {
    study.Number("", 0, 1);
    Helper helper(*this);
    helper.FillAxis(1, nullptr);
    EXPECT_EQ(helper.SelectString(1, ""), -1);
}

TEST_F(AxisHelperTest, ShowsNothingForARangeThatIsNotSet) {
    Helper helper(*this);
    helper.SetRange(1, -99.0F, 0.123456789F);
    EXPECT_EQ(helper.LowText(1), "");
    EXPECT_EQ(helper.HighText(1), "0.123457");
    helper.SetRange(1, -98.9999F, -99.0F);
    EXPECT_EQ(helper.LowText(1), "-98.9999");
    EXPECT_EQ(helper.HighText(1), "");
}

TEST_F(AxisHelperTest, EmptiesTheRangeOfAnUnusedOrQualitativeAxis) {
    Helper helper(*this);
    helper.offersAll = true;
    helper.FillAxis(1, nullptr);
    helper.AddUnusedOption(1);
    for (const char* name : {"Colour", kNone.c_str(), "Speed"}) {
        helper.SelectString(1, "Time");
        EXPECT_EQ(helper.Row(1), "Time|10|50");
        helper.SelectString(1, name);
        EXPECT_EQ(helper.Row(1), std::string(name) + "||");
    }
}

TEST_F(AxisHelperTest, GivesTheNotUsedNameNoRangeEvenWhereADefaultBearsIt) {
    defaults = MakeAxes({{kNone, 1, 2}, {"Temp", 20, 80}});
    Helper helper(*this);
    helper.FillAxis(1, nullptr);
    helper.AddUnusedOption(1);
    helper.SelectString(1, kNone);
    EXPECT_EQ(helper.Row(1), kNone + "||");
}

TEST_F(AxisHelperTest, TakesAnEmptyListForNotUsed) {
    Helper helper(*this);
    helper.SetRange(1, 1, 2);
    helper.SetDefault(1);
    EXPECT_EQ(helper.Row(1), "||");
    helper.Transfer();
    EXPECT_EQ(axes[1]->GetName(), kNone);
}

// Setup.

TEST_F(AxisHelperTest, TakesTheDefaultsInOrder) {
    Helper helper(*this);
    helper.Setup();
    EXPECT_EQ(Axes(), (Texts{"Time 10 50", "Temp 20 80"}));
    EXPECT_EQ(helper.Row(1), "Time|10|50");
    EXPECT_EQ(helper.Options(1), (Texts{"Time", "Temp", "Speed", kNone}));
    EXPECT_EQ(helper.Options(2), (Texts{"Temp", "Time", "Speed", kNone}));
    EXPECT_EQ(helper.fills, (std::vector<int>{1, 2}));
    EXPECT_TRUE(helper.selectedWasNull);
}

TEST_F(AxisHelperTest, LetsTheDefaultsDecideEvenWhereAnAxisHasItsFactor) {
    axes = MakeAxes({{"Temp", 1, 2}, {"Speed", 3, 4}});
    Helper helper(*this);
    helper.Setup();
    EXPECT_EQ(Axes(), (Texts{"Time 10 50", "Temp 20 80"}));
}

TEST_F(AxisHelperTest, ShowsTheStoredRangesUntilTheDefaultsDecide) {
    class Watching : public Helper {
    public:
        using Helper::Helper;
        void SetDefault(int axis) override {
            rows.push_back(Row(axis));
            Helper::SetDefault(axis);
        }
        Texts rows;
    };
    axes = MakeAxes({{"Temp", 1, 2}, {"Speed", 3, 4}});
    Watching helper(*this);
    helper.Setup();
    EXPECT_EQ(helper.rows, (Texts{"Temp||", "Speed||", "Time|1|2", "Temp|3|4"}));
}

TEST_F(AxisHelperTest, NeverTakesOneDefaultTwice) {
    axes = MakeAxes({{}, {}, {}, {}});
    defaults = MakeAxes({{"Time", 10, 50}, {"Time", 1, 2}, {"Temp", 20, 80}, {"Gone", 1, 2}});
    Helper helper(*this);
    helper.Setup();
    EXPECT_EQ(Axes(), (Texts{"Time 10 50", "Temp 20 80", kNone + " -99 -99", kNone + " -99 -99"}));
    EXPECT_EQ(helper.Row(3), kNone + "||") << "although its list holds Speed";
}

TEST_F(AxisHelperTest, SkipsEmptyPointersAmongTheDefaults) {
    defaults.insert(defaults.begin() + 1, nullptr);
    Helper helper(*this);
    helper.Setup();
    EXPECT_EQ(Axes(), (Texts{"Time 10 50", "Temp 20 80"}));
}

TEST_F(AxisHelperTest, BeginsWithTheDefaultAtElementOne) {
    defaults[0] = defaults[3];
    Helper helper(*this);
    helper.Setup();
    EXPECT_EQ(axes[1]->GetName(), "Time");
}

TEST_F(AxisHelperTest, WritesNothingSetForADefaultWithoutARange) {
    defaults = MakeAxes({{"Speed"}, {"Temp", 20, kNotSetF}});
    Helper helper(*this);
    helper.Setup();
    EXPECT_EQ(Axes(), (Texts{"Speed -99 -99", "Temp 20 -99"}));
    EXPECT_EQ(helper.Row(2), "Temp|20|");
}

TEST_F(AxisHelperTest, HandlesOnlyAsManyAxesAsThereAreDefaults) {
    axes = MakeAxes({{"Speed", 1, 2}, {"Gone", 3, 4}, {"Gone", 5, 6}});
    AxisPage::Arguments arguments = Arguments();
    arguments.numDefaults = 1;
    Helper helper(&study);
    helper.SetArguments(arguments);
    helper.Setup();
    EXPECT_EQ(Axes(), (Texts{"Time 10 50", "Gone 3 4", "Gone 5 6"}));
}

TEST_F(AxisHelperTest, PassesOverPositionsThatDoNotExist) {
    axes = MakeAxes({{"Speed", 1, 2}});
    axes.push_back(nullptr);
    AxisPage::Arguments arguments = Arguments();
    arguments.numAxes = 3;
    Helper helper(&study);
    helper.SetArguments(arguments);
    helper.Setup();
    EXPECT_EQ(axes[1]->GetName(), "Time");
    EXPECT_EQ(helper.fills, (std::vector<int>{1}));
}

TEST_F(AxisHelperTest, EndsOnTheNotUsedNameWhenNoFactorFits) {
    study.unavailable = {"Temp", "Time", "Speed"};
    axes = MakeAxes({{"Temp", 1, 2}, {kNone, 3, 4}});
    Helper helper(*this);
    helper.Setup();
    EXPECT_EQ(Axes(), (Texts{kNone + " 1 2", kNone + " 3 4"}));
    EXPECT_EQ(helper.Options(1), (Texts{kNone}));
}

TEST_F(AxisHelperTest, OffersTheNotUsedNameOnlyWhereTheAxisIsUnusedOrNothingFits) {
    axes = MakeAxes({{kNone}, {"Temp", 1, 2}});
    Helper helper(*this);
    helper.Setup();
    EXPECT_EQ(helper.Options(1), (Texts{"Time", kNone, "Speed", "Temp"}));
    EXPECT_EQ(helper.Options(2), (Texts{"Temp", "Time", "Speed"}));
}

TEST_F(AxisHelperTest, GivesTheSameAxesTwice) {
    Helper helper(*this);
    helper.Setup();
    const Texts once = Axes();
    helper.Setup();
    EXPECT_EQ(Axes(), once);
}

// Transfer.

TEST_F(AxisHelperTest, WritesNamesUnitsAndRanges) {
    axes[1]->SetIsQualitative(true);
    axes[2]->SetUnit("old");
    Helper helper(*this);
    helper.Setup();
    EXPECT_EQ(axes[1]->GetUnit(), "min");
    EXPECT_EQ(axes[2]->GetUnit(), "");
    EXPECT_FALSE(axes[1]->IsQualitative());
}

TEST_F(AxisHelperTest, WritesTheNameAndUnitOfAnUnusedAxisAlone) {
    axes = MakeAxes({{"Gone", 3, 4}});
    axes[1]->SetUnit("old");
    axes[1]->SetIsQualitative(true);
    defaults = MakeAxes({{"Gone", 1, 2}});
    Helper helper(*this);
    helper.Setup();
    EXPECT_EQ(Axes(), (Texts{kNone + " 3 4"}));
    EXPECT_EQ(axes[1]->GetUnit(), "");
    EXPECT_TRUE(axes[1]->IsQualitative());
}

class AxisHelperSettings : public AxisHelperTest {
protected:
    /// The settings that the axis gets for a qualitative factor with these in use.
    std::string SettingsFor(const std::vector<int>& included) {
        study.GetVariables()->GetFactor("Colour")->factorValue.included = included;
        defaults = MakeAxes({{"Colour"}});
        axes.resize(2);
        Helper helper(*this);
        helper.offersAll = true;
        helper.Setup();
        return axes[1]->GetSettings();
    }
};

TEST_F(AxisHelperSettings, AreTheFirstThreeInUse) {
    EXPECT_EQ(SettingsFor({}), "red;green;blue");
    EXPECT_TRUE(axes[1]->IsQualitative());
    EXPECT_EQ(axes[1]->GetMin(), -99.0F);
}

TEST_F(AxisHelperSettings, AreThoseInUse) {
    EXPECT_EQ(SettingsFor({4, 2}), "grey;green");
}

TEST_F(AxisHelperSettings, MayBeOne) {
    EXPECT_EQ(SettingsFor({2}), "green");
}

TEST_F(AxisHelperSettings, StayWhereTheAxisHasAny) {
    axes[1]->SetSettings("old");
    EXPECT_EQ(SettingsFor({}), "old");
    EXPECT_FALSE(axes[1]->IsQualitative()) << "the flag is not touched";
}

TEST_F(AxisHelperTest, CopiesWorkOnTheSameAxes) {
    const Helper helper(*this);
    Helper copy(helper);
    copy.Setup();
    EXPECT_EQ(axes[1]->GetName(), "Time");
    Helper assigned(&study);
    axes[1]->SetName("");
    assigned = helper;
    assigned.Setup();
    EXPECT_EQ(axes[1]->GetName(), "Time");
}

}  // namespace
}  // namespace kvopt::test
