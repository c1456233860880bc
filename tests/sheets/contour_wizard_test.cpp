#include "kvopt/sheets/contour_wizard.h"

#include <algorithm>
#include <functional>
#include <ostream>
#include <tuple>

#include "axes/page_probe.h"
#include "kvopt/axes.h"
#include "kvopt/constants.h"
#include "sheets/contour_settings_rows.h"
#include "sheets/contour_test.h"

namespace kvopt::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class ContourWizardTest : public ContourTest {
protected:
    ContourWizardTest() {
        AddFactors({3, 0, 2, false});
        AddResponses(2);
    }

    bool Run(bool writeSettings, bool isDesirability = false) {
        return ShowContourWizard(nullptr, Data(), &study, writeSettings, isDesirability);
    }
    /// The user goes from the first page over the axes to the end.
    void FinishByProcess() {
        desktop.user = [](CPropertySheet& sheet) {
            EXPECT_TRUE(sheet.UserNext());
            EXPECT_TRUE(sheet.UserFinish());
        };
    }
    static unsigned HelpOf(const CPropertySheet& sheet, int page) {
        return dynamic_cast<KvPropertyPage&>(*sheet.GetPage(page)).HelpTopicID();
    }
};

// The sheet.

struct TitleRow {
    const char* label;
    bool isDSProbability;
    bool isDesirability;
    std::wstring title;
    unsigned axisHelp;
    unsigned outerAxisHelp;
};

void PrintTo(const TitleRow& row, std::ostream* out) {
    *out << row.label;
}

class ContourWizardTitles : public ContourWizardTest,
                            public testing::WithParamInterface<TitleRow> {};

TEST_P(ContourWizardTitles, SayWhatPlotItIs) {
    MakeData(GetParam().isDSProbability);
    bool seen = false;
    desktop.user = [&](CPropertySheet& sheet) {
        seen = true;
        EXPECT_TRUE(sheet.IsWizard());
        EXPECT_EQ(sheet.GetText(), GetParam().title);
        EXPECT_EQ(sheet.GetPage(0)->PageTitle(), GetParam().title);
        EXPECT_EQ(HelpOf(sheet, 1), GetParam().axisHelp);
        EXPECT_EQ(HelpOf(sheet, 2), GetParam().axisHelp);
        EXPECT_EQ(HelpOf(sheet, 3), GetParam().outerAxisHelp);
        EXPECT_EQ(HelpOf(sheet, 4), GetParam().outerAxisHelp);
        EXPECT_EQ(HelpOf(sheet, 5), kNoHelp);
        EXPECT_EQ(HelpOf(sheet, 6), kNoHelp);
    };
    EXPECT_FALSE(Run(true, GetParam().isDesirability));
    EXPECT_TRUE(seen);
}

INSTANTIATE_TEST_SUITE_P(
    Plots, ContourWizardTitles,
    testing::Values(TitleRow{"Contour", false, false, L"Contour Plot", 1, 2},
                    TitleRow{"DesignSpace", true, false, L"Design Space Plot", 98, 98},
                    TitleRow{"Desirability", false, true, L"Desirability Plot", 1, 2},
                    TitleRow{"DesirabilityOfADesignSpace", true, true, L"Desirability Plot", 98,
                             98}),
    testing::PrintToStringParamName());

TEST_F(ContourWizardTest, HoldsItsPagesInOrderAndStartsWithTheFirst) {
    MakeData();
    desktop.user = [](CPropertySheet& sheet) {
        std::vector<int> templates;
        for (int i = 0; i < sheet.GetPageCount(); ++i) {
            templates.push_back(sheet.GetPage(i)->TemplateNumber());
        }
        EXPECT_THAT(templates, ElementsAre(6158, 6160, 6168, 6161, 6169, 6157, 6170));
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
        EXPECT_FALSE(sheet.HasApply());
        EXPECT_EQ(sheet.WizardButtons(), 2UL);
        EXPECT_EQ(sheet.GetParent(), nullptr);
        std::vector<int> back;
        for (int i = 1; i < sheet.GetPageCount(); ++i) {
            back.push_back(sheet.GetPage(i)->OnWizardBack());
        }
        EXPECT_THAT(back, ElementsAre(6158, 6158, 6158, 6158, 6161, 6169));
    };
    Run(true);
}

