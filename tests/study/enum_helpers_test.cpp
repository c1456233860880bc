#include "kvopt/study/enum_helpers.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "kvopt/stores.h"

namespace kvopt {
namespace {

// What the tests have to know of a helper: its enumeration, its key, and its first and last value.

struct ConfLevShape {
    using Helper = CConfLev;
    using Enum = CConfLev::ConfLev;
    static constexpr const char* kKey = "ConfLev";
    static constexpr int kFirst = 0;
    static constexpr int kLast = 3;
};

struct IntervalTypeShape {
    using Helper = CIntervalType;
    using Enum = CIntervalType::IntervalType;
    static constexpr const char* kKey = "IntervalType";
    static constexpr int kFirst = 0;
    static constexpr int kLast = 3;
};

struct AlphaLevShape {
    using Helper = CAlphaLev;
    using Enum = CAlphaLev::AlphaLev;
    static constexpr const char* kKey = "AlphaLev";
    static constexpr int kFirst = 1;
    static constexpr int kLast = 3;
};

struct CoeffShape {
    using Helper = CCoeff;
    using Enum = CCoeff::Coeff;
    static constexpr const char* kKey = "Coeff";
    static constexpr int kFirst = 1;
    static constexpr int kLast = 4;
};

struct CoeffListShape {
    using Helper = CCoeffList;
    using Enum = CCoeffList::CoeffList;
    static constexpr const char* kKey = "CoeffList";
    static constexpr int kFirst = 1;
    static constexpr int kLast = 3;
};

struct R2OptShape {
    using Helper = CR2Opt;
    using Enum = CR2Opt::R2Opt;
    static constexpr const char* kKey = "R2Opt";
    static constexpr int kFirst = 1;
    static constexpr int kLast = 2;
};

struct NumberFormatShape {
    using Helper = CNumberFormat;
    using Enum = CNumberFormat::NumberFormat;
    static constexpr const char* kKey = "NumberFormat";
    static constexpr int kFirst = 1;
    static constexpr int kLast = 6;
};

struct ResidShape {
    using Helper = CResid;
    using Enum = CResid::Resid;
    static constexpr const char* kKey = "Resid";
    static constexpr int kFirst = 1;
    static constexpr int kLast = 3;
};

template <class ShapeType>
class EnumHelpers : public testing::Test {
protected:
    using Helper = typename ShapeType::Helper;
    using Enum = typename ShapeType::Enum;

