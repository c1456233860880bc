#include "statpages/level_choice.h"

#include <array>
#include <cstddef>
#include <memory>

#include "kvopt/platform/combo_box.h"
#include "kvopt/stores/configuration_section.h"

namespace kvopt {

namespace {

constexpr const char* kLevel = "ConfLev";
constexpr const char* kTolerance = "TolProp";

constexpr std::array<CConfLev::ConfLev, 3> kLevels{CConfLev::Level90, CConfLev::Level95,
                                                   CConfLev::Level99};
constexpr std::array<CIntervalType::IntervalType, 3> kIntervals{
    CIntervalType::Confidence, CIntervalType::Prediction, CIntervalType::Tolerance};

template <class Enum, std::size_t Count>
Enum Chosen(const std::array<Enum, Count>& values, const CComboBox& list, Enum fallback) {
    const auto index = static_cast<std::size_t>(list.GetCurSel());
    return index < Count ? values[index] : fallback;
}

}  // namespace

void SelectLevel(CComboBox& list, CConfLev::ConfLev level) {
    list.SetCurSel(level == CConfLev::Level95 ? 1 : level == CConfLev::Level99 ? 2 : 0);
}

CConfLev::ConfLev ChosenLevel(const CComboBox& list, CConfLev::ConfLev fallback) {
    return Chosen(kLevels, list, fallback);
}

CIntervalType::IntervalType ChosenInterval(const CComboBox& list,
                                           CIntervalType::IntervalType fallback) {
    return Chosen(kIntervals, list, fallback);
}

void WriteLevels(ConfigurationSection* section, const char* child, CConfLev::ConfLev level,
                 CConfLev::ConfLev tolerance, CIntervalType::IntervalType type) {
    section->GetSection(child)->Clear();
    const std::unique_ptr<ConfigurationSection> levels = section->GetSection(child);
    CConfLev::WriteSection(levels.get(), kLevel, level);
    CConfLev::WriteSection(levels.get(), kTolerance, tolerance);
    if (tolerance != CConfLev::None) {
        CIntervalType::WriteSection(levels.get(), type);
    }
}

bool ReadLevels(const ConfigurationSection* section, const char* child, CConfLev::ConfLev& level,
                CConfLev::ConfLev& tolerance, CIntervalType::IntervalType& type) {
    const std::unique_ptr<const ConfigurationSection> levels =
        section != nullptr ? section->GetSection(child) : nullptr;
    if (levels == nullptr) {
        return false;
    }
    CConfLev::ReadSection(levels.get(), kLevel, level);
    CConfLev::ReadSection(levels.get(), kTolerance, tolerance);
    CIntervalType::ReadSection(levels.get(), type);
    return true;
}

}  // namespace kvopt
