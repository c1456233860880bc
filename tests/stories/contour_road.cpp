#include "tests/stories/contour_road.h"

#include "kvopt/host.h"
#include "kvopt/plotargs.h"
#include "kvopt/sheets.h"
#include "tests/stories/saved_plot.h"
#include "tests/stories/story_stage.h"

namespace kvopt::test {

namespace {

/// A new plot of the study, as an application makes it.
ContourPlotData NewPlot(StoryStage& stage, const std::string& iniFile, const PlotKind& kind) {
    ContourPlotData data(&stage.Study(), 0, iniFile, kind.isDSProbability, kind.fromDesignSpace,
                         false, false);
    data.GetContourTypeData()->SetSelectResponseBase(kind.responses);
    return data;
}

}  // namespace

bool RunContourWizard(StoryStage& stage, const std::string& savedPlot, const PlotKind& kind) {
    ContourPlotData data = NewPlot(stage, stage.IniFile(), kind);
    if (kind.prepare != nullptr) {
        kind.prepare(stage, data);
    }
    const bool finished = ShowContourWizard(nullptr, data, &stage.Study(), true, false);
    stage.NoteResult(finished ? "finished" : "not finished");
    if (finished) {
        SavePlot(stage, data, NewPlot(stage, "", kind), savedPlot);
    }
    return finished;
}

}  // namespace kvopt::test
