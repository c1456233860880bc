#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>

#include "kvopt/platform.h"
#include "kvopt/plotargs.h"
#include "kvopt/sheets.h"
#include "kvopt/text.h"
#include "tests/stories/saved_plot.h"
#include "tests/stories/story.h"
#include "tests/stories/story_stage.h"
#include "tests/support/host_plot.h"

namespace kvopt::test {

namespace {

using Type = ContourPageData::Type;
using Axes = ContourPageData::AxisType;

/// The plot whose sheet is opened.
struct SheetPlot {
    Type type = ContourPageData::contour_2D;
    Axes axes = ContourPageData::process;
    bool fromDesignSpace = false;
};

/// A new plot, as an application makes it.
ContourPlotData NewPlot(StoryStage& stage, const SheetPlot& kind, const std::string& iniFile) {
    const bool isDesignSpace = kind.type == ContourPageData::ds_probability;
    return ContourPlotData(&stage.Study(), 0, iniFile, isDesignSpace, kind.fromDesignSpace, false,
                           false);
}

/// What a host does with each update of its plot.
class PlotListener : public PropertyPageListener {
public:
    explicit PlotListener(std::function<void()> draw) : draw_(std::move(draw)) {}
    void ListenerUpdate() override { draw_(); }

private:
    std::function<void()> draw_;
};

/// Opens the sheet of a plot that was saved before, and saves what it left. Without `draw` nobody
/// draws what is applied.
bool EditSavedPlot(StoryStage& stage, const SheetPlot& kind, const std::function<void()>& draw) {
    ContourPlotData made = NewPlot(stage, kind, stage.IniFile());
    ChooseAxes(&stage.Study(), kind.type, kind.axes == ContourPageData::mixture, made);
    AddConstants(&stage.Study(), made);
    SavePlot(stage, made, NewPlot(stage, kind, ""), "plot.json");

    ContourPlotData plot = NewPlot(stage, kind, stage.IniFile());
    EXPECT_TRUE(LoadPlot(stage, made, "plot.json", plot));
    BasePropertyPageHelper helper;
    PlotListener listener(draw);
    listener.ConnectTo(&helper);
    CWnd window;
    window.SetText(L"Plot of the study");
    const bool confirmed = ShowContourSheet(&window, plot, &stage.Study(), plot.GetPlotConstants(),
                                            draw ? &helper : nullptr, true);
    stage.NoteResult(confirmed ? "confirmed" : "not confirmed");
    SavePlot(stage, plot, NewPlot(stage, kind, ""), "edited-plot.json");
    return confirmed;
}

void NoteDrawing() {
    Desktop::Instance().Note("drawn");
}

template <Type type, Axes axes>
void Confirm(StoryStage& stage) {
    EXPECT_TRUE(EditSavedPlot(stage, {type, axes}, NoteDrawing));
}

void ConfirmFromADesignSpace(StoryStage& stage) {
    EXPECT_TRUE(EditSavedPlot(
        stage, {ContourPageData::ds_probability, ContourPageData::process, true}, NoteDrawing));
}

void ConfirmUndrawn(StoryStage& stage) {
    EXPECT_TRUE(EditSavedPlot(stage, {}, nullptr));
}

void Cancel(StoryStage& stage) {
    EXPECT_FALSE(EditSavedPlot(stage, {}, NoteDrawing));
    EXPECT_EQ(stage.Bytes("study.ini"), "");
}

/// The analyst abandons the plot while it is drawn for the second time.
void Abandon(StoryStage& stage) {
    int drawings = 0;
    const auto draw = [&drawings] {
        NoteDrawing();
        if (++drawings == 2) {
            throw CancelException();
        }
    };
    EXPECT_THROW(EditSavedPlot(stage, {}, draw), CancelException);
    stage.NoteResult("abandoned");
    EXPECT_EQ(stage.Bytes("study.ini"), "");
    EXPECT_EQ(stage.Bytes("edited-plot.json"), "");
}

}  // namespace

std::vector<Story> SheetStories() {
    constexpr Axes process = ContourPageData::process;
    constexpr Axes mixture = ContourPageData::mixture;
    return {
        {"sheet_of_a_contour", "tire-tread-ccd-4-responses",
         Confirm<ContourPageData::contour_2D, process>},
        {"sheet_of_a_mixture_contour", "concrete-mixture-6-components-5-responses",
         Confirm<ContourPageData::contour_2D, mixture>},
        {"sheet_of_a_contour_with_outer_axes", "sonoluminescence-2-7-3",
         Confirm<ContourPageData::contour_4D, process>},
        {"sheet_of_a_contour_of_settings", "rubber-cure-lab-mix-temperature",
         Confirm<ContourPageData::contour_4D, process>},
        {"sheet_of_a_mixture_contour_with_outer_axes", "vinyl-thickness-mixture-process",
         Confirm<ContourPageData::contour_4D, mixture>},
        {"sheet_of_a_surface", "paper-helicopter-ccd-blocked",
         Confirm<ContourPageData::surface_3D, process>},
        {"sheet_of_a_mixture_surface", "yarn-elongation-simplex-lattice",
         Confirm<ContourPageData::surface_3D, mixture>},
        {"sheet_of_a_surface_with_outer_axes", "electron-microscope-2-8-4",
         Confirm<ContourPageData::surface_4D, process>},
        {"sheet_of_a_mixture_surface_with_outer_axes", "vinyl-thickness-mixture-process",
         Confirm<ContourPageData::surface_4D, mixture>},
        {"sheet_of_a_design_space", "tire-tread-ccd-4-responses",
         Confirm<ContourPageData::ds_probability, process>},
        {"sheet_of_a_mixture_design_space", "vinyl-thickness-mixture-process",
         Confirm<ContourPageData::ds_probability, mixture>},
        {"sheet_of_a_design_space_with_given_constants", "tire-tread-ccd-4-responses",
         ConfirmFromADesignSpace},
        {"sheet_without_a_drawing", "tire-tread-ccd-4-responses", ConfirmUndrawn},
        {"sheet_cancelled", "tire-tread-ccd-4-responses", Cancel},
        {"sheet_abandoned", "tire-tread-ccd-4-responses", Abandon},
    };
}

}  // namespace kvopt::test
