#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "kvopt/host.h"

namespace kvopt {
namespace {

const std::string kFolder = std::string(KVOPT_SOURCE_DIR) + "/examples/studies/";

struct Example {
    const char* name;
    std::size_t runs;
    int processFactors;  ///< the block factor included
    int mixtureFactors;
    std::size_t responses;
    CFitMethod::FitMethod method;
    bool isBlocked;
};

void PrintTo(const Example& example, std::ostream* stream) {
    *stream << example.name;
}

class ExampleStudy : public testing::TestWithParam<Example> {};

TEST_P(ExampleStudy, HoldsThePublishedExperiment) {
    const Example& example = GetParam();
    const auto study = LoadStudy(kFolder + example.name + ".json");
    EXPECT_EQ(study->Data().runs.rows.size(), example.runs);
    EXPECT_EQ(study->GetVariables()->GetCount(CEVar::ProcessFactors), example.processFactors);
    EXPECT_EQ(study->GetVariables()->GetCount(CEVar::MixtureFactors), example.mixtureFactors);
    EXPECT_EQ(study->GetVariables()->GetAllResponses().size(), example.responses);
    EXPECT_EQ(ResponseModelUtilities(study.get()).GetFitMethod(false), example.method);
    EXPECT_EQ(study->IsBlocked(), example.isBlocked);
    EXPECT_NE(study->Data().source, "");
    EXPECT_EQ(study->GetIniFileName(), kFolder + example.name + ".ini");
    for (const StudyResponse& response : study->Data().responses) {
        const ModelFit* fit = study->Fit(response.name);
        ASSERT_NE(fit, nullptr) << response.name;
        EXPECT_GT(fit->RSquared(), 0.0) << response.name;
        EXPECT_LE(fit->RSquared(), 1.0) << response.name;
        for (const ModelFit::Coefficient& coefficient : fit->Coefficients()) {
            EXPECT_TRUE(coefficient.estimated) << coefficient.name;
        }
    }
}

TEST_P(ExampleStudy, RunsAtTheCodedLevelsOfItsFactors) {
    const StudyData study = ReadStudyFile(kFolder + GetParam().name + ".json");
    for (const StudyFactor& factor : study.factors) {
        const auto column =
            std::find(study.runs.columns.begin(), study.runs.columns.end(), factor.name) -
            study.runs.columns.begin();
        std::set<StudyCell> values;
        for (const auto& row : study.runs.rows) {
            values.insert(row[static_cast<std::size_t>(column)]);
        }
        if (factor.settings.empty()) {
            EXPECT_EQ(values.count(StudyCell(factor.low)), 1U) << factor.name;
            EXPECT_EQ(values.count(StudyCell(factor.high)), 1U) << factor.name;
        } else {
            EXPECT_EQ(values.size(), factor.settings.size()) << factor.name;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, ExampleStudy,
    testing::Values(
        Example{"cast-fatigue-plackett-burman-12", 12, 11, 0, 1, CFitMethod::LeastSquares, false},
        Example{"chemical-reaction-ccd-2-blocks", 14, 3, 0, 1, CFitMethod::LeastSquares, true},
        Example{"concrete-mixture-6-components-5-responses", 36, 0, 6, 5, CFitMethod::MixtureModel,
                false},
        Example{"electron-microscope-2-8-4", 16, 8, 0, 1, CFitMethod::LeastSquares, false},
        Example{"paper-helicopter-ccd-blocked", 30, 5, 0, 2, CFitMethod::LeastSquares, true},
        Example{"rubber-cure-lab-mix-temperature", 108, 4, 0, 1, CFitMethod::LeastSquares, true},
        Example{"snee-marquardt-8-component-screening", 20, 0, 8, 1, CFitMethod::MixtureModel,
                false},
        Example{"sonoluminescence-2-7-3", 16, 7, 0, 1, CFitMethod::LeastSquares, false},
        Example{"tire-tread-ccd-4-responses", 20, 3, 0, 4, CFitMethod::LeastSquares, false},
        Example{"vinyl-thickness-mixture-process", 40, 2, 3, 1, CFitMethod::MixtureModel, false},
        Example{"wool-yarn-3-level-log-response", 27, 3, 0, 1, CFitMethod::LeastSquares, false},
        Example{"yarn-elongation-simplex-lattice", 15, 0, 3, 1, CFitMethod::MixtureModel, false}),
    [](const testing::TestParamInfo<Example>& row) {
        std::string name = row.param.name;
        std::replace(name.begin(), name.end(), '-', '_');
        return name;
    });

TEST(ExampleStudies, AreAllInTheTable) {
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(kFolder)) {
        files += entry.path().extension() == ".json" ? 1 : 0;
    }
    EXPECT_EQ(files, 12U);
}

TEST(StudyFile, TellsWhichFileItCannotRead) {
    for (const std::string& name : {kFolder + "no such file.json", kFolder, std::string()}) {
        try {
            LoadStudy(name);
            FAIL() << "was taken";
        } catch (const FileError& error) {
            EXPECT_EQ(error.File(), name);
            EXPECT_NE(error.Reason(), "");
        }
    }
}

TEST(StudyFile, TakesAByteOrderMarkAndCountsNoColumnForIt) {
    const std::string mark = "\xEF\xBB\xBF";
    const std::string text =
        R"({"format": "kvopt-study", "version": 1, "name": "n", "factors": [], "responses": []})";
    EXPECT_EQ(ParseStudy(mark + text, "marked.json").name, "n");
    try {
        ParseStudy(mark + "{\"format\": 1}", "marked.json");
        FAIL() << "was taken";
    } catch (const FileFormatError& error) {
        EXPECT_EQ(error.Place(), "/format, line 1, column 12");
    }
}

TEST(StudyFile, CountsColumnsInCharacters) {
    try {
        ParseStudy("{\n  \"\xC3\xA9\xC3\xA9\": 1, \"format\": 1}", "accents.json");
        FAIL() << "was taken";
    } catch (const FileFormatError& error) {
        EXPECT_EQ(error.Place(), "/format, line 2, column 22");
    }
}

TEST(StudyFile, TellsThePlaceOfNamesWithSlashesAndTildes) {
    const std::string text =
        R"({"format": "kvopt-study", "version": 1, "name": "n", "factors": [], "responses": [],
 "settings": {"a/b~c": {"d\"e": [1]}}})";
    try {
        ParseStudy(text, "slashes.json");
        FAIL() << "was taken";
    } catch (const FileFormatError& error) {
        EXPECT_EQ(error.Place(), "/settings/a~1b~0c/d\"e, line 2, column 33");
    }
}

TEST(StudyFile, KeepsNamesWithAnyCharacter) {
    const StudyData study = ParseStudy(
        R"({"format": "kvopt-study", "version": 1, "name": "", "responses": [{"name": "\n=;"}],
            "factors": [{"name": " [a]=b; ", "type": "qualitative", "settings": [" ", "\u6e29"]}],
            "runs": {"columns": ["\n=;", " [a]=b; "], "rows": [[1, "\u6e29"], [null, " "]]}})",
        "odd.json");
    EXPECT_EQ(study.factors[0].name, " [a]=b; ");
    EXPECT_EQ(study.factors[0].settings[1].name, "\xE6\xB8\xA9");
    EXPECT_EQ(study.responses[0].name, "\n=;");
    EXPECT_EQ(std::get<std::string>(study.runs.rows[1][1]), " ");
}

