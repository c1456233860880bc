#include "bench/make_axis_page.h"

#include "kvopt/platform.h"

namespace kvopt::bench {
namespace {

constexpr int kTemplate = 6160;
constexpr int kFirstPage = 6158;
constexpr int kSecondAxisList = 6037;

}  // namespace

std::unique_ptr<Contour2DAxisPage> MakeAxisPage(ReferenceStudy& study, ContourPlotData& plot) {
    Contour2DAxisPage::Arguments arguments;
    arguments.axes = &plot.GetAxisInfo(ContourPlotData::Process2D);
    arguments.numAxes = 2;
    arguments.backPage = kFirstPage;
    arguments.defaults = &plot.GetAxisDefaults();
    arguments.numDefaults = plot.GetNumDefaults();
    arguments.constants = plot.GetPlotConstants();
    return std::make_unique<Contour2DAxisPage>(&study, arguments, kTemplate, nullptr, 1);
}

bool PickAnotherFactor(Contour2DAxisPage& page) {
    auto& list = *page.Item<CComboBox>(kSecondAxisList);
    const int last = list.GetCount() - 1;
    return list.UserPick(list.GetCurSel() == last ? last - 1 : last);
}

}  // namespace kvopt::bench
