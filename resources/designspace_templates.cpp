#include "designspace_templates.h"

namespace kvopt {

std::vector<DialogTemplate> DesignSpaceTemplates() {
    return {};
}

}  // namespace kvopt
