#include <gtest/gtest.h>

#include <string>

#include "designspace/risk_settings.h"
#include "kvopt/designspace.h"
#include "kvopt/platform.h"
#include "kvopt/study.h"
#include "tests/stories/contour_road.h"
#include "tests/stories/story.h"
#include "tests/stories/story_stage.h"

namespace kvopt::test {

namespace {

/// One run of the wizard for the responses that have a limit.
void FinishWithLimits(StoryStage& stage) {
    SelectResponseBase owner(SelectResponseBase::Extended);
    EXPECT_TRUE(RunContourWizard(stage, "plot.json", {true, false, &owner}));
}

void FinishInPercent(StoryStage& stage) {
    RiskSettings risk;
    risk.ShowPercent();
    FinishWithLimits(stage);
}

void FinishInDpmo(StoryStage& stage) {
    RiskSettings risk;
    risk.ShowDpmo();
    FinishWithLimits(stage);
}

void FinishFromADesignSpace(StoryStage& stage) {
    EXPECT_TRUE(RunContourWizard(stage, "plot.json", {true, true, nullptr}));
}

/// A host's own sheet of what its setpoint is simulated by.
void EditTheSetpoint(StoryStage& stage) {
    DesignSpaceOptions options(&stage.Study());
    DesignSpacePage setpoint(&stage.Study(), options, nullptr);
    DesignSpaceIntervalPage interval(&stage.Study(), options, nullptr, true);
    KvPropertySheet sheet(L"Setpoint", nullptr, 0);
    sheet.AddPage(&setpoint);
    sheet.AddPage(&interval);
    EXPECT_EQ(sheet.DoModal(), kResultOk);
    stage.NoteResult("to update " + std::to_string(options.whatToUpdate));
    options.whatToUpdate = 0;
    EXPECT_EQ(DesignSpaceOptions(&stage.Study()), options) << "the study remembers it";
}

void EditTheSetpointInDpmo(StoryStage& stage) {
    RiskSettings risk;
    risk.ShowDpmo();
    EditTheSetpoint(stage);
}

}  // namespace

std::vector<Story> DesignSpaceStories() {
    return {
        {"design_space_in_percent", "tire-tread-ccd-4-responses", FinishInPercent},
        {"design_space_in_dpmo", "tire-tread-ccd-4-responses", FinishInDpmo},
        {"design_space_of_a_mixture", "concrete-mixture-6-components-5-responses", FinishInPercent},
        {"design_space_with_given_constants", "tire-tread-ccd-4-responses", FinishFromADesignSpace},
        {"setpoint_properties", "tire-tread-ccd-4-responses", EditTheSetpoint},
        {"setpoint_in_dpmo", "tire-tread-ccd-4-responses", EditTheSetpointInDpmo}};
}

}  // namespace kvopt::test
