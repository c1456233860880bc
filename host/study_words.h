#pragma once

#include <array>
#include <string_view>

#include "kvopt/host/study_data.h"
#include "kvopt/study/enum_helpers.h"

namespace kvopt {

/// A word of the study file and what it stands for.
template <class Value>
struct StudyWord {
    std::string_view word;
    Value value;
};

inline constexpr std::array kTypeWords = {
    StudyWord<CEType::EType>{"process", CEType::Quantitative},
    StudyWord<CEType::EType>{"multilevel", CEType::Multilevel},
    StudyWord<CEType::EType>{"qualitative", CEType::Qualitative},
    StudyWord<CEType::EType>{"mixture", CEType::Formulation},
    StudyWord<CEType::EType>{"filler", CEType::Filler},
    StudyWord<CEType::EType>{"discrete", CEType::Discrete},
    StudyWord<CEType::EType>{"covariate", CEType::Covariate},
    StudyWord<CEType::EType>{"block", CEType::Qualitative},
};
/// Stands for a qualitative factor with the name of the block factor.
inline constexpr std::string_view kBlockWord = "block";

inline constexpr std::array kUseWords = {
    StudyWord<CEUse::EUse>{"controlled", CEUse::Controlled},
    StudyWord<CEUse::EUse>{"uncontrolled", CEUse::Uncontrolled},
    StudyWord<CEUse::EUse>{"constant", CEUse::Constant},
};

inline constexpr std::array kResponseWords = {
    StudyWord<ResponseEx::EResponseType>{"ordinary", ResponseEx::Regular},
    StudyWord<ResponseEx::EResponseType>{"derived", ResponseEx::Derived},
    StudyWord<ResponseEx::EResponseType>{"combined", ResponseEx::Combined},
    StudyWord<ResponseEx::EResponseType>{"external", ResponseEx::External},
};

inline constexpr std::array kTransformWords = {
    StudyWord<StudyTransform>{"none", StudyTransform::None},
    StudyWord<StudyTransform>{"ln", StudyTransform::NaturalLog},
    StudyWord<StudyTransform>{"log10", StudyTransform::Log10},
    StudyWord<StudyTransform>{"square root", StudyTransform::SquareRoot},
    StudyWord<StudyTransform>{"reciprocal", StudyTransform::Reciprocal},
};

inline constexpr std::array kLevelWords = {
    StudyWord<CConfLev::ConfLev>{"none", CConfLev::None},
    StudyWord<CConfLev::ConfLev>{"90 %", CConfLev::Level90},
    StudyWord<CConfLev::ConfLev>{"95 %", CConfLev::Level95},
    StudyWord<CConfLev::ConfLev>{"99 %", CConfLev::Level99},
};

inline constexpr std::array kIntervalWords = {
    StudyWord<CIntervalType::IntervalType>{"none", CIntervalType::None},
    StudyWord<CIntervalType::IntervalType>{"confidence", CIntervalType::Confidence},
    StudyWord<CIntervalType::IntervalType>{"prediction", CIntervalType::Prediction},
    StudyWord<CIntervalType::IntervalType>{"tolerance", CIntervalType::Tolerance},
};

inline std::string_view TransformWord(StudyTransform transform) {
    for (const auto& word : kTransformWords) {
        if (word.value == transform) {
            return word.word;
        }
    }
    return {};
}

}  // namespace kvopt
