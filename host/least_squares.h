#pragma once

#include <vector>

namespace kvopt {

/// Ordinary least squares of one column of values on the columns of a model matrix.
///
/// Columns are taken in their order: one that the columns before it already explain is left out,
/// so a model that asks for more than the runs can tell keeps its first terms.
struct LeastSquaresResult {
    std::vector<double> coefficients;  ///< one for each column, 0 for one left out
    std::vector<bool> estimated;       ///< one for each column
    std::vector<double> fitted;        ///< one for each row
    double residualSum = 0.0;          ///< sum of squared residuals
    double totalSum = 0.0;  ///< about the mean when the columns span a constant, else about 0
    int rank = 0;
};

/// `rows` holds one vector for each run, all as long as the first; `values` one number for each.
LeastSquaresResult SolveLeastSquares(const std::vector<std::vector<double>>& rows,
                                     const std::vector<double>& values);

}  // namespace kvopt
