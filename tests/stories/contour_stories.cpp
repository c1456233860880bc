#include <gtest/gtest.h>

#include <string>

#include "kvopt/plotargs.h"
#include "kvopt/study.h"
#include "tests/stories/contour_road.h"
#include "tests/stories/story.h"
#include "tests/stories/story_stage.h"

namespace kvopt::test {

namespace {

void FinishOnce(StoryStage& stage) {
    EXPECT_TRUE(RunContourWizard(stage, "plot.json"));
}

/// A plot that holds a text for each qualitative factor from the start.
void FinishWithTexts(StoryStage& stage) {
    PlotKind kind;
    kind.prepare = [](StoryStage& inside, ContourPlotData& plot) {
        for (const FactorClass* factor : inside.Study().GetVariables()->GetAllFactors()) {
            if (factor->IsQualitative()) {
                FactorConstants::Add(
                    plot.GetPlotConstants(),
                    {factor->GetName(), factor->GetSetting(1), FactorConstants::CUSTOM});
            }
        }
    };
    EXPECT_TRUE(RunContourWizard(stage, "plot.json", kind));
}

/// A plot whose third axis holds nothing.
void FinishWithAnEmptyThirdAxis(StoryStage& stage) {
    PlotKind kind;
    kind.prepare = [](StoryStage& /*inside*/, ContourPlotData& plot) {
        plot.GetAxisInfo(ContourPlotData::Mixture4D)[3]->SetName(AxisInfo::GetNotUsedName());
    };
    EXPECT_TRUE(RunContourWizard(stage, "plot.json", kind));
}

void FinishTwice(StoryStage& stage) {
    EXPECT_TRUE(RunContourWizard(stage, "first-plot.json"));
    EXPECT_TRUE(RunContourWizard(stage, "second-plot.json"));
}

void CancelOnly(StoryStage& stage) {
    EXPECT_FALSE(RunContourWizard(stage, "plot.json"));
}

void FinishThenCancel(StoryStage& stage) {
    EXPECT_TRUE(RunContourWizard(stage, "plot.json"));
    const std::string ini = stage.Bytes("study.ini");
    const std::string plot = stage.Bytes("plot.json");
    EXPECT_FALSE(ini.empty());
    EXPECT_FALSE(RunContourWizard(stage, "never-saved.json"));
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
        {"contour_over_outer_factors", "paper-helicopter-ccd-blocked", FinishOnce},
        {"contour_over_outer_settings", "sonoluminescence-2-7-3", FinishWithTexts},
        {"contour_of_a_mixture_over_outer_factors", "vinyl-thickness-mixture-process", FinishOnce},
        {"contour_without_a_third_component", "vinyl-thickness-mixture-process",
         FinishWithAnEmptyThirdAxis},
        {"contour_without_a_factor_that_fits", "cast-fatigue-plackett-burman-12", CancelOnly},
    };
}

}  // namespace kvopt::test
