#include "kvopt/axes/axis_rules.h"

#include <iterator>
#include <utility>

#include "axes_texts.h"
#include "kvopt/study/axis_info.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/format.h"
#include "kvopt/text/kv_string.h"
#include "kvopt/text/not_set.h"

namespace kvopt {

namespace {

// A part of a mixture beyond these cannot exist, whatever the user thinks of it.
constexpr float kLeastPart = 0.0F;
constexpr float kGreatestPart = 1.0F;

/// Empty beyond the fifth axis, which no page has.
const char* Ordinal(int axis) {
    const auto index = static_cast<std::size_t>(axis - 1);
    return index < std::size(texts::kAxesOrdinals) ? texts::kAxesOrdinals[index].Text() : "";
}

}  // namespace

AxisRules::AxisRules(const Variables* variables, std::vector<AxisEntry> entries)
    : variables_(variables), entries_(std::move(entries)) {}

unsigned AxisRules::IsAxisLegal(int axis) const {
    const AxisEntry& entry = entries_[static_cast<std::size_t>(axis - 1)];
    if (!variables_->IsFactor(entry.name)) {
        return AxisPage::AxisIllegalName;
    }
    if (variables_->IsFactorQualitative(entry.name)) {
        return 0;
    }
    float low = kNotSetF;
    if (!KvString::ToFloat(entry.low, low)) {
        return AxisPage::AxisLowNotNumber;
    }
    float high = kNotSetF;
    if (!KvString::ToFloat(entry.high, high)) {
        return AxisPage::AxisHighNotNumber;
    }
    if (low >= high) {
        return AxisPage::AxisLowNotBelowHigh;
    }
    unsigned flags = 0;
    if (!variables_->LegalSetting(entry.name, entry.low)) {
        flags |= AxisPage::AxisLowOutOfRange;
    }
    if (!variables_->LegalSetting(entry.name, entry.high)) {
        flags |= AxisPage::AxisHighOutOfRange;
    }
    return flags;
}

AxisPage::AxisErrorSeverity AxisRules::AreAxesLegal(std::string& message) const {
    if (FindDuplicate(message)) {
        return AxisPage::AxisError;
    }
    std::string warnings;
    int warnedAxes = 0;
    for (int axis = 1; axis <= static_cast<int>(entries_.size()); ++axis) {
        if (AxisInfo::IsNotUsedName(entries_[static_cast<std::size_t>(axis - 1)].name)) {
            continue;
        }
        const unsigned flags = IsAxisLegal(axis);
        message = ErrorText(axis, flags);
        std::string warning;
        if (message.empty()) {
            JudgeRange(axis, flags, message, warning);
        }
        if (!message.empty()) {
            return AxisPage::AxisError;
        }
        if (!warning.empty()) {
            warnings += warning;
            ++warnedAxes;
        }
    }
    if (warnings.empty()) {
        return AxisPage::AxisNoError;
    }
    // Counts axes, not settings: two doubtful settings of one axis are asked about as one.
    message = warnings + texts::kAxesStillUse.Text() +
              (warnedAxes > 1 ? texts::kAxesQuestionSeveral : texts::kAxesQuestionOne).Text();
    return AxisPage::AxisWarning;
}

AxisRules::Range AxisRules::RangeOf(const AxisEntry& entry) const {
    Range range{kNotSetF, kNotSetF};
    if (!variables_->IsFactorQualitative(entry.name)) {
        KvString::ToFloat(entry.low, range.low);
        KvString::ToFloat(entry.high, range.high);
    }
    return range;
}

bool AxisRules::FindDuplicate(std::string& message) const {
    for (auto first = entries_.begin(); first != entries_.end(); ++first) {
        if (AxisInfo::IsNotUsedName(first->name)) {
            continue;
        }
        for (auto second = std::next(first); second != entries_.end(); ++second) {
            if (first->name == second->name) {
                message = Format(texts::kAxesDuplicate, first->name);
                return true;
            }
        }
    }
    return false;
}

std::string AxisRules::ErrorText(int axis, unsigned flags) const {
    const AxisEntry& entry = entries_[static_cast<std::size_t>(axis - 1)];
    const char* ordinal = Ordinal(axis);
    if ((flags & AxisPage::AxisIllegalName) != 0) {
        return Format(texts::kAxesIllegalName, ordinal);
    }
    if ((flags & AxisPage::AxisLowNotNumber) != 0) {
        return Format(texts::kAxesNotNumber, texts::kAxesLow.Text(), ordinal, entry.name);
    }
    if ((flags & AxisPage::AxisHighNotNumber) != 0) {
        return Format(texts::kAxesNotNumber, texts::kAxesHigh.Text(), ordinal, entry.name);
    }
    if ((flags & AxisPage::AxisLowNotBelowHigh) != 0) {
        const Range range = RangeOf(entry);
        return Format(texts::kAxesLowNotBelowHigh, range.low, ordinal, entry.name, range.high);
    }
    return {};
}

void AxisRules::JudgeRange(int axis, unsigned flags, std::string& error,
                           std::string& warning) const {
    const AxisEntry& entry = entries_[static_cast<std::size_t>(axis - 1)];
    const Range range = RangeOf(entry);
    const CEType::EType type = variables_->GetType(entry.name);
    const bool isPart = type == CEType::Formulation || type == CEType::Filler;
    const auto judge = [&](const PlainText& which, float value) {
        if (isPart && (value > kGreatestPart || value < kLeastPart)) {
            error = Format(texts::kAxesIllegalSetting, which.Text(), value, Ordinal(axis),
                           entry.name, kLeastPart, kGreatestPart);
        } else {
            warning += Format(texts::kAxesOutsideRecommended, which.Text(), value, Ordinal(axis),
                              entry.name);
        }
    };
    if ((flags & AxisPage::AxisLowOutOfRange) != 0) {
        judge(texts::kAxesLow, range.low);
    }
    if ((flags & AxisPage::AxisHighOutOfRange) != 0) {
        judge(texts::kAxesHigh, range.high);
    }
}

}  // namespace kvopt
