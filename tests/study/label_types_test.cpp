#include "kvopt/study/label_types.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "kvopt/text.h"

namespace kvopt {
namespace {

constexpr int kLabelTypes = 5;

TEST(LabelTypes, GoBothWaysByStoredTextAndByTitle) {
    std::set<std::string> texts;
    for (int number = 0; number < kLabelTypes; ++number) {
        const auto type = static_cast<LabelTypes::PlotLabelType>(number);
        const std::string stored = LabelTypes::GetString(type, false);
        const std::string title = LabelTypes::GetString(type, true);
        EXPECT_TRUE(texts.insert(stored).second);
        EXPECT_EQ(LabelTypes::GetLabelType(stored.c_str()), type);
        EXPECT_EQ(LabelTypes::GetLabelType(title.c_str()), type);
        EXPECT_EQ(LabelTypes::GetWString(type), KvStdString::ToWide(title));
    }
}

TEST(LabelTypes, AreStoredByTextsOfTheirOwn) {
    const char* const stored[] = {"None", "ExperimentNumber", "ExperimentName", "RunOrder",
                                  "PredictionNumber"};
    for (int number = 0; number < kLabelTypes; ++number) {
        const auto type = static_cast<LabelTypes::PlotLabelType>(number);
        EXPECT_EQ(LabelTypes::GetString(type, false), stored[number]);
    }
}

TEST(LabelTypes, AreNoneForAnyOtherText) {
    EXPECT_EQ(LabelTypes::None, 0);
    EXPECT_EQ(LabelTypes::GetLabelType(""), LabelTypes::None);
    EXPECT_EQ(LabelTypes::GetLabelType("run order"), LabelTypes::None);
    EXPECT_EQ(LabelTypes::GetLabelType(nullptr), LabelTypes::None);
    const auto unknown = static_cast<LabelTypes::PlotLabelType>(kLabelTypes);
    EXPECT_EQ(LabelTypes::GetString(unknown, false),
              LabelTypes::GetString(LabelTypes::None, false));
    EXPECT_EQ(LabelTypes::GetString(unknown, true), LabelTypes::GetString(LabelTypes::None, true));
    EXPECT_EQ(LabelTypes::GetWString(unknown), LabelTypes::GetWString(LabelTypes::None));
}

TEST(LabelTypes, CallThePredictionLabelAsScatterPlotsLookForIt) {
    EXPECT_EQ(LabelTypes::GetString(LabelTypes::PredictionNumber, true), "Prediction number");
}

TEST(StandardLabelTitles, OfferTheLabelsOfAWorksheet) {
    const StandardLabelTitles titles;
    ASSERT_EQ(titles.NumNameTitles(), 3);
    EXPECT_EQ(titles.GetName(0), LabelTypes::GetString(LabelTypes::ExperimentNumber, true));
    EXPECT_EQ(titles.GetName(1), LabelTypes::GetString(LabelTypes::ExperimentName, true));
    EXPECT_EQ(titles.GetName(2), LabelTypes::GetString(LabelTypes::RunOrder, true));
    EXPECT_EQ(titles.GetName(-1), "");
    EXPECT_EQ(titles.GetName(3), "");
}

}  // namespace
}  // namespace kvopt
