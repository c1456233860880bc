#include "host/model_term.h"

#include <algorithm>
#include <string_view>

#include "host/json_node.h"
#include "host/study_fault.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {
namespace {

constexpr int kHighestPower = 9;

std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

}  // namespace

ModelTermReader::ModelTermReader(const StudyData& study) : study_(study) {
    for (std::size_t f = 0; f < study.factors.size(); ++f) {
        factors_.emplace(study.factors[f].abbreviation, f);
    }
}

void ModelTermReader::FailUnknown(const std::string& part, const std::string& text,
                                  const std::string& pointer) const {
    std::vector<std::string> known;
    std::string expected = "abbreviations of factors (";
    for (const StudyFactor& factor : study_.factors) {
        expected += (known.empty() ? "" : ", ") + factor.abbreviation;
        known.push_back(factor.abbreviation);
    }
    throw StudyFault{pointer, expected + ") joined by *",
                     Quoted(part) + " in the term " + Quoted(text) + Hint(part, known)};
}

ModelTerm ModelTermReader::Read(const std::string& text, const std::string& pointer) const {
    ModelTerm term;
    const std::string_view whole = text;
    for (std::size_t start = 0; start <= whole.size();) {
        const std::size_t end = std::min(whole.find('*', start), whole.size());
        std::string_view part = whole.substr(start, end - start);
        start = end + 1;

        int power = 1;
        const std::size_t caret = part.find('^');
        if (caret != std::string_view::npos) {
            if (!KvString::ToInt(part.substr(caret + 1), power) || power < 1 ||
                power > kHighestPower) {
                throw StudyFault{pointer, "a power from 1 to " + std::to_string(kHighestPower),
                                 "the term " + Quoted(text)};
            }
            part = part.substr(0, caret);
        }
        const std::string abbreviation(Trimmed(part));
        const auto factor = factors_.find(abbreviation);
        if (factor == factors_.end()) {
            FailUnknown(abbreviation, text, pointer);
        }
        term.insert(term.end(), static_cast<std::size_t>(power), factor->second);
    }
    std::sort(term.begin(), term.end());
    for (auto twice = std::adjacent_find(term.begin(), term.end()); twice != term.end();
         twice = std::adjacent_find(twice + 1, term.end())) {
        if (IsQualitative(study_.factors[*twice])) {
            throw StudyFault{pointer, "no power of a qualitative factor",
                             "the term " + Quoted(text)};
        }
    }
    return term;
}

std::string TermName(const StudyData& study, const ModelTerm& term) {
    std::string name;
    for (const std::size_t factor : term) {
        name += (name.empty() ? "" : "*") + study.factors[factor].abbreviation;
    }
    return name;
}

std::vector<ModelTerm> ModelTerms(const StudyData& study, const StudyResponse& response) {
    std::vector<ModelTerm> terms;
    if (response.hasModel) {
        const ModelTermReader reader(study);
        for (const std::string& text : response.model.terms) {
            terms.push_back(reader.Read(text, {}));
        }
    }
    return terms;
}

bool IsQualitative(const StudyFactor& factor) {
    return factor.type == CEType::Qualitative;
}

bool HasListedSettings(const StudyFactor& factor) {
    return CEType::IsList(factor.type);
}

bool IsComponent(const StudyFactor& factor) {
    return factor.type == CEType::Formulation || factor.type == CEType::Filler;
}

}  // namespace kvopt
