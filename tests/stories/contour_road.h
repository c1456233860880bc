#pragma once

#include <string>

namespace kvopt {
class ContourPlotData;
class SelectResponseBase;
}  // namespace kvopt

namespace kvopt::test {

class StoryStage;

/// Which plot an application makes.
struct PlotKind {
    bool isDSProbability = false;
    bool fromDesignSpace = false;
    /// Who says which responses there are; null for the study. With one, a design space is that of
    /// all responses that have a limit.
    SelectResponseBase* responses = nullptr;
    /// What the application does to the plot before the wizard runs; null for nothing.
    void (*prepare)(StoryStage& stage, ContourPlotData& plot) = nullptr;
};

/// One run of the wizard on a new plot of the stage's study. A finished plot is saved under the
/// name, and read back into an object that holds none of it.
bool RunContourWizard(StoryStage& stage, const std::string& savedPlot, const PlotKind& kind = {});

}  // namespace kvopt::test
