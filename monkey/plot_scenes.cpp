#include <utility>

#include "kvopt/platform.h"
#include "kvopt/plotargs.h"
#include "kvopt/sheets.h"
#include "kvopt/stores.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "monkey/accepted_pages.h"
#include "monkey/invariants.h"
#include "monkey/scenes.h"
#include "monkey/stage.h"
#include "tests/support/host_plot.h"

namespace kvopt::monkey {

namespace {

using Type = ContourPageData::Type;

/// What a host makes, and how it opens it.
struct PlotKind {
    Type type = ContourPageData::contour_2D;
    bool isMixture = false;
    bool fromDesignSpace = false;  ///< its constants are given
    bool isDesirability = false;
    bool isDesignRegion = false;  ///< without responses
    bool hasHelper = true;        ///< of a sheet
    bool isAbandoned = false;     ///< at the third drawing of a sheet
};

ContourPlotData NewPlot(Stage& stage, const PlotKind& kind) {
    const bool isDesignSpace = kind.type == ContourPageData::ds_probability;
    ContourPlotData plot(&stage.Study(), 0, stage.FileOf("study.ini"), isDesignSpace,
                         kind.fromDesignSpace, false, kind.isDesirability);
    plot.GetContourTypeData()->SetPlotType(kind.type);
    plot.GetContourTypeData()->SetUseDummyData(kind.isDesignRegion);
    return plot;
}

void RunWizard(Stage& stage, Invariants& invariants, const PlotKind& kind) {
    // The second run begins with what the first one remembered.
    for (int run = 0; run < 2; ++run) {
        ContourPlotData plot = NewPlot(stage, kind);
        invariants.Watch({&plot});
        if (ShowContourWizard(nullptr, plot, &stage.Study(), true, kind.isDesirability)) {
            invariants.CheckAxes();
        }
        invariants.Watch({});
    }
}

/// Whether the study has the factors that the inner axes of a plot need.
bool HasInnerAxes(const ContourPlotData& plot, bool isMixture) {
    int count = 0;
    const auto& axes = plot.GetSelectedAxisInfo(count);
    const int needed = isMixture ? 3 : 2;
    for (int position = 1; position <= needed; ++position) {
        if (count < needed || !axes.at(static_cast<std::size_t>(position))->IsUsed()) {
            return false;
        }
    }
    return true;
}

/// A plot is made and saved, and the sheet opens on what is read back.
void EditSavedPlot(Stage& stage, Invariants& invariants, const PlotKind& kind) {
    ContourPlotData made = NewPlot(stage, kind);
    test::ChooseAxes(&stage.Study(), kind.type, kind.isMixture, made);
    if (!HasInnerAxes(made, kind.isMixture)) {
        return;
    }
    test::AddConstants(&stage.Study(), made);
    ConfigurationStore saved;
    made.WriteSection(saved.Root().get());
    saved.Save(stage.FileOf("plot.json"));
    const ConfigurationStore loaded = ConfigurationStore::Load(stage.FileOf("plot.json"));
    ContourPlotData plot = NewPlot(stage, kind);
    plot.ReadSection(loaded.Root().get());

    BasePropertyPageHelper helper;
    AcceptedPages listener(invariants, kind.isAbandoned);
    listener.ConnectTo(&helper);
    BasePropertyPageHelper* const given = kind.hasHelper ? &helper : nullptr;
    invariants.Watch({&plot, given});
    bool isConfirmed = false;
    try {
        isConfirmed =
            ShowContourSheet(nullptr, plot, &stage.Study(), plot.GetPlotConstants(), given, true);
    } catch (const CancelException&) {
        // Abandoned while it was drawn.
    }
    if (isConfirmed) {
        invariants.CheckAxes();
    }
    if (given != nullptr) {
        invariants.CheckClosed();
    }
    invariants.Watch({});
}

Scene WizardScene(const std::string& name, const PlotKind& kind) {
    return {name + " wizard",
            [kind](Stage& stage, Invariants& invariants) { RunWizard(stage, invariants, kind); }};
}

Scene SheetScene(const std::string& name, const PlotKind& kind) {
    return {name + " sheet", [kind](Stage& stage, Invariants& invariants) {
                EditSavedPlot(stage, invariants, kind);
            }};
}

PlotKind KindOf(Type type) {
    PlotKind kind;
    kind.type = type;
    return kind;
}

/// What only some plots are.
std::vector<Scene> SpecialScenes() {
    PlotKind given = KindOf(ContourPageData::ds_probability);
    given.fromDesignSpace = true;
    PlotKind desirability;
    desirability.isDesirability = true;
    PlotKind region;
    region.isDesignRegion = true;
    region.isMixture = true;
    PlotKind alone = KindOf(ContourPageData::contour_4D);
    alone.hasHelper = false;
    PlotKind aloneBelow;
    aloneBelow.hasHelper = false;
    PlotKind abandoned = KindOf(ContourPageData::contour_4D);
    abandoned.isAbandoned = true;
    return {WizardScene("given constants", given),
            WizardScene("desirability", desirability),
            WizardScene("design region", region),
            SheetScene("given constants", given),
            SheetScene("design region", region),
            SheetScene("abandoned", abandoned),
            SheetScene("4D contour without a helper", alone),
            SheetScene("contour without a helper", aloneBelow)};
}

}  // namespace

std::vector<Scene> PlotScenes() {
    const std::vector<std::pair<std::string, Type>> types{
        {"contour", ContourPageData::contour_2D},
        {"4D contour", ContourPageData::contour_4D},
        {"surface", ContourPageData::surface_3D},
        {"4D surface", ContourPageData::surface_4D},
        {"design space", ContourPageData::ds_probability}};
    std::vector<Scene> scenes = SpecialScenes();
    for (const auto& type : types) {
        PlotKind kind = KindOf(type.second);
        if (type.second != ContourPageData::surface_4D) {
            scenes.push_back(WizardScene(type.first, kind));
        }
        scenes.push_back(SheetScene("process " + type.first, kind));
        kind.isMixture = true;
        scenes.push_back(SheetScene("mixture " + type.first, kind));
    }
    return scenes;
}

}  // namespace kvopt::monkey
