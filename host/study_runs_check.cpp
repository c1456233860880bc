#include <algorithm>
#include <cmath>
#include <map>

#include "host/json_node.h"
#include "host/model_term.h"
#include "host/study_check.h"
#include "host/study_fault.h"
#include "host/study_words.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {
namespace {

/// What stands under one column of the runs.
struct Column {
    const StudyFactor* factor = nullptr;
    const StudyResponse* response = nullptr;  ///< neither: a label
};

std::string Describe(const StudyCell& cell) {
    if (const auto* number = std::get_if<double>(&cell)) {
        return "the number " + KvString::FromDouble(*number);
    }
    const auto* text = std::get_if<std::string>(&cell);
    return text == nullptr ? "nothing" : "the text " + Quoted(*text);
}

std::vector<Column> CheckColumns(const StudyData& study) {
    std::map<std::string, Column> known;
    std::vector<std::string> names;
    for (const StudyFactor& factor : study.factors) {
        known[factor.name] = Column{&factor, nullptr};
        names.push_back(factor.name);
    }
    for (const StudyResponse& response : study.responses) {
        if (response.type == ResponseEx::Regular) {
            known[response.name] = Column{nullptr, &response};
            names.push_back(response.name);
        }
    }
    for (const std::string& label : study.labels) {
        known[label] = Column{};
        names.push_back(label);
    }

    std::vector<Column> columns;
    std::map<std::string, std::string> places;
    for (std::size_t c = 0; c < study.runs.columns.size(); ++c) {
        const std::string& name = study.runs.columns[c];
        const std::string place = "/runs/columns/" + std::to_string(c);
        const auto found = known.find(name);
        if (found == known.end()) {
            throw StudyFault{place, "the name of a factor, an ordinary response or a label",
                             Quoted(name) + Hint(name, names)};
        }
        const auto [former, isNew] = places.emplace(name, place);
        if (!isNew) {
            throw StudyFault{place, "a column that differs from that at " + former->second,
                             Quoted(name) + " again"};
        }
        columns.push_back(found->second);
    }
    if (!columns.empty() || !study.runs.rows.empty()) {
        for (const StudyFactor& factor : study.factors) {
            if (places.find(factor.name) == places.end()) {
                throw StudyFault{"/runs/columns", "a column for each factor",
                                 "none for " + Quoted(factor.name)};
            }
        }
    }
    return columns;
}

void CheckResponseCell(const StudyResponse& response, const StudyCell& cell,
                       const std::string& place) {
    if (std::holds_alternative<std::monostate>(cell)) {
        return;
    }
    const auto* number = std::get_if<double>(&cell);
    if (number == nullptr || !std::isfinite(*number) || *number == kNotSet) {
        throw StudyFault{
            place, "a finite number other than -99 for " + Quoted(response.name) + ", or null",
            Describe(cell)};
    }
    const bool isLegal = response.transform == StudyTransform::None ||
                         (response.transform == StudyTransform::SquareRoot && *number >= 0.0) ||
                         (response.transform == StudyTransform::Reciprocal && *number != 0.0) ||
                         ((response.transform == StudyTransform::NaturalLog ||
                           response.transform == StudyTransform::Log10) &&
                          *number > 0.0);
    if (!isLegal) {
        throw StudyFault{place,
                         "a value of " + Quoted(response.name) + " that the transform " +
                             Quoted(TransformWord(response.transform)) + " can take",
                         Describe(cell)};
    }
}

void CheckLabelCell(const StudyCell& cell, const std::string& place) {
    if (std::holds_alternative<double>(cell)) {
        throw StudyFault{place, "a text or null for a label", Describe(cell)};
    }
}

}  // namespace

void CheckFactorCell(const StudyFactor& factor, const StudyCell& cell, const std::string& pointer) {
    if (IsQualitative(factor)) {
        std::vector<std::string> names;
        for (const StudySetting& setting : factor.settings) {
            names.push_back(setting.name);
        }
        const auto* text = std::get_if<std::string>(&cell);
        if (text == nullptr || std::find(names.begin(), names.end(), *text) == names.end()) {
            throw StudyFault{pointer, "the name of a setting of " + Quoted(factor.name),
                             Describe(cell) + (text == nullptr ? "" : Hint(*text, names))};
        }
        return;
    }
    const auto* number = std::get_if<double>(&cell);
    if (number == nullptr || !std::isfinite(*number) || *number == kNotSet) {
        throw StudyFault{pointer, "a finite number other than -99 for " + Quoted(factor.name),
                         Describe(cell)};
    }
    if (factor.type == CEType::Multilevel &&
        std::none_of(factor.settings.begin(), factor.settings.end(),
                     [&](const StudySetting& level) {
                         double value = 0.0;
                         return KvString::ToDouble(level.name, value) && value == *number;
                     })) {
        throw StudyFault{pointer, "one of the levels of " + Quoted(factor.name), Describe(cell)};
    }
    if (IsComponent(factor) && *number < 0.0) {
        throw StudyFault{pointer, "an amount of " + Quoted(factor.name) + " not below 0",
                         Describe(cell)};
    }
}

void CheckRuns(const StudyData& study) {
    const std::vector<Column> columns = CheckColumns(study);
    for (std::size_t r = 0; r < study.runs.rows.size(); ++r) {
        const std::vector<StudyCell>& row = study.runs.rows[r];
        const std::string place = "/runs/rows/" + std::to_string(r);
        if (row.size() != columns.size()) {
            throw StudyFault{place, "a run of " + std::to_string(columns.size()) + " values",
                             std::to_string(row.size())};
        }
        double total = 0.0;
        bool isMixture = false;
        for (std::size_t c = 0; c < row.size(); ++c) {
            const std::string cellPlace = place + "/" + std::to_string(c);
            if (columns[c].factor != nullptr) {
                CheckFactorCell(*columns[c].factor, row[c], cellPlace);
                if (IsComponent(*columns[c].factor)) {
                    isMixture = true;
                    total += std::get<double>(row[c]);
                }
            } else if (columns[c].response != nullptr) {
                CheckResponseCell(*columns[c].response, row[c], cellPlace);
            } else {
                CheckLabelCell(row[c], cellPlace);
            }
        }
        if (isMixture &&
            std::abs(total - study.mixtureTotal) > kMixtureTolerance * study.mixtureTotal) {
            throw StudyFault{
                place,
                "parts of the mixture that add up to " + KvString::FromDouble(study.mixtureTotal),
                "a sum of " + KvString::FromDouble(total)};
        }
    }
}

}  // namespace kvopt
