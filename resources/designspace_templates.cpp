#include "designspace_templates.h"

namespace kvopt {

using namespace layout;

namespace {

DialogTemplate DesignSpaceOptionsPage() {
    return {
        6221, "Design space options",
        Column({Row({Grid(2, {Text("&Resolution:").Buddy(6046), ComboEdit(6046),
                              Text("&Simulations per point:").Buddy(6272), Edit(6272),
                              Label(6343, "Acceptance level:").Buddy(6327), RangeEdit(6327)}),
                     Space()}),
                Check(6284, "Include model error"),
                Check(6296, "Calculate analytical probability").Hidden(), Check(6022, "Use &color"),
                Check(6027, "Show contour &level labels"), Space()})};
}

}  // namespace

std::vector<DialogTemplate> DesignSpaceTemplates() {
    return {DesignSpaceOptionsPage()};
}

}  // namespace kvopt
