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

DialogTemplate SetpointPage() {
    return {
        6209, "Setpoint properties",
        Column({Row({Grid(2, {Text("Acceptable range simulations:").Buddy(6237), Edit(6237),
                              Text("Response profile simulations:").Buddy(6238), Edit(6238),
                              Label(6245, "Acceptance level:").Buddy(6241), Edit(6241)}),
                     Space()}),
                Check(6259, "Use total probability of failure"), Check(6239, "Include model error"),
                Check(6252, "Automatic update"),
                Row({Text("Limits at"),
                     Radio(6260, "95%").StartsGroup().Named("Limits at 95% confidence"),
                     Radio(6261, "99%").Named("Limits at 99% confidence"),
                     Text("confidence for normal distribution."), Space()}),
                Check(6277, "Possible Min/Max lines"),
                Text("Columns: right-click on column headers to show and hide columns.").Wraps(),
                Row({Push(6270, "Reset"), Space()}), Space()})};
}

}  // namespace

std::vector<DialogTemplate> DesignSpaceTemplates() {
    return {DesignSpaceOptionsPage(), SetpointPage()};
}

}  // namespace kvopt
