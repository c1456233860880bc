#pragma once

#include <string>
#include <vector>

#include "kvopt/scripted/user_step.h"

namespace kvopt {

class CXTPPropertyGrid;
class CXTPPropertyGridItem;

/// The row that a script means: `path` as StepTarget has it. Checks that the verb fits it and, when
/// the user acts, that the row is shown and not read-only. Null, and a problem, when it cannot be
/// had. Of several rows that fit, one that is shown is meant.
CXTPPropertyGridItem* FindRow(const CXTPPropertyGrid& grid, const std::vector<std::string>& path,
                              StepVerb verb, std::string& problem);

/// What a row offers, UTF-8.
std::vector<std::string> ChoiceTexts(const CXTPPropertyGridItem& row);
/// For messages: the row as a script names it, with all rows above it.
std::string PathOf(const CXTPPropertyGridItem& row);

}  // namespace kvopt
