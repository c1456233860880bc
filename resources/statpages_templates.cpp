#include "statpages_templates.h"

namespace kvopt {

std::vector<DialogTemplate> StatPagesTemplates() {
    return {};
}

}  // namespace kvopt
