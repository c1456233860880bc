#include "kvopt/text/format.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string>

#include "kvopt/text.h"
#include "text/german_process.h"

namespace kvopt {
namespace {

enum Severity { kNone = 0, kError = 2 };
enum class Kind { Process = 3 };

TEST(Format, ConvertsEachArgumentToWhatItsDirectiveSays) {
    EXPECT_EQ(Format(FormatText<1>("%d"), 3.7), "3");
    EXPECT_EQ(Format(FormatText<1>("%d"), -3.7), "-3");
    EXPECT_EQ(Format(FormatText<1>("%d"), 1e300), "9223372036854775807");
    EXPECT_EQ(Format(FormatText<1>("%d"), -1e300), "-9223372036854775808");
    EXPECT_EQ(Format(FormatText<1>("%d"), std::nan("")), "0");
    EXPECT_EQ(Format(FormatText<1>("%.3g"), 42), "42");
    EXPECT_EQ(Format(FormatText<1>("%.3f"), 42), "42.000");
    EXPECT_EQ(Format(FormatText<1>("%u"), -1), "4294967295");
    EXPECT_EQ(Format(FormatText<1>("%u"), 7.9), "7");
    EXPECT_EQ(Format(FormatText<1>("%x"), 255), "ff");
    EXPECT_EQ(Format(FormatText<1>("%X"), static_cast<short>(-1)), "FFFF");
    EXPECT_EQ(Format(FormatText<1>("%c"), 'A'), "A");
    EXPECT_EQ(Format(FormatText<1>("%c"), 65), "A");
    EXPECT_EQ(Format(FormatText<1>("%d"), 'A'), "65");
    EXPECT_EQ(Format(FormatText<1>("%s"), 1.0 / 3), "0.333333");
    EXPECT_EQ(Format(FormatText<1>("%s"), 12), "12");
    EXPECT_EQ(Format(FormatText<1>("%d"), true), "1");
    EXPECT_EQ(Format(FormatText<2>("%d %d"), kError, Kind::Process), "2 3");
    EXPECT_EQ(Format(FormatText<1>("%s"), std::numeric_limits<long long>::min()),
              "-9223372036854775808");
}

TEST(Format, TakesTextsOfEveryKind) {
    const std::string narrow = "Öl";
    const std::wstring wide = L"5 µm";
    EXPECT_EQ(Format(FormatText<4>("%s|%s|%s|%s"), "a", narrow, wide, std::string_view("b")),
              "a|Öl|5 µm|b");
    EXPECT_EQ(FormatWide(FormatText<2>("%1% = %2%\n"), narrow, wide), L"Öl = 5 µm\n");
}

TEST(Format, KeepsInvalidBytesInNarrowTextAndReplacesThemInWideText) {
    EXPECT_EQ(Format(FormatText<1>("<%s>"), "\xFF"), "<\xFF>");
    EXPECT_EQ(FormatWide(FormatText<1>("<%s>"), "\xFF"), L"<\xFFFD>");
}

TEST(Format, PrintsAnArgumentThatHoldsDirectivesAsItStands) {
    EXPECT_EQ(Format(FormatText<2>("%s %d"), "50 %d %1% %%", 7), "50 %d %1% %% 7");
}

TEST(Format, FillsNumberedDirectivesInAnyOrder) {
    EXPECT_EQ(Format(FormatText<2>("%2% %1% %2%"), "a", "b"), "b a b");
    EXPECT_EQ(Format(FormatText<2>("%2$.1f %1$5s|"), "a", 2), "2.0     a|");
    EXPECT_EQ(Format(FormatText<1>("%1% of 100 %%"), 5), "5 of 100 %");
}

TEST(Format, PadsWideTextByCharacters) {
    EXPECT_EQ(FormatWide(FormatText<1>("%4s|"), "°C"), L"  °C|");
    EXPECT_EQ(Format(FormatText<1>("%4s|"), "°C"), " °C|") << "bytes, as printf counts";
}

TEST(Format, PrintsTheSameInEveryLocale) {
    const test::GermanProcess german;
    EXPECT_EQ(Format(FormatText<3>("%g %.3f %d"), 1.5, 1234.5, 1234567), "1.5 1234.500 1234567");
    EXPECT_EQ(FormatWide(FormatText<3>("%g %.3f %d"), 1.5, 1234.5, 1234567),
              L"1.5 1234.500 1234567");
}

TEST(Format, ThrowsForATextThatEscapedTheCompiler) {
    EXPECT_THROW(detail::FormatArguments("%y", {FormatArgument(1)}), InvalidArgument);
    EXPECT_THROW(detail::FormatArguments("%s", {}), InvalidArgument);
    EXPECT_THROW(detail::FormatArguments("%s", {FormatArgument(1), FormatArgument(2)}),
                 InvalidArgument);
}

// The one table against the C library: each directive with the number that printf gets.
template <int N>
void ExpectLikePrintf(const FormatText<N>& format, double value) {
    std::array<char, 512> expected{};
    std::snprintf(expected.data(), expected.size(), format.Text(), value);
    EXPECT_EQ(Format(format, value), expected.data()) << format.Text();
}

TEST(Format, AgreesWithPrintfOnRealNumbers) {
    for (const double value :
         {0.0, -0.0, 1.0, -1.5, 1.0 / 3, 123456789.0, 1e-7, 1e100, 0.00012345}) {
        ExpectLikePrintf(FormatText<1>("%g"), value);
        ExpectLikePrintf(FormatText<1>("%.3g"), value);
        ExpectLikePrintf(FormatText<1>("%G"), value);
        ExpectLikePrintf(FormatText<1>("%f"), value);
        ExpectLikePrintf(FormatText<1>("%.0f"), value);
        ExpectLikePrintf(FormatText<1>("%8.2f|"), value);
        ExpectLikePrintf(FormatText<1>("%-12.4e|"), value);
        ExpectLikePrintf(FormatText<1>("%+.2f"), value);
        ExpectLikePrintf(FormatText<1>("%012.3f"), value);
    }
}

}  // namespace
}  // namespace kvopt
