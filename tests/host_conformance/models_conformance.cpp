#include <algorithm>

#include "host_conformance/host_conformance.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {
namespace {

TEST_P(HostConformance, AnswersTheSameByFactorAndByName) {
    for (const FactorClass* factor : Factors()) {
        for (const bool inModel : {false, true}) {
            for (const bool fittedOnly : {false, true}) {
                EXPECT_EQ(Models().IsFactorAvailable(factor, inModel, fittedOnly),
                          Models().IsFactorAvailable(factor->GetName(), inModel, fittedOnly))
                    << factor->GetName();
            }
        }
    }
    EXPECT_FALSE(Models().IsFactorAvailable(UnknownName(), true, false));
    EXPECT_FALSE(Models().IsFactorAvailable(static_cast<const FactorClass*>(nullptr), true, false));
    EXPECT_FALSE(Models().IsResponseAvailable(UnknownName(), false));
    EXPECT_FALSE(Models().IsVariableAvailable(UnknownName()));
    EXPECT_FALSE(Models().IsInAnyModel(0));
}

TEST_P(HostConformance, OffersEveryControlledFactorOfAModel) {
    for (const FactorClass* factor : Factors()) {
        if (Models().IsInAnyModel(factor->index) && factor->factorValue.type != CEType::Filler) {
            EXPECT_TRUE(Models().IsFactorAvailable(factor, true, false)) << factor->GetName();
        }
        if (Models().IsFactorAvailable(factor, true, true)) {
            EXPECT_TRUE(Models().IsFactorAvailable(factor, true, false)) << factor->GetName();
        }
    }
}

TEST_P(HostConformance, OffersNoFillerToPlots) {
    for (const FactorClass* factor : Factors()) {
        if (factor->factorValue.type == CEType::Filler && Models().HasModel()) {
            EXPECT_FALSE(Models().IsFactorAvailable(factor, true, false)) << factor->GetName();
        }
    }
}

TEST_P(HostConformance, CountsTheFactorsThatItOffers) {
    int process = 0;
    int mixture = 0;
    int qualitative = 0;
    for (const FactorClass* factor : Factors()) {
        if (factor->factorValue.type == CEType::Filler ||
            !Models().IsFactorAvailable(factor, true, false)) {
            continue;
        }
        (factor->IsMixture() ? mixture : process) += 1;
        qualitative += factor->IsQualitative() ? 1 : 0;
    }
    EXPECT_EQ(Models().GetUsedCount(CEVar::MixtureFactors, kNoLimit), mixture);
    EXPECT_EQ(Models().GetUsedCount(CEVar::ProcessFactors, kNoLimit), process);
    EXPECT_EQ(Models().GetUsedCount(CEVar::AllFactors, kNoLimit), process + mixture);
    EXPECT_EQ(MVAUtilities::CountQualFac(study.get()), qualitative);
}

TEST_P(HostConformance, CountsNoFurtherThanTheLimit) {
    const int used = Models().GetUsedCount(CEVar::AllFactors, kNoLimit);
    EXPECT_EQ(Models().GetUsedCount(CEVar::AllFactors, 0), 0);
    EXPECT_EQ(Models().GetUsedCount(CEVar::AllFactors, 1), std::min(used, 1));
}

TEST_P(HostConformance, HasAFitMethodExactlyWithAModel) {
    EXPECT_EQ(Models().HasModel(), Models().GetFitMethod(false) != CFitMethod::NotFitted);
    EXPECT_EQ(Models().HasModel(), Models().GetFitMethod(true) != CFitMethod::NotFitted);
}

TEST_P(HostConformance, NamesTheTermsOfTheCompleteModelByAbbreviations) {
    const std::shared_ptr<TermInfo> model = Models().CreateCompleteModel();
    ASSERT_NE(model, nullptr);
    EXPECT_EQ(model->GetINam(0), "");
    EXPECT_EQ(model->GetINam(model->GetNItm() + 1), "");
    const int first = Models().GetFitMethod(true) == CFitMethod::MixtureModel ? 1 : 2;
    for (int i = first; i <= model->GetNItm(); ++i) {
        const std::vector<std::string> parts = KvStdString::Split(model->GetINam(i), "*");
        EXPECT_FALSE(parts.empty());
        for (const std::string& part : parts) {
            const FactorClass* factor = variables.GetFactorFromAbbr(part);
            ASSERT_NE(factor, nullptr) << model->GetINam(i);
            EXPECT_TRUE(Models().IsInAnyModel(factor->index)) << model->GetINam(i);
        }
    }
}

TEST_P(HostConformance, GivesFitsOfItsOwnResponsesAlone) {
    EXPECT_EQ(study->GetFitInfo(UnknownName()), nullptr);
    const std::vector<const FitInfo*> infos = study->GetAllFitInfos();
    EXPECT_EQ(std::count(infos.begin(), infos.end(), nullptr), 0);
    std::vector<const FitInfo*> expected;
    for (const ResponseEx* response : Responses()) {
        const FitInfo* info = study->GetFitInfo(response->GetName());
        if (info == nullptr) {
            continue;
        }
        expected.push_back(info);
        EXPECT_TRUE(info->IsResponseAvailable(response->GetName(), false));
        EXPECT_FALSE(info->IsFactorAvailable(nullptr, response));
        for (const FactorClass* factor : Factors()) {
            if (info->IsFactorAvailable(factor, response) &&
                response->GetType() != ResponseEx::External) {
                EXPECT_TRUE(Models().IsFactorAvailable(factor, true, false)) << factor->GetName();
            }
        }
    }
    EXPECT_EQ(infos, expected);
}

TEST_P(HostConformance, StartsFromOneValueForEachFactorOrFromNone) {
    const std::vector<float>& start =
        study->favouriteSetpoint.GetDefaultStart(&SimplexSetup::CalculateRequiredOnlyOptima);
    EXPECT_TRUE(start.empty() || start.size() == Factors().size());
    const std::vector<float> contributions =
        SimplexSetup::CalculateFactorContribution(*study, start);
    EXPECT_TRUE(contributions.empty() || contributions.size() == Factors().size());
    EXPECT_EQ(study->favouriteSetpoint.GetOptimalValue(UnknownName(), *study,
                                                       FavouriteSetpoint::Favourite),
              kNotSetF);
    EXPECT_EQ(study->favouriteSetpoint.GetOptimalSetting(UnknownName(), *study,
                                                         FavouriteSetpoint::Favourite),
              "");
}

TEST_P(HostConformance, NamesALegalSettingForEachQualitativeFactorOfTheStart) {
    const std::vector<float>& start =
        study->favouriteSetpoint.GetDefaultStart(&SimplexSetup::CalculateRequiredOnlyOptima);
    const std::vector<FactorClass*> factors = Factors();
    for (std::size_t f = 0; f < start.size(); ++f) {
        if (factors[f]->IsQualitative() && start[f] != kNotSetF) {
            EXPECT_NE(factors[f]->GetSetting(static_cast<int>(start[f] + 0.5F)), "")
                << factors[f]->GetName();
        }
    }
}

TEST_P(HostConformance, TellsIntervalsOfNoUnknownResponse) {
    SuperResponsePredictor predictor(study.get());
    EXPECT_EQ(predictor.GetConfidenceDataType(), 0);
    EXPECT_EQ(predictor.GetResponseIndex(UnknownName()), 0);
    int position = 0;
    for (const ResponseEx* response : Responses()) {
        EXPECT_EQ(predictor.GetResponseIndex(response->GetName()), ++position);
    }
    predictor.SetResponse(position + 1);
    EXPECT_EQ(predictor.GetConfidenceDataType(), 0);
}

}  // namespace
}  // namespace kvopt
