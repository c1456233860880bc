#include "kvopt/study/enum_helpers.h"

#include "kvopt/stores/configuration_section.h"
#include "kvopt/text.h"
#include "study/enum_table.h"
#include "study_texts.h"

namespace kvopt {

namespace {

constexpr EnumText<CConfLev::ConfLev> kConfLevTexts[]{
    {CConfLev::None, "None"},
    {CConfLev::Level90, "90%"},
    {CConfLev::Level95, "95%"},
    {CConfLev::Level99, "99%"},
};

constexpr EnumText<CAlphaLev::AlphaLev> kAlphaLevTexts[]{
    {CAlphaLev::Level1, "1%"},
    {CAlphaLev::Level5, "5%"},
    {CAlphaLev::Level10, "10%"},
};

constexpr EnumText<CCoeff::Coeff> kCoeffTexts[]{
    {CCoeff::ScaledAndCentered, "ScaledAndCentered"},
    {CCoeff::PlsOrthogonal, "PlsOrthogonal"},
    {CCoeff::Normalized, "Normalized"},
    {CCoeff::Unscaled, "Unscaled"},
};

constexpr EnumText<CCoeffList::CoeffList> kCoeffListTexts[]{
    {CCoeffList::Regular, "Regular"},
    {CCoeffList::Extended, "Extended"},
    {CCoeffList::ExtendedOnly, "ExtendedOnly"},
};

constexpr EnumText<CR2Opt::R2Opt> kR2OptTexts[]{
    {CR2Opt::R2, "R2"},
    {CR2Opt::R2Adjusted, "R2Adjusted"},
};

constexpr EnumText<CNumberFormat::NumberFormat> kNumberFormatTexts[]{
    {CNumberFormat::Auto, "Auto"},   {CNumberFormat::Decimals2, "2"},
    {CNumberFormat::Decimals3, "3"}, {CNumberFormat::Decimals4, "4"},
    {CNumberFormat::Decimals5, "5"}, {CNumberFormat::Scientific, "Scientific"},
};

constexpr EnumText<CResid::Resid> kResidTexts[]{
    {CResid::Raw, "Raw"},
    {CResid::Standardized, "Standardized"},
    {CResid::DeletedStudentized, "DeletedStudentized"},
};

constexpr EnumText<CIntervalType::IntervalType> kIntervalTexts[]{
    {CIntervalType::None, "None"},
    {CIntervalType::Confidence, "Confidence"},
    {CIntervalType::Prediction, "Prediction"},
    {CIntervalType::Tolerance, "Tolerance"},
};

constexpr EnumText<CEVecType::EVT> kVectorTexts[]{
    {CEVecType::Num, "Num"},     {CEVecType::ScoreX, "t"},  {CEVecType::ScoreY, "u"},
    {CEVecType::LoadingX, "p"},  {CEVecType::WeightX, "w"}, {CEVecType::WeightY, "c"},
    {CEVecType::WeightXY, "wc"},
};
constexpr int kLastVector = CEVecType::NotChosen;

}  // namespace

std::string CConfLev::GetString(ConfLev value) {
    return TextOf(kConfLevTexts, value);
}

CConfLev::ConfLev CConfLev::GetEnum(std::string_view text) {
    return ValueOf(kConfLevTexts, text, Unknown);
}

void CConfLev::WriteSection(ConfigurationSection* section, ConfLev value) {
    WriteSection(section, "ConfLev", value);
}

void CConfLev::WriteSection(ConfigurationSection* section, const char* key, ConfLev value) {
    section->WriteKey(key, static_cast<int>(value));
}

bool CConfLev::ReadSection(const ConfigurationSection* section, ConfLev& value) {
    return ReadSection(section, "ConfLev", value);
}

bool CConfLev::ReadSection(const ConfigurationSection* section, const char* key, ConfLev& value) {
    return ReadNumber(kConfLevTexts, section, key, value);
}

std::string CAlphaLev::GetString(AlphaLev value) {
    return TextOf(kAlphaLevTexts, value);
}

CAlphaLev::AlphaLev CAlphaLev::GetEnum(std::string_view text) {
    return ValueOf(kAlphaLevTexts, text, Unknown);
}

void CAlphaLev::WriteSection(ConfigurationSection* section, AlphaLev value) {
    WriteSection(section, "AlphaLev", value);
}

void CAlphaLev::WriteSection(ConfigurationSection* section, const char* key, AlphaLev value) {
    section->WriteKey(key, static_cast<int>(value));
}

bool CAlphaLev::ReadSection(const ConfigurationSection* section, AlphaLev& value) {
    return ReadSection(section, "AlphaLev", value);
}

bool CAlphaLev::ReadSection(const ConfigurationSection* section, const char* key, AlphaLev& value) {
    return ReadNumber(kAlphaLevTexts, section, key, value);
}

std::string CCoeff::GetString(Coeff value) {
    return TextOf(kCoeffTexts, value);
}

CCoeff::Coeff CCoeff::GetEnum(std::string_view text) {
    return ValueOf(kCoeffTexts, text, Unknown);
}

void CCoeff::WriteSection(ConfigurationSection* section, Coeff value) {
    WriteSection(section, "Coeff", value);
}

void CCoeff::WriteSection(ConfigurationSection* section, const char* key, Coeff value) {
    section->WriteKey(key, static_cast<int>(value));
}

bool CCoeff::ReadSection(const ConfigurationSection* section, Coeff& value) {
    return ReadSection(section, "Coeff", value);
}

bool CCoeff::ReadSection(const ConfigurationSection* section, const char* key, Coeff& value) {
    return ReadNumber(kCoeffTexts, section, key, value);
}

std::string CCoeffList::GetString(CoeffList value) {
    return TextOf(kCoeffListTexts, value);
}

CCoeffList::CoeffList CCoeffList::GetEnum(std::string_view text) {
    return ValueOf(kCoeffListTexts, text, Unknown);
}

void CCoeffList::WriteSection(ConfigurationSection* section, CoeffList value) {
    WriteSection(section, "CoeffList", value);
}

void CCoeffList::WriteSection(ConfigurationSection* section, const char* key, CoeffList value) {
    section->WriteKey(key, static_cast<int>(value));
}

bool CCoeffList::ReadSection(const ConfigurationSection* section, CoeffList& value) {
    return ReadSection(section, "CoeffList", value);
}

bool CCoeffList::ReadSection(const ConfigurationSection* section, const char* key,
                             CoeffList& value) {
    return ReadNumber(kCoeffListTexts, section, key, value);
}

std::string CR2Opt::GetString(R2Opt value) {
    return TextOf(kR2OptTexts, value);
}

CR2Opt::R2Opt CR2Opt::GetEnum(std::string_view text) {
    return ValueOf(kR2OptTexts, text, Unknown);
}

void CR2Opt::WriteSection(ConfigurationSection* section, R2Opt value) {
    WriteSection(section, "R2Opt", value);
}

void CR2Opt::WriteSection(ConfigurationSection* section, const char* key, R2Opt value) {
    section->WriteKey(key, static_cast<int>(value));
}

bool CR2Opt::ReadSection(const ConfigurationSection* section, R2Opt& value) {
    return ReadSection(section, "R2Opt", value);
}

bool CR2Opt::ReadSection(const ConfigurationSection* section, const char* key, R2Opt& value) {
    return ReadNumber(kR2OptTexts, section, key, value);
}

std::string CNumberFormat::GetString(NumberFormat value) {
    return TextOf(kNumberFormatTexts, value);
}

CNumberFormat::NumberFormat CNumberFormat::GetEnum(std::string_view text) {
    return ValueOf(kNumberFormatTexts, text, Unknown);
}

void CNumberFormat::WriteSection(ConfigurationSection* section, NumberFormat value) {
    WriteSection(section, "NumberFormat", value);
}

void CNumberFormat::WriteSection(ConfigurationSection* section, const char* key,
                                 NumberFormat value) {
    section->WriteKey(key, static_cast<int>(value));
}

bool CNumberFormat::ReadSection(const ConfigurationSection* section, NumberFormat& value) {
    return ReadSection(section, "NumberFormat", value);
}

bool CNumberFormat::ReadSection(const ConfigurationSection* section, const char* key,
                                NumberFormat& value) {
    return ReadNumber(kNumberFormatTexts, section, key, value);
}

std::string CResid::GetString(Resid value) {
    return TextOf(kResidTexts, value);
}

CResid::Resid CResid::GetEnum(std::string_view text) {
    return ValueOf(kResidTexts, text, Unknown);
}

void CResid::WriteSection(ConfigurationSection* section, Resid value) {
    WriteSection(section, "Resid", value);
}

void CResid::WriteSection(ConfigurationSection* section, const char* key, Resid value) {
    section->WriteKey(key, static_cast<int>(value));
}

bool CResid::ReadSection(const ConfigurationSection* section, Resid& value) {
    return ReadSection(section, "Resid", value);
}

bool CResid::ReadSection(const ConfigurationSection* section, const char* key, Resid& value) {
    return ReadNumber(kResidTexts, section, key, value);
}

std::string CIntervalType::GetString(IntervalType value) {
    return TextOf(kIntervalTexts, value);
}

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

CIntervalType::IntervalType CIntervalType::GetEnum(std::string_view text) {
    return ValueOf(kIntervalTexts, text, Unknown);
}

void CIntervalType::WriteSection(ConfigurationSection* section, IntervalType value) {
    WriteSection(section, "IntervalType", value);
}

void CIntervalType::WriteSection(ConfigurationSection* section, const char* key,
                                 IntervalType value) {
    section->WriteKey(key, GetString(value));
}

bool CIntervalType::ReadSection(const ConfigurationSection* section, IntervalType& value) {
    return ReadSection(section, "IntervalType", value);
}

bool CIntervalType::ReadSection(const ConfigurationSection* section, const char* key,
                                IntervalType& value) {
    std::string text;
    if (section == nullptr || !section->ReadKey(key, text) || GetEnum(text) == Unknown) {
        return false;
    }
    value = GetEnum(text);
    return true;
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
