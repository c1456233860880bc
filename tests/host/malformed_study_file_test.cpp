#include <gtest/gtest.h>

#include <string>

#include "kvopt/host.h"

namespace kvopt {
namespace {

/// A study with one of everything that a file can hold.
const std::string kSound = R"({
  "format": "kvopt-study",
  "version": 1,
  "name": "Everything",
  "source": "Made up",
  "notes": ["A note."],
  "locked": false,
  "mixtureTotal": 100,
  "pseudoComponents": false,
  "factors": [
    {"name": "Heat", "abbreviation": "H", "unit": "K", "type": "process", "low": 10, "high": 20},
    {"name": "Gas", "abbreviation": "G", "type": "qualitative",
     "settings": ["Air", {"name": "Neon", "included": false}]},
    {"name": "Plates", "abbreviation": "P", "type": "multilevel", "settings": [1, 2, 4]},
    {"name": "Sand", "abbreviation": "S", "type": "mixture", "low": 5, "high": 60},
    {"name": "Lime", "abbreviation": "L", "type": "mixture", "low": 30, "high": 80},
    {"name": "$BlockV", "abbreviation": "$B", "type": "block", "settings": ["Mon", "Tue"]}
  ],
  "responses": [
    {"name": "Glow", "unit": "cd", "limits": {"low": 1, "target": 5, "high": 9}, "transform": "ln",
     "model": {"intercept": true, "terms": ["$B", "H", "G", "H*G", "H^2"]}},
    {"name": "Ratio", "type": "derived", "from": ["Glow"]}
  ],
  "constraints": [{"coefficients": {"Heat": 1, "Sand": 2}, "high": 90}],
  "labels": ["Operator"],
  "designSpace": {"dpmoLimit": 100, "intervalType": "tolerance"},
  "favouriteSetpoint": {"Heat": 15, "Gas": "Air"},
  "selectedResponses": ["Glow"],
  "settings": {"Blocking": {"FixedEffect": false}},
  "runs": {
    "columns": ["Operator", "$BlockV", "Heat", "Gas", "Plates", "Sand", "Lime", "Glow"],
    "rows": [
      ["Ann", "Mon", 10, "Air", 1, 20, 80, 2.5],
      ["Bob", "Tue", 20, "Neon", 4, 60, 40, null]
    ]
  }
})";

struct Malformed {
    const char* name;
    std::string replaced;  ///< what of the sound text is replaced, the first time it stands there
    std::string by;
    std::string place;
    std::string expected;
    std::string found;  ///< empty: the words of the JSON parser, which are not ours
};

void PrintTo(const Malformed& row, std::ostream* stream) {
    *stream << row.name;
}

class MalformedStudyFile : public testing::TestWithParam<Malformed> {};

TEST(StudyFile, TakesTheStudyThatTheMalformedOnesAreMadeFrom) {
    const StudyData study = ParseStudy(kSound, "sound.json");
    EXPECT_EQ(study.factors.size(), 6U);
    EXPECT_EQ(study.runs.rows.size(), 2U);
}

/// Reads a text that may be no study; anything but a FileFormatError leaves the test.
bool IsTaken(const std::string& text) {
    try {
        ParseStudy(text, "mutated.json");
        return true;
    } catch (const FileFormatError&) {
        return false;
    }
}

TEST(StudyFile, RefusesAModelThatWouldFillTheMemory) {
    std::string settings;
    for (int s = 0; s < 50; ++s) {
        settings += (s == 0 ? "\"" : ", \"") + std::to_string(s) + "\"";
    }
    std::string factors;
    for (const char name : {'A', 'B', 'C', 'D', 'E', 'F'}) {
        factors += std::string(name == 'A' ? "" : ",") + "{\"name\": \"" + name +
                   "\", \"type\": \"qualitative\", \"settings\": [" + settings + "]}";
    }
    try {
        ParseStudy(R"({"format": "kvopt-study", "version": 1, "name": "n", "factors": [)" +
                       factors +
                       R"(], "responses": [{"name": "y", "model": {"terms": ["A*B*C*D*E*F"]}}]})",
                   "large.json");
        FAIL() << "was taken";
    } catch (const FileFormatError& error) {
        EXPECT_EQ(error.Place().substr(0, 27), "/responses/0/model/terms/0,");
        EXPECT_EQ(error.Expected(), "a model of at most 100000 coefficients");
        EXPECT_EQ(error.Found(), "more");
    }
}

