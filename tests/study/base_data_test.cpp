#include "kvopt/study/base_data.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "support/fake_study.h"

namespace kvopt {
namespace {

using test::FakeStudy;

TEST(WorksheetData, HoldsTheFactorsThenTheResponsesCountedFromOne) {
    FakeStudy study;
    study.Number("Speed");
    study.Names("Colour", {"red"});
    study.Response("Yield");
    study.ExtraResponse("Profit");
    const WorksheetData data(&study);
    ASSERT_EQ(data.GetNumColumns(), 4);
    EXPECT_EQ(data.GetColumn(1), "Speed");
    EXPECT_EQ(data.GetColumn(2), "Colour");
    EXPECT_EQ(data.GetColumn(3), "Yield");
    EXPECT_EQ(data.GetColumn(4), "Profit");
    EXPECT_EQ(data.GetColumn(0), "");
    EXPECT_EQ(data.GetColumn(5), "");
    EXPECT_TRUE(data.HasColumn("Speed"));
    EXPECT_TRUE(data.HasColumn("Profit"));
    EXPECT_FALSE(data.HasColumn("speed"));
    EXPECT_FALSE(data.HasColumn(""));
    EXPECT_FALSE(data.IsLimit(1));
    study.Number("Dose");
    EXPECT_EQ(data.GetColumn(3), "Dose");
}

TEST(WorksheetData, IsEmptyWithoutAnInvestigation) {
    const WorksheetData data(nullptr);
    EXPECT_EQ(data.GetNumColumns(), 0);
    EXPECT_EQ(data.GetColumn(1), "");
    EXPECT_FALSE(data.HasColumn("Speed"));
    ASSERT_NE(data.GetLabelTitles(), nullptr);
    EXPECT_EQ(data.GetLabelTitles()->NumNameTitles(), 3);
}

TEST(WorksheetData, OffersTheLabelsOfTheStudy) {
    class Titles : public BaseLabelTitles {
    public:
        int NumNameTitles() const override { return 1; }
        std::string GetName(int) const override { return "Batch"; }
    };
    class Study : public FakeStudy {
    public:
        std::shared_ptr<BaseLabelTitles> GetLabelTitles() const override {
            return std::make_shared<Titles>();
        }
    };
    const Study study;
    EXPECT_EQ(WorksheetData(&study).GetLabelTitles()->GetName(0), "Batch");
}

}  // namespace
}  // namespace kvopt
