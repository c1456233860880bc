#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/study/axis_info.h"
#include "kvopt/study/factor_constants.h"

namespace kvopt {

class ConfigurationSection;
class ConstantsIndex;
class FactorClass;
class IniFactorConstant;
class IniFileSection;
class Investigation;
class ReportOverRideOptions;

/// What every plot argument object holds: several alternative sets of axes, a default axis for each
/// factor, the constants of the factors that lie on no axis, and the ini section in which the
/// choices of the last plot are remembered.
///
/// Owns its axes and constants, which pages refer to for as long as they live; never owns the
/// study, which outlives it. Sets, positions and default axes are one-based: element 0 of the list
/// of sets is an empty set, and element 0 of each set and of the defaults is an empty pointer.
///
/// Wherever an operation takes a set, a number below zero stands for the set of GetUsedAxisIx(), a
/// number past the last set throws InvalidArgument, and only positions that exist are touched.
///
/// A copy clones its axes and constants and has no ini section: it reads as from an empty one, and
/// writing settings throws InvalidArgument. An assignment *shares* the axes, the constants and the
/// ini section of its source.
class KVOPT_EXPORT WizardPlotData {
public:
    /// Which section of a store holds the axes.
    enum PlotAxisType : int {
        ContourAxis = 0,         ///< "ContourAxis"
        ContourAxis2D = 1,       ///< "ContourAxis2D"
        ContourAxisMixture = 2,  ///< "ContourAxisMixture"
        ContourAxis4D = 3,       ///< "ContourAxis4D"
        YPredictedAxis = 4,      ///< "YPredictedAxis"
    };

    /// Opens the ini file, orders the default axes by what the factors contribute, and fills the
    /// constants with the start of the optimizer or what the ini file remembers. The constants have
    /// room for `maxConstants` or for every factor, whichever is more. A null study and a number
    /// below zero throw InvalidArgument; an ini file that cannot be had counts as empty.
    WizardPlotData(Investigation* investigation, int numAxisSets, int maxNumAxis, int maxConstants,
                   const std::string& iniFile);
    WizardPlotData(const WizardPlotData& other);
    WizardPlotData& operator=(const WizardPlotData& other);
    virtual ~WizardPlotData();

    /// The axis set that the present plot type uses.
    virtual int GetUsedAxisIx() const = 0;
    /// Applies a report's axes, to every set, and its constants. Null does nothing.
    virtual void OverRideOptions(const ReportOverRideOptions* options);
    /// Free text for the header of the plot.
    virtual std::wstring ExtraHeaderInformation() const;
    void SetExtraHeaderInformation(const std::wstring& text) { extraHeaderInformation_ = text; }

    /// The axes of a set; the set 0 is empty.
    std::vector<std::shared_ptr<AxisInfo>>& GetAxisInfo(int set);
    const std::vector<std::shared_ptr<AxisInfo>>& GetAxisInfo(int set) const;
    /// One axis for each factor that may be plotted, in the order of preference.
    std::vector<std::shared_ptr<AxisInfo>>& GetAxisDefaults() { return axisDefaults_; }
    const std::vector<std::shared_ptr<AxisInfo>>& GetAxisDefaults() const { return axisDefaults_; }
    /// The number of factors of the study, which may be more than the defaults hold.
    int GetNumDefaults() const { return numDefaults_; }
    /// The most axes that a set can hold.
    int GetMaxNumAxis() const { return maxNumAxis_; }
    /// The first constant that is not defined ends the array.
    std::shared_ptr<FactorConstants::Constant[]> GetConstants() { return constants_; }
    FactorConstants::Constant* GetPlotConstants() const { return constants_.get(); }
    const Investigation* GetInvestigation() const { return investigation_; }
    /// The name given to the constructor.
    std::string GetIniFile() const { return iniFile_; }

    /// How many factors that may be plotted and are not held constant lie on none of the first
    /// `numAxes` axes.
    int AvailableConstants(const std::vector<std::shared_ptr<AxisInfo>>& axes, int numAxes) const;
    /// How many of the first `numAxes` axes are used and available for the model of the response.
    int NumAxesLegal(const char* response, int set, int numAxes) const;
    /// Makes each used axis that is not available for the model of the response unused; answers how
    /// many there were.
    int RemoveIllegalAxes(const char* response, int set, int numAxes);

