#include <gtest/gtest.h>

#include "kvopt/host.h"

namespace kvopt {
namespace {

constexpr int kNoLimit = 2147483647;

/// Two fitted responses, one with a model and no values, one without a model.
std::unique_ptr<ReferenceStudy> SampleStudy() {
    StudyBuilder builder("sample");
    builder.Process("a", -1, 1).Process("b", -1, 1).Qualitative("c", {"x", "y"});
    builder.Process("unused", 0, 1);
    builder.Response("first").Model({"A"});
    builder.Response("second").Model({"C"});
    builder.Response("unfitted").Model({"B"});
    builder.Response("bare");
    builder.DerivedResponse("ratio", {"first", "second"});
    builder.DerivedResponse("vague", {"first", "unfitted"});
    builder.ExternalResponse("outside");
    builder.Run({-1, -1, "x", 0, 1, 2, nullptr, 5});
    builder.Run({1, -1, "y", 0, 2, 3, nullptr, 5});
    builder.Run({1, 1, "x", 0, 4, 3, nullptr, 5});
    return builder.Build();
}

bool Offers(const ReferenceStudy& study, const char* factor, bool inModel, bool fittedOnly) {
    return ResponseModelUtilities(&study).IsFactorAvailable(std::string(factor), inModel,
                                                            fittedOnly);
}

TEST(ReferenceModels, OffersTheFactorsThatAModelUses) {
    const auto study = SampleStudy();
    EXPECT_TRUE(Offers(*study, "a", true, false));
    EXPECT_TRUE(Offers(*study, "b", true, false));
    EXPECT_TRUE(Offers(*study, "c", true, false));
    EXPECT_FALSE(Offers(*study, "unused", true, false));
    EXPECT_TRUE(Offers(*study, "unused", false, false));
}

TEST(ReferenceModels, LeavesOutModelsWithoutAFitWhereAsked) {
    const auto study = SampleStudy();
    EXPECT_TRUE(Offers(*study, "a", true, true));
    EXPECT_FALSE(Offers(*study, "b", true, true));
    const ResponseModelUtilities models(study.get());
    EXPECT_TRUE(models.IsResponseAvailable("unfitted", false));
    EXPECT_FALSE(models.IsResponseAvailable("unfitted", true));
    EXPECT_FALSE(models.IsResponseAvailable("bare", false));
    EXPECT_TRUE(models.IsResponseAvailable("ratio", true));
    EXPECT_TRUE(models.IsResponseAvailable("vague", false));
    EXPECT_FALSE(models.IsResponseAvailable("vague", true));
    EXPECT_TRUE(models.IsResponseAvailable("outside", true));
}

TEST(ReferenceModels, TellsByIndexWhichFactorsStandInAModel) {
    const auto study = SampleStudy();
    const ResponseModelUtilities models(study.get());
    EXPECT_TRUE(models.IsInAnyModel(1));
    EXPECT_TRUE(models.IsInAnyModel(3));
    EXPECT_FALSE(models.IsInAnyModel(4));
    EXPECT_FALSE(models.IsInAnyModel(0));
    EXPECT_FALSE(models.IsInAnyModel(5));
}

TEST(ReferenceModels, FitsEachResponseByItsOwnModel) {
    const auto study = SampleStudy();
    const Variables& variables = *study->GetVariables();
    const ResponseManager& manager = *study->GetResponseManager();
    const FitInfo* first = study->GetFitInfo("first");
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(first->IsFitted());
    EXPECT_TRUE(first->IsFactorAvailable(variables.GetFactor(std::string("a")),
                                         manager.GetResponse("first")));
    EXPECT_FALSE(first->IsFactorAvailable(variables.GetFactor(std::string("c")),
                                          manager.GetResponse("first")));
    EXPECT_EQ(study->GetFitInfo("unfitted"), nullptr);
    EXPECT_EQ(study->GetFitInfo("bare"), nullptr);
    EXPECT_EQ(study->GetFitInfo("vague"), nullptr);
    EXPECT_EQ(study->Fit("unfitted"), nullptr);
    EXPECT_EQ(study->Fit("ratio"), nullptr);
    EXPECT_EQ(study->GetAllFitInfos().size(), 4U);
}

TEST(ReferenceModels, OffersADerivedResponseTheFactorsOfItsSources) {
    const auto study = SampleStudy();
    const Variables& variables = *study->GetVariables();
    const FitInfo* ratio = study->GetFitInfo("ratio");
    ASSERT_NE(ratio, nullptr);
    EXPECT_TRUE(ratio->IsFactorAvailable(variables.GetFactor(std::string("a")), nullptr));
    EXPECT_TRUE(ratio->IsFactorAvailable(variables.GetFactor(std::string("c")), nullptr));
    EXPECT_FALSE(ratio->IsFactorAvailable(variables.GetFactor(std::string("b")), nullptr));
    const FitInfo* outside = study->GetFitInfo("outside");
    ASSERT_NE(outside, nullptr);
    EXPECT_TRUE(outside->IsFactorAvailable(variables.GetFactor(std::string("unused")), nullptr));
}

TEST(ReferenceModels, CountsWhatTheModelsUse) {
    const auto study = SampleStudy();
    const ResponseModelUtilities models(study.get());
    EXPECT_EQ(models.GetUsedCount(CEVar::AllFactors, kNoLimit), 3);
    EXPECT_EQ(models.GetUsedCount(CEVar::ProcessFactors, kNoLimit), 3);
    EXPECT_EQ(models.GetUsedCount(CEVar::MixtureFactors, kNoLimit), 0);
    EXPECT_EQ(models.GetUsedCount(CEVar::AllFactors, 2), 2);
    EXPECT_EQ(MVAUtilities::CountQualFac(study.get()), 1);
}

TEST(ReferenceModels, OffersEveryPartOfAMixtureButTheFiller) {
    const auto study = StudyBuilder()
                           .MixturePart("a", 0, 0.5)
                           .MixturePart("b", 0, 0.5)
                           .Filler("water", 0, 1)
                           .Response("y")
                           .Model({"A", "C"}, false)
                           .Build();
    EXPECT_TRUE(Offers(*study, "a", true, false));
    EXPECT_TRUE(Offers(*study, "b", true, false));
    EXPECT_FALSE(Offers(*study, "water", true, false));
    EXPECT_FALSE(Offers(*study, "a", true, true));
    const ResponseModelUtilities models(study.get());
    EXPECT_TRUE(models.IsInAnyModel(3));
    EXPECT_FALSE(models.IsInAnyModel(2));
    EXPECT_EQ(models.GetUsedCount(CEVar::MixtureFactors, kNoLimit), 2);
}

TEST(ReferenceModels, OffersEverythingWhereThereIsNoModelAtAll) {
    const auto study = StudyBuilder().Process("a", 0, 1).Response("y").Run({0, 1}).Build();
    const ResponseModelUtilities models(study.get());
    EXPECT_TRUE(Offers(*study, "a", true, false));
    EXPECT_TRUE(models.IsResponseAvailable("y", false));
    EXPECT_FALSE(models.HasModel());
    EXPECT_EQ(models.GetFitMethod(true), CFitMethod::NotFitted);
    EXPECT_EQ(models.GetUsedCount(CEVar::AllFactors, kNoLimit), 1);
}

StudyBuilder Blend() {
    StudyBuilder builder("blend");
    builder.MixturePart("a", 0, 1).MixturePart("b", 0, 1).Process("p", -1, 1);
    builder.Response("scheffe").Model({"A", "B", "A*B"}, false);
    builder.Response("plain").Model({"C", "C^2"});
    builder.Run({0, 1, -1, 1, 1}).Run({1, 0, 1, 2, 4}).Run({0.5, 0.5, 0, 3, 5});
    return builder;
}

TEST(ReferenceModels, TellsTheMethodOfTheResponsesInUse) {
    const auto study = Blend().Build();
    const ResponseModelUtilities models(study.get());
    EXPECT_EQ(models.GetFitMethod(false), CFitMethod::LeastSquares);
    study->SetSelectedResponses({"scheffe"});
    EXPECT_EQ(models.GetFitMethod(true), CFitMethod::MixtureModel);
    EXPECT_EQ(models.GetFitMethod(false), CFitMethod::LeastSquares);
    study->SetSelectedResponses({"plain", "scheffe"});
    EXPECT_EQ(models.GetFitMethod(true), CFitMethod::LeastSquares);
    study->SetSelectedResponses({});
    EXPECT_EQ(models.GetFitMethod(true), CFitMethod::LeastSquares);
}

std::vector<std::string> Terms(const ReferenceStudy& study) {
    const auto model = ResponseModelUtilities(&study).CreateCompleteModel();
    std::vector<std::string> names;
    for (int i = 1; i <= model->GetNItm(); ++i) {
        names.push_back(model->GetINam(i));
    }
    return names;
}

TEST(ReferenceModels, NamesTheTermsOfAllModelsWithPowersWrittenOut) {
    const auto study = Blend().Build();
    EXPECT_EQ(Terms(*study), (std::vector<std::string>{"Constant", "A", "B", "A*B", "C", "C*C"}));
    study->SetSelectedResponses({"scheffe"});
    EXPECT_EQ(Terms(*study), (std::vector<std::string>{"A", "B", "A*B", "C", "C*C"}));
}

TEST(ReferenceModels, NamesATermOnceHoweverItIsWritten) {
    const auto study = StudyBuilder()
                           .Process("a", 0, 1)
                           .Process("b", 0, 1)
                           .Response("y")
                           .Model({"B*A", " A ^2 * B"})
                           .Response("z")
                           .Model({"A*B", "A*B*A"})
                           .Build();
    EXPECT_EQ(Terms(*study), (std::vector<std::string>{"Constant", "A*B", "A*A*B"}));
}

TEST(ReferenceModels, HasIntervalsWhereAFitLeavesDegreesOfFreedom) {
    const auto study = Blend().Build();
    SuperResponsePredictor predictor(study.get());
    predictor.SetResponse(predictor.GetResponseIndex("scheffe"));
    EXPECT_EQ(predictor.GetConfidenceDataType(), 0);
    EXPECT_FALSE(PowerCalculator::CanCalculatePower(study.get()));
    const auto sample = SampleStudy();
    predictor = SuperResponsePredictor(sample.get());
    predictor.SetResponse(predictor.GetResponseIndex("first"));
    EXPECT_EQ(predictor.GetConfidenceDataType(), 2);
    predictor.SetResponse(predictor.GetResponseIndex("ratio"));
    EXPECT_EQ(predictor.GetConfidenceDataType(), 0);
    EXPECT_TRUE(PowerCalculator::CanCalculatePower(sample.get()));
}

}  // namespace
}  // namespace kvopt
