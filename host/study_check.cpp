#include "host/study_check.h"

#include <algorithm>
#include <map>
#include <set>

#include "host/json_node.h"
#include "host/json_place.h"
#include "host/model_term.h"
#include "host/study_check_tools.h"
#include "host/study_fault.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {
namespace {

/// Interactions of qualitative factors multiply: without a bound a short file could ask for more
/// memory than there is.
constexpr std::size_t kMostCoefficients = 100000;

/// Stops counting beyond the most that a model may have.
std::size_t CountCoefficients(const StudyData& study, const ModelTerm& term) {
    std::size_t count = 1;
    for (const std::size_t factor : term) {
        if (IsQualitative(study.factors[factor])) {
            count *= study.factors[factor].settings.size() - 1;
        }
        if (count > kMostCoefficients) {
            break;
        }
    }
    return count;
}

void CheckModel(const StudyData& study, const StudyResponse& response, const std::string& pointer) {
    if (!response.model.intercept && response.model.terms.empty()) {
        throw StudyFault{pointer, "a model with an intercept or at least one term", "neither"};
    }
    const ModelTermReader reader(study);
    std::map<ModelTerm, std::string> places;
    std::size_t coefficients = 1;
    for (std::size_t t = 0; t < response.model.terms.size(); ++t) {
        const std::string place = pointer + Step("terms", t);
        const std::string& text = response.model.terms[t];
        const ModelTerm term = reader.Read(text, place);
        const auto [known, isNew] = places.emplace(term, place);
        if (!isNew) {
            throw StudyFault{place, "a term that differs from that at " + known->second,
                             Quoted(text) + " again"};
        }
        coefficients += CountCoefficients(study, term);
        if (coefficients > kMostCoefficients) {
            throw StudyFault{
                place, "a model of at most " + std::to_string(kMostCoefficients) + " coefficients",
                "more"};
        }
    }
}

void CheckDerived(const StudyData& study, const StudyResponse& response,
                  const std::string& pointer) {
    if (response.hasModel || response.transform != StudyTransform::None) {
        throw StudyFault{pointer, "a model and a transform of ordinary responses only",
                         "a response of another type with one of them"};
    }
    const bool needsSources = response.type != ResponseEx::External;
    if (needsSources == response.derivedFrom.empty()) {
        throw StudyFault{pointer,
                         needsSources ? "the responses that it is worked out from"
                                      : "no sources of an external response",
                         needsSources ? "none" : "some"};
    }
    std::vector<std::string> ordinary;
    for (const StudyResponse& other : study.responses) {
        if (other.type == ResponseEx::Regular) {
            ordinary.push_back(other.name);
        }
    }
    UniqueNames names("a response");
    for (std::size_t s = 0; s < response.derivedFrom.size(); ++s) {
        const std::string& source = response.derivedFrom[s];
        const std::string place = pointer + Step("from", s);
        names.Add(source, place);
        if (std::find(ordinary.begin(), ordinary.end(), source) == ordinary.end()) {
            throw StudyFault{place, "the name of an ordinary response",
                             Quoted(source) + Hint(source, ordinary)};
        }
    }
}

void CheckResponse(const StudyData& study, const StudyResponse& response,
                   const std::string& pointer) {
    CheckRange(response.lowLimit, response.highLimit, pointer + "/limits");
    if (response.target != kNotSet) {
        const std::string place = pointer + "/limits/target";
        CheckNumber(response.target, place);
        if ((response.lowLimit != kNotSet && response.target < response.lowLimit) ||
            (response.highLimit != kNotSet && response.target > response.highLimit)) {
            throw StudyFault{place, "a target between the limits",
                             KvString::FromDouble(response.target)};
        }
    }
    if (response.type != ResponseEx::Regular) {
        CheckDerived(study, response, pointer);
    } else if (!response.derivedFrom.empty()) {
        throw StudyFault{pointer + "/from", "sources of a derived or combined response only",
                         "an ordinary one"};
    } else if (response.hasModel) {
        CheckModel(study, response, pointer + "/model");
    }
}

std::vector<std::string> FactorNames(const StudyData& study) {
    std::vector<std::string> names;
    for (const StudyFactor& factor : study.factors) {
        names.push_back(factor.name);
    }
    return names;
}

void CheckConstraint(const StudyData& study, const StudyConstraint& constraint,
                     const std::string& pointer) {
    const std::vector<std::string> names = FactorNames(study);
    bool isAny = false;
    for (const auto& [name, coefficient] : constraint.coefficients) {
        const std::string place = pointer + "/coefficients" + PointerStep(name);
        const auto found = std::find(names.begin(), names.end(), name);
        if (found == names.end()) {
            throw StudyFault{place, "the name of a factor", Quoted(name) + Hint(name, names)};
        }
        if (IsQualitative(study.factors[static_cast<std::size_t>(found - names.begin())])) {
            throw StudyFault{place, "a numeric factor", "the qualitative factor " + Quoted(name)};
        }
        CheckNumber(coefficient, place);
        isAny = isAny || coefficient != 0.0;
    }
    if (!isAny) {
        throw StudyFault{pointer + "/coefficients", "at least one coefficient other than 0",
                         "none"};
    }
    if (constraint.low == kNotSet && constraint.high == kNotSet) {
        throw StudyFault{pointer, "a low or a high bound", "neither"};
    }
    CheckRange(constraint.low, constraint.high, pointer);
}

void CheckSetpoint(const StudyData& study) {
    const std::vector<std::string> names = FactorNames(study);
    for (const auto& [name, cell] : study.favouriteSetpoint) {
        const std::string place = "/favouriteSetpoint" + PointerStep(name);
        const auto found = std::find(names.begin(), names.end(), name);
        if (found == names.end()) {
            throw StudyFault{place, "the name of a factor", Quoted(name) + Hint(name, names)};
        }
        CheckFactorCell(study.factors[static_cast<std::size_t>(found - names.begin())], cell,
                        place);
    }
}

void CheckSelection(const StudyData& study) {
    std::vector<std::string> responses;
    for (const StudyResponse& response : study.responses) {
        responses.push_back(response.name);
    }
    UniqueNames names("a response");
    for (std::size_t s = 0; s < study.selectedResponses.size(); ++s) {
        const std::string& name = study.selectedResponses[s];
        const std::string place = Step("selectedResponses", s);
        names.Add(name, place);
        if (std::find(responses.begin(), responses.end(), name) == responses.end()) {
            throw StudyFault{place, "the name of a response", Quoted(name) + Hint(name, responses)};
        }
    }
}

void CheckBlocking(const StudyData& study) {
    const auto section = study.settings.find(kBlockingSection);
    if (section == study.settings.end()) {
        return;
    }
    const auto fixed = section->second.find(kFixedEffectKey);
    if (fixed == section->second.end() || std::holds_alternative<bool>(fixed->second)) {
        return;
    }
    const int* number = std::get_if<int>(&fixed->second);
    if (number == nullptr || (*number != 0 && *number != 1)) {
        throw StudyFault{"/settings" + PointerStep(kBlockingSection) + PointerStep(kFixedEffectKey),
                         "true, false, 1 or 0",
                         number == nullptr ? "a fraction or a text" : std::to_string(*number)};
    }
}

}  // namespace

