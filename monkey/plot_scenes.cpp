#include "kvopt/axes.h"
#include "kvopt/platform.h"
#include "kvopt/plotargs.h"
#include "kvopt/sheets.h"
#include "kvopt/stores.h"
#include "kvopt/study.h"
#include "monkey/invariants.h"
#include "monkey/scenes.h"
#include "monkey/stage.h"

namespace kvopt::monkey {

namespace {

using Type = ContourPageData::Type;

struct PlotKind {
    std::string name;
    Type type;
};

ContourPlotData NewPlot(Stage& stage, Type type) {
    return ContourPlotData(&stage.Study(), 0, stage.FileOf("study.ini"),
                           type == ContourPageData::ds_probability, false, false, false);
}

void RunWizard(Stage& stage, Invariants& invariants, Type type) {
    // The second run begins with what the first one remembered.
    for (int run = 0; run < 2; ++run) {
        ContourPlotData plot = NewPlot(stage, type);
        plot.GetContourTypeData()->SetPlotType(type);
        invariants.Watch(&plot, nullptr);
        if (ShowContourWizard(nullptr, plot, &stage.Study(), true, false)) {
            invariants.CheckAxes();
        }
        invariants.Watch(nullptr, nullptr);
    }
}

/// Chooses the axes as a host does that asks nobody. False when the study has too few factors.
bool ChooseAxes(Stage& stage, Type type, bool isMixture, ContourPlotData& plot) {
    const Investigation* study = &stage.Study();
    switch (type) {
        case ContourPageData::contour_2D:
        case ContourPageData::surface_3D:
            if (!isMixture) {
                ContourAxisHelper(study, &plot, type, ContourPlotData::Process2D).Setup();
                break;
            }
            Mixture2DAxisHelper(study, &plot).Setup();
            plot.GetContourTypeData()->SetPlotType(type);
            break;
        case ContourPageData::contour_4D:
        case ContourPageData::surface_4D:
            if (isMixture) {
                Mixture4DAxisHelper(study, &plot, type).Setup();
            } else {
                Contour4DAxisHelper(study, &plot, type).Setup();
            }
            break;
        case ContourPageData::ds_probability:
            ProbabilityContourAxisHelper(study, &plot, isMixture).Setup();
            break;
    }
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

void AddConstants(Stage& stage, ContourPlotData& plot) {
    const Variables* variables = stage.Study().GetVariables();
    for (const FactorClass* factor : variables->GetAllFactors()) {
        if (!FactorConstants::IsMember(plot.GetPlotConstants(), factor->GetName())) {
            FactorConstants::AddConstant(plot.GetPlotConstants(), variables, factor,
                                         FactorConstants::LOW);
        }
    }
}

/// A plot is made and saved, and the sheet opens on what is read back.
void EditSavedPlot(Stage& stage, Invariants& invariants, Type type, bool isMixture) {
    ContourPlotData made = NewPlot(stage, type);
    if (!ChooseAxes(stage, type, isMixture, made)) {
        return;
    }
    AddConstants(stage, made);
    ConfigurationStore saved;
    made.WriteSection(saved.Root().get());
    saved.Save(stage.FileOf("plot.json"));
    const ConfigurationStore loaded = ConfigurationStore::Load(stage.FileOf("plot.json"));
    ContourPlotData plot = NewPlot(stage, type);
    plot.ReadSection(loaded.Root().get());

    BasePropertyPageHelper helper;
    PropertyPageListener listener;
    listener.ConnectTo(&helper);
    invariants.Watch(&plot, &helper);
    if (ShowContourSheet(nullptr, plot, &stage.Study(), plot.GetPlotConstants(), &helper, true)) {
        invariants.CheckAxes();
    }
    invariants.Watch(nullptr, nullptr);
}

}  // namespace

std::vector<Scene> PlotScenes() {
    const std::vector<PlotKind> kinds{{"contour", ContourPageData::contour_2D},
                                      {"4D contour", ContourPageData::contour_4D},
                                      {"surface", ContourPageData::surface_3D},
                                      {"4D surface", ContourPageData::surface_4D},
                                      {"design space", ContourPageData::ds_probability}};
    std::vector<Scene> scenes;
    for (const PlotKind& kind : kinds) {
        const Type type = kind.type;
        if (type != ContourPageData::surface_4D) {
            scenes.push_back({kind.name + " wizard", [type](Stage& stage, Invariants& invariants) {
                                  RunWizard(stage, invariants, type);
                              }});
        }
        for (const bool isMixture : {false, true}) {
            scenes.push_back({(isMixture ? "mixture " : "process ") + kind.name + " sheet",
                              [type, isMixture](Stage& stage, Invariants& invariants) {
                                  EditSavedPlot(stage, invariants, type, isMixture);
                              }});
        }
    }
    return scenes;
}

}  // namespace kvopt::monkey
