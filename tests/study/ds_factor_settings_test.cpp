#include "kvopt/study/ds_factor_settings.h"

#include <gtest/gtest.h>

namespace kvopt {
namespace {

TEST(DSFactorSettings, NumbersItsDistributionsAsTheyAreStored) {
    EXPECT_EQ(DSFactorSettings::Uniform, 0);
    EXPECT_EQ(DSFactorSettings::Normal, 1);
    EXPECT_EQ(DSFactorSettings::Triangular, 2);
    EXPECT_EQ(DSFactorSettings::OtherNormal, 3);
}

TEST(DSFactorSettings, HasATextForEachThatCanBePicked) {
    EXPECT_EQ(DSFactorSettings::ToString(DSFactorSettings::Uniform), L"Uniform");
    EXPECT_EQ(DSFactorSettings::ToString(DSFactorSettings::Normal), L"Normal");
    EXPECT_EQ(DSFactorSettings::ToString(DSFactorSettings::Triangular), L"Triangular");
}

TEST(DSFactorSettings, HasNoTextForAnythingElse) {
    EXPECT_EQ(DSFactorSettings::ToString(DSFactorSettings::OtherNormal), L"");
    EXPECT_EQ(DSFactorSettings::ToString(static_cast<DSFactorSettings::Distribution>(4)), L"");
}

}  // namespace
}  // namespace kvopt
