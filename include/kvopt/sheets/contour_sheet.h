#pragma once

#include "kvopt/export.h"
#include "kvopt/study/factor_constants.h"

namespace kvopt {

class BasePropertyPageHelper;
class ContourPlotData;
class CWnd;
class Investigation;

/// Lets the analyst change the arguments of a plot that exists: responses, axes, constants and
/// options of its type. True when the sheet was confirmed; then, with `writeSettings`, the study is
/// told of the selected responses, and what the next wizard should propose is written to its ini
/// file. The pages edit `data` in place, and Cancel takes nothing back.
///
/// `constants` is the array that the pages edit: the plot's own or a copy of it with room for every
/// factor. With a `helper`, which may be null, the sheet has an Apply button. `parent` may be null;
/// the sheet bears the text of its outermost window.
///
/// Throws InvalidArgument, before anything is shown, without constants and when settings are to be
/// written for an object without an ini file. A CancelException of a page leaves it as
/// CancelException, with nothing written.
KVOPT_EXPORT bool ShowContourSheet(CWnd* parent, ContourPlotData& data,
                                   Investigation* investigation,
                                   FactorConstants::Constant* constants,
                                   BasePropertyPageHelper* helper, bool writeSettings);

}  // namespace kvopt
