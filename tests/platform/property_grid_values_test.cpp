#include "kvopt/platform/property_grid_values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "kvopt/text.h"

namespace kvopt {
namespace {

using testing::ElementsAre;

constexpr FormatText<1> kTwoDecimals{"%.2f"};
enum class Size { Small = 1, Large = 3 };

TEST(PropertyGridItem, HoldsATextOfItsOwn) {
    CXTPPropertyGridItem item(L"Name");
    EXPECT_TRUE(item.TakesText());
    EXPECT_TRUE(item.Choices().empty());
    EXPECT_EQ(item.CurrentChoice(), -1);
    item.SetValue(L"Ada");
    EXPECT_EQ(item.GetValue(), L"Ada");
}

TEST(PropertyGridItem, GivesBackTheChildThatItTakes) {
    CXTPPropertyGridItem item(L"Parent");
    auto& first = item.AddChildItem(std::make_unique<CXTPPropertyGridItemNumber>(L"First", 1));
    auto& second = item.AddChildItem(std::make_unique<CXTPPropertyGridItem>(L"Second"));
    EXPECT_EQ(first.GetNumber(), 1);
    ASSERT_EQ(item.Children().size(), 2U);
    EXPECT_EQ(item.Children()[0].get(), &first);
    EXPECT_EQ(item.Children()[1].get(), &second);
    EXPECT_EQ(second.Parent(), &item);
    EXPECT_THROW(item.AddChildItem(std::unique_ptr<CXTPPropertyGridItem>()), InvalidArgument);
    EXPECT_EQ(item.Children().size(), 2U);
}

TEST(PropertyGridItem, KnowsWhetherItsValueIsTheDefault) {
    KvPropertyGridItemDouble item(L"Tolerance", 0.1, nullptr, nullptr, L"0.1");
    EXPECT_TRUE(item.IsDefault());
    item.SetDouble(0.2);
    EXPECT_FALSE(item.IsDefault());
    item.SetDefaultValue(L"0.2");
    EXPECT_EQ(item.GetDefaultValue(), L"0.2");
    EXPECT_TRUE(item.IsDefault());
    const KvPropertyGridItemDouble without(L"Tolerance", 0.1, nullptr, nullptr, nullptr);
    EXPECT_EQ(without.GetDefaultValue(), L"");
    EXPECT_TRUE(without.IsDefault()) << "nothing is marked without a default";
}

TEST(PropertyGridItem, HasNoValueAsAHeading) {
    CXTPPropertyGridItemCategory heading(L"Heading");
    heading.SetValue(L"text");
    EXPECT_EQ(heading.GetValue(), L"");
    EXPECT_FALSE(heading.TakesText());
}

TEST(PropertyGridNumber, TakesItsBoundVariableOverAndWritesEachLaterValue) {
    int bound = 20;
    CXTPPropertyGridItemNumber item(L"Limit", 5, &bound);
    EXPECT_EQ(item.GetNumber(), 20);
    EXPECT_EQ(bound, 20);
    item.SetNumber(30);
    EXPECT_EQ(bound, 30);
    bound = 40;
    item.SetNumber(30);
    EXPECT_EQ(bound, 30) << "the same value is written as well";
    item.BindToNumber(nullptr);
    item.SetNumber(50);
    EXPECT_EQ(bound, 30);
    EXPECT_EQ(CXTPPropertyGridItemNumber(L"Limit", 5).GetNumber(), 5);
}

TEST(PropertyGridNumber, ReadsWholeNumbersAlone) {
    int bound = 20;
    CXTPPropertyGridItemNumber item(L"Limit", 0, &bound);
    EXPECT_EQ(item.GetValue(), L"20");
    EXPECT_TRUE(item.TakesText());
    item.SetValue(L" 25 ");
    EXPECT_EQ(bound, 25);
    for (const wchar_t* text : {L"", L"x", L"2.5", L"3 4", L"99999999999"}) {
        item.SetValue(text);
        EXPECT_EQ(item.GetNumber(), 25) << text;
    }
    item.SetValue(L"-4");
    EXPECT_EQ(item.GetValue(), L"-4");
}

TEST(PropertyGridDouble, TakesItsBoundVariableOverAndWritesEachLaterValue) {
    double bound = 0.25;
    CXTPPropertyGridItemDouble item(L"Share", 5.0, nullptr, &bound);
    EXPECT_EQ(item.GetDouble(), 0.25);
    item.SetDouble(0.5);
    EXPECT_EQ(bound, 0.5);
    item.BindToDouble(nullptr);
    item.SetDouble(0.75);
    EXPECT_EQ(bound, 0.5);
    double other = 0.1;
    KvPropertyGridItemDouble derived(L"Share", 0.0, nullptr, &other, nullptr);
    derived.SetDouble(0.3);
    EXPECT_EQ(other, 0.3);
}

TEST(PropertyGridDouble, ShowsItsNumberInItsFormat) {
    EXPECT_EQ(CXTPPropertyGridItemDouble(L"a", 0.1).GetValue(), L"0.1");
    EXPECT_EQ(CXTPPropertyGridItemDouble(L"a", 1234567.0).GetValue(), L"1.23457e+06");
    EXPECT_EQ(CXTPPropertyGridItemDouble(L"a", 0.1, &kTwoDecimals).GetValue(), L"0.10");
}

TEST(PropertyGridDouble, ReadsNumbersAlone) {
    CXTPPropertyGridItemDouble item(L"a", 1.0);
    item.SetValue(L" 2.5e1 ");
    EXPECT_EQ(item.GetDouble(), 25.0);
    for (const wchar_t* text : {L"", L"x", L"2,5", L"nan", L"inf", L"1 2"}) {
        item.SetValue(text);
        EXPECT_EQ(item.GetDouble(), 25.0) << text;
    }
}

TEST(PropertyGridDouble, PutsATypedNumberThroughItsVirtualSetter) {
    class Halved : public CXTPPropertyGridItemDouble {
    public:
        using CXTPPropertyGridItemDouble::CXTPPropertyGridItemDouble;
        void SetDouble(double value) override { CXTPPropertyGridItemDouble::SetDouble(value / 2); }
    } item(L"a", 1.0);
    item.SetValue(L"8");
    EXPECT_EQ(item.GetDouble(), 4.0);
}

class Choices : public testing::Test {
protected:
    Choices() {
        item.AddConstraint(L"Small", 1);
        item.AddConstraint(L"Large", 3);
    }
    CXTPPropertyGridItemEnum item{L"Size", 1};
};

TEST_F(Choices, StoreTheirNumbers) {
    EXPECT_FALSE(item.TakesText());
    ASSERT_EQ(item.Choices().size(), 2U);
    EXPECT_EQ(item.Choices()[1].text, L"Large");
    EXPECT_TRUE(item.Choices()[1].enabled);
    EXPECT_EQ(item.GetValue(), L"Small");
    EXPECT_EQ(item.CurrentChoice(), 0);
    item.SetValue(L"Large");
    EXPECT_EQ(item.GetEnum(), 3);
    EXPECT_EQ(item.CurrentChoice(), 1);
    item.SetValue(L"large");
    item.SetValue(L"");
    EXPECT_EQ(item.GetEnum(), 3);
}

TEST_F(Choices, ShowNothingForANumberThatNoneHas) {
    item.SetEnum(2);
    EXPECT_EQ(item.GetEnum(), 2);
    EXPECT_EQ(item.GetValue(), L"");
    EXPECT_EQ(item.CurrentChoice(), -1);
}

TEST_F(Choices, AreSwitchedOffByTheirNumber) {
    item.EnableConstraint(3, false);
    EXPECT_FALSE(item.IsConstraintEnabled(3));
    EXPECT_TRUE(item.IsConstraintEnabled(1));
    EXPECT_FALSE(item.IsConstraintEnabled(2)) << "there is none";
    EXPECT_FALSE(item.Choices()[1].enabled);
    item.SetValue(L"Large");
    EXPECT_EQ(item.GetEnum(), 1);
    item.SetEnum(3);
    EXPECT_EQ(item.GetValue(), L"Large") << "a stored number may be one that is off";
    item.EnableConstraint(3, true);
    EXPECT_TRUE(item.IsConstraintEnabled(3));
    EXPECT_THROW(item.EnableConstraint(2, true), InvalidArgument);
}

TEST_F(Choices, BindToNumbersAndEnumerations) {
    int number = 3;
    item.BindToEnum(&number);
    EXPECT_EQ(item.GetEnum(), 3);
    EXPECT_EQ(number, 3);
    item.Choose(0);
    EXPECT_EQ(number, 1);
    Size size = Size::Large;
    item.BindToEnum(&size);
    EXPECT_EQ(item.GetEnum(), 3);
    EXPECT_EQ(number, 1) << "what was bound before keeps its value";
    item.SetEnum(1);
    EXPECT_EQ(size, Size::Small);
    EXPECT_EQ(number, 1);
}

TEST(PropertyGridBool, HasTwoTexts) {
    CXTPPropertyGridItemBool item(L"Block effect", L"Fixed", L"Random", true);
    EXPECT_EQ(item.GetValue(), L"Fixed");
    EXPECT_FALSE(item.TakesText());
    ASSERT_EQ(item.Choices().size(), 2U);
    EXPECT_EQ(item.Choices()[0].text, L"Fixed");
    EXPECT_EQ(item.Choices()[1].text, L"Random");
    EXPECT_EQ(item.CurrentChoice(), 0);
    item.SetValue(L"Random");
    EXPECT_FALSE(item.GetBool());
    EXPECT_EQ(item.CurrentChoice(), 1);
    item.SetValue(L"fixed");
    EXPECT_FALSE(item.GetBool());
    item.SetValue(L"Fixed");
    EXPECT_TRUE(item.GetBool());
    item.SetValue(L"random");
    EXPECT_TRUE(item.GetBool());
    item.Choose(1);
    EXPECT_FALSE(item.GetBool());
    EXPECT_FALSE(CXTPPropertyGridItemBool(L"a", L"Yes", L"No").GetBool());
}

TEST(PropertyGridBool, BindsToBoolsAndToNumbersThatAreUsedAsOne) {
    CXTPPropertyGridItemBool item(L"a", L"Yes", L"No");
    int number = 2;
    item.BindToBool(&number);
    EXPECT_TRUE(item.GetBool());
    EXPECT_EQ(number, 2) << "binding writes nothing";
    item.SetBool(false);
    EXPECT_EQ(number, 0);
    item.SetBool(true);
    EXPECT_EQ(number, 1);
    bool flag = false;
    item.BindToBool(&flag);
    EXPECT_FALSE(item.GetBool());
    EXPECT_EQ(number, 1) << "what was bound before keeps its value";
    item.SetBool(true);
    EXPECT_TRUE(flag);
}

}  // namespace
}  // namespace kvopt
