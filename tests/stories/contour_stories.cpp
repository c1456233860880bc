#include <gtest/gtest.h>

#include <string>

#include "kvopt/host.h"
#include "kvopt/plotargs.h"
#include "kvopt/sheets.h"
#include "kvopt/stores.h"
#include "tests/stories/contour_plot_text.h"
#include "tests/stories/story.h"
#include "tests/stories/story_stage.h"

namespace kvopt::test {

namespace {

/// A new contour plot of the study, as an application makes it.
ContourPlotData NewPlot(StoryStage& stage, const std::string& iniFile) {
    return ContourPlotData(&stage.Study(), 0, iniFile, false, false, false, false);
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
void SavePlot(StoryStage& stage, const ContourPlotData& data, const std::string& name) {
    ConfigurationStore saved;
    data.WriteSection(saved.Root().get());
    saved.Save(stage.FileOf(name));

    const ConfigurationStore loaded = ConfigurationStore::Load(stage.FileOf(name));
    ContourPlotData again = NewPlot(stage, "");
    AddOtherTexts(stage, data, again);
    EXPECT_TRUE(again.ReadSection(loaded.Root().get()));
    EXPECT_EQ(ContourPlotText(again), ContourPlotText(data));
}

/// One run of the wizard; a finished plot is saved.
bool RunWizard(StoryStage& stage, const std::string& savedPlot) {
    ContourPlotData data = NewPlot(stage, stage.IniFile());
    const bool finished = ShowContourWizard(nullptr, data, &stage.Study(), true, false);
    stage.NoteResult(finished ? "finished" : "not finished");
    if (finished) {
        SavePlot(stage, data, savedPlot);
    }
    return finished;
}

void FinishOnce(StoryStage& stage) {
    EXPECT_TRUE(RunWizard(stage, "plot.json"));
}

void FinishTwice(StoryStage& stage) {
    EXPECT_TRUE(RunWizard(stage, "first-plot.json"));
    EXPECT_TRUE(RunWizard(stage, "second-plot.json"));
}

void CancelOnly(StoryStage& stage) {
    EXPECT_FALSE(RunWizard(stage, "plot.json"));
}

void FinishThenCancel(StoryStage& stage) {
    EXPECT_TRUE(RunWizard(stage, "plot.json"));
    const std::string ini = stage.Bytes("study.ini");
    const std::string plot = stage.Bytes("plot.json");
    EXPECT_FALSE(ini.empty());
    EXPECT_FALSE(RunWizard(stage, "never-saved.json"));
    EXPECT_EQ(stage.Bytes("study.ini"), ini);
    EXPECT_EQ(stage.Bytes("plot.json"), plot);
    EXPECT_EQ(stage.Bytes("never-saved.json"), "");
}

}  // namespace

std::vector<Story> ContourStories() {
    return {
        {"contour_of_two_factors", "chemical-reaction-ccd-2-blocks", FinishOnce},
        {"contour_of_four_factors", "paper-helicopter-ccd-blocked", FinishOnce},
        {"contour_with_qualitative_constants", "sonoluminescence-2-7-3", FinishOnce},
        {"contour_of_one_factor", "rubber-cure-lab-mix-temperature", FinishOnce},
        {"contour_of_three_components", "yarn-elongation-simplex-lattice", FinishOnce},
        {"contour_of_a_mixture_with_process_factors", "vinyl-thickness-mixture-process",
         FinishOnce},
        {"contour_of_three_responses_of_six_components",
         "concrete-mixture-6-components-5-responses", FinishOnce},
        {"contour_wizard_opened_again", "paper-helicopter-ccd-blocked", FinishTwice},
        {"contour_wizard_cancelled", "chemical-reaction-ccd-2-blocks", FinishThenCancel},
        {"contour_with_a_doubtful_range", "chemical-reaction-ccd-2-blocks", FinishOnce},
        {"contour_without_a_factor_that_fits", "cast-fatigue-plackett-burman-12", CancelOnly},
    };
}

}  // namespace kvopt::test