TEST(StudyFile, ReadsWhatTheExamplesDoNotUse) {
    const StudyData study = ParseStudy(
        R"({"format": "kvopt-study", "version": 1, "name": "all", "locked": true,
            "mixtureTotal": 100, "pseudoComponents": true,
            "factors": [
              {"name": "c", "type": "covariate", "low": 0, "high": 1},
              {"name": "d", "type": "discrete", "settings": [1, {"name": 2, "included": false}],
               "precision": 0.5},
              {"name": "k", "type": "process", "low": 3, "high": 3, "use": "constant"},
              {"name": "f", "type": "filler", "low": 40, "high": 100},
              {"name": "x", "type": "mixture", "low": 0, "high": 60, "abbreviation": "Q"}],
            "responses": [
              {"name": "y", "limits": {"high": 4}, "transform": "square root"},
              {"name": "z", "type": "combined", "from": ["y"]},
              {"name": "w", "type": "external"}],
            "constraints": [{"coefficients": {"c": 2}, "low": 0.5}],
            "designSpace": {"confidenceLevel": "99 %", "toleranceProportion": "none",
                            "intervalType": "prediction", "resolution": 32, "simulations": 500,
                            "includeModelError": false, "includeFactorPrecision": false},
            "settings": {"S": {"flag": true, "number": 3, "share": 3.5, "text": "t"}}})",
        "all.json");
    EXPECT_TRUE(study.locked);
    EXPECT_TRUE(study.pseudoComponents);
    EXPECT_EQ(study.mixtureTotal, 100.0);
    EXPECT_EQ(study.factors[0].use, CEUse::Uncontrolled);
    EXPECT_EQ(study.factors[0].abbreviation, "A");
    EXPECT_EQ(study.factors[1].settings[1].name, "2");
    EXPECT_FALSE(study.factors[1].settings[1].included);
    EXPECT_EQ(study.factors[1].precision, 0.5);
    EXPECT_EQ(study.factors[2].use, CEUse::Constant);
    EXPECT_EQ(study.factors[4].abbreviation, "Q");
    EXPECT_EQ(study.responses[0].lowLimit, kNotSet);
    EXPECT_EQ(study.responses[0].highLimit, 4.0);
    EXPECT_FALSE(study.responses[0].hasModel);
    EXPECT_EQ(study.responses[1].type, ResponseEx::Combined);
    EXPECT_EQ(study.responses[2].type, ResponseEx::External);
    EXPECT_EQ(study.constraints[0].low, 0.5);
    EXPECT_EQ(study.constraints[0].high, kNotSet);
    ASSERT_TRUE(study.designSpace.has_value());
    EXPECT_EQ(study.designSpace->confidenceLevel, CConfLev::Level99);
    EXPECT_EQ(study.designSpace->toleranceProportion, CConfLev::None);
    EXPECT_EQ(study.designSpace->intervalType, CIntervalType::Prediction);
    EXPECT_EQ(study.designSpace->resolution, 32);
    EXPECT_EQ(study.designSpace->responseProfileSimulations, 500);
    EXPECT_FALSE(study.designSpace->includeModelError);
    EXPECT_FALSE(study.designSpace->includeFactorPrecision);
    EXPECT_TRUE(std::get<bool>(study.settings.at("S").at("flag")));
    EXPECT_EQ(std::get<int>(study.settings.at("S").at("number")), 3);
    EXPECT_EQ(std::get<double>(study.settings.at("S").at("share")), 3.5);
    EXPECT_EQ(std::get<std::string>(study.settings.at("S").at("text")), "t");
}

}  // namespace
}  // namespace kvopt
