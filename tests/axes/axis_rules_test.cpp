#include "kvopt/axes/axis_rules.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "axes/axes_study.h"

namespace kvopt::test {
namespace {

/// Temp and Time are numbers, Colour is qualitative, Oil and Water are parts of a mixture, Rest is
/// the filler.
class RulesStudy : public AxesStudy {
public:
    RulesStudy() {
        Number("Temp", 0, 100);
        Number("Time", 0, 60);
        Names("Colour");
        Part("Oil");
        Part("Water");
        Add("Rest", CEType::Filler);
    }
};

struct FlagRow {
    const char* what;
    AxisEntry entry;
    std::vector<std::string> unusual;  ///< settings that the study does not recommend
    unsigned flags;
};

void PrintTo(const FlagRow& row, std::ostream* out) {
    *out << row.what;
}

class AxisFlags : public testing::TestWithParam<FlagRow> {};

TEST_P(AxisFlags, AreThoseOfTheFirstTestThatFails) {
    RulesStudy study;
    for (const std::string& setting : GetParam().unusual) {
        study.unusualSettings.insert(GetParam().entry.name + "=" + setting);
    }
    const AxisRules rules(study.GetVariables(), {GetParam().entry});
    EXPECT_EQ(rules.IsAxisLegal(1), GetParam().flags);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AxisFlags,
    testing::Values(FlagRow{"legal", {"Temp", "1", "2"}, {}, 0U},
                    FlagRow{"unknown name", {"Tempo", "x", "y"}, {}, 32U},
                    FlagRow{"no name", {"", "1", "2"}, {}, 32U},
                    FlagRow{"not-used name", {AxisInfo::GetNotUsedName(), "1", "2"}, {}, 32U},
                    FlagRow{"name in other case", {"temp", "1", "2"}, {}, 32U},
                    FlagRow{"qualitative without a range", {"Colour", "", ""}, {""}, 0U},
                    FlagRow{"both no numbers", {"Temp", "x", "y"}, {}, 2U},
                    FlagRow{"low empty", {"Temp", "", "2"}, {}, 2U},
                    FlagRow{"low with a decimal comma", {"Temp", "1,5", "2"}, {}, 2U},
                    FlagRow{"high no number", {"Temp", "5", "y"}, {"5"}, 4U},
                    FlagRow{"equal", {"Temp", "1", "1"}, {"1"}, 1U},
                    FlagRow{"low above high", {"Temp", "2", "1"}, {}, 1U},
                    FlagRow{"equal as floats", {"Temp", "1", "1.00000001"}, {}, 1U},
                    FlagRow{"one float apart", {"Temp", "1", "1.0000002"}, {}, 0U},
                    FlagRow{"low unusual", {"Temp", "-5", "2"}, {"-5"}, 8U},
                    FlagRow{"high unusual", {"Temp", "1", "200"}, {"200"}, 16U},
                    FlagRow{"both unusual", {"Temp", "-5", "200"}, {"-5", "200"}, 24U},
                    FlagRow{"blanks around numbers", {"Temp", " 1 ", " 2 "}, {}, 0U}));

TEST(AxisRules, NumberTheFlagsAsHostsStoreThem) {
    EXPECT_EQ(AxisPage::AxisLowNotBelowHigh, 1U);
    EXPECT_EQ(AxisPage::AxisLowNotNumber, 2U);
    EXPECT_EQ(AxisPage::AxisHighNotNumber, 4U);
    EXPECT_EQ(AxisPage::AxisLowOutOfRange, 8U);
    EXPECT_EQ(AxisPage::AxisHighOutOfRange, 16U);
    EXPECT_EQ(AxisPage::AxisIllegalName, 32U);
    EXPECT_EQ(AxisPage::AxisNoError, 0);
    EXPECT_EQ(AxisPage::AxisWarning, 1);
    EXPECT_EQ(AxisPage::AxisError, 2);
    EXPECT_EQ(AxisPage::LowValue, 0);
    EXPECT_EQ(AxisPage::HighValue, 1);
}

TEST(AxisRules, AskTheStudyForBothRawTexts) {
    RulesStudy study;
    study.unusualSettings = {"Temp= 1 "};
    EXPECT_EQ(AxisRules(study.GetVariables(), {{"Temp", " 1 ", "2.50"}}).IsAxisLegal(1), 8U);
    EXPECT_EQ(study.legalQuestions, (std::vector<std::string>{"Temp= 1 ", "Temp=2.50"}));
}

TEST(AxisRules, DoNotAskTheStudyBeforeTheNumbersAreInOrder) {
    RulesStudy study;
    AxisRules(study.GetVariables(), {{"Temp", "2", "1"}}).IsAxisLegal(1);
    AxisRules(study.GetVariables(), {{"Temp", "2", "x"}}).IsAxisLegal(1);
    EXPECT_TRUE(study.legalQuestions.empty());
}

struct MessageRow {
    const char* what;
    std::vector<AxisEntry> entries;
    std::vector<std::string> unusual;
    AxisPage::AxisErrorSeverity severity;
    const char* message;
};

void PrintTo(const MessageRow& row, std::ostream* out) {
    *out << row.what;
}

class AxisMessages : public testing::TestWithParam<MessageRow> {};

TEST_P(AxisMessages, AreTheExactTexts) {
    RulesStudy study;
    study.unusualSettings.insert(GetParam().unusual.begin(), GetParam().unusual.end());
    std::string message;
    EXPECT_EQ(AxisRules(study.GetVariables(), GetParam().entries).AreAxesLegal(message),
              GetParam().severity);
    EXPECT_EQ(message, GetParam().message);
}

const AxisEntry kUnused{AxisInfo::GetNotUsedName(), "", ""};
const AxisEntry kTemp{"Temp", "1", "2"};
const AxisEntry kTime{"Time", "1", "2"};
const AxisEntry kColour{"Colour", "", ""};
const AxisEntry kOil{"Oil", "0.1", "0.2"};
const AxisEntry kWater{"Water", "0.1", "0.2"};

INSTANTIATE_TEST_SUITE_P(
    Errors, AxisMessages,
    testing::Values(
        MessageRow{"all legal", {kTemp, kTime}, {}, AxisPage::AxisNoError, ""},
        MessageRow{"no axes", {}, {}, AxisPage::AxisNoError, ""},
        MessageRow{"only unused", {kUnused, kUnused}, {}, AxisPage::AxisNoError, ""},
        MessageRow{"qualitative", {kColour}, {"Colour="}, AxisPage::AxisNoError, ""},
        MessageRow{"duplicate",
                   {kTemp, kTime, kTemp},
                   {},
                   AxisPage::AxisError,
                   "The factor 'Temp' is selected more than once."},
        MessageRow{"first of two duplicates",
                   {kTemp, kTime, kTime, kTemp},
                   {},
                   AxisPage::AxisError,
                   "The factor 'Temp' is selected more than once."},
        MessageRow{"duplicate before a worse earlier axis",
                   {{"Temp", "x", "y"}, kTime, kTime},
                   {},
                   AxisPage::AxisError,
                   "The factor 'Time' is selected more than once."},
        MessageRow{"empty names are twice the same",
                   {{"", "", ""}, {"", "", ""}},
                   {},
                   AxisPage::AxisError,
                   "The factor '' is selected more than once."},
        MessageRow{"unused between",
                   {kUnused, kTemp, kUnused, {"Time", "a", "2"}},
                   {},
                   AxisPage::AxisError,
                   "The low setting on the 4th axis (Time) is not a number."},
        MessageRow{"illegal name",
                   {kTemp, {"Tempo", "1", "2"}},
                   {},
                   AxisPage::AxisError,
                   "Illegal name on 2nd axis."},
        MessageRow{
            "empty name", {{"", "1", "2"}}, {}, AxisPage::AxisError, "Illegal name on 1st axis."},
        MessageRow{"low no number",
                   {{"Temp", "x", "2"}},
                   {},
                   AxisPage::AxisError,
                   "The low setting on the 1st axis (Temp) is not a number."},
        MessageRow{"high no number",
                   {kTime, kColour, {"Temp", "1", ""}},
                   {},
                   AxisPage::AxisError,
                   "The high setting on the 3rd axis (Temp) is not a number."},
        MessageRow{"low equal to high",
                   {{"Temp", "5", "5"}},
                   {},
                   AxisPage::AxisError,
                   "The low setting (5) on the 1st axis (Temp) must be lower than the high setting "
                   "(5)."},
        MessageRow{"three digits are shown",
                   {kUnused, kUnused, kUnused, kUnused, {"Temp", "1234.5", "0.123456"}},
                   {},
                   AxisPage::AxisError,
                   "The low setting (1.23e+03) on the 5th axis (Temp) must be lower than the high "
                   "setting (0.123)."},
        MessageRow{"first illegal axis is told, earlier warnings are dropped",
                   {{"Temp", "-5", "2"}, {"Time", "x", "2"}, {"Oil", "y", "2"}},
                   {"Temp=-5"},
                   AxisPage::AxisError,
                   "The low setting on the 2nd axis (Time) is not a number."},
        MessageRow{"a percent sign in a name is one",
                   {{"10 %s", "1", "2"}, {"10 %s", "1", "2"}},
                   {},
                   AxisPage::AxisError,
                   "The factor '10 %s' is selected more than once."}));

INSTANTIATE_TEST_SUITE_P(
    Ranges, AxisMessages,
    testing::Values(
        MessageRow{"low warning",
                   {{"Temp", "-5", "2"}},
                   {"Temp=-5"},
                   AxisPage::AxisWarning,
                   "The low setting (-5) on the 1st axis (Temp) is outside the recommended range "
                   "for the factor.\n\nDo you still want to use the specified setting?"},
        MessageRow{"high warning",
                   {kTime, {"Temp", "1", "200"}},
                   {"Temp=200"},
                   AxisPage::AxisWarning,
                   "The high setting (200) on the 2nd axis (Temp) is outside the recommended range "
                   "for the factor.\n\nDo you still want to use the specified setting?"},
        MessageRow{"two settings of one axis are one question",
                   {{"Temp", "-5", "200"}},
                   {"Temp=-5", "Temp=200"},
                   AxisPage::AxisWarning,
                   "The low setting (-5) on the 1st axis (Temp) is outside the recommended range "
                   "for the factor.\nThe high setting (200) on the 1st axis (Temp) is outside the "
                   "recommended range for the factor.\n\nDo you still want to use the specified "
                   "setting?"},
        MessageRow{"one setting on each of two axes are several",
                   {{"Temp", "-5", "2"}, {"Time", "1", "99"}},
                   {"Temp=-5", "Time=99"},
                   AxisPage::AxisWarning,
                   "The low setting (-5) on the 1st axis (Temp) is outside the recommended range "
                   "for the factor.\nThe high setting (99) on the 2nd axis (Time) is outside the "
                   "recommended range for the factor.\n\nDo you still want to use the specified "
                   "settings?"},
        MessageRow{"part below 0",
                   {{"Oil", "-0.1", "0.5"}},
                   {"Oil=-0.1"},
                   AxisPage::AxisError,
                   "The low setting (-0.1) on the 1st axis (Oil) is illegal. The setting must be "
                   "in the range 0 - 1."},
        MessageRow{"the same on a process factor is a question",
                   {{"Temp", "-0.1", "0.5"}},
                   {"Temp=-0.1"},
                   AxisPage::AxisWarning,
                   "The low setting (-0.1) on the 1st axis (Temp) is outside the recommended range "
                   "for the factor.\n\nDo you still want to use the specified setting?"},
        MessageRow{"part above 1",
                   {{"Oil", "0.5", "1.5"}},
                   {"Oil=1.5"},
                   AxisPage::AxisError,
                   "The high setting (1.5) on the 1st axis (Oil) is illegal. The setting must be "
                   "in the range 0 - 1."},
        MessageRow{"low part above 1, the error of high replaces that of low",
                   {{"Oil", "1.2", "1.5"}},
                   {"Oil=1.2", "Oil=1.5"},
                   AxisPage::AxisError,
                   "The high setting (1.5) on the 1st axis (Oil) is illegal. The setting must be "
                   "in the range 0 - 1."},
        MessageRow{"low part above 1, high not doubted",
                   {{"Oil", "1.2", "1.5"}},
                   {"Oil=1.2"},
                   AxisPage::AxisError,
                   "The low setting (1.2) on the 1st axis (Oil) is illegal. The setting must be "
                   "in the range 0 - 1."},
        MessageRow{"low error stays with a high warning",
                   {{"Oil", "-0.1", "0.5"}},
                   {"Oil=-0.1", "Oil=0.5"},
                   AxisPage::AxisError,
                   "The low setting (-0.1) on the 1st axis (Oil) is illegal. The setting must be "
                   "in the range 0 - 1."},
        MessageRow{"high below 0",
                   {{"Oil", "-0.5", "-0.1"}},
                   {"Oil=-0.1"},
                   AxisPage::AxisError,
                   "The high setting (-0.1) on the 1st axis (Oil) is illegal. The setting must be "
                   "in the range 0 - 1."},
        MessageRow{"filler above 1",
                   {{"Rest", "0.5", "2"}},
                   {"Rest=2"},
                   AxisPage::AxisError,
                   "The high setting (2) on the 1st axis (Rest) is illegal. The setting must be in "
                   "the range 0 - 1."},
        MessageRow{"part at 0 and 1 is a question",
                   {{"Oil", "0", "1"}},
                   {"Oil=0", "Oil=1"},
                   AxisPage::AxisWarning,
                   "The low setting (0) on the 1st axis (Oil) is outside the recommended range for "
                   "the factor.\nThe high setting (1) on the 1st axis (Oil) is outside the "
                   "recommended range for the factor.\n\nDo you still want to use the specified "
                   "setting?"},
        MessageRow{"an impossible part that the study recommends",
                   {{"Oil", "-0.1", "1.5"}},
                   {},
                   AxisPage::AxisNoError,
                   ""},
        MessageRow{"an illegal part after a warned axis drops the warning",
                   {{"Temp", "-5", "2"}, {"Oil", "-0.1", "0.5"}},
                   {"Temp=-5", "Oil=-0.1"},
                   AxisPage::AxisError,
                   "The low setting (-0.1) on the 2nd axis (Oil) is illegal. The setting must be "
                   "in the range 0 - 1."},
        MessageRow{
            "three warned axes, legal ones between",
            {{"Temp", "-5", "2"}, kColour, {"Oil", "0", "0.5"}, kWater, {"Time", "1", "99"}},
            {"Temp=-5", "Oil=0", "Time=99"},
            AxisPage::AxisWarning,
            "The low setting (-5) on the 1st axis (Temp) is outside the recommended range "
            "for the factor.\nThe low setting (0) on the 3rd axis (Oil) is outside the "
            "recommended range for the factor.\nThe high setting (99) on the 5th axis (Time) "
            "is outside the recommended range for the factor.\n\nDo you still want to use "
            "the specified settings?"}));

TEST(AxisRules, HaveNoOrdinalForASixthAxis) {
    RulesStudy study;
    std::string message;
    AxisRules(study.GetVariables(), {kUnused, kUnused, kUnused, kUnused, kUnused, {"?", "1", "2"}})
        .AreAxesLegal(message);
    EXPECT_EQ(message, "Illegal name on  axis.");
}

}  // namespace
}  // namespace kvopt::test
