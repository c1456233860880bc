#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/selection/select_responses.h"
#include "kvopt/study/enum_helpers.h"

namespace kvopt {

class ConfigurationSection;
class IniFileSection;
class Investigation;

/// Everything of a contour, surface or design space plot that is no axis and no constant: the plot
/// type, process or mixture, resolutions, colours and labels, the simulation of a design space
/// plot, and, through its base, the selected responses.
///
/// Three stores remember it, and they do not hold the same things: the user's profile the
/// resolutions, the study's ini file what a wizard proposes next time, a saved plot nearly all.
class KVOPT_EXPORT ContourPageData : public SelectResponses {
public:
    enum Type : int {
        contour_2D = 0,
        contour_4D = 1,
        surface_3D = 2,
        surface_4D = 3,
        ds_probability = 4,
    };
    enum AxisType : int {
        process = 0,
        mixture = 1,
    };

    /// How many responses may be selected, by plot type; -1 for any number.
    static const int miMaxResponses[5];

    /// What the options pages edit in place.
    struct Arguments {
        bool mixtureMode = false;
        int resolution = 0;
        int mixtureResolution = 0;
        bool useColor = true;
        bool scaleEqual = false;
        bool useContourLabels = true;
        bool hasContourLabels = true;
        bool lockContourLevels = false;
        bool isProbabilityPlot = false;
        bool fromDesignSpaceKey = false;  ///< names the keys of the error switches in a saved plot
        int distribution = 1;
        int numSimulations = 10000;
        bool analyticalProbability = true;
        bool errorOnAxisFactors = true;
        bool errorOnConstantFactors = true;
        bool includeModelError = true;
        bool backTransformedFactors = false;
        int dsOutput = 0;
        int dpmoTarget = 0;  ///< 1 DPMO is 0.0001 %
        bool surfaceHidden = false;
        CConfLev::ConfLev confLev = CConfLev::None;
        CConfLev::ConfLev tolProp = CConfLev::None;
        CIntervalType::IntervalType intervalType = CIntervalType::None;

        bool operator==(const Arguments&) const = default;
    };

    /// Defaults from the user's profile, the general settings and the study's design space. A null
    /// study throws InvalidArgument.
    ContourPageData(Investigation* investigation, bool isDSProbability, bool fromDesignSpace,
                    bool hideSurface, bool isDesirability);

    Type GetPlotType() const { return plotType_; }
    /// A design space plot stays one, whatever the argument; whether there are contour labels
    /// follows the argument.
    void SetPlotType(Type type);
    /// Whether plots of this type have contour labels.
    static bool HasContourLabels(Type type);
    AxisType GetAxisType() const { return axisType_; }
    void SetAxisType(AxisType type) { axisType_ = type; }
    /// What the plot is called; a literal, empty for an unknown type.
    const wchar_t* GetTypeName() const;

    bool UseConstraints() const { return useConstraints_; }
    void UseConstraints(bool use) { useConstraints_ = use; }
    bool HaveConstraints() const { return haveConstraints_; }
    void SetHaveConstraints(bool have) { haveConstraints_ = have; }
    bool UseColor() const { return arguments_.useColor; }
    void SetUseColor(bool use) { arguments_.useColor = use; }
    /// The grid of a process plot.
    int Resolution() const { return arguments_.resolution; }
    void SetResolution(int resolution) { arguments_.resolution = resolution; }
    /// The grid of a mixture plot.
    int MixtureResolution() const { return arguments_.mixtureResolution; }
    void SetMixtureResolution(int resolution) { arguments_.mixtureResolution = resolution; }

    /// The constructor's flag, not the key of that name.
    bool FromDesignSpace() const { return fromDesignSpace_; }
    bool ISDSProbability() const { return isDSProbability_; }
    bool IsDesirability() const { return isDesirability_; }
    bool IsHideSurface() const { return hideSurface_; }
    bool GetOverrideDisableMixture() const { return overrideDisableMixture_; }
    void SetOverrideDisableMixture(bool disable) { overrideDisableMixture_ = disable; }
    bool UseDummyData() const { return useDummyData_; }
    void SetUseDummyData(bool use) { useDummyData_ = use; }

    Arguments& GetOptions() { return arguments_; }
    const Arguments& GetOptions() const { return arguments_; }

    /// Both resolutions; design space plots have keys of their own.
    void ReadRegistrySettings();
    void SaveRegistrySettings() const;

    /// What the study's ini file remembers. A missing key reads as the field's hard default. Moves
    /// neither mixtureMode nor scaleEqual, and no responses. A file that cannot be had reads as an
    /// empty one; writing to it, or to a null section, throws InvalidArgument.
    void LoadSettings(const std::string& iniFile);
    void SaveSettings(const std::string& iniFile) const;
    void SaveSettings(IniFileSection* section) const;

    /// A saved plot. Reading answers false at the first required key that is missing; what was read
    /// until then stays changed.
    void WriteSection(ConfigurationSection* section) const;
    bool ReadSection(const ConfigurationSection* section);

private:
    void ReadGeneralSettings();
    bool ReadRequired(const ConfigurationSection& section);
    void ReadOptional(const ConfigurationSection& section);
    void ReadLevels(const ConfigurationSection& section, const ConfigurationSection& outer);

    Type plotType_;
    AxisType axisType_;
    bool useConstraints_ = false;
    bool haveConstraints_;
    bool isDSProbability_;
    bool fromDesignSpace_;
    bool hideSurface_;
    bool isDesirability_;
    bool overrideDisableMixture_ = false;
    Arguments arguments_;
    bool useDummyData_ = false;
};

}  // namespace kvopt