TEST(StudyFile, IsRefusedWhereverItIsCutOff) {
    for (std::size_t length = 0; length < kSound.size(); ++length) {
        EXPECT_FALSE(IsTaken(kSound.substr(0, length))) << length;
    }
}

TEST(StudyFile, LetsNothingButItsOwnErrorOutOfMutatedTexts) {
    int taken = 0;
    for (const std::string put :
         {"", "\"", "{", "]", "-99", "1e308", "\\u0000", "\xC3", "null", "*^"}) {
        for (std::size_t at = 0; at < kSound.size(); ++at) {
            std::string text = kSound;
            text.replace(at, put.empty() ? 2 : 1, put);
            taken += IsTaken(text) ? 1 : 0;
        }
    }
    // Notes, units and the like may hold anything.
    EXPECT_GT(taken, 0);
}

TEST_P(MalformedStudyFile, IsRefusedWithItsPlaceWhatWasExpectedAndWhatWasFound) {
    const Malformed& row = GetParam();
    std::string text = kSound;
    const std::size_t at = text.find(row.replaced);
    ASSERT_NE(at, std::string::npos);
    text.replace(at, row.replaced.size(), row.by);
    try {
        ParseStudy(text, "folder/bad.json");
        FAIL() << "was taken";
    } catch (const FileFormatError& error) {
        EXPECT_EQ(error.File(), "folder/bad.json");
        EXPECT_EQ(error.Place(), row.place);
        EXPECT_EQ(error.Expected(), row.expected);
        if (row.found.empty()) {
            EXPECT_NE(error.Found(), "");
        } else {
            EXPECT_EQ(error.Found(), row.found);
        }
        EXPECT_EQ(std::string(error.what()), "folder/bad.json: " + row.place + ": expected " +
                                                 row.expected + ", found " + error.Found());
    }
}

std::string RowName(const testing::TestParamInfo<Malformed>& info) {
    return info.param.name;
}

const std::string kFormatLine = "\"format\": \"kvopt-study\",";

