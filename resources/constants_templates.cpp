#include "constants_templates.h"

namespace kvopt {

namespace {

using namespace layout;

/// The grid of the constant factors takes the whole page.
DialogTemplate Constants(int number) {
    return {number, "Constants",
            Column({Text("Constant factors:").Buddy(6139),
                    Worksheet(6139).Named("Constant factors").Stretch(1)})};
}

}  // namespace

std::vector<DialogTemplate> ConstantsTemplates() {
    return {Constants(6157), Constants(6170)};
}

}  // namespace kvopt
