#include "kvopt/text/kv_string.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "kvopt/text.h"
#include "text/german_process.h"

namespace kvopt {
namespace {

struct RealText {
    const char* text;
    double value;
};

class AcceptedReal : public testing::TestWithParam<RealText> {};

TEST_P(AcceptedReal, IsReadWholeInEveryWidthAndLocale) {
    const auto [text, expected] = GetParam();
    const std::wstring wide = KvStdString::ToWide(text);
    for (const bool isGerman : {false, true}) {
        const auto german = isGerman ? std::make_unique<test::GermanProcess>() : nullptr;
        double value = kNotSet;
        EXPECT_TRUE(KvString::ToDouble(text, value)) << text;
        EXPECT_EQ(value, expected);
        EXPECT_EQ(std::signbit(value), std::signbit(expected));
        value = kNotSet;
        EXPECT_TRUE(KvString::ToDouble(wide, value)) << text;
        EXPECT_EQ(value, expected);
    }
}

INSTANTIATE_TEST_SUITE_P(
    KvString, AcceptedReal,
    testing::Values(RealText{"0", 0.0}, RealText{"-0", -0.0}, RealText{"1.5", 1.5},
                    RealText{"+1.5", 1.5}, RealText{"-1.5", -1.5}, RealText{".5", 0.5},
                    RealText{"5.", 5.0}, RealText{"-.5", -0.5}, RealText{"1e3", 1000.0},
                    RealText{"1E-3", 0.001}, RealText{"1e+3", 1000.0}, RealText{"  7", 7.0},
                    RealText{"7  ", 7.0}, RealText{"\t7\r\n", 7.0}, RealText{"007", 7.0},
                    RealText{"-99", kNotSet}, RealText{"0.1", 0.1},
                    RealText{"4.9406564584124654e-324", 4.9406564584124654e-324},
                    RealText{"1.7976931348623157e308", 1.7976931348623157e308},
                    RealText{"1e-400", 0.0}, RealText{"-1e-400", -0.0},
                    RealText{"0.00000000000000000000000000000000000000001e-320", 0.0},
                    RealText{"0e99999999999999999999", 0.0},
                    RealText{"0.0001e-99999999999999999999", 0.0}));

class RefusedReal : public testing::TestWithParam<const char*> {};

TEST_P(RefusedReal, LeavesItsTargetAlone) {
    double real = kNotSet;
    float single = kNotSetF;
    EXPECT_FALSE(KvString::ToDouble(GetParam(), real));
    EXPECT_FALSE(KvString::ToDouble(KvStdString::ToWide(GetParam()), real));
    EXPECT_FALSE(KvString::ToFloat(GetParam(), single));
    EXPECT_FALSE(KvString::ToFloat(KvStdString::ToWide(GetParam()), single));
    EXPECT_EQ(real, kNotSet);
    EXPECT_EQ(single, kNotSetF);
}

INSTANTIATE_TEST_SUITE_P(KvString, RefusedReal,
                         testing::Values("", " ", "\t\n", "a", "1a", "1 2", "1 a", "1,5", "1.5.2",
                                         "1.000,5", "--1", "++1", "+-1", "-+1", "- 1", "+ 1", "+",
                                         "-", ".", "+.", "e5", "1e", "1e+", "nan", "NaN", "-nan",
                                         "nan(1)", "inf", "-inf", "+inf", "infinity", "0x10",
                                         "0x1p3", "1e400", "-1e400", "1e99999999999999999999",
                                         "10000000000e300", "1_000", "1'000",
                                         "\xC2\xA0"
                                         "1",
                                         "\xEF\xBC\x91", "\xFF"));

TEST(KvString, RefusesAFloatThatOnlyADoubleHolds) {
    float value = kNotSetF;
    EXPECT_FALSE(KvString::ToFloat("1e39", value));
    EXPECT_FALSE(KvString::ToFloat("-3.5e38", value));
    EXPECT_EQ(value, kNotSetF);
    EXPECT_TRUE(KvString::ToFloat("3.4028235e38", value));
    EXPECT_EQ(value, std::numeric_limits<float>::max());
    EXPECT_TRUE(KvString::ToFloat("1e-46", value));
    EXPECT_EQ(value, 0.0F);
    EXPECT_TRUE(KvString::ToFloat("0.1", value));
    EXPECT_EQ(value, 0.1F);
}

TEST(KvString, TellsTooSmallFromTooLargeByAllDigits) {
    double value = kNotSet;
    EXPECT_TRUE(KvString::ToDouble("0." + std::string(400, '0') + "1", value));
    EXPECT_EQ(value, 0.0);
    EXPECT_TRUE(KvString::ToDouble("0." + std::string(400, '0') + "1e401", value));
    EXPECT_EQ(value, 1.0);
    EXPECT_FALSE(KvString::ToDouble(std::string(400, '9'), value));
    EXPECT_FALSE(KvString::ToDouble(std::string(400, '9') + "e-5", value));
    EXPECT_EQ(value, 1.0);
    EXPECT_TRUE(KvString::ToDouble(std::string(400, '9') + "e-800", value));
    EXPECT_EQ(value, 0.0);
}

TEST(KvString, RefusesTextsWithANul) {
    double value = kNotSet;
    EXPECT_FALSE(KvString::ToDouble(std::string_view("1\0", 2), value));
    EXPECT_FALSE(KvString::ToDouble(std::wstring_view(L"1\0", 2), value));
    EXPECT_EQ(value, kNotSet);
}

TEST(KvString, ReadsWholeIntegersAlone) {
    struct Row {
        const char* text;
        bool isAccepted;
        int value;
    };
    for (const Row& row : {Row{"0", true, 0},
                           Row{"42", true, 42},
                           Row{"+42", true, 42},
                           Row{"-42", true, -42},
                           Row{" 42 ", true, 42},
                           Row{"007", true, 7},
                           Row{"2147483647", true, 2147483647},
                           Row{"-2147483648", true, std::numeric_limits<int>::min()},
                           Row{"2147483648", false, -99},
                           Row{"-2147483649", false, -99},
                           Row{"1.0", false, -99},
                           Row{"1e3", false, -99},
                           Row{"", false, -99},
                           Row{" ", false, -99},
                           Row{"1 000", false, -99},
                           Row{"1.000", false, -99},
                           Row{"0x10", false, -99},
                           Row{"-", false, -99},
                           Row{"+-1", false, -99},
                           Row{"ten", false, -99}}) {
        int value = -99;
        EXPECT_EQ(KvString::ToInt(row.text, value), row.isAccepted) << row.text;
        EXPECT_EQ(value, row.value) << row.text;
        value = -99;
        EXPECT_EQ(KvString::ToInt(KvStdString::ToWide(row.text), value), row.isAccepted);
        EXPECT_EQ(value, row.value) << row.text;
    }
}

TEST(KvString, ShowsNumbersAsPercentGOfTheCLocale) {
    for (const double value : {0.0, -0.0, 1.0, 0.1, 1.0 / 3, 123456.0, 1234567.0, 0.0001, 0.00001,
                               -99.0, 1e100, 99999.95, 999999.5, 1e-320}) {
        std::array<char, 64> expected{};
        std::snprintf(expected.data(), expected.size(), "%g", value);
        const test::GermanProcess german;
        EXPECT_EQ(KvString::FormatG(value), expected.data());
        EXPECT_EQ(KvString::FormatGWide(value), KvStdString::ToWide(expected.data()));
        EXPECT_EQ(KvString::ToString(value, FormatText<1>("%g")), expected.data());
    }
    EXPECT_EQ(KvString::ToString(2.0 / 3, FormatText<1>("about %.2f")), "about 0.67");
}

TEST(KvString, StoresEveryDoubleExactly) {
    std::vector<double> values = {0.0,
                                  -0.0,
                                  0.1,
                                  1.0 / 3,
                                  kNotSet,
                                  std::numeric_limits<double>::denorm_min(),
                                  std::numeric_limits<double>::min(),
                                  std::numeric_limits<double>::max(),
                                  std::numeric_limits<double>::lowest(),
                                  std::numeric_limits<double>::infinity(),
                                  -std::numeric_limits<double>::infinity()};
    std::mt19937_64 random(20261121);
    while (values.size() < 20000) {
        const auto value = std::bit_cast<double>(static_cast<std::uint64_t>(random()));
        if (!std::isnan(value)) {
            values.push_back(value);
        }
    }
    const test::GermanProcess german;
    for (const double value : values) {
        double back = kNotSet;
        const std::string text = KvString::FromDouble(value);
        ASSERT_TRUE(KvString::FromStore(text, back)) << text;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(back), std::bit_cast<std::uint64_t>(value)) << text;
    }
    EXPECT_EQ(KvString::FromDouble(0.1), "0.1");
    EXPECT_EQ(KvString::FromDouble(1e22), "1e+22");
    EXPECT_EQ(KvString::FromDouble(std::nan("")), "nan");
    EXPECT_EQ(KvString::FromDouble(-std::nan("")), "nan");
    double back = 0.0;
    EXPECT_TRUE(KvString::FromStore("nan", back));
    EXPECT_TRUE(std::isnan(back));
    for (const char* text : {"", " 1", "1 ", "1,5", "1x"}) {
        EXPECT_FALSE(KvString::FromStore(text, back)) << text;
    }
}

TEST(GermanProcess, ReallyPutsACommaIntoStreams) {
    const test::GermanProcess german;
    std::ostringstream stream;
    stream << 1234.5;
    EXPECT_EQ(stream.str(), "1.234,5");
}

}  // namespace
}  // namespace kvopt
