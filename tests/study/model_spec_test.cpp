#include "kvopt/study/model_spec.h"

#include <gtest/gtest.h>

#include "support/fake_study.h"

namespace kvopt {
namespace {

using test::FakeStudy;

TEST(ModelSpec, KnowsNothingWithoutAnInvestigation) {
    const ModelSpec spec(nullptr);
    ASSERT_NE(spec.GetFactors(), nullptr);
    EXPECT_FALSE(spec.GetFactors()->IsMixtureOnly());
    EXPECT_FALSE(spec.GetFactors()->IsProcessOnly());
    EXPECT_EQ(spec.GetBlockCount(0), 0);
    EXPECT_EQ(spec.GetDesign(), nullptr);
}

TEST(ModelSpec, TellsWhatKindsOfFactorsTheModelsHold) {
    FakeStudy study;
    const Factors& factors = *study.GetModelSpec()->GetFactors();
    EXPECT_FALSE(factors.IsMixtureOnly());
    EXPECT_FALSE(factors.IsProcessOnly());
    study.Part("Water");
    study.Filler("Sand");
    EXPECT_TRUE(factors.IsMixtureOnly());
    EXPECT_FALSE(factors.IsProcessOnly());
    study.Number("Speed");
    EXPECT_FALSE(factors.IsMixtureOnly());
    EXPECT_FALSE(factors.IsProcessOnly());
    study.unavailable = {"Speed"};
    EXPECT_TRUE(factors.IsMixtureOnly());
    study.unavailable = {"Water"};
    EXPECT_FALSE(factors.IsMixtureOnly());
    EXPECT_TRUE(factors.IsProcessOnly());
}

TEST(ModelSpec, CountsTheSettingsOfTheBlockEntry) {
    FakeStudy study;
    study.Number("Speed");
    EXPECT_EQ(study.GetModelSpec()->GetBlockCount(0), 0);
    study.Block(3);
    EXPECT_EQ(study.GetModelSpec()->GetBlockCount(0), 3);
}

}  // namespace
}  // namespace kvopt
