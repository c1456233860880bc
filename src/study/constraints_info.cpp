#include "kvopt/study/constraints_info.h"

namespace kvopt {

ConstraintsInfo::~ConstraintsInfo() = default;

}  // namespace kvopt
