#pragma once

namespace kvopt {

class ContourPlotData;
class Investigation;

/// Writes what the next wizard should propose to the study's ini file: axes, constants and options
/// of a known plot type, the options alone of any other.
void WriteContourSettings(const ContourPlotData& data, const Investigation& investigation);

}  // namespace kvopt
