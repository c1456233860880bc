#include "options_templates.h"

namespace kvopt {

std::vector<DialogTemplate> OptionsTemplates() {
    return {};
}

}  // namespace kvopt
