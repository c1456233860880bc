// A host in thirty lines: a study of two factors and one response, and the arguments of its plot.
#include <iostream>
#include <kvopt/axes.h>
#include <kvopt/plotargs.h>
#include <kvopt/study.h>

class Reaction : public kvopt::Investigation, kvopt::Variables, kvopt::ResponseManager {
public:
    kvopt::Variables* GetVariables() const override { return const_cast<Reaction*>(this); }
    kvopt::ResponseManager* GetResponseManager() const override { return const_cast<Reaction*>(this); }
    const kvopt::ModelQueries* GetModelQueries() const override { return &models_; }

private:
    std::vector<kvopt::FactorClass*> GetAllFactors() const override { return {&time_, &heat_}; }
    std::vector<kvopt::ResponseClass*> GetAllResponses() const override { return {&yield_}; }
    const std::vector<kvopt::ResponseEx*>& GetResponses() const override { return responses_; }

    mutable kvopt::FactorClass time_{"Time", 80, 90}, heat_{"Temperature", 170, 180};
    mutable kvopt::ResponseClass yield_{"Yield", "%"};
    kvopt::ResponseEx response_{&yield_};
    std::vector<kvopt::ResponseEx*> responses_{&response_};
    kvopt::ModelQueries models_{this};
};

int main() {
    Reaction study;
    kvopt::ContourPlotData plot(&study, 2, "", false, false, false, false);
    kvopt::ContourAxisHelper(&study, &plot, kvopt::ContourPageData::contour_2D, kvopt::ContourPlotData::Process2D).Setup();
    int count = 0;
    const auto& axes = plot.GetSelectedAxisInfo(count);
    for (int axis = 1; axis <= count; ++axis) {
        std::cout << axes[axis]->GetName() << " from " << axes[axis]->GetMin() << " to " << axes[axis]->GetMax() << "\n";
    }
}
