#include "kvopt/host/model_fit.h"

#include <algorithm>
#include <cmath>

#include "host/least_squares.h"
#include "host/model_matrix.h"
#include "kvopt/text/exceptions.h"

namespace kvopt {
namespace {

double Transformed(StudyTransform transform, double value) {
    switch (transform) {
        case StudyTransform::None:
            break;
        case StudyTransform::NaturalLog:
            return std::log(value);
        case StudyTransform::Log10:
            return std::log10(value);
        case StudyTransform::SquareRoot:
            return std::sqrt(value);
        case StudyTransform::Reciprocal:
            return 1.0 / value;
    }
    return value;
}

double Untransformed(StudyTransform transform, double value) {
    switch (transform) {
        case StudyTransform::None:
            break;
        case StudyTransform::NaturalLog:
            return std::exp(value);
        case StudyTransform::Log10:
            return std::pow(10.0, value);
        case StudyTransform::SquareRoot:
            return value * value;
        case StudyTransform::Reciprocal:
            return 1.0 / value;
    }
    return value;
}

}  // namespace

ModelFit::ModelFit(const StudyData& study, const StudyResponse& response)
    : transform_(response.transform) {
    if (!response.hasModel) {
        throw InvalidArgument("ModelFit: the response " + response.name + " has no model.");
    }
    matrix_ = std::make_unique<const ModelMatrix>(study, response);

    const auto column =
        std::find(study.runs.columns.begin(), study.runs.columns.end(), response.name);
    std::vector<std::vector<double>> rows;
    if (column != study.runs.columns.end()) {
        const auto index = static_cast<std::size_t>(column - study.runs.columns.begin());
        const RunPoints points(study);
        for (std::size_t r = 0; r < study.runs.rows.size(); ++r) {
            if (const auto* value = std::get_if<double>(&study.runs.rows[r][index])) {
                runs_.push_back(r);
                observed_.push_back(Transformed(transform_, *value));
                rows.push_back(matrix_->Row(points.Point(r)));
            }
        }
    }

    LeastSquaresResult result = SolveLeastSquares(rows, observed_);
    for (std::size_t c = 0; c < matrix_->ColumnNames().size(); ++c) {
        Coefficient coefficient;
        coefficient.name = matrix_->ColumnNames()[c];
        if (IsFitted()) {
            coefficient.value = result.coefficients[c];
            coefficient.estimated = result.estimated[c];
        }
        coefficients_.push_back(std::move(coefficient));
    }
    fitted_ = std::move(result.fitted);
    residualSum_ = result.residualSum;
    rank_ = result.rank;
    double scale = 0.0;
    for (const double value : observed_) {
        scale += value * value;
    }
    // What is left of equal values after their rounded mean is no variation.
    constexpr double kRounding = 1e-24;
    if (result.totalSum > kRounding * scale) {
        rSquared_ = 1.0 - residualSum_ / result.totalSum;
    }
}

ModelFit::~ModelFit() = default;

int ModelFit::ResidualDegreesOfFreedom() const {
    return static_cast<int>(observed_.size()) - rank_;
}

double ModelFit::ResidualStandardDeviation() const {
    const int degrees = ResidualDegreesOfFreedom();
    return degrees > 0 ? std::sqrt(residualSum_ / degrees) : kNotSet;
}

double ModelFit::Predict(const std::vector<double>& point) const {
    const std::vector<double> row = matrix_->Row(point);
    double value = 0.0;
    for (std::size_t c = 0; c < row.size(); ++c) {
        value += coefficients_[c].value * row[c];
    }
    return value;
}

double ModelFit::PredictResponse(const std::vector<double>& point) const {
    return Untransformed(transform_, Predict(point));
}

}  // namespace kvopt
