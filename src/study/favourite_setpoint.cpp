#include "kvopt/study/favourite_setpoint.h"

#include <utility>

#include "kvopt/study/investigation.h"
#include "kvopt/study/optimizer_queries.h"
#include "kvopt/text/not_set.h"

namespace kvopt {

FavouriteSetpoint::FavouriteSetpoint(const Investigation* investigation)
    : investigation_(investigation) {}

const std::vector<float>& FavouriteSetpoint::GetDefaultStart(StartFunction calculate) const {
    if (!start_.empty()) {
        return start_;
    }
    calculated_.clear();
    if (calculate != nullptr && investigation_ != nullptr) {
        calculated_ = calculate(*investigation_, -1);
    }
    return calculated_;
}

void FavouriteSetpoint::SetStart(std::vector<float> start) {
    start_ = std::move(start);
}

float FavouriteSetpoint::GetOptimalValue(const std::string& factor,
                                         const Investigation& investigation,
                                         OptimaType type) const {
    const OptimizerQueries* queries = investigation.GetOptimizerQueries();
    return queries != nullptr ? queries->GetOptimalValue(factor, type) : kNotSetF;
}

std::string FavouriteSetpoint::GetOptimalSetting(const std::string& factor,
                                                 const Investigation& investigation,
                                                 OptimaType type) const {
    const OptimizerQueries* queries = investigation.GetOptimizerQueries();
    return queries != nullptr ? queries->GetOptimalSetting(factor, type) : std::string();
}

}  // namespace kvopt
