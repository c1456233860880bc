#include "sheets/contour_page_test.h"

#include <ostream>

#include "axes/page_probe.h"
#include "kvopt/designspace/design_space_interval_page.h"
#include "kvopt/designspace/ds_contour_plot_options_page.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What a design space plot takes its responses from.
class Owner : public SelectResponseBase {
public:
    explicit Owner(ResponseType type) : SelectResponseBase(type) {}
    bool UseMultipleResponses() const override { return true; }
    bool GetSpecialAvailable(std::vector<std::string>& items, std::string& type) const override {
        items = {"S1", "S2"};
        type = "models";
        return GetResponseType() == Special;
    }
};

ContourPageData::Type TypeOf(int number) {
    return static_cast<ContourPageData::Type>(number);
}

// Construction.

struct HelpRow {
    int type;
    unsigned topic;
};

class ContourHelp : public ContourPageTest, public testing::WithParamInterface<HelpRow> {};

TEST_P(ContourHelp, GoesByTheTypeOfThePlot) {
    MakeData(GetParam().type == 4);
    PageData().SetPlotType(TypeOf(GetParam().type));
    EXPECT_EQ(Make().HelpTopicID(), GetParam().topic);
}

INSTANTIATE_TEST_SUITE_P(Types, ContourHelp,
                         testing::Values(HelpRow{0, 65}, HelpRow{1, 65}, HelpRow{2, 402},
                                         HelpRow{3, 402}, HelpRow{4, 104}));

TEST_F(ContourPageTest, GivesTheHelpOfAContourOnceADesignSpaceIsShown) {
    AddFactors({0, 0, 3, false});
    MakeData(true);
    EXPECT_EQ(Show().HelpTopicID(), 65U);
}

TEST_F(ContourPageTest, IsTheFirstPageOfTheWizard) {
    MakeData();
    BasePropertyPageHelper helper;
    Make(false, &helper);
    EXPECT_EQ(Page().TemplateNumber(), 6158);
    EXPECT_EQ(Page().PageTitle(), L"Contour Wizard");
    EXPECT_EQ(Page().GetPropertyPageHelper(), &helper);
}

TEST_F(ContourPageTest, BearsItsLabelsWithTheirMnemonics) {
    MakeData();
    Show();
    for (const auto& [number, label] : {std::pair{6096, "&Contour"},
                                        {6097, "&4D contour"},
                                        {6126, "&Surface"},
                                        {6127, "4&D surface"},
                                        {6115, "&Process"},
                                        {6105, "&Mixture"},
                                        {6024, "&Use constraints"},
                                        {6014, "Plot &options..."}}) {
        EXPECT_STREQ(Page().Button(number).Template().label, label);
    }
}

TEST_F(ContourPageTest, SelectsTheResponsesWithALimitForADesignSpace) {
    AddResponses(5);
    study.Response("Low").lowLimit = 1.0;
    study.Response("High").highLimit = 2.0;
    study.Response("Gone").lowLimit = 1.0;
    study.ExtraResponse("Derived").lowLimit = 1.0;
    study.unavailable = {"Gone"};
    MakeData(true);
    Owner owner(SelectResponseBase::Extended);
    PageData().SetSelectResponseBase(&owner);
    Show();
    EXPECT_THAT(PageData().GetSelectedResponses(), ElementsAre("Low", "High"));
    EXPECT_THAT(Page().Selected(), ElementsAre("Low", "High"));
    // The selection is fixed.
    EXPECT_FALSE(Page().Button(6005).IsEnabled());
    EXPECT_FALSE(Page().Button(6017).IsEnabled());
    EXPECT_TRUE(Page().Item<CListBox>(6076)->UserDoubleClick(0));
    EXPECT_THAT(Page().Selected(), ElementsAre("Low", "High"));
}

TEST_F(ContourPageTest, SelectsTheSpecialItemsForADesignSpace) {
    AddResponses(1);
    MakeData(true);
    Owner owner(SelectResponseBase::Special);
    PageData().SetSelectResponseBase(&owner);
    Show();
    EXPECT_THAT(Page().Selected(), ElementsAre("S1", "S2"));
    EXPECT_FALSE(Page().Button(6017).IsEnabled());
}

