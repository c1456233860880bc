#include "kvopt/constants/constants_chooser.h"

namespace kvopt {

ConstantsChooser::~ConstantsChooser() = default;

bool ConstantsChooser::SkipFactor(const std::string& /*name*/) const {
    return false;
}

}  // namespace kvopt
