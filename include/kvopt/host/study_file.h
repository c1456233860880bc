#pragma once

/// \file
/// Study files: a study as a JSON document, described in docs/formats.md. Reading never writes.
/// A file that is no study throws FileFormatError, which names the file, the element by its JSON
/// pointer with line and column, what was expected there and what was found; one that cannot be
/// read throws FileError.

#include <memory>
#include <string>
#include <string_view>

#include "kvopt/export.h"
#include "kvopt/host/reference_study.h"
#include "kvopt/host/study_data.h"
#include "kvopt/text/exceptions.h"

namespace kvopt {

/// The study of a file, ready to be asked. Its ini file stands beside the study file and bears its
/// name with the extension ".ini".
KVOPT_EXPORT std::unique_ptr<ReferenceStudy> LoadStudy(const std::string& fileName);

/// The record alone.
KVOPT_EXPORT StudyData ReadStudyFile(const std::string& fileName);

/// The same from a text at hand; the file name only stands in errors.
KVOPT_EXPORT StudyData ParseStudy(std::string_view text, const std::string& fileName);

}  // namespace kvopt
