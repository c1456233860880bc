#include "kvopt/sheets/contour_sheet.h"

#include <ostream>
#include <tuple>

#include "axes/page_probe.h"
#include "kvopt/axes.h"
#include "kvopt/constants.h"
#include "sheets/contour_settings_rows.h"
#include "sheets/contour_test.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

class ContourSheetTest : public ContourTest {
protected:
    ContourSheetTest() {
        AddFactors({4, 1, 4, false});
        AddResponses(5);
    }

    /// A plot of a type (4 is a design space) that has its axes.
    void MakePlot(int type, bool mixture, bool fromDesignSpace = false) {
        MakeData(type == 4, false, fromDesignSpace);
        SetType(type, mixture);
    }
    void SetType(int type, bool mixture) {
        PageData().SetPlotType(static_cast<ContourPageData::Type>(type));
        PageData().SetAxisType(mixture ? ContourPageData::mixture : ContourPageData::process);
        SetAxes(ContourPlotData::Process2D, {"P1", "P2"});
        SetAxes(ContourPlotData::Mixture2D, {"M1", "M2", "M3"});
        SetAxes(ContourPlotData::Process4D, {"P1", "P2", "P3", AxisInfo::GetNotUsedName()});
        SetAxes(ContourPlotData::Mixture4D, {"M1", "M2", "M3", "P1", AxisInfo::GetNotUsedName()});
    }
    bool Run(bool writeSettings = false, BasePropertyPageHelper* helper = nullptr,
             CWnd* parent = nullptr) {
        files.Log().clear();
        return ShowContourSheet(parent, Data(), &study, Data().GetPlotConstants(), helper,
                                writeSettings);
    }
    /// Runs the sheet for a look at it; the user cancels.
    void Look(const std::function<void(CPropertySheet&)>& look,
              BasePropertyPageHelper* helper = nullptr, CWnd* parent = nullptr) {
        bool seen = false;
        desktop.user = [&](CPropertySheet& sheet) {
            seen = true;
            look(sheet);
            sheet.UserCancel();
        };
        EXPECT_FALSE(Run(false, helper, parent));
        EXPECT_TRUE(seen);
    }
    void Confirm() {
        desktop.user = [](CPropertySheet& sheet) { EXPECT_TRUE(sheet.UserOk()); };
    }
    static KvPropertyPage& PageOf(const CPropertySheet& sheet, int index) {
        return dynamic_cast<KvPropertyPage&>(*sheet.GetPage(index));
    }
    static ConstantsPage& ConstantsOf(const CPropertySheet& sheet) {
        return dynamic_cast<ConstantsPage&>(*sheet.GetPage(2));
    }
    /// The names in the rows of a grid that has been filled.
    static Names RowsOf(const VWSConstantInterface& grid) {
        Names names;
        for (int row = 1; !grid.GetCellText(1, row).empty(); ++row) {
            names.push_back(grid.GetCellText(1, row));
        }
        return names;
    }
};

// The pages.

struct PagesRow {
    const char* label;
    int type;
    bool mixture;
    std::vector<int> templates;   ///< behind the page of the responses
    std::vector<unsigned> helps;  ///< of the same pages
    unsigned responsesHelp;
};

void PrintTo(const PagesRow& row, std::ostream* out) {
    *out << row.label;
}

class ContourSheetPages : public ContourSheetTest, public testing::WithParamInterface<PagesRow> {
protected:
    static std::vector<int> TemplatesOf(const CPropertySheet& sheet) {
        std::vector<int> templates;
        for (int i = 0; i < sheet.GetPageCount(); ++i) {
            templates.push_back(sheet.GetPage(i)->TemplateNumber());
        }
        return templates;
    }
    static std::vector<unsigned> HelpsOf(const CPropertySheet& sheet) {
        std::vector<unsigned> helps;
        for (int i = 0; i < sheet.GetPageCount(); ++i) {
            helps.push_back(PageOf(sheet, i).HelpTopicID());
        }
        return helps;
    }
};

TEST_P(ContourSheetPages, FollowTheTypeOfThePlot) {
    MakePlot(GetParam().type, GetParam().mixture);
    std::vector<int> templates = GetParam().templates;
    templates.insert(templates.begin(), 6172);
    std::vector<unsigned> helps = GetParam().helps;
    helps.insert(helps.begin(), GetParam().responsesHelp);
    Look([&](const CPropertySheet& sheet) {
        EXPECT_EQ(TemplatesOf(sheet), templates);
        EXPECT_EQ(HelpsOf(sheet), helps);
        EXPECT_EQ(sheet.GetActiveIndex(), 0);
    });
}

