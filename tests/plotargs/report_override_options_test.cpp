#include "kvopt/plotargs/report_override_options.h"

#include <gmock/gmock.h>

#include <type_traits>

#include "plotargs/plot_study.h"
#include "support/plot_compare.h"
#include "support/recording_section.h"

namespace kvopt::test {
namespace {

using FactorConstants::Constant;

class ReportOverRideOptionsTest : public testing::Test {
protected:
    ReportOverRideOptionsTest() {
        study.Number("A", 0, 10);
        study.Names("Cat", {"Pd", "Pt"});
        options.Clear();
    }
    ~ReportOverRideOptionsTest() override { options.Clear(); }

    static AxisInfoImpl Axis(const std::string& name, float low, float high) {
        AxisInfoImpl axis;
        SetAxis(axis, name, low, high);
        return axis;
    }

    MemoryIniFiles files;
    PlotStudy study;
    ReportOverRideOptions& options = *ReportOverRideOptions::Instance();
};

TEST_F(ReportOverRideOptionsTest, IsOneObjectThatClearEmpties) {
    EXPECT_FALSE(std::is_default_constructible_v<ReportOverRideOptions>);
    EXPECT_FALSE(std::is_destructible_v<ReportOverRideOptions>);
    EXPECT_EQ(ReportOverRideOptions::Instance(), &options);
    options.GetAxes()[1] = Axis("A", 1, 2);
    options.GetConstants()["A"] = Constant("A", 1.0, FactorConstants::LOW);
    options.Clear();
    EXPECT_TRUE(options.GetAxes().empty());
    EXPECT_TRUE(options.GetConstants().empty());
}

TEST_F(ReportOverRideOptionsTest, NullDoesNothing) {
    AnyPlotData plot(study);
    const std::string before = Describe(plot.GetAxisInfo(1));
    plot.OverRideOptions(nullptr);
    EXPECT_EQ(Describe(plot.GetAxisInfo(1)), before);
}

TEST_F(ReportOverRideOptionsTest, GivesEverySetItsAxes) {
    AnyPlotData plot(study, 2, 3);
    SetAxis(*plot.GetAxisInfo(1)[1], "B", 5, 6);
    options.GetAxes()[1] = Axis("A", 1, 2);
    options.GetAxes()[3] = Axis("Cat", -99, -99);
    options.GetAxes()[3].SetIsQualitative(true);
    options.GetAxes()[4] = Axis("nowhere", 1, 2);
    options.GetAxes()[0] = Axis("nowhere", 1, 2);
    plot.OverRideOptions(&options);
    for (int set = 1; set <= 2; ++set) {
        EXPECT_EQ(Describe(plot.GetAxisInfo(set)),
                  "  1: 'A' [] 1..2 {} quantitative\n"
                  "  2: '' [] -99..-99 {} quantitative\n"
                  "  3: 'Cat' [] -99..-99 {} qualitative\n");
    }
}

TEST_F(ReportOverRideOptionsTest, LeavesALimitThatIsNotSet) {
    AnyPlotData plot(study, 1, 2);
    SetAxis(*plot.GetAxisInfo(1)[1], "A", 1, 2);
    SetAxis(*plot.GetAxisInfo(1)[2], "A", 1, 2);
    options.GetAxes()[1] = Axis("", -99, 10);
    options.GetAxes()[2] = Axis("", -10, -99);
    plot.OverRideOptions(&options);
    EXPECT_EQ(Describe(plot.GetAxisInfo(1)),
              "  1: 'A' [] 1..10 {} quantitative\n"
              "  2: 'A' [] -10..2 {} quantitative\n");
}

TEST_F(ReportOverRideOptionsTest, LeavesTheNameForANameOfBlanksAlone) {
    for (const char* name : {"", " ", " \t\n\v\f\r"}) {
        AnyPlotData plot(study, 1, 1);
        SetAxis(*plot.GetAxisInfo(1)[1], "A", 1, 2);
        options.GetAxes()[1] = Axis(name, 3, 4);
        plot.OverRideOptions(&options);
        EXPECT_EQ(Describe(plot.GetAxisInfo(1)), "  1: 'A' [] 3..4 {} quantitative\n");
    }
    AnyPlotData plot(study, 1, 1);
    options.GetAxes()[1] = Axis(" Cat ", 3, 4);
    plot.OverRideOptions(&options);
    EXPECT_EQ(plot.GetAxisInfo(1)[1]->GetName(), " Cat ") << "a name is taken as it stands";
}

TEST_F(ReportOverRideOptionsTest, AlwaysSaysWhetherAnAxisIsQualitative) {
    AnyPlotData plot(study, 1, 1);
    plot.GetAxisInfo(1)[1]->SetIsQualitative(true);
    options.GetAxes()[1] = Axis("", -99, -99);
    plot.OverRideOptions(&options);
    EXPECT_FALSE(plot.GetAxisInfo(1)[1]->IsQualitative());
}

TEST_F(ReportOverRideOptionsTest, ChangesConstantsThatAreThere) {
    study.optimum = {5, 1};
    AnyPlotData plot(study);
    options.GetConstants()["A"] = Constant("ignored", 10.0, FactorConstants::HIGH);
    options.GetConstants()["Cat"] = Constant("ignored", "Pt", FactorConstants::LOW);
    plot.OverRideOptions(&options);
    EXPECT_EQ(DescribeConstants(plot.GetPlotConstants()), "  A = 10 (HIGH)\n  Cat = Pt (LOW)\n");
}

TEST_F(ReportOverRideOptionsTest, AddsConstantsThatAreMissing) {
    AnyPlotData plot(study, 1, 1, 10);
    plot.GetPlotConstants()[0] = Constant();
    options.GetConstants()["A"] = Constant("ignored", 3.5, FactorConstants::CUSTOM);
    options.GetConstants()["Cat"] = Constant("ignored", "Pt", FactorConstants::REF);
    options.GetConstants()["Unknown"] = Constant("ignored", 1.0, FactorConstants::LOW);
    plot.OverRideOptions(&options);
    EXPECT_EQ(DescribeConstants(plot.GetPlotConstants()),
              "  A = 3.5 (CUSTOM)\n  Cat = Pt (REF)\n  Unknown = 1 (LOW)\n");
}

TEST_F(ReportOverRideOptionsTest, AddsNoMoreConstantsThanThereIsRoomFor) {
    AnyPlotData plot(study, 1, 1, 0);
    for (const char* name : {"U1", "U2", "U3"}) {
        options.GetConstants()[name] = Constant("ignored", 1.0, FactorConstants::LOW);
    }
    plot.OverRideOptions(&options);
    EXPECT_EQ(FactorConstants::NumConstants(plot.GetPlotConstants()), 2);
}

TEST_F(ReportOverRideOptionsTest, TellsAConstantsKindByTheFactor) {
    study.optimum = {5, 1};
    AnyPlotData plot(study);
    options.GetConstants()["Cat"] = Constant("ignored", 3.0, FactorConstants::LOW);
    plot.OverRideOptions(&options);
    EXPECT_EQ(plot.GetPlotConstants()[1].QualValue(), "")
        << "a qualitative factor takes the override's setting, here none";
}

}  // namespace
}  // namespace kvopt::test