TEST_F(ContourWizardTest, StandsInFrontOfItsParent) {
    MakeData();
    CWnd parent;
    bool seen = false;
    desktop.user = [&](CPropertySheet& sheet) { seen = sheet.GetParent() == &parent; };
    ShowContourWizard(&parent, Data(), &study, false, false);
    EXPECT_TRUE(seen);
}

TEST_F(ContourWizardTest, LimitsNoResponsesAndHidesSurfacesForADesirability) {
    MakeData();
    desktop.user = [](CPropertySheet& sheet) {
        auto& page = dynamic_cast<MultipleResponsePage&>(*sheet.GetPage(0));
        EXPECT_FALSE(page.Item<CButton>(6126)->IsVisible());
        EXPECT_TRUE(page.Item<CButton>(6097)->UserClick());
        EXPECT_EQ(page.MaxSelections(), 2);
    };
    Run(true, true);
}

TEST_F(ContourWizardTest, ShowsTheAxesOfItsSetsAndThePlotsConstants) {
    MakeData();
    Data().GetAxisInfo(ContourPlotData::Process2D)[1]->SetName("P2");
    Data().GetAxisInfo(ContourPlotData::Process2D)[2]->SetName("P1");
    const Names mixture{"M3", "M1", "M2"};
    for (std::size_t i = 0; i < mixture.size(); ++i) {
        Data().GetAxisInfo(ContourPlotData::Mixture2D)[i + 1]->SetName(mixture[i]);
    }
    FactorConstants::Constant* constants = Data().GetPlotConstants();
    constants[FactorConstants::Lookup(constants, "M2")].FloatValue(0.125);
    desktop.user = [](CPropertySheet& sheet) {
        ASSERT_TRUE(sheet.UserNext());
        CPropertyPage& page = *sheet.GetActivePage();
        EXPECT_EQ(page.TemplateNumber(), 6160);
        EXPECT_EQ(page.Item<CComboBox>(6036)->GetText(), L"P2");
        EXPECT_EQ(page.Item<CComboBox>(6037)->GetText(), L"P1");
        const BaseWorksheetInterface* grid = page.Item<VirtualWorksheet>(6139)->Content();
        EXPECT_EQ(grid->GetCellText(1, 2), "M2");
        EXPECT_EQ(grid->GetCellText(2, 2), "0.125");
        EXPECT_EQ(sheet.WizardButtons(), 5UL);
        ASSERT_TRUE(sheet.UserBack());
        EXPECT_EQ(sheet.GetActivePage()->TemplateNumber(), 6158);
        EXPECT_TRUE(sheet.GetActivePage()->Item<CButton>(6105)->UserClick());
        ASSERT_TRUE(sheet.UserNext());
        EXPECT_EQ(sheet.GetActivePage()->TemplateNumber(), 6168);
        EXPECT_EQ(sheet.WizardButtons(), 5UL);
        EXPECT_EQ(sheet.GetActivePage()->Item<CComboBox>(6036)->GetText(), L"M3");
        EXPECT_EQ(sheet.GetActivePage()->Item<CComboBox>(6037)->GetText(), L"M1");
        EXPECT_EQ(sheet.GetActivePage()->Item<CComboBox>(6038)->GetText(), L"M2");
    };
    Run(true);
}

// Plots of four axes.

