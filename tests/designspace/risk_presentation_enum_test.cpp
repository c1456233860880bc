#include "kvopt/designspace/risk_presentation_enum.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace kvopt::test {
namespace {

using Enum = RiskPresentationEnum;

struct TextRow {
    std::wstring (*text)(Enum::RiskPresentation);
    const wchar_t* percent;
    const wchar_t* dpmo;
};

TEST(RiskPresentationEnum, HasTextsForBothPresentationsAndNoneForOtherNumbers) {
    const TextRow rows[] = {
        {Enum::ToString, L"Probability of failure (%)", L"Probability of failure (DPMO)"},
        {Enum::ToShortString, L"Prob. fail. (%)", L"DPMO"},
        {Enum::ToChoiceString, L"%", L"DPMO"},
        {Enum::ToLimitString, L"Acceptance level (%)", L"Acceptance level (DPMO)"},
        {Enum::ToListHeaderString, L"Prob. of failure", L"DPMO"}};
    for (const TextRow& row : rows) {
        EXPECT_EQ(row.text(Enum::Probability), row.percent);
        EXPECT_EQ(row.text(Enum::Dpmo), row.dpmo);
        EXPECT_EQ(row.text(Enum::IntToEnum(2)), L"");
        EXPECT_EQ(row.text(Enum::IntToEnum(-1)), L"");
    }
}

TEST(RiskPresentationEnum, KeepsEveryNumberAsItIs) {
    EXPECT_EQ(Enum::IntToEnum(0), Enum::Probability);
    EXPECT_EQ(Enum::IntToEnum(1), Enum::Dpmo);
    for (const int number : {-1, 2, 99}) {
        EXPECT_EQ(static_cast<int>(Enum::IntToEnum(number)), number);
    }
}

TEST(RiskPresentationEnum, KnowsFourTextsOfEachPresentation) {
    for (const wchar_t* text :
         {L"Probability of failure (%)", L"%", L"Prob. fail. (%)", L"Acceptance level (%)"}) {
        EXPECT_EQ(Enum::StringToEnum(text), Enum::Probability);
    }
    for (const wchar_t* text :
         {L"Probability of failure (DPMO)", L"DPMO", L"Acceptance level (DPMO)"}) {
        EXPECT_EQ(Enum::StringToEnum(text), Enum::Dpmo);
    }
}

TEST(RiskPresentationEnum, TakesAnyOtherTextForDpmo) {
    for (const wchar_t* text : {L"", L"Prob. of failure", L"% ", L"Percent", L"prob. fail. (%)"}) {
        EXPECT_EQ(Enum::StringToEnum(text), Enum::Dpmo);
    }
}

TEST(RiskPresentationEnum, IsAPlainValueWithoutData) {
    EXPECT_TRUE(std::is_empty_v<Enum>);
    EXPECT_TRUE(std::is_copy_assignable_v<Enum>);
    EXPECT_TRUE(std::is_move_assignable_v<Enum>);
}

}  // namespace
}  // namespace kvopt::test
