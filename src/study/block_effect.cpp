#include "study/block_effect.h"

#include <memory>

#include "kvopt/stores/configuration_section.h"
#include "kvopt/study/investigation.h"

namespace kvopt {

bool HasRandomBlockEffect(const Investigation& investigation) {
    const std::unique_ptr<const ConfigurationSection> blocking =
        investigation.GetInvestigationSettings("Blocking", true);
    return blocking != nullptr && !blocking->ReadKeyOr("FixedEffect", true);
}

}  // namespace kvopt
