#include "sheets_templates.h"

#include "selection_templates.h"

namespace kvopt {

using namespace layout;

namespace {

DialogTemplate ContourWizardPage() {
    return {
        6158, "Contour Wizard",
        Column({Row({Group("Plot type",
                           {Radio(6096, "&Contour").StartsGroup(), Radio(6097, "&4D contour"),
                            Radio(6126, "&Surface"), Radio(6127, "4&D surface")})
                         .Stretch(1),
                     Group("Factors", {Radio(6115, "&Process").StartsGroup(),
                                       Radio(6105, "&Mixture"), Space()})
                         .Stretch(1)}),
                ResponseLists(),
                Row({Check(6024, "&Use constraints"), Space(), Push(6014, "Plot &options...")})})};
}

LayoutItem Resolution() {
    return Row({Text("&Resolution:").Buddy(6046), ComboEdit(6046).Named("Resolution"), Space()});
}

LayoutItem EqualScale() {
    return Check(6029, "Equal &scale in all plots");
}

}  // namespace

std::vector<DialogTemplate> SheetsTemplates() {
    return {
        ContourWizardPage(),
        {6159, "Contour options",
         Column({Resolution(), Check(6022, "Use &color"), Check(6027, "Show contour &level labels"),
                 EqualScale(), Check(6223, "Lock contour levels"), Space()})},
        {6213, "Surface options", Column({Resolution(), EqualScale(), Space()})}};
}

}  // namespace kvopt
