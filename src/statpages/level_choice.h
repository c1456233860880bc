#pragma once

#include "kvopt/study/enum_helpers.h"

namespace kvopt {

class CComboBox;
class ConfigurationSection;

/// What the level pages have in common: which entry of a list stands for which value, and the
/// section in which the values are kept. Entries are counted from 0.

inline constexpr int kToleranceEntry = 2;
/// The entry for "none", which is only there where none may be chosen.
inline constexpr int kNoneEntry = 3;

/// Selects the entry of a level; the first one for a value that is no level.
void SelectLevel(CComboBox& list, CConfLev::ConfLev level);
/// The level of the selected entry; the fallback when there is no such entry.
CConfLev::ConfLev ChosenLevel(const CComboBox& list, CConfLev::ConfLev fallback);
/// The interval type of the selected entry; the fallback when there is no such entry.
CIntervalType::IntervalType ChosenInterval(const CComboBox& list,
                                           CIntervalType::IntervalType fallback);

/// Writes the child section afresh; the interval type only beside a tolerance proportion.
void WriteLevels(ConfigurationSection* section, const char* child, CConfLev::ConfLev level,
                 CConfLev::ConfLev tolerance, CIntervalType::IntervalType type);
/// False without the child section. With it true, also when one of the keys is missing, whose
/// value stays.
bool ReadLevels(const ConfigurationSection* section, const char* child, CConfLev::ConfLev& level,
                CConfLev::ConfLev& tolerance, CIntervalType::IntervalType& type);

}  // namespace kvopt