TEST_P(ContourSheetPages, HaveNoResponsesForADesignRegion) {
    MakePlot(GetParam().type, GetParam().mixture);
    PageData().SetUseDummyData(true);
    Look([&](const CPropertySheet& sheet) {
        EXPECT_EQ(TemplatesOf(sheet), GetParam().templates);
        EXPECT_EQ(HelpsOf(sheet), GetParam().helps);
    });
}

INSTANTIATE_TEST_SUITE_P(
    Types, ContourSheetPages,
    testing::Values(
        PagesRow{"ContourProcess", 0, false, {6160, 6159}, {1, 64}, 65},
        PagesRow{"ContourMixture", 0, true, {6168, 6159}, {1, 64}, 65},
        PagesRow{"Contour4DProcess", 1, false, {6161, 6157, 6159}, {2, kNoHelp, 64}, 65},
        PagesRow{"Contour4DMixture", 1, true, {6169, 6170, 6159}, {2, kNoHelp, 64}, 65},
        PagesRow{"SurfaceProcess", 2, false, {6160, 6213}, {1, 402}, 65},
        PagesRow{"SurfaceMixture", 2, true, {6168, 6213}, {1, 402}, 65},
        PagesRow{"Surface4DProcess", 3, false, {6161, 6157, 6159}, {2, kNoHelp, 64}, 65},
        PagesRow{"Surface4DMixture", 3, true, {6169, 6170, 6159}, {2, kNoHelp, 64}, 65},
        PagesRow{
            "DesignSpaceProcess", 4, false, {6161, 6157, 6221, 6230}, {98, kNoHelp, 101, 226}, 104},
        PagesRow{
            "DesignSpaceMixture", 4, true, {6169, 6170, 6221, 6230}, {98, kNoHelp, 101, 226}, 104},
        PagesRow{"Unknown", 9, false, {6159}, {64}, 65}),
    testing::PrintToStringParamName());

TEST_F(ContourSheetTest, TakesADesignSpaceByItsObjectAndNotByItsType) {
    MakeData();
    SetType(4, false);
    Look([](const CPropertySheet& sheet) {
        ASSERT_EQ(sheet.GetPageCount(), 4);
        EXPECT_EQ(PageOf(sheet, 0).HelpTopicID(), 65U);
        EXPECT_EQ(sheet.GetPage(1)->TemplateNumber(), 6161);
        EXPECT_EQ(PageOf(sheet, 1).HelpTopicID(), 2U);
        EXPECT_EQ(sheet.GetPage(3)->TemplateNumber(), 6159);
    });
}

TEST_F(ContourSheetTest, TakesAsManyResponsesAsTheTypeAllows) {
    const std::pair<int, int> rows[] = {{0, 5}, {1, 1}, {2, 5}, {3, 1}, {4, 5}, {9, 5}};
    for (const auto& [type, most] : rows) {
        MakePlot(type, false);
        Look([&, type = type, most = most](const CPropertySheet& sheet) {
            const auto& page = dynamic_cast<MultipleResponsePage&>(*sheet.GetPage(0));
            EXPECT_EQ(page.MaxSelections(), most) << type;
        });
    }
}

TEST_F(ContourSheetTest, SelectsTheResponsesOfThePlot) {
    MakePlot(0, false);
    desktop.user = [](CPropertySheet& sheet) {
        auto& selected = *sheet.GetPage(0)->Item<CListBox>(6078);
        EXPECT_EQ(selected.GetCount(), 5);
        EXPECT_TRUE(selected.UserDoubleClick(0));
        EXPECT_TRUE(sheet.UserOk());
    };
    EXPECT_TRUE(Run());
    EXPECT_THAT(PageData().GetSelectedResponses(), ElementsAre("Y2", "Y3", "Y4", "Y5"));
}

// The sheet.

