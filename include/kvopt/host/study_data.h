#pragma once

/// \file
/// What a study of the reference host holds, as plain records: the same shape as a study file.

#include <map>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "kvopt/study/design_space_options.h"
#include "kvopt/study/factor_class.h"
#include "kvopt/study/response.h"
#include "kvopt/study/variable_enums.h"
#include "kvopt/text/not_set.h"

namespace kvopt {

/// One level of a factor. For a factor with listed numeric levels the name is the number as text.
struct StudySetting {
    std::string name;
    bool included = true;  ///< false: known to the study, offered by no plot
};

struct StudyFactor {
    std::string name;
    std::string abbreviation;  ///< stands for the factor in model terms; unique
    std::string unit;
    CEType::EType type = CEType::Quantitative;
    CEUse::EUse use = CEUse::Controlled;
    double low = kNotSet;   ///< coded level -1 of a process factor, lower bound of a mixture one
    double high = kNotSet;  ///< coded level +1, or the upper bound
    double precision = kNotSet;          ///< standard deviation with which the factor can be set
    std::vector<StudySetting> settings;  ///< of qualitative and multilevel factors, in level order
};

/// How the values of a response are taken before they are fitted.
enum class StudyTransform { None, NaturalLog, Log10, SquareRoot, Reciprocal };

struct StudyModel {
    bool intercept = true;
    std::vector<std::string> terms;  ///< abbreviations joined by "*", with "^n" for a power
};

struct StudyResponse {
    std::string name;
    std::string unit;
    ResponseEx::EResponseType type = ResponseEx::Regular;
    double lowLimit = kNotSet;
    double highLimit = kNotSet;
    double target = kNotSet;
    StudyTransform transform = StudyTransform::None;
    bool hasModel = false;
    StudyModel model;
    /// What a derived or combined response is worked out from; it has no model and no values.
    std::vector<std::string> derivedFrom;
};

/// low <= sum of coefficient times factor <= high; one of the bounds may be kNotSet.
struct StudyConstraint {
    std::map<std::string, double> coefficients;
    double low = kNotSet;
    double high = kNotSet;
};

/// Nothing, a number, or the name of a setting or a label.
using StudyCell = std::variant<std::monostate, double, std::string>;

/// The worksheet: one row a run, in run order.
struct StudyRuns {
    std::vector<std::string> columns;  ///< names of factors, responses and labels, each once
    std::vector<std::vector<StudyCell>> rows;
};

using StudySettingValue = std::variant<bool, int, double, std::string>;
/// By key.
using StudySettingsSection = std::map<std::string, StudySettingValue>;

/// What the builder abbreviates the block factor to.
inline constexpr const char* kBlockAbbreviation = "$B";
/// Where a study's settings say whether the block effect is fixed (1) or random (0).
inline constexpr const char* kBlockingSection = "Blocking";
inline constexpr const char* kFixedEffectKey = "FixedEffect";
/// The setting that stands for a block effect that is random.
inline constexpr const char* kRandomBlock = "Random";
/// How far the parts of a run may miss the mixture total, as a share of it: printed amounts are
/// rounded.
inline constexpr double kMixtureTolerance = 0.001;

struct StudyData {
    std::string name;
    std::string source;
    std::vector<std::string> notes;
    double mixtureTotal = 1.0;
    /// Mixture models are fitted in pseudo-components: what a part has above its lower bound, as a
    /// share of what all parts together have above theirs.
    bool pseudoComponents = false;
    bool locked = false;
    std::vector<StudyFactor> factors;
    std::vector<StudyResponse> responses;
    std::vector<StudyConstraint> constraints;
    std::vector<std::string> labels;  ///< columns of texts that belong to no model
    StudyRuns runs;
    std::map<std::string, StudyCell> favouriteSetpoint;  ///< by factor
    std::vector<std::string> selectedResponses;
    std::map<std::string, StudySettingsSection> settings;  ///< by section, then key
    std::optional<DesignSpaceOptions> designSpace;
};

}  // namespace kvopt
