#include "kvopt/host/study_builder.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "kvopt/text/exceptions.h"

namespace kvopt {
namespace {

std::string Refusal(const std::function<void()>& misuse) {
    try {
        misuse();
    } catch (const InvalidArgument& error) {
        return error.what();
    }
    return "nothing was refused";
}

TEST(StudyBuilder, BuildsAStudyInAFewLines) {
    const auto study = StudyBuilder("Yield of a reaction")
                           .Process("Time", 80, 90, "min")
                           .Qualitative("Solvent", {"Water", "Ethanol"})
                           .Response("Yield", "%")
                           .Limits(80, 100)
                           .Model({"A", "B", "A*B"})
                           .Run({80, "Water", 71.5})
                           .Run({90, "Ethanol", 78.0})
                           .Build();
    EXPECT_EQ(study->Data().name, "Yield of a reaction");
    EXPECT_EQ(study->GetVariables()->GetUnits("Time"), "min");
    EXPECT_EQ(study->GetVariables()->GetSetting("Solvent", 2), "Ethanol");
    EXPECT_EQ(study->GetResponseManager()->GetResponse("Yield")->GetHighLimit(), 100.0);
    ASSERT_NE(study->Fit("Yield"), nullptr);
    EXPECT_EQ(study->GetIniFileName(), "");
}

TEST(StudyBuilder, AbbreviatesFactorsByFreeLetters) {
    const auto study = StudyBuilder()
                           .Process("first", 0, 1)
                           .Process("second", 0, 1)
                           .Abbreviation("A")
                           .Process("third", 0, 1)
                           .Build();
    EXPECT_EQ(study->GetVariables()->GetNameFromAbbr("A"), "second");
    EXPECT_EQ(study->GetVariables()->GetNameFromAbbr("B"), "first");
    EXPECT_EQ(study->GetVariables()->GetNameFromAbbr("C"), "third");
}

TEST(StudyBuilder, GoesOnWithNumbersAfterTheLastLetter) {
    StudyBuilder builder;
    for (int f = 0; f < 28; ++f) {
        builder.Process("factor " + std::to_string(f), 0, 1);
    }
    const auto study = builder.Build();
    EXPECT_EQ(study->GetVariables()->GetNameFromAbbr("Z"), "factor 25");
    EXPECT_EQ(study->GetVariables()->GetNameFromAbbr("X27"), "factor 26");
    EXPECT_EQ(study->GetVariables()->GetNameFromAbbr("X28"), "factor 27");
}

TEST(StudyBuilder, MakesFactorsOfEveryKind) {
    const auto study = StudyBuilder()
                           .Process("p", 0, 1)
                           .Multilevel("m", {1, 2.5})
                           .Qualitative("q", {"a", "b"})
                           .Exclude("a")
                           .MixturePart("x", 0, 1)
                           .Filler("f", 0, 1)
                           .Discrete("d", {-1, 0, 1})
                           .Covariate("c", 0, 1)
                           .Process("fixed", 3, 3)
                           .Use(CEUse::Constant)
                           .Blocks({"1", "2"})
                           .Build();
    const Variables& variables = *study->GetVariables();
    EXPECT_EQ(variables.GetType("p"), CEType::Quantitative);
    EXPECT_EQ(variables.GetType("m"), CEType::Multilevel);
    EXPECT_EQ(variables.GetType("q"), CEType::Qualitative);
    EXPECT_EQ(variables.GetType("x"), CEType::Formulation);
    EXPECT_EQ(variables.GetType("f"), CEType::Filler);
    EXPECT_EQ(variables.GetType("d"), CEType::Discrete);
    EXPECT_EQ(variables.GetType("c"), CEType::Covariate);
    EXPECT_EQ(variables.GetUse("p"), CEUse::Controlled);
    EXPECT_EQ(variables.GetUse("c"), CEUse::Uncontrolled);
    EXPECT_EQ(variables.GetUse("fixed"), CEUse::Constant);
    EXPECT_EQ(variables.GetSetting("m", 2), "2.5");
    EXPECT_EQ(variables.GetFactor(std::string("q"))->GetIncludedSettings(), std::vector<int>{2});
    EXPECT_EQ(variables.GetType("$BlockV"), CEType::Qualitative);
    EXPECT_EQ(variables.GetNameFromAbbr("$B"), "$BlockV");
    EXPECT_TRUE(study->IsBlocked());
}

TEST(StudyBuilder, TakesTheValuesOfARunByFactorsResponsesAndLabels) {
    const auto study = StudyBuilder()
                           .Response("y")
                           .Process("a", 0, 1)
                           .DerivedResponse("y per a", {"y"})
                           .Label("who")
                           .Run({1, 2.5, "me"})
                           .Run({0, nullptr, nullptr})
                           .Build();
    EXPECT_EQ(study->Data().runs.columns, (std::vector<std::string>{"a", "y", "who"}));
    EXPECT_EQ(study->Data().runs.rows[0],
              (std::vector<StudyCell>{StudyCell(1.0), StudyCell(2.5), StudyCell("me")}));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(study->Data().runs.rows[1][1]));
}

TEST(StudyBuilder, GoesOnFromARecord) {
    StudyData data = StudyBuilder("first").Process("a", 0, 1).Data();
    const auto study = StudyBuilder(data).Process("b", 0, 1).Build();
    EXPECT_EQ(study->Data().name, "first");
    EXPECT_EQ(study->GetVariables()->GetCount(CEVar::AllFactors), 2);
}

TEST(StudyBuilder, RefusesToTellMoreOfWhatIsNotThere) {
    EXPECT_EQ(Refusal([] { StudyBuilder().Abbreviation("A"); }),
              "StudyBuilder::Abbreviation: there is no factor yet.");
    EXPECT_EQ(Refusal([] { StudyBuilder().Use(CEUse::Constant); }),
              "StudyBuilder::Use: there is no factor yet.");
    EXPECT_EQ(Refusal([] { StudyBuilder().Precision(1); }),
              "StudyBuilder::Precision: there is no factor yet.");
    EXPECT_EQ(Refusal([] { StudyBuilder().Exclude("a"); }),
              "StudyBuilder::Exclude: there is no factor yet.");
    EXPECT_EQ(Refusal([] { StudyBuilder().Qualitative("q", {"a"}).Exclude("b"); }),
              "StudyBuilder::Exclude: q has no setting b.");
    EXPECT_EQ(Refusal([] { StudyBuilder().Limits(0, 1); }),
              "StudyBuilder::Limits: there is no response yet.");
    EXPECT_EQ(Refusal([] { StudyBuilder().Model({"A"}); }),
              "StudyBuilder::Model: there is no response yet.");
    EXPECT_EQ(Refusal([] { StudyBuilder().Transform(StudyTransform::Log10); }),
              "StudyBuilder::Transform: there is no response yet.");
}

TEST(StudyBuilder, TellsWhatMakesNoStudyAndWhere) {
    EXPECT_EQ(Refusal([] { StudyBuilder().Process("a", 2, 1).Build(); }),
              "ReferenceStudy: /factors/0: expected a low that is not above the high 1, found the "
              "low 2");
    EXPECT_EQ(Refusal([] { StudyBuilder().Process("a", 0, 1).Response("a").Build(); }),
              "ReferenceStudy: /responses/0/name: expected a name that differs from that at "
              "/factors/0/name, found \"a\" again");
    EXPECT_EQ(Refusal([] {
                  StudyBuilder().Process("a", 0, std::numeric_limits<double>::infinity()).Build();
              }),
              "ReferenceStudy: /factors/0/high: expected a finite number, found inf");
    EXPECT_EQ(Refusal([] { StudyBuilder().Process("a", kNotSet, 1).Build(); }),
              "ReferenceStudy: /factors/0: expected the key \"low\", found a factor without it");
    EXPECT_EQ(Refusal([] {
                  StudyBuilder().Process("a", 0, 1).Run({1}).Run({1, 2}).Build();
              }),
              "ReferenceStudy: /runs/rows/1: expected a run of 1 values, found 2");
    EXPECT_EQ(Refusal([] {
                  StudyBuilder().Multilevel("a", {1, std::nan("")}).Build();
              }),
              "ReferenceStudy: /factors/0/settings/1: expected a number other than -99, found "
              "\"nan\"");
    EXPECT_EQ(Refusal([] { StudyBuilder().Blocks({"1"}).Use(CEUse::Constant).Build(); }),
              "ReferenceStudy: /factors/0: expected the type block for the factor \"$BlockV\", "
              "found another type or use");
}

}  // namespace
}  // namespace kvopt
