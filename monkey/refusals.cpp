#include "monkey/refusals.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace kvopt::monkey {

namespace {

constexpr int kConstants = 6157;
constexpr int kFirstPage = 6158;
constexpr int kProcessAxes = 6160;
constexpr int kMixtureAxes = 6168;
constexpr int kMixtureConstants = 6170;
constexpr int kDesignSpaceOptions = 6221;
constexpr int kItems = 6150;
constexpr int kSetpoint = 6209;

bool Asks(const Refusal& refusal, std::initializer_list<int> pages) {
    return std::any_of(pages.begin(), pages.end(), [&](int page) {
        return std::find(refusal.asked.begin(), refusal.asked.end(), page) != refusal.asked.end();
    });
}

/// A case in which a page that refuses has changed something already, and why it may.
struct Allowance {
    bool (*applies)(const Refusal& refusal);
    std::vector<std::string> parts;
    const char* reason;
};

const std::vector<Allowance>& Allowances() {
    static const std::vector<Allowance> all{
        {[](const Refusal& refusal) {
             return refusal.front == kFirstPage && refusal.refuser == Refuser::Responses;
         },
         {"plot type", "axis type", "constraints", "scale", "has labels"},
         "the first page of the wizard takes the kind of the plot before it asks for responses"},
        {[](const Refusal& refusal) {
             return Asks(refusal, {kProcessAxes, kMixtureAxes}) && refusal.refuser == Refuser::Axes;
         },
         {"constants"},
         "a page with axes and constants takes its constants before it judges its axes"},
        {[](const Refusal& refusal) {
             return refusal.front == kMixtureAxes && refusal.verb == StepVerb::Finish &&
                    refusal.refuser == Refuser::Region;
         },
         {"constants", "axes of set 3"},
         "Finish takes axes and constants before it leaves the page, which asks for a region"},
        {[](const Refusal& refusal) {
             return (refusal.front == kConstants || refusal.front == kMixtureConstants) &&
                    (refusal.verb == StepVerb::Ok || refusal.verb == StepVerb::Apply) &&
                    (refusal.refuser != Refuser::Constants || refusal.wasAgreed);
         },
         {"constants"},
         "OK and Apply leave the page in front before they ask any page, and the page of the "
         "constants takes them as it is left; they are judged again when it is asked"},
        {[](const Refusal& refusal) {
             return Asks(refusal, {kDesignSpaceOptions}) &&
                    (refusal.refuser == Refuser::Simulations || refusal.refuser == Refuser::Limit);
         },
         {"resolution"},
         "the options of a design space take the resolution before they judge what follows"},
        {[](const Refusal& refusal) {
             return Asks(refusal, {kDesignSpaceOptions}) && refusal.refuser == Refuser::Limit;
         },
         {"simulation"},
         "the options of a design space take the simulation before they judge the limit"},
        {[](const Refusal& refusal) { return refusal.front == kSetpoint; },
         {"what to update"},
         "the page forgets what the last apply had to update before it judges anything"},
        {[](const Refusal& refusal) { return refusal.front == kItems; },
         {"available items", "selected items"},
         "the dialog hands over what is available and empties the selection before it asks for "
         "one"}};
    return all;
}

}  // namespace

Refuser RefuserOf(const SeenBox& box) {
    if (box.answer == BoxAnswer::Yes || box.answer == BoxAnswer::Silence) {
        return Refuser::Nobody;
    }
    if (box.style == BoxStyle::YesNoWarning) {
        return Refuser::Axes;
    }
    if (box.style == BoxStyle::YesNoInformation) {
        return Refuser::Constants;
    }
    static const std::vector<std::pair<std::string_view, Refuser>> speakers{
        {"Make sure you have specified", Refuser::Nobody},
        {"are selected. Please select at least one.", Refuser::Responses},
        {"a valid region for the plot", Refuser::Region},
        {"formulation factors can not exceed 1.", Refuser::Constants},
        {"formulation factors should be 1.", Refuser::Constants},
        {"resolution", Refuser::Resolution},
        {"The number of simulations should be", Refuser::Simulations},
        {"The number of samples", Refuser::Simulations},
        {"limit should range from", Refuser::Limit},
        {"You must at least select one item", Refuser::Items}};
    for (const auto& speaker : speakers) {
        if (box.text.find(speaker.first) != std::string::npos) {
            return speaker.second;
        }
    }
    // The other texts of refusals have names of factors in them.
    return Refuser::Axes;
}

std::vector<std::string> PartsThatMayChange(const Refusal& refusal) {
    std::vector<std::string> parts;
    for (const Allowance& allowance : Allowances()) {
        if (allowance.applies(refusal)) {
            parts.insert(parts.end(), allowance.parts.begin(), allowance.parts.end());
        }
    }
    return parts;
}

}  // namespace kvopt::monkey
