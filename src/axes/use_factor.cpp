#include "kvopt/axes/use_factor.h"

#include "kvopt/study/response_model_utilities.h"

namespace kvopt {

UseFactor::~UseFactor() = default;

bool UseFactor::operator()(const FactorClass* factor, bool flag) const {
    return IsInModels(factor, flag);
}

bool UseFactor::IsInModels(const FactorClass* factor, bool flag) const {
    return investigation_ == nullptr ||
           ResponseModelUtilities(investigation_).IsFactorAvailable(factor, flag, false);
}

}  // namespace kvopt
