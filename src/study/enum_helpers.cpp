#include "kvopt/study/enum_helpers.h"

#include <type_traits>

#include "kvopt/stores/configuration_section.h"
#include "kvopt/text.h"
#include "study/enum_table.h"
#include "study_texts.h"

namespace kvopt {

namespace {

/// The own key of an enumeration, and the texts of its values.
template <class Enum>
struct Stored;

template <>
struct Stored<CConfLev::ConfLev> {
    static constexpr const char* kKey = "ConfLev";
    static constexpr EnumText<CConfLev::ConfLev> kTexts[]{
        {CConfLev::None, "None"},
        {CConfLev::Level90, "90%"},
        {CConfLev::Level95, "95%"},
        {CConfLev::Level99, "99%"},
    };
};

template <>
struct Stored<CIntervalType::IntervalType> {
    static constexpr const char* kKey = "IntervalType";
    static constexpr EnumText<CIntervalType::IntervalType> kTexts[]{
        {CIntervalType::None, "None"},
        {CIntervalType::Confidence, "Confidence"},
        {CIntervalType::Prediction, "Prediction"},
        {CIntervalType::Tolerance, "Tolerance"},
    };
};

template <>
struct Stored<CAlphaLev::AlphaLev> {
    static constexpr const char* kKey = "AlphaLev";
    static constexpr EnumText<CAlphaLev::AlphaLev> kTexts[]{
        {CAlphaLev::Level1, "1%"},
        {CAlphaLev::Level5, "5%"},
        {CAlphaLev::Level10, "10%"},
    };
};

template <>
struct Stored<CCoeff::Coeff> {
    static constexpr const char* kKey = "Coeff";
    static constexpr EnumText<CCoeff::Coeff> kTexts[]{
        {CCoeff::ScaledAndCentered, "ScaledAndCentered"},
        {CCoeff::PlsOrthogonal, "PlsOrthogonal"},
        {CCoeff::Normalized, "Normalized"},
        {CCoeff::Unscaled, "Unscaled"},
    };
};

template <>
struct Stored<CCoeffList::CoeffList> {
    static constexpr const char* kKey = "CoeffList";
    static constexpr EnumText<CCoeffList::CoeffList> kTexts[]{
        {CCoeffList::Regular, "Regular"},
        {CCoeffList::Extended, "Extended"},
        {CCoeffList::ExtendedOnly, "ExtendedOnly"},
    };
};

template <>
struct Stored<CR2Opt::R2Opt> {
    static constexpr const char* kKey = "R2Opt";
    static constexpr EnumText<CR2Opt::R2Opt> kTexts[]{
        {CR2Opt::R2, "R2"},
        {CR2Opt::R2Adjusted, "R2Adjusted"},
    };
};

template <>
struct Stored<CNumberFormat::NumberFormat> {
    static constexpr const char* kKey = "NumberFormat";
    static constexpr EnumText<CNumberFormat::NumberFormat> kTexts[]{
        {CNumberFormat::Auto, "Auto"},   {CNumberFormat::Decimals2, "2"},
        {CNumberFormat::Decimals3, "3"}, {CNumberFormat::Decimals4, "4"},
        {CNumberFormat::Decimals5, "5"}, {CNumberFormat::Scientific, "Scientific"},
    };
};

template <>
struct Stored<CResid::Resid> {
    static constexpr const char* kKey = "Resid";
    static constexpr EnumText<CResid::Resid> kTexts[]{
        {CResid::Raw, "Raw"},
        {CResid::Standardized, "Standardized"},
        {CResid::DeletedStudentized, "DeletedStudentized"},
    };
};

constexpr EnumText<CEVecType::EVT> kVectorTexts[]{
    {CEVecType::Num, "Num"},     {CEVecType::ScoreX, "t"},  {CEVecType::ScoreY, "u"},
    {CEVecType::LoadingX, "p"},  {CEVecType::WeightX, "w"}, {CEVecType::WeightY, "c"},
    {CEVecType::WeightXY, "wc"},
};
constexpr int kLastVector = CEVecType::NotChosen;

/// All are stored as numbers but this one.
template <class Enum>
constexpr bool kStoredAsText = std::is_same_v<Enum, CIntervalType::IntervalType>;

}  // namespace

template <class Enum>
std::string EnumHelper<Enum>::GetString(Enum value) {
    return TextOf(Stored<Enum>::kTexts, value);
}

template <class Enum>
Enum EnumHelper<Enum>::GetEnum(std::string_view text) {
    return ValueOf(Stored<Enum>::kTexts, text, Enum::Unknown);
}

template <class Enum>
void EnumHelper<Enum>::WriteSection(ConfigurationSection* section, Enum value) {
    WriteSection(section, Stored<Enum>::kKey, value);
}

template <class Enum>
void EnumHelper<Enum>::WriteSection(ConfigurationSection* section, const char* key, Enum value) {
    if constexpr (kStoredAsText<Enum>) {
        section->WriteKey(key, GetString(value));
    } else {
        section->WriteKey(key, static_cast<int>(value));
    }
}

template <class Enum>
bool EnumHelper<Enum>::ReadSection(const ConfigurationSection* section, Enum& value) {
    return ReadSection(section, Stored<Enum>::kKey, value);
}

template <class Enum>
bool EnumHelper<Enum>::ReadSection(const ConfigurationSection* section, const char* key,
                                   Enum& value) {
    if constexpr (kStoredAsText<Enum>) {
        return ReadText(Stored<Enum>::kTexts, section, key, value);
    } else {
        return ReadNumber(Stored<Enum>::kTexts, section, key, value);
    }
}

template class EnumHelper<CConfLev::ConfLev>;
template class EnumHelper<CIntervalType::IntervalType>;
template class EnumHelper<CAlphaLev::AlphaLev>;
template class EnumHelper<CCoeff::Coeff>;
template class EnumHelper<CCoeffList::CoeffList>;
template class EnumHelper<CR2Opt::R2Opt>;
template class EnumHelper<CNumberFormat::NumberFormat>;
template class EnumHelper<CResid::Resid>;

std::wstring CIntervalType::GetStringEx(IntervalType value) {
    switch (value) {
        case None:
            return texts::kStudyNoInterval.Wide();
        case Confidence:
            return texts::kStudyConfidenceInterval.Wide();
        case Prediction:
            return texts::kStudyPredictionInterval.Wide();
        case Tolerance:
            return texts::kStudyToleranceInterval.Wide();
        case Unknown:
            break;
    }
    return {};
}

std::string CEVecType::GetString(EVT value) {
    return TextOf(kVectorTexts, value);
}

CEVecType::EVT CEVecType::GetEVT(const char* name) {
    return name != nullptr ? ValueOf(kVectorTexts, name, NotChosen) : NotChosen;
}

void CEVecType::WriteSection(ConfigurationSection* section, EVT value) {
    section->WriteKey("VectorType", static_cast<int>(value));
}

bool CEVecType::ReadSection(const ConfigurationSection* section, EVT& value) {
    int number = 0;
    if (section == nullptr || !section->ReadKey("VectorType", number) || number < 0 ||
        number > kLastVector) {
        return false;
    }
    value = static_cast<EVT>(number);
    return true;
}

}  // namespace kvopt
