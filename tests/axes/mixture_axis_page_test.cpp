#include "kvopt/axes/mixture_axis_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <ostream>
#include <string>
#include <vector>

#include "axes/axes_study.h"
#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "kvopt/constants/vws_constant_interface.h"

namespace kvopt::test {
namespace {

using Texts = std::vector<std::string>;

const char* const kLowTooHigh =
    "The sum of the low settings for the axes must be decreased to give a valid region for the "
    "plot. Alternatively the sum of the constant settings may be reduced to get a valid region to "
    "plot.";
const char* const kHighTooLow =
    "The sum of the high settings for the axes must be increased to give a valid region for the "
    "plot. Alternatively the sum of the constant settings may be increased to get a valid region "
    "to plot.";

/// A, B and C lie on the axes from 0 to 0.5, D and E in the grid with 0.125 each; T is a process
/// factor, R the filler.
class MixtureAxisPageTest : public testing::Test {
protected:
    MixtureAxisPageTest() {
        study.Number("T", 0, 100);
        for (const char* name : {"A", "B", "C", "D", "E"}) {
            study.Part(name);
            study.references[name] = 0.25;
        }
        study.Add("R", CEType::Filler);
        study.usedFactors = 6;
        constants[0] = {"D", 0.125, FactorConstants::CUSTOM};
        constants[1] = {"E", 0.125, FactorConstants::CUSTOM};
        constants[2] = {"T", 50, FactorConstants::REF};
    }

    Contour2DAxisPage::Arguments Arguments(bool finishOnly = false) {
        Contour2DAxisPage::Arguments arguments;
        arguments.axes = &axes;
        arguments.numAxes = 3;
        arguments.backPage = 6158;
        arguments.defaults = &defaults;
        arguments.numDefaults = 3;
        arguments.constants = constants.data();
        arguments.finishOnly = finishOnly;
        return arguments;
    }

    class Page : public MixtureAxisPage {
    public:
        explicit Page(MixtureAxisPageTest& test, BasePropertyPageHelper* helper = nullptr,
                      bool finishOnly = false)
            : MixtureAxisPage(&test.study, test.Arguments(finishOnly), helper, 1) {}

        RowProbe Row(int axis) const { return {*this, axis}; }
        void Range(int axis, const wchar_t* low, const wchar_t* high) const {
            Row(axis).low.UserEdit(low);
            Row(axis).high.UserEdit(high);
        }
        void Constant(const std::string& name, const char* text) const {
            for (int row = 1; row <= Grid().RowCount(); ++row) {
                if (Grid().GetCellText(1, row) == name) {
                    Grid().UpdateValue(2, row, text);
                }
            }
        }
    };

    std::unique_ptr<Page> Shown(BasePropertyPageHelper* helper = nullptr) {
        auto page = std::make_unique<Page>(*this, helper);
        page->Create();
        page->OnSetActive();
        return page;
    }

    double Stored(const std::string& name) {
        const int index = FactorConstants::Lookup(constants.data(), name);
        return index < 0 ? kNotSet : constants[static_cast<std::size_t>(index)].FloatValue();
    }

