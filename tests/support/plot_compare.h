#pragma once

/// \file
/// Plot argument objects as text, so that a test compares two of them and shows what differs.

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "kvopt/plotargs.h"
#include "kvopt/text/kv_string.h"

namespace kvopt::test {

inline std::string Describe(const AxisInfo& axis) {
    return "'" + axis.GetName() + "' [" + axis.GetUnit() + "] " +
           KvString::FromDouble(static_cast<double>(axis.GetMin())) + ".." +
           KvString::FromDouble(static_cast<double>(axis.GetMax())) + " {" + axis.GetSettings() +
           (axis.IsQualitative() ? "} qualitative" : "} quantitative");
}

/// Positions past the first `numAxes` are left out; below zero means all.
inline std::string Describe(const std::vector<std::shared_ptr<AxisInfo>>& axes, int numAxes = -1) {
    std::string text;
    const int last = static_cast<int>(axes.size()) - 1;
    for (int i = 0; i <= (numAxes < 0 ? last : std::min(numAxes, last)); ++i) {
        const AxisInfo* axis = axes[static_cast<std::size_t>(i)].get();
        if (axis) {
            text += "  " + std::to_string(i) + ": " + Describe(*axis) + "\n";
        }
    }
    return text;
}

inline std::string Describe(const FactorConstants::Constant& constant) {
    const bool quantitative = constant.kind == FactorConstants::kQuantitativeKind;
    return constant.Name() + " = " +
           (quantitative ? KvString::FromDouble(constant.FloatValue()) : constant.QualValue()) +
           " (" + FactorConstants::SettingName(constant.SettingPos(), nullptr) + ")";
}

/// The constants in the order of their names: their place in the array says nothing about a plot.
inline std::string DescribeConstants(const FactorConstants::Constant* constants) {
    std::vector<std::string> lines;
    for (int i = 0; i < FactorConstants::NumConstants(constants); ++i) {
        lines.push_back("  " + Describe(constants[i]) + "\n");
    }
    std::sort(lines.begin(), lines.end());
    std::string text;
    for (const std::string& line : lines) {
        text += line;
    }
    return text;
}

/// Every field but the study.
inline std::string Describe(const ContourPageData& data) {
    const ContourPageData::Arguments& options = data.GetOptions();
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::boolalpha << "plotType " << data.GetPlotType() << "\naxisType "
         << data.GetAxisType() << "\nuseConstraints " << data.UseConstraints()
         << "\nhaveConstraints " << data.HaveConstraints() << "\nisDSProbability "
         << data.ISDSProbability() << "\nfromDesignSpace " << data.FromDesignSpace()
         << "\nhideSurface " << data.IsHideSurface() << "\nisDesirability " << data.IsDesirability()
         << "\noverrideDisableMixture " << data.GetOverrideDisableMixture() << "\nuseDummyData "
         << data.UseDummyData() << "\nmixtureMode " << options.mixtureMode << "\nresolution "
         << options.resolution << "\nmixtureResolution " << options.mixtureResolution
         << "\nuseColor " << options.useColor << "\nscaleEqual " << options.scaleEqual
         << "\nuseContourLabels " << options.useContourLabels << "\nhasContourLabels "
         << options.hasContourLabels << "\nlockContourLevels " << options.lockContourLevels
         << "\nisProbabilityPlot " << options.isProbabilityPlot << "\nfromDesignSpaceKey "
         << options.fromDesignSpaceKey << "\ndistribution " << options.distribution
         << "\nnumSimulations " << options.numSimulations << "\nanalyticalProbability "
         << options.analyticalProbability << "\nerrorOnAxisFactors " << options.errorOnAxisFactors
         << "\nerrorOnConstantFactors " << options.errorOnConstantFactors << "\nincludeModelError "
         << options.includeModelError << "\nbackTransformedFactors "
         << options.backTransformedFactors << "\ndsOutput " << options.dsOutput << "\ndpmoTarget "
         << options.dpmoTarget << "\nsurfaceHidden " << options.surfaceHidden << "\nconfLev "
         << options.confLev << "\ntolProp " << options.tolProp << "\nintervalType "
         << options.intervalType << "\nselected";
    for (const std::string& name : data.GetSelectedResponses()) {
        text << " '" << name << "'";
    }
    text << "\navailable";
    for (const std::string& name : data.GetUnselectedResponses()) {
        text << " '" << name << "'";
    }
    text << "\n";
    return text.str();
}

/// Everything that makes up the plot that would be drawn: options, the axes of the used set, and
/// constants.
inline std::string Describe(const ContourPlotData& plot) {
    std::string text = Describe(*plot.GetContourTypeData());
    if (plot.GetAxisType() != ContourPlotData::NoAxes) {
        int numAxes = 0;
        const std::vector<std::shared_ptr<AxisInfo>>& axes = plot.GetSelectedAxisInfo(numAxes);
        text +=
            "axes of set " + std::to_string(plot.GetAxisType()) + "\n" + Describe(axes, numAxes);
    }
    return text + "constants\n" + DescribeConstants(plot.GetPlotConstants());
}

}  // namespace kvopt::test
