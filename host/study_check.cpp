#include "host/study_check.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "host/json_node.h"
#include "host/json_place.h"
#include "host/model_term.h"
#include "host/study_fault.h"
#include "kvopt/study/axis_info.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {
namespace {

std::string Step(const char* list, std::size_t index) {
    return "/" + std::string(list) + "/" + std::to_string(index);
}

/// Names that must differ from each other, with the place of each.
class UniqueNames {
public:
    explicit UniqueNames(std::string what) : what_(std::move(what)) {}

    void Add(const std::string& name, const std::string& pointer) {
        if (name.empty()) {
            throw StudyFault{pointer, "a name", "an empty text"};
        }
        if (name.find('\0') != std::string::npos) {
            throw StudyFault{pointer, "a name without the character U+0000", Quoted(name)};
        }
        const auto [known, isNew] = places_.emplace(name, pointer);
        if (!isNew) {
            throw StudyFault{pointer, what_ + " that differs from that at " + known->second,
                             Quoted(name) + " again"};
        }
    }

private:
    std::string what_;
    std::map<std::string, std::string> places_;
};

void CheckNumber(double number, const std::string& pointer) {
    if (!std::isfinite(number)) {
        throw StudyFault{pointer, "a finite number", KvString::FromDouble(number)};
    }
}

void CheckRange(double low, double high, const std::string& pointer) {
    if (low != kNotSet) {
        CheckNumber(low, pointer + "/low");
    }
    if (high != kNotSet) {
        CheckNumber(high, pointer + "/high");
    }
    if (low != kNotSet && high != kNotSet && low > high) {
        throw StudyFault{pointer, "a low that is not above the high " + KvString::FromDouble(high),
                         "the low " + KvString::FromDouble(low)};
    }
}

void CheckAbbreviation(const StudyFactor& factor, const std::string& pointer, UniqueNames& names) {
    const std::string& text = factor.abbreviation;
    names.Add(text, pointer);
    constexpr std::string_view kBlanks = " \t\r\n";
    if (text.find_first_of("*^") != std::string::npos ||
        kBlanks.find(text.front()) != kBlanks.npos || kBlanks.find(text.back()) != kBlanks.npos) {
        throw StudyFault{pointer, "an abbreviation without *, ^ and blanks at its ends",
                         Quoted(text)};
    }
}

void CheckSettings(const StudyFactor& factor, const std::string& pointer) {
    if (factor.settings.empty()) {
        throw StudyFault{pointer, "at least one setting", "none"};
    }
    UniqueNames names("a setting");
    bool isAnyIncluded = false;
    double previous = 0.0;
    for (std::size_t s = 0; s < factor.settings.size(); ++s) {
        const StudySetting& setting = factor.settings[s];
        const std::string place = pointer + "/" + std::to_string(s);
        names.Add(setting.name, place);
        isAnyIncluded = isAnyIncluded || setting.included;
        if (IsQualitative(factor)) {
            continue;
        }
        double value = 0.0;
        if (!KvString::ToDouble(setting.name, value) || value == kNotSet) {
            throw StudyFault{place, "a number other than -99", Quoted(setting.name)};
        }
        if (s > 0 && value <= previous) {
            throw StudyFault{place, "levels in ascending order", KvString::FromDouble(value)};
        }
        previous = value;
    }
    if (!isAnyIncluded) {
        throw StudyFault{pointer, "at least one included setting", "none"};
    }
}

void CheckFactor(const StudyData& study, const StudyFactor& factor, const std::string& pointer) {
    const bool isBlock = factor.name == kBlockFactorName;
    if (AxisInfo::IsNotUsedName(factor.name)) {
        throw StudyFault{pointer + "/name", "a name other than that of an unused axis",
                         Quoted(factor.name)};
    }
    if (isBlock && !(IsQualitative(factor) && factor.use == CEUse::Controlled)) {
        throw StudyFault{pointer, "the type block for the factor " + Quoted(factor.name),
                         "another type or use"};
    }
    if (factor.precision != kNotSet) {
        CheckNumber(factor.precision, pointer + "/precision");
        if (IsQualitative(factor)) {
            throw StudyFault{pointer + "/precision", "a precision of a numeric factor only",
                             "a qualitative factor"};
        }
        if (factor.precision <= 0.0) {
            throw StudyFault{pointer + "/precision", "a standard deviation above 0",
                             KvString::FromDouble(factor.precision)};
        }
    }
    if (HasListedSettings(factor)) {
        CheckSettings(factor, pointer + "/settings");
        return;
    }
    if (!factor.settings.empty()) {
        throw StudyFault{pointer + "/settings", "settings of a factor with listed levels only",
                         "a factor with a range"};
    }
    for (const auto& [value, key] :
         {std::pair(factor.low, "low"), std::pair(factor.high, "high")}) {
        if (value == kNotSet) {
            throw StudyFault{pointer, "the key " + Quoted(key), "a factor without it"};
        }
    }
    CheckRange(factor.low, factor.high, pointer);
    if (IsComponent(factor) && (factor.low < 0.0 || factor.high > study.mixtureTotal)) {
        throw StudyFault{
            pointer,
            "bounds from 0 to the mixture total " + KvString::FromDouble(study.mixtureTotal),
            KvString::FromDouble(factor.low) + " to " + KvString::FromDouble(factor.high)};
    }
}

void CheckTotal(double total) {
    CheckNumber(total, "/mixtureTotal");
    if (total <= 0.0) {
        throw StudyFault{"/mixtureTotal", "a total above 0", KvString::FromDouble(total)};
    }
}

void CheckMixture(const StudyData& study) {
    double low = 0.0;
    double high = 0.0;
    int fillers = 0;
    bool isMixture = false;
    for (std::size_t f = 0; f < study.factors.size(); ++f) {
        const StudyFactor& factor = study.factors[f];
        if (!IsComponent(factor)) {
            continue;
        }
        isMixture = true;
        fillers += factor.type == CEType::Filler ? 1 : 0;
        if (fillers > 1) {
            throw StudyFault{Step("factors", f) + "/type", "one filler at most", "a second one"};
        }
        low += factor.low;
        high += factor.high;
    }
    const double slack = kMixtureTolerance * study.mixtureTotal;
    if (isMixture && (low > study.mixtureTotal + slack || high < study.mixtureTotal - slack)) {
        throw StudyFault{
            "/factors",
            "bounds that a mixture of " + KvString::FromDouble(study.mixtureTotal) + " can keep",
            "lows that add up to " + KvString::FromDouble(low) + " and highs that add up to " +
                KvString::FromDouble(high)};
    }
}

void CheckModel(const StudyData& study, const StudyResponse& response, const std::string& pointer) {
    if (!response.model.intercept && response.model.terms.empty()) {
        throw StudyFault{pointer, "a model with an intercept or at least one term", "neither"};
    }
    std::map<ModelTerm, std::string> places;
    for (std::size_t t = 0; t < response.model.terms.size(); ++t) {
        const std::string place = pointer + Step("terms", t);
        const std::string& text = response.model.terms[t];
        const auto [known, isNew] = places.emplace(ParseModelTerm(study, text, place), place);
        if (!isNew) {
            throw StudyFault{place, "a term that differs from that at " + known->second,
                             Quoted(text) + " again"};
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
    UniqueNames abbreviations("an abbreviation");
    for (std::size_t f = 0; f < study.factors.size(); ++f) {
        const std::string pointer = Step("factors", f);
        names.Add(study.factors[f].name, pointer + "/name");
        CheckAbbreviation(study.factors[f], pointer + "/abbreviation", abbreviations);
    }
    for (std::size_t r = 0; r < study.responses.size(); ++r) {
        names.Add(study.responses[r].name, Step("responses", r) + "/name");
    }
    for (std::size_t l = 0; l < study.labels.size(); ++l) {
        names.Add(study.labels[l], Step("labels", l));
    }
    CheckTotal(study.mixtureTotal);
    for (std::size_t f = 0; f < study.factors.size(); ++f) {
        CheckFactor(study, study.factors[f], Step("factors", f));
    }
    CheckMixture(study);
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
