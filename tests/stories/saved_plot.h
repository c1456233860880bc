#pragma once

#include <string>

#include "kvopt/plotargs.h"
#include "tests/stories/story_stage.h"

namespace kvopt::test {

/// Saves the plot, reads it back into `again`, a plot of its kind that holds none of it, and
/// expects the same.
void SavePlot(StoryStage& stage, const ContourPlotData& data, ContourPlotData again,
              const std::string& name);

/// Reads a plot that was saved. A text comes back only for a constant that is there already, which
/// an application's own plots have: `plot` gets them from `saved`, with another value.
bool LoadPlot(StoryStage& stage, const ContourPlotData& saved, const std::string& name,
              ContourPlotData& plot);

}  // namespace kvopt::test
