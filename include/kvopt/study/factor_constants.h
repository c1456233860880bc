#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/text/not_set.h"

namespace kvopt {

class FactorClass;
class Variables;

/// The values of the factors that lie on no axis. They stand in arrays of Constant with one slot
/// more than the capacity that the owner declares; the first entry that is not defined ends the
/// array. Indices into an array are zero-based.
namespace FactorConstants {

/// Where in its range a constant lies.
enum SettingType : int {
    LOW = 0,
    REF = 1,  ///< the center, or a mixture factor's part in the reference mixture
    HIGH = 2,
    CUSTOM = 3,
    NO_SETTING = 4,
};

enum FactorConstantError : int {
    NoError = 0,
    UnknownFactor = 1,
    IllegalValue = 2,
    Full = 3,
};

/// One entry.
class KVOPT_EXPORT Constant {
public:
    enum ConstantError : int {
        NoConstantError = 0,
        NoName = 1,
        NoValue = 2,
    };

    /// Not defined: the end of an array.
    Constant() = default;
    Constant(const std::string& name, double value, SettingType position);
    Constant(const std::string& name, const std::string& setting, SettingType position);

    /// It has a name.
    bool IsDefined() const { return !name_.empty(); }
    std::string Name() const { return name_; }
    SettingType SettingPos() const { return position_; }
    SettingType& SettingPos() { return position_; }
    /// kNotSet for a qualitative constant.
    double FloatValue() const { return value_; }
    void FloatValue(double value) { value_ = value; }
    /// Empty for a quantitative constant.
    std::string QualValue() const { return setting_; }
    void QualValue(const std::string& setting) { setting_ = setting; }

    int kind = 0;  ///< 2 for a quantitative constant, any other value for a qualitative one

private:
    std::string name_;
    double value_ = kNotSet;
    std::string setting_;
    SettingType position_ = NO_SETTING;
};

/// `Constant::kind` of the two sorts of constants.
inline constexpr int kQuantitativeKind = 2;
inline constexpr int kQualitativeKind = 3;

/// Entries before the end; 0 for a null array, as for all operations below.
KVOPT_EXPORT int NumConstants(const Constant* constants);
/// By exact name.
KVOPT_EXPORT bool IsMember(const Constant* constants, const std::string& name);
/// The index of the entry with this name, -1 when there is none.
KVOPT_EXPORT int Lookup(const Constant* constants, const std::string& name);
/// Appends, and ends the array behind the new entry: the array must have room for both. The index
/// of the new entry; -1, and nothing is done, for a constant that is not defined.
KVOPT_EXPORT int Add(Constant* constants, const Constant& constant);
/// The same for an array whose capacity is known; -1 when it is full.
KVOPT_EXPORT int Add(Constant* constants, const Constant& constant, int capacity);
/// Appends what the position stands for: the value of a quantitative factor, the setting of a
/// qualitative one. The index of the new entry, -1 for a null factor.
KVOPT_EXPORT int AddConstant(Constant* constants, const Variables* variables,
                             const FactorClass* factor, SettingType position);
/// Copies the entries and the end. `to` must have room for both.
KVOPT_EXPORT void CopyConstantVector(Constant* to, const Constant* from);

/// Which position a value is: REF, LOW or HIGH, in this order, when it equals that position's value
/// within a millionth of the range, else CUSTOM; NO_SETTING for kNotSet.
KVOPT_EXPORT SettingType WhichSetting(const Variables& variables, const FactorClass* factor,
                                      double value);
/// The same for a text: the name of a qualitative factor's setting, else a number. NO_SETTING for
/// an empty text and for one that is no number; CUSTOM for an unknown setting.
KVOPT_EXPORT SettingType WhichSetting(const Variables& variables, const FactorClass* factor,
                                      const char* text);
/// The value of a position: a limit, or for REF the center of the range, of a mixture factor its
/// part in the reference mixture. kNotSet for the other positions, for a qualitative factor, and
/// where the factor has no such limit.
KVOPT_EXPORT double GetQuantitativeFloatValue(const Variables& variables, const FactorClass* factor,
                                              SettingType position);
/// The text of a position: the shortest text that reads back to its value as a float, empty for
/// kNotSet. Of a qualitative factor the first, the last, and for REF the middle one of the settings
/// in use (the earlier of two); empty for the other positions.
KVOPT_EXPORT void CenterValue(const Variables& variables, const FactorClass* factor,
                              SettingType position, std::string& text);
/// Position to text: "LOW", "REF", "HIGH", "CUSTOM", "NO_SETTING", or the five texts of `names`
/// when it is not null. The text of NO_SETTING for a number that is no position.
KVOPT_EXPORT const char* SettingName(SettingType position, const char* const* names);
/// Text to position, the reverse of SettingName(). NO_SETTING for any other text, null included.
KVOPT_EXPORT SettingType CenterType(const char* text, const char* const* names);

}  // namespace FactorConstants
}  // namespace kvopt
