#include "kvopt/study/favourite_setpoint.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/fake_study.h"

namespace kvopt {
namespace {

using test::FakeStudy;

using Floats = std::vector<float>;

int lastRun = 0;
int calls = 0;

Floats Calculated(const Investigation&, int run) {
    lastRun = run;
    return {static_cast<float>(++calls)};
}

TEST(FavouriteSetpoint, StartsFromTheMarkedSetpointBeforeAnyCalculation) {
    FakeStudy study;
    study.optimum = {1.0F, 2.0F};
    study.favouriteSetpoint.SetStart({3.0F, 4.0F});
    calls = 0;
    EXPECT_EQ(study.favouriteSetpoint.GetDefaultStart(Calculated), (Floats{3.0F, 4.0F}));
    EXPECT_EQ(calls, 0);
    study.favouriteSetpoint.SetStart({});
    EXPECT_EQ(study.favouriteSetpoint.GetDefaultStart(SimplexSetup::CalculateRequiredOnlyOptima),
              (Floats{1.0F, 2.0F}));
}

TEST(FavouriteSetpoint, CalculatesAfreshForThePresentRun) {
    const FakeStudy study;
    calls = 0;
    EXPECT_EQ(study.favouriteSetpoint.GetDefaultStart(Calculated), (Floats{1.0F}));
    EXPECT_EQ(lastRun, -1);
    EXPECT_EQ(study.favouriteSetpoint.GetDefaultStart(Calculated), (Floats{2.0F}));
    EXPECT_EQ(study.favouriteSetpoint.GetDefaultStart(nullptr), Floats());
    EXPECT_EQ(FavouriteSetpoint(nullptr).GetDefaultStart(Calculated), Floats());
    EXPECT_EQ(calls, 2);
}

TEST(FavouriteSetpoint, HasNoOptimumWithoutAnOptimizer) {
    const FakeStudy study;
    EXPECT_EQ(study.favouriteSetpoint.GetOptimalValue("Speed", study, FavouriteSetpoint::Favourite),
              kNotSetF);
    EXPECT_EQ(
        study.favouriteSetpoint.GetOptimalSetting("Colour", study, FavouriteSetpoint::Favourite),
        "");
}

TEST(FavouriteSetpoint, PassesTheHostsOptimumAndItsTypeThrough) {
    class Optimizer : public OptimizerQueries {
    public:
        float GetOptimalValue(const std::string& factor,
                              FavouriteSetpoint::OptimaType type) const override {
            return static_cast<float>(factor.size()) + 100.0F * static_cast<float>(type);
        }
        std::string GetOptimalSetting(const std::string& factor,
                                      FavouriteSetpoint::OptimaType type) const override {
            return factor + std::to_string(type);
        }
    };
    class Study : public FakeStudy {
    public:
        const OptimizerQueries* GetOptimizerQueries() const override { return &optimizer_; }

    private:
        Optimizer optimizer_;
    };
    const Study study;
    const auto type = static_cast<FavouriteSetpoint::OptimaType>(7);
    EXPECT_EQ(study.favouriteSetpoint.GetOptimalValue("Speed", study, type), 705.0F);
    EXPECT_EQ(study.favouriteSetpoint.GetOptimalSetting("Colour", study, type), "Colour7");
}

TEST(SimplexSetup, ForwardsToTheHostsOptimizer) {
    class Optimizer : public OptimizerQueries {
    public:
        Floats CalculateFactorContribution(const Floats& start) const override {
            return {start.at(0) * 2.0F};
        }
        Floats CalculateRequiredOnlyOptima(int run) const override {
            return {static_cast<float>(run)};
        }
    };
    class Study : public FakeStudy {
    public:
        const OptimizerQueries* GetOptimizerQueries() const override { return queries; }
        const OptimizerQueries* queries = nullptr;
    };
    Study study;
    EXPECT_EQ(SimplexSetup::CalculateFactorContribution(study, {1.0F}), Floats());
    EXPECT_EQ(SimplexSetup::CalculateRequiredOnlyOptima(study, 5), Floats());
    const Optimizer optimizer;
    study.queries = &optimizer;
    EXPECT_EQ(SimplexSetup::CalculateFactorContribution(study, {1.5F}), (Floats{3.0F}));
    EXPECT_EQ(SimplexSetup::CalculateRequiredOnlyOptima(study, 5), (Floats{5.0F}));
    const OptimizerQueries silent;
    study.queries = &silent;
    EXPECT_EQ(SimplexSetup::CalculateFactorContribution(study, {1.5F}), Floats());
    EXPECT_EQ(SimplexSetup::CalculateRequiredOnlyOptima(study, 5), Floats());
}

}  // namespace
}  // namespace kvopt