INSTANTIATE_TEST_SUITE_P(
    Document, MalformedStudyFile,
    testing::Values(
        Malformed{"EmptyText", kSound, "", "line 1, column 1", "a JSON document", ""},
        Malformed{"Truncated", kSound, kSound.substr(0, 60), "line 4, column 16", "a JSON document",
                  ""},
        Malformed{"ListForObject", kSound, "[1, 2]", "line 1, column 1", "an object",
                  "a list of 2"},
        Malformed{"TrailingComma", "\"name\": \"Everything\",", "\"name\": \"Everything\",,",
                  "line 4, column 24", "a JSON document", ""},
        Malformed{"KeyTwice", "\"locked\": false,", "\"locked\": false, \"locked\": true,",
                  "/locked, line 7, column 13", "each key of an object once",
                  "the key \"locked\" again"},
        Malformed{"MissingFormat", kFormatLine, "", "line 1, column 1", "the key \"format\"",
                  "an object without it"},
        Malformed{"OtherFormat", "\"kvopt-study\"", "\"kvopt-plot\"", "/format, line 2, column 13",
                  "the text \"kvopt-study\"", "the text \"kvopt-plot\""},
        Malformed{"LaterVersion", "\"version\": 1", "\"version\": 2", "/version, line 3, column 14",
                  "the version 1", "the number 2"},
        Malformed{"VersionAsText", "\"version\": 1", "\"version\": \"1\"",
                  "/version, line 3, column 14", "a whole number", "the text \"1\""},
        Malformed{"MissingName", "\"name\": \"Everything\",", "", "line 1, column 1",
                  "the key \"name\"", "an object without it"},
        Malformed{"NameAsNumber", "\"Everything\"", "7", "/name, line 4, column 11", "a text",
                  "the number 7"},
        Malformed{"UnknownKeyWithHint",
                  "\"responses\":", "\"response\":", "/response, line 19, column 15",
                  "only the keys format, version, name, source, notes, locked, mixtureTotal, "
                  "pseudoComponents, factors, responses, constraints, labels, designSpace, "
                  "favouriteSetpoint, selectedResponses, settings, runs",
                  "the key \"response\"; did you mean \"responses\"?"},
        Malformed{"NotesAsText", "[\"A note.\"]", "\"A note.\"", "/notes, line 6, column 12",
                  "a list", "the text \"A note.\""},
        Malformed{"LockedAsNumber", "\"locked\": false", "\"locked\": 0",
                  "/locked, line 7, column 13", "true or false", "the number 0"},
        Malformed{"TooDeep", "[\"A note.\"]", std::string(150, '[') + std::string(150, ']'),
                  "/notes, line 6, column 12", "objects and lists at most 100 deep",
                  "a deeper one"},
        Malformed{"BadUtf8", "A note.", "A \xFFnote.", "line 6, column 16", "a JSON document", ""},
        Malformed{"NumberTooLarge", "\"mixtureTotal\": 100", "\"mixtureTotal\": 1e999",
                  "line 8, column 23", "a JSON document", ""},
        Malformed{"NotANumber", "\"mixtureTotal\": 100", "\"mixtureTotal\": NaN",
                  "line 8, column 19", "a JSON document", ""}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Factors, MalformedStudyFile,
    testing::Values(
        Malformed{
            "FactorAsText",
            R"({"name": "Heat", "abbreviation": "H", "unit": "K", "type": "process", "low": 10, "high": 20})",
            R"("Heat")", "/factors/0, line 11, column 5", "an object", "the text \"Heat\""},
        Malformed{"MissingType", R"("type": "process", )", R"()", "/factors/0, line 11, column 5",
                  "the key \"type\"", "an object without it"},
        Malformed{"UnknownTypeWithHint", R"("process")", R"("proces")",
                  "/factors/0/type, line 11, column 64",
                  "one of the words process, multilevel, qualitative, mixture, filler, discrete, "
                  "covariate, block",
                  "\"proces\"; did you mean \"process\"?"},
        Malformed{"UnknownFactorKeyWithHint", R"("unit": "K")", R"("units": "K")",
                  "/factors/0/units, line 11, column 52",
                  "only the keys name, abbreviation, unit, type, use, low, high, precision",
                  "the key \"units\"; did you mean \"unit\"?"},
        Malformed{"NoFactorName", R"("name": "Heat", )", R"()", "/factors/0, line 11, column 5",
                  "the key \"name\"", "an object without it"},
        Malformed{"EmptyFactorName", R"("name": "Heat")", R"("name": "")",
                  "/factors/0/name, line 11, column 14", "a name", "an empty text"},
        Malformed{"FactorNameTwice", R"("name": "Lime")", R"("name": "Sand")",
                  "/factors/4/name, line 16, column 14",
                  "a name that differs from that at /factors/3/name", "\"Sand\" again"},
        Malformed{"FactorNamedLikeAResponse", R"("name": "Lime")", R"("name": "Glow")",
                  "/responses/0/name, line 20, column 14",
                  "a name that differs from that at /factors/4/name", "\"Glow\" again"},
        Malformed{"FactorNameWithNul", R"("name": "Lime")", R"("name": "Li\u0000me")",
                  "/factors/4/name, line 16, column 14", "a name without the character U+0000",
                  "\"Li\\u0000me\""},
        Malformed{"NameOfAnUnusedAxis", R"("name": "Lime")",
                  "\"name\": \"" + AxisInfo::GetNotUsedName() + "\"",
                  "/factors/4/name, line 16, column 14", "a name other than that of an unused axis",
                  "\"" + AxisInfo::GetNotUsedName() + "\""},
        Malformed{"AbbreviationTwice", R"("abbreviation": "L")", R"("abbreviation": "S")",
                  "/factors/4/abbreviation, line 16, column 38",
                  "an abbreviation that differs from that at /factors/3/abbreviation",
                  "\"S\" again"},
        Malformed{"AbbreviationWithStar", R"("abbreviation": "L")", R"("abbreviation": "L*M")",
                  "/factors/4/abbreviation, line 16, column 38",
                  "an abbreviation without *, ^ and blanks at its ends", "\"L*M\""},
        Malformed{"AbbreviationWithBlank", R"("abbreviation": "L")", R"("abbreviation": " L")",
                  "/factors/4/abbreviation, line 16, column 38",
                  "an abbreviation without *, ^ and blanks at its ends", "\" L\""},
        Malformed{"LowAboveHigh", R"("low": 10, "high": 20)", R"("low": 21, "high": 20)",
                  "/factors/0, line 11, column 5", "a low that is not above the high 20",
                  "the low 21"},
        Malformed{"LowAsText", R"("low": 10)", R"("low": "10")",
                  "/factors/0/low, line 11, column 82", "a number", "the text \"10\""},
        Malformed{"LowMissing", R"("low": 10, )", R"()", "/factors/0, line 11, column 5",
                  "the key \"low\"", "an object without it"},
        Malformed{"LowIsTheNotSetNumber", R"("low": 10)", R"("low": -99)",
                  "/factors/0/low, line 11, column 82",
                  "a number other than -99, which stands for nothing set", "the number -99"},
        Malformed{"SettingsOfAProcessFactor", R"("low": 10, "high": 20)", R"("settings": [1])",
                  "/factors/0/settings, line 11, column 87",
                  "only the keys name, abbreviation, unit, type, use, low, high, precision",
                  "the key \"settings\""},
        Malformed{"LowOfAQualitativeFactor", R"("type": "qualitative",)",
                  R"("type": "qualitative", "low": 1,)", "/factors/1/low, line 12, column 72",
                  "only the keys name, abbreviation, unit, type, use, settings, precision",
                  "the key \"low\""},
        Malformed{"NoSettings", R"(["Air", {"name": "Neon", "included": false}])", R"([])",
                  "/factors/1/settings, line 13, column 18", "at least one setting", "none"},
        Malformed{"SettingAsNumber", R"(["Air", {"name")", R"([3, {"name")",
                  "/factors/1/settings/0, line 13, column 19", "a text", "the number 3"},
        Malformed{"SettingTwice", R"("Neon")", R"("Air")",
                  "/factors/1/settings/1, line 13, column 26",
                  "a setting that differs from that at /factors/1/settings/0", "\"Air\" again"},
        Malformed{"NoIncludedSetting", R"(["Air", {"name": "Neon", "included": false}])",
                  R"([{"name": "Neon", "included": false}])",
                  "/factors/1/settings, line 13, column 18", "at least one included setting",
                  "none"},
        Malformed{"LevelsOutOfOrder", R"([1, 2, 4])", R"([1, 4, 2])",
                  "/factors/2/settings/2, line 14, column 86", "levels in ascending order", "2"},
        Malformed{"LevelAsText", R"([1, 2, 4])", R"([1, "2", 4])",
                  "/factors/2/settings/1, line 14, column 83", "a number", "the text \"2\""},
        Malformed{"UnknownUse", R"("type": "process")", R"("type": "process", "use": "control")",
                  "/factors/0/use, line 11, column 82",
                  "one of the words controlled, uncontrolled, constant",
                  "\"control\"; did you mean \"controlled\"?"},
        Malformed{"PrecisionNotAboveZero", R"("type": "process")",
                  R"("type": "process", "precision": 0)",
                  "/factors/0/precision, line 11, column 88", "a standard deviation above 0", "0"},
        Malformed{"PrecisionOfAQualitativeFactor", R"("type": "qualitative",)",
                  R"("type": "qualitative", "precision": 1,)",
                  "/factors/1/precision, line 12, column 78",
                  "a precision of a numeric factor only", "a qualitative factor"},
        Malformed{"BlockOfAnotherName", R"("name": "$BlockV")", R"("name": "Day")",
                  "/factors/5/name, line 17, column 14",
                  "the type \"block\" and the name \"$BlockV\" together", "the name \"Day\""},
        Malformed{"BlockNameOfAnotherType", R"("name": "Heat")", R"("name": "$BlockV")",
                  "/factors/0/name, line 11, column 14",
                  "the type \"block\" and the name \"$BlockV\" together", "the name \"$BlockV\""},
        Malformed{"TwoFillers", R"("type": "mixture", "low": 5, "high": 60},
    {"name": "Lime", "abbreviation": "L", "type": "mixture")",
                  R"("type": "filler", "low": 5, "high": 60},
    {"name": "Lime", "abbreviation": "L", "type": "filler")",
                  "/factors/4/type, line 16, column 51", "one filler at most", "a second one"},
        Malformed{"PartBeyondTheTotal", R"("high": 80})", R"("high": 180})",
                  "/factors/4, line 16, column 5", "bounds from 0 to the mixture total 100",
                  "30 to 180"},
        Malformed{"PartBelowZero", R"("low": 5, "high": 60)", R"("low": -5, "high": 60)",
                  "/factors/3, line 15, column 5", "bounds from 0 to the mixture total 100",
                  "-5 to 60"},
        Malformed{"BoundsThatMissTheTotal", R"("low": 30, "high": 80)", R"("low": 30, "high": 35)",
                  "/factors, line 10, column 14", "bounds that a mixture of 100 can keep",
                  "lows that add up to 35 and highs that add up to 95"},
        Malformed{"TotalOfZero", R"("mixtureTotal": 100)", R"("mixtureTotal": 0)",
                  "/mixtureTotal, line 8, column 19", "a total above 0", "0"}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Responses, MalformedStudyFile,
    testing::Values(
        Malformed{"ResponseNameTwice", R"("name": "Ratio")", R"("name": "Glow")",
                  "/responses/1/name, line 22, column 14",
                  "a name that differs from that at /responses/0/name", "\"Glow\" again"},
        Malformed{"MissingTerms", R"("intercept": true, "terms": ["$B", "H", "G", "H*G", "H^2"])",
                  R"("intercept": true)", "/responses/0/model, line 21, column 15",
                  "the key \"terms\"", "an object without it"},
        Malformed{"UnknownAbbreviationInATerm", R"("H*G")", R"("H*Q")",
                  "/responses/0/model/terms/3, line 21, column 61",
                  "abbreviations of factors (H, G, P, S, L, $B) joined by *",
                  "\"Q\" in the term \"H*Q\""},
        Malformed{"NameForAbbreviationInATerm", R"("H*G")", R"("Heat")",
                  "/responses/0/model/terms/3, line 21, column 61",
                  "abbreviations of factors (H, G, P, S, L, $B) joined by *",
                  "\"Heat\" in the term \"Heat\""},
        Malformed{
            "EmptyTerm", R"("H*G")", R"("")", "/responses/0/model/terms/3, line 21, column 61",
            "abbreviations of factors (H, G, P, S, L, $B) joined by *", "\"\" in the term \"\""},
        Malformed{"StarWithoutFactor", R"("H*G")", R"("H*")",
                  "/responses/0/model/terms/3, line 21, column 61",
                  "abbreviations of factors (H, G, P, S, L, $B) joined by *",
                  "\"\" in the term \"H*\""},
        Malformed{"PowerAboveNine", R"("H^2")", R"("H^10")",
                  "/responses/0/model/terms/4, line 21, column 68", "a power from 1 to 9",
                  "the term \"H^10\""},
        Malformed{"PowerAsWord", R"("H^2")", R"("H^two")",
                  "/responses/0/model/terms/4, line 21, column 68", "a power from 1 to 9",
                  "the term \"H^two\""},
        Malformed{"PowerOfAQualitativeFactor", R"("H^2")", R"("G^2")",
                  "/responses/0/model/terms/4, line 21, column 68",
                  "no power of a qualitative factor", "the term \"G^2\""},
        Malformed{"QualitativeFactorTwice", R"("H^2")", R"("G*H*G")",
                  "/responses/0/model/terms/4, line 21, column 68",
                  "no power of a qualitative factor", "the term \"G*H*G\""},
        Malformed{"TermTwiceInAnotherOrder", R"("H^2")", R"("G*H")",
                  "/responses/0/model/terms/4, line 21, column 68",
                  "a term that differs from that at /responses/0/model/terms/3", "\"G*H\" again"},
        Malformed{"ModelOfNothing", R"("intercept": true, "terms": ["$B", "H", "G", "H*G", "H^2"])",
                  R"("intercept": false, "terms": [])", "/responses/0/model, line 21, column 15",
                  "a model with an intercept or at least one term", "neither"},
        Malformed{"UnknownModelKey", R"("intercept")", R"("constant")",
                  "/responses/0/model/constant, line 21, column 28",
                  "only the keys intercept, terms", "the key \"constant\""},
        Malformed{"UnknownTransform", R"("ln")", R"("log")",
                  "/responses/0/transform, line 20, column 95",
                  "one of the words none, ln, log10, square root, reciprocal", "\"log\""},
        Malformed{"LimitsCross", R"("low": 1, "target": 5, "high": 9)", R"("low": 10, "high": 9)",
                  "/responses/0/limits, line 20, column 46", "a low that is not above the high 9",
                  "the low 10"},
        Malformed{"TargetOutsideTheLimits", R"("target": 5)", R"("target": 0)",
                  "/responses/0/limits/target, line 20, column 67", "a target between the limits",
                  "0"},
        Malformed{"DerivedFromUnknown", R"("from": ["Glow"])", R"("from": ["Glo"])",
                  "/responses/1/from/0, line 22, column 51", "the name of an ordinary response",
                  "\"Glo\"; did you mean \"Glow\"?"},
        Malformed{"DerivedFromItself", R"("from": ["Glow"])", R"("from": ["Ratio"])",
                  "/responses/1/from/0, line 22, column 51", "the name of an ordinary response",
                  "\"Ratio\""},
        Malformed{"DerivedFromNothing", R"("from": ["Glow"])", R"("from": [])",
                  "/responses/1, line 22, column 5", "the responses that it is worked out from",
                  "none"},
        Malformed{"DerivedWithModel", R"("type": "derived", "from": ["Glow"])",
                  R"("type": "derived", "from": ["Glow"], "model": {"terms": ["H"]})",
                  "/responses/1, line 22, column 5",
                  "a model and a transform of ordinary responses only",
                  "a response of another type with one of them"},
        Malformed{"ExternalWithSources", R"("type": "derived")", R"("type": "external")",
                  "/responses/1, line 22, column 5", "no sources of an external response", "some"},
        Malformed{"OrdinaryWithSources", R"("type": "derived", )", R"()",
                  "/responses/1/from, line 22, column 31",
                  "sources of a derived or combined response only", "an ordinary one"}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Rest, MalformedStudyFile,
    testing::Values(
        Malformed{"ConstraintOnUnknownFactor", R"("Heat": 1, "Sand")", R"("Haet": 1, "Sand")",
                  "/constraints/0/coefficients/Haet, line 24, column 45", "the name of a factor",
                  "\"Haet\"; did you mean \"Heat\"?"},
        Malformed{"ConstraintOnQualitativeFactor", R"("Heat": 1, "Sand")", R"("Gas": 1, "Sand")",
                  "/constraints/0/coefficients/Gas, line 24, column 44", "a numeric factor",
                  "the qualitative factor \"Gas\""},
        Malformed{"ConstraintWithoutCoefficients", R"({"Heat": 1, "Sand": 2})", R"({})",
                  "/constraints/0/coefficients, line 24, column 36",
                  "at least one coefficient other than 0", "none"},
        Malformed{"ConstraintWithoutBound", R"("Sand": 2}, "high": 90)", R"("Sand": 2})",
                  "/constraints/0, line 24, column 19", "a low or a high bound", "neither"},
        Malformed{"ConstraintWithCrossedBounds", R"("high": 90})", R"("low": 91, "high": 90})",
                  "/constraints/0, line 24, column 19", "a low that is not above the high 90",
                  "the low 91"},
        Malformed{"LabelNamedLikeAFactor", R"(["Operator"])", R"(["Heat"])",
                  "/labels/0, line 25, column 14",
                  "a name that differs from that at /factors/0/name", "\"Heat\" again"},
        Malformed{"RiskLimitTooSmall", R"("dpmoLimit": 100)", R"("dpmoLimit": 9)",
                  "/designSpace/dpmoLimit, line 26, column 32", "a whole number from 10 to 500000",
                  "the number 9"},
        Malformed{"RiskLimitWithFraction", R"("dpmoLimit": 100)", R"("dpmoLimit": 100.5)",
                  "/designSpace/dpmoLimit, line 26, column 32", "a whole number",
                  "the number 100.5"},
        Malformed{"UnknownIntervalType", R"("tolerance")", R"("prognosis")",
                  "/designSpace/intervalType, line 26, column 53",
                  "one of the words none, confidence, prediction, tolerance", "\"prognosis\""},
        Malformed{"FavouriteOfUnknownFactor", R"({"Heat": 15,)", R"({"Cold": 15,)",
                  "/favouriteSetpoint/Cold, line 27, column 33", "the name of a factor",
                  "\"Cold\""},
        Malformed{"FavouriteWithUnknownSetting", R"("Gas": "Air"})", R"("Gas": "Argon"})",
                  "/favouriteSetpoint/Gas, line 27, column 44", "the name of a setting of \"Gas\"",
                  "the text \"Argon\""},
        Malformed{"FavouriteTextForANumber", R"({"Heat": 15,)", R"({"Heat": "15",)",
                  "/favouriteSetpoint/Heat, line 27, column 33",
                  "a finite number other than -99 for \"Heat\"", "the text \"15\""},
        Malformed{"SelectionOfUnknownResponse", R"("selectedResponses": ["Glow"])",
                  R"("selectedResponses": ["glow"])", "/selectedResponses/0, line 28, column 25",
                  "the name of a response", "\"glow\"; did you mean \"Glow\"?"},
        Malformed{"SelectionTwice", R"("selectedResponses": ["Glow"])",
                  R"("selectedResponses": ["Glow", "Glow"])",
                  "/selectedResponses/1, line 28, column 33",
                  "a response that differs from that at /selectedResponses/0", "\"Glow\" again"},
        Malformed{"SettingAsList", R"("FixedEffect": false)", R"("FixedEffect": [])",
                  "/settings/Blocking/FixedEffect, line 29, column 44",
                  "true, false, a number or a text", "a list of 0"},
        Malformed{"BlockEffectOfTwo", R"("FixedEffect": false)", R"("FixedEffect": 2)",
                  "/settings/Blocking/FixedEffect, line 29, column 44", "true, false, 1 or 0",
                  "2"}),
    RowName);

INSTANTIATE_TEST_SUITE_P(
    Runs, MalformedStudyFile,
    testing::Values(
        Malformed{"ColumnOfUnknownName", R"(["Operator", "$BlockV", "Heat")",
                  R"(["Operator", "$BlockV", "heat")", "/runs/columns/2, line 31, column 40",
                  "the name of a factor, an ordinary response or a label",
                  "\"heat\"; did you mean \"Heat\"?"},
        Malformed{"ColumnOfADerivedResponse", R"("Lime", "Glow"])", R"("Lime", "Ratio"])",
                  "/runs/columns/7, line 31, column 81",
                  "the name of a factor, an ordinary response or a label", "\"Ratio\""},
        Malformed{"ColumnTwice", R"("Lime", "Glow"])", R"("Lime", "Lime"])",
                  "/runs/columns/7, line 31, column 81",
                  "a column that differs from that at /runs/columns/6", "\"Lime\" again"},
        Malformed{"ColumnMissing", R"("Plates", "Sand")", R"("Sand")",
                  "/runs/columns, line 31, column 16", "a column for each factor",
                  "none for \"Plates\""},
        Malformed{"RowAsObject", R"(["Ann", "Mon", 10, "Air", 1, 20, 80, 2.5])", R"({"Heat": 10})",
                  "/runs/rows/0, line 33, column 7", "a list", "an object"},
        Malformed{"ValueMissing", R"(80, 2.5])", R"(80])", "/runs/rows/0, line 33, column 7",
                  "a run of 8 values", "7"},
        Malformed{"ValueTooMany", R"(80, 2.5])", R"(80, 2.5, 1])",
                  "/runs/rows/0, line 33, column 7", "a run of 8 values", "9"},
        Malformed{"ValueAsList", R"(80, 2.5])", R"(80, [2.5]])",
                  "/runs/rows/0/7, line 33, column 44", "a number, a text or null", "a list of 1"},
        Malformed{"TextForANumber", R"("Mon", 10,)", R"("Mon", "10",)",
                  "/runs/rows/0/2, line 33, column 22",
                  "a finite number other than -99 for \"Heat\"", "the text \"10\""},
        Malformed{"FactorWithoutValue", R"("Mon", 10,)", R"("Mon", null,)",
                  "/runs/rows/0/2, line 33, column 22",
                  "a finite number other than -99 for \"Heat\"", "nothing"},
        Malformed{"UnknownSettingWithHint", R"(10, "Air",)", R"(10, "air",)",
                  "/runs/rows/0/3, line 33, column 26", "the name of a setting of \"Gas\"",
                  "the text \"air\"; did you mean \"Air\"?"},
        Malformed{"NumberForASetting", R"(10, "Air",)", R"(10, 1,)",
                  "/runs/rows/0/3, line 33, column 26", "the name of a setting of \"Gas\"",
                  "the number 1"},
        Malformed{"UnknownLevel", R"("Air", 1,)", R"("Air", 3,)",
                  "/runs/rows/0/4, line 33, column 33", "one of the levels of \"Plates\"",
                  "the number 3"},
        Malformed{"PartBelowZeroInARun", R"(20, 80, 2.5)", R"(-20, 120, 2.5)",
                  "/runs/rows/0/5, line 33, column 36", "an amount of \"Sand\" not below 0",
                  "the number -20"},
        Malformed{"PartsThatMissTheTotal", R"(20, 80, 2.5)", R"(20, 79, 2.5)",
                  "/runs/rows/0, line 33, column 7", "parts of the mixture that add up to 100",
                  "a sum of 99"},
        Malformed{"LogarithmOfZero", R"(80, 2.5)", R"(80, 0)", "/runs/rows/0/7, line 33, column 44",
                  "a value of \"Glow\" that the transform \"ln\" can take", "the number 0"},
        Malformed{"NotSetNumberInARun", R"(80, 2.5)", R"(80, -99)",
                  "/runs/rows/0/7, line 33, column 44",
                  "a number other than -99, which stands for nothing set", "the number -99"},
        Malformed{"NumberForALabel", R"(["Ann", "Mon")", R"([1, "Mon")",
                  "/runs/rows/0/0, line 33, column 8", "a text or null for a label",
                  "the number 1"}),
    RowName);

}  // namespace
}  // namespace kvopt
