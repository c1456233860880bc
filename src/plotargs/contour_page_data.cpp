#include "kvopt/plotargs/contour_page_data.h"

#include "kvopt/stores/user_profile.h"
#include "kvopt/study/design_space_predictor.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/settings.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/exceptions.h"
#include "plotargs_texts.h"

namespace kvopt {
namespace {

struct ProfileKeys {
    const char* resolution;
    int defaultResolution;
    const char* mixtureResolution;
};
constexpr const char* kProfileSection = "Plot";
constexpr int kDefaultMixtureResolution = 64;

ProfileKeys KeysOf(bool isDSProbability) {
    constexpr int kProbabilityResolution = 16;
    constexpr int kContourResolution = 32;
    return isDSProbability
               ? ProfileKeys{"ProbabilityResolution", kProbabilityResolution,
                             "ProbabilityMixtureResolution"}
               : ProfileKeys{"ContourResolution", kContourResolution, "MixtureContourResolution"};
}

Investigation& Checked(Investigation* investigation) {
    if (!investigation) {
        throw InvalidArgument("ContourPageData::ContourPageData");
    }
    return *investigation;
}

bool FewProcessFactors(const Investigation& investigation) {
    return investigation.GetVariables()->GetCount(CEVar::ProcessFactors) <= 1;
}

}  // namespace

const int ContourPageData::miMaxResponses[5] = {-1, 1, -1, 1, -1};

ContourPageData::ContourPageData(Investigation* investigation, bool isDSProbability,
                                 bool fromDesignSpace, bool hideSurface, bool isDesirability)
    : SelectResponses(&Checked(investigation), true),
      plotType_(isDSProbability ? ds_probability : contour_2D),
      axisType_(FewProcessFactors(*investigation) ? mixture : process),
      haveConstraints_(investigation->GetVariables()->GetConstraints() != nullptr),
      isDSProbability_(isDSProbability),
      fromDesignSpace_(fromDesignSpace),
      hideSurface_(hideSurface),
      isDesirability_(isDesirability) {
    arguments_.mixtureMode = axisType_ == mixture;
    ReadRegistrySettings();
    arguments_.scaleEqual = plotType_ == ds_probability;
    arguments_.isProbabilityPlot = isDSProbability;
    arguments_.surfaceHidden = hideSurface;
    ReadGeneralSettings();

    const DesignSpaceOptions options = investigation->GetDesignSpacePredictor()->GetOptions();
    arguments_.dpmoTarget = options.dpmoLimit;
    arguments_.confLev = options.confidenceLevel;
    arguments_.tolProp = options.toleranceProportion;
    arguments_.intervalType = options.intervalType;
}

void ContourPageData::ReadGeneralSettings() {
    const GeneralSettings::Settings& settings = GeneralSettings::Instance();
    arguments_.dsOutput = settings.dsOutput;
    arguments_.backTransformedFactors = settings.backTransformedFactors != 0;
}

void ContourPageData::SetPlotType(Type type) {
    plotType_ = isDSProbability_ ? ds_probability : type;
    arguments_.hasContourLabels = HasContourLabels(type);
}

bool ContourPageData::HasContourLabels(Type type) {
    return type == contour_2D || type == contour_4D || type == ds_probability;
}

const wchar_t* ContourPageData::GetTypeName() const {
    static const std::wstring designRegion = texts::kPlotDesignRegion.Wide();
    static const std::wstring contour = texts::kPlotResponseContour.Wide();
    static const std::wstring surface = texts::kPlotResponseSurface.Wide();
    static const std::wstring desirability = texts::kPlotDesirability.Wide();
    static const std::wstring designSpace = texts::kPlotDesignSpace.Wide();
    if (useDummyData_) {
        return designRegion.c_str();
    }
    switch (plotType_) {
        case contour_2D:
        case contour_4D:
            return contour.c_str();
        case surface_3D:
        case surface_4D:
            return surface.c_str();
        case ds_probability:
            return (isDesirability_ ? desirability : designSpace).c_str();
    }
    return L"";
}

void ContourPageData::ReadRegistrySettings() {
    const ProfileKeys keys = KeysOf(isDSProbability_);
    const UserProfile& profile = *UserProfile::Instance();
    arguments_.resolution =
        profile.GetProfileInteger(kProfileSection, keys.resolution, keys.defaultResolution);
    arguments_.mixtureResolution = profile.GetProfileInteger(
        kProfileSection, keys.mixtureResolution, kDefaultMixtureResolution);
}

void ContourPageData::SaveRegistrySettings() const {
    const ProfileKeys keys = KeysOf(isDSProbability_);
    UserProfile& profile = *UserProfile::Instance();
    profile.WriteProfileInteger(kProfileSection, keys.resolution, arguments_.resolution);
    profile.WriteProfileInteger(kProfileSection, keys.mixtureResolution,
                                arguments_.mixtureResolution);
}

}  // namespace kvopt