TEST_F(ContourSheetTest, BearsTheTextOfTheOutermostWindow) {
    MakePlot(0, false);
    CWnd main;
    main.SetText(L"Contour of yield");
    CWnd view(&main);
    view.SetText(L"A view");
    Look(
        [&](const CPropertySheet& sheet) {
            EXPECT_EQ(sheet.GetText(), L"Contour of yield");
            EXPECT_EQ(sheet.GetParent(), &view);
        },
        nullptr, &view);
    Look([](const CPropertySheet& sheet) { EXPECT_EQ(sheet.GetText(), L"Contour of yield"); },
         nullptr, &main);
    main.SetText(L"");
    Look([](const CPropertySheet& sheet) { EXPECT_EQ(sheet.GetText(), L""); }, nullptr, &view);
}

TEST_F(ContourSheetTest, IsCalledPropertiesWithoutAParent) {
    MakePlot(0, false);
    Look([](const CPropertySheet& sheet) {
        EXPECT_EQ(sheet.GetText(), L"Properties");
        EXPECT_EQ(sheet.GetParent(), nullptr);
        EXPECT_FALSE(sheet.IsWizard());
    });
}

TEST_F(ContourSheetTest, HasApplyAndTellsItsPagesOfTheHelper) {
    ConnectedHelper helper;
    for (const int type : {0, 1, 2, 4}) {
        for (const bool mixture : {false, true}) {
            MakePlot(type, mixture);
            Look([](const CPropertySheet& sheet) { EXPECT_FALSE(sheet.HasApply()); });
            Look(
                [&](const CPropertySheet& sheet) {
                    EXPECT_TRUE(sheet.HasApply());
                    for (int i = 0; i < sheet.GetPageCount(); ++i) {
                        EXPECT_EQ(PageOf(sheet, i).GetPropertyPageHelper(), &helper) << i;
                    }
                },
                &helper);
        }
    }
}

TEST_F(ContourSheetTest, UpdatesTheHostForEachChangedPageAndStaysOpen) {
    MakePlot(0, false);
    ConnectedHelper helper;
    desktop.user = [&](CPropertySheet& sheet) {
        EXPECT_FALSE(sheet.UserApply());
        EXPECT_TRUE(sheet.UserSelectPage(2));
        EXPECT_TRUE(sheet.GetActivePage()->Item<CButton>(6022)->UserClick());
        EXPECT_TRUE(sheet.UserApply());
        EXPECT_EQ(helper.updates, 1);
        EXPECT_FALSE(sheet.HasEnded());
        sheet.UserCancel();
    };
    EXPECT_FALSE(Run(true, &helper));
    // What was applied stays; what only a confirmed sheet writes is not written.
    EXPECT_FALSE(Options().useColor);
    EXPECT_THAT(WrittenKeys(files.Log()), IsEmpty());
}

// The axes.

struct AxesRow {
    const char* label;
    int type;
    bool mixture;
    ContourPlotData::AxisType set;
    Names names;
};

void PrintTo(const AxesRow& row, std::ostream* out) {
    *out << row.label;
}

class ContourSheetAxes : public ContourSheetTest, public testing::WithParamInterface<AxesRow> {};

TEST_P(ContourSheetAxes, AreThoseOfTheSetWithThePlotsProposals) {
    MakePlot(GetParam().type, GetParam().mixture);
    SetAxes(GetParam().set, GetParam().names);
    Data().GetAxisInfo(GetParam().set)[1]->SetRange(2, 7);
    Look([&](CPropertySheet& sheet) {
        EXPECT_TRUE(sheet.UserSelectPage(1));
        auto& page = dynamic_cast<AxisPage&>(*sheet.GetPage(1));
        ASSERT_EQ(page.NAxis(), static_cast<int>(GetParam().names.size()));
        for (int axis = 1; axis <= page.NAxis(); ++axis) {
            EXPECT_EQ(page.NameAxis(axis), GetParam().names[static_cast<std::size_t>(axis - 1)]);
        }
        EXPECT_EQ(page.GetMin(1), 2.0);
        EXPECT_EQ(page.OnWizardBack(), 6158);
    });
}

INSTANTIATE_TEST_SUITE_P(
    Types, ContourSheetAxes,
    testing::Values(
        AxesRow{"Process", 0, false, ContourPlotData::Process2D, {"P3", "P1"}},
        AxesRow{"Mixture", 2, true, ContourPlotData::Mixture2D, {"M2", "M4", "M1"}},
        AxesRow{"Process4D", 1, false, ContourPlotData::Process4D, {"P4", "P1", "Q1", "P2"}},
        AxesRow{"Mixture4D", 3, true, ContourPlotData::Mixture4D, {"M4", "M1", "M2", "P3", "Q1"}}),
    testing::PrintToStringParamName());

