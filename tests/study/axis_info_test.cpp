#include "kvopt/study/axis_info.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <limits>
#include <memory>
#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "kvopt/stores.h"

namespace kvopt {
namespace {

using Axes = std::vector<std::shared_ptr<AxisInfo>>;

std::shared_ptr<AxisInfo> Named(const std::string& name) {
    auto axis = std::make_shared<AxisInfoImpl>();
    axis->SetName(name);
    return axis;
}

Axes AxesOf(const std::vector<std::string>& names) {
    Axes axes(1);
    for (const std::string& name : names) {
        axes.push_back(name.empty() ? nullptr : Named(name));
    }
    return axes;
}

/// Names from element 1 on; "-" for an empty element.
std::vector<std::string> NamesOf(const Axes& axes) {
    std::vector<std::string> names;
    for (std::size_t i = 1; i < axes.size(); ++i) {
        names.push_back(axes[i] != nullptr ? axes[i]->GetName() : "-");
    }
    return names;
}

TEST(AxisInfoImpl, StartsEmpty) {
    const AxisInfoImpl axis;
    EXPECT_EQ(axis.GetName(), "");
    EXPECT_EQ(axis.GetUnit(), "");
    EXPECT_EQ(axis.GetSettings(), "");
    EXPECT_EQ(axis.GetMin(), -99.0F);
    EXPECT_EQ(axis.GetMax(), -99.0F);
    EXPECT_FALSE(axis.IsQualitative());
    EXPECT_FALSE(axis.IsDefined());
    EXPECT_FALSE(axis.IsUsed());
    EXPECT_EQ(axis.NumSettings(), 0);
}

TEST(AxisInfoImpl, KeepsWhatIsSet) {
    AxisInfoImpl axis;
    axis.SetName("Speed");
    axis.SetUnit("m/s");
    axis.SetSettings("a;b;c");
    axis.SetIsQualitative(true);
    axis.SetRange(1.5F, 2.5F);
    EXPECT_EQ(axis.GetName(), "Speed");
    EXPECT_EQ(axis.GetUnit(), "m/s");
    EXPECT_EQ(axis.GetSettings(), "a;b;c");
    EXPECT_EQ(axis.NumSettings(), 3);
    EXPECT_TRUE(axis.IsQualitative());
    EXPECT_EQ(axis.GetMin(), 1.5F);
    EXPECT_EQ(axis.GetMax(), 2.5F);
    axis.SetMin(-1.0F);
    axis.SetMax(4.0F);
    EXPECT_EQ(axis.GetMin(), -1.0F);
    EXPECT_EQ(axis.GetMax(), 4.0F);
}

TEST(AxisInfoImpl, ComparesNamesExactly) {
    AxisInfoImpl axis;
    axis.SetName("Speed");
    EXPECT_EQ(axis.Compare("Speed"), 0);
    EXPECT_NE(axis.Compare("speed"), 0);
    EXPECT_NE(axis.Compare("Speed "), 0);
    EXPECT_LT(axis.Compare("Temperature"), 0);
    EXPECT_GT(axis.Compare("Dose"), 0);
    EXPECT_NE(axis.Compare(nullptr), 0);
    EXPECT_EQ(AxisInfoImpl().Compare(nullptr), 0);
    EXPECT_EQ(AxisInfoImpl().Compare(""), 0);
}

TEST(AxisInfoImpl, IsUsedWithANameThatIsNotTheNotUsedName) {
    AxisInfoImpl axis;
    axis.SetName("Speed");
    EXPECT_TRUE(axis.IsUsed());
    EXPECT_TRUE(axis.IsDefined());
    axis.SetName(AxisInfo::GetNotUsedName());
    EXPECT_FALSE(axis.IsUsed());
    EXPECT_TRUE(axis.IsDefined());
    axis.SetName("");
    EXPECT_FALSE(axis.IsUsed());
    EXPECT_FALSE(axis.IsDefined());
}

TEST(AxisInfo, TellsTheNotUsedNameFromEveryOther) {
    EXPECT_FALSE(AxisInfo::GetNotUsedName().empty());
    EXPECT_TRUE(AxisInfo::IsNotUsedName(AxisInfo::GetNotUsedName()));
    EXPECT_FALSE(AxisInfo::IsNotUsedName(""));
    EXPECT_FALSE(AxisInfo::IsNotUsedName(AxisInfo::GetNotUsedName() + " "));
    EXPECT_FALSE(AxisInfo::IsNotUsedName("Speed"));
}

TEST(AxisInfoImpl, ClonesDeeply) {
    AxisInfoImpl axis;
    axis.SetName("Speed");
    axis.SetUnit("m/s");
    axis.SetSettings("a;b");
    axis.SetIsQualitative(true);
    axis.SetRange(1.0F, 2.0F);
    const std::unique_ptr<AxisInfo> clone(axis.Clone());
    axis.SetName("Other");
    axis.SetRange(7.0F, 8.0F);
    axis.SetSettings("");
    EXPECT_EQ(clone->GetName(), "Speed");
    EXPECT_EQ(clone->GetUnit(), "m/s");
    EXPECT_EQ(clone->GetSettings(), "a;b");
    EXPECT_TRUE(clone->IsQualitative());
    EXPECT_EQ(clone->GetMin(), 1.0F);
    EXPECT_EQ(clone->GetMax(), 2.0F);
}

TEST(AxisInfoImpl, CountsTheSettingsThatAreNotEmpty) {
    AxisInfoImpl axis;
    axis.SetSettings("one");
    EXPECT_EQ(axis.NumSettings(), 1);
    axis.SetSettings("one;;two;");
    EXPECT_EQ(axis.NumSettings(), 2);
    axis.SetSettings(";");
    EXPECT_EQ(axis.NumSettings(), 0);
}

struct AxisFault {
    const char* row;
    std::string name;
    bool qualitative;
    std::string settings;
    float min;
    float max;
    AxisInfo::AxisError error;
};

std::ostream& operator<<(std::ostream& out, const AxisFault& row) {
    return out << row.row;
}

class AxisFaults : public testing::TestWithParam<AxisFault> {};

TEST_P(AxisFaults, AreToldInTheirOrder) {
    AxisInfoImpl axis;
    axis.SetName(GetParam().name);
    axis.SetIsQualitative(GetParam().qualitative);
    axis.SetSettings(GetParam().settings);
    axis.SetRange(GetParam().min, GetParam().max);
    EXPECT_EQ(axis.IsLegalAxis(), GetParam().error);
}

constexpr float kInfinity = std::numeric_limits<float>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Table, AxisFaults,
    testing::Values(
        AxisFault{"legal", "Speed", false, "", 1, 2, AxisInfo::NoAxisError},
        AxisFault{"empty", "", false, "", 1, 2, AxisInfo::NotUsed},
        AxisFault{"notUsed", AxisInfo::GetNotUsedName(), true, "", 2, 1, AxisInfo::NotUsed},
        AxisFault{"noLow", "Speed", false, "", kNotSetF, 2, AxisInfo::NoRange},
        AxisFault{"noHigh", "Speed", false, "", 1, kNotSetF, AxisInfo::NoRange},
        AxisFault{"infinite", "Speed", false, "", 1, kInfinity, AxisInfo::NoRange},
        AxisFault{"equal", "Speed", false, "", 1, 1, AxisInfo::ReversedRange},
        AxisFault{"reversed", "Speed", false, "a", 2, 1, AxisInfo::ReversedRange},
        AxisFault{"qualitative", "Colour", true, "a;b", kNotSetF, kNotSetF, AxisInfo::NoAxisError},
        AxisFault{"oneSetting", "Colour", true, "a", 1, 2, AxisInfo::NoAxisError},
        AxisFault{"noSettings", "Colour", true, "", 1, 2, AxisInfo::NoSettings},
        AxisFault{"emptySettings", "Colour", true, ";;", 1, 2, AxisInfo::NoSettings}),
    testing::PrintToStringParamName());

TEST(AxisInfo, FindsTheFirstAxisOfAName) {
    Axes axes = AxesOf({"A", "", "B", "A"});
    EXPECT_EQ(AxisInfo::FindFromName(axes, "A"), axes.begin() + 1);
    EXPECT_EQ(AxisInfo::FindFromName(axes, "B"), axes.begin() + 3);
    EXPECT_EQ(AxisInfo::FindFromName(axes, "C"), axes.end());
    EXPECT_EQ(AxisInfo::FindFromName(axes, "a"), axes.end());
    EXPECT_EQ(AxisInfo::FindFromName(axes, ""), axes.end());
    const Axes& fixed = axes;
    EXPECT_EQ(AxisInfo::FindFromName(fixed, "B"), fixed.begin() + 3);
    Axes none;
    EXPECT_EQ(AxisInfo::FindFromName(none, "A"), none.end());
}

class AxisTexts : public testing::TestWithParam<std::string> {};

TEST_P(AxisTexts, ComeBackExactly) {
    AxisInfoImpl axis;
    axis.SetName(GetParam());
    axis.SetUnit(GetParam());
    axis.SetSettings(GetParam());
    axis.SetIsQualitative(true);
    axis.SetRange(0.1F, FLT_MAX);
    ConfigurationStore store;
    axis.WriteSection(store.Root().get());
    const ConfigurationStore reread = ConfigurationStore::Parse(store.Text(), "plot.json");
    AxisInfoImpl back;
    ASSERT_TRUE(back.ReadSection(reread.Root().get()));
    EXPECT_EQ(back.GetName(), GetParam());
    EXPECT_EQ(back.GetUnit(), GetParam());
    EXPECT_EQ(back.GetSettings(), GetParam());
    EXPECT_TRUE(back.IsQualitative());
    EXPECT_EQ(back.GetMin(), 0.1F);
    EXPECT_EQ(back.GetMax(), FLT_MAX);
}

INSTANTIATE_TEST_SUITE_P(Hostile, AxisTexts,
                         testing::Values("", "Speed", " edge blanks ", "a=b", "[x]", "a;b;c", "#1",
                                         "\"quoted\"", "line\nbreak", "back\\slash", "a/b.c",
                                         "50 %", "\xC3\x85ngstr\xC3\xB6m", "\xF0\x9F\x98\x80",
                                         "bad\xFF"
                                         "byte",
                                         "<not used>", "$BlockV"));

class AxisLimits : public testing::TestWithParam<float> {};

TEST_P(AxisLimits, ComeBackToTheSameBits) {
    AxisInfoImpl axis;
    axis.SetName("Speed");
    axis.SetRange(GetParam(), -GetParam());
    ConfigurationStore store;
    axis.WriteSection(store.Root().get());
    const ConfigurationStore reread = ConfigurationStore::Parse(store.Text(), "plot.json");
    AxisInfoImpl back;
    ASSERT_TRUE(back.ReadSection(reread.Root().get()));
    EXPECT_EQ(back.GetMin(), GetParam());
    EXPECT_EQ(back.GetMax(), -GetParam());
}

INSTANTIATE_TEST_SUITE_P(Table, AxisLimits,
                         testing::Values(0.0F, 0.1F, 1.0F / 3.0F, -99.0F, 16777217.0F, FLT_MIN,
                                         FLT_TRUE_MIN, FLT_MAX, kInfinity));

TEST(AxisInfoImpl, WritesItsKeysStraightIntoTheSection) {
    AxisInfoImpl axis;
    axis.SetName("Speed");
    axis.SetUnit("m/s");
    axis.SetRange(1.0F, 2.5F);
    axis.SetSettings("a;b");
    axis.SetIsQualitative(true);
    ConfigurationStore store;
    axis.WriteSection(store.Root().get());
    const auto section = store.Root();
    std::string text;
    double number = 0.0;
    bool flag = false;
    EXPECT_TRUE(section->ReadKey("Name", text) && text == "Speed");
    EXPECT_TRUE(section->ReadKey("Unit", text) && text == "m/s");
    EXPECT_TRUE(section->ReadKey("IsQualitative", flag) && flag);
    EXPECT_TRUE(section->ReadKey("Min", number) && number == 1.0);
    EXPECT_TRUE(section->ReadKey("Max", number) && number == 2.5);
    EXPECT_TRUE(section->ReadKey("Settings", text) && text == "a;b");
}

TEST(AxisInfoImpl, ChangesNothingWithoutAName) {
    ConfigurationStore store;
    store.Root()->WriteKey("Unit", "kg");
    store.Root()->WriteKey("Min", 5.0);
    AxisInfoImpl axis;
    axis.SetName("Speed");
    EXPECT_FALSE(axis.ReadSection(store.Root().get()));
    EXPECT_FALSE(axis.ReadSection(nullptr));
    EXPECT_EQ(axis.GetName(), "Speed");
    EXPECT_EQ(axis.GetUnit(), "");
    EXPECT_EQ(axis.GetMin(), kNotSetF);
}

TEST(AxisInfoImpl, KeepsTheFieldsWhoseKeysAreMissing) {
    ConfigurationStore store;
    store.Root()->WriteKey("Name", "Dose");
    store.Root()->WriteKey("Max", 9.0);
    AxisInfoImpl axis;
    axis.SetUnit("kg");
    axis.SetIsQualitative(true);
    axis.SetSettings("a");
    axis.SetRange(1.0F, 2.0F);
    EXPECT_TRUE(axis.ReadSection(store.Root().get()));
    EXPECT_EQ(axis.GetName(), "Dose");
    EXPECT_EQ(axis.GetUnit(), "kg");
    EXPECT_TRUE(axis.IsQualitative());
    EXPECT_EQ(axis.GetSettings(), "a");
    EXPECT_EQ(axis.GetMin(), 1.0F);
    EXPECT_EQ(axis.GetMax(), 9.0F);
}

TEST(AxisInfoVector, PutsAvailableFactorsFirstEachGroupInItsOrder) {
    Axes axes;
    AxisInfoVector::PreferAvailableFactors(axes, AxesOf({"f", "e", "d", "c", "b", "a"}),
                                           {"a", "d", "e"}, {});
    EXPECT_EQ(NamesOf(axes), (std::vector<std::string>{"e", "d", "a", "f", "c", "b"}));
    EXPECT_EQ(axes.front(), nullptr);
}

TEST(AxisInfoVector, CountsAvailableMixtureFactorsAsAvailable) {
    Axes axes;
    AxisInfoVector::PreferAvailableFactors(axes, AxesOf({"c", "b", "a"}), {"a"}, {"b"});
    EXPECT_EQ(NamesOf(axes), (std::vector<std::string>{"b", "a", "c"}));
}

TEST(AxisInfoVector, PutsEmptyElementsLastAndLosesNone) {
    Axes axes = AxesOf({"x", "y"});
    AxisInfoVector::PreferAvailableFactors(axes, AxesOf({"", "c", "a"}), {"a"}, {});
    EXPECT_EQ(NamesOf(axes), (std::vector<std::string>{"a", "c", "-"}));
}

TEST(AxisInfoVector, SharesTheRecordsAndMayFillItsSource) {
    Axes axes = AxesOf({"c", "a"});
    const std::shared_ptr<AxisInfo> last = axes[2];
    AxisInfoVector::PreferAvailableFactors(axes, axes, {"a"}, {});
    EXPECT_EQ(NamesOf(axes), (std::vector<std::string>{"a", "c"}));
    EXPECT_EQ(axes[1], last);
    AxisInfoVector::PreferAvailableFactors(axes, {}, {}, {});
    EXPECT_EQ(NamesOf(axes), std::vector<std::string>{});
}

TEST(AxisInfoVector, KeepsTheOrderOfManyEqualFactors) {
    std::vector<std::string> names;
    std::set<std::string> available;
    std::vector<std::string> expected;
    std::vector<std::string> others;
    for (int i = 0; i < 300; ++i) {
        names.push_back("f" + std::to_string((i * 7919) % 300));
        if (i % 3 == 0) {
            available.insert(names.back());
            expected.push_back(names.back());
        } else {
            others.push_back(names.back());
        }
    }
    expected.insert(expected.end(), others.begin(), others.end());
    Axes axes;
    AxisInfoVector::PreferAvailableFactors(axes, AxesOf(names), available, {});
    EXPECT_EQ(NamesOf(axes), expected);
}

}  // namespace
}  // namespace kvopt
