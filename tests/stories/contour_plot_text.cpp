#include "tests/stories/contour_plot_text.h"

#include <limits>
#include <locale>
#include <sstream>

namespace kvopt::test {

namespace {

void AddAxes(std::ostream& out, const ContourPlotData& data) {
    int count = 0;
    const auto& axes = data.GetSelectedAxisInfo(count);
    for (int position = 1; position <= count; ++position) {
        const AxisInfo& axis = *axes.at(static_cast<std::size_t>(position));
        out << "axis " << position << ": " << axis.GetName();
        if (axis.IsUsed() && axis.IsQualitative()) {
            out << ' ' << axis.GetSettings();
        } else if (axis.IsUsed()) {
            out << ' ' << axis.GetMin() << " to " << axis.GetMax();
        }
        out << '\n';
    }
}

void AddConstants(std::ostream& out, const FactorConstants::Constant* constants) {
    for (const auto* constant = constants; constant->IsDefined(); ++constant) {
        out << "constant " << constant->Name() << ' ';
        if (constant->QualValue().empty()) {
            out << constant->FloatValue() << " at " << constant->SettingPos() << '\n';
        } else {
            out << constant->QualValue() << '\n';
        }
    }
}

void AddOptions(std::ostream& out, const ContourPageData& page) {
    const ContourPageData::Arguments& options = page.GetOptions();
    out << "type " << page.GetPlotType() << ", axes " << page.GetAxisType() << ", constraints "
        << page.UseConstraints() << '\n'
        << "resolution " << options.resolution << ", mixture " << options.mixtureResolution
        << ", color " << options.useColor << ", equal " << options.scaleEqual << ", labels "
        << options.useContourLabels << '\n';
    if (options.isProbabilityPlot) {
        out << "simulations " << options.numSimulations << ", limit " << options.dpmoTarget
            << ", model error " << options.includeModelError << ", analytical "
            << options.analyticalProbability << ", interval " << options.intervalType << ' '
            << options.confLev << ' ' << options.tolProp << '\n';
    }
    for (const std::string& response : page.GetSelectedResponses()) {
        out << "response " << response << '\n';
    }
}

}  // namespace

std::string ContourPlotText(const ContourPlotData& data) {
    std::ostringstream out;
    out.imbue(std::locale::classic());
    out.precision(std::numeric_limits<double>::max_digits10);
    AddOptions(out, *data.GetContourTypeData());
    AddAxes(out, data);
    AddConstants(out, data.GetPlotConstants());
    return out.str();
}

}  // namespace kvopt::test
