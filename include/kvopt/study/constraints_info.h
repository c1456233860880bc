#pragma once

#include <string_view>

#include "kvopt/export.h"

namespace kvopt {

/// The constraints between the factors of a study.
class KVOPT_EXPORT ConstraintsInfo {
public:
    virtual ~ConstraintsInfo();

    /// Whether any constraint names the factor.
    virtual bool HasConstraints(std::string_view factor) const = 0;
};

}  // namespace kvopt