/// A wizard that has been led to the 4D axes of a process or a mixture plot.
class ContourWizard4D : public ContourWizardTest, public testing::WithParamInterface<bool> {
protected:
    ContourWizard4D() {
        study.Number("P3", 0, 10);
        study.Number("P4", 0, 10);
        study.Part("M4");
    }
    bool IsMixture() const { return GetParam(); }
    int AxisTemplate() const { return IsMixture() ? 6169 : 6161; }
    int ConstantsTemplate() const { return IsMixture() ? 6170 : 6157; }
    ContourPlotData::AxisType Set() const {
        return IsMixture() ? ContourPlotData::Mixture4D : ContourPlotData::Process4D;
    }
    void MakePlot(bool isDSProbability = false, bool fromDesignSpace = false) {
        MakeData(isDSProbability, false, fromDesignSpace);
        SetAxes(ContourPlotData::Process4D, {"P1", "P2", "P3", AxisInfo::GetNotUsedName()});
        SetAxes(ContourPlotData::Mixture4D, {"M1", "M2", "M3", "P1", AxisInfo::GetNotUsedName()});
    }
    void GoToAxes(CPropertySheet& sheet) {
        const CPropertyPage& first = *sheet.GetActivePage();
        EXPECT_TRUE(first.Item<CButton>(6097)->UserClick());
        EXPECT_TRUE(first.Item<CButton>(IsMixture() ? 6105 : 6115)->UserClick());
        EXPECT_TRUE(sheet.UserNext());
        EXPECT_EQ(sheet.GetActivePage()->TemplateNumber(), AxisTemplate());
    }
    VWSConstantInterface& GoToConstants(CPropertySheet& sheet) {
        EXPECT_TRUE(sheet.UserNext());
        EXPECT_EQ(sheet.GetActivePage()->TemplateNumber(), ConstantsTemplate());
        return dynamic_cast<ConstantsPage&>(*sheet.GetActivePage()).Grid();
    }
    static Names RowsOf(const VWSConstantInterface& grid) {
        Names names;
        for (int row = 1; !grid.GetCellText(1, row).empty(); ++row) {
            names.push_back(grid.GetCellText(1, row));
        }
        return names;
    }
};

TEST_P(ContourWizard4D, GoesForwardsAndBackwardsOverAxesAndConstants) {
    MakePlot();
    desktop.user = [this](CPropertySheet& sheet) {
        GoToAxes(sheet);
        EXPECT_EQ(sheet.WizardButtons(), 7UL);
        GoToConstants(sheet);
        EXPECT_EQ(sheet.WizardButtons(), 5UL);
        EXPECT_TRUE(sheet.UserBack());
        EXPECT_EQ(sheet.GetActivePage()->TemplateNumber(), AxisTemplate());
        EXPECT_TRUE(sheet.UserBack());
        EXPECT_EQ(sheet.GetActivePage()->TemplateNumber(), 6158);
        EXPECT_TRUE(sheet.UserNext());
        GoToConstants(sheet);
        EXPECT_TRUE(sheet.UserFinish());
    };
    EXPECT_TRUE(Run(false));
    EXPECT_THAT(desktop.boxes, IsEmpty());
}

TEST_P(ContourWizard4D, ShowsTheAxesOfItsSet) {
    MakePlot();
    const Names names =
        IsMixture() ? Names{"M4", "M1", "M3", "P4", "P2"} : Names{"P4", "P2", "P1", "P3"};
    SetAxes(Set(), names);
    desktop.user = [&](CPropertySheet& sheet) {
        GoToAxes(sheet);
        const auto& page = dynamic_cast<AxisPage&>(*sheet.GetActivePage());
        ASSERT_EQ(page.NAxis(), static_cast<int>(names.size()));
        for (int axis = 1; axis <= page.NAxis(); ++axis) {
            EXPECT_EQ(page.NameAxis(axis), names[static_cast<std::size_t>(axis - 1)]);
        }
    };
    Run(false);
}

TEST_P(ContourWizard4D, ProposesTheDefaultsOfThePlot) {
    MakePlot();
    const std::string name = IsMixture() ? "M2" : "P2";
    for (const auto& axis : Data().GetAxisDefaults()) {
        if (axis && axis->GetName() == name) {
            axis->SetRange(0.25F, 0.5F);
        }
    }
    desktop.user = [&](CPropertySheet& sheet) {
        GoToAxes(sheet);
        auto& page = dynamic_cast<AxisPage&>(*sheet.GetActivePage());
        EXPECT_GE(page.SelectString(1, name), 0);
        EXPECT_EQ(page.GetMin(1), 0.25);
        EXPECT_EQ(page.GetMax(1), 0.5);
    };
    Run(false);
}

TEST_P(ContourWizard4D, SpeaksOfTheConstantsToComeOrShowsThePrecisionOfFactors) {
    for (const bool isDSProbability : {false, true}) {
        MakePlot(isDSProbability);
        desktop.user = [&](CPropertySheet& sheet) {
            GoToAxes(sheet);
            const CPropertyPage& page = *sheet.GetActivePage();
            EXPECT_EQ(page.GetDlgItem(6139)->IsVisible(), !isDSProbability);
            EXPECT_EQ(page.GetDlgItem(6279)->IsVisible(), isDSProbability);
        };
        Run(false);
    }
}