TEST_F(ContourSheetTest, ProposesTheDefaultsOfThePlot) {
    for (const auto& [type, mixture, name] :
         {std::tuple{0, false, "P2"}, {0, true, "M2"}, {1, false, "P2"}, {1, true, "M2"}}) {
        MakePlot(type, mixture);
        for (const auto& axis : Data().GetAxisDefaults()) {
            if (axis && axis->GetName() == name) {
                axis->SetRange(0.25F, 0.5F);
            }
        }
        Look([&, name = name](CPropertySheet& sheet) {
            EXPECT_TRUE(sheet.UserSelectPage(1));
            auto& page = dynamic_cast<AxisPage&>(*sheet.GetPage(1));
            EXPECT_GE(page.SelectString(1, name), 0);
            EXPECT_EQ(page.GetMin(1), 0.25);
            EXPECT_EQ(page.GetMax(1), 0.5);
        });
    }
}

TEST_F(ContourSheetTest, SpeaksOfNoConstantsToComeOnTheAxesOfFourDimensions) {
    for (const bool mixture : {false, true}) {
        MakePlot(1, mixture);
        Look([](CPropertySheet& sheet) {
            EXPECT_TRUE(sheet.UserSelectPage(1));
            EXPECT_FALSE(sheet.GetPage(1)->GetDlgItem(6139)->IsVisible());
        });
    }
}

TEST_F(ContourSheetTest, ShowsThePrecisionOfFactorsWithTheAxesOfADesignSpace) {
    for (const bool mixture : {false, true}) {
        for (const int type : {1, 4}) {
            MakePlot(type, mixture);
            Look([type](CPropertySheet& sheet) {
                EXPECT_TRUE(sheet.UserSelectPage(1));
                EXPECT_EQ(sheet.GetPage(1)->GetDlgItem(6279)->IsVisible(), type == 4);
            });
        }
    }
}

// The options.

TEST_F(ContourSheetTest, EditsTheIntervalOfADesignSpace) {
    MakePlot(4, false);
    Options().confLev = CConfLev::Level99;
    Options().tolProp = CConfLev::Level90;
    Options().intervalType = CIntervalType::Tolerance;
    desktop.user = [](CPropertySheet& sheet) {
        EXPECT_TRUE(sheet.UserSelectPage(4));
        const CPropertyPage& page = *sheet.GetActivePage();
        EXPECT_EQ(page.Item<CComboBox>(6299)->GetCurSel(), 2);
        EXPECT_EQ(page.Item<CComboBox>(6341)->GetCurSel(), 0);
        EXPECT_EQ(page.Item<CComboBox>(6344)->GetCurSel(), 2);
        EXPECT_TRUE(page.Item<CComboBox>(6344)->UserPick(1));
        EXPECT_TRUE(sheet.UserOk());
    };
    EXPECT_TRUE(Run());
    EXPECT_EQ(Options().intervalType, CIntervalType::Prediction);
    EXPECT_EQ(Options().confLev, CConfLev::Level99);
    EXPECT_EQ(Options().tolProp, CConfLev::Level90);
}

TEST_F(ContourSheetTest, EditsTheOptionsOfADesignSpace) {
    MakePlot(4, false);
    desktop.user = [](CPropertySheet& sheet) {
        EXPECT_TRUE(sheet.UserSelectPage(3));
        EXPECT_TRUE(sheet.GetActivePage()->Item<CComboBox>(6046)->UserEdit(L"200"));
        EXPECT_TRUE(sheet.UserOk());
    };
    EXPECT_TRUE(Run());
    EXPECT_EQ(Options().resolution, 200);
    EXPECT_EQ(Profile("ProbabilityResolution"), 200);
}

// The constants.

