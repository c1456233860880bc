#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "axes/axes_study.h"
#include "axes/axis_offers.h"
#include "kvopt/axes.h"
#include "kvopt/plotargs.h"
#include "kvopt/text.h"

namespace kvopt::test {
namespace {

/// Three numbers, a qualitative factor, four parts and the filler; the study has no true filler
/// unless a test says so.
class SweetSpotAxisHelpersTest : public testing::Test {
protected:
    SweetSpotAxisHelpersTest() { AddFactorsOfEachKind(study); }

    SweetSpotData& Data(SweetSpotData::PlotType type, bool mixture) {
        data_ = std::make_unique<SweetSpotData>(&study, mixture, "");
        data_->SetPlotType(type);
        data_->GetAxisDefaults() = DefaultsInOrder();
        for (int set = 1; set <= 3; ++set) {
            for (std::size_t i = 1; i < data_->GetAxisInfo(set).size(); ++i) {
                data_->GetAxisInfo(set)[i]->SetName("Gone");
            }
        }
        return *data_;
    }
    Texts Set(int set) { return NamesOfSet(*data_, set); }

    AxesStudy study;

private:
    std::unique_ptr<SweetSpotData> data_;
};

const Texts kUntouched{"Gone", "Gone", "Gone", "Gone", "Gone"};

// Two or three axes.

TEST_F(SweetSpotAxisHelpersTest, MakeAProcessPlotOfTwoAxes) {
    SweetSpotData& data = Data(SweetSpotData::SweetSpot, false);
    SweetSpotAxisHelper helper(&study, &data);
    helper.Setup();
    EXPECT_EQ(Set(1), (Texts{"Temp", "Time", "Gone", "Gone", "Gone"}));
    EXPECT_EQ(Set(2), kUntouched);
    EXPECT_EQ(Offers(helper, 2), (Texts{"Sp Te Ti ", "Sp Te Ti "}));
    EXPECT_EQ(data.GetAxisInfo(1)[2]->GetMax(), 4.0F);
    EXPECT_EQ(data.GetPlotType(), SweetSpotData::SweetSpot) << "left alone";
    EXPECT_FALSE(data.IsMixture()) << "left alone";
}

TEST_F(SweetSpotAxisHelpersTest, OfferPartsOnAProcessPlotWithATrueFiller) {
    study.trueFiller = true;
    SweetSpotAxisHelper helper(&study, &Data(SweetSpotData::SweetSpot, false));
    helper.Setup();
    EXPECT_EQ(Offers(helper, 2), (Texts{"A B C D Sp Te Ti ", "A B C D Sp Te Ti "}));
}

TEST_F(SweetSpotAxisHelpersTest, MakeAMixturePlotOfThreeAxes) {
    SweetSpotAxisHelper helper(&study, &Data(SweetSpotData::SweetSpot, true));
    helper.Setup();
    EXPECT_EQ(Set(1), (Texts{"A", "B", "C", "Gone", "Gone"}));
    EXPECT_EQ(Set(2), kUntouched);
    EXPECT_EQ(Offers(helper, 3), (Texts{"A B C D ", "A B C D ", "A B C D "}));
}

TEST_F(SweetSpotAxisHelpersTest, TakeTheSetOfThePlotTypeWhicheverTheyAre) {
    SweetSpotAxisHelper(&study, &Data(SweetSpotData::SweetSpot4D, false)).Setup();
    EXPECT_EQ(Set(1), kUntouched);
    EXPECT_EQ(Set(2), (Texts{"Temp", "Time", "Gone", "Gone", "Gone"}));
    SweetSpot4DAxisHelper(&study, &Data(SweetSpotData::SweetSpot, false)).Setup();
    EXPECT_EQ(Set(1), (Texts{"Temp", "Time", "Colour", "Speed", "Gone"}));
    EXPECT_EQ(Set(2), kUntouched);
}

TEST_F(SweetSpotAxisHelpersTest, DoNothingForAPlotWithoutAType) {
    SweetSpotData& none = Data(SweetSpotData::NoPlot, false);
    SweetSpotAxisHelper(&study, &none).Setup();
    SweetSpot4DAxisHelper(&study, &none).Setup();
    for (int set = 1; set <= 3; ++set) {
        EXPECT_EQ(Set(set), kUntouched);
    }
    SweetSpotData& negative = Data(static_cast<SweetSpotData::PlotType>(-1), false);
    EXPECT_THROW(SweetSpotAxisHelper(&study, &negative), InvalidArgument);
    EXPECT_THROW(SweetSpot4DAxisHelper(&study, &negative), InvalidArgument);
}

// Four or five axes.

TEST_F(SweetSpotAxisHelpersTest, MakeAProcessPlotOfFourAxes) {
    SweetSpot4DAxisHelper helper(&study, &Data(SweetSpotData::SweetSpot4D, false));
    helper.Setup();
    EXPECT_EQ(Set(2), (Texts{"Temp", "Time", "Colour", "Speed", "Gone"}));
    EXPECT_EQ(Set(1), kUntouched);
    EXPECT_EQ(Offers(helper, 4), (Texts{"Sp Te Ti ", "Sp Te Ti ", "Co Sp Te Ti ", "Co Sp Te Ti "}));
}

TEST_F(SweetSpotAxisHelpersTest, OfferPartsOnOuterAxesWithATrueFiller) {
    study.trueFiller = true;
    SweetSpot4DAxisHelper helper(&study, &Data(SweetSpotData::SweetSpot4D, false));
    helper.Setup();
    EXPECT_EQ(Offers(helper, 4), (Texts{"A B C D Sp Te Ti ", "A B C D Sp Te Ti ",
                                        "A B C Co D Sp Te Ti ", "A B C Co D Sp Te Ti "}));
}

TEST_F(SweetSpotAxisHelpersTest, MakeAMixturePlotOfFiveAxes) {
    SweetSpot4DAxisHelper helper(&study, &Data(SweetSpotData::SweetSpot4D, true));
    helper.Setup();
    EXPECT_EQ(Set(2), (Texts{"A", "B", "C", "Colour", "Temp"}));
    EXPECT_EQ(Offers(helper, 5),
              (Texts{"A B C D ", "A B C D ", "A B C D ", "Co Sp Te Ti ", "Co Sp Te Ti "}));
}

TEST_F(SweetSpotAxisHelpersTest, OfferTheNotUsedNameOnOuterAxesBeforeTheFill) {
    // Seen only where the fill passes over a position that holds no axis.
    for (const bool mixture : {false, true}) {
        SweetSpotData& data = Data(SweetSpotData::SweetSpot4D, mixture);
        for (std::size_t i = 1; i < data.GetAxisInfo(2).size(); ++i) {
            data.GetAxisInfo(2)[i] = nullptr;
        }
        SweetSpot4DAxisHelper helper(&study, &data);
        helper.Setup();
        EXPECT_EQ(Offers(helper, mixture ? 5 : 4),
                  mixture ? (Texts{"", "", "", "-", "-"}) : (Texts{"", "", "-", "-"}));
        SweetSpotAxisHelper inner(&study, &data);
        inner.Setup();
        EXPECT_EQ(Offers(inner, mixture ? 3 : 2), mixture ? (Texts{"", "", ""}) : (Texts{"", ""}));
    }
}

// Both.

TEST_F(SweetSpotAxisHelpersTest, KeepTheFormThatThePlotHadWhenTheyWereMade) {
    SweetSpotData& data = Data(SweetSpotData::SweetSpot, false);
    SweetSpotAxisHelper helper(&study, &data);
    SweetSpot4DAxisHelper helper4D(&study, &data);
    data.SetMixture(true);
    helper.Setup();
    EXPECT_EQ(Offers(helper, 3), (Texts{"Sp Te Ti ", "Sp Te Ti ", ""}));
    SweetSpot4DAxisHelper copy(helper4D);
    copy.Setup();
    EXPECT_EQ(Offers(copy, 5),
              (Texts{"Sp Te Ti ", "Sp Te Ti ", "Co Sp Te Ti ", "Co Sp Te Ti ", ""}));
}

TEST_F(SweetSpotAxisHelpersTest, AskTheModelsUnlessThereIsAResponseFromOutside) {
    study.unavailable = {"Temp", "A"};
    SweetSpotAxisHelper process(&study, &Data(SweetSpotData::SweetSpot, false));
    process.Setup();
    EXPECT_EQ(Offers(process, 1), (Texts{"Sp Ti "}));
    study.ExtraResponse("Outside", ResponseEx::External);
    process.Setup();
    EXPECT_EQ(Offers(process, 1), (Texts{"Sp Te Ti "}));
    SweetSpot4DAxisHelper mixture(&study, &Data(SweetSpotData::SweetSpot4D, true));
    mixture.Setup();
    EXPECT_EQ(Offers(mixture, 4), (Texts{"A B C D ", "A B C D ", "A B C D ", "Co Sp Te Ti "}));
}

}  // namespace
}  // namespace kvopt::test
