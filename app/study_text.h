#pragma once

#include <string>
#include <vector>

namespace kvopt {
class ReferenceStudy;
}

/// A factor of a study as a person reads it.
struct FactorText {
    std::string name;
    std::string abbreviation;
    std::string unit;
    std::string kind;   ///< with its use, when it is not set by the design
    std::string range;  ///< "11.8 to 13", or the settings
};

/// A response of a study and what was fitted to it.
struct ResponseText {
    std::string name;
    std::string unit;
    std::string rSquared;  ///< three decimals, empty without a fit
    std::string model;     ///< the fitted terms, or why there are none
};

/// All factors in study order.
std::vector<FactorText> DescribeFactors(const kvopt::ReferenceStudy& study);
/// All responses in study order.
std::vector<ResponseText> DescribeResponses(const kvopt::ReferenceStudy& study);
/// "5 factors, 2 responses, 30 runs".
std::string DescribeSize(const kvopt::ReferenceStudy& study);