    AxesStudy study;
    AxisVector axes = MakeAxes({{"A", 0, 0.5F}, {"B", 0, 0.5F}, {"C", 0, 0.5F}});
    AxisVector defaults = MakeAxes({{"A", 0, 1}, {"B", 0, 1}, {"C", 0, 1}});
    std::array<FactorConstants::Constant, 9> constants;
    SheetDesktop desktop;
};

TEST_F(MixtureAxisPageTest, HasItsOwnTemplateAndOffersFormulationFactorsAlone) {
    const auto page = Shown();
    EXPECT_EQ(page->TemplateNumber(), 6168);
    for (int axis = 1; axis <= 3; ++axis) {
        EXPECT_EQ(page->Row(axis).Entries(), (Texts{"A", "B", "C", "D", "E"}));
    }
    study.unavailable = {"E"};
    EXPECT_EQ(Shown()->Row(1).Entries(), (Texts{"A", "B", "C", "D"}));
    study.ExtraResponse("Outside", ResponseEx::External);
    EXPECT_EQ(Shown()->Row(1).Entries(), (Texts{"A", "B", "C", "D", "E"}));
}

// The sums.

struct SumRow {
    const char* what;
    std::vector<std::pair<const wchar_t*, const wchar_t*>> ranges;
    const char* d;
    const char* e;
    const char* message;  ///< empty when the region is legal
};

void PrintTo(const SumRow& row, std::ostream* out) {
    *out << row.what;
}

class MixtureSums : public MixtureAxisPageTest, public testing::WithParamInterface<SumRow> {};

TEST_P(MixtureSums, LeaveARegionOrTellWhichSumIsWrong) {
    const auto page = Shown();
    for (int axis = 1; axis <= 3; ++axis) {
        const auto& range = GetParam().ranges[static_cast<std::size_t>(axis - 1)];
        page->Range(axis, range.first, range.second);
    }
    page->Constant("D", GetParam().d);
    page->Constant("E", GetParam().e);
    const std::string message = GetParam().message;
    EXPECT_EQ(page->HasLegalMixtureSettings(), message.empty());
    if (message.empty()) {
        EXPECT_TRUE(desktop.boxes.empty());
    } else {
        EXPECT_EQ(desktop.boxes, (std::vector<SheetDesktop::Box>{{message, "", 16}}));
    }
}

const std::vector<std::pair<const wchar_t*, const wchar_t*>> kHalves(3, {L"0", L"0.5"});

INSTANTIATE_TEST_SUITE_P(
    Rows, MixtureSums,
    testing::Values(SumRow{"a region", kHalves, "0.125", "0.125", ""},
                    SumRow{"low sum just below the total",
                           {{L"0.25", L"0.5"}, {L"0.25", L"0.5"}, {L"0.249", L"0.5"}},
                           "0.125",
                           "0.125",
                           ""},
                    SumRow{"low sum equal to the total",
                           {{L"0.25", L"0.5"}, {L"0.25", L"0.5"}, {L"0.25", L"0.5"}},
                           "0.125",
                           "0.125",
                           kLowTooHigh},
                    SumRow{"low sum above the total", kHalves, "0.5", "0.75", kLowTooHigh},
                    SumRow{"high sum equal to the total",
                           {{L"0", L"0.25"}, {L"0", L"0.25"}, {L"0", L"0.25"}},
                           "0.125",
                           "0.125",
                           kHighTooLow},
                    SumRow{"high sum below the total",
                           {{L"0", L"0.1"}, {L"0", L"0.1"}, {L"0", L"0.1"}},
                           "0.125",
                           "0.125",
                           kHighTooLow},
                    SumRow{"both equal to the total: the low sum is told",
                           {{L"0.25", L"0.25"}, {L"0.25", L"0.25"}, {L"0.25", L"0.25"}},
                           "0.125",
                           "0.125",
                           kLowTooHigh},
                    SumRow{"an empty cell counts the reference",
                           {{L"0", L"0.25"}, {L"0", L"0.25"}, {L"0", L"0.25"}},
                           "",
                           "0.125",
                           ""},
                    SumRow{"a high setting that is no number counts -99",
                           {{L"0", L"x"}, {L"0", L"0.5"}, {L"0", L"0.5"}},
                           "0.125",
                           "0.125",
                           kHighTooLow},
                    SumRow{"a low setting that is no number counts -99",
                           {{L"x", L"0.5"}, {L"0.5", L"0.6"}, {L"0.5", L"0.6"}},
                           "0.125",
                           "0.125",
                           ""},
                    SumRow{"a constant that only a float takes for 1",
                           {{L"0", L"0.5"}, {L"0", L"0.5"}, {L"0", L"0.5"}},
                           "0.9999999999",
                           "0",
                           ""},
                    SumRow{"a constant that is no number counts -99", kHalves, "much", "0.125",
                           kHighTooLow}));

TEST_F(MixtureAxisPageTest, ComparesWithTheTotalOfTheStudy) {
    study.mixtureTotal = 100;
    const auto page = Shown();
    EXPECT_FALSE(page->HasLegalMixtureSettings());
    page->Range(1, L"10", L"60");
    page->Range(2, L"10", L"60");
    EXPECT_TRUE(page->HasLegalMixtureSettings());
}

TEST_F(MixtureAxisPageTest, TakesTheRegulatedReferenceInPseudoComponentsForAnEmptyCell) {
    study.references["D"] = 0.5;
    study.pseudoScale = 3;
    const auto page = Shown();
    page->Constant("D", "");
    study.mixtureQuestions.clear();
    EXPECT_FALSE(page->HasLegalMixtureSettings()) << "three halves and 0.125 are too much";
    EXPECT_EQ(study.mixtureQuestions, (Texts{"reference D '' not set plain", "pseudo D from"}));
    EXPECT_EQ(desktop.boxes[0].text, kLowTooHigh);
}

TEST_F(MixtureAxisPageTest, StartsEachFactorWithAnEmptyText) {
    // D has no row of its own, so that nothing of a factor before it may remain.
    axes[3]->SetName("E");
    const auto page = Shown();
    page->Constant("C", "0.9");
    page->Constant("D", "");
    study.mixtureQuestions.clear();
    page->HasLegalMixtureSettings();
    EXPECT_EQ(study.mixtureQuestions, (Texts{"reference D '' not set plain", "pseudo D from"}));
}

TEST_F(MixtureAxisPageTest, CountsDesignFactorsThatArePartsAlone) {
    study.Add("Seen", CEType::Formulation, CEUse::Uncontrolled);
    const auto page = Shown();
    study.mixtureQuestions.clear();
    EXPECT_TRUE(page->HasLegalMixtureSettings());
    EXPECT_TRUE(study.mixtureQuestions.empty());
}

TEST_F(MixtureAxisPageTest, CountsNoBlockEntry) {
    study.Add(kBlockFactorName, CEType::Formulation, CEUse::Uncontrolled);
    const auto page = Shown();
    study.mixtureQuestions.clear();
    EXPECT_TRUE(page->HasLegalMixtureSettings());
    EXPECT_TRUE(study.mixtureQuestions.empty());
}

TEST_F(MixtureAxisPageTest, AnswersFromTheAxesWithoutAWindow) {
    const Page page(*this);
    EXPECT_TRUE(page.HasLegalMixtureSettings()) << "the empty grid counts two references of 0.25";
    axes[1]->SetRange(0.5F, 0.6F);
    EXPECT_FALSE(page.HasLegalMixtureSettings());
    EXPECT_EQ(desktop.boxes[0].text, kLowTooHigh);
}

// In a sheet and in a wizard.

class MixtureInSheetTest : public MixtureAxisPageTest {
protected:
    /// A page of another template before the mixture page.
    class Before : public KvPropertyPage {
    public:
        Before() : KvPropertyPage(6152, 0, nullptr, 1) {}
    };

