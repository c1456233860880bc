#include "options_templates.h"

namespace kvopt {

namespace {

using namespace layout;

/// A header, the grid and the two buttons of a grid page.
DialogTemplate GridPage(int number) {
    return {
        number, "Options",
        Column({Markup(6337, "[Placeholder for a markup static]"),
                PropertyGrid(6334, "[ Placeholder for propertygrid ]").Named("Options").Stretch(1),
                Row({Push(6335, "Show details"), Space(), Push(6336, "Reset")})})};
}

}  // namespace

std::vector<DialogTemplate> OptionsTemplates() {
    return {GridPage(6350), GridPage(6222)};
}

}  // namespace kvopt