TEST_F(ContourPageTest, LeavesTheSelectionToTheUserWithoutAnOwner) {
    AddResponses(2);
    study.Response("Low").lowLimit = 1.0;
    MakeData(true);
    Show();
    EXPECT_THAT(Page().Selected(), ElementsAre("Y1", "Y2"));
    EXPECT_TRUE(Page().Button(6017).IsEnabled());
}

TEST_F(ContourPageTest, LeavesTheSelectionToTheUserForOtherPlots) {
    AddResponses(2);
    study.Response("Low").lowLimit = 1.0;
    MakeData();
    Owner owner(SelectResponseBase::Extended);
    PageData().SetSelectResponseBase(&owner);
    Show();
    EXPECT_THAT(Page().Selected(), ElementsAre("Y1", "Y2"));
    EXPECT_TRUE(Page().Button(6017).IsEnabled());
}

// Opening.

struct StoredType {
    int type;
    int shown;
};

class StoredTypes : public ContourPageTest, public testing::WithParamInterface<StoredType> {};

TEST_P(StoredTypes, AreChecked) {
    AddFactors({3, 1, 3, false});
    AddResponses(1);
    MakeData(GetParam().type == 4);
    PageData().SetPlotType(TypeOf(GetParam().type));
    Show();
    for (int type = 0; type <= 3; ++type) {
        EXPECT_EQ(Page().Type(type).GetCheck(), type == GetParam().shown) << type;
    }
    EXPECT_EQ(Page().GetType(), GetParam().shown);
    Page().TransferFromPage();
    EXPECT_EQ(PageData().GetPlotType(), GetParam().type == 4 ? 4 : GetParam().shown);
}

// A 4D surface is never offered, so that a contour takes its place.
INSTANTIATE_TEST_SUITE_P(Types, StoredTypes,
                         testing::Values(StoredType{0, 0}, StoredType{1, 1}, StoredType{2, 2},
                                         StoredType{3, 0}, StoredType{4, 0}));

TEST_F(ContourPageTest, ShowsAContourForAnUnknownType) {
    AddFactors({0, 0, 2, false});
    AddResponses(1);
    MakeData();
    PageData().SetPlotType(TypeOf(9));
    Make();
    Page().Create();
    EXPECT_EQ(Page().GetType(), ContourPageData::contour_2D);
}

TEST_F(ContourPageTest, FallsBackToAContourWhereTheStoredTypeIsOff) {
    AddFactors({0, 0, 2, false});
    AddResponses(3);
    MakeData();
    PageData().SetPlotType(ContourPageData::contour_4D);
    Show();
    EXPECT_TRUE(Page().Type(0).GetCheck());
    EXPECT_FALSE(Page().Type(1).IsEnabled());
    // Its handler has run for both: the first took the responses down to one.
    EXPECT_EQ(Page().MaxSelections(), 3);
    EXPECT_THAT(Page().Selected(), ElementsAre("Y1"));
    Page().TransferFromPage();
    EXPECT_EQ(PageData().GetPlotType(), ContourPageData::contour_2D);
    EXPECT_FALSE(Options().scaleEqual);
}

TEST_F(ContourPageTest, FallsBackToAContourWhereSurfacesAreOff) {
    AddFactors({0, 0, 3, false});
    MakeData(false, true);
    PageData().SetPlotType(ContourPageData::surface_3D);
    Show();
    EXPECT_TRUE(Page().Type(0).GetCheck());
    EXPECT_EQ(Page().HelpTopicID(), 65U);
}

TEST_F(ContourPageTest, StaysWithAContourThatIsOffItself) {
    AddFactors({0, 0, 1, false});
    MakeData();
    Show();
    EXPECT_TRUE(Page().Type(0).GetCheck());
    EXPECT_FALSE(Page().Type(0).IsEnabled());
}

TEST_F(ContourPageTest, ShowsProcessOrMixture) {
    AddFactors({3, 0, 3, false});
    MakeData();
    PageData().SetAxisType(ContourPageData::process);
    EXPECT_TRUE(Show().Process().GetCheck());
    EXPECT_EQ(Page().GetAxisType(), ContourPageData::process);
    PageData().SetAxisType(ContourPageData::mixture);
    EXPECT_TRUE(Show().Mixture().GetCheck());
    EXPECT_EQ(Page().GetAxisType(), ContourPageData::mixture);
    PageData().SetOverrideDisableMixture(true);
    EXPECT_TRUE(Show().Process().GetCheck());
}

