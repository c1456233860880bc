#include "axes_templates.h"

#include <array>
#include <cstddef>

namespace kvopt {

namespace {

using namespace layout;

/// One row of every axis page: which controls it has, and what they are called.
struct AxisRow {
    const char* heading;
    int list;
    const char* listName;
    int low;
    const char* lowName;
    int high;
    const char* highName;
    int defaultButton;
    const char* defaultName;
};

constexpr std::array<AxisRow, 6> kRows{{
    {"&1st axis", 6036, "1st axis", 6055, "1st axis low", 6054, "1st axis high", 6006,
     "1st axis default"},
    {"&2nd axis", 6037, "2nd axis", 6058, "2nd axis low", 6057, "2nd axis high", 6007,
     "2nd axis default"},
    {"&3rd axis", 6038, "3rd axis", 6060, "3rd axis low", 6059, "3rd axis high", 6008,
     "3rd axis default"},
    {"&4th axis", 6039, "4th axis", 6062, "4th axis low", 6061, "4th axis high", 6009,
     "4th axis default"},
    {"&5th axis", 6040, "5th axis", 6064, "5th axis low", 6063, "5th axis high", 6010,
     "5th axis default"},
    {"&6th axis", 6041, "6th axis", 6066, "6th axis low", 6065, "6th axis high", 6011,
     "6th axis default"},
}};

/// The rows under their headings; the list takes the room that is left.
LayoutItem AxisRows(std::size_t count) {
    std::vector<LayoutItem> cells{Text(""), Text("Factor"), Text("Low"), Text("High"), Text("")};
    for (std::size_t i = 0; i < count; ++i) {
        const AxisRow& row = kRows[i];
        cells.push_back(Text(row.heading).Buddy(row.list));
        cells.push_back(ComboList(row.list).Named(row.listName).Stretch(2));
        cells.push_back(Edit(row.low).Named(row.lowName).Stretch(1));
        cells.push_back(Edit(row.high).Named(row.highName).Stretch(1));
        cells.push_back(Push(row.defaultButton, "Default").Named(row.defaultName));
    }
    return Grid(5, std::move(cells));
}

/// Axes above, the grid of the constant factors below, which grows with the page.
DialogTemplate AxesAndConstants(int number, std::size_t axes) {
    return {number, "Axes and constants",
            Column({AxisRows(axes), Text("Constant factors:").Buddy(6139),
                    Worksheet(6139).Named("Constant factors").Stretch(1)})};
}

}  // namespace

std::vector<DialogTemplate> AxesTemplates() {
    return {{6152, "Axes", Column({AxisRows(kRows.size()), Space()})},
            AxesAndConstants(6160, 2),
            AxesAndConstants(6168, 3)};
}

}  // namespace kvopt