TEST_P(ContourWizard4D, EditsTheConstantsOfThePlot) {
    MakePlot();
    const std::string factor = "P4";
    desktop.user = [&](CPropertySheet& sheet) {
        GoToAxes(sheet);
        VWSConstantInterface& grid = GoToConstants(sheet);
        const Names rows = RowsOf(grid);
        const auto found = std::find(rows.begin(), rows.end(), factor);
        ASSERT_NE(found, rows.end());
        EXPECT_TRUE(grid.UserChangedData(2, 1 + static_cast<int>(found - rows.begin()), "2.5"));
        EXPECT_TRUE(sheet.UserFinish());
    };
    EXPECT_TRUE(Run(false));
    const FactorConstants::Constant* constants = Data().GetPlotConstants();
    EXPECT_EQ(constants[FactorConstants::Lookup(constants, factor)].FloatValue(), 2.5);
}

TEST_P(ContourWizard4D, AsksItsAxesForTheConstants) {
    MakePlot();
    study.unavailable = {"P4"};
    desktop.user = [&](CPropertySheet& sheet) {
        GoToAxes(sheet);
        const Names rows = RowsOf(GoToConstants(sheet));
        EXPECT_EQ(rows, (IsMixture() ? Names{"P2", "P3", "M4"} : Names{"M1", "M2", "M3", "M4"}));
    };
    Run(false);
    // A response from outside the study: its model is not known.
    study.ExtraResponse("Elsewhere", ResponseEx::External);
    MakePlot();
    desktop.user = [&](CPropertySheet& sheet) {
        GoToAxes(sheet);
        EXPECT_THAT(RowsOf(GoToConstants(sheet)), Contains("P4"));
    };
    Run(false);
}

TEST_P(ContourWizard4D, LetsTheConstantsOfADesignSpaceBeReadAlone) {
    for (const bool isDSProbability : {false, true}) {
        for (const bool fromDesignSpace : {false, true}) {
            MakePlot(isDSProbability, fromDesignSpace);
            bool seen = false;
            desktop.user = [&](CPropertySheet& sheet) {
                seen = true;
                const auto& page =
                    dynamic_cast<ConstantsPage&>(*sheet.GetPage(IsMixture() ? 6 : 5));
                EXPECT_EQ(page.Grid().IsReadOnly(), isDSProbability && fromDesignSpace)
                    << isDSProbability << fromDesignSpace;
            };
            Run(false);
            EXPECT_TRUE(seen);
        }
    }
}

TEST_P(ContourWizard4D, WritesItsAxesWhenItIsFinished) {
    MakePlot();
    desktop.user = [this](CPropertySheet& sheet) {
        GoToAxes(sheet);
        GoToConstants(sheet);
        EXPECT_TRUE(sheet.UserFinish());
    };
    files.Log().clear();
    EXPECT_TRUE(Run(true));
    const SectionLog written = Changes(files.Log());
    files.Log().clear();
    Data().Write4DSettings(Set());
    EXPECT_EQ(written, Changes(files.Log()));
    EXPECT_EQ(AxesOf(Set(), 3), (IsMixture() ? Names{"M1", "M2", "M3"} : Names{"P1", "P2", "P3"}));
}

TEST_P(ContourWizard4D, ClearsTheOuterAxesOfADesignSpaceThatReadsContour) {
    MakePlot(true);
    desktop.user = [this](CPropertySheet& sheet) {
        const CPropertyPage& first = *sheet.GetActivePage();
        EXPECT_TRUE(first.Item<CButton>(6096)->GetCheck());
        EXPECT_FALSE(first.Item<CButton>(6126)->IsVisible());
        EXPECT_TRUE(first.Item<CButton>(IsMixture() ? 6105 : 6115)->UserClick());
        EXPECT_TRUE(sheet.UserNext());
        EXPECT_EQ(sheet.GetActivePage()->TemplateNumber(), AxisTemplate());
        EXPECT_EQ(RowProbe(*sheet.GetActivePage(), IsMixture() ? 4 : 3).Name(),
                  AxisInfo::GetNotUsedName());
        EXPECT_TRUE(sheet.UserFinish());
    };
    EXPECT_TRUE(Run(false));
    EXPECT_FALSE(Data().GetAxisInfo(Set())[IsMixture() ? 4 : 3]->IsUsed());
    EXPECT_EQ(PageData().GetPlotType(), ContourPageData::ds_probability);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ContourWizard4D, testing::Bool(),
                         [](const auto& row) { return row.param ? "Mixture" : "Process"; });