TEST_F(ContourPageTest, ShowsConstraintsWhereThereAreAny) {
    AddFactors({0, 0, 2, false});
    MakeData();
    PageData().SetHaveConstraints(true);
    PageData().UseConstraints(true);
    EXPECT_TRUE(Show().Constraints().GetCheck());
    EXPECT_TRUE(Page().Constraints().IsEnabled());
    PageData().UseConstraints(false);
    EXPECT_FALSE(Show().Constraints().GetCheck());
    EXPECT_TRUE(Page().Constraints().IsEnabled());
    PageData().SetHaveConstraints(false);
    PageData().UseConstraints(true);
    EXPECT_FALSE(Show().Constraints().GetCheck());
    EXPECT_FALSE(Page().Constraints().IsEnabled());
}

// Another plot type.

struct TypeRow {
    int type;
    int most;  ///< responses, of five
    unsigned help;
    bool contourLabels;
    bool scaleEqual;
};

void PrintTo(const TypeRow& row, std::ostream* out) {
    *out << "type " << row.type;
}

class ChosenTypes : public ContourPageTest, public testing::WithParamInterface<TypeRow> {};

TEST_P(ChosenTypes, BringTheirOwnBoundHelpLabelsAndScale) {
    AddFactors({3, 1, 3, false});
    AddResponses(5);
    MakeData();
    Show();
    Page().Choose(GetParam().type == 0 ? 1 : 0);
    Page().Choose(GetParam().type);
    EXPECT_EQ(Page().MaxSelections(), GetParam().most);
    EXPECT_EQ(Page().HelpTopicID(), GetParam().help);
    EXPECT_EQ(Options().hasContourLabels, GetParam().contourLabels);
    Page().TransferFromPage();
    EXPECT_EQ(PageData().GetPlotType(), GetParam().type);
    EXPECT_EQ(Options().scaleEqual, GetParam().scaleEqual);
}

INSTANTIATE_TEST_SUITE_P(Types, ChosenTypes,
                         testing::Values(TypeRow{0, 5, 65, true, false},
                                         TypeRow{1, 1, 65, true, true},
                                         TypeRow{2, 5, 402, false, false},
                                         TypeRow{3, 1, 402, false, true}));

TEST_F(ContourPageTest, TakesAnyNumberOfResponsesForADesignSpaceAndKeepsItsType) {
    AddFactors({3, 1, 3, false});
    AddResponses(5);
    MakeData(true);
    Show();
    Options().hasContourLabels = false;
    Page().Choose(1);
    EXPECT_EQ(Page().MaxSelections(), 5);
    EXPECT_TRUE(Options().hasContourLabels);
    Page().Choose(2);
    EXPECT_FALSE(Options().hasContourLabels);
    Page().TransferFromPage();
    EXPECT_EQ(PageData().GetPlotType(), ContourPageData::ds_probability);
    EXPECT_TRUE(Options().hasContourLabels);
    EXPECT_TRUE(Options().scaleEqual);
}

TEST_F(ContourPageTest, TakesAnyNumberOfResponsesWithoutALimit) {
    AddFactors({3, 1, 3, false});
    AddResponses(5);
    MakeData();
    Show(true).Choose(1);
    EXPECT_EQ(Page().MaxSelections(), 5);
}

TEST_F(ContourPageTest, SendsResponsesBackForAPlotOfOne) {
    AddFactors({0, 1, 3, false});
    AddResponses(3);
    MakeData();
    Show();
    EXPECT_TRUE(Page().Type(1).UserClick());
    EXPECT_THAT(Page().Selected(), ElementsAre("Y1"));
    EXPECT_TRUE(Page().IsChanged());
}

TEST_F(ContourPageTest, KeepsTheOnlyResponseOfAStudy) {
    AddFactors({0, 0, 2, false});
    AddResponses(1);
    MakeData();
    Show();
    // No bound is a bound of all, which here is one: it can only be replaced.
    EXPECT_EQ(Page().MaxSelections(), 1);
    EXPECT_FALSE(Page().Button(6017).IsEnabled());
}

TEST_F(ContourPageTest, IsMarkedByItsControls) {
    AddFactors({3, 1, 3, false});
    AddResponses(1);
    MakeData();
    PageData().SetHaveConstraints(true);
    for (const int number : {6096, 6097, 6126, 6115, 6105, 6024}) {
        Show();
        EXPECT_FALSE(Page().IsChanged());
        EXPECT_TRUE(Page().Button(number).UserClick());
        EXPECT_TRUE(Page().IsChanged()) << number;
    }
}

