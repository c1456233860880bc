#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "axes/axis_offers.h"
#include "kvopt/axes.h"
#include "kvopt/plotargs.h"

namespace kvopt::test {
namespace {

const std::string kNone = AxisInfo::GetNotUsedName();

/// Three numbers, a qualitative factor, four parts and the filler; the study has no true filler
/// unless a test says so.
class ContourAxisHelpersTest : public testing::Test {
protected:
    ContourAxisHelpersTest() { AddFactorsOfEachKind(study); }

    ContourPlotData& Data(bool isDSProbability = false) {
        if (!data_) {
            data_ = std::make_unique<ContourPlotData>(&study, 9, "", isDSProbability, false, false,
                                                      false);
            data_->GetAxisDefaults() = DefaultsInOrder();
            for (int set = 1; set <= 4; ++set) {
                for (std::size_t i = 1; i < data_->GetAxisInfo(set).size(); ++i) {
                    data_->GetAxisInfo(set)[i]->SetName("Gone");
                }
            }
            Options().mixtureMode = true;
            Options().scaleEqual = false;
        }
        return *data_;
    }
    ContourPageData& Page() { return *data_->GetContourTypeData(); }
    ContourPageData::Arguments& Options() { return Page().GetOptions(); }
    /// The names of a set; the axes that were never touched are called Gone.
    Texts Set(int set) { return NamesOfSet(*data_, set); }

