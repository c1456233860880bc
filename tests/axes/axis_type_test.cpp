#include "kvopt/axes/axis_type.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>

#include "axes/axes_study.h"

namespace kvopt::test {
namespace {

enum class Filter { Process, NonQualitative, NonFiller, Mixture, NonMixture };

std::unique_ptr<UseFactor> Make(Filter filter, const Variables* variables,
                                const Investigation* investigation) {
    switch (filter) {
        case Filter::Process:
            return std::make_unique<AxisType::AddProcessFactor>(variables, investigation);
        case Filter::NonQualitative:
            return std::make_unique<AxisType::AddNonQualitativeFactor>(variables, investigation);
        case Filter::NonFiller:
            return std::make_unique<AxisType::AddNonFiller>(variables, investigation);
        case Filter::Mixture:
            return std::make_unique<AxisType::AddMixtureFactor>(variables, investigation);
        case Filter::NonMixture:
            return std::make_unique<AxisType::AddNonMixtureFactor>(variables, investigation);
    }
    return nullptr;
}

/// One row of the table: a type and a use, and a letter a filter, in the order of Filter. 'B' is
/// the base test, 'F' the base test with a true filler and no without, '-' is no.
struct Row {
    int type;
    int use;
    const char* answers;
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << "type " << row.type << " use " << row.use;
}

class FilterTable : public testing::TestWithParam<Row> {};

TEST_P(FilterTable, AnswersByTypeUseAndModels) {
    const Row row = GetParam();
    for (int f = 0; f < 5; ++f) {
        const auto filter = static_cast<Filter>(f);
        const char answer = row.answers[f];
        for (const bool trueFiller : {false, true}) {
            const bool passes = answer == 'B' || (answer == 'F' && trueFiller);
            AxesStudy study;
            study.trueFiller = trueFiller;
            const FactorClass& factor = study.Add("F", static_cast<CEType::EType>(row.type),
                                                  static_cast<CEUse::EUse>(row.use));
            const std::string where = "filter " + std::to_string(f) +
                                      (trueFiller ? " with" : " without") + " true filler";

            EXPECT_EQ((*Make(filter, study.GetVariables(), nullptr))(&factor, true), passes)
                << where << ", no models";
            EXPECT_TRUE(study.questions.empty()) << where;

            EXPECT_EQ((*Make(filter, study.GetVariables(), &study))(&factor, true), passes)
                << where << ", available";
            study.unavailable.insert("F");
            EXPECT_FALSE((*Make(filter, study.GetVariables(), &study))(&factor, true))
                << where << ", not available";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, FilterTable,
                         testing::Values(Row{1, 1, "BBB-B"}, Row{2, 1, "BBB-B"}, Row{6, 1, "BBB-B"},
                                         Row{3, 1, "--B-B"}, Row{4, 1, "FBBBF"}, Row{5, 1, "-----"},
                                         Row{7, 1, "-BB-B"}, Row{8, 1, "-BB-B"}, Row{1, 2, "BBB-B"},
                                         Row{2, 2, "BBB-B"}, Row{6, 2, "BBB-B"}, Row{3, 2, "--B-B"},
                                         Row{4, 2, "FBBBF"}, Row{5, 2, "-----"}, Row{7, 2, "-BB-B"},
                                         Row{1, 3, "--B--"}, Row{2, 3, "--B--"}, Row{6, 3, "--B--"},
                                         Row{3, 3, "--B--"}, Row{4, 3, "--B--"}, Row{7, 3, "--B--"},
                                         Row{5, 3, "-----"}));

int Questions(Filter filter, CEType::EType type, bool trueFiller, bool available,
              CEUse::EUse use = CEUse::Controlled) {
    AxesStudy study;
    study.trueFiller = trueFiller;
    const FactorClass& factor = study.Add("F", type, use);
    if (!available) {
        study.unavailable.insert("F");
    }
    (*Make(filter, study.GetVariables(), &study))(&factor, true);
    return static_cast<int>(study.questions.size());
}

TEST(AddNonMixtureFactor, AsksTheModelsTwiceForAFactorThatPasses) {
    EXPECT_EQ(Questions(Filter::NonMixture, CEType::Quantitative, false, true), 2);
    EXPECT_EQ(Questions(Filter::NonMixture, CEType::Qualitative, false, true), 2);
    EXPECT_EQ(Questions(Filter::NonMixture, CEType::Formulation, true, true), 2);
}

TEST(AddNonMixtureFactor, AsksTheModelsOnceForAFactorThatFails) {
    EXPECT_EQ(Questions(Filter::NonMixture, CEType::Quantitative, false, false), 1);
    EXPECT_EQ(Questions(Filter::NonMixture, CEType::Formulation, false, true), 1);
}

TEST(AddNonMixtureFactor, DoesNotAskTheModelsOfAFillerOrAConstant) {
    EXPECT_EQ(Questions(Filter::NonMixture, CEType::Filler, false, true), 0);
    EXPECT_EQ(Questions(Filter::NonMixture, CEType::Quantitative, false, true, CEUse::Constant), 0);
}

TEST(FactorFilters, AskTheModelsOnceWhereTheyDecideAndNeverElsewhere) {
    for (const Filter filter : {Filter::Process, Filter::NonQualitative, Filter::NonFiller}) {
        EXPECT_EQ(Questions(filter, CEType::Quantitative, false, true), 1);
        EXPECT_EQ(Questions(filter, CEType::Filler, false, true), 0);
    }
    EXPECT_EQ(Questions(Filter::Mixture, CEType::Formulation, false, true), 1);
    EXPECT_EQ(Questions(Filter::Mixture, CEType::Quantitative, false, true), 0);
    EXPECT_EQ(Questions(Filter::Process, CEType::Formulation, false, true), 0);
}

TEST(FactorFilters, HandTheFlagOnAndNeverAskForFittedModels) {
    for (const bool flag : {false, true}) {
        AxesStudy study;
        const FactorClass& factor = study.Add("F", CEType::Quantitative);
        AxisType::AddProcessFactor(study.GetVariables(), &study)(&factor, flag);
        EXPECT_EQ(study.questions, (std::vector<FactorQuestion>{{"F", flag, false}}));
    }
}

TEST(FactorFilters, OfferAFormulationFactorEverywhereWithATrueFiller) {
    AxesStudy study;
    study.trueFiller = true;
    const FactorClass& part = study.Part("A");
    for (const Filter filter :
         {Filter::Process, Filter::NonQualitative, Filter::Mixture, Filter::NonMixture}) {
        EXPECT_TRUE((*Make(filter, study.GetVariables(), &study))(&part, true));
    }
}

TEST(FactorFilters, AreValues) {
    AxesStudy study;
    const FactorClass& part = study.Part("A");
    study.unavailable.insert("A");
    const AxisType::AddMixtureFactor strict(study.GetVariables(), &study);
    AxisType::AddMixtureFactor other(study.GetVariables(), nullptr);
    EXPECT_TRUE(other(&part, true));
    other = strict;
    EXPECT_FALSE(other(&part, true));
    const AxisType::AddNonMixtureFactor first(study.GetVariables(), &study);
    const AxisType::AddNonMixtureFactor copy(first);
    EXPECT_FALSE(copy(&part, true));
}

TEST(UseFactor, PassesEverythingWithoutAnInvestigation) {
    AxesStudy study;
    const FactorClass& filler = study.Add("F", CEType::Filler, CEUse::Constant);
    EXPECT_TRUE(UseFactor(nullptr)(&filler, true));
}

TEST(UseFactor, AsksTheModelsOfAnInvestigation) {
    AxesStudy study;
    const FactorClass& factor = study.Number("F", 0, 1);
    EXPECT_TRUE(UseFactor(&study)(&factor, true));
    study.unavailable.insert("F");
    EXPECT_FALSE(UseFactor(&study)(&factor, true));
}

}  // namespace
}  // namespace kvopt::test
