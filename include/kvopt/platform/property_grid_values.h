#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/property_grid_item.h"
#include "kvopt/text/literal.h"

namespace kvopt {

/// \file
/// Rows of a property grid with a value of another type than a text. A row that is bound to a
/// variable takes its value over when it is bound and writes each later value there. It does not
/// own the variable, which must live as long as the row.

/// A whole number that the user types.
class KVOPT_EXPORT CXTPPropertyGridItemNumber : public CXTPPropertyGridItem {
public:
    explicit CXTPPropertyGridItemNumber(std::wstring_view literal, int value = 0,
                                        int* bound = nullptr);

    void BindToNumber(int* bound);
    int GetNumber() const { return value_; }
    virtual void SetNumber(int value);

    std::wstring GetValue() const override;
    /// A text that is no whole number leaves the value as it is.
    void SetValue(std::wstring_view text) override;

private:
    int value_;
    int* bound_ = nullptr;
};

/// A number that the user types.
class KVOPT_EXPORT CXTPPropertyGridItemDouble : public CXTPPropertyGridItem {
public:
    /// Without a format the number is shown as "%g" prints it.
    explicit CXTPPropertyGridItemDouble(std::wstring_view literal, double value = 0.0,
                                        const FormatText<1>* format = nullptr,
                                        double* bound = nullptr);

    void BindToDouble(double* bound);
    double GetDouble() const { return value_; }
    virtual void SetDouble(double value);

    /// The format may lose digits: the text does not read back to the same number.
    std::wstring GetValue() const override;
    /// A text that is no number leaves the value as it is.
    void SetValue(std::wstring_view text) override;

private:
    double value_;
    const FormatText<1>* format_;
    double* bound_ = nullptr;
};

/// A number with the text of its default beside it.
class KVOPT_EXPORT KvPropertyGridItemDouble : public CXTPPropertyGridItemDouble {
public:
    /// `defaultText`: see SetDefaultValue; null for none.
    KvPropertyGridItemDouble(std::wstring_view literal, double value, const FormatText<1>* format,
                             double* bound, const wchar_t* defaultText);
};

/// One of several choices, each of which stores a number. A stored number that no choice has shows
/// as an empty text and stays until the user picks a choice.
class KVOPT_EXPORT CXTPPropertyGridItemEnum : public CXTPPropertyGridItem {
public:
    explicit CXTPPropertyGridItemEnum(std::wstring_view literal, int value = 0);

    /// `bound` is an int or an enumeration.
    template <class Number>
    void BindToEnum(Number* bound) {
        write_ = nullptr;  // what was bound before keeps its value
        SetEnum(static_cast<int>(*bound));
        write_ = [bound](int value) { *bound = static_cast<Number>(value); };
    }
    int GetEnum() const { return value_; }
    void SetEnum(int value);

    /// Adds a choice behind the others.
    void AddConstraint(std::wstring_view text, int value);
    /// A choice that is disabled is shown and cannot be picked. Throws InvalidArgument when no
    /// choice has the value.
    void EnableConstraint(int value, bool enable);
    /// False when no choice has the value.
    bool IsConstraintEnabled(int value) const;

    std::wstring GetValue() const override;
    /// Takes the enabled choice of exactly this text; any other text leaves the value as it is.
    void SetValue(std::wstring_view text) override;
    bool TakesText() const override { return false; }
    std::vector<PropertyGridChoice> Choices() const override { return choices_; }
    int CurrentChoice() const override;
    void Choose(int index) override;

private:
    int value_;
    std::vector<PropertyGridChoice> choices_;
    std::vector<int> values_;  ///< of the choices
    std::function<void(int)> write_;
};

/// Yes or no, with two texts for it.
class KVOPT_EXPORT CXTPPropertyGridItemBool : public CXTPPropertyGridItem {
public:
    CXTPPropertyGridItemBool(std::wstring_view literal, std::wstring_view trueText,
                             std::wstring_view falseText, bool value = false);

    /// `bound` is a bool, or a number that is used as one: any value but 0 is true, and stays as it
    /// is until a value is set.
    template <class Flag>
    void BindToBool(Flag* bound) {
        write_ = nullptr;
        SetBool(*bound != Flag{});
        write_ = [bound](bool value) { *bound = static_cast<Flag>(value); };
    }
    bool GetBool() const { return value_; }
    void SetBool(bool value);

    std::wstring GetValue() const override { return value_ ? trueText_ : falseText_; }
    /// Takes exactly one of the two texts; any other leaves the value as it is.
    void SetValue(std::wstring_view text) override;
    bool TakesText() const override { return false; }
    /// The true text, then the false one.
    std::vector<PropertyGridChoice> Choices() const override;
    int CurrentChoice() const override { return value_ ? 0 : 1; }
    void Choose(int index) override { SetBool(index == 0); }

private:
    std::wstring trueText_;
    std::wstring falseText_;
    bool value_;
    std::function<void(bool)> write_;
};

}  // namespace kvopt
