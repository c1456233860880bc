#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "kvopt/platform.h"

namespace kvopt::test {
namespace {

/// Labels that users and scripts know, with their mnemonics; -1 for texts that no code names.
struct KnownLabel {
    int dialog;
    int control;
    const char* label;
};

const std::vector<KnownLabel> kKnownLabels{
    {6150, 6005, "»"},
    {6150, 6017, "«"},
    {6155, -1, "Confidence level:"},
    {6155, 6302, "Interval type:"},
    {6155, 6342, "Tolerance proportion:"},
    {6158, 6096, "&Contour"},
    {6158, 6097, "&4D contour"},
    {6158, 6126, "&Surface"},
    {6158, 6127, "4&D surface"},
    {6158, 6115, "&Process"},
    {6158, 6105, "&Mixture"},
    {6158, 6024, "&Use constraints"},
    {6158, 6014, "Plot &options..."},
    {6159, 6022, "Use &color"},
    {6159, 6027, "Show contour &level labels"},
    {6159, 6223, "Lock contour levels"},
    {6161, 6003, "Settings"},
    {6161, 6004, "Settings"},
    {6161, 6140, "Constant factors:"},
    {6161, 6279, "Include factor precision on axis factors"},
    {6161, 6280, "Include factor precision on constant factors"},
    {6161, 6306, "Distribution:"},
    {6169, 6003, "Settings"},
    {6169, 6004, "Settings"},
    {6169, 6140, "Constant factors:"},
    {6169, 6279, "Include factor precision on axis factors"},
    {6169, 6280, "Include factor precision on constant factors"},
    {6169, 6306, "Distribution:"},
    {6209, -1, "Acceptable range simulations:"},
    {6209, -1, "Response profile simulations:"},
    {6209, 6259, "Use total probability of failure"},
    {6209, 6239, "Include model error"},
    {6209, 6252, "Automatic update"},
    {6209, -1, "Limits at"},
    {6209, 6260, "95%"},
    {6209, 6261, "99%"},
    {6209, -1, "confidence for normal distribution."},
    {6209, 6277, "Possible Min/Max lines"},
    {6209, -1, "Columns: right-click on column headers to show and hide columns."},
    {6209, 6270, "Reset"},
    {6221, 6022, "Use &color"},
    {6221, 6027, "Show contour &level labels"},
    {6221, 6284, "Include model error"},
    {6221, 6296, "Calculate analytical probability"},
    {6222, 6335, "Show details"},
    {6222, 6336, "Reset"},
    {6230, -1, "Interval type:"},
    {6230, -1, "Confidence level:"},
    {6230, -1, "Tolerance proportion:"},
    {6350, 6335, "Show details"},
    {6350, 6336, "Reset"},
};

TEST(Labels, StandInTheirTemplatesToTheLetter) {
    for (const KnownLabel& known : kKnownLabels) {
        const DialogTemplate* dialog = TemplateCatalog::Instance().Find(known.dialog);
        ASSERT_NE(dialog, nullptr) << known.dialog;
        const std::vector<ControlTemplate> controls = dialog->Controls();
        EXPECT_TRUE(std::any_of(controls.begin(), controls.end(),
                                [&known](const ControlTemplate& control) {
                                    return control.number == known.control &&
                                           std::string(control.label) == known.label;
                                }))
            << known.dialog << ": " << known.label;
    }
}

}  // namespace
}  // namespace kvopt::test
