#include "kvopt/plotargs/contour_plot_data.h"

#include "kvopt/plotargs/contour_page_data.h"
#include "kvopt/stores/ini_file_section.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/exceptions.h"
#include "kvopt/text/not_set.h"

namespace kvopt {
namespace {

constexpr int kAxisSets = 5;
constexpr int kMaxAxes = 5;
constexpr int kExtraAxes = 2;  // the outer pair of a 4D plot

// A row for each ContourPlotData::AxisType.
struct AxisSet {
    WizardPlotData::PlotAxisType section;
    int numAxes;
};
constexpr AxisSet kSets[] = {
    {WizardPlotData::ContourAxis, 0},         // NoAxes
    {WizardPlotData::ContourAxis2D, 2},       // Process2D
    {WizardPlotData::ContourAxis2D, 4},       // Process4D
    {WizardPlotData::ContourAxisMixture, 3},  // Mixture2D
    {WizardPlotData::ContourAxisMixture, 5},  // Mixture4D
};

const AxisSet& RowOf(ContourPlotData::AxisType type) {
    const auto row = static_cast<std::size_t>(type);
    return kSets[row < std::size(kSets) ? row : 0];
}

// The plot axes come before the outer pair.
int PlotAxes(ContourPlotData::AxisType type) {
    return type == ContourPlotData::Mixture4D ? 3 : 2;
}

}  // namespace

ContourPlotData::ContourPlotData(Investigation* investigation, int maxConstants,
                                 const std::string& iniFile, bool isDSProbability,
                                 bool fromDesignSpace, bool hideSurface, bool isDesirability)
    : WizardPlotData(investigation, kAxisSets, kMaxAxes, maxConstants, iniFile) {
    Init(isDSProbability, fromDesignSpace, hideSurface, isDesirability);
}

ContourPlotData::ContourPlotData(const ContourPlotData& other)
    : WizardPlotData(other),
      contourTypeData_(std::make_unique<ContourPageData>(*other.contourTypeData_)) {}

ContourPlotData& ContourPlotData::operator=(const ContourPlotData& other) {
    WizardPlotData::operator=(other);
    // Written into and not replaced: pages may refer to it.
    *contourTypeData_ = *other.contourTypeData_;
    return *this;
}

ContourPlotData::~ContourPlotData() = default;

void ContourPlotData::Init(bool isDSProbability, bool fromDesignSpace, bool hideSurface,
                           bool isDesirability) {
    if (!contourTypeData_) {
        contourTypeData_ = std::make_unique<ContourPageData>(
            MutableInvestigation(), isDSProbability, fromDesignSpace, hideSurface, isDesirability);
        if (isDSProbability) {
            contourTypeData_->SetPlotType(ContourPageData::ds_probability);
        }
        contourTypeData_->LoadSettings(GetIniFile());
    }
    InitAxisInfo();
}

int ContourPlotData::GetUsedAxisIx() const {
    int numAxes = 0;
    GetSelectedAxisInfo(numAxes);
    return GetAxisType();
}

bool ContourPlotData::FromOptimizer() const {
    return false;
}

ContourPlotData::AxisType ContourPlotData::GetAxisType() const {
    const bool mixture = contourTypeData_->GetAxisType() == ContourPageData::mixture;
    switch (contourTypeData_->GetPlotType()) {
        case ContourPageData::contour_2D:
        case ContourPageData::surface_3D:
            return mixture ? Mixture2D : Process2D;
        case ContourPageData::contour_4D:
        case ContourPageData::surface_4D:
        case ContourPageData::ds_probability:
            return mixture ? Mixture4D : Process4D;
    }
    return NoAxes;
}

ContourPlotData::AxisType ContourPlotData::KnownAxisType() const {
    const AxisType type = GetAxisType();
    if (type == NoAxes) {
        throw InvalidArgument("ContourPlotData::GetSelectedAxisInfo");
    }
    return type;
}

std::vector<std::shared_ptr<AxisInfo>>& ContourPlotData::GetSelectedAxisInfo(int& numAxes) {
    const AxisType type = KnownAxisType();
    numAxes = RowOf(type).numAxes;
    return GetAxisInfo(type);
}

const std::vector<std::shared_ptr<AxisInfo>>& ContourPlotData::GetSelectedAxisInfo(
    int& numAxes) const {
    const AxisType type = KnownAxisType();
    numAxes = RowOf(type).numAxes;
    return GetAxisInfo(type);
}

int ContourPlotData::AvailableConstants() const {
    int numAxes = 0;
    const std::vector<std::shared_ptr<AxisInfo>>& axes = GetSelectedAxisInfo(numAxes);
    return AvailableConstants(axes, numAxes);
}

void ContourPlotData::InitAxisInfo() {
    const std::shared_ptr<IniFileSection> ini = IniForReading();
    for (int set = 1; set <= kAxisSets; ++set) {
        const bool mixture = set == Mixture2D || set == Mixture4D;
        for (int position = 1; position <= (mixture ? 3 : 2); ++position) {
            InitPlotAxis(*ini, set, position, mixture ? ContourAxisMixture : ContourAxis2D);
        }
    }
    for (int pass = 1; pass <= 2; ++pass) {
        for (int position = 1; position <= kExtraAxes; ++position) {
            InitExtraAxis(*ini, pass, position);
        }
    }
}

std::string ContourPlotData::ReadAxisName(IniFileSection& ini, PlotAxisType type,
                                          int position) const {
    ini.SetSection(GetAxisTypeString(type).c_str());
    return ini.ReadKeyOr(GetDefaultAxisName(position).c_str(), std::string());
}

void ContourPlotData::InitPlotAxis(IniFileSection& ini, int set, int position, PlotAxisType type) {
    const std::string name = ReadAxisName(ini, type, position);
    if (name.empty()) {
        return;
    }
    AxisInfo& axis = *FindAxis(set, position);
    ini.SetSection(name.c_str());
    const FactorClass* factor = GetInvestigation()->GetVariables()->GetFactor(name);
    if (!factor) {
        axis.SetRange(kNotSetF, kNotSetF);
    } else if (!factor->IsQualitative()) {
        ReadRange(ini, axis, *factor);
    } else if (const std::string settings = ReadQualitativeSettings(ini); !settings.empty()) {
        axis.SetName(name);
        axis.SetSettings(settings);
    }
}

void ContourPlotData::InitExtraAxis(IniFileSection& ini, int pass, int position) {
    const std::string name = ReadAxisName(ini, ContourAxis4D, position);
    if (name.empty() || AxisInfo::IsNotUsedName(name)) {
        return;
    }
    const AxisType set = pass == 1 ? Process4D : Mixture4D;
    AxisInfo& axis = *FindAxis(set, PlotAxes(set) + position);
    // Two axes are compared, also of the mixture set, which has three before the pair.
    for (int plotAxis = 1; plotAxis <= 2; ++plotAxis) {
        if (FindAxis(set, plotAxis)->Compare(name.c_str()) == 0) {
            axis.SetName(AxisInfo::GetNotUsedName());
            return;
        }
    }
    ini.SetSection(name.c_str());
    const FactorClass* factor = GetInvestigation()->GetVariables()->GetFactor(name);
    if (!factor) {
        // The range of a plot axis of the set that the pass counts, and not that of the pair.
        FindAxis(pass, position)->SetRange(kNotSetF, kNotSetF);
    } else if (!factor->IsQualitative()) {
        ReadRange(ini, axis, *factor);
    } else {
        const std::string settings = ReadQualitativeSettings(ini);
        axis.SetName(name);
        axis.SetSettings(settings.empty() ? GetInvestigation()->GetVariables()->GetSetting(name, 1)
                                          : settings);
    }
}

void ContourPlotData::WriteSettings(PlotAxisType type, int set, int numAxes, bool flush) const {
    WizardPlotData::WriteSettings(type, set, numAxes);
    IniFileSection& ini = IniForWriting("ContourPlotData::WriteSettings");
    for (int i = 1; i <= numAxes; ++i) {
        if (const AxisInfo* axis = FindAxis(set, i)) {
            WriteAxis(ini, ContourAxis, i, *axis);
        }
    }
    contourTypeData_->SaveSettings(&ini);
    if (flush) {
        ini.Flush();
    }
}

void ContourPlotData::Write4DSettings(AxisType axisType) const {
    const int plotAxes = PlotAxes(axisType);
    WriteSettings(RowOf(axisType).section, axisType, plotAxes, false);
    IniFileSection& ini = IniForWriting("ContourPlotData::Write4DSettings");
    for (int i = 1; i <= kExtraAxes; ++i) {
        if (const AxisInfo* axis = FindAxis(axisType, plotAxes + i)) {
            WriteAxis(ini, ContourAxis4D, i, *axis);
        }
    }
    ini.Flush();
}

void ContourPlotData::WriteSection(ConfigurationSection* section) const {
    const AxisType type = KnownAxisType();
    WizardPlotData::WriteSection(section, RowOf(type).section, type, RowOf(type).numAxes);
    contourTypeData_->WriteSection(section);
}

bool ContourPlotData::ReadSection(const ConfigurationSection* section) {
    if (!contourTypeData_->ReadSection(section)) {
        return false;
    }
    const AxisType type = KnownAxisType();
    return WizardPlotData::ReadSection(section, RowOf(type).section, type, RowOf(type).numAxes);
}

}  // namespace kvopt
