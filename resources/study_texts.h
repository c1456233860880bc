#pragma once

/// \file
/// Texts of the host model.

#include "kvopt/text/literal.h"

namespace kvopt::texts {

inline constexpr PlainText kStudyNotUsed{"<not used>"};
inline constexpr FormatText<2> kStudyNameWithSetting{"%s(%s)"};
inline constexpr PlainText kStudyNoInterval{"None"};
inline constexpr PlainText kStudyConfidenceInterval{"Confidence interval"};
inline constexpr PlainText kStudyPredictionInterval{"Prediction interval"};
inline constexpr PlainText kStudyToleranceInterval{"Tolerance interval"};
inline constexpr PlainText kStudyUniformDistribution{"Uniform"};
inline constexpr PlainText kStudyNormalDistribution{"Normal"};
inline constexpr PlainText kStudyTriangularDistribution{"Triangular"};
inline constexpr PlainText kStudyNoLabel{"None"};
inline constexpr PlainText kStudyExperimentNumber{"Experiment number"};
inline constexpr PlainText kStudyExperimentName{"Experiment name"};
inline constexpr PlainText kStudyRunOrder{"Run order"};
inline constexpr PlainText kStudyPredictionNumber{"Prediction number"};

}  // namespace kvopt::texts