TEST_F(ContourPageTest, SetsTheModeWithProcessAndMixture) {
    AddFactors({3, 0, 3, false});
    MakeData();
    Show();
    Page().Mixture().UserClick();
    EXPECT_TRUE(Options().mixtureMode);
    Page().Process().UserClick();
    EXPECT_FALSE(Options().mixtureMode);
    // The program's own marks set none.
    Page().Mixture().SetCheck(true);
    EXPECT_FALSE(Options().mixtureMode);
}

// Storing.

TEST_F(ContourPageTest, StoresWhatItShows) {
    AddFactors({3, 1, 3, false});
    AddResponses(1);
    MakeData();
    PageData().SetHaveConstraints(true);
    Show();
    Page().Type(2).SetCheck(true);
    Page().Mixture().SetCheck(true);
    Page().Constraints().SetCheck(true);
    Page().TransferFromPage();
    // The type is that of the last handler, and not of the mark.
    EXPECT_EQ(PageData().GetPlotType(), ContourPageData::contour_2D);
    EXPECT_EQ(PageData().GetAxisType(), ContourPageData::mixture);
    EXPECT_TRUE(PageData().UseConstraints());
}

TEST_F(ContourPageTest, LeavesConstraintsAloneWhereThereAreNone) {
    AddFactors({0, 0, 2, false});
    MakeData();
    PageData().UseConstraints(true);
    Show();
    Page().TransferFromPage();
    EXPECT_TRUE(PageData().UseConstraints());
}

TEST_F(ContourPageTest, StoresWhenItIsAppliedChanged) {
    AddFactors({0, 1, 3, false});
    AddResponses(1);
    MakeData();
    Options().resolution = 40;
    ConnectedHelper helper;
    Show(false, &helper);
    Page().Type(1).UserClick();
    EXPECT_TRUE(Page().OnApply());
    EXPECT_EQ(PageData().GetPlotType(), ContourPageData::contour_4D);
    EXPECT_EQ(Profile("ContourResolution"), 40);
    EXPECT_EQ(helper.updates, 1);
    EXPECT_FALSE(Page().IsChanged());
}

TEST_F(ContourPageTest, StoresWhenItIsAppliedAlsoWhenTheSelectionIsRefused) {
    AddFactors({0, 1, 3, false});
    AddResponses(2);
    MakeData();
    Options().resolution = 40;
    Show();
    Page().RemoveAll();
    Page().Type(1).UserClick();
    EXPECT_FALSE(Page().OnApply());
    EXPECT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(PageData().GetPlotType(), ContourPageData::contour_4D);
    EXPECT_EQ(Profile("ContourResolution"), 40);
}

TEST_F(ContourPageTest, StoresNothingWhenItIsAppliedUnchanged) {
    AddFactors({0, 1, 3, false});
    AddResponses(1);
    MakeData();
    Show();
    Page().Choose(1);
    EXPECT_FALSE(Page().IsChanged());
    EXPECT_TRUE(Page().OnApply());
    EXPECT_EQ(PageData().GetPlotType(), ContourPageData::contour_2D);
    EXPECT_EQ(Profile("ContourResolution"), 0);
}

TEST_F(ContourPageTest, LeavesAsTheBaseDoes) {
    AddFactors({0, 0, 2, false});
    MakeData();
    Show();
    EXPECT_TRUE(Page().OnKillActive());
    EXPECT_THAT(desktop.boxes, IsEmpty());
}

TEST_F(ContourPageTest, OffersNextAloneInAWizard) {
    AddFactors({0, 0, 2, false});
    MakeData();
    Make();
    KvPropertySheet wizard(L"A wizard", nullptr, 0);
    wizard.SetWizardMode();
    wizard.AddPage(&Page());
    unsigned long buttons = 0;
    desktop.user = [&](CPropertySheet& running) { buttons = running.WizardButtons(); };
    wizard.DoModal();
    EXPECT_EQ(buttons, 2UL);
}

// On to the axes.

struct NextRow {
    int type;
    bool mixture;
    int next;
};

void PrintTo(const NextRow& row, std::ostream* out) {
    *out << "type " << row.type << (row.mixture ? ", mixture" : ", process");
}

