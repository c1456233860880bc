#include "kvopt/study/response_model_utilities.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "support/fake_study.h"

namespace kvopt {
namespace {

using test::FakeStudy;

constexpr int kNoLimit = std::numeric_limits<int>::max();

/// A study whose host gives no models at all.
class SilentStudy : public FakeStudy {
public:
    const ModelQueries* GetModelQueries() const override { return nullptr; }
    const OptimizerQueries* GetOptimizerQueries() const override { return nullptr; }
};

/// A study that knows nothing but its lists.
class PlainStudy : public FakeStudy {
public:
    const ModelQueries* GetModelQueries() const override {
        return Investigation::GetModelQueries();
    }
};

template <class Study>
void Fill(Study& study) {
    study.Number("Speed");
    study.Names("Colour", {"red", "green"});
    study.Part("Water");
    study.Filler("Sand");
    study.Response("Yield");
    study.ExtraResponse("Profit");
}

void ExpectNothing(const ResponseModelUtilities& models) {
    EXPECT_FALSE(models.HasModel());
    EXPECT_EQ(models.GetFitMethod(true), CFitMethod::NotFitted);
    EXPECT_EQ(models.GetUsedCount(CEVar::AllFactors, kNoLimit), 0);
    EXPECT_FALSE(models.IsFactorAvailable("Speed", true, false));
    EXPECT_FALSE(models.IsResponseAvailable("Yield", false));
    EXPECT_FALSE(models.IsVariableAvailable("Speed"));
    EXPECT_FALSE(models.IsInAnyModel(1));
    ASSERT_NE(models.CreateCompleteModel(), nullptr);
    EXPECT_EQ(models.CreateCompleteModel()->GetNItm(), 0);
}

TEST(ResponseModelUtilities, KnowNothingWithoutAnInvestigation) {
    const ResponseModelUtilities models(nullptr);
    ExpectNothing(models);
    const FactorClass factor("Speed", 0.0, 1.0);
    EXPECT_FALSE(models.IsFactorAvailable(&factor, true, false));
    EXPECT_EQ(MVAUtilities::CountQualFac(nullptr), 0);
    EXPECT_FALSE(PowerCalculator::CanCalculatePower(nullptr));
    SuperResponsePredictor predictor(nullptr);
    EXPECT_EQ(predictor.GetResponseIndex("Yield"), 0);
    predictor.SetResponse(1);
    EXPECT_EQ(predictor.GetConfidenceDataType(), 0);
}

TEST(ResponseModelUtilities, KnowNothingOfAHostWithoutModels) {
    SilentStudy study;
    Fill(study);
    const ResponseModelUtilities models(&study);
    ExpectNothing(models);
    EXPECT_FALSE(models.IsFactorAvailable(study.GetVariables()->GetIndexFactor(1), true, false));
    EXPECT_EQ(MVAUtilities::CountQualFac(&study), 0);
    EXPECT_FALSE(PowerCalculator::CanCalculatePower(&study));
    SuperResponsePredictor predictor(&study);
    predictor.SetResponse(predictor.GetResponseIndex("Yield"));
    EXPECT_EQ(predictor.GetConfidenceDataType(), 0);
}

TEST(ResponseModelUtilities, MayPlotEverythingButTheFillerWhereNothingIsFitted) {
    PlainStudy study;
    Fill(study);
    const ResponseModelUtilities models(&study);
    EXPECT_FALSE(models.HasModel());
    EXPECT_EQ(models.GetFitMethod(true), CFitMethod::NotFitted);
    for (const char* name : {"Speed", "Colour", "Water"}) {
        EXPECT_TRUE(models.IsFactorAvailable(name, true, false)) << name;
        EXPECT_TRUE(models.IsFactorAvailable(name, false, false)) << name;
        EXPECT_FALSE(models.IsFactorAvailable(name, true, true)) << name;
    }
    EXPECT_FALSE(models.IsFactorAvailable("Sand", true, false));
    EXPECT_TRUE(models.IsFactorAvailable("Sand", false, false));
    EXPECT_FALSE(models.IsFactorAvailable("xx", true, false));
    const FactorClass* missing = nullptr;
    EXPECT_FALSE(models.IsFactorAvailable(missing, false, false));
    EXPECT_TRUE(models.IsResponseAvailable("Yield", false));
    EXPECT_TRUE(models.IsResponseAvailable("Profit", false));
    EXPECT_FALSE(models.IsResponseAvailable("Yield", true));
    EXPECT_FALSE(models.IsResponseAvailable("Speed", false));
    EXPECT_TRUE(models.IsInAnyModel(1));
    EXPECT_FALSE(models.IsInAnyModel(4));
    EXPECT_FALSE(models.IsInAnyModel(5));
    EXPECT_EQ(models.CreateCompleteModel()->GetNItm(), 0);
    EXPECT_FALSE(PowerCalculator::CanCalculatePower(&study));
    SuperResponsePredictor predictor(&study);
    predictor.SetResponse(1);
    EXPECT_EQ(predictor.GetConfidenceDataType(), 0);
}

TEST(ResponseModelUtilities, CountUsedFactorsWithoutTheFillerUpToTheLimit) {
    FakeStudy study;
    Fill(study);
    study.Number("Dose");
    const ResponseModelUtilities models(&study);
    EXPECT_EQ(models.GetUsedCount(CEVar::AllFactors, kNoLimit), 4);
    EXPECT_EQ(models.GetUsedCount(CEVar::ProcessFactors, kNoLimit), 3);
    EXPECT_EQ(models.GetUsedCount(CEVar::MixtureFactors, kNoLimit), 1);
    EXPECT_EQ(models.GetUsedCount(CEVar::ProcessFactors, 2), 2);
    EXPECT_EQ(models.GetUsedCount(CEVar::ProcessFactors, 0), 0);
    study.unavailable = {"Colour", "Water"};
    EXPECT_EQ(models.GetUsedCount(CEVar::AllFactors, kNoLimit), 2);
    EXPECT_EQ(models.GetUsedCount(CEVar::ProcessFactors, kNoLimit), 2);
    EXPECT_EQ(models.GetUsedCount(CEVar::MixtureFactors, kNoLimit), 0);
}

TEST(ResponseModelUtilities, ForwardToTheHostsModels) {
    FakeStudy study;
    Fill(study);
    study.hasModel = true;
    study.fitMethod = CFitMethod::PartialLeastSquares;
    study.terms = {"Constant", "Sp", "Sp*Wa"};
    study.unavailable = {"Speed", "Profit"};
    study.inNoModel = {"Speed"};
    const ResponseModelUtilities models(&study);
    EXPECT_TRUE(models.HasModel());
    EXPECT_EQ(models.GetFitMethod(true), CFitMethod::PartialLeastSquares);
    EXPECT_FALSE(models.IsFactorAvailable("Speed", true, false));
    EXPECT_FALSE(models.IsFactorAvailable(study.GetVariables()->GetIndexFactor(1), true, false));
    EXPECT_TRUE(models.IsFactorAvailable("Colour", true, false));
    EXPECT_FALSE(models.IsResponseAvailable("Profit", false));
    EXPECT_TRUE(models.IsResponseAvailable("Yield", false));
    EXPECT_FALSE(models.IsInAnyModel(1));
    EXPECT_TRUE(models.IsInAnyModel(2));
    const std::shared_ptr<TermInfo> terms = models.CreateCompleteModel();
    EXPECT_EQ(terms->GetNItm(), 3);
    EXPECT_EQ(terms->GetINam(1), "Constant");
    EXPECT_EQ(terms->GetINam(3), "Sp*Wa");
    EXPECT_EQ(terms->GetINam(0), "");
    EXPECT_EQ(terms->GetINam(4), "");
}

TEST(ResponseModelUtilities, PassTheFlagsOn) {
    class Asked : public ModelQueries {
    public:
        using ModelQueries::ModelQueries;
        bool IsFactorAvailable(const FactorClass* factor, bool inModel,
                               bool fittedOnly) const override {
            last = factor->GetName() + (inModel ? " in" : "") + (fittedOnly ? " fitted" : "");
            return false;
        }
        CFitMethod::FitMethod GetFitMethod(bool selectedOnly) const override {
            return selectedOnly ? CFitMethod::LeastSquares : CFitMethod::MixtureModel;
        }
        std::shared_ptr<TermInfo> CreateCompleteModel() const override { return nullptr; }
        mutable std::string last;
    };
    class Study : public FakeStudy {
    public:
        Study() : asked(this) {}
        const ModelQueries* GetModelQueries() const override { return &asked; }
        Asked asked;
    };
    Study study;
    Fill(study);
    const ResponseModelUtilities models(&study);
    models.IsFactorAvailable("Speed", true, false);
    EXPECT_EQ(study.asked.last, "Speed in");
    models.IsFactorAvailable("Water", false, true);
    EXPECT_EQ(study.asked.last, "Water fitted");
    EXPECT_EQ(models.GetFitMethod(true), CFitMethod::LeastSquares);
    EXPECT_EQ(models.GetFitMethod(false), CFitMethod::MixtureModel);
    ASSERT_NE(models.CreateCompleteModel(), nullptr);
    EXPECT_EQ(models.CreateCompleteModel()->GetNItm(), 0);
}

TEST(ResponseModelUtilities, TakeAVariableFromEitherList) {
    FakeStudy study;
    Fill(study);
    const ResponseModelUtilities models(&study);
    EXPECT_TRUE(models.IsVariableAvailable("Speed"));
    EXPECT_TRUE(models.IsVariableAvailable("Yield"));
    EXPECT_TRUE(models.IsVariableAvailable("Profit"));
    EXPECT_FALSE(models.IsVariableAvailable("xx"));
    study.unavailable = {"Speed", "Yield"};
    EXPECT_FALSE(models.IsVariableAvailable("Speed"));
    EXPECT_FALSE(models.IsVariableAvailable("Yield"));
}

TEST(MVAUtilities, CountTheQualitativeFactorsThatTheModelsUse) {
    FakeStudy study;
    Fill(study);
    study.Names("Shape", {"round", "square"});
    EXPECT_EQ(MVAUtilities::CountQualFac(&study), 2);
    study.inNoModel = {"Colour", "Speed"};
    EXPECT_EQ(MVAUtilities::CountQualFac(&study), 1);
}

TEST(SuperResponsePredictor, AsksTheHostForTheResponseThatWasSet) {
    FakeStudy study;
    Fill(study);
    study.confidenceDataType = 2;
    SuperResponsePredictor predictor(&study);
    EXPECT_EQ(predictor.GetConfidenceDataType(), 0);
    EXPECT_EQ(predictor.GetResponseIndex("Profit"), 2);
    EXPECT_EQ(predictor.GetResponseIndex("xx"), 0);
    predictor.SetResponse(2);
    EXPECT_EQ(predictor.GetConfidenceDataType(), 2);
    predictor.SetResponse(predictor.GetResponseIndex("xx"));
    EXPECT_EQ(predictor.GetConfidenceDataType(), 0);
}

TEST(PowerCalculator, AsksTheHost) {
    FakeStudy study;
    EXPECT_FALSE(PowerCalculator::CanCalculatePower(&study));
    study.canCalculatePower = true;
    EXPECT_TRUE(PowerCalculator::CanCalculatePower(&study));
}

TEST(ModelQueries, AnswerWithoutAnInvestigation) {
    const ModelQueries queries(nullptr);
    EXPECT_EQ(queries.GetUsedCount(CEVar::AllFactors, kNoLimit), 0);
    EXPECT_FALSE(queries.IsResponseAvailable("Yield", false));
    EXPECT_FALSE(queries.IsInAnyModel(1));
    EXPECT_FALSE(queries.IsFactorAvailable(nullptr, false, false));
}

TEST(ModelQueries, FindAFactorByItsIndexHoweverTheHostNumbersThem) {
    FakeStudy study;
    study.Filler("Sand").index = 1;
    study.Number("Speed").index = 1;
    study.Number("Heat").index = 7;
    study.Number("Time").index = 2;
    const ModelQueries queries(&study);
    EXPECT_TRUE(queries.IsInAnyModel(1)) << "the filler is no factor of a model, the other one is";
    EXPECT_TRUE(queries.IsInAnyModel(2));
    EXPECT_FALSE(queries.IsInAnyModel(3)) << "a place, but nobody's index";
    EXPECT_TRUE(queries.IsInAnyModel(7));
    EXPECT_FALSE(queries.IsInAnyModel(0));
}

TEST(FitInfo, IsNotFittedAndHidesNothingUnlessTheHostSaysSo) {
    const FitInfo fit;
    const FactorClass factor("Speed", 0.0, 1.0);
    EXPECT_FALSE(fit.IsFitted());
    EXPECT_EQ(fit.GetPLSModel(), nullptr);
    EXPECT_TRUE(fit.IsFactorAvailable(&factor, nullptr));
    EXPECT_TRUE(fit.IsResponseAvailable("Yield", true));
}

}  // namespace
}  // namespace kvopt
