#include "contour_road.h"

#include <kvopt/host.h>
#include <kvopt/plotargs.h>
#include <kvopt/sheets.h>
#include <kvopt/stores.h>
#include <kvopt/study.h>
#include <kvopt/text.h>

namespace {

std::unique_ptr<kvopt::ContourPlotData> NewPlot(kvopt::ReferenceStudy& study, bool isDesignSpace) {
    const int factors = study.GetVariables()->GetCount(kvopt::CEVar::AllFactors);
    return std::make_unique<kvopt::ContourPlotData>(&study, factors, study.GetIniFileName(),
                                                    isDesignSpace, false, false, false);
}

RoadResult Leave(bool finished, std::unique_ptr<kvopt::ContourPlotData> plot) {
    RoadResult result;
    result.finished = finished;
    if (finished) {
        result.plot = std::move(plot);
    }
    return result;
}

RoadResult Fill(const RoadStart& start, std::unique_ptr<kvopt::ContourPlotData> plot) {
    const bool finished = kvopt::ShowContourWizard(start.parent, *plot, &start.study, true, false);
    return Leave(finished, std::move(plot));
}

}  // namespace

StoreFiles StoreFiles::InFolder(const std::string& folder) {
    return {folder + "/study.ini", folder + "/profile.ini", folder + "/registry.ini",
            folder + "/saved-plot.json"};
}

RoadResult MakeContourPlot(const RoadStart& start) {
    return Fill(start, NewPlot(start.study, false));
}

RoadResult MakeContour4DPlot(const RoadStart& start) {
    auto plot = NewPlot(start.study, false);
    plot->GetContourTypeData()->SetPlotType(kvopt::ContourPageData::contour_4D);
    return Fill(start, std::move(plot));
}

RoadResult MakeDesignSpacePlot(const RoadStart& start) {
    return Fill(start, NewPlot(start.study, true));
}

RoadResult ChangeSavedPlot(const RoadStart& start) {
    auto plot = LoadPlot(start.study, start.savedPlot);
    const bool finished = kvopt::ShowContourSheet(start.parent, *plot, &start.study,
                                                  plot->GetPlotConstants(), nullptr, true);
    return Leave(finished, std::move(plot));
}

void SavePlot(const kvopt::ContourPlotData& plot, const std::string& fileName) {
    kvopt::ConfigurationStore store;
    plot.WriteSection(store.Root().get());
    store.Save(fileName);
}

std::unique_ptr<kvopt::ContourPlotData> LoadPlot(kvopt::ReferenceStudy& study,
                                                 const std::string& fileName) {
    const kvopt::ConfigurationStore store = kvopt::ConfigurationStore::Load(fileName);
    auto plot = NewPlot(study, false);
    if (!plot->ReadSection(store.Root().get())) {
        throw kvopt::FileError(fileName, "holds no contour plot that fits this study");
    }
    return plot;
}
