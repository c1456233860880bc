#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/plotargs/wizard_plot_data.h"

namespace kvopt {

class ContourPageData;

/// The arguments of a contour, surface, 4D contour, 4D surface or design space plot: five axis sets
/// of at most five axes, and a ContourPageData with everything that is no axis and no constant.
///
/// Owns its ContourPageData; a copy and an assignment have one of their own, while axes, constants
/// and ini section go as WizardPlotData says.
class KVOPT_EXPORT ContourPlotData : public WizardPlotData {
public:
    /// The axis sets, by number. A fifth exists and is never selected.
    enum AxisType : int {
        NoAxes = 0,     ///< unknown plot type
        Process2D = 1,  ///< two axes, in "ContourAxis2D"
        Process4D = 2,  ///< four axes, in "ContourAxis2D"
        Mixture2D = 3,  ///< three axes, in "ContourAxisMixture"
        Mixture4D = 4,  ///< five axes, in "ContourAxisMixture"
    };

    /// Restores options and axes from the ini file. Throws as WizardPlotData does.
    ContourPlotData(Investigation* investigation, int maxConstants, const std::string& iniFile,
                    bool isDSProbability, bool fromDesignSpace, bool hideSurface,
                    bool isDesirability);
    ContourPlotData(const ContourPlotData& other);
    ContourPlotData& operator=(const ContourPlotData& other);
    ~ContourPlotData() override;

    /// Throws InvalidArgument on an unknown plot type.
    int GetUsedAxisIx() const override;
    virtual bool FromOptimizer() const;

    /// Never null; owned by this object.
    ContourPageData* GetContourTypeData() const { return contourTypeData_.get(); }
    /// The set of the present plot type; NoAxes for an unknown one.
    AxisType GetAxisType() const;
    /// The used set, and in `numAxes` how many of its axes the plot has. Throws InvalidArgument on
    /// an unknown plot type.
    std::vector<std::shared_ptr<AxisInfo>>& GetSelectedAxisInfo(int& numAxes);
    const std::vector<std::shared_ptr<AxisInfo>>& GetSelectedAxisInfo(int& numAxes) const;

    using WizardPlotData::AvailableConstants;
    /// Of the used set.
    int AvailableConstants() const;

    /// Axes, constants and options into the study's ini file. The axes also go to "ContourAxis",
    /// which mirrors the last plot of any kind and which nothing here reads.
    void WriteSettings(PlotAxisType type, int set, int numAxes, bool flush) const;
    /// The same for a 4D set, whose extra pair of axes goes to "ContourAxis4D"; always flushed.
    void Write4DSettings(AxisType axisType) const;

    /// A saved plot. Both throw InvalidArgument on an unknown plot type. Reading answers false as
    /// ContourPageData and WizardPlotData do; what was read until then stays changed.
    void WriteSection(ConfigurationSection* section) const;
    bool ReadSection(const ConfigurationSection* section);

protected:
    void Init(bool isDSProbability, bool fromDesignSpace, bool hideSurface, bool isDesirability);
    /// Restores the axes from the ini file.
    virtual void InitAxisInfo();

private:
    AxisType KnownAxisType() const;
    std::string ReadAxisName(IniFileSection& ini, PlotAxisType type, int position) const;
    void InitPlotAxis(IniFileSection& ini, int set, int position, PlotAxisType type);
    void InitExtraAxis(IniFileSection& ini, int pass, int position);

    std::unique_ptr<ContourPageData> contourTypeData_;
};

}  // namespace kvopt
