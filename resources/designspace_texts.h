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
inline constexpr FormatText<1> kRiskLimitCaption("%1%:");

inline constexpr PlainText kDesignSpaceResolutionTooHigh{"Too high resolution. Use below 1024."};
inline constexpr PlainText kSimulationsOutside{
    "The number of simulations should be in the range 100 to 1 000 000."};
inline constexpr PlainText kProfileSimulationsOutside{
    "The number of samples for predicted response profiles should range from 100 to 1 000 000."};
inline constexpr PlainText kRangeSimulationsOutside{
    "The number of samples for acceptable factor ranges should range from 100 to 100 000."};
inline constexpr PlainText kRiskPercentOutside{
    "The probability limit should range from 0.001 % to 50 %."};
inline constexpr PlainText kRiskDpmoOutside{"The DPMO limit should range from 10 to 500 000."};

}  // namespace kvopt::texts
