#pragma once

#include "road.h"

// The pages that the library leaves to its hosts, each in a sheet of its own. What the page edits
// is what the study holds, or else the demo's own; it lasts as long as the call.

RoadResult ShowSelectResponsePage(const RoadStart& start);
RoadResult ShowSelectVariablePage(const RoadStart& start);
RoadResult ShowDesignSpacePage(const RoadStart& start);
RoadResult ShowConfidenceLevelPage(const RoadStart& start);
RoadResult ShowPredictionLevelPage(const RoadStart& start);
