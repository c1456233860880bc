#include "kvopt/sheets/contour_wizard.h"

#include <functional>
#include <ostream>
#include <tuple>

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
    };
    EXPECT_FALSE(Run(true, GetParam().isDesirability));
    EXPECT_TRUE(seen);
}

INSTANTIATE_TEST_SUITE_P(
    Plots, ContourWizardTitles,
    testing::Values(TitleRow{"Contour", false, false, L"Contour Plot", 1},
                    TitleRow{"DesignSpace", true, false, L"Design Space Plot", 98},
                    TitleRow{"Desirability", false, true, L"Desirability Plot", 1},
                    TitleRow{"DesirabilityOfADesignSpace", true, true, L"Desirability Plot", 98}),
    testing::PrintToStringParamName());

TEST_F(ContourWizardTest, HoldsItsPagesInOrderAndStartsWithTheFirst) {
    MakeData();
    desktop.user = [](CPropertySheet& sheet) {
        std::vector<int> templates;
        for (int i = 0; i < sheet.GetPageCount(); ++i) {
            templates.push_back(sheet.GetPage(i)->TemplateNumber());
        }
        EXPECT_THAT(templates, ElementsAre(6158, 6160, 6168));
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
        EXPECT_EQ(sheet.WizardButtons(), 2UL);
        EXPECT_EQ(sheet.GetParent(), nullptr);
        EXPECT_EQ(sheet.GetPage(1)->OnWizardBack(), 6158);
        EXPECT_EQ(sheet.GetPage(2)->OnWizardBack(), 6158);
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
        EXPECT_EQ(sheet.GetActivePage()->Item<CComboBox>(6036)->GetText(), L"M3");
        EXPECT_EQ(sheet.GetActivePage()->Item<CComboBox>(6037)->GetText(), L"M1");
        EXPECT_EQ(sheet.GetActivePage()->Item<CComboBox>(6038)->GetText(), L"M2");
    };
    Run(true);
}

TEST_F(ContourWizardTest, SaysThatPlotsOfFourAxesAreNotThereYet) {
    MakeData();
    desktop.user = [](CPropertySheet& sheet) {
        EXPECT_TRUE(sheet.GetActivePage()->Item<CButton>(6097)->UserClick());
        sheet.UserNext();
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
    };
    EXPECT_FALSE(Run(true));
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0],
              (SheetDesktop::Box{
                  "Plots of four axes cannot be made yet. Choose a contour or a surface plot.",
                  "Contour Plot", 64}));
}

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

struct WrittenRow {
    const char* label;
    int type;
    bool mixture;
    std::function<void(ContourPlotData&)> same;  ///< writes what the wizard has to write
};

void PrintTo(const WrittenRow& row, std::ostream* out) {
    *out << row.label;
}

class WrittenSettings : public ContourWizardTest, public testing::WithParamInterface<WrittenRow> {
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
        return files.Log();
    }
    /// With nothing of the sort that only reads.
    static SectionLog Changes(const SectionLog& log) {
        SectionLog changes;
        for (const std::string& line : log) {
            if (line.find("] read ") == std::string::npos) {
                changes.push_back(line);
            }
        }
        return changes;
    }
};

TEST_P(WrittenSettings, GoByTheTypeOfThePlot) {
    const SectionLog written = Changes(WrittenByWizard(true));
    files.Log().clear();
    GetParam().same(Data());
    EXPECT_EQ(written, Changes(files.Log()));
    EXPECT_THAT(written, Not(IsEmpty()));
}

TEST_P(WrittenSettings, AreNoneWhenTheHostWantsNone) {
    EXPECT_THAT(Changes(WrittenByWizard(false)), IsEmpty());
}

void Write(ContourPlotData& data, WizardPlotData::PlotAxisType type, int set, int numAxes) {
    data.WriteSettings(type, set, numAxes, true);
}
void WriteProcess(ContourPlotData& data) {
    Write(data, WizardPlotData::ContourAxis2D, 1, 2);
}
void WriteMixture(ContourPlotData& data) {
    Write(data, WizardPlotData::ContourAxisMixture, 3, 3);
}
void WriteProcess4D(ContourPlotData& data) {
    data.Write4DSettings(ContourPlotData::Process4D);
}
void WriteMixture4D(ContourPlotData& data) {
    data.Write4DSettings(ContourPlotData::Mixture4D);
}
void WriteOptions(ContourPlotData& data) {
    data.GetContourTypeData()->SaveSettings(std::string("study.ini"));
}

INSTANTIATE_TEST_SUITE_P(Types, WrittenSettings,
                         testing::Values(WrittenRow{"ContourProcess", 0, false, WriteProcess},
                                         WrittenRow{"ContourMixture", 0, true, WriteMixture},
                                         WrittenRow{"Contour4DProcess", 1, false, WriteProcess4D},
                                         WrittenRow{"Contour4DMixture", 1, true, WriteMixture4D},
                                         WrittenRow{"SurfaceProcess", 2, false, WriteProcess},
                                         WrittenRow{"SurfaceMixture", 2, true, WriteMixture},
                                         WrittenRow{"Surface4DProcess", 3, false, WriteProcess4D},
                                         WrittenRow{"Surface4DMixture", 3, true, WriteMixture4D},
                                         WrittenRow{"DesignSpaceProcess", 4, false, WriteProcess4D},
                                         WrittenRow{"DesignSpaceMixture", 4, true, WriteMixture4D},
                                         WrittenRow{"UnknownProcess", 9, false, WriteOptions},
                                         WrittenRow{"UnknownMixture", 9, true, WriteOptions}),
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
