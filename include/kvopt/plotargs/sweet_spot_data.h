#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/plotargs/wizard_plot_data.h"

namespace kvopt {

/// The arguments of a sweet spot plot, which marks where all responses meet their limits: three
/// axis sets of at most five axes, of which the plot type selects one, in process or mixture form.
///
/// The axes of a new object hold nothing: pages and the axis helpers choose them.
class KVOPT_EXPORT SweetSpotData : public WizardPlotData {
public:
    /// The plot type is the number of its axis set too.
    enum PlotType : int {
        NoPlot = 0,       ///< what an unknown stored number reads as; it has no axes
        SweetSpot = 1,    ///< two axes, three in mixture form
        SweetSpot4D = 2,  ///< four axes, five in mixture form
    };

    /// Resolutions from the user's profile. Throws as WizardPlotData does.
    SweetSpotData(Investigation* investigation, bool mixture, const std::string& iniFile);
    SweetSpotData(const SweetSpotData& other);
    SweetSpotData& operator=(const SweetSpotData& other);
    ~SweetSpotData() override;

    /// The plot type.
    int GetUsedAxisIx() const override { return plotType_; }
    /// This class's own text, which a copy keeps.
    std::wstring ExtraHeaderInformation() const override { return extraHeaderInformation_; }
    void SetExtraHeaderInformation(const std::wstring& text) { extraHeaderInformation_ = text; }

    PlotType GetPlotType() const { return plotType_; }
    void SetPlotType(PlotType type) { plotType_ = type; }
    /// The grid of the present plot type: that of the 4D plot, else that of the plot with two axes.
    int GetResolution() const;
    void SetResolution(int resolution);
    bool IsMixture() const { return mixture_; }
    /// Adds the constants that are missing when the form changes; nothing when it does not.
    void SetMixture(bool mixture);
    bool UseConstraints() const { return useConstraints_; }
    void SetUseConstraints(bool use) { useConstraints_ = use; }
    /// Whether the plot is a surface.
    bool IsSurface() const { return surface_; }
    void SetIsSurface(bool surface) { surface_ = surface; }
    /// Whether contour levels are labelled.
    bool IsShowLabels() const { return showLabels_; }
    void ShowLabels(bool show) { showLabels_ = show; }
    bool IsCreatedFromOptimizer() const { return createdFromOptimizer_; }
    void SetCreatedFromOptimizer(bool created) { createdFromOptimizer_ = created; }
    /// Whether the host forbids the mixture form.
    bool GetOverrideDisableMixture() const { return overrideDisableMixture_; }
    void SetOverrideDisableMixture(bool disable) { overrideDisableMixture_ = disable; }
    bool GetBackTransformedFactors() const { return backTransformedFactors_; }

    /// Walks the default axes for as many as the form needs, and names no axis: unlike those of
    /// other plots the sets stay as they are.
    void InitAxisInfo();
    /// Adds a constant for each available factor that has none: the reference value, or the first
    /// setting; "Random" for a random block effect. Changes none that is there.
    virtual void InitConstInfo();

    /// Both resolutions, in the user's profile.
    void ReadRegistrySettings();
    void SaveRegistrySettings() const;

    /// A saved plot. Reading answers false without "Mixture", as WizardPlotData does for the axes,
    /// and without the section "SweetSpot"; what was read until then stays changed. A form that the
    /// factors of the models do not allow becomes the other one. Resolutions are not kept.
    void WriteSection(ConfigurationSection* section) const;
    bool ReadSection(const ConfigurationSection* section);

private:
    bool MixtureFromStored(int stored) const;

    PlotType plotType_ = SweetSpot;
    std::wstring extraHeaderInformation_;
    int resolution_ = 128;
    int resolution4D_ = 64;
    bool useConstraints_ = true;
    bool mixture_;
    bool createdFromOptimizer_ = false;
    bool overrideDisableMixture_ = false;
    bool surface_ = false;
    bool backTransformedFactors_ = false;
    bool showLabels_ = true;
};

}  // namespace kvopt
