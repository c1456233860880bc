#include "axes_templates.h"

#include <array>
#include <cstddef>
#include <utility>

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

LayoutItem LowEdit(const AxisRow& row) {
    return Edit(row.low).Named(row.lowName).Stretch(1);
}

LayoutItem HighEdit(const AxisRow& row) {
    return Edit(row.high).Named(row.highName).Stretch(1);
}

LayoutItem DefaultButton(const AxisRow& row) {
    return Push(row.defaultButton, "Default").Named(row.defaultName);
}

/// What an outer axis has for the settings of a qualitative factor, in the places of its range and
/// its Default button.
struct SettingsRow {
    int edit;
    const char* editName;
    int button;
    const char* buttonName;
};

/// The rows under their headings; the list takes the room that is left. The last rows are those of
/// `outer` axes.
LayoutItem AxisRows(std::size_t count, const std::vector<SettingsRow>& outer = {}) {
    std::vector<LayoutItem> cells{Text(""), Text("Factor"), Text("Low"), Text("High"), Text("")};
    const std::size_t inner = count - outer.size();
    for (std::size_t i = 0; i < count; ++i) {
        const AxisRow& row = kRows[i];
        cells.push_back(Text(row.heading).Buddy(row.list));
        cells.push_back(ComboList(row.list).Named(row.listName).Stretch(2));
        if (i < inner) {
            cells.push_back(LowEdit(row));
            cells.push_back(HighEdit(row));
            cells.push_back(DefaultButton(row));
        } else {
            const SettingsRow& settings = outer[i - inner];
            cells.push_back(Stack({Row({LowEdit(row), HighEdit(row)}),
                                   Edit(settings.edit).Named(settings.editName).Hidden()})
                                .Span(2));
            cells.push_back(
                Stack({DefaultButton(row),
                       Push(settings.button, "Settings").Named(settings.buttonName).Hidden()}));
        }
    }
    return Grid(5, std::move(cells));
}

/// Axes above, the grid of the constant factors below, which grows with the page.
DialogTemplate AxesAndConstants(int number, std::size_t axes) {
    return {number, "Axes and constants",
            Column({AxisRows(axes), Text("Constant factors:").Buddy(6139),
                    Worksheet(6139).Named("Constant factors").Stretch(1)})};
}

/// Axes above, the two outer ones last; then what is said of the constants, and the switches of a
/// probability plot.
DialogTemplate AxesIn4D(int number, LayoutItem rows, bool switchesHidden) {
    const auto hideable = [switchesHidden](const LayoutItem& item) {
        return switchesHidden ? item.Hidden() : item;
    };
    return {number, "4D axes",
            Column({std::move(rows), Label(6140, "Constant factors:"), Label(6139, "").Wraps(),
                    hideable(Check(6279, "Include factor precision on axis factors")),
                    hideable(Check(6280, "Include factor precision on constant factors")),
                    Row({hideable(Label(6306, "Distribution:").Buddy(6305)),
                         hideable(ComboList(6305).Named("Distribution")), Space()}),
                    Space()})};
}

}  // namespace

std::vector<DialogTemplate> AxesTemplates() {
    return {{6152, "Axes", Column({AxisRows(kRows.size()), Space()})},
            AxesAndConstants(6160, 2),
            AxesIn4D(6161,
                     AxisRows(4, {{6050, "3rd axis settings", 6003, "Choose 3rd axis settings"},
                                  {6051, "4th axis settings", 6004, "Choose 4th axis settings"}}),
                     false),
            AxesAndConstants(6168, 3),
            AxesIn4D(6169,
                     AxisRows(5, {{6050, "4th axis settings", 6003, "Choose 4th axis settings"},
                                  {6051, "5th axis settings", 6004, "Choose 5th axis settings"}}),
                     true)};
}

}  // namespace kvopt
