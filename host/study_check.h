#pragma once

#include "kvopt/host/study_data.h"

namespace kvopt {

/// Throws a StudyFault for the first thing that makes the record no study: names that stand twice,
/// bounds that cross, terms of unknown factors, runs that do not fit the columns and so on. The
/// pointer of the fault is that of the same element in a study file.
void CheckStudy(const StudyData& study);

/// The part of CheckStudy() that looks at the factors and the mixture, less their names.
void CheckFactors(const StudyData& study);

/// The part of CheckStudy() that looks at the runs; the rest is known to be sound.
void CheckRuns(const StudyData& study);

/// The cell holds a value that the factor can have.
void CheckFactorCell(const StudyFactor& factor, const StudyCell& cell, const std::string& pointer);

/// Gives each factor without an abbreviation the first free one of A, B, ... Z, X27, X28, ...
void FillAbbreviations(StudyData& study);

}  // namespace kvopt
