#include "statpages_templates.h"

#include <utility>

namespace kvopt {

using namespace layout;

namespace {

LayoutItem Levels(int number) {
    return ComboList(number).Entries({"90%", "95%", "99%"});
}

LayoutItem ConfidenceLevels() {
    return Levels(6299).Named("Confidence level");
}

LayoutItem IntervalTypes(int number) {
    return ComboList(number)
        .Named("Interval type")
        .Entries({"Confidence", "Prediction", "Tolerance"});
}

LayoutItem ToleranceProportions() {
    return Levels(6341).Named("Tolerance proportion").Disabled();
}

/// Labels and lists in turn, in line.
LayoutItem Choices(std::vector<LayoutItem> cells) {
    return Row({Grid(2, std::move(cells)), Space()});
}

constexpr const char* kConfidenceLevel = "Confidence level:";
constexpr const char* kIntervalType = "Interval type:";
constexpr const char* kToleranceProportion = "Tolerance proportion:";

}  // namespace

std::vector<DialogTemplate> StatPagesTemplates() {
    return {
        {6155, "Confidence level",
         Column({Choices({Text(kConfidenceLevel).Buddy(6299), ConfidenceLevels(),
                          Label(6302, kIntervalType).Buddy(6300), IntervalTypes(6300),
                          Label(6342, kToleranceProportion).Buddy(6341), ToleranceProportions()}),
                 Space()})},
        {6230, "Interval estimation",
         Column({Choices({Text(kIntervalType).Buddy(6344), IntervalTypes(6344),
                          Text(kConfidenceLevel).Buddy(6299), ConfidenceLevels(),
                          Text(kToleranceProportion).Buddy(6341), ToleranceProportions()}),
                 Label(6351, "").Wraps(), Space()})}};
}

}  // namespace kvopt
