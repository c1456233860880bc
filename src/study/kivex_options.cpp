#include "kvopt/study/kivex_options.h"

#include "kvopt/stores.h"
#include "kvopt/study/model_spec.h"

namespace kvopt {

namespace {

/// Calls `field(key, value, lowest, highest)` for each plain number.
template <class Options, class Field>
void ForEachInt(Options& options, Field field) {
    field("QualitativePresentation", options.qualitativePresentation, 1, 2);
    field("FactorRepresentation", options.factorRepresentation, 1, 2);
    field("ResponseRepresentation", options.responseRepresentation, 1, 2);
    field("FailureCorrelation", options.failureCorrelation, 0, 2);
    field("DesignMatrixSource", options.designMatrixSource, 0, 1);
    field("FitEqualModelsAsOne", options.fitEqualModelsAsOne, 0, 1);
}

}  // namespace

void KivexOptions::MakeSureOptionsAreAvailable(const ModelSpec* spec) {
    if (spec == nullptr) {
        return;
    }
    const auto design = spec->GetDesign();
    if (design == nullptr || design->GetMatrix() == nullptr) {
        designMatrixSource = 1;
    }
    if (spec->GetFactors()->IsMixtureOnly()) {
        coefficientType = CCoeff::Unscaled;
    }
}

void KivexOptions::SaveOptions(ConfigurationSection& section) const {
    section.WriteKey("ReplicateTolerance", replicateTolerance);
    CR2Opt::WriteSection(&section, r2Type);
    CCoeff::WriteSection(&section, coefficientType);
    CResid::WriteSection(&section, residualType);
    CConfLev::WriteSection(&section, confidenceLevel);
    CConfLev::WriteSection(&section, "TolProp", toleranceProportion);
    CAlphaLev::WriteSection(&section, alphaLevel);
    CCoeffList::WriteSection(&section, coefficientPresentation);
    CNumberFormat::WriteSection(&section, numberFormat);
    CIntervalType::WriteSection(&section, intervalType);
    ForEachInt(*this, [&section](const char* key, int value, int /*lowest*/, int /*highest*/) {
        section.WriteKey(key, value);
    });
    section.WriteKey("PlotLabelType", LabelTypes::GetString(plotLabelType, false));
}

void KivexOptions::LoadOptions(const ConfigurationSection& section) {
    section.ReadKey("ReplicateTolerance", replicateTolerance);
    CR2Opt::ReadSection(&section, r2Type);
    CCoeff::ReadSection(&section, coefficientType);
    CResid::ReadSection(&section, residualType);
    CConfLev::ReadSection(&section, confidenceLevel);
    CConfLev::ReadSection(&section, "TolProp", toleranceProportion);
    CAlphaLev::ReadSection(&section, alphaLevel);
    CCoeffList::ReadSection(&section, coefficientPresentation);
    CNumberFormat::ReadSection(&section, numberFormat);
    CIntervalType::ReadSection(&section, intervalType);
    ForEachInt(*this, [&section](const char* key, int& value, int lowest, int highest) {
        const int stored = section.ReadKeyOr(key, value);
        value = stored >= lowest && stored <= highest ? stored : value;
    });
    std::string label;
    if (section.ReadKey("PlotLabelType", label) &&
        label == LabelTypes::GetString(LabelTypes::GetLabelType(label.c_str()), false)) {
        plotLabelType = LabelTypes::GetLabelType(label.c_str());
    }
}

}  // namespace kvopt
