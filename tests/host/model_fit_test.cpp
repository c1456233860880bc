#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <random>

#include "kvopt/host.h"

namespace kvopt {
namespace {

StudyData Example(const std::string& name) {
    return ReadStudyFile(std::string(KVOPT_SOURCE_DIR) + "/examples/studies/" + name + ".json");
}

ModelFit FitOf(const StudyData& study, std::size_t response = 0) {
    return ModelFit(study, study.responses[response]);
}

std::map<std::string, double> ByName(const ModelFit& fit) {
    std::map<std::string, double> values;
    for (const ModelFit::Coefficient& coefficient : fit.Coefficients()) {
        EXPECT_TRUE(coefficient.estimated) << coefficient.name;
        values[coefficient.name] = coefficient.value;
    }
    return values;
}

void ExpectCoefficients(const ModelFit& fit, const std::map<std::string, double>& published,
                        double rounding) {
    const std::map<std::string, double> values = ByName(fit);
    EXPECT_EQ(values.size(), published.size());
    for (const auto& [name, value] : published) {
        ASSERT_EQ(values.count(name), 1U) << name;
        EXPECT_NEAR(values.at(name), value, rounding) << name;
    }
}

// Derringer & Suich (1980), the equation printed for the abrasion index.
TEST(ModelFit, GivesThePublishedCoefficientsOfTheTireTread) {
    ExpectCoefficients(FitOf(Example("tire-tread-ccd-4-responses")),
                       {{"Constant", 139.12},
                        {"A", 16.49},
                        {"B", 17.88},
                        {"C", 10.91},
                        {"A*A", -4.01},
                        {"B*B", -3.45},
                        {"C*C", -1.57},
                        {"A*B", 5.13},
                        {"A*C", 7.13},
                        {"B*C", 7.88}},
                       0.006);
}

// Cornell (2002), the quadratic Scheffe model of the yarn.
TEST(ModelFit, GivesThePublishedScheffeCoefficientsOfTheYarn) {
    const ModelFit fit = FitOf(Example("yarn-elongation-simplex-lattice"));
    ExpectCoefficients(
        fit, {{"A", 11.7}, {"B", 9.4}, {"C", 16.4}, {"A*B", 19.0}, {"A*C", 11.4}, {"B*C", -9.6}},
        1e-9);
    EXPECT_EQ(fit.ResidualDegreesOfFreedom(), 9);
}

// Lenth (2009), J. Statistical Software 32(7): the second-order fit with its block effect, there
// told as the difference between the blocks and with the first block's constant.
TEST(ModelFit, GivesThePublishedCoefficientsOfTheBlockedReaction) {
    const ModelFit fit = FitOf(Example("chemical-reaction-ccd-2-blocks"));
    constexpr double kBlockDifference = -4.457530;
    ExpectCoefficients(fit,
                       {{"Constant", 84.095427 + kBlockDifference / 2.0},
                        {"$B[B2]", kBlockDifference / 2.0},
                        {"A", 0.932541},
                        {"B", 0.577712},
                        {"A*B", 0.125000},
                        {"A*A", -1.308555},
                        {"B*B", -0.933442}},
                       1e-6);
    EXPECT_NEAR(fit.RSquared(), 0.9981, 5e-5);
}

TEST(ModelFit, GivesThePublishedCoefficientsOfTheHelicopter) {
    ExpectCoefficients(FitOf(Example("paper-helicopter-ccd-blocked")),
                       {{"Constant", 372.8 - 2.95 / 2.0},
                        {"$B[2]", -2.95 / 2.0},
                        {"A", -1.0 / 12.0},
                        {"B", 61.0 / 12.0},
                        {"C", 0.25},
                        {"D", -73.0 / 12.0},
                        {"A*B", -2.875},
                        {"A*C", -3.75},
                        {"A*D", 4.375},
                        {"B*C", 4.625},
                        {"B*D", -1.5},
                        {"C*D", -2.125},
                        {"A*A", -2.0375},
                        {"B*B", -1.6625},
                        {"C*C", -2.5375},
                        {"D*D", -0.1625}},
                       1e-6);
}

/// The normal equations X'X b = X'y by Gaussian elimination with pivots: another road to the same
/// coefficients than the decomposition of the library.
std::vector<double> SolveNormalEquations(const std::vector<std::vector<double>>& rows,
                                         const std::vector<double>& values) {
    const std::size_t n = rows.front().size();
    std::vector<std::vector<long double>> system(n, std::vector<long double>(n + 1, 0.0L));
    for (std::size_t r = 0; r < rows.size(); ++r) {
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t j = 0; j < n; ++j) {
                system[i][j] += static_cast<long double>(rows[r][i]) * rows[r][j];
            }
            system[i][n] += static_cast<long double>(rows[r][i]) * values[r];
        }
    }
    for (std::size_t k = 0; k < n; ++k) {
        std::size_t pivot = k;
        for (std::size_t i = k + 1; i < n; ++i) {
            pivot = std::abs(system[i][k]) > std::abs(system[pivot][k]) ? i : pivot;
        }
        std::swap(system[k], system[pivot]);
        for (std::size_t i = 0; i < n; ++i) {
            if (i == k) {
                continue;
            }
            const long double ratio = system[i][k] / system[k][k];
            for (std::size_t j = k; j <= n; ++j) {
                system[i][j] -= ratio * system[k][j];
            }
        }
    }
    std::vector<double> solution;
    for (std::size_t k = 0; k < n; ++k) {
        solution.push_back(static_cast<double>(system[k][n] / system[k][k]));
    }
    return solution;
}