class NextPages : public ContourPageTest, public testing::WithParamInterface<NextRow> {
protected:
    /// Shows a page on which the row's buttons are checked.
    void ShowRow(bool isDSProbability) {
        AddFactors({3, 1, 3, false});
        AddResponses(1);
        MakeData(isDSProbability);
        Show();
        Page().Choose(GetParam().type);
        (GetParam().mixture ? Page().Mixture() : Page().Process()).SetCheck(true);
    }
};

TEST_P(NextPages, FollowTheTypeAndTheAxes) {
    ShowRow(false);
    EXPECT_EQ(Page().OnWizardNext(), GetParam().next);
    EXPECT_EQ(PageData().GetPlotType(), GetParam().type);
    EXPECT_THAT(desktop.boxes, IsEmpty());
}

TEST_P(NextPages, AreThoseOfFourAxesForEveryDesignSpace) {
    ShowRow(true);
    EXPECT_EQ(Page().OnWizardNext(), GetParam().mixture ? 6169 : 6161);
    EXPECT_EQ(PageData().GetPlotType(), ContourPageData::ds_probability);
}

INSTANTIATE_TEST_SUITE_P(Rows, NextPages,
                         testing::Values(NextRow{0, false, 6160}, NextRow{0, true, 6168},
                                         NextRow{1, false, 6161}, NextRow{1, true, 6169},
                                         NextRow{2, false, 6160}, NextRow{2, true, 6168},
                                         NextRow{3, false, 6161}, NextRow{3, true, 6169}));

TEST_F(ContourPageTest, StoresBeforeTheSelectionIsChecked) {
    AddFactors({0, 0, 3, false});
    AddResponses(2);
    MakeData();
    Options().resolution = 40;
    Show();
    Page().Choose(2);
    Page().RemoveAll();
    EXPECT_EQ(Page().OnWizardNext(), -1);
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].text, "No responses are selected. Please select at least one.");
    EXPECT_EQ(PageData().GetPlotType(), ContourPageData::surface_3D);
    EXPECT_EQ(Profile("ContourResolution"), 40);
    EXPECT_THAT(PageData().GetSelectedResponses(), ElementsAre("Y1", "Y2"));
}

struct ExtraAxes {
    const char* label;
    bool isDSProbability;
    int type;
    bool mixture;
    Names process;  ///< what the process set holds afterwards
    Names blend;    ///< what the mixture set holds afterwards
};

void PrintTo(const ExtraAxes& row, std::ostream* out) {
    *out << row.label;
}

class OuterAxes : public ContourPageTest, public testing::WithParamInterface<ExtraAxes> {};

const Names kProcessAxes{"P1", "P2", "P3", "Q1"};
const Names kMixtureAxes{"M1", "M2", "M3", "P1", "P2"};

TEST_P(OuterAxes, AreClearedForADesignSpaceThatReadsContour) {
    AddFactors({3, 1, 3, false});
    AddResponses(1);
    MakeData(GetParam().isDSProbability);
    SetAxes(ContourPlotData::Process4D, kProcessAxes);
    SetAxes(ContourPlotData::Mixture4D, kMixtureAxes);
    Show();
    Page().Choose(GetParam().type);
    (GetParam().mixture ? Page().Mixture() : Page().Process()).SetCheck(true);
    Page().OnWizardNext();
    EXPECT_EQ(AxesOf(ContourPlotData::Process4D, 4), GetParam().process);
    EXPECT_EQ(AxesOf(ContourPlotData::Mixture4D, 5), GetParam().blend);
}

const std::string kUnused = AxisInfo::GetNotUsedName();

INSTANTIATE_TEST_SUITE_P(
    Plots, OuterAxes,
    testing::Values(
        ExtraAxes{"ProcessContour", true, 0, false, {"P1", "P2", kUnused, kUnused}, kMixtureAxes},
        ExtraAxes{
            "MixtureContour", true, 0, true, kProcessAxes, {"M1", "M2", "M3", kUnused, kUnused}},
        ExtraAxes{"FourAxesKeepThem", true, 1, false, kProcessAxes, kMixtureAxes},
        ExtraAxes{"NoDesignSpaceKeepsThem", false, 0, false, kProcessAxes, kMixtureAxes}),
    testing::PrintToStringParamName());

TEST_F(ContourPageTest, ClearsNoAxesWhenTheSelectionIsRefused) {
    AddFactors({0, 0, 4, false});
    AddResponses(2);
    MakeData(true);
    Data().GetAxisInfo(ContourPlotData::Process4D)[3]->SetName("P3");
    Show();
    Page().RemoveAll();
    EXPECT_EQ(Page().OnWizardNext(), -1);
    EXPECT_EQ(Data().GetAxisInfo(ContourPlotData::Process4D)[3]->GetName(), "P3");
}