// A design region.

TEST_F(ContourWizardTest, StartsOnTheMixtureAxesForADesignRegionWithNoWayBack) {
    MakeData();
    PageData().SetUseDummyData(true);
    desktop.user = [](CPropertySheet& sheet) {
        EXPECT_EQ(sheet.GetActiveIndex(), 2);
        EXPECT_EQ(sheet.GetActivePage()->TemplateNumber(), 6168);
        EXPECT_EQ(sheet.WizardButtons(), 4UL);
        EXPECT_FALSE(sheet.GetPage(0)->HasWindow());
        EXPECT_TRUE(sheet.UserFinish());
    };
    EXPECT_TRUE(Run(false));
}

// The result, and what is written.

TEST_F(ContourWizardTest, IsTrueOnlyWhenItIsFinished) {
    MakeData();
    FinishByProcess();
    EXPECT_TRUE(Run(false));
    desktop.user = [](CPropertySheet& sheet) { sheet.UserCancel(); };
    EXPECT_FALSE(Run(false));
    for (const int result : {kResultOk + 0, kResultCancel + 0, kResultCancelRequested + 0}) {
        desktop.user = [result](CPropertySheet& sheet) { sheet.EndDialog(result); };
        EXPECT_FALSE(Run(true)) << result;
    }
    EXPECT_THAT(WrittenKeys(files.Log()), IsEmpty());
}

class WrittenSettings : public ContourWizardTest, public testing::WithParamInterface<SettingsRow> {
protected:
    /// The wizard of a design region goes straight to its end, whatever the type of the plot.
    SectionLog WrittenByWizard(bool writeSettings) {
        MakeData(GetParam().type == 4);
        PageData().SetPlotType(static_cast<ContourPageData::Type>(GetParam().type));
        PageData().SetAxisType(GetParam().mixture ? ContourPageData::mixture
                                                  : ContourPageData::process);
        PageData().SetUseDummyData(true);
        desktop.user = [](CPropertySheet& sheet) { EXPECT_TRUE(sheet.UserFinish()); };
        files.Log().clear();
        EXPECT_TRUE(Run(writeSettings));
        return Changes(files.Log());
    }
};

TEST_P(WrittenSettings, GoByTheTypeOfThePlot) {
    const SectionLog written = WrittenByWizard(true);
    files.Log().clear();
    GetParam().same(Data());
    EXPECT_EQ(written, Changes(files.Log()));
    EXPECT_THAT(written, Not(IsEmpty()));
}

