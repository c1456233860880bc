#include <gtest/gtest.h>

#include "kvopt/host.h"
#include "kvopt/stores.h"

namespace kvopt {
namespace {

double Part(const ReferenceStudy& study, const char* factor) {
    return study.GetVariables()->GetMixtureReferenceRegulated(factor, "", kNotSet, true);
}

double PartAt(const ReferenceStudy& study, const char* factor, const char* fixed, double amount) {
    return study.GetVariables()->GetMixtureReferenceRegulated(factor, fixed, amount, true);
}

TEST(ReferenceVariables, PutsEachPartAsFarFromTheMiddleOfItsBoundsAsTheTotalAsks) {
    // The middles add up to 90 of 100 and the ranges to 100: each part lies a tenth of its range
    // above its middle.
    const auto study = StudyBuilder()
                           .MixtureTotal(100)
                           .MixturePart("a", 0, 60)
                           .MixturePart("b", 20, 40)
                           .MixturePart("c", 20, 40)
                           .Build();
    EXPECT_NEAR(Part(*study, "a"), 36.0, 1e-12);
    EXPECT_NEAR(Part(*study, "b"), 32.0, 1e-12);
    EXPECT_NEAR(Part(*study, "c"), 32.0, 1e-12);
    EXPECT_EQ(study->GetVariables()->GetMixtureTotal(), 100.0);
}

TEST(ReferenceVariables, SharesTheRestInTheProportionsOfTheReference) {
    const auto study = StudyBuilder()
                           .MixtureTotal(100)
                           .MixturePart("a", 0, 60)
                           .MixturePart("b", 20, 40)
                           .MixturePart("c", 20, 40)
                           .Build();
    EXPECT_EQ(PartAt(*study, "a", "a", 20.0), 20.0);
    EXPECT_NEAR(PartAt(*study, "b", "a", 20.0), 40.0, 1e-12);
    EXPECT_NEAR(PartAt(*study, "a", "b", 66.0), 34.0 * 36.0 / 68.0, 1e-12);
    EXPECT_EQ(PartAt(*study, "a", "no part", 20.0), Part(*study, "a"));
    EXPECT_EQ(PartAt(*study, "a", "b", kNotSet), Part(*study, "a"));
}

TEST(ReferenceVariables, LeavesPartsThatAreHeldConstantWhereTheyAre) {
    const auto study = StudyBuilder()
                           .MixturePart("a", 0, 1)
                           .MixturePart("b", 0, 1)
                           .MixturePart("c", 0.2, 0.2)
                           .Use(CEUse::Constant)
                           .Build();
    EXPECT_NEAR(PartAt(*study, "c", "a", 0.7), 0.2, 1e-12);
    EXPECT_NEAR(PartAt(*study, "b", "a", 0.7), 0.1, 1e-12);
}

TEST(ReferenceVariables, TakesNothingAwayBelowZero) {
    const auto study = StudyBuilder().MixturePart("a", 0, 1).MixturePart("b", 0, 1).Build();
    EXPECT_EQ(PartAt(*study, "b", "a", 1.5), 0.0);
}

TEST(ReferenceVariables, SharesTheRestEquallyWhereTheReferenceHoldsNothing) {
    const auto study =
        StudyBuilder().MixturePart("a", 1, 1).MixturePart("b", 0, 0).MixturePart("c", 0, 0).Build();
    EXPECT_NEAR(PartAt(*study, "b", "a", 0.4), 0.3, 1e-12);
    EXPECT_NEAR(PartAt(*study, "c", "a", 0.4), 0.3, 1e-12);
}

StudyBuilder WithFiller() {
    StudyBuilder builder("filler");
    builder.MixturePart("a", 0.1, 0.3).MixturePart("b", 0.0, 0.2).Filler("water", 0.5, 0.9);
    return builder;
}

TEST(ReferenceVariables, TakesTheFillerAsTrueWhereNoModelNamesIt) {
    EXPECT_TRUE(
        WithFiller().Response("y").Model({"A", "B"}).Build()->GetVariables()->IstrueFiller());
    EXPECT_TRUE(WithFiller().Build()->GetVariables()->IstrueFiller());
    const auto scheffe = WithFiller().Response("y").Model({"A", "B", "C"}, false).Build();
    EXPECT_FALSE(scheffe->GetVariables()->IstrueFiller());
    EXPECT_TRUE(scheffe->GetVariables()->IsAnyFiller());
    const auto none = StudyBuilder().MixturePart("a", 0, 1).MixturePart("b", 0, 1).Build();
    EXPECT_FALSE(none->GetVariables()->IstrueFiller());
    EXPECT_FALSE(none->GetVariables()->IsAnyFiller());
}

TEST(ReferenceVariables, LetsATrueFillerAloneMakeUpTheRest) {
    const auto study = WithFiller().Response("y").Model({"A", "B"}).Build();
    EXPECT_NEAR(Part(*study, "a"), 0.2, 1e-12);
    EXPECT_NEAR(Part(*study, "b"), 0.1, 1e-12);
    EXPECT_NEAR(Part(*study, "water"), 0.7, 1e-12);
    EXPECT_NEAR(PartAt(*study, "b", "a", 0.3), 0.1, 1e-12);
    EXPECT_NEAR(PartAt(*study, "water", "a", 0.3), 0.6, 1e-12);
}

TEST(ReferenceVariables, SharesAmongAllPartsWhereTheTrueFillerCannotMakeUpTheRest) {
    StudyBuilder builder;
    builder.MixturePart("a", 0.2, 0.6).MixturePart("b", 0.2, 0.6).Filler("water", 0.3, 0.5);
    const auto study = builder.Build();
    // The middles leave 0.2 for the filler, below its bound.
    const double shift = (1.0 - 1.2) / 1.0;
    EXPECT_NEAR(Part(*study, "a"), 0.4 + shift * 0.4, 1e-12);
    EXPECT_NEAR(Part(*study, "water"), 0.4 + shift * 0.2, 1e-12);
}

TEST(ReferenceVariables, LeavesAmountsAloneWithoutPseudoComponents) {
    const auto study = StudyBuilder().MixturePart("a", 0.2, 0.8).MixturePart("b", 0.2, 0.8).Build();
    const FactorClass* a = study->GetVariables()->GetFactor(std::string("a"));
    EXPECT_EQ(study->GetVariables()->GetPseudoComponent(a, 0.3, true), 0.3);
    EXPECT_EQ(study->GetVariables()->GetPseudoComponent(a, 0.3, false), 0.3);
    EXPECT_EQ(study->GetVariables()->GetMixtureReferenceRegulated("a", "", kNotSet, false), 0.5);
}

TEST(ReferenceVariables, CountsPseudoComponentsAboveTheLowerBounds) {
    const auto study = StudyBuilder()
                           .PseudoComponents()
                           .MixturePart("a", 0.2, 0.7)
                           .MixturePart("b", 0.3, 0.8)
                           .Process("p", 0, 10)
                           .Build();
    const Variables& variables = *study->GetVariables();
    const FactorClass* a = variables.GetFactor(std::string("a"));
    EXPECT_NEAR(variables.GetPseudoComponent(a, 0.2, true), 0.0, 1e-12);
    EXPECT_NEAR(variables.GetPseudoComponent(a, 0.7, true), 1.0, 1e-12);
    EXPECT_NEAR(variables.GetPseudoComponent(a, 0.5, false), 0.45, 1e-12);
    EXPECT_EQ(variables.GetPseudoComponent(a, kNotSet, true), kNotSet);
    EXPECT_EQ(variables.GetPseudoComponent(nullptr, 0.5, true), 0.5);
    EXPECT_EQ(variables.GetPseudoComponent(variables.GetFactor(std::string("p")), 5.0, true), 5.0);
}

TEST(ReferenceVariables, TellsOneRowForEachBoundOfAConstraint) {
    const auto study = StudyBuilder()
                           .Process("a", 0, 10)
                           .Qualitative("q", {"x", "y"})
                           .Process("b", 0, 10)
                           .Constraint({{"a", 1.0}, {"b", 2.0}}, 3.0, 15.0)
                           .Constraint({{"b", 1.0}}, kNotSet, 8.0)
                           .Build();
    const FMatrix* matrix = study->GetVariables()->GetConstraints();
    ASSERT_NE(matrix, nullptr);
    EXPECT_EQ(matrix->rows, 3);
    EXPECT_EQ(matrix->columns, 4);
    EXPECT_EQ(matrix->values, (std::vector<float>{1, 0, 2, 15, -1, 0, -2, -3, 0, 0, 1, 8}));
    ASSERT_NE(study->GetConstraints(), nullptr);
    EXPECT_TRUE(study->GetConstraints()->HasConstraints("a"));
    EXPECT_FALSE(study->GetConstraints()->HasConstraints("q"));
    EXPECT_FALSE(study->GetConstraints()->HasConstraints("A"));
}

TEST(ReferenceVariables, HasNoConstraintsWithoutAny) {
    const auto study = StudyBuilder().Process("a", 0, 1).Build();
    EXPECT_EQ(study->GetVariables()->GetConstraints(), nullptr);
    EXPECT_EQ(study->GetConstraints(), nullptr);
}

TEST(ReferenceVariables, TakesTheOutermostLevelsAsTheRangeOfAFactorWithLevels) {
    const auto study = StudyBuilder().Multilevel("m", {1, 2, 8}).Discrete("d", {-1, 4}).Build();
    const FactorClass* m = study->GetVariables()->GetFactor(std::string("m"));
    EXPECT_EQ(m->GetLow(true), 1.0);
    EXPECT_EQ(m->GetHigh(true), 8.0);
    EXPECT_EQ(study->GetVariables()->GetFactor(std::string("d"))->GetHigh(true), 4.0);
}

TEST(ReferenceVariables, TellsWhetherAnyFactorScatters) {
    const auto sharp = StudyBuilder().Process("a", 0, 1).Build();
    EXPECT_FALSE(FactorClass::DoesAnyHaveDistribution(sharp->GetVariables()->GetAllFactors()));
    const auto blurred =
        StudyBuilder().Process("a", 0, 1).Process("b", 0, 1).Precision(0.1).Build();
    EXPECT_TRUE(FactorClass::DoesAnyHaveDistribution(blurred->GetVariables()->GetAllFactors()));
}

TEST(ReferenceVariables, TakesRandomAsABlockOnlyWhereTheBlockEffectIsRandom) {
    const auto fixed = StudyBuilder().Blocks({"Mon", "Tue"}).Build();
    EXPECT_TRUE(fixed->GetVariables()->LegalSetting("$BlockV", "Tue"));
    EXPECT_FALSE(fixed->GetVariables()->LegalSetting("$BlockV", "Random"));
    const auto random = StudyBuilder().Blocks({"Mon", "Tue"}).RandomBlocks().Build();
    EXPECT_TRUE(random->GetVariables()->LegalSetting("$BlockV", "Random"));
    EXPECT_FALSE(random->GetVariables()->LegalSetting("$BlockV", "random"));
    random->GetInvestigationSettings("Blocking", false)->WriteKey("FixedEffect", 1);
    EXPECT_FALSE(random->GetVariables()->LegalSetting("$BlockV", "Random"));
}

TEST(ReferenceVariables, KeepsDerivedResponsesOutOfTheOrdinaryOnes) {
    const auto study = StudyBuilder()
                           .Response("y", "g")
                           .DerivedResponse("d", {"y"})
                           .ExternalResponse("e", "kg")
                           .CombinedResponse("c", {"y"})
                           .Build();
    ASSERT_EQ(study->GetVariables()->GetAllResponses().size(), 1U);
    const ResponseManager& manager = *study->GetResponseManager();
    EXPECT_EQ(manager.GetResponses().size(), 4U);
    EXPECT_EQ(manager.GetResponse("y")->response, study->GetVariables()->GetAllResponses()[0]);
    EXPECT_EQ(manager.GetResponse("e")->response->GetUnits(), "kg");
    for (const auto type :
         {ResponseEx::Regular, ResponseEx::Derived, ResponseEx::Combined, ResponseEx::External}) {
        EXPECT_EQ(manager.GetCount(type), 1);
    }
    EXPECT_EQ(manager.GetIndex("c", ResponseEx::Any), 4);
    EXPECT_EQ(manager.GetIndex("c", ResponseEx::Combined), 1);
}

TEST(ReferenceVariables, KeepsNamesWithAnyCharacter) {
    const std::vector<std::string> names = {" blank at the ends ",
                                            "a=b;[c]#\"d\"\\e/f.g",
                                            "two\nlines",
                                            "\xE6\xB8\xA9\xE5\xBA\xA6 \xF0\x9F\x8C\xA1",
                                            "%s%d%1%",
                                            "\t"};
    for (const std::string& name : names) {
        const auto study = StudyBuilder(name)
                               .Process(name, 0, 1, name)
                               .Qualitative("q" + name, {name, "other"})
                               .Response("r" + name)
                               .Model({"A", "B"})
                               .Favourite("q" + name, name)
                               .Select({"r" + name})
                               .Run({0, name, 1})
                               .Run({1, "other", 2})
                               .Run({0, "other", 4})
                               .Build();
        EXPECT_TRUE(study->GetVariables()->IsFactor(name)) << name;
        EXPECT_EQ(study->GetVariables()->GetUnits(name), name);
        EXPECT_TRUE(study->GetVariables()->LegalSetting("q" + name, name)) << name;
        EXPECT_NE(study->Fit("r" + name), nullptr) << name;
        EXPECT_EQ(study->GetFirstSelectedResponse(SelectResponseBase::Ordinary), "r" + name);
        EXPECT_EQ(study->favouriteSetpoint.GetOptimalSetting("q" + name, *study,
                                                             FavouriteSetpoint::Favourite),
                  name);
    }
}

}  // namespace
}  // namespace kvopt
