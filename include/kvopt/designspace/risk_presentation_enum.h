#pragma once

#include <string>

#include "kvopt/export.h"

namespace kvopt {

/// How a risk of failure is shown to the user. Stored limits are always whole DPMO (defects per
/// million opportunities), of which one is 0.0001 %; the presentation decides only the texts and
/// the conversion at the edge.
///
/// The texts of a number that is no presentation are empty.
class KVOPT_EXPORT RiskPresentationEnum {
public:
    enum RiskPresentation : int {
        Probability = 0,  ///< percent
        Dpmo = 1,
    };

    static std::wstring ToString(RiskPresentation presentation);
    static std::wstring ToShortString(RiskPresentation presentation);
    /// The unit alone.
    static std::wstring ToChoiceString(RiskPresentation presentation);
    static std::wstring ToLimitString(RiskPresentation presentation);
    /// One way: StringToEnum does not know this text.
    static std::wstring ToListHeaderString(RiskPresentation presentation);

    /// The number as it is; nothing is checked.
    static RiskPresentation IntToEnum(int number);
    /// Of the texts of ToString, ToChoiceString, ToShortString and ToLimitString; Dpmo for any
    /// other text.
    static RiskPresentation StringToEnum(const std::wstring& text);
};

}  // namespace kvopt
