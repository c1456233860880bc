#include "host/least_squares.h"

#include <Eigen/Dense>
#include <cstddef>

#include "kvopt/host/study_data.h"

namespace kvopt {
namespace {

/// What is left of a column after the kept ones, relative to its length, below which it counts as
/// explained by them.
constexpr double kAliasTolerance = 1e-9;

/// Orthonormal directions of the columns kept so far.
class Directions {
public:
    explicit Directions(Eigen::Index length) : length_(length) {}

    /// What the kept directions do not explain of a vector. Taken twice: one pass of the classical
    /// projection leaves rounding errors as large as a nearly explained column.
    Eigen::VectorXd Remainder(Eigen::VectorXd vector) const {
        for (int pass = 0; pass < 2; ++pass) {
            for (const Eigen::VectorXd& direction : directions_) {
                vector -= direction.dot(vector) * direction;
            }
        }
        return vector;
    }

    bool Explain(const Eigen::VectorXd& vector, double tolerance) const {
        return Remainder(vector).norm() <= tolerance * vector.norm();
    }

    /// False, and nothing kept, when the vector is explained already.
    bool Keep(const Eigen::VectorXd& vector) {
        const Eigen::VectorXd rest = Remainder(vector);
        const double norm = rest.norm();
        if (static_cast<Eigen::Index>(directions_.size()) == length_ ||
            norm <= kAliasTolerance * vector.norm()) {
            return false;
        }
        directions_.push_back(rest / norm);
        return true;
    }

private:
    Eigen::Index length_;
    std::vector<Eigen::VectorXd> directions_;
};

}  // namespace

LeastSquaresResult SolveLeastSquares(const std::vector<std::vector<double>>& rows,
                                     const std::vector<double>& values) {
    LeastSquaresResult result;
    if (rows.empty()) {
        return result;
    }
    const auto runs = static_cast<Eigen::Index>(rows.size());
    const std::size_t columns = rows.front().size();
    result.coefficients.assign(columns, 0.0);
    result.estimated.assign(columns, false);

    Eigen::MatrixXd kept(runs, static_cast<Eigen::Index>(columns));
    std::vector<std::size_t> keptColumns;
    Directions directions(runs);
    Eigen::VectorXd column(runs);
    for (std::size_t c = 0; c < columns; ++c) {
        for (Eigen::Index r = 0; r < runs; ++r) {
            column(r) = rows[static_cast<std::size_t>(r)][c];
        }
        if (directions.Keep(column)) {
            kept.col(static_cast<Eigen::Index>(keptColumns.size())) = column;
            keptColumns.push_back(c);
            result.estimated[c] = true;
        }
    }
    const auto rank = static_cast<Eigen::Index>(keptColumns.size());
    kept.conservativeResize(Eigen::NoChange, rank);
    result.rank = static_cast<int>(rank);

    const Eigen::Map<const Eigen::VectorXd> observed(values.data(), runs);
    Eigen::VectorXd fitted = Eigen::VectorXd::Zero(runs);
    if (rank > 0) {
        const Eigen::VectorXd solution = kept.householderQr().solve(observed);
        for (Eigen::Index k = 0; k < rank; ++k) {
            result.coefficients[keptColumns[static_cast<std::size_t>(k)]] = solution(k);
        }
        fitted = kept * solution;
    }
    result.fitted.assign(fitted.data(), fitted.data() + runs);
    result.residualSum = (observed - fitted).squaredNorm();
    // The parts of a mixture add up to a constant, but for the rounding of printed amounts.
    const bool spansConstant = directions.Explain(Eigen::VectorXd::Ones(runs), kMixtureTolerance);
    const double centre = spansConstant ? observed.mean() : 0.0;
    result.totalSum = (observed.array() - centre).matrix().squaredNorm();
    return result;
}

}  // namespace kvopt
