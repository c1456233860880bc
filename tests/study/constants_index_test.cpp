#include "src/study/constants_index.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "support/fake_study.h"

namespace kvopt::test {
namespace {

using FactorConstants::Constant;

TEST(ConstantsIndex, FindsWhatTheArrayHoldsAndWhatIsAdded) {
    std::array<Constant, 5> constants;
    FactorConstants::Add(constants.data(), {"A", 1.0, FactorConstants::REF});
    FactorConstants::Add(constants.data(), {"B", std::string("red"), FactorConstants::CUSTOM});
    constants[3] = Constant("behind the end", 3.0, FactorConstants::REF);
    ConstantsIndex index(constants.data());
    EXPECT_EQ(index.Find("A"), &constants[0]);
    EXPECT_EQ(index.Find("B"), &constants[1]);
    EXPECT_EQ(index.Find("b"), nullptr);
    EXPECT_EQ(index.Find(""), nullptr);
    EXPECT_EQ(index.Find("behind the end"), nullptr);
    index.Add({"C", 2.0, FactorConstants::LOW});
    EXPECT_EQ(index.Find("C"), &constants[2]);
    EXPECT_EQ(constants[2].FloatValue(), 2.0);
    EXPECT_EQ(FactorConstants::NumConstants(constants.data()), 3) << "the new entry ends the array";
}

TEST(ConstantsIndex, FindsTheFirstOfANameLikeTheLookup) {
    std::array<Constant, 4> constants;
    FactorConstants::Add(constants.data(), {"A", 1.0, FactorConstants::REF});
    FactorConstants::Add(constants.data(), {"A", 2.0, FactorConstants::REF});
    ConstantsIndex index(constants.data());
    EXPECT_EQ(index.Find("A"), &constants[0]);
    index.Add({"A", 3.0, FactorConstants::REF});
    EXPECT_EQ(index.Find("A"), &constants[0]);
    EXPECT_EQ(FactorConstants::Lookup(constants.data(), "A"), 0);
}

TEST(ConstantsIndex, AddsNothingToAFullArrayToNoneAndOfNoName) {
    std::array<Constant, 2> constants;
    ConstantsIndex index(constants.data(), 1);
    index.Add(Constant());
    EXPECT_TRUE(index.HasRoom());
    EXPECT_FALSE(constants[0].IsDefined());
    index.Add({"A", 1.0, FactorConstants::REF});
    EXPECT_FALSE(index.HasRoom());
    index.Add({"B", 2.0, FactorConstants::REF});
    EXPECT_EQ(index.Find("B"), nullptr);
    EXPECT_FALSE(constants[1].IsDefined());
    ConstantsIndex none(nullptr);
    none.Add({"A", 1.0, FactorConstants::REF});
    EXPECT_EQ(none.Find("A"), nullptr);
}

TEST(ConstantsIndex, AddsWhatAPositionOfAFactorStandsFor) {
    FakeStudy study;
    const FactorClass& speed = study.Number("Speed", 10, 30);
    const FactorClass& colour = study.Names("Colour", {"red", "green"});
    std::array<Constant, 3> constants;
    ConstantsIndex index(constants.data());
    index.Add(*study.GetVariables(), speed, FactorConstants::HIGH);
    index.Add(*study.GetVariables(), colour, FactorConstants::LOW);
    EXPECT_EQ(index.Find("Speed")->FloatValue(), 30.0);
    EXPECT_EQ(index.Find("Speed")->SettingPos(), FactorConstants::HIGH);
    EXPECT_EQ(index.Find("Colour")->QualValue(), "red");
}

}  // namespace
}  // namespace kvopt::test
