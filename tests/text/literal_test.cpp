#include "kvopt/text/literal.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>
#include <string>

namespace kvopt {
namespace {

constexpr int kDoesNotParse = -1;

struct Literal {
    const char* text;
    int count;

    friend std::ostream& operator<<(std::ostream& stream, const Literal& literal) {
        return stream << '"' << literal.text << '"';
    }
};

class Directives : public testing::TestWithParam<Literal> {};

TEST_P(Directives, AreCounted) {
    EXPECT_EQ(DirectiveCount(GetParam().text).value_or(kDoesNotParse), GetParam().count);
}

INSTANTIATE_TEST_SUITE_P(
    Literal, Directives,
    testing::Values(
        Literal{"", 0}, Literal{"plain", 0}, Literal{"100 %%", 0}, Literal{"%s", 1},
        Literal{"%d and %g", 2}, Literal{"%.3g", 1}, Literal{"%-8.2f|", 1}, Literal{"%+05d", 1},
        Literal{"%ld%lu%Lf", 3}, Literal{"%1%", 1}, Literal{"%1% = %2%\n", 2},
        Literal{"%2% %1% %2%", 2}, Literal{"%1$.3f %2$5s", 2}, Literal{"%1$s %1$s", 1},
        Literal{"%10d", 1}, Literal{"%%%s%%", 1}, Literal{"0.001 %% to %d %%", 1},
        Literal{"%1% %2% %3% %4% %5% %6% %7% %8% %9% %10%", 10}, Literal{"%", kDoesNotParse},
        Literal{"50 %", kDoesNotParse}, Literal{"%y", kDoesNotParse}, Literal{"10 % of", 1},
        Literal{"50 % to", kDoesNotParse}, Literal{"%*d", kDoesNotParse},
        Literal{"%n", kDoesNotParse}, Literal{"%1% %s", kDoesNotParse},
        Literal{"%s %1%", kDoesNotParse}, Literal{"%2%", kDoesNotParse},
        Literal{"%1% %3%", kDoesNotParse}, Literal{"%.3d", kDoesNotParse},
        Literal{"%1", kDoesNotParse}, Literal{"%1$", kDoesNotParse}, Literal{"%.", kDoesNotParse},
        Literal{"%17%", kDoesNotParse}, Literal{"%99999999999999999999%", kDoesNotParse},
        Literal{"%0%", kDoesNotParse}, Literal{"%|1$s|", kDoesNotParse}));

TEST(Literal, KnowsWhatEachArgumentIsToBecome) {
    constexpr std::optional<FormatDirectives> directives = ParseDirectives("%2$g %1$s %2$d");
    ASSERT_TRUE(directives.has_value());
    EXPECT_EQ(directives->count, 2);
    EXPECT_EQ(directives->conversions[0], 's');
    EXPECT_EQ(directives->conversions[1], 'g') << "the first directive that names it decides";
}

TEST(PlainText, StandsAsItIs) {
    constexpr PlainText text("10 % of half the range °C");
    EXPECT_STREQ(text.Text(), "10 % of half the range °C");
    EXPECT_EQ(text.Wide(), L"10 % of half the range °C");
}

TEST(FormatText, IsCountedByTheCompiler) {
    constexpr FormatText<2> text("%s: %d");
    EXPECT_STREQ(text.Text(), "%s: %d");
    static_assert(DirectiveCount("%s: %d") == 2);
}

}  // namespace
}  // namespace kvopt
