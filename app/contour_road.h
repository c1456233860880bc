#pragma once

#include <memory>
#include <string>

namespace kvopt {
class ContourPlotData;
class CWnd;
class ReferenceStudy;
}  // namespace kvopt

/// Where one study's stores stand: its ini file, the user's profile and registry, its saved plots.
struct StoreFiles {
    std::string ini;
    std::string profile;
    std::string registry;
    std::string savedPlot;

    /// The files of a run in its own folder.
    static StoreFiles InFolder(const std::string& folder);
};

/// Makes a plot's arguments on the study and lets the user fill them. Null when the wizard was
/// cancelled.
std::unique_ptr<kvopt::ContourPlotData> MakeContourPlot(kvopt::ReferenceStudy& study,
                                                        kvopt::CWnd* parent);

/// Writes the plot to a file of its own. Throws kvopt::FileError.
void SavePlot(const kvopt::ContourPlotData& plot, const std::string& fileName);

/// Reads a saved plot back. Throws kvopt::FileError when the file cannot be read, or holds no plot
/// that fits the study.
std::unique_ptr<kvopt::ContourPlotData> LoadPlot(kvopt::ReferenceStudy& study,
                                                 const std::string& fileName);
