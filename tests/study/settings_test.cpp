#include "kvopt/study/settings.h"

#include <gtest/gtest.h>

namespace kvopt {
namespace {

TEST(GeneralSettings, AreTheDefaultsUntilOthersAreInstalled) {
    EXPECT_EQ(GeneralSettings::Instance().dsOutput, 0);
    EXPECT_EQ(GeneralSettings::Instance().backTransformedFactors, 0);
    EXPECT_EQ(GeneralSettings::Instance().riskPresentation, 0);
    GeneralSettings::Settings own;
    GeneralSettings::Install(&own);
    own.riskPresentation = 1;
    EXPECT_EQ(GeneralSettings::Instance().riskPresentation, 1);
    EXPECT_EQ(&GeneralSettings::Instance(), &own);
    GeneralSettings::Install(nullptr);
    EXPECT_EQ(GeneralSettings::Instance().riskPresentation, 0);
}

TEST(GlobalOptions, AnswerTheArgumentUntilTheSwitchIsSet) {
    EXPECT_FALSE(GlobalOptions::FixedSeedForValidation(false));
    EXPECT_TRUE(GlobalOptions::FixedSeedForValidation(true));
    GlobalOptions::SetFixedSeedForValidation(true);
    EXPECT_TRUE(GlobalOptions::FixedSeedForValidation(false));
    GlobalOptions::SetFixedSeedForValidation(false);
    EXPECT_FALSE(GlobalOptions::FixedSeedForValidation(true));
    GlobalOptions::SetFixedSeedForValidation(std::nullopt);
    EXPECT_TRUE(GlobalOptions::FixedSeedForValidation(true));
}

TEST(ListOptions, AreTheDefaultsUntilOthersAreInstalled) {
    EXPECT_FALSE(ListOptions::Instance().boldFactorNames);
    EXPECT_NE(ListOptions::Instance().readOnlyColour,
              ListOptions::Instance().lockedFormulationColour);
    ListOptions own;
    own.boldFactorNames = true;
    ListOptions::Install(&own);
    EXPECT_TRUE(ListOptions::Instance().boldFactorNames);
    EXPECT_EQ(&ListOptions::Instance(), &own);
    ListOptions::Install(nullptr);
    EXPECT_FALSE(ListOptions::Instance().boldFactorNames);
}

}  // namespace
}  // namespace kvopt
