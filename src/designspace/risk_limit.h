#pragma once

/// \file
/// The risk limit in the field of a page. It stands there in percent or in DPMO and is kept in
/// whole DPMO. The pages reckon in float, so that a limit can lose its last DPMO on the way.

#include <optional>
#include <string>
#include <string_view>

#include "kvopt/designspace/risk_presentation_enum.h"
#include "kvopt/text/literal.h"

namespace kvopt {

/// One DPMO in percent.
inline constexpr double kPercentPerDpmo = 0.0001;

/// What the general settings say.
RiskPresentationEnum::RiskPresentation PresentRiskPresentation();

/// What stands before the field.
std::wstring RiskLimitCaption(RiskPresentationEnum::RiskPresentation presentation);

/// The limit in DPMO, without a fraction; nothing for what is no number, below 0.001 % or above
/// 50 %.
std::optional<int> ReadRiskLimit(RiskPresentationEnum::RiskPresentation presentation,
                                 std::wstring_view text);

/// What a page says when there is nothing to read.
const PlainText& RiskLimitMessage(RiskPresentationEnum::RiskPresentation presentation);

}  // namespace kvopt
