#include "selection_templates.h"

namespace kvopt {

using namespace layout;

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
    return {{6172, "Select responses", ResponseLists()}};
}

}  // namespace kvopt