double Number(const StudyData& study, std::size_t run, const std::string& column) {
    const auto found = std::find(study.runs.columns.begin(), study.runs.columns.end(), column);
    return std::get<double>(
        study.runs.rows[run][static_cast<std::size_t>(found - study.runs.columns.begin())]);
}

TEST(ModelFit, AgreesWithTheNormalEquationsOfAMainEffectsModel) {
    const StudyData study = Example("electron-microscope-2-8-4");
    std::vector<std::vector<double>> rows;
    std::vector<double> values;
    for (std::size_t r = 0; r < study.runs.rows.size(); ++r) {
        std::vector<double>& row = rows.emplace_back(1, 1.0);
        for (const StudyFactor& factor : study.factors) {
            row.push_back((2.0 * Number(study, r, factor.name) - factor.low - factor.high) /
                          (factor.high - factor.low));
        }
        values.push_back(Number(study, r, "Thickness error"));
    }
    const std::vector<double> expected = SolveNormalEquations(rows, values);
    const ModelFit fit = FitOf(study);
    ASSERT_EQ(fit.Coefficients().size(), expected.size());
    for (std::size_t c = 0; c < expected.size(); ++c) {
        EXPECT_NEAR(fit.Coefficients()[c].value, expected[c], 1e-10);
    }
}

TEST(ModelFit, AgreesWithTheNormalEquationsOfALogarithm) {
    const StudyData study = Example("wool-yarn-3-level-log-response");
    std::vector<std::vector<double>> rows;
    std::vector<double> values;
    for (std::size_t r = 0; r < study.runs.rows.size(); ++r) {
        rows.push_back({1.0, (Number(study, r, "Length") - 300.0) / 50.0,
                        Number(study, r, "Amplitude") - 9.0,
                        (Number(study, r, "Load") - 45.0) / 5.0});
        values.push_back(std::log(Number(study, r, "Cycles to failure")));
    }
    const std::vector<double> expected = SolveNormalEquations(rows, values);
    const ModelFit fit = FitOf(study);
    double residual = 0.0;
    for (std::size_t c = 0; c < expected.size(); ++c) {
        EXPECT_NEAR(fit.Coefficients()[c].value, expected[c], 1e-10);
    }
    for (std::size_t r = 0; r < values.size(); ++r) {
        EXPECT_NEAR(fit.Observed()[r], values[r], 1e-14);
        residual += (values[r] - fit.Fitted()[r]) * (values[r] - fit.Fitted()[r]);
    }
    EXPECT_EQ(fit.ResidualDegreesOfFreedom(), 23);
    EXPECT_NEAR(fit.ResidualStandardDeviation(), std::sqrt(residual / 23.0), 1e-12);
    EXPECT_NEAR(fit.PredictResponse({300, 9, 45}), std::exp(fit.Predict({300, 9, 45})), 1e-9);
}

TEST(ModelFit, AgreesWithTheNormalEquationsOfABoundedMixture) {
    const StudyData study = Example("concrete-mixture-6-components-5-responses");
    for (std::size_t response = 0; response < study.responses.size(); ++response) {
        std::vector<std::vector<double>> rows;
        std::vector<double> values;
        for (std::size_t r = 0; r < study.runs.rows.size(); ++r) {
            std::vector<double>& row = rows.emplace_back();
            for (const StudyFactor& factor : study.factors) {
                row.push_back(Number(study, r, factor.name));
            }
            values.push_back(Number(study, r, study.responses[response].name));
        }
        const std::vector<double> expected = SolveNormalEquations(rows, values);
        const ModelFit fit = FitOf(study, response);
        for (std::size_t c = 0; c < expected.size(); ++c) {
            EXPECT_NEAR(fit.Coefficients()[c].value, expected[c], 1e-7 * std::abs(expected[c]));
        }
    }
}

