#include "road.h"

#include <kvopt/plotargs.h>

#include <algorithm>

#include "contour_road.h"
#include "page_roads.h"

const std::vector<Road>& AllRoads() {
    static const std::vector<Road> roads{
        {Road::Kind::Plot, "contour", "&Contour plot...", MakeContourPlot},
        {Road::Kind::Plot, "contour-4d", "&4D contour plot...", MakeContour4DPlot},
        {Road::Kind::Plot, "design-space", "&Design space plot...", MakeDesignSpacePlot},
        {Road::Kind::Change, "contour-sheet", "C&hange...", ChangeSavedPlot},
        {Road::Kind::Page, "page-select-response", "Select &response...", ShowSelectResponsePage},
        {Road::Kind::Page, "page-select-variable", "Select &variable...", ShowSelectVariablePage},
        {Road::Kind::Page, "page-design-space", "&Setpoint properties...", ShowDesignSpacePage},
        {Road::Kind::Page, "page-confidence-level", "&Confidence level...",
         ShowConfidenceLevelPage},
        {Road::Kind::Page, "page-prediction-level", "&Prediction level...",
         ShowPredictionLevelPage}};
    return roads;
}

const Road* FindRoad(std::string_view name) {
    const std::vector<Road>& roads = AllRoads();
    const auto found = std::find_if(roads.begin(), roads.end(),
                                    [name](const Road& road) { return road.name == name; });
    return found == roads.end() ? nullptr : &*found;
}
