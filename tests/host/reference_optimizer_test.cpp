#include <gtest/gtest.h>

#include "kvopt/host.h"

namespace kvopt {
namespace {

std::vector<float> Contributions(const ReferenceStudy& study, const std::vector<float>& start) {
    return SimplexSetup::CalculateFactorContribution(study, start);
}

/// y = 10 + 3a - b, with c in no model.
StudyBuilder Plane() {
    StudyBuilder builder("plane");
    builder.Process("a", -1, 1).Process("b", -1, 1).Process("c", 0, 1);
    builder.Response("y").Model({"A", "B"});
    builder.Run({-1, -1, 0, 8}).Run({1, -1, 0, 14}).Run({-1, 1, 0, 6}).Run({1, 1, 0, 12});
    return builder;
}

TEST(ReferenceOptimizer, SharesTheEffectAmongTheFactorsOfTheModel) {
    const std::vector<float> shares = Contributions(*Plane().Build(), {0, 0, 0});
    ASSERT_EQ(shares.size(), 3U);
    EXPECT_NEAR(shares[0], 75.0F, 1e-4F);
    EXPECT_NEAR(shares[1], 25.0F, 1e-4F);
    EXPECT_EQ(shares[2], kNotSetF);
}

TEST(ReferenceOptimizer, LooksAtTheEffectsAroundTheStart) {
    // y = a * b: at b = 0 factor a does nothing.
    StudyBuilder builder("saddle");
    builder.Process("a", -1, 1).Process("b", -1, 1).Response("y").Model({"A*B"});
    builder.Run({-1, -1, 1}).Run({1, -1, -1}).Run({-1, 1, -1}).Run({1, 1, 1});
    const auto study = builder.Build();
    const std::vector<float> shares = Contributions(*study, {1, 0});
    EXPECT_NEAR(shares[0], 0.0F, 1e-4F);
    EXPECT_NEAR(shares[1], 100.0F, 1e-4F);
    EXPECT_NEAR(Contributions(*study, {1, 1})[0], 50.0F, 1e-4F);
}

TEST(ReferenceOptimizer, SeesTheBendOfAQuadratic) {
    // y = a^2 + b on the coded range: 1 of 3 for a, 2 of 3 for b.
    StudyBuilder builder("bend");
    builder.Process("a", -1, 1).Process("b", -1, 1).Response("y").Model({"A", "B", "A^2"});
    builder.Run({-1, -1, 0}).Run({0, -1, -1}).Run({1, -1, 0}).Run({-1, 1, 2}).Run({0, 1, 1});
    const std::vector<float> shares = Contributions(*builder.Build(), {0, 0});
    EXPECT_NEAR(shares[0], 100.0F / 3.0F, 1e-3F);
    EXPECT_NEAR(shares[1], 200.0F / 3.0F, 1e-3F);
}

TEST(ReferenceOptimizer, StartsInTheMiddleWhereTheStartSaysNothing) {
    StudyBuilder builder("saddle");
    builder.Process("a", 0, 10).Process("b", 0, 10).Response("y").Model({"A", "B", "A*B"});
    builder.Run({0, 0, 1}).Run({10, 0, 5}).Run({0, 10, 2}).Run({10, 10, 9});
    const auto study = builder.Build();
    EXPECT_EQ(Contributions(*study, {kNotSetF, kNotSetF}), Contributions(*study, {5, 5}));
}

TEST(ReferenceOptimizer, TakesTheMeanOfTheFittedResponses) {
    StudyBuilder builder("two");
    builder.Process("a", -1, 1).Process("b", -1, 1);
    builder.Response("y").Model({"A"}).Response("z").Model({"A", "B"});
    builder.Response("unfitted").Model({"B"});
    builder.Run({-1, -1, 0, 0, nullptr}).Run({1, -1, 5, 2, nullptr}).Run({-1, 1, 0, 6, nullptr});
    const std::vector<float> shares = Contributions(*builder.Build(), {0, 0});
    EXPECT_NEAR(shares[0], (100.0F + 25.0F) / 2.0F, 1e-4F);
    EXPECT_NEAR(shares[1], 75.0F / 2.0F, 1e-4F);
}

TEST(ReferenceOptimizer, MovesAPartOfTheMixtureWithTheOthersInProportion) {
    // y = 10a + 20b + 60c: from the middle, a rising to 1 drops the rest 2 : 1.
    StudyBuilder builder("blend");
    builder.MixturePart("a", 0, 1).MixturePart("b", 0, 1).MixturePart("c", 0, 1);
    builder.Response("y").Model({"A", "B", "C"}, false);
    builder.Run({1, 0, 0, 10}).Run({0, 1, 0, 20}).Run({0, 0, 1, 60});
    const auto study = builder.Build();
    const std::vector<float> start = {0.25F, 0.5F, 0.25F};
    const double a = 100.0 / 3.0 - 10.0;                // b and c at 2/3 and 1/3, against a alone
    const double b = 35.0 - 20.0;                       // a and c at 1/2 each, against b alone
    const double c = 60.0 - (10.0 / 3.0 + 40.0 / 3.0);  // against a and b at 1/3 and 2/3
    const std::vector<float> shares = Contributions(*study, start);
    EXPECT_NEAR(shares[0], 100.0 * a / (a + b + c), 1e-3);
    EXPECT_NEAR(shares[1], 100.0 * b / (a + b + c), 1e-3);
    EXPECT_NEAR(shares[2], 100.0 * c / (a + b + c), 1e-3);
}

TEST(ReferenceOptimizer, MovesAQualitativeFactorThroughItsIncludedSettings) {
    StudyBuilder builder("settings");
    builder.Qualitative("q", {"x", "y", "far"}).Exclude("far").Process("a", -1, 1);
    builder.Response("z").Model({"A", "B"});
    builder.Run({"x", -1, 0}).Run({"y", -1, 2}).Run({"far", -1, 50}).Run({"x", 1, 2});
    const std::vector<float> shares = Contributions(*builder.Build(), {1, 0});
    EXPECT_NEAR(shares[0], 50.0F, 1e-3F);
    EXPECT_NEAR(shares[1], 50.0F, 1e-3F);
}

TEST(ReferenceOptimizer, GivesNothingToFactorsThatDoNotVary) {
    StudyBuilder builder("constant");
    builder.Process("a", -1, 1).Process("b", -1, 1).Use(CEUse::Constant);
    builder.Response("y").Model({"A", "B"});
    builder.Run({-1, -1, 0}).Run({1, -1, 1}).Run({1, 1, 5});
    const std::vector<float> shares = Contributions(*builder.Build(), {0, 0});
    EXPECT_NEAR(shares[0], 100.0F, 1e-4F);
    EXPECT_EQ(shares[1], kNotSetF);
}

TEST(ReferenceOptimizer, HasNoAnswerWithoutAStartOrAFit) {
    EXPECT_TRUE(Contributions(*Plane().Build(), {}).empty());
    EXPECT_TRUE(Contributions(*Plane().Build(), {0, 0}).empty());
    const auto unfitted = StudyBuilder().Process("a", 0, 1).Response("y").Model({"A"}).Build();
    EXPECT_TRUE(Contributions(*unfitted, {0}).empty());
}

TEST(ReferenceOptimizer, StartsFromTheFavouriteOfTheRecord) {
    const auto study = StudyBuilder()
                           .Process("a", 0, 10)
                           .Qualitative("q", {"x", "y"})
                           .Process("b", 0, 1)
                           .Favourite("a", 7)
                           .Favourite("q", "y")
                           .Build();
    const FavouriteSetpoint& favourite = study->favouriteSetpoint;
    EXPECT_EQ(favourite.GetDefaultStart(&SimplexSetup::CalculateRequiredOnlyOptima),
              (std::vector<float>{7.0F, 2.0F, kNotSetF}));
    const auto type = FavouriteSetpoint::Favourite;
    EXPECT_EQ(favourite.GetOptimalValue("a", *study, type), 7.0F);
    EXPECT_EQ(favourite.GetOptimalSetting("q", *study, type), "y");
    EXPECT_EQ(favourite.GetOptimalValue("b", *study, type), kNotSetF);
    EXPECT_EQ(favourite.GetOptimalValue("q", *study, type), kNotSetF);
    EXPECT_EQ(favourite.GetOptimalSetting("a", *study, type), "");
    EXPECT_EQ(favourite.GetOptimalValue("a", *study, FavouriteSetpoint::AllResponses), kNotSetF);
    EXPECT_EQ(favourite.GetOptimalSetting("q", *study, FavouriteSetpoint::RequiredOnly), "");
}

TEST(ReferenceOptimizer, FollowsAFavouriteThatIsMarkedLater) {
    const auto study = StudyBuilder().Process("a", 0, 10).Qualitative("q", {"x", "y"}).Build();
    EXPECT_TRUE(study->favouriteSetpoint.GetDefaultStart(&SimplexSetup::CalculateRequiredOnlyOptima)
                    .empty());
    study->favouriteSetpoint.SetStart({3.0F, 1.0F});
    const auto type = FavouriteSetpoint::Favourite;
    EXPECT_EQ(study->favouriteSetpoint.GetOptimalValue("a", *study, type), 3.0F);
    EXPECT_EQ(study->favouriteSetpoint.GetOptimalSetting("q", *study, type), "x");
    study->favouriteSetpoint.SetStart({3.0F, 9.0F});
    EXPECT_EQ(study->favouriteSetpoint.GetOptimalSetting("q", *study, type), "");
}

}  // namespace
}  // namespace kvopt
