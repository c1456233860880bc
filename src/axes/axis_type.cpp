#include "kvopt/axes/axis_type.h"

#include "kvopt/study/factor_class.h"
#include "kvopt/study/variables.h"

namespace kvopt::AxisType {

namespace {

CEType::EType TypeOf(const FactorClass& factor) {
    return factor.factorValue.type;
}

}  // namespace

AddProcessFactor::AddProcessFactor(const Variables* variables, const Investigation* investigation)
    : UseFactor(investigation), variables_(variables) {}

bool AddProcessFactor::operator()(const FactorClass* factor, bool flag) const {
    if (factor->IsConstant()) {
        return false;
    }
    const CEType::EType type = TypeOf(*factor);
    if (type == CEType::Quantitative || type == CEType::Multilevel || type == CEType::Discrete) {
        return IsInModels(factor, flag);
    }
    if (!variables_->IstrueFiller()) {
        return false;
    }
    return type == CEType::Formulation && IsInModels(factor, flag);
}

AddNonQualitativeFactor::AddNonQualitativeFactor(const Variables* variables,
                                                 const Investigation* investigation)
    : UseFactor(investigation), variables_(variables) {}

bool AddNonQualitativeFactor::operator()(const FactorClass* factor, bool flag) const {
    if (TypeOf(*factor) == CEType::Filler || factor->IsConstant() || factor->IsQualitative()) {
        return false;
    }
    return IsInModels(factor, flag);
}

AddNonFiller::AddNonFiller(const Variables* variables, const Investigation* investigation)
    : UseFactor(investigation), variables_(variables) {}

bool AddNonFiller::operator()(const FactorClass* factor, bool flag) const {
    return TypeOf(*factor) != CEType::Filler && IsInModels(factor, flag);
}

AddMixtureFactor::AddMixtureFactor(const Variables* variables, const Investigation* investigation)
    : UseFactor(investigation), variables_(variables) {}

bool AddMixtureFactor::operator()(const FactorClass* factor, bool flag) const {
    if (factor->IsConstant()) {
        return false;
    }
    return factor->IsMixture() && IsInModels(factor, flag);
}

AddNonMixtureFactor::AddNonMixtureFactor(const Variables* variables,
                                         const Investigation* investigation)
    : AddMixtureFactor(variables, investigation) {}

bool AddNonMixtureFactor::operator()(const FactorClass* factor, bool flag) const {
    if (TypeOf(*factor) == CEType::Filler || factor->IsConstant()) {
        return false;
    }
    if (!IsInModels(factor, flag)) {
        return false;
    }
    if (factor->IsMixture() && !GetVariables()->IstrueFiller()) {
        return false;
    }
    // Asked again on purpose: a host that counts or logs the questions sees both.
    return IsInModels(factor, flag);
}

}  // namespace kvopt::AxisType
