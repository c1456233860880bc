#include "tests/stories/contour_road.h"

#include <gtest/gtest.h>

#include "kvopt/host.h"
#include "kvopt/plotargs.h"
#include "kvopt/sheets.h"
#include "kvopt/stores.h"
#include "tests/stories/contour_plot_text.h"
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

/// Gives a plot text constants that differ from those of another. A saved plot brings a text back
/// only for a constant that is there already, which an application's own plots have.
void AddOtherTexts(StoryStage& stage, const ContourPlotData& other, ContourPlotData& plot) {
    for (const auto* constant = other.GetPlotConstants(); constant->IsDefined(); ++constant) {
        const FactorClass* factor = stage.Study().GetVariables()->GetFactor(constant->Name());
        if (!constant->QualValue().empty()) {
            const std::string first = factor->GetSetting(1);
            FactorConstants::Add(
                plot.GetPlotConstants(),
                {constant->Name(), constant->QualValue() == first ? factor->GetSetting(2) : first,
                 FactorConstants::CUSTOM});
        }
    }
}

/// Saves the plot and reads it back into an object that holds none of it.
void SavePlot(StoryStage& stage, const ContourPlotData& data, const std::string& name,
              const PlotKind& kind) {
    ConfigurationStore saved;
    data.WriteSection(saved.Root().get());
    saved.Save(stage.FileOf(name));

    const ConfigurationStore loaded = ConfigurationStore::Load(stage.FileOf(name));
    ContourPlotData again = NewPlot(stage, "", kind);
    AddOtherTexts(stage, data, again);
    EXPECT_TRUE(again.ReadSection(loaded.Root().get()));
    EXPECT_EQ(ContourPlotText(again), ContourPlotText(data));
}

}  // namespace

bool RunContourWizard(StoryStage& stage, const std::string& savedPlot, const PlotKind& kind) {
    ContourPlotData data = NewPlot(stage, stage.IniFile(), kind);
    const bool finished = ShowContourWizard(nullptr, data, &stage.Study(), true, false);
    stage.NoteResult(finished ? "finished" : "not finished");
    if (finished) {
        SavePlot(stage, data, savedPlot, kind);
    }
    return finished;
}

}  // namespace kvopt::test
