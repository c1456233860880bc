#include "selection_templates.h"

namespace kvopt {

using namespace layout;

namespace {

LayoutItem ItemLists() {
    return Column({Label(6145, "Select the items you want to display"),
                   Row({Column({Label(6144, "Available items:").Buddy(6075),
                                ListMulti(6075).Named("Available").Stretch(1)})
                            .Stretch(1),
                        Column({Space(), Push(6005, "»").Named("Add"),
                                Push(6017, "«").Named("Remove"), Space()}),
                        Column({Label(6146, "Selected items:").Buddy(6077),
                                ListMulti(6077).Named("Selected").Stretch(1)})
                            .Stretch(1)})
                       .Stretch(1)});
}

LayoutItem OneOf(const char* label, const char* name, int number) {
    return Column(
        {Row({Text(label).Buddy(number), ComboList(number).Named(name).Stretch(1)}), Space()});
}

}  // namespace

LayoutItem ResponseLists() {
    return Column({Label(6303, "Select the responses you want to display."),
                   Row({Column({Label(6215, "Available responses:").Buddy(6076),
                                ListMulti(6076).Named("Available").Stretch(1)})
                            .Stretch(1),
                        Column({Space(), Push(6005, "»").Named("Add"),
                                Push(6017, "«").Named("Remove"), Space(), Push(6313, "Reset")}),
                        Column({Label(6216, "Selected responses:").Buddy(6078),
                                ListMulti(6078).Named("Selected").Stretch(1)})
                            .Stretch(1)})
                       .Stretch(1)})
        .Stretch(1);
}

std::vector<DialogTemplate> SelectionTemplates() {
    return {{6150, "Select Items", ItemLists()},
            {6172, "Select responses", ResponseLists()},
            {6184, "Select response", OneOf("&Response:", "Response", 6048)},
            {6185, "Select variable", OneOf("&Variable:", "Variable", 6049)}};
}

}  // namespace kvopt
