// A host in thirty lines: a study of two factors and one response, and the axes of its plot.
#include <kvopt/axes.h>
#include <kvopt/plotargs.h>
#include <kvopt/study.h>

#include <iostream>

class Reaction : public kvopt::Investigation, kvopt::Variables, kvopt::ResponseManager {
    using Factors = std::vector<kvopt::FactorClass*>;
    using Responses = std::vector<kvopt::ResponseClass*>;
    Variables* GetVariables() const override { return const_cast<Reaction*>(this); }
    ResponseManager* GetResponseManager() const override { return const_cast<Reaction*>(this); }
    Factors GetAllFactors() const override { return {&time_, &temperature_}; }
    Responses GetAllResponses() const override { return {&yield_}; }
    const std::vector<kvopt::ResponseEx*>& GetResponses() const override { return responses_; }

    mutable kvopt::FactorClass time_{"Time", 80, 90}, temperature_{"Temperature", 170, 180};
    mutable kvopt::ResponseClass yield_{"Yield", "%"};
    kvopt::ResponseEx response_{&yield_};
    std::vector<kvopt::ResponseEx*> responses_{&response_};
};

int main() {
    Reaction study;
    kvopt::ContourPlotData plot(&study, 2, "", false, false, false, false);
    const auto set = kvopt::ContourPlotData::Process2D;
    kvopt::ContourAxisHelper(&study, &plot, kvopt::ContourPageData::contour_2D, set).Setup();
    for (int n = 1; n <= 2; ++n) {
        const kvopt::AxisInfo& axis = *plot.GetAxisInfo(set).at(static_cast<std::size_t>(n));
        std::cout << axis.GetName() << ": " << axis.GetMin() << " to " << axis.GetMax() << "\n";
    }
}
