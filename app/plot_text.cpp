#include "plot_text.h"

#include <kvopt/plotargs.h>
#include <kvopt/study.h>
#include <kvopt/text.h>

namespace {

using kvopt::KvString;

std::string Number(double value) {
    return KvString::FormatG(value);
}

/// Settings on an outer axis have no range, whatever the axis says of its kind.
std::string Used(const kvopt::AxisInfo& axis) {
    const auto low = static_cast<double>(axis.GetMin());
    const auto high = static_cast<double>(axis.GetMax());
    const bool hasRange = low != kvopt::kNotSet || high != kvopt::kNotSet;
    return axis.GetName() + (axis.IsQualitative() || !hasRange
                                 ? ": " + axis.GetSettings()
                                 : ", " + Number(low) + " to " + Number(high));
}

PlotGroup Axes(const kvopt::ContourPlotData& plot) {
    PlotGroup group{"Axes", {}};
    int count = 0;
    const auto& axes = plot.GetSelectedAxisInfo(count);
    for (int position = 1; position <= count; ++position) {
        const kvopt::AxisInfo& axis = *axes[static_cast<std::size_t>(position)];
        const std::string value = axis.IsUsed() ? Used(axis) : "not used";
        group.lines.push_back({"Axis " + std::to_string(position), value});
    }
    return group;
}

PlotGroup Constants(const kvopt::ContourPlotData& plot) {
    PlotGroup group{"Constants", {}};
    const kvopt::FactorConstants::Constant* constants = plot.GetPlotConstants();
    const int count = kvopt::FactorConstants::NumConstants(constants);
    for (int at = 0; at < count; ++at) {
        const auto& constant = constants[at];
        std::string value = constant.QualValue();
        if (constant.kind == kvopt::FactorConstants::kQuantitativeKind) {
            value =
                constant.FloatValue() == kvopt::kNotSet ? "not set" : Number(constant.FloatValue());
        }
        group.lines.push_back({constant.Name(), value});
    }
    return group;
}

/// What only a design space plot has; empty for another.
PlotGroup Simulation(const kvopt::ContourPageData& data) {
    PlotGroup group{"Simulation", {}};
    if (data.ISDSProbability()) {
        const auto& options = data.GetOptions();
        group.lines = {{"Risk limit", std::to_string(options.dpmoTarget) + " DPMO"},
                       {"Simulations per point", std::to_string(options.numSimulations)},
                       {"Interval type", kvopt::CIntervalType::GetString(options.intervalType)},
                       {"Confidence level", kvopt::CConfLev::GetString(options.confLev)}};
    }
    return group;
}

}  // namespace

std::string YesNo(bool value) {
    return value ? "yes" : "no";
}

std::vector<PlotGroup> DescribePlot(const kvopt::ContourPlotData& plot) {
    const kvopt::ContourPageData& data = *plot.GetContourTypeData();
    const auto& options = data.GetOptions();
    const bool mixture = data.GetAxisType() == kvopt::ContourPageData::mixture;
    PlotGroup responses{"Responses", {}};
    for (const std::string& name : data.GetSelectedResponses()) {
        responses.lines.push_back({name, ""});
    }
    return {
        {"Plot",
         {{"Kind", kvopt::KvStdString::ToUtf8(data.GetTypeName())},
          {"Factors", mixture ? "mixture" : "process"},
          {"Resolution", std::to_string(mixture ? options.mixtureResolution : options.resolution)},
          {"Uses constraints", YesNo(data.UseConstraints())}}},
        responses,
        Axes(plot),
        Constants(plot),
        Simulation(data),
        {"Display",
         {{"Color", YesNo(options.useColor)},
          {"Contour level labels", YesNo(options.useContourLabels)},
          {"Equal scale", YesNo(options.scaleEqual)},
          {"Contour levels locked", YesNo(options.lockContourLevels)}}}};
}
