#include "kvopt/platform/property_grid_values.h"

#include <algorithm>
#include <cstddef>

#include "kvopt/text/exceptions.h"
#include "kvopt/text/kv_std_string.h"
#include "kvopt/text/kv_string.h"

namespace kvopt {

CXTPPropertyGridItemNumber::CXTPPropertyGridItemNumber(std::wstring_view literal, int value,
                                                       int* bound)
    : CXTPPropertyGridItem(literal), value_(value) {
    BindToNumber(bound);
}

void CXTPPropertyGridItemNumber::BindToNumber(int* bound) {
    bound_ = bound;
    if (bound_ != nullptr && *bound_ != value_) {
        value_ = *bound_;
        ValueChanged();
    }
}

void CXTPPropertyGridItemNumber::SetNumber(int value) {
    if (bound_ != nullptr) {
        *bound_ = value;
    }
    if (value != value_) {
        value_ = value;
        ValueChanged();
    }
}

std::wstring CXTPPropertyGridItemNumber::GetValue() const {
    return std::to_wstring(value_);
}

void CXTPPropertyGridItemNumber::SetValue(std::wstring_view text) {
    int value = value_;
    if (KvString::ToInt(text, value)) {
        SetNumber(value);
    }
}

CXTPPropertyGridItemDouble::CXTPPropertyGridItemDouble(std::wstring_view literal, double value,
                                                       const FormatText<1>* format, double* bound)
    : CXTPPropertyGridItem(literal), value_(value), format_(format) {
    BindToDouble(bound);
}

void CXTPPropertyGridItemDouble::BindToDouble(double* bound) {
    bound_ = bound;
    if (bound_ != nullptr && *bound_ != value_) {
        value_ = *bound_;
        ValueChanged();
    }
}

void CXTPPropertyGridItemDouble::SetDouble(double value) {
    if (bound_ != nullptr) {
        *bound_ = value;
    }
    if (value != value_) {
        value_ = value;
        ValueChanged();
    }
}

std::wstring CXTPPropertyGridItemDouble::GetValue() const {
    return format_ == nullptr ? KvString::FormatGWide(value_)
                              : KvStdString::ToWide(KvString::ToString(value_, *format_));
}

void CXTPPropertyGridItemDouble::SetValue(std::wstring_view text) {
    double value = value_;
    if (KvString::ToDouble(text, value)) {
        SetDouble(value);
    }
}

KvPropertyGridItemDouble::KvPropertyGridItemDouble(std::wstring_view literal, double value,
                                                   const FormatText<1>* format, double* bound,
                                                   const wchar_t* defaultText)
    : CXTPPropertyGridItemDouble(literal, value, format, bound) {
    if (defaultText != nullptr) {
        SetDefaultValue(defaultText);
    }
}

CXTPPropertyGridItemEnum::CXTPPropertyGridItemEnum(std::wstring_view literal, int value)
    : CXTPPropertyGridItem(literal), value_(value) {}

void CXTPPropertyGridItemEnum::SetEnum(int value) {
    if (write_) {
        write_(value);
    }
    if (value != value_) {
        value_ = value;
        ValueChanged();
    }
}

void CXTPPropertyGridItemEnum::AddConstraint(std::wstring_view text, int value) {
    choices_.push_back({std::wstring(text), true});
    values_.push_back(value);
    CellsChanged();
}

void CXTPPropertyGridItemEnum::EnableConstraint(int value, bool enable) {
    const auto found = std::find(values_.begin(), values_.end(), value);
    if (found == values_.end()) {
        throw InvalidArgument(
            "CXTPPropertyGridItemEnum::EnableConstraint: no choice has the value " +
            std::to_string(value));
    }
    PropertyGridChoice& choice = choices_[static_cast<std::size_t>(found - values_.begin())];
    if (choice.enabled != enable) {
        choice.enabled = enable;
        CellsChanged();
    }
}

bool CXTPPropertyGridItemEnum::IsConstraintEnabled(int value) const {
    const auto found = std::find(values_.begin(), values_.end(), value);
    return found != values_.end() &&
           choices_[static_cast<std::size_t>(found - values_.begin())].enabled;
}

std::wstring CXTPPropertyGridItemEnum::GetValue() const {
    const int current = CurrentChoice();
    return current < 0 ? std::wstring() : choices_[static_cast<std::size_t>(current)].text;
}

void CXTPPropertyGridItemEnum::SetValue(std::wstring_view text) {
    const auto found = std::find_if(
        choices_.begin(), choices_.end(),
        [text](const PropertyGridChoice& choice) { return choice.enabled && choice.text == text; });
    if (found != choices_.end()) {
        Choose(static_cast<int>(found - choices_.begin()));
    }
}

int CXTPPropertyGridItemEnum::CurrentChoice() const {
    const auto found = std::find(values_.begin(), values_.end(), value_);
    return found == values_.end() ? -1 : static_cast<int>(found - values_.begin());
}

void CXTPPropertyGridItemEnum::Choose(int index) {
    SetEnum(values_.at(static_cast<std::size_t>(index)));
}

CXTPPropertyGridItemBool::CXTPPropertyGridItemBool(std::wstring_view literal,
                                                   std::wstring_view trueText,
                                                   std::wstring_view falseText, bool value)
    : CXTPPropertyGridItem(literal), trueText_(trueText), falseText_(falseText), value_(value) {}

void CXTPPropertyGridItemBool::SetBool(bool value) {
    if (write_) {
        write_(value);
    }
    if (value != value_) {
        value_ = value;
        ValueChanged();
    }
}

void CXTPPropertyGridItemBool::SetValue(std::wstring_view text) {
    if (text == trueText_ || text == falseText_) {
        SetBool(text == trueText_);
    }
}

std::vector<PropertyGridChoice> CXTPPropertyGridItemBool::Choices() const {
    return {{trueText_, true}, {falseText_, true}};
}

}  // namespace kvopt
