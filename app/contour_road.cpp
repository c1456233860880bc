#include "contour_road.h"

#include <kvopt/host.h>
#include <kvopt/plotargs.h>
#include <kvopt/sheets.h>
#include <kvopt/stores.h>
#include <kvopt/study.h>
#include <kvopt/text.h>

namespace {

std::unique_ptr<kvopt::ContourPlotData> NewPlot(kvopt::ReferenceStudy& study) {
    const int factors = study.GetVariables()->GetCount(kvopt::CEVar::AllFactors);
    return std::make_unique<kvopt::ContourPlotData>(&study, factors, study.GetIniFileName(), false,
                                                    false, false, false);
}

}  // namespace

StoreFiles StoreFiles::InFolder(const std::string& folder) {
    return {folder + "/study.ini", folder + "/profile.ini", folder + "/registry.ini",
            folder + "/saved-plot.json"};
}

RoadResult MakeContourPlot(const RoadStart& start) {
    RoadResult result;
    auto plot = NewPlot(start.study);
    result.finished = kvopt::ShowContourWizard(start.parent, *plot, &start.study, true, false);
    if (result.finished) {
        result.plot = std::move(plot);
    }
    return result;
}

void SavePlot(const kvopt::ContourPlotData& plot, const std::string& fileName) {
    kvopt::ConfigurationStore store;
    plot.WriteSection(store.Root().get());
    store.Save(fileName);
}

std::unique_ptr<kvopt::ContourPlotData> LoadPlot(kvopt::ReferenceStudy& study,
                                                 const std::string& fileName) {
    const kvopt::ConfigurationStore store = kvopt::ConfigurationStore::Load(fileName);
    auto plot = NewPlot(study);
    if (!plot->ReadSection(store.Root().get())) {
        throw kvopt::FileError(fileName, "holds no contour plot that fits this study");
    }
    return plot;
}