class ContourSheetConstants : public ContourSheetTest,
                              public testing::WithParamInterface<std::tuple<int, bool>> {
protected:
    void MakeRow() { MakePlot(std::get<0>(GetParam()), std::get<1>(GetParam())); }
    static VWSConstantInterface& GridOf(CPropertySheet& sheet) {
        if (auto* page = dynamic_cast<Contour2DAxisPage*>(sheet.GetPage(1))) {
            EXPECT_TRUE(sheet.UserSelectPage(1));
            return page->Grid();
        }
        EXPECT_TRUE(sheet.UserSelectPage(1));
        EXPECT_TRUE(sheet.UserSelectPage(2));
        return ConstantsOf(sheet).Grid();
    }
    static int RowOf(const VWSConstantInterface& grid, const std::string& name) {
        const Names rows = RowsOf(grid);
        return 1 + static_cast<int>(std::find(rows.begin(), rows.end(), name) - rows.begin());
    }
};

TEST_P(ContourSheetConstants, AreThoseOfTheCaller) {
    MakeRow();
    std::vector<FactorConstants::Constant> own(16);
    FactorConstants::CopyConstantVector(own.data(), Data().GetPlotConstants());
    const std::string before = DescribeConstants(Data().GetPlotConstants());
    own[static_cast<std::size_t>(FactorConstants::Lookup(own.data(), "P4"))].FloatValue(6.5);
    desktop.user = [](CPropertySheet& sheet) {
        VWSConstantInterface& grid = GridOf(sheet);
        EXPECT_EQ(grid.GetCellText(2, RowOf(grid, "P4")), "6.5");
        EXPECT_TRUE(grid.UserChangedData(2, RowOf(grid, "P4"), "7.25"));
        EXPECT_TRUE(sheet.UserOk());
    };
    EXPECT_TRUE(ShowContourSheet(nullptr, Data(), &study, own.data(), nullptr, false));
    EXPECT_EQ(own[static_cast<std::size_t>(FactorConstants::Lookup(own.data(), "P4"))].FloatValue(),
              7.25);
    EXPECT_EQ(DescribeConstants(Data().GetPlotConstants()), before);
}

TEST_P(ContourSheetConstants, LeaveOutWhatLiesOnAnAxisAndWhatNoModelUses) {
    MakeRow();
    study.unavailable = {"P4"};
    const bool process = !std::get<1>(GetParam());
    Look([&](CPropertySheet& sheet) {
        const Names rows = RowsOf(GridOf(sheet));
        EXPECT_THAT(rows, testing::Contains(process ? "M1" : "P2"));
        EXPECT_THAT(rows, Not(testing::Contains(process ? "P1" : "M1")));
        EXPECT_THAT(rows, Not(testing::Contains(process ? "P2" : "M2")));
        EXPECT_THAT(rows, Not(testing::Contains("P4")));
    });
    // A response from outside the study: its model is not known.
    study.ExtraResponse("Elsewhere", ResponseEx::External);
    MakeRow();
    Look(
        [](CPropertySheet& sheet) { EXPECT_THAT(RowsOf(GridOf(sheet)), testing::Contains("P4")); });
}

INSTANTIATE_TEST_SUITE_P(Types, ContourSheetConstants,
                         testing::Combine(testing::Values(0, 1, 2, 3, 4), testing::Bool()));

TEST_F(ContourSheetTest, AsksTheAxisPageForTheConstantsAgainWhenTheirPageComesUp) {
    for (const bool mixture : {false, true}) {
        MakePlot(1, mixture);
        Look([&](CPropertySheet& sheet) {
            EXPECT_TRUE(sheet.UserSelectPage(1));
            EXPECT_TRUE(sheet.UserSelectPage(2));
            EXPECT_THAT(RowsOf(ConstantsOf(sheet).Grid()), testing::Contains("P4"));
            EXPECT_TRUE(sheet.UserSelectPage(1));
            EXPECT_TRUE(RowProbe(*sheet.GetPage(1), mixture ? 4 : 1).Pick("P4"));
            EXPECT_TRUE(sheet.UserSelectPage(2));
            const Names rows = RowsOf(ConstantsOf(sheet).Grid());
            EXPECT_EQ(std::count(rows.begin(), rows.end(), "P1"), 1);
            EXPECT_EQ(ConstantsOf(sheet).OnWizardBack(), mixture ? 6169 : 6161);
        });
    }
}

struct ReadOnlyRow {
    bool isDSProbability;
    bool fromDesignSpace;
    bool process;  ///< whether the constants of a process plot can only be read
    bool mixture;
};