    void Run(MixtureAxisPage& page, bool wizard, std::function<void()> user) {
        KvPropertySheet made(L"Contour Plot", nullptr, 0);
        sheet = &made;
        Before before;
        made.AddPage(&before);
        made.AddPage(&page);
        if (wizard) {
            made.SetWizardMode();
        }
        made.SetActivePage(&page);
        desktop.user = [user = std::move(user)](CPropertySheet&) { user(); };
        result = made.DoModal();
    }

    KvPropertySheet* sheet = nullptr;
    int result = 0;
};

TEST_F(MixtureInSheetTest, TurnsOnBackAndFinish) {
    Page page(*this);
    Run(page, true, [&] { EXPECT_EQ(sheet->WizardButtons(), 5U); });
}

TEST_F(MixtureInSheetTest, TurnsOnFinishAloneWhenThereIsNoWayBack) {
    Page page(*this, nullptr, true);
    Run(page, true, [&] { EXPECT_EQ(sheet->WizardButtons(), 4U); });
    const Texts& lines = desktop.log.Lines();
    const auto inherited = std::find(lines.begin(), lines.end(), "buttons back finish");
    ASSERT_NE(inherited, lines.end());
    EXPECT_EQ(*(inherited + 1), "buttons finish") << "the last call wins";
}

TEST_F(MixtureInSheetTest, TurnsOnNoButtonsInASheet) {
    Page page(*this, nullptr, true);
    Run(page, false, [&] { EXPECT_EQ(sheet->WizardButtons(), 0U); });
}

TEST_F(MixtureInSheetTest, DoesNotLetTheWizardLeaveAMixtureWithoutARegion) {
    Page page(*this);
    Run(page, true, [&] {
        page.Range(1, L"0.75", L"0.8");
        EXPECT_FALSE(page.OnKillActive());
        EXPECT_EQ(desktop.boxes,
                  (std::vector<SheetDesktop::Box>{{kLowTooHigh, "Contour Plot", 16}}));
        page.Range(1, L"0", L"0.5");
        EXPECT_TRUE(page.OnKillActive());
    });
}

TEST_F(MixtureInSheetTest, LetsASheetLeaveAMixtureWithoutARegion) {
    Page page(*this);
    Run(page, false, [&] {
        page.Range(1, L"0.75", L"0.8");
        EXPECT_TRUE(page.OnKillActive());
    });
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(MixtureAxisPageTest, LetsAFreePageGo) {
    const auto page = Shown();
    page->Range(1, L"0.75", L"0.8");
    EXPECT_TRUE(page->OnKillActive());
}

TEST_F(MixtureInSheetTest, DoesNotJudgeTheAxesWhenItIsLeft) {
    Page page(*this);
    Run(page, true, [&] {
        page.Range(1, L"x", L"0.8");
        EXPECT_TRUE(page.OnKillActive());
    });
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(MixtureInSheetTest, KeepsWhatFinishStoredWhenTheSumsThenRefuse) {
    Page page(*this);
    Run(page, true, [&] {
        page.Range(1, L"0.75", L"0.8");
        page.Constant("T", "60");
        sheet->UserFinish();
        EXPECT_FALSE(sheet->HasEnded());
    });
    EXPECT_EQ(result, kResultCancel);
    EXPECT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].text, kLowTooHigh);
    EXPECT_EQ(axes[1]->GetMin(), 0.75F);
    EXPECT_EQ(Stored("T"), 60.0);
}

TEST_F(MixtureAxisPageTest, FinishesWithoutTestingTheSums) {
    const auto page = Shown();
    page->Range(1, L"0.75", L"0.8");
    EXPECT_TRUE(page->OnWizardFinish());
    EXPECT_TRUE(desktop.boxes.empty());
}

// Apply.

TEST_F(MixtureAxisPageTest, AppliesGridThenSumsThenAxes) {
    study.unusualSettings = {"A=0.25"};
    const auto page = Shown();
    page->Range(1, L"0.25", L"0.5");
    page->Constant("T", "200");
    desktop.answers = {BoxAnswer::Yes, BoxAnswer::Yes};
    EXPECT_TRUE(page->OnApply());
    ASSERT_EQ(desktop.boxes.size(), 2U);
    EXPECT_EQ(desktop.boxes[0].style, 68U);
    EXPECT_EQ(desktop.boxes[1].style, 52U);
    EXPECT_EQ(Stored("T"), 200.0);
    EXPECT_EQ(axes[1]->GetMin(), 0.25F);
}

TEST_F(MixtureAxisPageTest, StopsAtAGridThatTheUserDoesNotKeep) {
    const auto page = Shown();
    page->Range(1, L"0.75", L"0.8");
    page->Constant("T", "200");
    EXPECT_FALSE(page->OnApply());
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].style, 68U) << "the grid is asked about before the sums";
    EXPECT_EQ(Stored("T"), 50.0);
}

