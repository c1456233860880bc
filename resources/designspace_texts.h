#pragma once

/// \file
/// Texts about design spaces. Index 0 of a pair is for percent, 1 for DPMO.

#include "kvopt/text/literal.h"

namespace kvopt::texts {

inline constexpr PlainText kRisk[] = {PlainText("Probability of failure (%)"),
                                      PlainText("Probability of failure (DPMO)")};
inline constexpr PlainText kRiskShort[] = {PlainText("Prob. fail. (%)"), PlainText("DPMO")};
inline constexpr PlainText kRiskChoice[] = {PlainText("%"), PlainText("DPMO")};
inline constexpr PlainText kRiskLimit[] = {PlainText("Acceptance level (%)"),
                                           PlainText("Acceptance level (DPMO)")};
inline constexpr PlainText kRiskListHeader[] = {PlainText("Prob. of failure"), PlainText("DPMO")};

}  // namespace kvopt::texts