    AxesStudy study;

private:
    std::unique_ptr<ContourPlotData> data_;
};

// A process contour or surface.

TEST_F(ContourAxisHelpersTest, MakeAProcessPlotOfTwoAxes) {
    ContourAxisHelper helper(&study, &Data(), ContourPageData::surface_3D,
                             ContourPlotData::Process2D);
    EXPECT_EQ(Page().GetPlotType(), ContourPageData::surface_3D);
    EXPECT_EQ(Page().GetAxisType(), ContourPageData::process);
    EXPECT_FALSE(Options().mixtureMode);
    EXPECT_FALSE(Options().scaleEqual) << "left alone";
    helper.Setup();
    EXPECT_EQ(Set(1), (Texts{"Temp", "Time", "Gone", "Gone", "Gone"}));
    EXPECT_EQ(Set(2), (Texts{"Gone", "Gone", "Gone", "Gone", "Gone"}));
    EXPECT_EQ(Offers(helper, 2), (Texts{"Sp Te Ti ", "Sp Te Ti "}));
}

TEST_F(ContourAxisHelpersTest, TakeTheSetThatIsAskedForOrTheUsedOne) {
    ContourAxisHelper(&study, &Data(), ContourPageData::contour_2D, ContourPlotData::Process4D)
        .Setup();
    EXPECT_EQ(Set(1)[0], "Gone");
    EXPECT_EQ(Set(2)[0], "Temp");
    ContourAxisHelper(&study, &Data(), ContourPageData::contour_2D,
                      static_cast<ContourPlotData::AxisType>(-1))
        .Setup();
    EXPECT_EQ(Set(1)[0], "Temp") << "the set of the type that was just set";
}

TEST_F(ContourAxisHelpersTest, OfferPartsOnAProcessPlotWithATrueFiller) {
    study.trueFiller = true;
    ContourAxisHelper helper(&study, &Data(), ContourPageData::contour_2D,
                             ContourPlotData::Process2D);
    helper.Setup();
    EXPECT_EQ(Offers(helper, 1), (Texts{"A B C D Sp Te Ti "}));
}

// A mixture contour.

TEST_F(ContourAxisHelpersTest, MakeAMixturePlotOfThreeAxes) {
    Data();
    Page().SetPlotType(ContourPageData::surface_4D);
    Options().mixtureMode = false;
    Mixture2DAxisHelper helper(&study, &Data());
    EXPECT_EQ(Page().GetPlotType(), ContourPageData::contour_2D);
    EXPECT_EQ(Page().GetAxisType(), ContourPageData::mixture);
    EXPECT_TRUE(Options().mixtureMode);
    helper.Setup();
    EXPECT_EQ(Set(3), (Texts{"A", "B", "C", "Gone", "Gone"}));
    EXPECT_EQ(Set(1), (Texts{"Gone", "Gone", "Gone", "Gone", "Gone"}));
    EXPECT_EQ(Offers(helper, 3), (Texts{"A B C D ", "A B C D ", "A B C D "}));
}

// Four and five axes.

TEST_F(ContourAxisHelpersTest, MakeAProcessPlotOfFourAxes) {
    Contour4DAxisHelper helper(&study, &Data(), ContourPageData::contour_4D);
    EXPECT_EQ(Page().GetPlotType(), ContourPageData::contour_4D);
    EXPECT_EQ(Page().GetAxisType(), ContourPageData::process);
    EXPECT_TRUE(Options().scaleEqual);
    EXPECT_TRUE(Options().mixtureMode) << "left alone";
    helper.Setup();
    EXPECT_EQ(Set(2), (Texts{"Temp", "Time", "Colour", "Speed", "Gone"}));
    EXPECT_EQ(Offers(helper, 4), (Texts{"Sp Te Ti ", "Sp Te Ti ", "Co Sp Te Ti ", "Co Sp Te Ti "}));
    EXPECT_EQ(Data().GetAxisInfo(2)[3]->GetSettings(), "red;green;blue");
    EXPECT_EQ(Data().GetAxisInfo(2)[4]->GetMax(), 6.0F);
}

TEST_F(ContourAxisHelpersTest, OfferPartsOnOuterAxesWithATrueFiller) {
    study.trueFiller = true;
    Contour4DAxisHelper helper(&study, &Data(), ContourPageData::contour_4D);
    helper.Setup();
    EXPECT_EQ(Offers(helper, 4), (Texts{"A B C D Sp Te Ti ", "A B C D Sp Te Ti ",
                                        "A B C Co D Sp Te Ti ", "A B C Co D Sp Te Ti "}));
}

TEST_F(ContourAxisHelpersTest, MakeAMixturePlotOfFiveAxes) {
    Data();
    Options().mixtureMode = false;
    Mixture4DAxisHelper helper(&study, &Data(), ContourPageData::surface_4D);
    EXPECT_EQ(Page().GetPlotType(), ContourPageData::surface_4D);
    EXPECT_EQ(Page().GetAxisType(), ContourPageData::mixture);
    EXPECT_TRUE(Options().scaleEqual);
    EXPECT_TRUE(Options().mixtureMode);
    helper.Setup();
    EXPECT_EQ(Set(4), (Texts{"A", "B", "C", "Colour", "Temp"}));
    EXPECT_EQ(Offers(helper, 5),
              (Texts{"A B C D ", "A B C D ", "A B C D ", "Co Sp Te Ti ", "Co Sp Te Ti "}));
}

TEST_F(ContourAxisHelpersTest, OfferAnOuterAxisNothingThatAnInnerOneTook) {
    study.trueFiller = true;
    study.unavailable = {"Colour", "Temp", "Time", "Speed"};
    Mixture4DAxisHelper helper(&study, &Data(), ContourPageData::contour_4D);
    helper.Setup();
    EXPECT_EQ(Set(4), (Texts{"A", "B", "C", "D", kNone}));
}

TEST_F(ContourAxisHelpersTest, LoseTheNotUsedNameOfOuterAxesToTheFill) {
    Data().GetAxisInfo(2)[4]->SetName(kNone);
    Contour4DAxisHelper helper(&study, &Data(), ContourPageData::contour_4D);
    helper.Setup();
    // Offered where the axis was unused, not because the helper offered it before the fill.
    EXPECT_EQ(Offers(helper, 4)[2], "Co Sp Te Ti ");
    EXPECT_EQ(Offers(helper, 4)[3], "-Co Sp Te Ti ");
}

TEST_F(ContourAxisHelpersTest, OfferTheNotUsedNameOnOuterAxesBeforeTheFill) {
    // Seen only where the fill passes over a position that holds no axis.
    for (const int set : {2, 4}) {
        for (std::size_t i = 1; i < Data().GetAxisInfo(set).size(); ++i) {
            Data().GetAxisInfo(set)[i] = nullptr;
        }
    }
    Contour4DAxisHelper process(&study, &Data(), ContourPageData::contour_4D);
    process.Setup();
    EXPECT_EQ(Offers(process, 4), (Texts{"", "", "-", "-"}));
    ProbabilityContourAxisHelper probability(&study, &Data(), false);
    probability.Setup();
    EXPECT_EQ(Offers(probability, 4), (Texts{"", "", "-", "-"}));
    Mixture4DAxisHelper mixture(&study, &Data(), ContourPageData::contour_4D);
    mixture.Setup();
    EXPECT_EQ(Offers(mixture, 5), (Texts{"", "", "", "-", "-"}));
    ProbabilityContourAxisHelper mixtureProbability(&study, &Data(), true);
    mixtureProbability.Setup();
    EXPECT_EQ(Offers(mixtureProbability, 5), (Texts{"", "", "", "-", "-"}));
}

// Design space plots.

TEST_F(ContourAxisHelpersTest, MakeADesignSpacePlotWithoutOuterAxes) {
    ProbabilityContourAxisHelper helper(&study, &Data(), false);
    EXPECT_EQ(Page().GetPlotType(), ContourPageData::ds_probability);
    EXPECT_EQ(Page().GetAxisType(), ContourPageData::process);
    EXPECT_FALSE(Options().mixtureMode);
    EXPECT_FALSE(Options().scaleEqual) << "left alone";
    helper.Setup();
    EXPECT_EQ(Set(2), (Texts{"Temp", "Time", kNone, kNone, "Gone"}));
    // All axes, the outer ones too, are filled as inner axes.
    EXPECT_EQ(Offers(helper, 4), (Texts{"Sp Te Ti ", "Sp Te Ti ", "Sp Te Ti ", "-Sp Te Ti "}));
    EXPECT_EQ(Data().GetAxisInfo(2)[3]->GetMax(), 6.0F) << "the name alone is taken back";
}

TEST_F(ContourAxisHelpersTest, MakeAMixtureDesignSpacePlotWithoutOuterAxes) {
    ProbabilityContourAxisHelper helper(&study, &Data(), true);
    EXPECT_EQ(Page().GetPlotType(), ContourPageData::ds_probability);
    EXPECT_EQ(Page().GetAxisType(), ContourPageData::mixture);
    EXPECT_TRUE(Options().mixtureMode);
    helper.Setup();
    EXPECT_EQ(Set(4), (Texts{"A", "B", "C", kNone, kNone}));
    EXPECT_EQ(Offers(helper, 5),
              (Texts{"A B C D ", "A B C D ", "A B C D ", "A B C D ", "-A B C D "}));
}

TEST_F(ContourAxisHelpersTest, TakeTheNamesOffBothOuterAxesOfADesignSpacePlot) {
    study.Number("Mass", 0, 9);
    study.Part("E");
    for (const auto& axis : MakeAxes({{"Mass", 7, 8}, {"E", 0.25F, 0.75F}})) {
        if (axis) {
            Data().GetAxisDefaults().push_back(axis);
        }
    }
    ProbabilityContourAxisHelper(&study, &Data(), false).Setup();
    EXPECT_EQ(Set(2), (Texts{"Temp", "Time", kNone, kNone, "Gone"}));
    EXPECT_EQ(Data().GetAxisInfo(2)[4]->GetMax(), 8.0F) << "Mass lay on it";
    ProbabilityContourAxisHelper(&study, &Data(), true).Setup();
    EXPECT_EQ(Set(4), (Texts{"A", "B", "C", kNone, kNone}));
    EXPECT_EQ(Data().GetAxisInfo(4)[5]->GetMax(), 0.75F) << "E lay on it";
}

TEST_F(ContourAxisHelpersTest, AskTheModelsUnlessThereIsAResponseFromOutside) {
    study.unavailable = {"Temp"};
    ContourAxisHelper helper(&study, &Data(), ContourPageData::contour_2D,
                             ContourPlotData::Process2D);
    helper.Setup();
    EXPECT_EQ(Offers(helper, 1), (Texts{"Sp Ti "}));
    study.ExtraResponse("Outside", ResponseEx::External);
    helper.Setup();
    EXPECT_EQ(Offers(helper, 1), (Texts{"Sp Te Ti "}));
}

}  // namespace
}  // namespace kvopt::test