TEST_F(MixtureAxisPageTest, StopsAtSumsWithoutARegionBeforeItSaves) {
    const auto page = Shown();
    page->Range(1, L"0.75", L"0.8");
    page->Constant("T", "60");
    EXPECT_FALSE(page->OnApply());
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].text, kLowTooHigh);
    EXPECT_EQ(Stored("T"), 50.0);
    EXPECT_EQ(axes[1]->GetMin(), 0.0F);
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(MixtureAxisPageTest, SavesTheGridBeforeTheAxesRefuse) {
    const auto page = Shown();
    page->Range(1, L"0.25", L"0.25");
    page->Range(2, L"0", L"0.75");
    page->Constant("T", "60");
    EXPECT_FALSE(page->OnApply());
    EXPECT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(Stored("T"), 60.0);
    EXPECT_EQ(axes[1]->GetMin(), 0.0F);
}

TEST_F(MixtureAxisPageTest, AppliesACleanPageWithoutAnyCheck) {
    axes[1]->SetRange(0.75F, 0.1F);
    const auto page = Shown();
    EXPECT_TRUE(page->OnApply());
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(MixtureAxisPageTest, DoesNotTakeOverAnOpenCellOnApply) {
    const auto page = Shown();
    auto& worksheet = *page->Item<VirtualWorksheet>(6139);
    ASSERT_TRUE(worksheet.UserBeginEdit({2, 1}));
    ASSERT_TRUE(worksheet.UserEdit("60"));
    page->Changed();
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(Stored("T"), 50.0);
    EXPECT_TRUE(worksheet.EditedCell().has_value());
}

TEST_F(MixtureAxisPageTest, DoesNotKeepTheGridsParent) {
    const auto page = Shown();
    page->Changed();
    EXPECT_TRUE(page->OnApply()) << "without a helper it reaches OnOK";
    EXPECT_EQ(page->Grid().GetParent(), nullptr);
    ConnectedHelper helper;
    const auto helped = Shown(&helper);
    helped->Changed();
    EXPECT_TRUE(helped->OnApply());
    EXPECT_EQ(helped->Grid().GetParent(), helped.get());
}

TEST_F(MixtureAxisPageTest, KnowsTheNamesOfItsAxesOnceItIsBroughtUp) {
    const auto page = Shown();
    page->Constant("T", "60");
    for (int axis = 1; axis <= 3; ++axis) {
        page->OnChangeAxis(axis);
    }
    EXPECT_EQ(Stored("T"), 50.0) << "nothing changed, so nothing is saved";
}

TEST_F(MixtureAxisPageTest, RunsTheDataExchangeWhenItIsLeft) {
    class Exchanging : public Page {
    public:
        using Page::Page;
        int saves = 0;

    protected:
        void DoDataExchange(CDataExchange& exchange) override { saves += exchange.save ? 1 : 0; }
    };
    Exchanging page(*this);
    page.Create();
    EXPECT_TRUE(page.OnKillActive());
    EXPECT_EQ(page.saves, 1);
}

TEST_F(MixtureAxisPageTest, KeepsTypedConstantsWhenAPartLeavesItsAxis) {
    const auto page = Shown();
    page->Constant("D", "0.2");
    page->Row(3).Pick("D");
    page->Row(3).Pick("C");
    EXPECT_EQ(Stored("D"), 0.2F);
}

}  // namespace
}  // namespace kvopt::test
