// One line for each class with a ReadSection; tests/fuzz tells when one is missing.

#include <string>
#include <vector>

#include "fuzz/targets.h"
#include "kvopt/host.h"
#include "kvopt/plotargs.h"
#include "kvopt/selection.h"
#include "kvopt/statpages.h"
#include "kvopt/study.h"
#include "kvopt/text/exceptions.h"

namespace kvopt::fuzz {
namespace {

// A study with process and mixture factors, without an ini file. What reads a section is copied
// from one that was made on the study before: that is much faster than making it.
ReferenceStudy& Study() {
    static ReferenceStudy study(
        ReadStudyFile(KVOPT_SOURCE_DIR "/examples/studies/vinyl-thickness-mixture-process.json"));
    return study;
}

template <class Helper, class Value>
void ReadEnum(const ConfigurationSection& section, Value value) {
    Helper::ReadSection(&section, value);
    Helper::GetString(value);
}

void ReadEnums(const ConfigurationSection& section) {
    ReadEnum<CConfLev>(section, CConfLev::Unknown);
    ReadEnum<CIntervalType>(section, CIntervalType::Unknown);
    ReadEnum<CAlphaLev>(section, CAlphaLev::Unknown);
    ReadEnum<CCoeff>(section, CCoeff::Unknown);
    ReadEnum<CCoeffList>(section, CCoeffList::Unknown);
    ReadEnum<CR2Opt>(section, CR2Opt::Unknown);
    ReadEnum<CNumberFormat>(section, CNumberFormat::Unknown);
    ReadEnum<CResid>(section, CResid::Unknown);
    ReadEnum<CEVecType>(section, CEVecType::NotChosen);
}

void ReadAxis(const ConfigurationSection& section) {
    AxisInfoImpl axis;
    if (axis.ReadSection(&section)) {
        ConfigurationStore store;
        axis.WriteSection(store.Root().get());
        Require(AxisInfoImpl().ReadSection(store.Root().get()), "an axis is not read back");
    }
}

void ReadResponses(const ConfigurationSection& section) {
    std::vector<std::string> responses;
    bool allSelected = false;
    auto type = SelectResponseBase::Ordinary;
    SelectResponseBase::ReadSection(&section, responses, allSelected, type);
    static const SelectResponses fresh(&Study(), true);
    SelectResponses(fresh).Read(&section);
}

// What was read can be written and read again, or is told to be no plot.
void ReadContourPlot(const ConfigurationSection& section, bool isDesignSpace) {
    static const ContourPlotData ordinary(&Study(), 8, "", false, false, false, false);
    static const ContourPlotData designSpace(&Study(), 8, "", true, true, false, false);
    const ContourPlotData& fresh = isDesignSpace ? designSpace : ordinary;
    ContourPlotData plot(fresh);
    ConfigurationStore store;
    try {
        if (!plot.ReadSection(&section)) {
            return;
        }
        plot.WriteSection(store.Root().get());
    } catch (const InvalidArgument&) {
        return;
    }
    Require(ContourPlotData(fresh).ReadSection(store.Root().get()),
            "a contour plot is not read back");
}

class AnyPlotData : public WizardPlotData {
public:
    AnyPlotData() : WizardPlotData(&Study(), 1, 5, 8, "") {}
    int GetUsedAxisIx() const override { return 1; }
};

void ReadAnyPlot(const ConfigurationSection& section) {
    static const AnyPlotData fresh;
    AnyPlotData plot(fresh);
    for (int type = 0; type <= 4; ++type) {
        plot.ReadSection(&section, static_cast<WizardPlotData::PlotAxisType>(type), 1, 5);
    }
}

void ReadSweetSpot(const ConfigurationSection& section, bool isMixture) {
    static const SweetSpotData process(&Study(), false, "");
    static const SweetSpotData mixture(&Study(), true, "");
    const SweetSpotData& fresh = isMixture ? mixture : process;
    SweetSpotData plot(fresh);
    if (!plot.ReadSection(&section)) {
        return;
    }
    ConfigurationStore store;
    plot.WriteSection(store.Root().get());
    Require(SweetSpotData(fresh).ReadSection(store.Root().get()),
            "a sweet spot plot is not read back");
}

void ReadLevelPages(const ConfigurationSection& section) {
    CConfLev::ConfLev level = CConfLev::None;
    CConfLev::ConfLev tolerance = CConfLev::None;
    CIntervalType::IntervalType type = CIntervalType::None;
    ConfidenceLevelPage::ReadSection(&section, level);
    ConfidenceLevelPage::ReadSection(&section, level, tolerance, type);
    PredictionLevelPage::ReadSection(&section, level, tolerance, type);
}

void ReadContourPage(const ConfigurationSection& section) {
    static const ContourPageData fresh(&Study(), false, false, false, false);
    ContourPageData(fresh).ReadSection(&section);
}

}  // namespace

void ReadEverything(const ConfigurationSection& section) {
    ReadEnums(section);
    ReadAxis(section);
    ReadResponses(section);
    ReadContourPage(section);
    ReadAnyPlot(section);
    ReadContourPlot(section, false);
    ReadContourPlot(section, true);
    ReadSweetSpot(section, false);
    ReadSweetSpot(section, true);
    ReadLevelPages(section);
}

}  // namespace kvopt::fuzz
