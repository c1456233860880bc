#include "worksheetplots_templates.h"

namespace kvopt {

std::vector<DialogTemplate> WorksheetPlotsTemplates() {
    return {};
}

}  // namespace kvopt
