#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "plot_text.h"

namespace kvopt {
class ContourPlotData;
class CWnd;
class ReferenceStudy;
}  // namespace kvopt

/// Where a road begins.
struct RoadStart {
    kvopt::ReferenceStudy& study;
    kvopt::CWnd* parent = nullptr;  ///< null for windows that stand alone
    std::string savedPlot = {};     ///< file of the plot that a road of Kind::Change begins with
};

/// What a road leaves.
struct RoadResult {
    bool finished = false;                         ///< the user pressed Finish or OK
    std::unique_ptr<kvopt::ContourPlotData> plot;  ///< of a finished road that fills a plot
    std::vector<PlotGroup> entered;                ///< of a finished page: what it holds now
};

/// Something that the demo lets a user do with a study.
struct Road {
    enum class Kind {
        Plot,    ///< a wizard that fills the arguments of a new plot
        Change,  ///< a sheet that changes the arguments of a saved plot, whose file stays as it is
        Page,    ///< a page that only hosts build, in a sheet of its own
    };
    Kind kind;
    const char* name;   ///< on the command line, and of the button or menu entry
    const char* label;  ///< in the window, with "&" before the mnemonic
    RoadResult (*go)(const RoadStart& start);
};

/// All roads, in the order in which the window offers them.
const std::vector<Road>& AllRoads();
/// Null for a name that none has.
const Road* FindRoad(std::string_view name);
