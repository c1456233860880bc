// How a ContourPageData is remembered: the study's ini file and the saved plot, writer and reader.

#include <array>
#include <memory>
#include <string>

#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/stores/contour_plot_ini_section.h"
#include "kvopt/stores/ini_file_factory.h"
#include "kvopt/stores/ini_file_section.h"
#include "kvopt/text/exceptions.h"

namespace kvopt {
namespace {

// The ini file. The first two stand directly in the section that the typed view enters.
constexpr const char* kIniIncludeModelError = "IncludeModelError";
constexpr const char* kIniContourLabels = "ContourLabels";
constexpr std::array<const char*, 5> kTypeTexts = {"contour_2D", "contour_4D", "surface_3D",
                                                   "surface_4D", "ds_probability"};
constexpr std::array<const char*, 2> kAxisTexts = {"process", "mixture"};

// The saved plot.
constexpr const char* kSection = "ContourPlotData";
constexpr const char* kPlotType = "PlotType";
constexpr const char* kISDSProbability = "ISDSProbability";
constexpr const char* kHideSurface = "HideSurface";
constexpr const char* kISDesirability = "ISDesirability";
constexpr const char* kAxisType = "AxisType";
constexpr const char* kUseConstraints = "UseConstraints";
constexpr const char* kHaveConstraints = "HaveConstraints";
constexpr const char* kUseDummyData = "UseDummyData";
constexpr const char* kMixtureMode = "MixtureMode";
constexpr const char* kUseColor = "UseColor";
constexpr const char* kScaleEqual = "ScaleEqual";
constexpr const char* kUseContourLabels = "UseContourLabels";
constexpr const char* kHasContourLabels = "HasContourLabels";
constexpr const char* kIsProbabilityPlot = "IsProbabilityPlot";
constexpr const char* kFromDesignSpace = "FromDesignSpace";
constexpr const char* kNumSimulations = "NumSimulations";
constexpr const char* kDistribution = "DistributionForFactors";
constexpr const char* kAnalyticalProbability = "AnalyticalProbability";
constexpr const char* kDSOutput = "DSOutput";
constexpr const char* kIncludeModelError = "IncludeModelError";
constexpr const char* kDPMOTarget = "DPMOTarget";
constexpr const char* kBackTransformedFactors = "BackTransformedFactors";
constexpr const char* kIntervalType = "IntervalType";
constexpr const char* kConfLev = "ConfLev";
constexpr const char* kTolProp = "TolProp";
constexpr const char* kOldInterval = "IndividualPredictionError";  // read only, of old files

const char* AxisErrorKey(bool fromDesignSpace) {
    return fromDesignSpace ? "ErrorOnAxisFactors" : "RErrorOnAxisFactors";
}

const char* ConstantErrorKey(bool fromDesignSpace) {
    return fromDesignSpace ? "ErrorOnConstantFactors" : "RErrorOnConstantFactors";
}

// The number of a text among those of an enumeration, -1 for none of them.
template <std::size_t N>
int NumberOf(const std::array<const char*, N>& texts, const std::string& text) {
    for (std::size_t i = 0; i < N; ++i) {
        if (text == texts[i]) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

template <std::size_t N>
const char* TextOf(const std::array<const char*, N>& texts, int number) {
    const auto index = static_cast<std::size_t>(number);
    return index < N ? texts[index] : "";
}

bool ReadOrFalse(const ConfigurationSection& section, const char* key) {
    return section.ReadKeyOr(key, false);
}

bool IsKnown(int number, std::size_t count) {
    return number >= 0 && number < static_cast<int>(count);
}

}  // namespace

void ContourPageData::SaveSettings(IniFileSection* section) const {
    if (!section) {
        throw InvalidArgument("ContourPageData::SaveSettings");
    }
    ContourPlotIniSection view(*section, isDSProbability_);
    view.SetPlotType(TextOf(kTypeTexts, plotType_));
    view.SetAxisType(TextOf(kAxisTexts, axisType_));
    view.SetUseColor(arguments_.useColor);
    view.SetUseConstraints(useConstraints_);
    view.NumSimulations(arguments_.numSimulations);
    view.ErrorOnAxisFactors(fromDesignSpace_, arguments_.errorOnAxisFactors);
    view.ErrorOnConstantFactors(fromDesignSpace_, arguments_.errorOnConstantFactors);
    view.DistributionOnFactors(arguments_.distribution);
    view.AnalyticalProbability(arguments_.analyticalProbability);
    section->WriteKey(kIniIncludeModelError, arguments_.includeModelError);
    section->WriteKey(kIniContourLabels, arguments_.useContourLabels);
}

void ContourPageData::SaveSettings(const std::string& iniFile) const {
    SaveSettings(IniFileFactory::Instance()->GetIniFile(iniFile, "").get());
}

void ContourPageData::LoadSettings(const std::string& iniFile) {
    std::unique_ptr<IniFileSection> section = IniFileFactory::Instance()->GetIniFile(iniFile, "");
    if (!section) {
        section = std::make_unique<IniFileSection>();
    }
    const ContourPlotIniSection view(*section, isDSProbability_);
    if (const int axis = NumberOf(kAxisTexts, view.GetAxisType()); axis >= 0) {
        axisType_ = static_cast<AxisType>(axis);
    }
    if (isDSProbability_) {
        SetPlotType(ds_probability);
    } else if (const int type = NumberOf(kTypeTexts, view.GetPlotType()); type >= 0) {
        SetPlotType(static_cast<Type>(type));
    }
    arguments_.useColor = view.UseColor();
    useConstraints_ = view.UseConstraints();
    arguments_.surfaceHidden = hideSurface_;
    arguments_.isProbabilityPlot = isDSProbability_;
    arguments_.fromDesignSpaceKey = fromDesignSpace_;
    arguments_.numSimulations = view.NumSimulations();
    arguments_.errorOnAxisFactors = view.ErrorOnAxisFactors(fromDesignSpace_);
    arguments_.errorOnConstantFactors = view.ErrorOnConstantFactors(fromDesignSpace_);
    arguments_.distribution = view.DistributionOnFactors();
    arguments_.analyticalProbability = view.AnalyticalProbability();
    ReadGeneralSettings();
    section->ReadKey(kIniIncludeModelError, arguments_.includeModelError);
    section->ReadKey(kIniContourLabels, arguments_.useContourLabels);
}

void ContourPageData::WriteSection(ConfigurationSection* section) const {
    if (!section) {
        throw InvalidArgument("ContourPageData::WriteSection");
    }
    section->GetSection(kSection)->Clear();
    const std::unique_ptr<ConfigurationSection> child = section->GetSection(kSection);
    const bool fromDesignSpace = arguments_.fromDesignSpaceKey;
    child->WriteKey(kPlotType, static_cast<int>(plotType_));
    child->WriteKey(kISDSProbability, isDSProbability_);
    child->WriteKey(kHideSurface, hideSurface_);
    child->WriteKey(kISDesirability, isDesirability_);
    child->WriteKey(kAxisType, static_cast<int>(axisType_));
    child->WriteKey(kUseConstraints, useConstraints_);
    child->WriteKey(kHaveConstraints, haveConstraints_);
    child->WriteKey(kUseDummyData, useDummyData_);
    child->WriteKey(kMixtureMode, arguments_.mixtureMode);
    child->WriteKey(kUseColor, arguments_.useColor);
    child->WriteKey(kScaleEqual, arguments_.scaleEqual);
    child->WriteKey(kUseContourLabels, arguments_.useContourLabels);
    child->WriteKey(kHasContourLabels, arguments_.hasContourLabels);
    child->WriteKey(kIsProbabilityPlot, arguments_.isProbabilityPlot);
    child->WriteKey(kFromDesignSpace, fromDesignSpace);
    child->WriteKey(kNumSimulations, arguments_.numSimulations);
    child->WriteKey(AxisErrorKey(fromDesignSpace), arguments_.errorOnAxisFactors);
    child->WriteKey(ConstantErrorKey(fromDesignSpace), arguments_.errorOnConstantFactors);
    child->WriteKey(kDistribution, arguments_.distribution);
    child->WriteKey(kAnalyticalProbability, arguments_.analyticalProbability);
    child->WriteKey(kDSOutput, arguments_.dsOutput);
    child->WriteKey(kIncludeModelError, arguments_.includeModelError);
    child->WriteKey(kDPMOTarget, arguments_.dpmoTarget);
    child->WriteKey(kBackTransformedFactors, arguments_.backTransformedFactors);
    child->WriteKey(kIntervalType, CIntervalType::GetString(arguments_.intervalType));
    CConfLev::WriteSection(child.get(), kConfLev, arguments_.confLev);
    CConfLev::WriteSection(child.get(), kTolProp, arguments_.tolProp);
    Save(section);
}

bool ContourPageData::ReadSection(const ConfigurationSection* section) {
    if (!section || !section->HasSection(kSection, true)) {
        return false;
    }
    const std::unique_ptr<const ConfigurationSection> child = section->GetSection(kSection);
    if (!ReadRequired(*child)) {
        return false;
    }
    ReadOptional(*child);
    ReadLevels(*child, *section);
    Read(section);
    return true;
}

bool ContourPageData::ReadRequired(const ConfigurationSection& section) {
    int type = 0;
    if (!section.ReadKey(kPlotType, type)) {
        return false;
    }
    hideSurface_ = ReadOrFalse(section, kHideSurface);
    isDSProbability_ = ReadOrFalse(section, kISDSProbability);
    isDesirability_ = ReadOrFalse(section, kISDesirability);
    if (isDSProbability_) {
        plotType_ = ds_probability;
    } else if (IsKnown(type, kTypeTexts.size())) {
        plotType_ = static_cast<Type>(type);
    }
    int axis = 0;
    if (!section.ReadKey(kAxisType, axis)) {
        return false;
    }
    if (IsKnown(axis, kAxisTexts.size())) {
        axisType_ = static_cast<AxisType>(axis);
    }
    if (!section.ReadKey(kUseConstraints, useConstraints_) ||
        !section.ReadKey(kHaveConstraints, haveConstraints_) ||
        !section.ReadKey(kUseDummyData, useDummyData_) ||
        !section.ReadKey(kMixtureMode, arguments_.mixtureMode) ||
        !section.ReadKey(kUseColor, arguments_.useColor) ||
        !section.ReadKey(kScaleEqual, arguments_.scaleEqual) ||
        !section.ReadKey(kUseContourLabels, arguments_.useContourLabels)) {
        return false;
    }
    // The stored flag itself never counts. Without it a file is of a version in which the axis type
    // decided; both values go through one variable, as the format has it.
    arguments_.hasContourLabels =
        section.ReadKey(kHasContourLabels, axis) ? HasContourLabels(plotType_) : axis == mixture;
    return true;
}

void ContourPageData::ReadOptional(const ConfigurationSection& section) {
    arguments_.isProbabilityPlot = isDSProbability_;
    arguments_.surfaceHidden = hideSurface_;
    section.ReadKey(kFromDesignSpace, arguments_.fromDesignSpaceKey);
    const bool fromDesignSpace = arguments_.fromDesignSpaceKey;
    section.ReadKey(kNumSimulations, arguments_.numSimulations);
    section.ReadKey(AxisErrorKey(fromDesignSpace), arguments_.errorOnAxisFactors);
    section.ReadKey(kAnalyticalProbability, arguments_.analyticalProbability);
    section.ReadKey(ConstantErrorKey(fromDesignSpace), arguments_.errorOnConstantFactors);
    arguments_.distribution = section.ReadKeyOr(kDistribution, 1);
    section.ReadKey(kDSOutput, arguments_.dsOutput);
    section.ReadKey(kIncludeModelError, arguments_.includeModelError);
    section.ReadKey(kDPMOTarget, arguments_.dpmoTarget);
    section.ReadKey(kBackTransformedFactors, arguments_.backTransformedFactors);
}

// Older files hold the confidence level as text, no tolerance proportion, and the interval as yes
// or no in the outer section.
void ContourPageData::ReadLevels(const ConfigurationSection& section,
                                 const ConfigurationSection& outer) {
    std::string text;
    if (!CConfLev::ReadSection(&section, kConfLev, arguments_.confLev) &&
        section.ReadKey(kConfLev, text)) {
        if (const CConfLev::ConfLev level = CConfLev::GetEnum(text); level != CConfLev::Unknown) {
            arguments_.confLev = level;
        }
    }
    if (!CConfLev::ReadSection(&section, kTolProp, arguments_.tolProp)) {
        arguments_.tolProp = CConfLev::Level95;
    }
    if (section.ReadKey(kIntervalType, text)) {
        const CIntervalType::IntervalType type = CIntervalType::GetEnum(text);
        if (type != CIntervalType::Unknown) {
            arguments_.intervalType = type;
        }
    } else if (outer.ReadKey(kOldInterval, text)) {
        arguments_.intervalType =
            text == "yes" ? CIntervalType::Prediction : CIntervalType::Confidence;
    }
}

}  // namespace kvopt