TEST(ModelFit, FindsTheExactCoefficientsOfMadeUpValues) {
    std::mt19937 random(1);
    std::uniform_real_distribution<double> anywhere(-1.0, 1.0);
    StudyBuilder builder("exact");
    builder.Process("x", 10, 30).Qualitative("q", {"a", "b", "c"}).Process("y", -5, 5);
    builder.Response("z").Model({"A", "B", "C", "A*B", "A*C", "C^2", "A^2*C"});
    for (int run = 0; run < 40; ++run) {
        const double a = anywhere(random);
        const double c = anywhere(random);
        const int setting = run % 3;
        const double effect[] = {-0.5 - 0.25, 0.5, 0.25};
        const double slope[] = {-(2.0 - 1.0), 2.0, -1.0};
        const char* names[] = {"a", "b", "c"};
        const double z = 7.0 + 3.0 * a - 4.0 * c + effect[setting] + slope[setting] * a +
                         1.5 * a * c + 0.75 * c * c - 6.0 * a * a * c;
        builder.Run({20.0 + 10.0 * a, names[setting], 5.0 * c, z});
    }
    const ModelFit fit = FitOf(builder.Build()->Data());
    ExpectCoefficients(fit,
                       {{"Constant", 7.0},
                        {"A", 3.0},
                        {"B[b]", 0.5},
                        {"B[c]", 0.25},
                        {"C", -4.0},
                        {"A*B[b]", 2.0},
                        {"A*B[c]", -1.0},
                        {"A*C", 1.5},
                        {"C*C", 0.75},
                        {"A*A*C", -6.0}},
                       1e-10);
    EXPECT_NEAR(fit.RSquared(), 1.0, 1e-12);
    EXPECT_NEAR(fit.Predict({20.0, 1.0, 0.0}), 7.0 - 0.75, 1e-10);
    EXPECT_NEAR(fit.Predict({30.0, 3.0, 5.0}), 7.0 + 3.0 - 4.0 + 0.25 - 1.0 + 1.5 + 0.75 - 6.0,
                1e-10);
}

TEST(ModelFit, FitsPseudoComponentsWhereTheStudyHasThem) {
    StudyBuilder builder("pseudo");
    builder.MixtureTotal(200).PseudoComponents();
    builder.MixturePart("a", 20, 160).MixturePart("b", 40, 180);
    builder.Response("y").Model({"A", "B", "A*B"}, false);
    for (const double share : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        builder.Run({20 + 140 * share, 40 + 140 * (1 - share),
                     10 * share + 30 * (1 - share) + 8 * share * (1 - share)});
    }
    ExpectCoefficients(FitOf(builder.Build()->Data()), {{"A", 10.0}, {"B", 30.0}, {"A*B", 8.0}},
                       1e-10);
}

TEST(ModelFit, LeavesOutTheTermsThatEarlierTermsExplain) {
    StudyBuilder builder("aliased");
    builder.Process("a", 0, 2).Process("b", 0, 2).Response("y").Model({"A", "B", "A*B", "A^2"});
    builder.Run({0, 0, 1}).Run({2, 0, 3}).Run({0, 2, 5}).Run({2, 2, 11});
    const ModelFit fit = FitOf(builder.Build()->Data());
    ASSERT_EQ(fit.Coefficients().size(), 5U);
    EXPECT_TRUE(fit.Coefficients()[3].estimated);
    EXPECT_EQ(fit.Coefficients()[4].name, "A*A");
    EXPECT_FALSE(fit.Coefficients()[4].estimated);
    EXPECT_EQ(fit.Coefficients()[4].value, 0.0);
    EXPECT_NEAR(fit.Coefficients()[0].value, 5.0, 1e-12);
    EXPECT_EQ(fit.ResidualDegreesOfFreedom(), 0);
    EXPECT_EQ(fit.ResidualStandardDeviation(), kNotSet);
}

TEST(ModelFit, LeavesOutTheLastPartOfAMixtureBesideAnIntercept) {
    StudyBuilder builder("slack");
    builder.MixturePart("a", 0, 1).MixturePart("b", 0, 1).Response("y").Model({"A", "B"});
    builder.Run({0, 1, 2}).Run({1, 0, 4}).Run({0.5, 0.5, 3});
    const ModelFit fit = FitOf(builder.Build()->Data());
    EXPECT_TRUE(fit.Coefficients()[1].estimated);
    EXPECT_FALSE(fit.Coefficients()[2].estimated);
    EXPECT_NEAR(fit.Predict({0.25, 0.75}), 2.5, 1e-12);
}

