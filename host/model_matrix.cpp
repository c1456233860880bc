#include "host/model_matrix.h"

#include <algorithm>
#include <unordered_map>

#include "kvopt/text/kv_string.h"

namespace kvopt {

ModelMatrix::ModelMatrix(const StudyData& study, const StudyResponse& response)
    : mixture_(study),
      mixtureTotal_(study.mixtureTotal),
      intercept_(response.model.intercept),
      terms_(ModelTerms(study, response)) {
    for (const StudyFactor& factor : study.factors) {
        Coding coding;
        coding.abbreviation = factor.abbreviation;
        if (IsQualitative(factor)) {
            for (const StudySetting& setting : factor.settings) {
                coding.settings.push_back(setting.name);
            }
        } else {
            coding.centre = (LowOf(factor) + HighOf(factor)) / 2.0;
            coding.halfRange = (HighOf(factor) - LowOf(factor)) / 2.0;
        }
        codings_.push_back(std::move(coding));
    }

    if (intercept_) {
        columnNames_.emplace_back("Constant");
    }
    for (const ModelTerm& term : terms_) {
        std::vector<std::string> names = {""};
        for (const std::size_t factor : term) {
            const Coding& coding = codings_[factor];
            std::vector<std::string> longer;
            for (const std::string& name : names) {
                const std::string start = (name.empty() ? "" : name + "*") + coding.abbreviation;
                if (coding.settings.empty()) {
                    longer.push_back(start);
                }
                for (std::size_t s = 1; s < coding.settings.size(); ++s) {
                    longer.push_back(start + "[" + coding.settings[s] + "]");
                }
            }
            names = std::move(longer);
        }
        columnNames_.insert(columnNames_.end(), names.begin(), names.end());
    }
}

std::vector<double> ModelMatrix::Columns(std::size_t factor, double value) const {
    const Coding& coding = codings_[factor];
    if (!coding.settings.empty()) {
        const auto index = static_cast<std::size_t>(std::max(value, 1.0));
        std::vector<double> columns(coding.settings.size() - 1, index == 1 ? -1.0 : 0.0);
        if (index > 1 && index <= columns.size() + 1) {
            columns[index - 2] = 1.0;
        }
        return columns;
    }
    if (mixture_.IsPart(factor)) {
        return {mixture_.ToPseudo(factor, value) / mixtureTotal_};
    }
    return {coding.halfRange > 0.0 ? (value - coding.centre) / coding.halfRange : 0.0};
}

std::vector<double> ModelMatrix::Row(const std::vector<double>& point) const {
    std::vector<double> row;
    row.reserve(columnNames_.size());
    if (intercept_) {
        row.push_back(1.0);
    }
    for (const ModelTerm& term : terms_) {
        std::vector<double> products = {1.0};
        for (const std::size_t factor : term) {
            std::vector<double> longer;
            for (const double product : products) {
                for (const double column : Columns(factor, point[factor])) {
                    longer.push_back(product * column);
                }
            }
            products = std::move(longer);
        }
        row.insert(row.end(), products.begin(), products.end());
    }
    return row;
}

RunPoints::RunPoints(const StudyData& study) : study_(study) {
    std::unordered_map<std::string, std::size_t> places;
    for (std::size_t c = 0; c < study.runs.columns.size(); ++c) {
        places.emplace(study.runs.columns[c], c);
    }
    if (!places.empty()) {
        for (const StudyFactor& factor : study.factors) {
            columns_.push_back(places.at(factor.name));
        }
    }
}

std::vector<double> RunPoints::Point(std::size_t run) const {
    std::vector<double> point;
    point.reserve(columns_.size());
    for (std::size_t f = 0; f < columns_.size(); ++f) {
        const StudyFactor& factor = study_.factors[f];
        const StudyCell& cell = study_.runs.rows[run][columns_[f]];
        point.push_back(IsQualitative(factor) ? SettingIndex(factor, std::get<std::string>(cell))
                                              : std::get<double>(cell));
    }
    return point;
}

int SettingIndex(const StudyFactor& factor, const std::string& setting) {
    for (std::size_t s = 0; s < factor.settings.size(); ++s) {
        if (factor.settings[s].name == setting) {
            return static_cast<int>(s) + 1;
        }
    }
    return 0;
}

double LowOf(const StudyFactor& factor) {
    double low = factor.low;
    if (!factor.settings.empty()) {
        KvString::ToDouble(factor.settings.front().name, low);
    }
    return low;
}

double HighOf(const StudyFactor& factor) {
    double high = factor.high;
    if (!factor.settings.empty()) {
        KvString::ToDouble(factor.settings.back().name, high);
    }
    return high;
}

}  // namespace kvopt
