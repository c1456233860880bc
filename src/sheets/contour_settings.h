#pragma once

namespace kvopt {

class ContourPlotData;

/// Writes what the next wizard should propose to the study's ini file: axes, constants and options.
/// False, with nothing written, for an unknown plot type.
bool WriteContourSettings(const ContourPlotData& data);

}  // namespace kvopt
