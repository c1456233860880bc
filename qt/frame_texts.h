#pragma once

#include "kvopt/text/literal.h"

namespace kvopt::texts {

inline constexpr PlainText kFrameOk{"OK"};
inline constexpr PlainText kFrameCancel{"Cancel"};
inline constexpr PlainText kFrameApply{"&Apply"};
inline constexpr PlainText kFrameBack{"< &Back"};
inline constexpr PlainText kFrameNext{"&Next >"};
inline constexpr PlainText kFrameFinish{"&Finish"};

}  // namespace kvopt::texts
