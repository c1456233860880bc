#pragma once

#include <memory>

#include "road_desktop.h"

/// Real windows, on the display or offscreen, in front of a person or played by a script; of a
/// played road a picture of each page is kept in the folder of the run.
std::unique_ptr<RoadDesktop> MakeQtRoadDesktop(const CommandLine& command);
