#pragma once

#include <string>

#include "kvopt/export.h"

namespace kvopt {

/// Answers one question for the constants grid: must it leave this factor out? The base lists every
/// factor. Grids own the chooser they are given.
class KVOPT_EXPORT ConstantsChooser {
public:
    virtual ~ConstantsChooser();
    ConstantsChooser() = default;
    ConstantsChooser(const ConstantsChooser&) = default;
    ConstantsChooser& operator=(const ConstantsChooser&) = default;

    virtual bool SkipFactor(const std::string& name) const;
};

}  // namespace kvopt