    static std::vector<Enum> Values() {
        std::vector<Enum> values;
        for (int i = ShapeType::kFirst; i <= ShapeType::kLast; ++i) {
            values.push_back(static_cast<Enum>(i));
        }
        return values;
    }
    static Enum Other(Enum value) {
        return static_cast<Enum>(value == ShapeType::kLast ? ShapeType::kFirst : value + 1);
    }
};

using Shapes = testing::Types<ConfLevShape, IntervalTypeShape, AlphaLevShape, CoeffShape,
                              CoeffListShape, R2OptShape, NumberFormatShape, ResidShape>;
TYPED_TEST_SUITE(EnumHelpers, Shapes);

TYPED_TEST(EnumHelpers, KeepEveryValueUnderTheirOwnKey) {
    for (const auto value : this->Values()) {
        ConfigurationStore store;
        TypeParam::Helper::WriteSection(store.Root().get(), value);
        const auto reread = ConfigurationStore::Parse(store.Text(), "plot.json");
        auto back = this->Other(value);
        EXPECT_TRUE(TypeParam::Helper::ReadSection(reread.Root().get(), back));
        EXPECT_EQ(back, value);
        back = this->Other(value);
        EXPECT_TRUE(TypeParam::Helper::ReadSection(reread.Root().get(), TypeParam::kKey, back));
        EXPECT_EQ(back, value);
    }
}

TYPED_TEST(EnumHelpers, KeepEveryValueUnderANamedKey) {
    for (const auto value : this->Values()) {
        ConfigurationStore store;
        TypeParam::Helper::WriteSection(store.Root().get(), "TolProp", value);
        auto back = this->Other(value);
        EXPECT_FALSE(TypeParam::Helper::ReadSection(store.Root().get(), back));
        EXPECT_EQ(back, this->Other(value));
        EXPECT_TRUE(TypeParam::Helper::ReadSection(store.Root().get(), "TolProp", back));
        EXPECT_EQ(back, value);
    }
}

TYPED_TEST(EnumHelpers, KnowEveryTextOfTheirOwn) {
    std::set<std::string> texts;
    for (const auto value : this->Values()) {
        const std::string text = TypeParam::Helper::GetString(value);
        EXPECT_FALSE(text.empty());
        EXPECT_TRUE(texts.insert(text).second) << text;
        EXPECT_EQ(TypeParam::Helper::GetEnum(text), value);
        EXPECT_EQ(TypeParam::Helper::GetEnum(text + " "), TypeParam::Helper::Unknown);
    }
    EXPECT_EQ(TypeParam::Helper::GetEnum(""), TypeParam::Helper::Unknown);
    EXPECT_EQ(TypeParam::Helper::GetEnum("no such value"), TypeParam::Helper::Unknown);
}

TYPED_TEST(EnumHelpers, HaveNoTextForOtherNumbers) {
    EXPECT_EQ(
        TypeParam::Helper::GetString(static_cast<typename TypeParam::Enum>(TypeParam::kFirst - 1)),
        "");
    EXPECT_EQ(
        TypeParam::Helper::GetString(static_cast<typename TypeParam::Enum>(TypeParam::kLast + 1)),
        "");
    EXPECT_EQ(TypeParam::Helper::GetString(TypeParam::Helper::Unknown), "");
}

TYPED_TEST(EnumHelpers, KeepTheFieldWhenTheKeyHoldsNoValue) {
    const auto kept = static_cast<typename TypeParam::Enum>(TypeParam::kLast);
    const std::vector<int> numbers{-1, TypeParam::kFirst - 1, TypeParam::kLast + 1, 1000};
    for (const int number : numbers) {
        ConfigurationStore store;
        store.Root()->WriteKey(TypeParam::kKey, number);
        auto value = kept;
        EXPECT_FALSE(TypeParam::Helper::ReadSection(store.Root().get(), value)) << number;
        EXPECT_EQ(value, kept);
    }
    ConfigurationStore store;
    store.Root()->WriteKey(TypeParam::kKey, "no such value");
    auto value = kept;
    EXPECT_FALSE(TypeParam::Helper::ReadSection(store.Root().get(), value));
    EXPECT_FALSE(TypeParam::Helper::ReadSection(store.Root().get(), "Absent", value));
    EXPECT_FALSE(TypeParam::Helper::ReadSection(nullptr, value));
    EXPECT_EQ(value, kept);
}

TYPED_TEST(EnumHelpers, KeepTheFieldWhenTheUnknownValueWasWritten) {
    ConfigurationStore store;
    TypeParam::Helper::WriteSection(store.Root().get(), TypeParam::Helper::Unknown);
    auto value = static_cast<typename TypeParam::Enum>(TypeParam::kFirst);
    EXPECT_FALSE(TypeParam::Helper::ReadSection(store.Root().get(), value));
    EXPECT_EQ(value, TypeParam::kFirst);
}

/// The numbers and texts that files hold.
TEST(EnumTexts, AreSpelledAsFilesHoldThem) {
    const std::pair<std::string, std::string> texts[] = {
        {CConfLev::GetString(CConfLev::None), "None"},
        {CConfLev::GetString(CConfLev::Level90), "90%"},
        {CConfLev::GetString(CConfLev::Level95), "95%"},
        {CConfLev::GetString(CConfLev::Level99), "99%"},
        {CIntervalType::GetString(CIntervalType::None), "None"},
        {CIntervalType::GetString(CIntervalType::Confidence), "Confidence"},
        {CIntervalType::GetString(CIntervalType::Prediction), "Prediction"},
        {CIntervalType::GetString(CIntervalType::Tolerance), "Tolerance"},
    };
    for (const auto& [text, expected] : texts) {
        EXPECT_EQ(text, expected);
    }
}

TEST(EnumNumbers, AreThoseThatFilesHold) {
    EXPECT_EQ(CAlphaLev::Level1, 1);
    EXPECT_EQ(CAlphaLev::Level5, 2);
    EXPECT_EQ(CAlphaLev::Level10, 3);
    EXPECT_EQ(CCoeff::ScaledAndCentered, 1);
    EXPECT_EQ(CCoeff::PlsOrthogonal, 2);
    EXPECT_EQ(CCoeff::Normalized, 3);
    EXPECT_EQ(CCoeff::Unscaled, 4);
    EXPECT_EQ(CCoeffList::Regular, 1);
    EXPECT_EQ(CCoeffList::Extended, 2);
    EXPECT_EQ(CCoeffList::ExtendedOnly, 3);
    EXPECT_EQ(CR2Opt::R2, 1);
    EXPECT_EQ(CR2Opt::R2Adjusted, 2);
    EXPECT_EQ(CNumberFormat::Auto, 1);
    EXPECT_EQ(CNumberFormat::Decimals2, 2);
    EXPECT_EQ(CNumberFormat::Decimals5, 5);
    EXPECT_EQ(CNumberFormat::Scientific, 6);
    EXPECT_EQ(CResid::Raw, 1);
    EXPECT_EQ(CResid::Standardized, 2);
    EXPECT_EQ(CResid::DeletedStudentized, 3);
    EXPECT_EQ(CModelList::Regular, 1);
    EXPECT_EQ(CModelList::Extended, 2);
}

TEST(CConfLev, IsStoredAsAnIntAndNeverAsAText) {
    ConfigurationStore store;
    CConfLev::WriteSection(store.Root().get(), CConfLev::Level99);
    int number = 0;
    std::string text;
    EXPECT_TRUE(store.Root()->ReadKey("ConfLev", number));
    EXPECT_EQ(number, 3);
    EXPECT_FALSE(store.Root()->ReadKey("ConfLev", text));
    ConfigurationStore old;
    old.Root()->WriteKey("ConfLev", CConfLev::GetString(CConfLev::Level99));
    CConfLev::ConfLev level = CConfLev::Level90;
    EXPECT_FALSE(CConfLev::ReadSection(old.Root().get(), level));
    EXPECT_EQ(level, CConfLev::Level90);
}

TEST(CConfLev, NumbersItsLevels) {
    EXPECT_EQ(CConfLev::None, 0);
    EXPECT_EQ(CConfLev::Level90, 1);
    EXPECT_EQ(CConfLev::Level95, 2);
    EXPECT_EQ(CConfLev::Level99, 3);
}

TEST(CIntervalType, IsStoredByItsText) {
    ConfigurationStore store;
    CIntervalType::WriteSection(store.Root().get(), CIntervalType::Tolerance);
    std::string text;
    int number = 0;
    EXPECT_TRUE(store.Root()->ReadKey("IntervalType", text));
    EXPECT_EQ(text, CIntervalType::GetString(CIntervalType::Tolerance));
    EXPECT_FALSE(store.Root()->ReadKey("IntervalType", number));
}

TEST(CIntervalType, NumbersItsKindsAndShowsThem) {
    EXPECT_EQ(CIntervalType::None, 0);
    EXPECT_EQ(CIntervalType::Confidence, 1);
    EXPECT_EQ(CIntervalType::Prediction, 2);
    EXPECT_EQ(CIntervalType::Tolerance, 3);
    std::set<std::wstring> texts;
    for (int type = 0; type <= 3; ++type) {
        const std::wstring text =
            CIntervalType::GetStringEx(static_cast<CIntervalType::IntervalType>(type));
        EXPECT_FALSE(text.empty());
        EXPECT_TRUE(texts.insert(text).second);
    }
    EXPECT_EQ(CIntervalType::GetStringEx(CIntervalType::Unknown), L"");
    EXPECT_EQ(CIntervalType::GetStringEx(static_cast<CIntervalType::IntervalType>(4)), L"");
}

TEST(CEVecType, KeepsEveryNumberAHostMayUse) {
    for (int number = 0; number <= 84; ++number) {
        ConfigurationStore store;
        CEVecType::WriteSection(store.Root().get(), static_cast<CEVecType::EVT>(number));
        CEVecType::EVT back = CEVecType::Num;
        EXPECT_TRUE(CEVecType::ReadSection(store.Root().get(), back));
        EXPECT_EQ(back, number);
    }
}

TEST(CEVecType, KeepsTheFieldWhenTheKeyHoldsNoVector) {
    CEVecType::EVT value = CEVecType::ScoreX;
    for (const int number : {-1, 85}) {
        ConfigurationStore store;
        store.Root()->WriteKey("VectorType", number);
        EXPECT_FALSE(CEVecType::ReadSection(store.Root().get(), value));
    }
    ConfigurationStore store;
    EXPECT_FALSE(CEVecType::ReadSection(store.Root().get(), value));
    store.Root()->WriteKey("VectorType", "t");
    EXPECT_FALSE(CEVecType::ReadSection(store.Root().get(), value));
    EXPECT_FALSE(CEVecType::ReadSection(nullptr, value));
    EXPECT_EQ(value, CEVecType::ScoreX);
}

TEST(CEVecType, NamesTheVectorsOfPlots) {
    EXPECT_EQ(CEVecType::GetString(static_cast<CEVecType::EVT>(1)), "Num");
    std::set<std::string> names;
    for (const int number : {1, 37, 39, 66, 78, 59, 79}) {
        const auto vector = static_cast<CEVecType::EVT>(number);
        const std::string name = CEVecType::GetString(vector);
        EXPECT_FALSE(name.empty()) << number;
        EXPECT_TRUE(names.insert(name).second) << name;
        EXPECT_EQ(CEVecType::GetEVT(name.c_str()), vector);
    }
    EXPECT_EQ(CEVecType::GetEVT("t"), 37);
    EXPECT_EQ(CEVecType::GetEVT("u"), 39);
    EXPECT_EQ(CEVecType::GetEVT("p"), 59);
    EXPECT_EQ(CEVecType::GetEVT("w"), 66);
    EXPECT_EQ(CEVecType::GetEVT("c"), 78);
    EXPECT_EQ(CEVecType::GetEVT("wc"), 79);
    EXPECT_EQ(CEVecType::GetString(CEVecType::NotChosen), "");
    EXPECT_EQ(CEVecType::NotChosen, 84);
    EXPECT_EQ(CEVecType::GetEVT(""), CEVecType::NotChosen);
    EXPECT_EQ(CEVecType::GetEVT("num"), CEVecType::NotChosen);
    EXPECT_EQ(CEVecType::GetEVT(nullptr), CEVecType::NotChosen);
}

}  // namespace
}  // namespace kvopt
