#include "library_templates.h"

#include <iterator>

#include "axes_templates.h"
#include "constants_templates.h"
#include "designspace_templates.h"
#include "options_templates.h"
#include "selection_templates.h"
#include "sheets_templates.h"
#include "statpages_templates.h"
#include "worksheetplots_templates.h"

namespace kvopt {

std::vector<DialogTemplate> LibraryTemplates() {
    std::vector<DialogTemplate> all;
    for (const auto& templates :
         {AxesTemplates, ConstantsTemplates, DesignSpaceTemplates, OptionsTemplates,
          SelectionTemplates, SheetsTemplates, StatPagesTemplates, WorksheetPlotsTemplates}) {
        std::vector<DialogTemplate> some = templates();
        all.insert(all.end(), std::make_move_iterator(some.begin()),
                   std::make_move_iterator(some.end()));
    }
    return all;
}

}  // namespace kvopt
