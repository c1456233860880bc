#include "kvopt/study/kivex_options.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>

#include "kvopt/stores.h"
#include "support/fake_study.h"

namespace kvopt {
namespace {

using test::FakeStudy;

/// A design that still knows its runs, or no longer.
class Design : public NCDesign {
public:
    explicit Design(bool known) : known_(known) {}
    std::shared_ptr<const FMatrix> GetMatrix() const override {
        return known_ ? std::make_shared<FMatrix>() : nullptr;
    }

private:
    bool known_;
};

class DesignedSpec : public ModelSpec {
public:
    explicit DesignedSpec(const Investigation* study) : ModelSpec(study) {}
    std::shared_ptr<NCDesign> GetDesign() const override { return design; }
    std::shared_ptr<NCDesign> design;
};

/// Every field differs from its default.
KivexOptions Changed() {
    KivexOptions options;
    options.replicateTolerance = 0.15;
    options.r2Type = CR2Opt::R2Adjusted;
    options.coefficientType = CCoeff::Normalized;
    options.residualType = CResid::Raw;
    options.confidenceLevel = CConfLev::Level90;
    options.toleranceProportion = CConfLev::Level99;
    options.alphaLevel = CAlphaLev::Level10;
    options.coefficientPresentation = CCoeffList::ExtendedOnly;
    options.qualitativePresentation = 2;
    options.factorRepresentation = 2;
    options.responseRepresentation = 2;
    options.numberFormat = CNumberFormat::Decimals4;
    options.intervalType = CIntervalType::Tolerance;
    options.failureCorrelation = 2;
    options.designMatrixSource = 0;
    options.fitEqualModelsAsOne = 1;
    options.plotLabelType = LabelTypes::RunOrder;
    return options;
}

TEST(KivexOptions, StartFromTheirDefaults) {
    const KivexOptions options;
    EXPECT_EQ(options.replicateTolerance, 0.1);
    EXPECT_EQ(options.r2Type, CR2Opt::R2);
    EXPECT_EQ(options.coefficientType, CCoeff::ScaledAndCentered);
    EXPECT_EQ(options.residualType, CResid::DeletedStudentized);
    EXPECT_EQ(options.confidenceLevel, CConfLev::Level95);
    EXPECT_EQ(options.toleranceProportion, CConfLev::Level95);
    EXPECT_EQ(options.alphaLevel, CAlphaLev::Level5);
    EXPECT_EQ(options.coefficientPresentation, CCoeffList::Regular);
    EXPECT_EQ(options.qualitativePresentation, 1);
    EXPECT_EQ(options.factorRepresentation, 1);
    EXPECT_EQ(options.responseRepresentation, 1);
    EXPECT_EQ(options.numberFormat, CNumberFormat::Auto);
    EXPECT_EQ(options.failureCorrelation, 0);
    EXPECT_EQ(options.plotLabelType, LabelTypes::ExperimentNumber);
    EXPECT_EQ(options.intervalType, CIntervalType::Confidence);
    EXPECT_EQ(options.designMatrixSource, 1);
    EXPECT_EQ(options.fitEqualModelsAsOne, 0);
}

TEST(KivexOptions, ComeBackFromTheirSection) {
    ConfigurationStore store;
    Changed().SaveOptions(*store.Root());
    const auto reread = ConfigurationStore::Parse(store.Text(), "options.json");
    KivexOptions back;
    back.LoadOptions(*reread.Root());
    EXPECT_EQ(back, Changed());
}

TEST(KivexOptions, StandUnderTheirKeys) {
    ConfigurationStore store;
    Changed().SaveOptions(*store.Root());
    const auto section = store.Root();
    const std::pair<const char*, int> numbers[] = {
        {"R2Opt", 2},
        {"Coeff", 3},
        {"Resid", 1},
        {"ConfLev", 1},
        {"TolProp", 3},
        {"AlphaLev", 3},
        {"CoeffList", 3},
        {"NumberFormat", 4},
        {"QualitativePresentation", 2},
        {"FactorRepresentation", 2},
        {"ResponseRepresentation", 2},
        {"FailureCorrelation", 2},
        {"DesignMatrixSource", 0},
        {"FitEqualModelsAsOne", 1},
    };
    for (const auto& [key, expected] : numbers) {
        EXPECT_EQ(section->ReadKeyOr(key, -1), expected) << key;
    }
    EXPECT_EQ(section->ReadKeyOr("ReplicateTolerance", 0.0), 0.15);
    EXPECT_EQ(section->ReadKeyOr("IntervalType", std::string()), "Tolerance");
    EXPECT_EQ(section->ReadKeyOr("PlotLabelType", std::string()), "RunOrder");
}

TEST(KivexOptions, KeepWhatHasNoKey) {
    const ConfigurationStore store;
    KivexOptions options = Changed();
    options.LoadOptions(*store.Root());
    EXPECT_EQ(options, Changed());
}

TEST(KivexOptions, KeepWhatIsNoValueOfItsField) {
    ConfigurationStore store;
    const auto section = store.Root();
    section->WriteKey("ReplicateTolerance", "none");
    section->WriteKey("R2Opt", 3);
    section->WriteKey("Coeff", 5);
    section->WriteKey("QualitativePresentation", 3);
    section->WriteKey("FactorRepresentation", 0);
    section->WriteKey("ResponseRepresentation", 3);
    section->WriteKey("FailureCorrelation", 3);
    section->WriteKey("DesignMatrixSource", 2);
    section->WriteKey("FitEqualModelsAsOne", -1);
    section->WriteKey("PlotLabelType", "Colour of the sky");
    KivexOptions options = Changed();
    options.LoadOptions(*section);
    EXPECT_EQ(options, Changed());
}

TEST(KivexOptions, TakeEveryNumberOfTheirRangesAndNoOther) {
    struct Range {
        const char* key;
        int KivexOptions::*field;
        int lowest;
        int highest;
    };
    const Range ranges[] = {
        {"QualitativePresentation", &KivexOptions::qualitativePresentation, 1, 2},
        {"FactorRepresentation", &KivexOptions::factorRepresentation, 1, 2},
        {"ResponseRepresentation", &KivexOptions::responseRepresentation, 1, 2},
        {"FailureCorrelation", &KivexOptions::failureCorrelation, 0, 2},
        {"DesignMatrixSource", &KivexOptions::designMatrixSource, 0, 1},
        {"FitEqualModelsAsOne", &KivexOptions::fitEqualModelsAsOne, 0, 1},
    };
    for (const Range& range : ranges) {
        for (int number = range.lowest - 1; number <= range.highest + 1; ++number) {
            ConfigurationStore store;
            store.Root()->WriteKey(range.key, number);
            KivexOptions options;
            options.*range.field = 77;
            options.LoadOptions(*store.Root());
            const bool known = number >= range.lowest && number <= range.highest;
            EXPECT_EQ(options.*range.field, known ? number : 77) << range.key << number;
        }
    }
}

TEST(KivexOptions, StoreTheLabelTypeByItsText) {
    ConfigurationStore store;
    Changed().SaveOptions(*store.Root());
    std::string text;
    EXPECT_TRUE(store.Root()->ReadKey("PlotLabelType", text));
    EXPECT_EQ(text, LabelTypes::GetString(LabelTypes::RunOrder, false));
}

TEST(KivexOptions, KeepTheirPlotLabelTypeBehindItsName) {
    KivexOptions options;
    options.SetPlotLabelType(LabelTypes::ExperimentName);
    EXPECT_EQ(options.plotLabelType, LabelTypes::ExperimentName);
    EXPECT_EQ(options.GetPlotLabelType(), LabelTypes::ExperimentName);
}

TEST(KivexOptions, TakeTheWorksheetWhereNoGeneratedDesignIsKnown) {
    FakeStudy study;
    DesignedSpec spec(&study);
    KivexOptions options = Changed();
    spec.design = std::make_shared<Design>(true);
    options.MakeSureOptionsAreAvailable(&spec);
    EXPECT_EQ(options.designMatrixSource, 0);
    spec.design = std::make_shared<Design>(false);
    options.MakeSureOptionsAreAvailable(&spec);
    EXPECT_EQ(options.designMatrixSource, 1);
    options.designMatrixSource = 0;
    spec.design = nullptr;
    options.MakeSureOptionsAreAvailable(&spec);
    EXPECT_EQ(options.designMatrixSource, 1);
}

TEST(KivexOptions, LeaveAMixtureModelItsUnscaledCoefficientsAlone) {
    FakeStudy study;
    study.Part("Water");
    KivexOptions options = Changed();
    options.MakeSureOptionsAreAvailable(study.GetModelSpec());
    EXPECT_EQ(options.coefficientType, CCoeff::Unscaled);
    study.Number("Speed");
    options = Changed();
    options.MakeSureOptionsAreAvailable(study.GetModelSpec());
    EXPECT_EQ(options.coefficientType, CCoeff::Normalized);
    options = Changed();
    options.MakeSureOptionsAreAvailable(nullptr);
    EXPECT_EQ(options, Changed());
}

}  // namespace
}  // namespace kvopt
