#pragma once

#include "host/json_node.h"
#include "kvopt/host/study_data.h"

namespace kvopt {

/// The study that a JSON document holds. Throws a StudyFault where the document has another shape;
/// whether the values make a study is judged by CheckStudy().
StudyData ReadStudy(const JsonNode& document);

}  // namespace kvopt
