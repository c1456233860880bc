#pragma once

/// \file
/// What wizard and sheet write for each type of plot.

#include <gtest/gtest.h>

#include <functional>
#include <ostream>

#include "kvopt/plotargs.h"

namespace kvopt::test {

struct SettingsRow {
    const char* label;
    int type;
    bool mixture;
    std::function<void(ContourPlotData&)> same;  ///< writes axes, constants and options
};

inline void PrintTo(const SettingsRow& row, std::ostream* out) {
    *out << row.label;
}

inline auto KnownTypes() {
    const auto inner = [](WizardPlotData::PlotAxisType section, int set, int numAxes) {
        return [=](ContourPlotData& data) { data.WriteSettings(section, set, numAxes, true); };
    };
    const auto outer = [](ContourPlotData::AxisType set) {
        return [=](ContourPlotData& data) { data.Write4DSettings(set); };
    };
    const auto process = inner(WizardPlotData::ContourAxis2D, 1, 2);
    const auto mixture = inner(WizardPlotData::ContourAxisMixture, 3, 3);
    const auto process4D = outer(ContourPlotData::Process4D);
    const auto mixture4D = outer(ContourPlotData::Mixture4D);
    return testing::Values(SettingsRow{"ContourProcess", 0, false, process},
                           SettingsRow{"ContourMixture", 0, true, mixture},
                           SettingsRow{"Contour4DProcess", 1, false, process4D},
                           SettingsRow{"Contour4DMixture", 1, true, mixture4D},
                           SettingsRow{"SurfaceProcess", 2, false, process},
                           SettingsRow{"SurfaceMixture", 2, true, mixture},
                           SettingsRow{"Surface4DProcess", 3, false, process4D},
                           SettingsRow{"Surface4DMixture", 3, true, mixture4D},
                           SettingsRow{"DesignSpaceProcess", 4, false, process4D},
                           SettingsRow{"DesignSpaceMixture", 4, true, mixture4D});
}

}  // namespace kvopt::test