    /// Whether settings can be written: false for a copy, and when the ini file could not be had.
    /// Writing them then throws InvalidArgument.
    bool HasIniSection() const { return iniSection_ != nullptr; }
    /// Remembers the axes and the constants in the study's ini file; not flushed.
    void WriteSettings(PlotAxisType type, int set, int numAxes) const;
    /// A saved plot. Reading answers false without the section of the type, and at an axis whose
    /// factor is gone or may not be plotted; what was read until then stays changed.
    void WriteSection(ConfigurationSection* section, PlotAxisType type, int set, int numAxes) const;
    bool ReadSection(const ConfigurationSection* section, PlotAxisType type, int set, int numAxes);

protected:
    /// Builds the vectors; for the constructor alone.
    void Init(int numAxisSets, int maxNumAxis, int maxConstants);
    /// The name of a section; empty for a number that is no type.
    std::string GetAxisTypeString(PlotAxisType type) const;
    /// The ini key of a one-based axis position; empty for one that is not there.
    std::string GetDefaultAxisName(int position) const;
    /// Replaces the defaults by as many empty pointers.
    void CreateAxisDefaults(int count);

    /// The array of constants, for a step that goes through all factors.
    ConstantsIndex IndexConstants() const;
    Investigation* MutableInvestigation() const { return investigation_; }
    /// The ini section, or an empty one that is kept nowhere.
    std::shared_ptr<IniFileSection> IniForReading() const;
    /// The ini section; without one, InvalidArgument with the name of the operation.
    IniFileSection& IniForWriting(const char* operation) const;
    /// One axis: its name under the key of a position in the section of the type, and its range or
    /// its settings in the section of its factor. Without a name only the former.
    void WriteAxis(IniFileSection& ini, PlotAxisType type, int keyPosition,
                   const AxisInfo& axis) const;
    /// Name and range of a quantitative factor, from the factor's section, which `ini` stands in. A
    /// limit that is not there is the factor's own.
    static void ReadRange(IniFileSection& ini, AxisInfo& axis, const FactorClass& factor);
    /// The settings in the factor's section, which `ini` stands in; empty when there are none.
    static std::string ReadQualitativeSettings(IniFileSection& ini);
    /// The axis at a position of a set; null when there is none.
    AxisInfo* FindAxis(int set, int position) const;

private:
    std::size_t SetIndex(int set) const;
    void InitAxisDefaults();
    void OrderDefaultsByContribution();
    void DropUnavailableDefaults();
    void InitConstInfo();
    void InitQuantitativeConstant(const FactorClass& factor, float start,
                                  const IniFactorConstant& remembered,
                                  ConstantsIndex& constants) const;
    static void InitQualitativeConstant(const FactorClass& factor, float start,
                                        const IniFactorConstant& remembered,
                                        ConstantsIndex& constants);
    void AllocateConstants(int capacity);
    bool IsStored(const FactorClass& factor) const;
    FactorConstants::Constant DefaultConstant(const FactorClass& factor) const;
    bool ReadAxes(const ConfigurationSection& section, int set, int numAxes);
    bool ReadConstants(const ConfigurationSection& section);

    Investigation* investigation_;
    std::shared_ptr<IniFileSection> iniSection_;
    std::wstring extraHeaderInformation_;
    std::string iniFile_;
    int maxNumAxis_ = 0;
    int numAxisSets_ = 0;
    int maxConstants_ = 0;
    std::vector<std::vector<std::shared_ptr<AxisInfo>>> axisInfo_;
    std::vector<std::string> defaultAxisNames_;
    std::vector<std::string> axisTypeStrings_;
    std::vector<std::shared_ptr<AxisInfo>> axisDefaults_;
    int numDefaults_ = 0;
    std::shared_ptr<FactorConstants::Constant[]> constants_;
    int constantCapacity_ = 0;
};

}  // namespace kvopt
