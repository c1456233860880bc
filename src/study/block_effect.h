#pragma once

namespace kvopt {

class Investigation;

/// Whether the settings of the study say that its block effect is random; without the key it is
/// fixed.
bool HasRandomBlockEffect(const Investigation& investigation);

}  // namespace kvopt
