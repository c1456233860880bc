#include <bit>
#include <cmath>
#include <cstdint>
#include <string>

#include "fuzz/targets.h"
#include "kvopt/text.h"

namespace kvopt::fuzz {
namespace {

constexpr double kBefore = -99.0;

void RequireExact(double value) {
    double back = 0.0;
    Require(KvString::FromStore(KvString::FromDouble(value), back), "a number is not read back");
    Require((std::isnan(value) && std::isnan(back)) ||
                std::bit_cast<std::uint64_t>(back) == std::bit_cast<std::uint64_t>(value),
            "a number changes in a store");
}

}  // namespace

void Numbers(std::string_view input) {
    // As wide text only where that says the same.
    std::wstring wide;
    for (const char c : input) {
        wide += static_cast<unsigned char>(c) < 0x80 ? static_cast<wchar_t>(c) : L'\x3B1';
    }
    double real = kBefore;
    double wideReal = kBefore;
    const bool isReal = KvString::ToDouble(input, real);
    Require(isReal == KvString::ToDouble(wide, wideReal), "narrow and wide disagree");
    Require(real == wideReal, "narrow and wide read different numbers");
    Require(isReal ? std::isfinite(real) : real == kBefore, "a number that is none");
    float single = static_cast<float>(kBefore);
    if (KvString::ToFloat(input, single)) {
        Require(isReal && std::isfinite(single), "a float that is no number");
    } else {
        Require(single == static_cast<float>(kBefore), "a failure changed the target");
    }
    int integer = 0;
    if (KvString::ToInt(input, integer)) {
        Require(isReal && real == integer, "an integer that is another number");
    }
    double stored = kBefore;
    if (KvString::FromStore(input, stored)) {
        RequireExact(stored);
    }
    if (isReal) {
        RequireExact(real);
        double shown = kBefore;
        Require(KvString::ToDouble(KvString::FormatG(real), shown) || std::abs(real) > 1e308,
                "a shown number is not read");
    }
    if (input.size() >= sizeof(double)) {
        std::uint64_t bits = 0;
        for (std::size_t i = 0; i < sizeof bits; ++i) {
            bits = bits << 8U | static_cast<unsigned char>(input[i]);
        }
        RequireExact(std::bit_cast<double>(bits));
    }
}

}  // namespace kvopt::fuzz
