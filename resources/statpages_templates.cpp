#include "statpages_templates.h"

namespace kvopt {

using namespace layout;

namespace {

LayoutItem Levels(int number) {
    return ComboList(number).Entries({"90%", "95%", "99%"});
}

LayoutItem ConfidenceLevels() {
    return Row({Text("Confidence level:").Buddy(6299), Levels(6299).Named("Confidence level")});
}

LayoutItem IntervalTypes(int number) {
    return ComboList(number)
        .Named("Interval type")
        .Entries({"Confidence", "Prediction", "Tolerance"});
}

LayoutItem ToleranceProportions(const LayoutItem& label) {
    return Row({label.Buddy(6341), Levels(6341).Named("Tolerance proportion").Disabled()});
}

constexpr const char* kIntervalType = "Interval type:";
constexpr const char* kToleranceProportion = "Tolerance proportion:";

}  // namespace

std::vector<DialogTemplate> StatPagesTemplates() {
    return {{6155, "Confidence level",
             Column({ConfidenceLevels(),
                     Row({Label(6302, kIntervalType).Buddy(6300), IntervalTypes(6300)}),
                     ToleranceProportions(Label(6342, kToleranceProportion)), Space()})},
            {6230, "Interval estimation",
             Column({Row({Text(kIntervalType).Buddy(6344), IntervalTypes(6344)}),
                     ConfidenceLevels(), ToleranceProportions(Text(kToleranceProportion)),
                     Label(6351, "").Wraps(), Space()})}};
}

}  // namespace kvopt
