#include "tests/stories/saved_plot.h"

#include <gtest/gtest.h>

#include "kvopt/stores.h"
#include "kvopt/study.h"
#include "tests/stories/contour_plot_text.h"

namespace kvopt::test {

namespace {

/// Gives a plot text constants that differ from those of another.
void AddOtherTexts(StoryStage& stage, const ContourPlotData& other, ContourPlotData& plot) {
    FactorConstants::Constant* const constants = plot.GetPlotConstants();
    for (const auto* constant = other.GetPlotConstants(); constant->IsDefined(); ++constant) {
        if (constant->QualValue().empty()) {
            continue;
        }
        const FactorClass* factor = stage.Study().GetVariables()->GetFactor(constant->Name());
        const std::string first = factor->GetSetting(1);
        const std::string text = constant->QualValue() == first ? factor->GetSetting(2) : first;
        const int index = FactorConstants::Lookup(constants, constant->Name());
        if (index >= 0) {
            constants[index].QualValue(text);
        } else {
            FactorConstants::Add(constants, {constant->Name(), text, FactorConstants::CUSTOM});
        }
    }
}

}  // namespace

void SavePlot(StoryStage& stage, const ContourPlotData& data, ContourPlotData again,
              const std::string& name) {
    ConfigurationStore saved;
    data.WriteSection(saved.Root().get());
    saved.Save(stage.FileOf(name));
    EXPECT_TRUE(LoadPlot(stage, data, name, again));
    EXPECT_EQ(ContourPlotText(again), ContourPlotText(data));
}

bool LoadPlot(StoryStage& stage, const ContourPlotData& saved, const std::string& name,
              ContourPlotData& plot) {
    const ConfigurationStore loaded = ConfigurationStore::Load(stage.FileOf(name));
    AddOtherTexts(stage, saved, plot);
    return plot.ReadSection(loaded.Root().get());
}

}  // namespace kvopt::test
