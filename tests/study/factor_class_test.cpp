#include "kvopt/study/factor_class.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace kvopt {
namespace {

TEST(FactorClass, IsAFreeControlledNumberWhenFresh) {
    const FactorClass factor;
    EXPECT_EQ(factor.name, "");
    EXPECT_EQ(factor.index, 0);
    EXPECT_EQ(factor.settingCount, 0);
    EXPECT_EQ(factor.factorValue.type, CEType::Quantitative);
    EXPECT_EQ(factor.factorValue.use, CEUse::Controlled);
    EXPECT_EQ(factor.low, kNotSet);
    EXPECT_EQ(factor.high, kNotSet);
    EXPECT_EQ(factor.precision, kNotSet);
    EXPECT_EQ(factor.GetFactorKind(), 1);
}

TEST(FactorClass, AnswersAsEveryVariableDoes) {
    FactorClass factor("Speed", 1.0, 2.0);
    factor.units = "m/s";
    const ResponseClass& variable = factor;
    EXPECT_EQ(variable.GetName(), "Speed");
    EXPECT_EQ(variable.GetUnits(), "m/s");
    const ResponseClass response("Yield", "%", "Y");
    EXPECT_EQ(response.GetName(), "Yield");
    EXPECT_EQ(response.GetUnits(), "%");
    EXPECT_EQ(response.abbreviation, "Y");
}

struct KindCase {
    CEType::EType type;
    bool qualitative;
    bool mixture;
    bool list;
};

std::ostream& operator<<(std::ostream& out, const KindCase& row) {
    return out << "type" << row.type;
}

class FactorKinds : public testing::TestWithParam<KindCase> {};

TEST_P(FactorKinds, TellWhatTheyAre) {
    FactorClass factor;
    factor.factorValue.type = GetParam().type;
    EXPECT_EQ(factor.IsQualitative(), GetParam().qualitative);
    EXPECT_EQ(factor.IsMixture(), GetParam().mixture);
    EXPECT_EQ(CEType::IsList(GetParam().type), GetParam().list);
}

INSTANTIATE_TEST_SUITE_P(All, FactorKinds,
                         testing::Values(KindCase{CEType::Quantitative, false, false, false},
                                         KindCase{CEType::Multilevel, false, false, true},
                                         KindCase{CEType::Qualitative, true, false, true},
                                         KindCase{CEType::Formulation, false, true, false},
                                         KindCase{CEType::Filler, false, false, false},
                                         KindCase{CEType::Discrete, false, false, true},
                                         KindCase{CEType::Covariate, false, false, false}),
                         testing::PrintToStringParamName());

TEST(FactorClass, NumbersOfTypesAndUsesAreThoseThatStudiesStore) {
    EXPECT_EQ(CEType::Quantitative, 1);
    EXPECT_EQ(CEType::Multilevel, 2);
    EXPECT_EQ(CEType::Qualitative, 3);
    EXPECT_EQ(CEType::Formulation, 4);
    EXPECT_EQ(CEType::Filler, 5);
    EXPECT_EQ(CEType::Discrete, 6);
    EXPECT_EQ(CEType::Covariate, 7);
    EXPECT_EQ(CEUse::Controlled, 1);
    EXPECT_EQ(CEUse::Uncontrolled, 2);
    EXPECT_EQ(CEUse::Constant, 3);
    EXPECT_EQ(static_cast<int>(CEVar::AllFactors), 1);
    EXPECT_EQ(static_cast<int>(CEVar::ProcessFactors), 2);
    EXPECT_EQ(static_cast<int>(CEVar::MixtureFactors), 3);
    EXPECT_EQ(CFitMethod::LeastSquares, 2);
    EXPECT_EQ(CFitMethod::PartialLeastSquares, 3);
    EXPECT_EQ(CFitMethod::MixtureModel, 4);
}

TEST(FactorClass, IsADesignFactorWhenControlledAndNotTheBlockEntry) {
    FactorClass factor("Speed", 0.0, 1.0);
    EXPECT_TRUE(factor.IsDesignFactor());
    EXPECT_FALSE(factor.IsConstant());
    factor.factorValue.use = CEUse::Uncontrolled;
    EXPECT_FALSE(factor.IsDesignFactor());
    EXPECT_FALSE(factor.IsConstant());
    factor.factorValue.use = CEUse::Constant;
    EXPECT_FALSE(factor.IsDesignFactor());
    EXPECT_TRUE(factor.IsConstant());
    EXPECT_FALSE(FactorClass(kBlockFactorName, {"1", "2"}).IsDesignFactor());
}

TEST(FactorClass, KnowsItsSettingsByOneBasedIndex) {
    const FactorClass factor("Colour", {"red", "green", "blue"});
    EXPECT_EQ(factor.settingCount, 3);
    EXPECT_EQ(factor.GetSetting(1), "red");
    EXPECT_EQ(factor.GetSetting(3), "blue");
    EXPECT_EQ(factor.GetSetting(0), "");
    EXPECT_EQ(factor.GetSetting(-1), "");
    EXPECT_EQ(factor.GetSetting(4), "");
    EXPECT_EQ(factor.factorValue.GetSettingIndex("red"), 1);
    EXPECT_EQ(factor.factorValue.GetSettingIndex("blue"), 3);
    EXPECT_EQ(factor.factorValue.GetSettingIndex("Blue"), 0);
    EXPECT_EQ(factor.factorValue.GetSettingIndex(""), 0);
    EXPECT_EQ(factor.GetNameWithSetting(2), "Colour(green)");
    EXPECT_EQ(factor.GetNameWithSetting(0), "Colour");
    EXPECT_EQ(factor.GetNameWithSetting(4), "Colour");
}

TEST(FactorClass, IncludesAllSettingsUnlessSomeAreNamed) {
    FactorClass factor("Colour", {"red", "green", "blue"});
    EXPECT_EQ(factor.GetIncludedSettings(), (std::vector<int>{1, 2, 3}));
    factor.factorValue.included = {1, 3};
    EXPECT_EQ(factor.GetIncludedSettings(), (std::vector<int>{1, 3}));
    factor.SetSettings({"on", "off"});
    EXPECT_EQ(factor.settingCount, 2);
    EXPECT_EQ(factor.GetIncludedSettings(), (std::vector<int>{1, 2}));
    EXPECT_TRUE(FactorClass("Speed", 0.0, 1.0).GetIncludedSettings().empty());
}

TEST(FactorClass, GivesItsLimitsInItsOwnUnitsAndCoded) {
    const FactorClass factor("Speed", 10.0, 20.0);
    EXPECT_EQ(factor.GetLow(true), 10.0);
    EXPECT_EQ(factor.GetHigh(true), 20.0);
    EXPECT_EQ(factor.GetLow(false), -1.0);
    EXPECT_EQ(factor.GetHigh(false), 1.0);
    const FactorClass open("Speed", kNotSet, kNotSet);
    EXPECT_EQ(open.GetLow(true), kNotSet);
    EXPECT_EQ(open.GetLow(false), kNotSet);
    EXPECT_EQ(open.GetHigh(true), kNotSet);
    EXPECT_EQ(open.GetHigh(false), kNotSet);
    EXPECT_EQ(FactorClass("Colour", {"red"}).GetLow(true), kNotSet);
    EXPECT_EQ(FactorClass("Answer", {"1", "2"}).GetHigh(true), kNotSet);
}

TEST(FactorClass, TakesMissingLimitsFromTheLevelsInUse) {
    FactorClass factor("Dose", {"30", "10", "20", "40"}, CEType::Multilevel);
    EXPECT_EQ(factor.GetLow(true), 10.0);
    EXPECT_EQ(factor.GetHigh(true), 40.0);
    factor.factorValue.included = {1, 3};
    EXPECT_EQ(factor.GetLow(true), 20.0);
    EXPECT_EQ(factor.GetHigh(true), 30.0);
    factor.low = 5.0;
    EXPECT_EQ(factor.GetLow(true), 5.0);
}

TEST(FactorClass, CentersOnTheMiddleOfItsRange) {
    const FactorClass factor("Speed", 10.0, 20.0);
    EXPECT_EQ(factor.GetCenterpoint(true, kNotSet, kNotSet), 15.0);
    EXPECT_EQ(factor.GetCenterpoint(true, 12.0, kNotSet), 16.0);
    EXPECT_EQ(factor.GetCenterpoint(true, kNotSet, 40.0), 25.0);
    EXPECT_EQ(factor.GetCenterpoint(true, 1.0, 2.0), 1.5);
    EXPECT_EQ(factor.GetCenterpoint(false, kNotSet, kNotSet), 0.0);
    EXPECT_EQ(FactorClass("Speed", 10.0, kNotSet).GetCenterpoint(true, kNotSet, kNotSet), kNotSet);
    EXPECT_EQ(FactorClass("Speed", kNotSet, 20.0).GetCenterpoint(true, kNotSet, kNotSet), kNotSet);
    EXPECT_EQ(FactorClass("Colour", {"red"}).GetCenterpoint(true, kNotSet, kNotSet), kNotSet);
}

TEST(FactorClass, CentersOnTheLevelNearestToTheMiddleTheLowerOfTwo) {
    FactorClass factor("Dose", {"40", "10", "12", "30"}, CEType::Multilevel);
    EXPECT_EQ(factor.GetCenterpoint(true, kNotSet, kNotSet), 30.0);
    EXPECT_EQ(factor.GetCenterpoint(true, 2.0, 40.0), 12.0);
    EXPECT_EQ(factor.GetCenterpoint(true, 12.0, 30.0), 12.0);
    factor.factorValue.type = CEType::Discrete;
    EXPECT_EQ(factor.GetCenterpoint(true, kNotSet, kNotSet), 30.0);
}

struct LegalCase {
    const char* name;
    double low;
    double high;
    const char* text;
    bool legal;
};

std::ostream& operator<<(std::ostream& out, const LegalCase& row) {
    return out << row.name;
}

class NumbersAsSettings : public testing::TestWithParam<LegalCase> {};

TEST_P(NumbersAsSettings, AreLegalWithinTheRecommendedRange) {
    const FactorClass factor("Speed", GetParam().low, GetParam().high);
    EXPECT_EQ(factor.LegalSetting(GetParam().text), GetParam().legal);
}

INSTANTIATE_TEST_SUITE_P(
    Table, NumbersAsSettings,
    testing::Values(LegalCase{"inside", 10, 20, "15", true}, LegalCase{"low", 10, 20, "10", true},
                    LegalCase{"high", 10, 20, "20", true},
                    LegalCase{"below", 10, 20, "9.99", false},
                    LegalCase{"above", 10, 20, "20.01", false},
                    LegalCase{"lowSpelledOtherwise", 10, 20, "10.0", true},
                    LegalCase{"highSpelledOtherwise", 10, 20, "2e1", true},
                    LegalCase{"blanks", 10, 20, "  15 ", true},
                    LegalCase{"empty", 10, 20, "", false}, LegalCase{"letters", 10, 20, "x", false},
                    LegalCase{"comma", 10, 20, "15,5", false},
                    LegalCase{"noLow", kNotSet, 20, "-1e9", true},
                    LegalCase{"noHigh", 10, kNotSet, "1e9", true},
                    LegalCase{"noLimits", kNotSet, kNotSet, "5", true},
                    LegalCase{"noLimitsLetters", kNotSet, kNotSet, "five", false},
                    LegalCase{"lowAsPrinted", 1.0 / 3.0, 2, "0.333333", true},
                    LegalCase{"belowLowAsPrinted", 1.0 / 3.0, 2, "0.33333", false},
                    LegalCase{"highAsPrinted", 0, 2.0 / 3.0, " 0.666667", true},
                    LegalCase{"aboveHighAsPrinted", 0, 2.0 / 3.0, "0.66667", false}),
    testing::PrintToStringParamName());

TEST(FactorClass, TakesTheSettingsInUseByTheirExactNames) {
    FactorClass factor("Colour", {"red", "green", "blue"});
    factor.factorValue.included = {1, 3};
    EXPECT_TRUE(factor.LegalSetting("red"));
    EXPECT_TRUE(factor.LegalSetting("blue"));
    EXPECT_FALSE(factor.LegalSetting("green"));
    EXPECT_FALSE(factor.LegalSetting("Red"));
    EXPECT_FALSE(factor.LegalSetting(" red"));
    EXPECT_FALSE(factor.LegalSetting("pink"));
    EXPECT_FALSE(factor.LegalSetting(""));
}

TEST(FactorClass, ChecksAFactorWithLevelsByItsRange) {
    const FactorClass factor("Dose", {"10", "20", "40"}, CEType::Multilevel);
    EXPECT_TRUE(factor.LegalSetting("10"));
    EXPECT_TRUE(factor.LegalSetting("40"));
    EXPECT_TRUE(factor.LegalSetting("25"));
    EXPECT_FALSE(factor.LegalSetting("9"));
    EXPECT_FALSE(factor.LegalSetting("41"));
}

TEST(FactorClass, HasADistributionWithAPrecisionAboveZero) {
    FactorClass speed("Speed", 0.0, 1.0);
    FactorClass dose("Dose", 0.0, 1.0);
    EXPECT_FALSE(FactorClass::DoesAnyHaveDistribution({}));
    EXPECT_FALSE(FactorClass::DoesAnyHaveDistribution({&speed, &dose}));
    dose.precision = 0.0;
    EXPECT_FALSE(FactorClass::DoesAnyHaveDistribution({&speed, &dose}));
    dose.precision = 0.01;
    EXPECT_TRUE(FactorClass::DoesAnyHaveDistribution({&speed, &dose}));
    EXPECT_FALSE(FactorClass::DoesAnyHaveDistribution({&speed}));
}

}  // namespace
}  // namespace kvopt
