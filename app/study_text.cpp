#include "study_text.h"

#include <kvopt/host.h>
#include <kvopt/study.h>
#include <kvopt/text.h>

namespace {

using kvopt::KvString;

std::string KindOf(const kvopt::StudyFactor& factor) {
    if (factor.abbreviation == kvopt::kBlockAbbreviation) {
        return "block";
    }
    switch (factor.type) {
        case kvopt::CEType::Quantitative:
            return "quantitative";
        case kvopt::CEType::Multilevel:
            return "multilevel";
        case kvopt::CEType::Qualitative:
            return "qualitative";
        case kvopt::CEType::Formulation:
            return "mixture part";
        case kvopt::CEType::Filler:
            return "filler";
        case kvopt::CEType::Discrete:
            return "discrete";
        case kvopt::CEType::Covariate:
            return "covariate";
    }
    return "";
}

std::string UseOf(const kvopt::StudyFactor& factor) {
    switch (factor.use) {
        case kvopt::CEUse::Controlled:
            return "";
        case kvopt::CEUse::Uncontrolled:
            return ", uncontrolled";
        case kvopt::CEUse::Constant:
            return ", held constant";
    }
    return "";
}

std::string RangeOf(const kvopt::StudyFactor& factor) {
    if (factor.settings.empty()) {
        return factor.low == kvopt::kNotSet || factor.high == kvopt::kNotSet
                   ? ""
                   : KvString::FormatG(factor.low) + " to " + KvString::FormatG(factor.high);
    }
    std::vector<std::string> names;
    for (const kvopt::StudySetting& setting : factor.settings) {
        names.push_back(setting.included ? setting.name : setting.name + " (not offered)");
    }
    return kvopt::KvStdString::FormatStringVector(names, ", ");
}

std::string TransformOf(const kvopt::StudyResponse& response) {
    switch (response.transform) {
        case kvopt::StudyTransform::None:
            return "";
        case kvopt::StudyTransform::NaturalLog:
            return "natural logarithm: ";
        case kvopt::StudyTransform::Log10:
            return "decimal logarithm: ";
        case kvopt::StudyTransform::SquareRoot:
            return "square root: ";
        case kvopt::StudyTransform::Reciprocal:
            return "reciprocal: ";
    }
    return "";
}

std::string ModelOf(const kvopt::StudyResponse& response, const kvopt::ModelFit* fit) {
    if (!response.derivedFrom.empty()) {
        return "worked out from " +
               kvopt::KvStdString::FormatStringVector(response.derivedFrom, ", ");
    }
    if (fit == nullptr || !fit->IsFitted()) {
        return "no fitted model";
    }
    std::vector<std::string> terms;
    for (const auto& coefficient : fit->Coefficients()) {
        if (coefficient.estimated) {
            terms.push_back(coefficient.name);
        }
    }
    return TransformOf(response) + kvopt::KvStdString::FormatStringVector(terms, ", ");
}

std::string Counted(std::size_t count, const std::string& noun) {
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace

std::vector<FactorText> DescribeFactors(const kvopt::ReferenceStudy& study) {
    std::vector<FactorText> result;
    for (const kvopt::StudyFactor& factor : study.Data().factors) {
        result.push_back({factor.name, factor.abbreviation, factor.unit,
                          KindOf(factor) + UseOf(factor), RangeOf(factor)});
    }
    return result;
}

std::vector<ResponseText> DescribeResponses(const kvopt::ReferenceStudy& study) {
    std::vector<ResponseText> result;
    for (const kvopt::StudyResponse& response : study.Data().responses) {
        const kvopt::ModelFit* fit = study.Fit(response.name);
        std::string rSquared;
        if (fit != nullptr && fit->IsFitted() && fit->RSquared() != kvopt::kNotSet) {
            rSquared = KvString::ToString(fit->RSquared(), kvopt::FormatText<1>("%.3f"));
        }
        result.push_back({response.name, response.unit, rSquared, ModelOf(response, fit)});
    }
    return result;
}

std::string DescribeSize(const kvopt::ReferenceStudy& study) {
    const kvopt::StudyData& data = study.Data();
    return Counted(data.factors.size(), "factor") + ", " +
           Counted(data.responses.size(), "response") + ", " +
           Counted(data.runs.rows.size(), "run");
}