TEST(ModelFit, CountsTheVariationOfAMixtureAboutItsMean) {
    StudyBuilder builder("blend");
    builder.MixturePart("a", 0, 1).MixturePart("b", 0, 1).Response("y").Model({"A", "B"}, false);
    builder.Run({0, 1, 100}).Run({1, 0, 104}).Run({0.5, 0.5, 103});
    // Total 8 + 2/3 about the mean 102 1/3; the straight line leaves 2/3.
    EXPECT_NEAR(FitOf(builder.Build()->Data()).RSquared(), 1.0 - (2.0 / 3.0) / (26.0 / 3.0), 1e-12);
}

TEST(ModelFit, CountsTheVariationOfRoundedPartsAboutTheMeanToo) {
    StudyBuilder builder("rounded blend");
    builder.MixturePart("a", 0, 1).MixturePart("b", 0, 1).Response("y").Model({"A", "B"}, false);
    builder.Run({0, 1, 100}).Run({1, 0, 104}).Run({0.5, 0.5004, 103});
    // As with the exact parts; about zero it would be all but 1.
    EXPECT_NEAR(FitOf(builder.Build()->Data()).RSquared(), 1.0 - (2.0 / 3.0) / (26.0 / 3.0), 0.01);
}

TEST(ModelFit, CountsTheVariationAboutZeroWithoutAnyConstant) {
    StudyBuilder builder("through zero");
    builder.Process("a", -1, 1).Response("y").Model({"A"}, false);
    builder.Run({-1, -1}).Run({1, 3});
    // The slope 2 leaves 1 + 1 of the 1 + 9 about zero.
    EXPECT_NEAR(FitOf(builder.Build()->Data()).RSquared(), 0.8, 1e-12);
}

TEST(ModelFit, HasNoShareOfAVariationThatIsNotThere) {
    StudyBuilder builder("level");
    builder.Process("a", -1, 1).Response("y").Model({"A"});
    builder.Run({-1, 0.1}).Run({0, 0.1}).Run({1, 0.1});
    EXPECT_EQ(FitOf(builder.Build()->Data()).RSquared(), kNotSet);
}

TEST(ModelFit, PassesOverRunsWithoutAValue) {
    StudyBuilder builder("gaps");
    builder.Process("a", -1, 1).Response("y").Model({"A"});
    builder.Run({-1, 1}).Run({0, nullptr}).Run({1, 5});
    const ModelFit fit = FitOf(builder.Build()->Data());
    EXPECT_EQ(fit.Runs(), (std::vector<std::size_t>{0, 2}));
    EXPECT_NEAR(fit.Predict({0}), 3.0, 1e-12);
}

TEST(ModelFit, IsNotFittedWithoutAnyValue) {
    StudyBuilder builder("empty");
    builder.Process("a", -1, 1).Response("y").Model({"A"});
    EXPECT_FALSE(FitOf(builder.Build()->Data()).IsFitted());
    builder.Run({0, nullptr});
    const ModelFit fit = FitOf(builder.Build()->Data());
    EXPECT_FALSE(fit.IsFitted());
    EXPECT_EQ(fit.Coefficients().size(), 2U);
    EXPECT_FALSE(fit.Coefficients()[0].estimated);
    EXPECT_EQ(fit.RSquared(), kNotSet);
}

TEST(ModelFit, RefusesAResponseWithoutAModel) {
    const StudyData study = StudyBuilder().Process("a", 0, 1).Response("y").Data();
    EXPECT_THROW(FitOf(study), InvalidArgument);
}

struct TransformRow {
    const char* name;
    StudyTransform transform;
    double value;
    double transformed;
};

class ModelFitTransform : public testing::TestWithParam<TransformRow> {};

TEST_P(ModelFitTransform, IsTakenBeforeTheFitAndUndoneAfterIt) {
    const TransformRow& row = GetParam();
    StudyBuilder builder("transformed");
    builder.Process("a", -1, 1).Response("y").Transform(row.transform).Model({"A"});
    builder.Run({-1, row.value}).Run({1, row.value});
    const ModelFit fit = FitOf(builder.Build()->Data());
    EXPECT_NEAR(fit.Observed()[0], row.transformed, 1e-12);
    EXPECT_NEAR(fit.Predict({0.5}), row.transformed, 1e-12);
    EXPECT_NEAR(fit.PredictResponse({0.5}), row.value, 1e-12);
}

std::string TransformName(const testing::TestParamInfo<TransformRow>& info) {
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(
    All, ModelFitTransform,
    testing::Values(TransformRow{"None", StudyTransform::None, 4.0, 4.0},
                    TransformRow{"NaturalLog", StudyTransform::NaturalLog, 4.0, std::log(4.0)},
                    TransformRow{"Log10", StudyTransform::Log10, 100.0, 2.0},
                    TransformRow{"SquareRoot", StudyTransform::SquareRoot, 4.0, 2.0},
                    TransformRow{"Reciprocal", StudyTransform::Reciprocal, 4.0, 0.25}),
    TransformName);

}  // namespace
}  // namespace kvopt