// Plot options.

class ContourOptionsDialog : public ContourPageTest {
protected:
    ContourOptionsDialog() {
        AddFactors({3, 1, 3, false});
        AddResponses(1);
        MakeData();
    }
    /// Opens the dialog; the user does so much in it.
    void Open(const std::function<void(CPropertySheet&, CDialog&)>& act) {
        opened_ = 0;
        desktop.user = [this, act](CPropertySheet& sheet) {
            ++opened_;
            act(sheet, *sheet.GetActivePage());
        };
        EXPECT_TRUE(Page().Button(6014).UserClick());
        EXPECT_EQ(opened_, 1);
    }
    static CButton& Scale(const CDialog& page) { return *page.Item<CButton>(6029); }

private:
    int opened_ = 0;
};

TEST_F(ContourOptionsDialog, IsThatOfTheChosenType) {
    struct Row {
        int type;
        std::wstring title;
        int templateNumber;
        unsigned help;
    };
    const Row rows[] = {{0, L"Contour Plot Options", 6159, 64},
                        {1, L"Contour Plot Options", 6159, 64},
                        {2, L"Surface Plot Options", 6213, 402},
                        {3, L"Contour Plot Options", 6159, 64}};
    Show();
    for (const Row& row : rows) {
        Page().Choose(row.type);
        Open([&](CPropertySheet& sheet, const CDialog& page) {
            EXPECT_EQ(sheet.GetText(), row.title);
            EXPECT_EQ(sheet.GetPageCount(), 1);
            EXPECT_FALSE(sheet.HasApply());
            EXPECT_FALSE(sheet.IsWizard());
            EXPECT_EQ(sheet.GetParent(), &Page());
            EXPECT_EQ(page.TemplateNumber(), row.templateNumber);
            EXPECT_EQ(dynamic_cast<const KvPropertyPage&>(page).HelpTopicID(), row.help);
        });
    }
}

TEST_F(ContourOptionsDialog, ShowsTheScaleThatThePageProposes) {
    Show();
    Page().Choose(1);
    EXPECT_FALSE(Options().scaleEqual);
    Open([](CPropertySheet&, const CDialog& page) { EXPECT_TRUE(Scale(page).GetCheck()); });
    EXPECT_TRUE(Options().scaleEqual);
    Page().Choose(0);
    Open([](CPropertySheet&, const CDialog& page) { EXPECT_FALSE(Scale(page).GetCheck()); });
}

TEST_F(ContourOptionsDialog, TakesTheModeFromTheMark) {
    Show();
    Page().Mixture().SetCheck(true);
    Open([](CPropertySheet&, const CDialog& page) {
        EXPECT_EQ(page.Item<CComboBox>(6046)->GetCount(), 3);
    });
    EXPECT_TRUE(Options().mixtureMode);
    Page().Process().SetCheck(true);
    Open([](CPropertySheet&, const CDialog& page) {
        EXPECT_EQ(page.Item<CComboBox>(6046)->GetCount(), 5);
    });
    EXPECT_FALSE(Options().mixtureMode);
}

TEST_F(ContourOptionsDialog, HoldsAScaleThatTheUserChanged) {
    Show();
    Open([](CPropertySheet& sheet, const CDialog& page) {
        Scale(page).UserClick();
        sheet.UserOk();
    });
    EXPECT_TRUE(Options().scaleEqual);
    // From here on neither the type nor the store touches it.
    Page().Choose(0);
    Page().TransferFromPage();
    EXPECT_TRUE(Options().scaleEqual);
    Page().Choose(1);
    Page().Choose(2);
    Page().TransferFromPage();
    EXPECT_TRUE(Options().scaleEqual);
    // And a second visit may change it back without giving it up.
    Open([](CPropertySheet& sheet, const CDialog& page) {
        Scale(page).UserClick();
        sheet.UserOk();
    });
    EXPECT_FALSE(Options().scaleEqual);
    Page().Choose(1);
    Page().TransferFromPage();
    EXPECT_FALSE(Options().scaleEqual);
}

