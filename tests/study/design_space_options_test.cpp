#include "kvopt/study/design_space_options.h"

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>

#include "kvopt/stores.h"
#include "support/fake_study.h"

namespace kvopt {
namespace {

using test::FakeStudy;

/// Every field but the mask differs from its default.
DesignSpaceOptions Changed() {
    DesignSpaceOptions options;
    options.acceptableRangeSimulations = 1;
    options.responseProfileSimulations = 2;
    options.includeModelError = false;
    options.dpmoLimit = 3;
    options.automaticUpdate = false;
    options.useTotalProbability = false;
    options.showMinMaxLines = false;
    options.limitConfidence = 99;
    options.resolution = 64;
    options.includeFactorPrecision = false;
    options.confidenceLevel = CConfLev::Level90;
    options.toleranceProportion = CConfLev::Level99;
    options.intervalType = CIntervalType::Tolerance;
    options.correlationThreshold = 0.7;
    return options;
}

TEST(DesignSpaceOptions, AreTheDefaultsWithoutAStudyOrWithoutStoredSettings) {
    EXPECT_EQ(DesignSpaceOptions(nullptr), DesignSpaceOptions());
    const FakeStudy study;
    EXPECT_EQ(DesignSpaceOptions(&study), DesignSpaceOptions());
    const DesignSpaceOptions defaults;
    EXPECT_EQ(defaults.acceptableRangeSimulations, 10000);
    EXPECT_EQ(defaults.responseProfileSimulations, 10000);
    EXPECT_EQ(defaults.whatToUpdate, 0);
    EXPECT_TRUE(defaults.includeModelError);
    EXPECT_EQ(defaults.dpmoLimit, 10000);
    EXPECT_TRUE(defaults.automaticUpdate);
    EXPECT_TRUE(defaults.useTotalProbability);
    EXPECT_TRUE(defaults.showMinMaxLines);
    EXPECT_TRUE(defaults.includeFactorPrecision);
    EXPECT_EQ(defaults.confidenceLevel, CConfLev::Level95);
    EXPECT_EQ(defaults.toleranceProportion, CConfLev::Level95);
    EXPECT_EQ(defaults.intervalType, CIntervalType::Confidence);
    EXPECT_EQ(defaults.resolution, 16);
    EXPECT_EQ(defaults.limitConfidence, 95);
    EXPECT_EQ(defaults.correlationThreshold, 0.3);
}

TEST(DesignSpaceOptions, ComeBackFromTheStudysSettingsWithoutTheMask) {
    const FakeStudy study;
    DesignSpaceOptions options = Changed();
    options.whatToUpdate = 15;
    options.SaveAsGlobalSettings(&study);
    EXPECT_EQ(DesignSpaceOptions(&study), Changed());
}

template <class Value>
void ExpectKey(const ConfigurationSection& section, const char* key, Value expected) {
    Value value{};
    EXPECT_TRUE(section.ReadKey(key, value)) << key;
    EXPECT_EQ(value, expected) << key;
}

TEST(DesignSpaceOptions, StandUnderTheirKeysInTheirSection) {
    const FakeStudy study;
    Changed().SaveAsGlobalSettings(&study);
    const auto section = study.GetInvestigationSettings("DesignSpace", true);
    ExpectKey(*section, "AcceptableRangeSimulations", 1);
    ExpectKey(*section, "ResponseProfileSimulations", 2);
    ExpectKey(*section, "IncludeModelError", false);
    ExpectKey(*section, "DPMOLimit", 3);
    ExpectKey(*section, "AutomaticUpdate", false);
    ExpectKey(*section, "UseTotalProbability", false);
    ExpectKey(*section, "ShowMinMaxLines", false);
    ExpectKey(*section, "LimitConfidence", 99);
    ExpectKey(*section, "Resolution", 64);
    ExpectKey(*section, "IncludeFactorPrecision", false);
    ExpectKey(*section, "CorrelationThreshold", 0.7);
    ExpectKey(*section, "ConfLev", 1);
    ExpectKey(*section, "TolProp", 3);
    ExpectKey(*section, "IntervalType", std::string("Tolerance"));
}

TEST(DesignSpaceOptions, RememberTheIntervalAlone) {
    const FakeStudy study;
    Changed().SaveIntervalAsGlobalSettings(&study);
    DesignSpaceOptions expected;
    expected.confidenceLevel = CConfLev::Level90;
    expected.toleranceProportion = CConfLev::Level99;
    expected.intervalType = CIntervalType::Tolerance;
    EXPECT_EQ(DesignSpaceOptions(&study), expected);
}

TEST(DesignSpaceOptions, AreSavedNowhereWithoutAStudy) {
    Changed().SaveAsGlobalSettings(nullptr);
    Changed().SaveIntervalAsGlobalSettings(nullptr);
    EXPECT_EQ(DesignSpaceOptions(nullptr), DesignSpaceOptions());
}

TEST(DesignSpaceOptions, GoBackToTheDefaults) {
    DesignSpaceOptions options = Changed();
    options.whatToUpdate = 15;
    options.Reset();
    EXPECT_EQ(options, DesignSpaceOptions());
}

struct UpdateCase {
    const char* name;
    std::function<void(DesignSpaceOptions&)> change;
    int mask;
};

std::ostream& operator<<(std::ostream& out, const UpdateCase& row) {
    return out << row.name;
}

class DesignSpaceUpdates : public testing::TestWithParam<UpdateCase> {};

TEST_P(DesignSpaceUpdates, FollowFromWhatDiffers) {
    DesignSpaceOptions previous;
    previous.whatToUpdate = 15;
    DesignSpaceOptions options = previous;
    GetParam().change(options);
    options.SetWhatToUpdate(previous);
    EXPECT_EQ(options.whatToUpdate, GetParam().mask);
}

constexpr int kRanges = DesignSpaceOptions::UpdateRanges;
constexpr int kProfiles = DesignSpaceOptions::UpdateProfiles;
constexpr int kRisk = DesignSpaceOptions::UpdateRisk;
constexpr int kTable = DesignSpaceOptions::UpdateTable;
constexpr int kSimulated = kRanges | kProfiles | kRisk;

INSTANTIATE_TEST_SUITE_P(
    Table, DesignSpaceUpdates,
    testing::Values(
        UpdateCase{"nothing", [](DesignSpaceOptions&) {}, 0},
        UpdateCase{"ranges", [](DesignSpaceOptions& o) { o.acceptableRangeSimulations = 1; },
                   kRanges},
        UpdateCase{"resolution", [](DesignSpaceOptions& o) { o.resolution = 8; }, kRanges},
        UpdateCase{"limitConfidence", [](DesignSpaceOptions& o) { o.limitConfidence = 99; },
                   kRanges},
        UpdateCase{"profiles", [](DesignSpaceOptions& o) { o.responseProfileSimulations = 1; },
                   kProfiles},
        UpdateCase{"modelError", [](DesignSpaceOptions& o) { o.includeModelError = false; },
                   kSimulated},
        UpdateCase{"precision", [](DesignSpaceOptions& o) { o.includeFactorPrecision = false; },
                   kSimulated},
        UpdateCase{"risk", [](DesignSpaceOptions& o) { o.dpmoLimit = 1; }, kSimulated},
        UpdateCase{"total", [](DesignSpaceOptions& o) { o.useTotalProbability = false; },
                   kSimulated},
        UpdateCase{"threshold", [](DesignSpaceOptions& o) { o.correlationThreshold = 1; },
                   kSimulated},
        UpdateCase{"level", [](DesignSpaceOptions& o) { o.confidenceLevel = CConfLev::Level90; },
                   kRisk},
        UpdateCase{"proportion",
                   [](DesignSpaceOptions& o) { o.toleranceProportion = CConfLev::Level90; }, kRisk},
        UpdateCase{"interval",
                   [](DesignSpaceOptions& o) { o.intervalType = CIntervalType::Tolerance; }, kRisk},
        UpdateCase{"lines", [](DesignSpaceOptions& o) { o.showMinMaxLines = false; }, kTable},
        UpdateCase{"automatic", [](DesignSpaceOptions& o) { o.automaticUpdate = false; }, kTable},
        UpdateCase{"two",
                   [](DesignSpaceOptions& o) {
                       o.resolution = 8;
                       o.showMinMaxLines = false;
                   },
                   kRanges | kTable},
        UpdateCase{"everything", [](DesignSpaceOptions& o) { o = Changed(); },
                   DesignSpaceOptions::UpdateAll}),
    testing::PrintToStringParamName());

}  // namespace
}  // namespace kvopt
