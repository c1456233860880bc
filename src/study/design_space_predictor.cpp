#include "kvopt/study/design_space_predictor.h"

#include "kvopt/study/investigation.h"

namespace kvopt {

DesignSpacePredictor::DesignSpacePredictor(Investigation* investigation)
    : investigation_(investigation), options_(investigation) {}

DesignSpacePredictor::~DesignSpacePredictor() = default;

DesignSpaceOptions& DesignSpacePredictor::GetOptions() {
    return options_;
}

std::vector<DSResponseSettings>& DesignSpacePredictor::GetResponseSettings() {
    return responses_;
}

}  // namespace kvopt