TEST_F(ContourOptionsDialog, HoldsNoScaleThatIsTheProposedOne) {
    Show();
    Open([](CPropertySheet& sheet, const CDialog& page) {
        page.Item<CButton>(6022)->UserClick();
        sheet.UserOk();
    });
    EXPECT_FALSE(Options().useColor);
    Page().Choose(1);
    Page().TransferFromPage();
    EXPECT_TRUE(Options().scaleEqual);
}

TEST_F(ContourOptionsDialog, HoldsNoScaleWhenItIsCancelled) {
    Show();
    Open([](CPropertySheet& sheet, const CDialog& page) {
        Scale(page).UserClick();
        sheet.UserCancel();
    });
    EXPECT_FALSE(Options().scaleEqual);
    Page().Choose(1);
    Page().TransferFromPage();
    EXPECT_TRUE(Options().scaleEqual);
}

TEST_F(ContourOptionsDialog, HoldsNoScaleThatWasStoredBeforeItWasCancelled) {
    Show();
    Open([](CPropertySheet& sheet, const CDialog&) {
        auto& page = dynamic_cast<CPropertyPage&>(*sheet.GetActivePage());
        Scale(page).UserClick();
        page.OnApply();
        sheet.UserCancel();
    });
    EXPECT_TRUE(Options().scaleEqual);
    Page().TransferFromPage();
    EXPECT_FALSE(Options().scaleEqual);
}

TEST_F(ContourOptionsDialog, IsThatOfDesignSpacesWhateverTheType) {
    MakeData(true);
    Show();
    for (const int type : {0, 1, 2}) {
        Page().Choose(type);
        Page().Mixture().SetCheck(type == 1);
        Page().Process().SetCheck(type != 1);
        Open([&](CPropertySheet& sheet, const CDialog&) {
            EXPECT_EQ(sheet.GetText(), L"Design Space Contour Options");
            ASSERT_EQ(sheet.GetPageCount(), 2);
            EXPECT_NE(dynamic_cast<DSContourPlotOptionsPage*>(sheet.GetPage(0)), nullptr);
            EXPECT_NE(dynamic_cast<DesignSpaceIntervalPage*>(sheet.GetPage(1)), nullptr);
            EXPECT_EQ(sheet.GetActiveIndex(), 0);
            EXPECT_FALSE(sheet.HasApply());
            EXPECT_FALSE(sheet.IsWizard());
            EXPECT_EQ(sheet.GetParent(), &Page());
            EXPECT_TRUE(Options().scaleEqual);
            EXPECT_EQ(Options().mixtureMode, type == 1);
        });
    }
}

TEST_F(ContourOptionsDialog, EditsTheIntervalOfADesignSpace) {
    MakeData(true);
    Options().confLev = CConfLev::Level99;
    Options().tolProp = CConfLev::Level90;
    Options().intervalType = CIntervalType::Prediction;
    Show();
    Open([](CPropertySheet& sheet, const CDialog&) {
        EXPECT_TRUE(sheet.UserSelectPage(1));
        const CPropertyPage& page = *sheet.GetActivePage();
        EXPECT_EQ(page.Item<CComboBox>(6299)->GetCurSel(), 2);
        EXPECT_EQ(page.Item<CComboBox>(6341)->GetCurSel(), 0);
        EXPECT_EQ(page.Item<CComboBox>(6344)->GetCurSel(), 1);
        EXPECT_TRUE(page.Item<CComboBox>(6344)->UserPick(0));
        EXPECT_TRUE(sheet.UserOk());
    });
    EXPECT_EQ(Options().intervalType, CIntervalType::Confidence);
}

TEST_F(ContourOptionsDialog, NeverHoldsTheScaleOfADesignSpace) {
    MakeData(true);
    Show();
    Page().Choose(1);
    Open([this](CPropertySheet& sheet, const CDialog&) {
        Options().scaleEqual = false;
        sheet.UserOk();
    });
    Page().TransferFromPage();
    EXPECT_TRUE(Options().scaleEqual);
}

TEST_F(ContourOptionsDialog, SavesTheResolutionAtOnce) {
    Show();
    Open([](CPropertySheet& sheet, const CDialog& page) {
        page.Item<CComboBox>(6046)->UserEdit(L"200");
        sheet.UserOk();
    });
    EXPECT_EQ(Options().resolution, 200);
    EXPECT_EQ(Profile("ContourResolution"), 200);
    EXPECT_FALSE(Page().IsChanged());
}

}  // namespace
}  // namespace kvopt::test
