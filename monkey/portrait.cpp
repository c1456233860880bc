#include "monkey/portrait.h"

#include <cstddef>
#include <memory>

#include "kvopt/plotargs.h"
#include "kvopt/study.h"
#include "monkey/value_text.h"

namespace kvopt::monkey {

namespace {

constexpr int kAxisSets = 5;

std::string AxesText(const std::vector<std::shared_ptr<AxisInfo>>& axes) {
    ValueText text;
    for (const std::shared_ptr<AxisInfo>& axis : axes) {
        if (axis != nullptr) {
            text.Add(axis->GetName()).Add(axis->GetUnit()).Add(axis->GetSettings());
            text.Add(axis->GetMin()).Add(axis->GetMax()).Add(axis->IsQualitative());
        }
    }
    return text.Text();
}

/// Up to their capacity, should they have no end.
std::string ConstantsText(const ContourPlotData& plot) {
    const std::size_t capacity = plot.GetInvestigation()->GetVariables()->GetAllFactors().size();
    ValueText text;
    for (std::size_t at = 0; at <= capacity; ++at) {
        const FactorConstants::Constant& constant = plot.GetPlotConstants()[at];
        if (!constant.IsDefined()) {
            break;
        }
        text.Add(constant.Name()).Add(constant.FloatValue()).Add(constant.QualValue());
        text.Add(static_cast<int>(constant.SettingPos())).Add(constant.kind);
    }
    return text.Text();
}

// All fields by name: one that is added and not told here does not compile.
void AddOptions(const ContourPageData::Arguments& options, Portrait& portrait) {
    const auto& [mixtureMode, resolution, mixtureResolution, useColor, scaleEqual, useContourLabels,
                 hasContourLabels, lockContourLevels, isProbabilityPlot, fromDesignSpaceKey,
                 distribution, numSimulations, analyticalProbability, errorOnAxisFactors,
                 errorOnConstantFactors, includeModelError, backTransformedFactors, dsOutput,
                 dpmoTarget, surfaceHidden, confLev, tolProp, intervalType] = options;
    portrait.emplace_back("mixture mode", TextOf(mixtureMode));
    portrait.emplace_back("resolution", TextOf(resolution, mixtureResolution));
    portrait.emplace_back("scale", TextOf(scaleEqual));
    portrait.emplace_back("has labels", TextOf(hasContourLabels));
    portrait.emplace_back("simulation",
                          TextOf(numSimulations, analyticalProbability, includeModelError));
    portrait.emplace_back("levels", TextOf(static_cast<int>(confLev), static_cast<int>(tolProp),
                                           static_cast<int>(intervalType)));
    portrait.emplace_back(
        "options",
        TextOf(useColor, useContourLabels, lockContourLevels, isProbabilityPlot, fromDesignSpaceKey,
               distribution, errorOnAxisFactors, errorOnConstantFactors, backTransformedFactors,
               dsOutput, dpmoTarget, surfaceHidden));
}

}  // namespace

Portrait PortraitOf(const ContourPlotData& plot) {
    const ContourPageData& page = *plot.GetContourTypeData();
    Portrait portrait{
        {"plot type", TextOf(static_cast<int>(page.GetPlotType()))},
        {"axis type", TextOf(static_cast<int>(page.GetAxisType()))},
        {"constraints", TextOf(page.UseConstraints())},
        {"responses", TextOf(page.GetSelectedResponses(), page.GetUnselectedResponses())},
        {"fixed", TextOf(page.HaveConstraints(), page.ISDSProbability(), page.FromDesignSpace(),
                         page.IsHideSurface(), page.IsDesirability(), page.UseDummyData(),
                         page.GetOverrideDisableMixture(), page.GetType(), plot.GetIniFile())},
        {"constants", ConstantsText(plot)},
        {"proposed axes", AxesText(plot.GetAxisDefaults())}};
    for (int set = 1; set <= kAxisSets; ++set) {
        portrait.emplace_back("axes of set " + std::to_string(set),
                              AxesText(plot.GetAxisInfo(set)));
    }
    AddOptions(page.GetOptions(), portrait);
    return portrait;
}

Portrait PortraitOf(const DesignSpaceOptions& options) {
    const auto& [rangeSimulations, profileSimulations, whatToUpdate, includeModelError, dpmoLimit,
                 automaticUpdate, useTotalProbability, showMinMaxLines, limitConfidence, resolution,
                 includeFactorPrecision, confidenceLevel, toleranceProportion, intervalType,
                 correlationThreshold] = options;
    return {
        {"what to update", TextOf(whatToUpdate)},
        {"options", TextOf(rangeSimulations, profileSimulations, includeModelError, dpmoLimit,
                           automaticUpdate, useTotalProbability, showMinMaxLines, limitConfidence,
                           resolution, includeFactorPrecision, static_cast<int>(confidenceLevel),
                           static_cast<int>(toleranceProportion), static_cast<int>(intervalType),
                           correlationThreshold)}};
}

}  // namespace kvopt::monkey
