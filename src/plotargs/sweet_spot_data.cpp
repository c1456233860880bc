#include "kvopt/plotargs/sweet_spot_data.h"

#include <algorithm>
#include <memory>

#include "axes/axis_filters.h"
#include "constants_texts.h"
#include "kvopt/axes/use_factor.h"
#include "kvopt/stores/configuration_section.h"
#include "kvopt/stores/user_profile.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/model_spec.h"
#include "kvopt/study/response_model_utilities.h"
#include "kvopt/study/settings.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/exceptions.h"
#include "study/block_effect.h"
#include "study/constants_index.h"

namespace kvopt {
namespace {

constexpr int kAxisSets = 3;
constexpr int kMaxAxes = 5;

constexpr const char* kProfileSection = "Plot";
constexpr const char* kProfileResolution = "SweetSpotResolution";
constexpr const char* kProfileResolution4D = "SweetSpot4DResolution";

// The saved plot. The keys stand beside the section, which holds none and must be there.
constexpr const char* kSection = "SweetSpot";
constexpr const char* kMixture = "Mixture";
constexpr const char* kUseConstraints = "UseConstraints";
constexpr const char* kPlotType = "PlotType";
constexpr const char* kSurface = "Surface";
constexpr const char* kShowLabels = "ShowLabels";

struct AxisSet {
    WizardPlotData::PlotAxisType section;
    int numAxes;
};

AxisSet SetOf(SweetSpotData::PlotType type, bool mixture) {
    const bool is4D = type == SweetSpotData::SweetSpot4D;
    if (mixture) {
        return {WizardPlotData::ContourAxisMixture, is4D ? 5 : 3};
    }
    return is4D ? AxisSet{WizardPlotData::ContourAxis4D, 4}
                : AxisSet{WizardPlotData::ContourAxis2D, 2};
}

SweetSpotData::PlotType PlotTypeOf(int stored) {
    return stored == SweetSpotData::SweetSpot || stored == SweetSpotData::SweetSpot4D
               ? static_cast<SweetSpotData::PlotType>(stored)
               : SweetSpotData::NoPlot;
}

int FactorsOf(const Investigation* investigation) {
    return investigation ? investigation->GetVariables()->GetCount(CEVar::AllFactors) : 0;
}

}  // namespace

SweetSpotData::SweetSpotData(Investigation* investigation, bool mixture, const std::string& iniFile)
    : WizardPlotData(investigation, kAxisSets, kMaxAxes, FactorsOf(investigation), iniFile),
      mixture_(mixture) {
    ReadRegistrySettings();
    InitAxisInfo();
    SweetSpotData::InitConstInfo();
    backTransformedFactors_ = GeneralSettings::Instance().backTransformedFactors != 0;
}

SweetSpotData::SweetSpotData(const SweetSpotData& other) = default;
SweetSpotData& SweetSpotData::operator=(const SweetSpotData& other) = default;
SweetSpotData::~SweetSpotData() = default;

int SweetSpotData::GetResolution() const {
    return plotType_ == SweetSpot4D ? resolution4D_ : resolution_;
}

void SweetSpotData::SetResolution(int resolution) {
    (plotType_ == SweetSpot4D ? resolution4D_ : resolution_) = resolution;
}

void SweetSpotData::SetMixture(bool mixture) {
    if (mixture == mixture_) {
        return;
    }
    mixture_ = mixture;
    InitAxisInfo();
    InitConstInfo();
}

void SweetSpotData::InitAxisInfo() {
    const Variables& variables = *GetInvestigation()->GetVariables();
    const AxisFilters filters(&variables, GetInvestigation());
    const std::unique_ptr<UseFactor> filter =
        mixture_ ? filters.Mixture() : filters.NonQualitative();
    const auto& defaults = GetAxisDefaults();
    // Defaults of factors that may not be plotted were dropped, so there may be less than factors.
    const std::size_t end =
        std::min(static_cast<std::size_t>(FactorsOf(GetInvestigation())) + 1, defaults.size());
    std::size_t position = 1;
    for (int pass = 1; pass <= (mixture_ ? 3 : 2); ++pass) {
        bool accepted = false;
        while (!accepted && position < end) {
            const AxisInfo* axis = defaults[position++].get();
            const FactorClass* factor = axis ? variables.GetFactor(axis->GetName()) : nullptr;
            accepted = factor && (*filter)(factor, true);
        }
    }
}

void SweetSpotData::InitConstInfo() {
    const Variables& variables = *GetInvestigation()->GetVariables();
    const ResponseModelUtilities models(GetInvestigation());
    ConstantsIndex constants = IndexConstants();
    for (const FactorClass* factor : variables.GetAllFactors()) {
        const std::string& name = factor->GetName();
        if (!models.IsFactorAvailable(factor, true, false) || constants.Find(name) != nullptr ||
            !constants.HasRoom()) {
            continue;
        }
        if (!factor->IsQualitative()) {
            constants.Add(variables, *factor, FactorConstants::REF);
        } else if (name == kBlockFactorName && HasRandomBlockEffect(*GetInvestigation())) {
            constants.Add({name, texts::kConstantsRandomBlock.Text(), FactorConstants::LOW});
        } else {
            constants.Add(variables, *factor, FactorConstants::LOW);
        }
    }
}

void SweetSpotData::ReadRegistrySettings() {
    const UserProfile& profile = *UserProfile::Instance();
    resolution_ = profile.GetProfileInteger(kProfileSection, kProfileResolution, resolution_);
    resolution4D_ = profile.GetProfileInteger(kProfileSection, kProfileResolution4D, resolution4D_);
}

void SweetSpotData::SaveRegistrySettings() const {
    UserProfile& profile = *UserProfile::Instance();
    profile.WriteProfileInteger(kProfileSection, kProfileResolution, resolution_);
    profile.WriteProfileInteger(kProfileSection, kProfileResolution4D, resolution4D_);
}

void SweetSpotData::WriteSection(ConfigurationSection* section) const {
    if (!section) {
        throw InvalidArgument("SweetSpotData::WriteSection");
    }
    if (PlotTypeOf(plotType_) != NoPlot) {
        const AxisSet set = SetOf(plotType_, mixture_);
        WizardPlotData::WriteSection(section, set.section, plotType_, set.numAxes);
    }
    section->GetSection(kSection)->Clear();
    section->GetSection(kSection);
    section->WriteKey(kMixture, mixture_ ? 1 : 0);
    section->WriteKey(kUseConstraints, useConstraints_ ? 1 : 0);
    section->WriteKey(kPlotType, static_cast<int>(plotType_));
    section->WriteKey(kSurface, surface_);
    section->WriteKey(kShowLabels, showLabels_);
}

bool SweetSpotData::ReadSection(const ConfigurationSection* section) {
    int stored = 0;
    if (!section || !section->ReadKey(kMixture, stored)) {
        return false;
    }
    mixture_ = MixtureFromStored(stored);
    // Without the key the type is what "Mixture" holds.
    section->ReadKey(kPlotType, stored);
    plotType_ = PlotTypeOf(stored);
    if (plotType_ != NoPlot) {
        const AxisSet set = SetOf(plotType_, mixture_);
        if (!WizardPlotData::ReadSection(section, set.section, plotType_, set.numAxes)) {
            return false;
        }
    }
    if (!section->GetSection(kSection)) {
        return false;
    }
    useConstraints_ = section->ReadKeyOr(kUseConstraints, 1) == 1;
    section->ReadKey(kSurface, surface_);
    section->ReadKey(kShowLabels, showLabels_);
    return true;
}

bool SweetSpotData::MixtureFromStored(int stored) const {
    const Factors& factors = *GetInvestigation()->GetModelSpec()->GetFactors();
    // What the plot was before this reading: a surface has process axes.
    const bool processOnly = surface_ || factors.IsProcessOnly();
    return (stored == 1 && !processOnly) || (stored == 0 && factors.IsMixtureOnly());
}

}  // namespace kvopt
