#include "kvopt/text/format.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "kvopt/text.h"

namespace kvopt {
namespace {

TEST(Format, ConvertsEachArgumentToWhatItsDirectiveSays) {
    EXPECT_EQ(Format(FormatText<1>("%d"), 3.7), "3");
    EXPECT_EQ(Format(FormatText<1>("%d"), -3.7), "-3");
    EXPECT_EQ(Format(FormatText<1>("%.3g"), 42), "42");
    EXPECT_EQ(Format(FormatText<1>("%u"), -1), "4294967295");
    EXPECT_EQ(Format(FormatText<1>("%x"), 255), "ff");
    EXPECT_EQ(Format(FormatText<1>("%c"), 'A'), "A");
    EXPECT_EQ(Format(FormatText<1>("%d"), 'A'), "65");
    EXPECT_EQ(Format(FormatText<1>("%s"), 1.0 / 3), "0.333333");
    EXPECT_EQ(Format(FormatText<1>("%s"), 12), "12");
    EXPECT_EQ(Format(FormatText<1>("%d"), true), "1");
    EXPECT_EQ(FormatWide(FormatText<2>("%1% = %2%\n"), std::string("Öl"), L"5 µm"), L"Öl = 5 µm\n");
}

}  // namespace
}  // namespace kvopt