TEST_P(WrittenSettings, AreNoneWhenTheHostWantsNone) {
    EXPECT_THAT(WrittenByWizard(false), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Types, WrittenSettings, KnownTypes(), testing::PrintToStringParamName());

void WriteOptions(ContourPlotData& data) {
    data.GetContourTypeData()->SaveSettings(std::string("study.ini"));
}

INSTANTIATE_TEST_SUITE_P(UnknownType, WrittenSettings,
                         testing::Values(SettingsRow{"Process", 9, false, WriteOptions},
                                         SettingsRow{"Mixture", 9, true, WriteOptions}),
                         testing::PrintToStringParamName());

TEST_F(ContourWizardTest, FlushesWhatItHasWritten) {
    MakeData();
    FinishByProcess();
    files.Log().clear();
    EXPECT_TRUE(Run(true));
    ASSERT_THAT(files.Log(), Not(IsEmpty()));
    EXPECT_THAT(files.Log().back(), testing::EndsWith("Flush"));
}

TEST_F(ContourWizardTest, WritesTheOptionsOfAnUnknownTypeToTheStudysFile) {
    MakeData();
    PageData().SetPlotType(static_cast<ContourPageData::Type>(9));
    PageData().SetUseDummyData(true);
    PageData().SetUseColor(false);
    study.iniFileName = "other.ini";
    desktop.user = [](CPropertySheet& sheet) { sheet.UserFinish(); };
    EXPECT_TRUE(Run(true));
    IniFileSection& file = files.File("other.ini");
    file.SetSection("ContourPlot");
    bool useColor = true;
    EXPECT_TRUE(file.ReadKey("UseColor", useColor));
    EXPECT_FALSE(useColor);
    EXPECT_FALSE(files.File("study.ini").HasSection("ContourPlot", true));
}

TEST_F(ContourWizardTest, SavesResolutionsInTheProfileAlsoWithoutSettings) {
    MakeData();
    Options().resolution = 48;
    Options().mixtureResolution = 96;
    FinishByProcess();
    files.Log().clear();
    EXPECT_TRUE(Run(false));
    EXPECT_THAT(WrittenKeys(files.Log()), IsEmpty());
    EXPECT_EQ(Profile("ContourResolution"), 48);
    EXPECT_EQ(Profile("MixtureContourResolution"), 96);
}

TEST_F(ContourWizardTest, KeepsWhatWasStoredOnTheWayWhenItIsCancelled) {
    MakeData();
    Options().resolution = 48;
    desktop.user = [](CPropertySheet& sheet) {
        sheet.GetActivePage()->Item<CButton>(6126)->UserClick();
        EXPECT_TRUE(sheet.UserNext());
        sheet.UserCancel();
    };
    files.Log().clear();
    EXPECT_FALSE(Run(true));
    EXPECT_EQ(Profile("ContourResolution"), 48);
    EXPECT_EQ(PageData().GetPlotType(), ContourPageData::surface_3D);
    EXPECT_THAT(WrittenKeys(files.Log()), IsEmpty());
}

TEST_F(ContourWizardTest, StoresNothingWhenItIsCancelledAtOnce) {
    MakeData();
    const std::string before = Describe(Data());
    desktop.user = [](CPropertySheet& sheet) {
        sheet.GetActivePage()->Item<CButton>(6024)->SetCheck(true);
        sheet.UserCancel();
    };
    EXPECT_FALSE(Run(true));
    EXPECT_EQ(Describe(Data()), before);
    EXPECT_EQ(Profile("ContourResolution"), 0);
}

TEST_F(ContourWizardTest, TellsTheActiveStudyOfTheSelection) {
    MakeData();
    Investigation::SetActiveInvestigation(&study);
    PageData().SetResponses({"Y2"});
    FinishByProcess();
    EXPECT_TRUE(Run(true));
    Names selected;
    study.GetSelectedResponses(selected, SelectResponseBase::Extended);
    EXPECT_THAT(selected, ElementsAre("Y2"));
}

// What cannot be.

TEST_F(ContourWizardTest, RefusesToWriteTheSettingsOfACopyBeforeAnythingIsShown) {
    MakeData();
    ContourPlotData copy(Data());
    desktop.log.Clear();
    EXPECT_THROW(ShowContourWizard(nullptr, copy, &study, true, false), InvalidArgument);
    EXPECT_THAT(desktop.log.Lines(), IsEmpty());
    FinishByProcess();
    EXPECT_TRUE(ShowContourWizard(nullptr, copy, &study, false, false));
}

TEST_F(ContourWizardTest, RefusesToWriteSettingsWithoutAFile) {
    files.refuses = true;
    MakeData();
    EXPECT_THROW(Run(true), InvalidArgument);
    EXPECT_THAT(desktop.log.Lines(), IsEmpty());
    EXPECT_EQ(Profile("ContourResolution"), 0);
}

TEST_F(ContourWizardTest, LetsAnAbandonedPlotThroughWithNothingWritten) {
    MakeData();
    desktop.user = [](CPropertySheet&) { throw CancelException(); };
    files.Log().clear();
    EXPECT_THROW(Run(true), CancelException);
    EXPECT_THAT(WrittenKeys(files.Log()), IsEmpty());
    EXPECT_EQ(desktop.log.Lines().back(), "end by exception");
}

}  // namespace
}  // namespace kvopt::test
