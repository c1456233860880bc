#include "host/study_reader.h"

#include <algorithm>

#include "host/model_term.h"
#include "host/study_fault.h"
#include "host/study_words.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {
namespace {

constexpr const char* kFormat = "kvopt-study";
constexpr int kVersion = 1;

/// The value of a word out of a table.
template <class Words>
auto Word(const JsonNode& node, const Words& words) {
    const std::string text = node.Text();
    for (const auto& candidate : words) {
        if (candidate.word == text) {
            return candidate.value;
        }
    }
    std::vector<std::string> known;
    std::string expected;
    for (const auto& candidate : words) {
        known.emplace_back(candidate.word);
        expected += (expected.empty() ? "one of the words " : ", ") + std::string(candidate.word);
    }
    throw StudyFault{node.Pointer(), expected, Quoted(text) + Hint(text, known)};
}

template <class Target, class Read>
void Optional(const JsonNode& object, std::string_view key, Target& target, Read read) {
    if (const auto member = object.Find(key)) {
        target = read(*member);
    }
}

void OptionalNumber(const JsonNode& object, std::string_view key, double& target) {
    Optional(object, key, target, [](const JsonNode& node) { return node.Number(); });
}

void OptionalText(const JsonNode& object, std::string_view key, std::string& target) {
    Optional(object, key, target, [](const JsonNode& node) { return node.Text(); });
}

void OptionalTexts(const JsonNode& object, std::string_view key, std::vector<std::string>& target) {
    Optional(object, key, target, [](const JsonNode& node) { return node.Texts(); });
}

void OptionalFlag(const JsonNode& object, std::string_view key, bool& target) {
    Optional(object, key, target, [](const JsonNode& node) { return node.Flag(); });
}

/// A setting is a name, a level, or an object that also says whether it is included.
StudySetting ReadSetting(const JsonNode& node, bool isQualitative) {
    const auto name = [isQualitative](const JsonNode& value) {
        return isQualitative ? value.Text() : KvString::FromDouble(value.Number());
    };
    if (!node.IsObject()) {
        return StudySetting{name(node), true};
    }
    node.AllowKeys({"name", "included"});
    StudySetting setting{name(node.Member("name")), true};
    OptionalFlag(node, "included", setting.included);
    return setting;
}

StudyFactor ReadFactor(const JsonNode& node) {
    StudyFactor factor;
    factor.type = Word(node.Member("type"), kTypeWords);
    const bool isBlock = node.Member("type").Text() == kBlockWord;
    if (isBlock) {
        node.AllowKeys({"name", "abbreviation", "type", "settings"});
    } else if (HasListedSettings(factor)) {
        node.AllowKeys({"name", "abbreviation", "unit", "type", "use", "settings", "precision"});
    } else {
        node.AllowKeys({"name", "abbreviation", "unit", "type", "use", "low", "high", "precision"});
    }
    factor.name = node.Member("name").Text();
    if (isBlock != (factor.name == kBlockFactorName)) {
        throw StudyFault{node.Pointer() + "/name",
                         "the type " + Quoted(kBlockWord) + " and the name " +
                             Quoted(kBlockFactorName) + " together",
                         "the name " + Quoted(factor.name)};
    }
    OptionalText(node, "abbreviation", factor.abbreviation);
    OptionalText(node, "unit", factor.unit);
    if (factor.type == CEType::Covariate) {
        factor.use = CEUse::Uncontrolled;
    }
    Optional(node, "use", factor.use, [](const JsonNode& use) { return Word(use, kUseWords); });
    OptionalNumber(node, "precision", factor.precision);
    if (HasListedSettings(factor)) {
        for (const JsonNode& setting : node.Member("settings").Items()) {
            factor.settings.push_back(ReadSetting(setting, IsQualitative(factor)));
        }
    } else {
        factor.low = node.Member("low").Number();
        factor.high = node.Member("high").Number();
    }
    return factor;
}

StudyResponse ReadResponse(const JsonNode& node) {
    StudyResponse response;
    node.AllowKeys({"name", "unit", "type", "limits", "transform", "model", "from"});
    response.name = node.Member("name").Text();
    OptionalText(node, "unit", response.unit);
    Optional(node, "type", response.type,
             [](const JsonNode& type) { return Word(type, kResponseWords); });
    Optional(node, "transform", response.transform,
             [](const JsonNode& transform) { return Word(transform, kTransformWords); });
    OptionalTexts(node, "from", response.derivedFrom);
    if (const auto limits = node.Find("limits")) {
        limits->AllowKeys({"low", "target", "high"});
        OptionalNumber(*limits, "low", response.lowLimit);
        OptionalNumber(*limits, "target", response.target);
        OptionalNumber(*limits, "high", response.highLimit);
    }
    if (const auto model = node.Find("model")) {
        model->AllowKeys({"intercept", "terms"});
        response.hasModel = true;
        OptionalFlag(*model, "intercept", response.model.intercept);
        response.model.terms = model->Member("terms").Texts();
    }
    return response;
}

StudyConstraint ReadConstraint(const JsonNode& node) {
    StudyConstraint constraint;
    node.AllowKeys({"coefficients", "low", "high"});
    for (const auto& [name, coefficient] : node.Member("coefficients").Members()) {
        constraint.coefficients[name] = coefficient.Number();
    }
    OptionalNumber(node, "low", constraint.low);
    OptionalNumber(node, "high", constraint.high);
    return constraint;
}

StudyCell ReadCell(const JsonNode& node) {
    if (node.IsNull()) {
        return std::monostate();
    }
    if (node.IsText()) {
        return node.Text();
    }
    if (!node.IsNumber()) {
        node.Fail("a number, a text or null");
    }
    return node.Number();
}

StudyRuns ReadRuns(const JsonNode& node) {
    StudyRuns runs;
    node.AllowKeys({"columns", "rows"});
    runs.columns = node.Member("columns").Texts();
    for (const JsonNode& row : node.Member("rows").Items()) {
        std::vector<StudyCell>& cells = runs.rows.emplace_back();
        for (const JsonNode& cell : row.Items()) {
            cells.push_back(ReadCell(cell));
        }
    }
    return runs;
}

StudySettingValue ReadSettingValue(const JsonNode& node) {
    if (node.IsFlag()) {
        return node.Flag();
    }
    if (node.IsText()) {
        return node.Text();
    }
    if (!node.IsNumber()) {
        node.Fail("true, false, a number or a text");
    }
    if (node.IsInteger()) {
        return node.Integer();
    }
    return node.Number();
}

int WithinRange(const JsonNode& node, int low, int high) {
    const int number = node.Integer();
    if (number < low || number > high) {
        node.Fail("a whole number from " + std::to_string(low) + " to " + std::to_string(high));
    }
    return number;
}

DesignSpaceOptions ReadDesignSpace(const JsonNode& node) {
    DesignSpaceOptions options;
    node.AllowKeys({"dpmoLimit", "confidenceLevel", "toleranceProportion", "intervalType",
                    "simulations", "resolution", "includeModelError", "includeFactorPrecision"});
    Optional(node, "dpmoLimit", options.dpmoLimit,
             [](const JsonNode& limit) { return WithinRange(limit, 10, 500000); });
    Optional(node, "simulations", options.responseProfileSimulations,
             [](const JsonNode& count) { return WithinRange(count, 100, 1000000); });
    Optional(node, "resolution", options.resolution,
             [](const JsonNode& count) { return WithinRange(count, 2, 64); });
    Optional(node, "confidenceLevel", options.confidenceLevel,
             [](const JsonNode& level) { return Word(level, kLevelWords); });
    Optional(node, "toleranceProportion", options.toleranceProportion,
             [](const JsonNode& level) { return Word(level, kLevelWords); });
    Optional(node, "intervalType", options.intervalType,
             [](const JsonNode& type) { return Word(type, kIntervalWords); });
    OptionalFlag(node, "includeModelError", options.includeModelError);
    OptionalFlag(node, "includeFactorPrecision", options.includeFactorPrecision);
    return options;
}

void CheckHeader(const JsonNode& document) {
    const JsonNode format = document.Member("format");
    if (format.Text() != kFormat) {
        format.Fail("the text " + Quoted(kFormat));
    }
    const JsonNode version = document.Member("version");
    if (version.Integer() != kVersion) {
        version.Fail("the version " + std::to_string(kVersion));
    }
}

}  // namespace

