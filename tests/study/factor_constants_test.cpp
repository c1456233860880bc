#include "kvopt/study/factor_constants.h"

#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "support/fake_study.h"

namespace kvopt::FactorConstants {
namespace {

using test::FakeStudy;

std::vector<std::string> NamesOf(const Constant* constants) {
    std::vector<std::string> names;
    for (int i = 0; i < NumConstants(constants); ++i) {
        names.push_back(constants[i].Name());
    }
    return names;
}

TEST(Constant, IsNotDefinedWhenFresh) {
    const Constant constant;
    EXPECT_FALSE(constant.IsDefined());
    EXPECT_EQ(constant.Name(), "");
    EXPECT_NE(constant.kind, 2);
    EXPECT_EQ(constant.FloatValue(), kNotSet);
    EXPECT_EQ(constant.QualValue(), "");
    EXPECT_EQ(constant.SettingPos(), NO_SETTING);
}

TEST(Constant, IsQuantitativeWithANumber) {
    Constant constant("Speed", 1.5, HIGH);
    EXPECT_TRUE(constant.IsDefined());
    EXPECT_EQ(constant.kind, 2);
    EXPECT_EQ(constant.Name(), "Speed");
    EXPECT_EQ(constant.FloatValue(), 1.5);
    EXPECT_EQ(constant.QualValue(), "");
    EXPECT_EQ(constant.SettingPos(), HIGH);
    constant.FloatValue(2.5);
    constant.SettingPos() = LOW;
    EXPECT_EQ(constant.FloatValue(), 2.5);
    EXPECT_EQ(constant.SettingPos(), LOW);
}

TEST(Constant, IsQualitativeWithAText) {
    Constant constant("Colour", std::string("red"), CUSTOM);
    EXPECT_TRUE(constant.IsDefined());
    EXPECT_NE(constant.kind, 2);
    EXPECT_EQ(constant.QualValue(), "red");
    EXPECT_EQ(constant.FloatValue(), kNotSet);
    EXPECT_EQ(constant.SettingPos(), CUSTOM);
    constant.QualValue("blue");
    EXPECT_EQ(constant.QualValue(), "blue");
}

TEST(Constant, PositionsAreNumberedInTheirOrder) {
    EXPECT_EQ(LOW, 0);
    EXPECT_EQ(REF, 1);
    EXPECT_EQ(HIGH, 2);
    EXPECT_EQ(CUSTOM, 3);
    EXPECT_EQ(NO_SETTING, 4);
}

TEST(ConstantArray, EndsAtTheFirstEntryThatIsNotDefined) {
    std::array<Constant, 4> constants;
    EXPECT_EQ(NumConstants(constants.data()), 0);
    constants[0] = Constant("A", 1.0, REF);
    constants[1] = Constant("B", 2.0, REF);
    constants[3] = Constant("D", 4.0, REF);
    EXPECT_EQ(NumConstants(constants.data()), 2);
    EXPECT_TRUE(IsMember(constants.data(), "B"));
    EXPECT_FALSE(IsMember(constants.data(), "D"));
    EXPECT_FALSE(IsMember(constants.data(), "b"));
    EXPECT_FALSE(IsMember(constants.data(), ""));
    EXPECT_EQ(Lookup(constants.data(), "A"), 0);
    EXPECT_EQ(Lookup(constants.data(), "B"), 1);
    EXPECT_EQ(Lookup(constants.data(), "D"), -1);
    EXPECT_EQ(NumConstants(nullptr), 0);
    EXPECT_EQ(Lookup(nullptr, "A"), -1);
}

TEST(ConstantArray, AppendsBeforeTheEnd) {
    std::array<Constant, 4> constants;
    EXPECT_EQ(Add(constants.data(), Constant("A", 1.0, REF)), 0);
    EXPECT_EQ(Add(constants.data(), Constant("B", std::string("x"), LOW)), 1);
    EXPECT_EQ(Add(constants.data(), Constant("C", 3.0, REF)), 2);
    EXPECT_EQ(NamesOf(constants.data()), (std::vector<std::string>{"A", "B", "C"}));
    EXPECT_FALSE(constants[3].IsDefined());
    EXPECT_EQ(constants[1].QualValue(), "x");
}

TEST(ConstantArray, AppendsNothingThatIsNotDefined) {
    std::array<Constant, 2> constants;
    EXPECT_EQ(Add(constants.data(), Constant()), -1);
    EXPECT_EQ(Add(nullptr, Constant("A", 1.0, REF)), -1);
    EXPECT_EQ(NumConstants(constants.data()), 0);
}

TEST(ConstantArray, ForgetsWhatStoodBehindItsEnd) {
    std::array<Constant, 4> constants;
    Add(constants.data(), Constant("A", 1.0, REF));
    Add(constants.data(), Constant("B", 2.0, REF));
    constants[0] = Constant();
    Add(constants.data(), Constant("C", 3.0, REF));
    EXPECT_EQ(NamesOf(constants.data()), (std::vector<std::string>{"C"}));
}

TEST(ConstantArray, AppendsAnEntryThatStandsInTheArrayItself) {
    std::array<Constant, 4> constants;
    Add(constants.data(), Constant("A", 1.0, REF));
    constants[2] = Constant("C", 3.0, REF);
    Add(constants.data(), constants[2]);
    EXPECT_EQ(NamesOf(constants.data()), (std::vector<std::string>{"A", "C"}));
}

TEST(ConstantArray, RefusesMoreThanItsCapacity) {
    std::array<Constant, 3> constants;
    EXPECT_EQ(Add(constants.data(), Constant("A", 1.0, REF), 2), 0);
    EXPECT_EQ(Add(constants.data(), Constant("B", 2.0, REF), 2), 1);
    EXPECT_EQ(Add(constants.data(), Constant("C", 3.0, REF), 2), -1);
    EXPECT_EQ(NamesOf(constants.data()), (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(Add(constants.data(), Constant("A", 1.0, REF), 0), -1);
}

TEST(ConstantArray, IsCopiedWithItsEnd) {
    std::array<Constant, 4> from;
    Add(from.data(), Constant("A", 1.0, HIGH));
    Add(from.data(), Constant("B", std::string("x"), CUSTOM));
    std::array<Constant, 4> to;
    for (const char* name : {"P", "Q", "R"}) {
        Add(to.data(), Constant(name, 0.0, REF));
    }
    CopyConstantVector(to.data(), from.data());
    EXPECT_EQ(NamesOf(to.data()), (std::vector<std::string>{"A", "B"}));
    EXPECT_EQ(to[0].FloatValue(), 1.0);
    EXPECT_EQ(to[0].SettingPos(), HIGH);
    EXPECT_EQ(to[1].QualValue(), "x");
    EXPECT_NE(to[1].kind, 2);
    CopyConstantVector(to.data(), to.data());
    EXPECT_EQ(NamesOf(to.data()), (std::vector<std::string>{"A", "B"}));
    CopyConstantVector(to.data(), nullptr);
    EXPECT_EQ(NumConstants(to.data()), 0);
}

/// A number from 10 to 20, a text, levels, and two parts of which one may be a fifth at most.
class FactorPositions : public testing::Test {
protected:
    FactorPositions() {
        number_ = &study_.Number("Speed", 10.0, 20.0);
        names_ = &study_.Names("Colour", {"red", "green", "blue", "grey"});
        levels_ = &study_.Levels("Dose", {"1", "2", "5"});
        part_ = &study_.Part("Water", 0.5, 0.9);
        study_.Part("Salt", 0.0, 0.2);
        study_.Filler("Sand", 0.1, 0.5);
        open_ = &study_.Number("Open", kNotSet, kNotSet);
    }
    const Variables& Vars() const { return *study_.GetVariables(); }
    std::string Center(const FactorClass* factor, SettingType position) const {
        std::string text = "old";
        CenterValue(Vars(), factor, position, text);
        return text;
    }
    SettingType Which(const FactorClass* factor, double value) const {
        return WhichSetting(Vars(), factor, value);
    }
    SettingType Which(const FactorClass* factor, const char* text) const {
        return WhichSetting(Vars(), factor, text);
    }

    FakeStudy study_;
    FactorClass* number_;
    FactorClass* names_;
    FactorClass* levels_;
    FactorClass* part_;
    FactorClass* open_;
};

TEST_F(FactorPositions, HaveTheirValues) {
    EXPECT_EQ(GetQuantitativeFloatValue(Vars(), number_, LOW), 10.0);
    EXPECT_EQ(GetQuantitativeFloatValue(Vars(), number_, REF), 15.0);
    EXPECT_EQ(GetQuantitativeFloatValue(Vars(), number_, HIGH), 20.0);
    EXPECT_EQ(GetQuantitativeFloatValue(Vars(), number_, CUSTOM), kNotSet);
    EXPECT_EQ(GetQuantitativeFloatValue(Vars(), number_, NO_SETTING), kNotSet);
    EXPECT_EQ(GetQuantitativeFloatValue(Vars(), levels_, REF), 2.0);
    EXPECT_EQ(GetQuantitativeFloatValue(Vars(), names_, REF), kNotSet);
    EXPECT_EQ(GetQuantitativeFloatValue(Vars(), open_, REF), kNotSet);
    EXPECT_EQ(GetQuantitativeFloatValue(Vars(), nullptr, REF), kNotSet);
}

TEST_F(FactorPositions, CenterAMixtureFactorOnTheReferenceMixture) {
    // The lows sum to 0.6 and the highs to 1.6, so each part stands 0.4 of its way up.
    EXPECT_DOUBLE_EQ(GetQuantitativeFloatValue(Vars(), part_, REF), 0.66);
    EXPECT_DOUBLE_EQ(GetQuantitativeFloatValue(Vars(), Vars().GetFactor("Sand"), REF), 0.26);
    EXPECT_EQ(GetQuantitativeFloatValue(Vars(), part_, LOW), 0.5);
    EXPECT_EQ(Center(part_, REF), "0.66");
}

TEST(MixturePositions, AskTheReferenceMixtureInOriginalUnits) {
    class Mixture : public Variables {
    public:
        std::vector<FactorClass*> GetAllFactors() const override { return {}; }
        std::vector<ResponseClass*> GetAllResponses() const override { return {}; }
        double GetMixtureReferenceRegulated(const std::string& factor, const std::string& fixed,
                                            double fixedValue, bool originalUnits) const override {
            return factor == "Water" && fixed.empty() && fixedValue == kNotSet && originalUnits
                       ? 0.3
                       : 0.7;
        }
    };
    const FactorClass water("Water", 0.0, 1.0, CEType::Formulation);
    EXPECT_EQ(GetQuantitativeFloatValue(Mixture(), &water, REF), 0.3);
}

TEST_F(FactorPositions, HaveTheirTexts) {
    EXPECT_EQ(Center(number_, LOW), "10");
    EXPECT_EQ(Center(number_, REF), "15");
    EXPECT_EQ(Center(number_, HIGH), "20");
    EXPECT_EQ(Center(number_, CUSTOM), "");
    EXPECT_EQ(Center(number_, NO_SETTING), "");
    EXPECT_EQ(Center(open_, REF), "");
    EXPECT_EQ(Center(names_, LOW), "red");
    EXPECT_EQ(Center(names_, REF), "green");
    EXPECT_EQ(Center(names_, HIGH), "grey");
    EXPECT_EQ(Center(names_, CUSTOM), "");
    EXPECT_EQ(Center(nullptr, REF), "");
    names_->factorValue.included = {2, 3, 4};
    EXPECT_EQ(Center(names_, LOW), "green");
    EXPECT_EQ(Center(names_, REF), "blue");
    names_->SetSettings({});
    EXPECT_EQ(Center(names_, REF), "");
}

TEST_F(FactorPositions, ShowNoDigitsBeyondThoseOfAFloat) {
    const FactorClass& factor = study_.Number("Tenths", 0.1, 0.7);
    EXPECT_EQ(Center(&factor, REF), "0.4");
    const FactorClass& third = study_.Number("Third", 0.0, 1.0 / 3.0);
    EXPECT_EQ(Center(&third, HIGH), "0.33333334");
}

struct PositionCase {
    const char* name;
    double value;
    SettingType position;
};

std::ostream& operator<<(std::ostream& out, const PositionCase& row) {
    return out << row.name;
}

class ValuesOfTenToTwenty : public testing::TestWithParam<PositionCase> {};

TEST_P(ValuesOfTenToTwenty, AreClassified) {
    FakeStudy study;
    const FactorClass& factor = study.Number("Speed", 10.0, 20.0);
    EXPECT_EQ(WhichSetting(*study.GetVariables(), &factor, GetParam().value), GetParam().position);
}

INSTANTIATE_TEST_SUITE_P(Table, ValuesOfTenToTwenty,
                         testing::Values(PositionCase{"low", 10.0, LOW},
                                         PositionCase{"center", 15.0, REF},
                                         PositionCase{"high", 20.0, HIGH},
                                         PositionCase{"between", 12.0, CUSTOM},
                                         PositionCase{"outside", 25.0, CUSTOM},
                                         PositionCase{"notSet", kNotSet, NO_SETTING},
                                         PositionCase{"withinAMillionth", 10.000009, LOW},
                                         PositionCase{"beyondAMillionth", 10.000011, CUSTOM}),
                         testing::PrintToStringParamName());

TEST_F(FactorPositions, RecogniseTheCenterBeforeALimit) {
    const FactorClass& fixed = study_.Number("Fixed", 3.0, 3.0);
    EXPECT_EQ(Which(&fixed, 3.0), REF);
    const FactorClass& lone = study_.Names("Lone", {"only"});
    EXPECT_EQ(Which(&lone, "only"), REF);
    const FactorClass& pair = study_.Names("Pair", {"off", "on"});
    EXPECT_EQ(Which(&pair, "off"), REF);
    EXPECT_EQ(Which(&pair, "on"), HIGH);
}

TEST_F(FactorPositions, AreCustomWithoutLimitsOrFactor) {
    EXPECT_EQ(Which(open_, 3.0), CUSTOM);
    EXPECT_EQ(Which(nullptr, 3.0), CUSTOM);
    EXPECT_EQ(Which(names_, 1.0), CUSTOM);
    const FactorClass& half = study_.Number("Half", 1.0, kNotSet);
    EXPECT_EQ(Which(&half, 1.0), LOW);
    EXPECT_EQ(Which(&half, 1.0000001), CUSTOM);
}

TEST_F(FactorPositions, AreReadFromTexts) {
    EXPECT_EQ(Which(number_, "10"), LOW);
    EXPECT_EQ(Which(number_, " 15 "), REF);
    EXPECT_EQ(Which(number_, "2e1"), HIGH);
    EXPECT_EQ(Which(number_, "11"), CUSTOM);
    EXPECT_EQ(Which(number_, "-99"), NO_SETTING);
    EXPECT_EQ(Which(number_, ""), NO_SETTING);
    EXPECT_EQ(Which(number_, "ten"), NO_SETTING);
    EXPECT_EQ(Which(number_, static_cast<const char*>(nullptr)), NO_SETTING);
    EXPECT_EQ(Which(names_, "red"), LOW);
    EXPECT_EQ(Which(names_, "green"), REF);
    EXPECT_EQ(Which(names_, "grey"), HIGH);
    EXPECT_EQ(Which(names_, "blue"), CUSTOM);
    EXPECT_EQ(Which(names_, "pink"), CUSTOM);
    EXPECT_EQ(Which(names_, ""), NO_SETTING);
    EXPECT_EQ(Which(nullptr, "3"), CUSTOM);
}

TEST_F(FactorPositions, BecomeConstantsOfTheirFactors) {
    std::array<Constant, 5> constants;
    const Variables* variables = study_.GetVariables();
    EXPECT_EQ(AddConstant(constants.data(), variables, number_, HIGH), 0);
    EXPECT_EQ(AddConstant(constants.data(), variables, names_, REF), 1);
    EXPECT_EQ(AddConstant(constants.data(), variables, open_, REF), 2);
    EXPECT_EQ(AddConstant(constants.data(), variables, nullptr, REF), -1);
    EXPECT_EQ(AddConstant(constants.data(), nullptr, number_, REF), -1);
    EXPECT_EQ(NamesOf(constants.data()), (std::vector<std::string>{"Speed", "Colour", "Open"}));
    EXPECT_EQ(constants[0].kind, 2);
    EXPECT_EQ(constants[0].FloatValue(), 20.0);
    EXPECT_EQ(constants[0].SettingPos(), HIGH);
    EXPECT_NE(constants[1].kind, 2);
    EXPECT_EQ(constants[1].QualValue(), "green");
    EXPECT_EQ(constants[1].SettingPos(), REF);
    EXPECT_EQ(constants[2].FloatValue(), kNotSet);
}

TEST(SettingNames, GoBothWays) {
    const std::vector<std::string> expected{"LOW", "REF", "HIGH", "CUSTOM", "NO_SETTING"};
    for (int i = 0; i < 5; ++i) {
        const auto position = static_cast<SettingType>(i);
        EXPECT_EQ(SettingName(position, nullptr), expected[static_cast<std::size_t>(i)]);
        EXPECT_EQ(CenterType(SettingName(position, nullptr), nullptr), position);
    }
    EXPECT_STREQ(SettingName(static_cast<SettingType>(5), nullptr), "NO_SETTING");
    EXPECT_STREQ(SettingName(static_cast<SettingType>(-1), nullptr), "NO_SETTING");
}

TEST(SettingNames, AreUnknownUnlessExact) {
    EXPECT_EQ(CenterType("", nullptr), NO_SETTING);
    EXPECT_EQ(CenterType("low", nullptr), NO_SETTING);
    EXPECT_EQ(CenterType("LOW ", nullptr), NO_SETTING);
    EXPECT_EQ(CenterType(nullptr, nullptr), NO_SETTING);
}

TEST(SettingNames, MayBeTheCallersOwn) {
    const char* const names[] = {"unten", "mitte", "oben", "frei", "nichts"};
    EXPECT_STREQ(SettingName(HIGH, names), "oben");
    EXPECT_EQ(CenterType("mitte", names), REF);
    EXPECT_EQ(CenterType("REF", names), NO_SETTING);
    EXPECT_EQ(CenterType("nichts", names), NO_SETTING);
}

}  // namespace
}  // namespace kvopt::FactorConstants
