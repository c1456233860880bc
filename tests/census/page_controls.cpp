#include "census/page_controls.h"

namespace kvopt::test {

namespace {

using Controls = std::vector<NamedControl>;

Controls operator+(Controls left, const Controls& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

/// The controls of the first rows of an axis page.
Controls AxisRows(int count) {
    const std::vector<Controls> rows{{{6036, ControlKind::ComboList},
                                      {6055, ControlKind::Edit},
                                      {6054, ControlKind::Edit},
                                      {6006, ControlKind::Push}},
                                     {{6037, ControlKind::ComboList},
                                      {6058, ControlKind::Edit},
                                      {6057, ControlKind::Edit},
                                      {6007, ControlKind::Push}},
                                     {{6038, ControlKind::ComboList},
                                      {6060, ControlKind::Edit},
                                      {6059, ControlKind::Edit},
                                      {6008, ControlKind::Push}},
                                     {{6039, ControlKind::ComboList},
                                      {6062, ControlKind::Edit},
                                      {6061, ControlKind::Edit},
                                      {6009, ControlKind::Push}},
                                     {{6040, ControlKind::ComboList},
                                      {6064, ControlKind::Edit},
                                      {6063, ControlKind::Edit},
                                      {6010, ControlKind::Push}},
                                     {{6041, ControlKind::ComboList},
                                      {6066, ControlKind::Edit},
                                      {6065, ControlKind::Edit},
                                      {6011, ControlKind::Push}}};
    Controls controls;
    for (int row = 0; row < count; ++row) {
        controls = controls + rows.at(static_cast<std::size_t>(row));
    }
    return controls;
}

const Controls kGrid{{6139, ControlKind::Worksheet}};

/// The settings of two outer axes, the hint and the switches of an axis page of four dimensions.
const Controls kOuterAxes{{6050, ControlKind::Edit},      {6003, ControlKind::Push},
                          {6051, ControlKind::Edit},      {6004, ControlKind::Push},
                          {6140, ControlKind::Label},     {6139, ControlKind::Label},
                          {6279, ControlKind::Check},     {6280, ControlKind::Check},
                          {6305, ControlKind::ComboList}, {6306, ControlKind::Label}};

const Controls kResponseLists{{6303, ControlKind::Label},     {6215, ControlKind::Label},
                              {6076, ControlKind::ListMulti}, {6005, ControlKind::Push},
                              {6017, ControlKind::Push},      {6313, ControlKind::Push},
                              {6216, ControlKind::Label},     {6078, ControlKind::ListMulti}};

const Controls kItemLists{{6145, ControlKind::Label},     {6144, ControlKind::Label},
                          {6075, ControlKind::ListMulti}, {6005, ControlKind::Push},
                          {6017, ControlKind::Push},      {6146, ControlKind::Label},
                          {6077, ControlKind::ListMulti}};

const Controls kPlotType{{6096, ControlKind::Radio}, {6097, ControlKind::Radio},
                         {6126, ControlKind::Radio}, {6127, ControlKind::Radio},
                         {6115, ControlKind::Radio}, {6105, ControlKind::Radio},
                         {6024, ControlKind::Check}, {6014, ControlKind::Push}};

const Controls kContourOptions{{6046, ControlKind::ComboEdit},
                               {6022, ControlKind::Check},
                               {6027, ControlKind::Check},
                               {6029, ControlKind::Check},
                               {6223, ControlKind::Check}};

const Controls kDesignSpaceOptions{{6046, ControlKind::ComboEdit}, {6022, ControlKind::Check},
                                   {6027, ControlKind::Check},     {6272, ControlKind::Edit},
                                   {6284, ControlKind::Check},     {6296, ControlKind::Check},
                                   {6343, ControlKind::Label},     {6327, ControlKind::Edit}};

const Controls kSetpoint{
    {6237, ControlKind::Edit},  {6238, ControlKind::Edit},  {6245, ControlKind::Label},
    {6241, ControlKind::Edit},  {6259, ControlKind::Check}, {6239, ControlKind::Check},
    {6252, ControlKind::Check}, {6260, ControlKind::Radio}, {6261, ControlKind::Radio},
    {6277, ControlKind::Check}, {6270, ControlKind::Push}};

const Controls kOptionsGrid{{6337, ControlKind::Markup},
                            {6334, ControlKind::PropertyGrid},
                            {6335, ControlKind::Push},
                            {6336, ControlKind::Push}};

}  // namespace

std::vector<int> AllTemplateNumbers() {
    std::vector<int> numbers;
    for (const DialogTemplate* dialog : TemplateCatalog::Instance().All()) {
        numbers.push_back(dialog->number);
    }
    return numbers;
}

const std::vector<PageOfTemplate>& PagesOfTemplates() {
    static const std::vector<PageOfTemplate> pages{
        {"AxisPage", 6152, AxisRows(6)},
        {"Contour2DAxisPage", 6160, AxisRows(2) + kGrid},
        {"MixtureAxisPage", 6168, AxisRows(3) + kGrid},
        {"Contour4DAxisPage", 6161, AxisRows(4) + kOuterAxes},
        {"Mixture4DAxisPage", 6169, AxisRows(5) + kOuterAxes},
        {"ConstantsPage", 6157, kGrid},
        {"ConstantsPage", 6170, kGrid},
        {"MultipleResponsePage", 6172, kResponseLists},
        {"SelectItemDialog", 6150, kItemLists},
        {"SelectResponsePage", 6184, {{6048, ControlKind::ComboList}}},
        {"SelectVariablePage", 6185, {{6049, ControlKind::ComboList}}},
        {"ContourPage", 6158, kResponseLists + kPlotType},
        {"ContourPlotOptionsPage", 6159, kContourOptions},
        // A surface has neither contour colors nor labels nor levels.
        {"ContourPlotOptionsPage",
         6213,
         {{6046, ControlKind::ComboEdit}, {6029, ControlKind::Check}},
         {6022, 6027, 6223}},
        {"ConfidenceLevelPage",
         6155,
         {{6299, ControlKind::ComboList},
          {6302, ControlKind::Label},
          {6300, ControlKind::ComboList},
          {6342, ControlKind::Label},
          {6341, ControlKind::ComboList}}},
        {"PredictionLevelPage",
         6230,
         {{6344, ControlKind::ComboList},
          {6299, ControlKind::ComboList},
          {6341, ControlKind::ComboList},
          {6351, ControlKind::Label}}},
        // A design space plot has no levels to lock.
        {"DSContourPlotOptionsPage", 6221, kDesignSpaceOptions, {6223}},
        {"DesignSpacePage", 6209, kSetpoint},
        {"OptionsPageBase", 6350, kOptionsGrid},
        {"KvXtpOptionsPageBase", 6222, kOptionsGrid}};
    return pages;
}

const std::vector<PageSources>& SourcesOfPages() {
    static const std::vector<PageSources> sources{
        {"AxisPage", {"axes/axis_page.cpp"}},
        {"Contour2DAxisPage", {"axes/axis_page.cpp", "axes/contour_2d_axis_page.cpp"}},
        {"MixtureAxisPage",
         {"axes/axis_page.cpp", "axes/contour_2d_axis_page.cpp", "axes/mixture_axis_page.cpp"}},
        {"Contour4DAxisPage",
         {"axes/axis_page.cpp", "axes/contour_4d_axis_page.cpp", "axes/outer_axes.cpp",
          "axes/constants_hint.cpp", "axes/factor_precision_controls.cpp"}},
        {"Mixture4DAxisPage",
         {"axes/axis_page.cpp", "axes/mixture_4d_axis_page.cpp", "axes/outer_axes.cpp",
          "axes/constants_hint.cpp", "axes/factor_precision_controls.cpp"}},
        {"ConstantsPage", {"constants/constants_page.cpp"}},
        {"MultipleResponsePage", {"selection/multiple_response_page.cpp"}},
        {"SelectItemDialog", {"selection/select_item_dialog.cpp"}},
        {"SelectResponsePage", {"selection/select_response_page.cpp"}},
        {"SelectVariablePage", {"selection/select_variable_page.cpp"}},
        {"ContourPage", {"selection/multiple_response_page.cpp", "sheets/contour_page.cpp"}},
        {"ContourPlotOptionsPage", {"sheets/contour_plot_options_page.cpp"}},
        {"ConfidenceLevelPage", {"statpages/confidence_level_page.cpp"}},
        {"PredictionLevelPage", {"statpages/prediction_level_page.cpp"}},
        {"DSContourPlotOptionsPage", {"designspace/ds_contour_plot_options_page.cpp"}},
        {"DesignSpacePage", {"designspace/design_space_page.cpp"}},
        {"OptionsPageBase", {"options/grid_page.cpp", "options/options_page_base.cpp"}},
        {"KvXtpOptionsPageBase",
         {"options/grid_page.cpp", "options/kv_xtp_options_page_base.cpp"}}};
    return sources;
}

const std::vector<OtherNumber>& OtherNumbers() {
    static const std::vector<OtherNumber> numbers{};
    return numbers;
}

}  // namespace kvopt::test
