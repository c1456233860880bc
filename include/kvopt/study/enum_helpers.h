#pragma once

/// \file
/// The choices that the study's options and plots are made of. Each class holds one enumeration and
/// its way into a section.
///
/// All are of one shape. `GetString` gives the stored text of a value, empty for a number outside
/// the enumeration; `GetEnum` knows every such text exactly and answers `Unknown` for any other.
/// `WriteSection` writes one key, the helper's own unless another is named; `ReadSection` answers
/// false, and leaves the value alone, when the key is absent or holds no value of the enumeration;
/// a null section holds no key.

#include <string>
#include <string_view>

#include "kvopt/export.h"

namespace kvopt {

class ConfigurationSection;

/// A confidence level or a tolerance proportion. Stored as an int under "ConfLev".
class KVOPT_EXPORT CConfLev {
public:
    CConfLev() = delete;

    enum ConfLev : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        None = 0,      ///< no level
        Level90 = 1,   ///< 90 %
        Level95 = 2,   ///< 95 %
        Level99 = 3,   ///< 99 %
    };

    static std::string GetString(ConfLev value);
    static ConfLev GetEnum(std::string_view text);
    static void WriteSection(ConfigurationSection* section, ConfLev value);
    static void WriteSection(ConfigurationSection* section, const char* key, ConfLev value);
    static bool ReadSection(const ConfigurationSection* section, ConfLev& value);
    static bool ReadSection(const ConfigurationSection* section, const char* key, ConfLev& value);
};

/// The kind of interval around a prediction. Stored as its text under "IntervalType".
class KVOPT_EXPORT CIntervalType {
public:
    CIntervalType() = delete;

    enum IntervalType : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        None = 0,      ///< no interval
        Confidence = 1,
        Prediction = 2,
        Tolerance = 3,
    };

    static std::string GetString(IntervalType value);
    /// The text for the user.
    static std::wstring GetStringEx(IntervalType value);
    static IntervalType GetEnum(std::string_view text);
    static void WriteSection(ConfigurationSection* section, IntervalType value);
    static void WriteSection(ConfigurationSection* section, const char* key, IntervalType value);
    static bool ReadSection(const ConfigurationSection* section, IntervalType& value);
    static bool ReadSection(const ConfigurationSection* section, const char* key,
                            IntervalType& value);
};

/// The alpha level of a test of lack of fit. Stored as an int under "AlphaLev".
class KVOPT_EXPORT CAlphaLev {
public:
    CAlphaLev() = delete;

    enum AlphaLev : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        Level1 = 1,    ///< 1 %
        Level5 = 2,    ///< 5 %
        Level10 = 3,   ///< 10 %
    };

    static std::string GetString(AlphaLev value);
    static AlphaLev GetEnum(std::string_view text);
    static void WriteSection(ConfigurationSection* section, AlphaLev value);
    static void WriteSection(ConfigurationSection* section, const char* key, AlphaLev value);
    static bool ReadSection(const ConfigurationSection* section, AlphaLev& value);
    static bool ReadSection(const ConfigurationSection* section, const char* key, AlphaLev& value);
};

/// How the coefficients of a model are scaled. Stored as an int under "Coeff".
class KVOPT_EXPORT CCoeff {
public:
    CCoeff() = delete;

    enum Coeff : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        ScaledAndCentered = 1,
        PlsOrthogonal = 2,
        Normalized = 3,
        Unscaled = 4,
    };

    static std::string GetString(Coeff value);
    static Coeff GetEnum(std::string_view text);
    static void WriteSection(ConfigurationSection* section, Coeff value);
    static void WriteSection(ConfigurationSection* section, const char* key, Coeff value);
    static bool ReadSection(const ConfigurationSection* section, Coeff& value);
    static bool ReadSection(const ConfigurationSection* section, const char* key, Coeff& value);
};

/// How the settings of qualitative factors show among the coefficients. Stored as an int under
/// "CoeffList".
class KVOPT_EXPORT CCoeffList {
public:
    CCoeffList() = delete;

    enum CoeffList : int {
        Unknown = -1,      ///< not stored; the answer for a text that is none of these
        Regular = 1,       ///< orthogonal settings alone
        Extended = 2,      ///< every setting
        ExtendedOnly = 3,  ///< every setting, and no other presentation is possible
    };

    static std::string GetString(CoeffList value);
    static CoeffList GetEnum(std::string_view text);
    static void WriteSection(ConfigurationSection* section, CoeffList value);
    static void WriteSection(ConfigurationSection* section, const char* key, CoeffList value);
    static bool ReadSection(const ConfigurationSection* section, CoeffList& value);
    static bool ReadSection(const ConfigurationSection* section, const char* key, CoeffList& value);
};

/// Which explained variation is shown. Stored as an int under "R2Opt".
class KVOPT_EXPORT CR2Opt {
public:
    CR2Opt() = delete;

    enum R2Opt : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        R2 = 1,
        R2Adjusted = 2,
    };

    static std::string GetString(R2Opt value);
    static R2Opt GetEnum(std::string_view text);
    static void WriteSection(ConfigurationSection* section, R2Opt value);
    static void WriteSection(ConfigurationSection* section, const char* key, R2Opt value);
    static bool ReadSection(const ConfigurationSection* section, R2Opt& value);
    static bool ReadSection(const ConfigurationSection* section, const char* key, R2Opt& value);
};

/// The number of decimals in lists and tables. Stored as an int under "NumberFormat".
class KVOPT_EXPORT CNumberFormat {
public:
    CNumberFormat() = delete;

    enum NumberFormat : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        Auto = 1,
        Decimals2 = 2,
        Decimals3 = 3,
        Decimals4 = 4,
        Decimals5 = 5,
        Scientific = 6,
    };

    static std::string GetString(NumberFormat value);
    static NumberFormat GetEnum(std::string_view text);
    static void WriteSection(ConfigurationSection* section, NumberFormat value);
    static void WriteSection(ConfigurationSection* section, const char* key, NumberFormat value);
    static bool ReadSection(const ConfigurationSection* section, NumberFormat& value);
    static bool ReadSection(const ConfigurationSection* section, const char* key,
                            NumberFormat& value);
};

/// The kind of residuals. Stored as an int under "Resid".
class KVOPT_EXPORT CResid {
public:
    CResid() = delete;

    enum Resid : int {
        Unknown = -1,  ///< not stored; the answer for a text that is none of these
        Raw = 1,       ///< original units
        Standardized = 2,
        DeletedStudentized = 3,
    };

    static std::string GetString(Resid value);
    static Resid GetEnum(std::string_view text);
    static void WriteSection(ConfigurationSection* section, Resid value);
    static void WriteSection(ConfigurationSection* section, const char* key, Resid value);
    static bool ReadSection(const ConfigurationSection* section, Resid& value);
    static bool ReadSection(const ConfigurationSection* section, const char* key, Resid& value);
};

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