void CheckStudy(const StudyData& study) {
    UniqueNames names("a name");
    for (std::size_t f = 0; f < study.factors.size(); ++f) {
        names.Add(study.factors[f].name, Step("factors", f) + "/name");
    }
    for (std::size_t r = 0; r < study.responses.size(); ++r) {
        names.Add(study.responses[r].name, Step("responses", r) + "/name");
    }
    for (std::size_t l = 0; l < study.labels.size(); ++l) {
        names.Add(study.labels[l], Step("labels", l));
    }
    CheckFactors(study);
    for (std::size_t r = 0; r < study.responses.size(); ++r) {
        CheckResponse(study, study.responses[r], Step("responses", r));
    }
    for (std::size_t c = 0; c < study.constraints.size(); ++c) {
        CheckConstraint(study, study.constraints[c], Step("constraints", c));
    }
    CheckRuns(study);
    CheckSetpoint(study);
    CheckSelection(study);
    CheckBlocking(study);
}

void FillAbbreviations(StudyData& study) {
    std::set<std::string> taken;
    for (const StudyFactor& factor : study.factors) {
        taken.insert(factor.abbreviation);
    }
    int next = 0;
    for (StudyFactor& factor : study.factors) {
        while (factor.abbreviation.empty()) {
            constexpr int kLetters = 26;
            const std::string candidate = next < kLetters
                                              ? std::string(1, static_cast<char>('A' + next))
                                              : "X" + std::to_string(next + 1);
            ++next;
            if (taken.insert(candidate).second) {
                factor.abbreviation = candidate;
            }
        }
    }
}

}  // namespace kvopt
