#pragma once

#include "kvopt/export.h"
#include "kvopt/study/enum_helpers.h"
#include "kvopt/study/label_types.h"

namespace kvopt {

class ConfigurationSection;
class ModelSpec;

/// The options of one study: a record. The fields are public because grid items bind to them.
class KVOPT_EXPORT KivexOptions {
public:
    double replicateTolerance = 0.1;  ///< part of half the range within which runs are replicates
    CR2Opt::R2Opt r2Type = CR2Opt::R2;
    CCoeff::Coeff coefficientType = CCoeff::ScaledAndCentered;
    CResid::Resid residualType = CResid::DeletedStudentized;
    CConfLev::ConfLev confidenceLevel = CConfLev::Level95;
    CConfLev::ConfLev toleranceProportion = CConfLev::Level95;
    CAlphaLev::AlphaLev alphaLevel = CAlphaLev::Level5;
    CCoeffList::CoeffList coefficientPresentation = CCoeffList::Regular;
    int qualitativePresentation = 1;  ///< 1 regular, 2 extended
    int factorRepresentation = 1;     ///< 1 name, 2 abbreviation
    int responseRepresentation = 1;   ///< 1 name, 2 abbreviation
    CNumberFormat::NumberFormat numberFormat = CNumberFormat::Auto;
    CIntervalType::IntervalType intervalType = CIntervalType::Confidence;
    int failureCorrelation = 0;   ///< 0 none, 1 residual correlation, 2 workset correlation
    int designMatrixSource = 1;   ///< 1 the current worksheet, 0 the design as generated
    int fitEqualModelsAsOne = 0;  ///< 1 yes, 0 no
    LabelTypes::PlotLabelType plotLabelType = LabelTypes::ExperimentNumber;

    LabelTypes::PlotLabelType GetPlotLabelType() const { return plotLabelType; }
    void SetPlotLabelType(LabelTypes::PlotLabelType type) { plotLabelType = type; }

    /// Puts what the models cannot show back to what they can: the design as generated needs a
    /// design, and a mixture model has unscaled coefficients alone. Does nothing without `spec`.
    void MakeSureOptionsAreAvailable(const ModelSpec* spec);

    /// Every field under its own key in `section`, and back; a missing key, or one that holds no
    /// value of its field, leaves the field as it is.
    void SaveOptions(ConfigurationSection& section) const;
    void LoadOptions(const ConfigurationSection& section);

    bool operator==(const KivexOptions&) const = default;
};

}  // namespace kvopt
