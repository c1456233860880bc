#pragma once

#include <string>
#include <vector>

namespace kvopt {
class ContourPlotData;
}

/// A line of what a plot shows: what it is, and its value.
struct PlotLine {
    std::string name;
    std::string value;
};

/// A group of lines under a heading.
struct PlotGroup {
    std::string name;
    std::vector<PlotLine> lines;
};

std::string YesNo(bool value);

/// The arguments of a plot as a person reads them: kind, responses, axes, constants, display.
std::vector<PlotGroup> DescribePlot(const kvopt::ContourPlotData& plot);
