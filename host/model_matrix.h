#pragma once

#include <string>
#include <vector>

#include "host/mixture.h"
#include "host/model_term.h"

namespace kvopt {

/// Turns settings of the factors into a row of a response's model matrix. A point has one value for
/// each factor of the study, in the factor's units; of a qualitative factor the one-based index of
/// the setting.
///
/// Coding: a numeric factor runs from -1 at its low to +1 at its high; a part of a mixture counts
/// as its share of the total, in pseudo-components where the study has them; a qualitative factor
/// of n settings has n - 1 columns, which are -1 for the first setting and 1 for their own.
class ModelMatrix {
public:
    ModelMatrix(const StudyData& study, const StudyResponse& response);

    /// "Constant", then the terms with the setting of each qualitative column: "A*D[Air]".
    const std::vector<std::string>& ColumnNames() const { return columnNames_; }
    std::vector<double> Row(const std::vector<double>& point) const;

private:
    struct Coding {
        std::string abbreviation;
        std::vector<std::string> settings;  ///< of a qualitative factor, else empty
        double centre = 0.0;
        double halfRange = 1.0;  ///< 0: the factor cannot vary
    };

    std::vector<double> Columns(std::size_t factor, double value) const;

    Mixture mixture_;
    double mixtureTotal_;
    bool intercept_;
    std::vector<Coding> codings_;
    std::vector<ModelTerm> terms_;
    std::vector<std::string> columnNames_;
};

/// The points of a study's runs. The study must have passed CheckStudy() and outlives the object.
class RunPoints {
public:
    explicit RunPoints(const StudyData& study);

    std::vector<double> Point(std::size_t run) const;

private:
    const StudyData& study_;
    std::vector<std::size_t> columns_;  ///< of each factor
};

/// The one-based index of a setting by its exact name, 0 for an unknown one.
int SettingIndex(const StudyFactor& factor, const std::string& setting);

/// The lowest and the highest value of a numeric factor: its bounds, or its outermost levels.
double LowOf(const StudyFactor& factor);
double HighOf(const StudyFactor& factor);

}  // namespace kvopt
