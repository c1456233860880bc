#include "kvopt/study/simplex_properties.h"

#include <gtest/gtest.h>

#include <ostream>

#include "kvopt/stores.h"
#include "support/fake_study.h"

namespace kvopt {
namespace {

using test::FakeStudy;

struct ColumnCase {
    const char* key;
    bool SimplexProperties::*column;
    bool shown;  ///< without a stored value
};

std::ostream& operator<<(std::ostream& out, const ColumnCase& row) {
    return out << row.key;
}

class OptimizerColumns : public testing::TestWithParam<ColumnCase> {};

TEST_P(OptimizerColumns, AreReadUnderTheirKeys) {
    const FakeStudy study;
    EXPECT_EQ(SimplexProperties(&study).*GetParam().column, GetParam().shown);
    EXPECT_EQ(SimplexProperties().*GetParam().column, GetParam().shown);
    EXPECT_EQ(SimplexProperties(nullptr).*GetParam().column, GetParam().shown);
    study.GetInvestigationSettings("Optimizer", false)->WriteKey(GetParam().key, !GetParam().shown);
    EXPECT_EQ(SimplexProperties(&study).*GetParam().column, !GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Table, OptimizerColumns,
    testing::Values(
        ColumnCase{"ShowDPMOASColumn", &SimplexProperties::showRiskColumnAlternative, true},
        ColumnCase{"ShowCpkASColumn", &SimplexProperties::showCpkColumnAlternative, true},
        ColumnCase{"ShowCpASColumn", &SimplexProperties::showCpColumnAlternative, false},
        ColumnCase{"ShowKPrimASColumn", &SimplexProperties::showKPrimeColumnAlternative, false},
        ColumnCase{"ShowDPMOSSColumn", &SimplexProperties::showRiskColumnSetpoint, true},
        ColumnCase{"ShowCpkSSColumn", &SimplexProperties::showCpkColumnSetpoint, true},
        ColumnCase{"ShowCpSSColumn", &SimplexProperties::showCpColumnSetpoint, false},
        ColumnCase{"ShowKPrimSSColumn", &SimplexProperties::showKPrimeColumnSetpoint, false}),
    testing::PrintToStringParamName());

TEST(SimplexProperties, KeepEachSettingInTheStudy) {
    const FakeStudy study;
    EXPECT_TRUE(SimplexProperties::GetIncludeWeightInLogD(&study));
    SimplexProperties::SetIncludeWeightInLogD(&study, false);
    EXPECT_FALSE(SimplexProperties::GetIncludeWeightInLogD(&study));

    EXPECT_FALSE(SimplexProperties::GetUseBOBYQA(&study));
    SimplexProperties::SetUseBOBYQA(&study, true);
    EXPECT_TRUE(SimplexProperties::GetUseBOBYQA(&study));

    EXPECT_FALSE(SimplexProperties::GetWeightFactorContributionsTargetDistance(&study));
    SimplexProperties::SetWeightFactorContributionsTargetDistance(&study, true);
    EXPECT_TRUE(SimplexProperties::GetWeightFactorContributionsTargetDistance(&study));

    const auto factorRange = static_cast<float>(SimplexProperties::GetFactorRangeDefault());
    EXPECT_GE(factorRange, 1.0F);
    EXPECT_LE(factorRange, 100.0F);
    EXPECT_EQ(SimplexProperties::GetFactorContributionsRange(&study), factorRange);
    SimplexProperties::SetFactorContributionsRange(&study, 12.1F);
    EXPECT_EQ(SimplexProperties::GetFactorContributionsRange(&study), 12.1F);

    EXPECT_FALSE(SimplexProperties::GetIncludeWeightInLogD(&study));
    const FakeStudy other;
    EXPECT_TRUE(SimplexProperties::GetIncludeWeightInLogD(&other));
}

TEST(SimplexProperties, StandUnderTheirKeysInTheirSection) {
    const FakeStudy study;
    SimplexProperties::SetIncludeWeightInLogD(&study, false);
    SimplexProperties::SetUseBOBYQA(&study, true);
    SimplexProperties::SetWeightFactorContributionsTargetDistance(&study, true);
    SimplexProperties::SetFactorContributionsRange(&study, 12.5F);
    const auto section = study.GetInvestigationSettings("Optimizer", true);
    EXPECT_FALSE(section->ReadKeyOr("IncludeWeightInLogD", true));
    EXPECT_TRUE(section->ReadKeyOr("UseBOBYQA", false));
    EXPECT_TRUE(section->ReadKeyOr("WeightFactorContributionsTargetDistance", false));
    EXPECT_EQ(section->ReadKeyOr("FactorContributionsRange", 0.0), 12.5);
    EXPECT_EQ(SimplexProperties::GetFactorRangeDefault(), 10);
}

TEST(SimplexProperties, ReadTheSensitivityKeysThatThePageWrites) {
    const FakeStudy study;
    bool includeModelError = false;
    int iterations = 0;
    EXPECT_TRUE(SimplexProperties::GetAnalyzeSensitivity(&study, includeModelError, iterations));
    EXPECT_TRUE(includeModelError);
    EXPECT_EQ(iterations, 10000);
    const auto section = study.GetInvestigationSettings("Optimizer", false);
    section->WriteKey("AnalyzeSensitivity", false);
    section->WriteKey("IncludeModelError", false);
    section->WriteKey("SensitivityIterations", 50);
    EXPECT_FALSE(SimplexProperties::GetAnalyzeSensitivity(&study, includeModelError, iterations));
    EXPECT_FALSE(includeModelError);
    EXPECT_EQ(iterations, 50);
}

TEST(SimplexProperties, AnswerTheDefaultsWithoutAnInvestigation) {
    SimplexProperties::SetIncludeWeightInLogD(nullptr, false);
    SimplexProperties::SetUseBOBYQA(nullptr, true);
    SimplexProperties::SetWeightFactorContributionsTargetDistance(nullptr, true);
    SimplexProperties::SetFactorContributionsRange(nullptr, 50.0F);
    EXPECT_TRUE(SimplexProperties::GetIncludeWeightInLogD(nullptr));
    EXPECT_FALSE(SimplexProperties::GetUseBOBYQA(nullptr));
    EXPECT_FALSE(SimplexProperties::GetWeightFactorContributionsTargetDistance(nullptr));
    EXPECT_EQ(SimplexProperties::GetFactorContributionsRange(nullptr),
              static_cast<float>(SimplexProperties::GetFactorRangeDefault()));
    bool includeModelError = false;
    int iterations = 0;
    EXPECT_TRUE(SimplexProperties::GetAnalyzeSensitivity(nullptr, includeModelError, iterations));
    EXPECT_TRUE(includeModelError);
    EXPECT_EQ(iterations, 10000);
}

}  // namespace
}  // namespace kvopt