TEST_F(ContourSheetTest, LetsTheConstantsOfADesignSpaceBeReadAlone) {
    // A sheet of a mixture plot does not ask whether it is a design space plot.
    const ReadOnlyRow rows[] = {{false, false, false, false},
                                {true, false, false, false},
                                {false, true, false, true},
                                {true, true, true, true}};
    for (const ReadOnlyRow& row : rows) {
        for (const bool mixture : {false, true}) {
            MakeData(row.isDSProbability, false, row.fromDesignSpace);
            SetType(1, mixture);
            Look([&](const CPropertySheet& sheet) {
                EXPECT_EQ(ConstantsOf(sheet).Grid().IsReadOnly(),
                          mixture ? row.mixture : row.process)
                    << row.isDSProbability << row.fromDesignSpace << mixture;
            });
        }
    }
}

TEST_F(ContourSheetTest, LetsTheConstantsOnTheAxisPagesAlwaysBeChanged) {
    for (const bool mixture : {false, true}) {
        MakeData(false, false, true);
        SetType(0, mixture);
        Look([](const CPropertySheet& sheet) {
            EXPECT_FALSE(dynamic_cast<Contour2DAxisPage&>(*sheet.GetPage(1)).Grid().IsReadOnly());
        });
    }
}

// The result, and what is written.

TEST_F(ContourSheetTest, IsTrueOnlyWhenItIsConfirmed) {
    MakePlot(0, false);
    Confirm();
    EXPECT_TRUE(Run());
    for (const int result : {kResultCancel + 0, kResultFinish + 0, kResultCancelRequested + 0}) {
        desktop.user = [result](CPropertySheet& sheet) { sheet.EndDialog(result); };
        EXPECT_FALSE(Run(true)) << result;
        EXPECT_THAT(Changes(files.Log()), IsEmpty());
    }
}

class ContourSheetSettings : public ContourSheetTest,
                             public testing::WithParamInterface<SettingsRow> {
protected:
    SectionLog WrittenBySheet(bool writeSettings) {
        MakePlot(GetParam().type, GetParam().mixture);
        PageData().SetResponses({"Y2", "Y4"});
        Confirm();
        EXPECT_TRUE(Run(writeSettings));
        return Changes(files.Log());
    }
};

TEST_P(ContourSheetSettings, AreOptionsThenTheSelectionThenThePlot) {
    const SectionLog written = WrittenBySheet(true);
    files.Log().clear();
    PageData().SaveSettings(std::string(kIniFile));
    study.SetSelectedResponses({"Y2", "Y4"});
    if (GetParam().same) {
        GetParam().same(Data());
    }
    EXPECT_EQ(written, Changes(files.Log()));
    EXPECT_THAT(written, testing::Contains("study selects Y2;Y4"));
}

