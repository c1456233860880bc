#pragma once

/// \file
/// The choices that the study's options and plots are made of. Each class holds one enumeration and
/// its way into a section.

#include <string>
#include <string_view>

#include "kvopt/export.h"

namespace kvopt {

class ConfigurationSection;

/// The way of one enumeration into a section, the same for all of them.
template <class Enum>
class KVOPT_EXPORT EnumHelper {
public:
    EnumHelper() = delete;

    /// The stored text of a value; empty for a number outside the enumeration.
    static std::string GetString(Enum value);
    /// Knows every such text exactly, and answers `Unknown` for any other.
    static Enum GetEnum(std::string_view text);
    /// Writes one key, the enumeration's own unless another is named.
    static void WriteSection(ConfigurationSection* section, Enum value);
    static void WriteSection(ConfigurationSection* section, const char* key, Enum value);
    /// False, and the value is left alone, when the key is absent or holds no value of the
    /// enumeration; a null section holds no key.
    static bool ReadSection(const ConfigurationSection* section, Enum& value);
    static bool ReadSection(const ConfigurationSection* section, const char* key, Enum& value);
};

/// A confidence level or a tolerance proportion. Stored as an int under "ConfLev".
struct KVOPT_EXPORT ConfLevValues {
    enum ConfLev : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        None = 0,      ///< no level
        Level90 = 1,   ///< 90 %
        Level95 = 2,   ///< 95 %
        Level99 = 3,   ///< 99 %
    };
};
class KVOPT_EXPORT CConfLev : public ConfLevValues, public EnumHelper<ConfLevValues::ConfLev> {};

/// The kind of interval around a prediction. Stored as its text under "IntervalType".
struct KVOPT_EXPORT IntervalTypeValues {
    enum IntervalType : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        None = 0,      ///< no interval
        Confidence = 1,
        Prediction = 2,
        Tolerance = 3,
    };
};
class KVOPT_EXPORT CIntervalType : public IntervalTypeValues,
                                   public EnumHelper<IntervalTypeValues::IntervalType> {
public:
    /// The text for the user.
    static std::wstring GetStringEx(IntervalType value);
};

/// The alpha level of a test of lack of fit. Stored as an int under "AlphaLev".
struct KVOPT_EXPORT AlphaLevValues {
    enum AlphaLev : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        Level1 = 1,    ///< 1 %
        Level5 = 2,    ///< 5 %
        Level10 = 3,   ///< 10 %
    };
};
class KVOPT_EXPORT CAlphaLev : public AlphaLevValues,
                               public EnumHelper<AlphaLevValues::AlphaLev> {};

/// How the coefficients of a model are scaled. Stored as an int under "Coeff".
struct KVOPT_EXPORT CoeffValues {
    enum Coeff : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        ScaledAndCentered = 1,
        PlsOrthogonal = 2,
        Normalized = 3,
        Unscaled = 4,
    };
};
class KVOPT_EXPORT CCoeff : public CoeffValues, public EnumHelper<CoeffValues::Coeff> {};

/// How the settings of qualitative factors show among the coefficients. Stored as an int under
/// "CoeffList".
struct KVOPT_EXPORT CoeffListValues {
    enum CoeffList : int {
        Unknown = -1,      ///< not stored; the answer for a text that is none of these
        Regular = 1,       ///< orthogonal settings alone
        Extended = 2,      ///< every setting
        ExtendedOnly = 3,  ///< every setting, and no other presentation is possible
    };
};
class KVOPT_EXPORT CCoeffList : public CoeffListValues,
                                public EnumHelper<CoeffListValues::CoeffList> {};

/// Which explained variation is shown. Stored as an int under "R2Opt".
struct KVOPT_EXPORT R2OptValues {
    enum R2Opt : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        R2 = 1,
        R2Adjusted = 2,
    };
};
class KVOPT_EXPORT CR2Opt : public R2OptValues, public EnumHelper<R2OptValues::R2Opt> {};

/// The number of decimals in lists and tables. Stored as an int under "NumberFormat".
struct KVOPT_EXPORT NumberFormatValues {
    enum NumberFormat : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        Auto = 1,
        Decimals2 = 2,
        Decimals3 = 3,
        Decimals4 = 4,
        Decimals5 = 5,
        Scientific = 6,
    };
};
class KVOPT_EXPORT CNumberFormat : public NumberFormatValues,
                                   public EnumHelper<NumberFormatValues::NumberFormat> {};

/// The kind of residuals. Stored as an int under "Resid".
struct KVOPT_EXPORT ResidValues {
    enum Resid : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        Raw = 1,       ///< original units
        Standardized = 2,
        DeletedStudentized = 3,
    };
};
class KVOPT_EXPORT CResid : public ResidValues, public EnumHelper<ResidValues::Resid> {};

/// The vectors of a multivariate model that a score or loading plot can show. Stored as an int
/// under "VectorType"; a host may have further vectors, so every number from 0 to 84 is kept.
class KVOPT_EXPORT CEVecType {
public:
    CEVecType() = delete;

    enum EVT : int {
        Num = 1,        ///< the running number
        ScoreX = 37,    ///< "t"
        ScoreY = 39,    ///< "u"
        LoadingX = 59,  ///< "p"
        WeightX = 66,   ///< "w"
        WeightY = 78,   ///< "c"
        WeightXY = 79,  ///< "wc": the weights of factors and responses together
        NotChosen = 84,
    };

    /// The vector's name, empty for a number that has none here.
    static std::string GetString(EVT value);
    /// NotChosen for a name that is none of the vectors.
    static EVT GetEVT(const char* name);
    static void WriteSection(ConfigurationSection* section, EVT value);
    static bool ReadSection(const ConfigurationSection* section, EVT& value);
};

/// Which factors and responses a list of the model shows.
struct CModelList {
    enum ModelList : int {
        Regular = 1,   ///< orthogonal settings of qualitative factors
        Extended = 2,  ///< every setting of qualitative factors
    };
};

}  // namespace kvopt
