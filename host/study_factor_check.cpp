#include <algorithm>
#include <string_view>

#include "host/json_node.h"
#include "host/model_term.h"
#include "host/study_check.h"
#include "host/study_check_tools.h"
#include "host/study_fault.h"
#include "kvopt/study/axis_info.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {
namespace {

void CheckAbbreviation(const StudyFactor& factor, const std::string& pointer, UniqueNames& names) {
    const std::string& text = factor.abbreviation;
    names.Add(text, pointer);
    constexpr std::string_view kBlanks = " \t\r\n";
    if (text.find_first_of("*^") != std::string::npos ||
        kBlanks.find(text.front()) != kBlanks.npos || kBlanks.find(text.back()) != kBlanks.npos) {
        throw StudyFault{pointer, "an abbreviation without *, ^ and blanks at its ends",
                         Quoted(text)};
    }
}

void CheckSettings(const StudyFactor& factor, const std::string& pointer) {
    if (factor.settings.empty()) {
        throw StudyFault{pointer, "at least one setting", "none"};
    }
    UniqueNames names("a setting");
    bool isAnyIncluded = false;
    double previous = 0.0;
    for (std::size_t s = 0; s < factor.settings.size(); ++s) {
        const StudySetting& setting = factor.settings[s];
        const std::string place = pointer + "/" + std::to_string(s);
        names.Add(setting.name, place);
        isAnyIncluded = isAnyIncluded || setting.included;
        if (IsQualitative(factor)) {
            continue;
        }
        double value = 0.0;
        if (!KvString::ToDouble(setting.name, value) || value == kNotSet) {
            throw StudyFault{place, "a number other than -99", Quoted(setting.name)};
        }
        if (s > 0 && value <= previous) {
            throw StudyFault{place, "levels in ascending order", KvString::FromDouble(value)};
        }
        previous = value;
    }
    if (!isAnyIncluded) {
        throw StudyFault{pointer, "at least one included setting", "none"};
    }
}

void CheckFactor(const StudyData& study, const StudyFactor& factor, const std::string& pointer) {
    const bool isBlock = factor.name == kBlockFactorName;
    if (AxisInfo::IsNotUsedName(factor.name)) {
        throw StudyFault{pointer + "/name", "a name other than that of an unused axis",
                         Quoted(factor.name)};
    }
    if (isBlock && !(IsQualitative(factor) && factor.use == CEUse::Controlled)) {
        throw StudyFault{pointer, "the type block for the factor " + Quoted(factor.name),
                         "another type or use"};
    }
    if (factor.precision != kNotSet) {
        CheckNumber(factor.precision, pointer + "/precision");
        if (IsQualitative(factor)) {
            throw StudyFault{pointer + "/precision", "a precision of a numeric factor only",
                             "a qualitative factor"};
        }
        if (factor.precision <= 0.0) {
            throw StudyFault{pointer + "/precision", "a standard deviation above 0",
                             KvString::FromDouble(factor.precision)};
        }
    }
    if (HasListedSettings(factor)) {
        CheckSettings(factor, pointer + "/settings");
        return;
    }
    if (!factor.settings.empty()) {
        throw StudyFault{pointer + "/settings", "settings of a factor with listed levels only",
                         "a factor with a range"};
    }
    for (const auto& [value, key] :
         {std::pair(factor.low, "low"), std::pair(factor.high, "high")}) {
        if (value == kNotSet) {
            throw StudyFault{pointer, "the key " + Quoted(key), "a factor without it"};
        }
    }
    CheckRange(factor.low, factor.high, pointer);
    if (IsComponent(factor) && (factor.low < 0.0 || factor.high > study.mixtureTotal)) {
        throw StudyFault{
            pointer,
            "bounds from 0 to the mixture total " + KvString::FromDouble(study.mixtureTotal),
            KvString::FromDouble(factor.low) + " to " + KvString::FromDouble(factor.high)};
    }
}

void CheckTotal(double total) {
    CheckNumber(total, "/mixtureTotal");
    if (total <= 0.0) {
        throw StudyFault{"/mixtureTotal", "a total above 0", KvString::FromDouble(total)};
    }
}

void CheckMixture(const StudyData& study) {
    double low = 0.0;
    double high = 0.0;
    int fillers = 0;
    bool isMixture = false;
    for (std::size_t f = 0; f < study.factors.size(); ++f) {
        const StudyFactor& factor = study.factors[f];
        if (!IsComponent(factor)) {
            continue;
        }
        isMixture = true;
        fillers += factor.type == CEType::Filler ? 1 : 0;
        if (fillers > 1) {
            throw StudyFault{Step("factors", f) + "/type", "one filler at most", "a second one"};
        }
        low += factor.low;
        high += factor.high;
    }
    const double slack = kMixtureTolerance * study.mixtureTotal;
    if (isMixture && (low > study.mixtureTotal + slack || high < study.mixtureTotal - slack)) {
        throw StudyFault{
            "/factors",
            "bounds that a mixture of " + KvString::FromDouble(study.mixtureTotal) + " can keep",
            "lows that add up to " + KvString::FromDouble(low) + " and highs that add up to " +
                KvString::FromDouble(high)};
    }
}

}  // namespace

void CheckFactors(const StudyData& study) {
    UniqueNames abbreviations("an abbreviation");
    for (std::size_t f = 0; f < study.factors.size(); ++f) {
        CheckAbbreviation(study.factors[f], Step("factors", f) + "/abbreviation", abbreviations);
    }
    CheckTotal(study.mixtureTotal);
    for (std::size_t f = 0; f < study.factors.size(); ++f) {
        CheckFactor(study, study.factors[f], Step("factors", f));
    }
    CheckMixture(study);
}

}  // namespace kvopt
