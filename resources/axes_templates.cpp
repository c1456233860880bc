#include "axes_templates.h"

namespace kvopt {

std::vector<DialogTemplate> AxesTemplates() {
    return {};
}

}  // namespace kvopt
