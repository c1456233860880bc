#include "kvopt/study/response.h"

#include <utility>

namespace kvopt {

ResponseClass::ResponseClass(std::string variableName, std::string variableUnits,
                             std::string variableAbbreviation)
    : name(std::move(variableName)),
      units(std::move(variableUnits)),
      abbreviation(std::move(variableAbbreviation)) {}

ResponseClass::~ResponseClass() = default;

ResponseEx::ResponseEx(ResponseClass* responseClass) : response(responseClass) {}

ResponseEx::~ResponseEx() = default;

ResponseEx::EResponseType ResponseEx::GetType() const {
    return type;
}

double ResponseEx::GetLowLimit() const {
    return lowLimit;
}

double ResponseEx::GetHighLimit() const {
    return highLimit;
}

double ResponseEx::GetTarget() const {
    return target;
}

const std::string& ResponseEx::GetName() const {
    static const std::string nameless;
    return response != nullptr ? response->GetName() : nameless;
}

}  // namespace kvopt