StudyData ReadStudy(const JsonNode& document) {
    CheckHeader(document);
    document.AllowKeys({"format", "version", "name", "source", "notes", "locked", "mixtureTotal",
                        "pseudoComponents", "factors", "responses", "constraints", "labels",
                        "designSpace", "favouriteSetpoint", "selectedResponses", "settings",
                        "runs"});
    StudyData study;
    study.name = document.Member("name").Text();
    OptionalText(document, "source", study.source);
    OptionalTexts(document, "notes", study.notes);
    OptionalFlag(document, "locked", study.locked);
    OptionalNumber(document, "mixtureTotal", study.mixtureTotal);
    OptionalFlag(document, "pseudoComponents", study.pseudoComponents);
    for (const JsonNode& factor : document.Member("factors").Items()) {
        study.factors.push_back(ReadFactor(factor));
    }
    for (const JsonNode& response : document.Member("responses").Items()) {
        study.responses.push_back(ReadResponse(response));
    }
    if (const auto constraints = document.Find("constraints")) {
        for (const JsonNode& constraint : constraints->Items()) {
            study.constraints.push_back(ReadConstraint(constraint));
        }
    }
    OptionalTexts(document, "labels", study.labels);
    if (const auto options = document.Find("designSpace")) {
        study.designSpace = ReadDesignSpace(*options);
    }
    if (const auto setpoint = document.Find("favouriteSetpoint")) {
        for (const auto& [factor, value] : setpoint->Members()) {
            study.favouriteSetpoint[factor] = ReadCell(value);
        }
    }
    OptionalTexts(document, "selectedResponses", study.selectedResponses);
    if (const auto settings = document.Find("settings")) {
        for (const auto& [section, keys] : settings->Members()) {
            for (const auto& [key, value] : keys.Members()) {
                study.settings[section][key] = ReadSettingValue(value);
            }
        }
    }
    if (const auto runs = document.Find("runs")) {
        study.runs = ReadRuns(*runs);
    }
    return study;
}

}  // namespace kvopt
