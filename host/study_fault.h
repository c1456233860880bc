#pragma once

#include <string>

namespace kvopt {

/// What is wrong with a study and where. Thrown inside this library alone: readers of files turn it
/// into a FileFormatError, the builder into an InvalidArgument.
struct StudyFault {
    std::string
        pointer;  ///< JSON pointer into the study file, or into the record of the same shape
    std::string expected;
    std::string found;
};

}  // namespace kvopt