TEST_P(ContourSheetSettings, AreNoneWhenTheHostWantsNone) {
    EXPECT_THAT(WrittenBySheet(false), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Types, ContourSheetSettings, KnownTypes(),
                         testing::PrintToStringParamName());
INSTANTIATE_TEST_SUITE_P(UnknownType, ContourSheetSettings,
                         testing::Values(SettingsRow{"Process", 9, false, nullptr},
                                         SettingsRow{"Mixture", 9, true, nullptr}),
                         testing::PrintToStringParamName());

TEST_F(ContourSheetTest, WritesTheOptionsToTheFileOfTheStudy) {
    MakePlot(0, false);
    study.iniFileName = "other.ini";
    PageData().SetUseColor(false);
    Confirm();
    EXPECT_TRUE(Run(true));
    IniFileSection& file = files.File("other.ini");
    file.SetSection("ContourPlot");
    bool useColor = true;
    EXPECT_TRUE(file.ReadKey("UseColor", useColor));
    EXPECT_FALSE(useColor);
    EXPECT_FALSE(file.HasSection("ContourAxis2D", true));
    EXPECT_TRUE(files.File(kIniFile).HasSection("ContourAxis2D", true));
}

TEST_F(ContourSheetTest, TellsTheStudyThatItWasGivenAndNotOnlyTheActiveOne) {
    MakePlot(0, false);
    PageData().SetResponses({"Y3"});
    Confirm();
    EXPECT_TRUE(Run(true));
    Names selected;
    study.GetSelectedResponses(selected, SelectResponseBase::Extended);
    EXPECT_THAT(selected, ElementsAre("Y3"));
}

TEST_F(ContourSheetTest, WritesNothingWhenItIsCancelled) {
    MakePlot(0, false);
    const std::string before = Describe(Data());
    desktop.user = [](CPropertySheet& sheet) {
        EXPECT_TRUE(sheet.UserSelectPage(2));
        EXPECT_TRUE(sheet.GetActivePage()->Item<CButton>(6022)->UserClick());
        EXPECT_TRUE(sheet.UserCancel());
    };
    EXPECT_FALSE(Run(true));
    EXPECT_THAT(Changes(files.Log()), IsEmpty());
    EXPECT_EQ(Describe(Data()), before);
}

// An abandoned plot.

/// A host that abandons the plot as it is updated.
class AbandoningHelper : public ConnectedHelper {
public:
    bool Update() override { throw CancelException(); }
};

class AbandonedContourSheet : public ContourSheetTest, public testing::WithParamInterface<bool> {
protected:
    /// OK or Apply, once a page has been changed.
    void Press(CPropertySheet& sheet) {
        EXPECT_TRUE(GetParam() ? sheet.UserApply() : sheet.UserOk());
        EXPECT_TRUE(sheet.HasEnded());
    }
    void ExpectAbandoned(BasePropertyPageHelper& helper) {
        EXPECT_THROW(Run(true, &helper), CancelException);
        EXPECT_THAT(WrittenKeys(files.Log()), IsEmpty());
        EXPECT_EQ(desktop.log.Lines().back(), "end 5");
    }
};

TEST_P(AbandonedContourSheet, LeavesByTheExceptionOfTheHostWithNothingWritten) {
    MakePlot(0, false);
    AbandoningHelper helper;
    desktop.user = [this](CPropertySheet& sheet) {
        EXPECT_TRUE(sheet.UserSelectPage(2));
        EXPECT_TRUE(sheet.GetActivePage()->Item<CButton>(6022)->UserClick());
        Press(sheet);
    };
    ExpectAbandoned(helper);
    EXPECT_THAT(files.Log(), Not(testing::Contains(testing::StartsWith("study selects"))));
}

TEST_P(AbandonedContourSheet, LeavesByTheExceptionOfAPageThatApplies) {
    MakePlot(0, false);
    // The page of the responses tells the active study as it applies.
    Investigation::SetActiveInvestigation(&study);
    study.onSelected = [] { throw CancelException(); };
    ConnectedHelper helper;
    desktop.user = [this](CPropertySheet& sheet) {
        EXPECT_TRUE(sheet.GetActivePage()->Item<CListBox>(6078)->UserDoubleClick(0));
        Press(sheet);
    };
    ExpectAbandoned(helper);
    EXPECT_EQ(helper.updates, 0);
}

INSTANTIATE_TEST_SUITE_P(Buttons, AbandonedContourSheet, testing::Bool(),
                         [](const auto& row) { return row.param ? "Apply" : "Ok"; });

TEST_F(ContourSheetTest, LeavesByAnExceptionThatIsThrownOutsideOfApplying) {
    MakePlot(0, false);
    desktop.user = [](CPropertySheet&) { throw CancelException(); };
    EXPECT_THROW(Run(true), CancelException);
    EXPECT_THAT(WrittenKeys(files.Log()), IsEmpty());
    EXPECT_EQ(desktop.log.Lines().back(), "end by exception");
}

// What cannot be.

TEST_F(ContourSheetTest, RefusesToWriteTheSettingsOfACopyBeforeAnythingIsShown) {
    MakePlot(0, false);
    ContourPlotData copy(Data());
    desktop.log.Clear();
    Confirm();
    EXPECT_THROW(ShowContourSheet(nullptr, copy, &study, copy.GetPlotConstants(), nullptr, true),
                 InvalidArgument);
    EXPECT_THAT(desktop.log.Lines(), IsEmpty());
    EXPECT_TRUE(ShowContourSheet(nullptr, copy, &study, copy.GetPlotConstants(), nullptr, false));
}

TEST_F(ContourSheetTest, RefusesToRunWithoutConstants) {
    MakePlot(0, false);
    EXPECT_THROW(ShowContourSheet(nullptr, Data(), &study, nullptr, nullptr, false),
                 InvalidArgument);
    EXPECT_THAT(desktop.log.Lines(), IsEmpty());
}

}  // namespace
}  // namespace kvopt::test
