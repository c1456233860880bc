#pragma once

#include "kvopt/export.h"

namespace kvopt {

class ContourPlotData;
class CWnd;
class Investigation;

/// Lets the analyst fill the arguments of a new contour, surface or design space plot. True when
/// the wizard was finished; then, with `writeSettings`, what it should propose next time is written
/// to the study's ini file. The pages edit `data` in place: a cancelled wizard takes nothing back,
/// and the resolutions reach the user's profile in either case. `parent` may be null.
///
/// Throws InvalidArgument, before anything is shown, when settings are to be written for an object
/// without an ini file; CancelException passes through.
KVOPT_EXPORT bool ShowContourWizard(CWnd* parent, ContourPlotData& data,
                                    const Investigation* investigation, bool writeSettings,
                                    bool isDesirability);

}  // namespace kvopt
