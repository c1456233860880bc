#include "kvopt/study/fit_info.h"

namespace kvopt {

PLSModel::~PLSModel() = default;

FitInfo::~FitInfo() = default;

bool FitInfo::IsFactorAvailable(const FactorClass* /*factor*/,
                                const ResponseEx* /*response*/) const {
    return true;
}

bool FitInfo::IsResponseAvailable(const std::string& /*response*/, bool /*fitted*/) const {
    return true;
}

bool FitInfo::IsFitted() const {
    return false;
}

const PLSModel* FitInfo::GetPLSModel() const {
    return nullptr;
}

std::string ItmInfo::GetINam(int index) const {
    return index >= 1 && index <= GetNItm() ? names_[static_cast<std::size_t>(index) - 1]
                                            : std::string();
}

}  // namespace kvopt
