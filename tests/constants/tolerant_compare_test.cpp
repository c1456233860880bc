#include "src/constants/tolerant_compare.h"

#include <gtest/gtest.h>

namespace kvopt::test {
namespace {

struct Comparison {
    double a;
    double b;
    double tolerance;
    int result;
};

class TolerantCompare : public testing::TestWithParam<Comparison> {};

TEST_P(TolerantCompare, ScalesItsToleranceByTheLargerValue) {
    const Comparison& row = GetParam();
    EXPECT_EQ(CompareTolerantly(row.a, row.b, row.tolerance), row.result);
    EXPECT_EQ(CompareTolerantly(row.b, row.a, row.tolerance), -row.result);
    EXPECT_EQ(CompareTolerantly(-row.a, -row.b, row.tolerance), -row.result);
}

// The exponent of 1.0 is 1 and that of 0.5 is 0, so that the tolerance counts twice and once. The
// tolerances are powers of two, so that "just at it" is exact.
INSTANTIATE_TEST_SUITE_P(
    Values, TolerantCompare,
    testing::Values(Comparison{1.0, 1.0, 0.0, 0}, Comparison{1.125, 1.0, 0.0625, 0},
                    Comparison{1.1875, 1.0, 0.0625, 1}, Comparison{0.875, 1.0, 0.0625, 0},
                    Comparison{0.8125, 1.0, 0.0625, -1}, Comparison{0.75, 0.5, 0.25, 0},
                    Comparison{0.875, 0.5, 0.25, 1},
                    // The larger has the exponent 2, the smaller 1.
                    Comparison{2.0, 1.75, 0.0625, 0}, Comparison{2.0, 1.6875, 0.0625, 1},
                    // Larger by its absolute value: 4 has the exponent 3.
                    Comparison{-4.0, 1.0, 0.75, 0}, Comparison{-4.0, 1.0, 0.5, -1},
                    // Both give the same exponent.
                    Comparison{2.0, -2.0, 1.0, 0}, Comparison{2.0, -2.0, 0.5, 1},
                    Comparison{0.0, 0.0, 0.1, 0}));

}  // namespace
}  // namespace kvopt::test
