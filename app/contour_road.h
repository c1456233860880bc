#pragma once

#include <memory>
#include <string>

#include "road.h"

/// Where one study's stores stand: its ini file, the user's profile and registry, its saved plots.
struct StoreFiles {
    std::string ini;
    std::string profile;
    std::string registry;
    std::string savedPlot;

    /// The files of a run in its own folder.
    static StoreFiles InFolder(const std::string& folder);
};

// A plot's arguments on the study, filled by the user in the wizard. Which plot it is at the end
// the user decides; only a design space stays one.

RoadResult MakeContourPlot(const RoadStart& start);
RoadResult MakeContour4DPlot(const RoadStart& start);
RoadResult MakeDesignSpacePlot(const RoadStart& start);

/// The arguments of the saved plot, changed by the user in the sheet. Throws as LoadPlot does.
RoadResult ChangeSavedPlot(const RoadStart& start);

/// Writes the plot to a file of its own. Throws kvopt::FileError.
void SavePlot(const kvopt::ContourPlotData& plot, const std::string& fileName);

/// Reads a saved plot back. Throws kvopt::FileError when the file cannot be read, or holds no plot
/// that fits the study.
std::unique_ptr<kvopt::ContourPlotData> LoadPlot(kvopt::ReferenceStudy& study,
                                                 const std::string& fileName);
