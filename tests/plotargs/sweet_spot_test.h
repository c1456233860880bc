#pragma once

/// \file
/// What the tests of saved sweet spot plots share: a study whose models say what kinds of factors
/// they hold, and plots of it.

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "kvopt/plotargs/sweet_spot_data.h"
#include "plotargs/plot_study.h"
#include "support/memory_profile.h"
#include "support/plot_compare.h"
#include "support/recording_section.h"

namespace kvopt::test {

/// A study whose models say what kinds of factors they hold.
class KindStudy : public PlotStudy {
public:
    KindStudy() : spec_(*this) {}
    ModelSpec* GetModelSpec() override { return &spec_; }
    const ModelSpec* GetModelSpec() const override { return &spec_; }
    bool mixtureOnly = false;
    bool processOnly = false;

private:
    class Kinds : public Factors {
    public:
        explicit Kinds(const KindStudy& study) : Factors(&study), study_(study) {}
        bool IsMixtureOnly() const override { return study_.mixtureOnly; }
        bool IsProcessOnly() const override { return study_.processOnly; }

    private:
        const KindStudy& study_;
    };
    class Spec : public ModelSpec {
    public:
        explicit Spec(const KindStudy& study) : ModelSpec(&study), kinds_(study) {}
        const Factors* GetFactors() const override { return &kinds_; }

    private:
        Kinds kinds_;
    };

    Spec spec_;
};

class SweetSpotTest : public testing::Test {
protected:
    SweetSpotTest() {
        study.Number("Temperature", 20, 80).units = "°C";
        study.Number("Pressure", 0.1, 2.5).units = "bar";
        study.Number("Time", 5, 60).units = "min";
        study.Names("Catalyst", {"Pd", "Pt", "Ni"});
        study.Part("Water", 0.1, 0.8);
        study.Part("Oil", 0.1, 0.6);
        study.Part("Emulsifier", 0.05, 0.2);
        study.favouriteSetpoint.SetStart({50, 0.7F, 5, 2, 0.5F, 0.3F, 0.2F});
    }

    SweetSpotData Fresh(bool mixture = false) { return {&study, mixture, "study.ini"}; }
    /// A plot in which everything that is kept differs from the defaults.
    SweetSpotData Plot(SweetSpotData::PlotType type, bool mixture,
                       const std::vector<const char*>& axes) {
        SweetSpotData plot = Fresh(mixture);
        plot.SetPlotType(type);
        plot.SetUseConstraints(false);
        plot.SetIsSurface(true);
        plot.ShowLabels(false);
        for (std::size_t i = 0; i < axes.size(); ++i) {
            AxisInfo& axis = *plot.GetAxisInfo(type)[i + 1];
            const FactorClass* factor = study.GetVariables()->GetFactor(std::string(axes[i]));
            axis.SetName(axes[i]);
            if (factor && factor->IsQualitative()) {
                axis.SetIsQualitative(true);
                axis.SetSettings("Pt;Ni");
            } else if (factor) {
                axis.SetUnit(factor->GetUnits());
                axis.SetRange(0.1F, static_cast<float>(factor->GetHigh(true)));
            }
        }
        FactorConstants::Constant* const constants = plot.GetPlotConstants();
        FactorConstants::Constant& pressure =
            constants[FactorConstants::Lookup(constants, "Pressure")];
        pressure.FloatValue(1.25);
        pressure.SettingPos() = FactorConstants::CUSTOM;
        constants[FactorConstants::Lookup(constants, "Catalyst")].QualValue("Ni");
        return plot;
    }
    SweetSpotData Plot() {
        return Plot(SweetSpotData::SweetSpot, false, {"Temperature", "Pressure"});
    }
    static std::string Described(const SweetSpotData& plot) {
        std::string text = "type " + std::to_string(plot.GetPlotType());
        text += plot.IsMixture() ? " mixture" : " process";
        text += plot.UseConstraints() ? " constraints" : "";
        text += plot.IsSurface() ? " surface" : "";
        text += plot.IsShowLabels() ? " labels" : "";
        for (int set = 1; set <= 3; ++set) {
            text += "\nset " + std::to_string(set) + "\n";
            for (const auto& axis : plot.GetAxisInfo(set)) {
                text += axis && axis->IsUsed() ? "  " + Describe(*axis) + "\n" : "";
            }
        }
        return text + "constants\n" + DescribeConstants(plot.GetPlotConstants());
    }

    MemoryIniFiles files;
    KindStudy study;
    ConfigurationStore store;
    std::unique_ptr<ConfigurationSection> root = store.Root();

private:
    MemoryProfile profile_;
};

}  // namespace kvopt::test
