#include "kvopt/axes/fill_box.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

#include "axes/axes_study.h"
#include "kvopt/axes/axis_type.h"
#include "kvopt/platform.h"
#include "kvopt/text.h"

namespace kvopt::test {
namespace {

using Texts = std::vector<std::string>;

class FillBoxTest : public testing::Test {
protected:
    FillBoxTest() {
        study.Number("Zeta", 0, 1);
        study.Number("alpha", 0, 1);
        study.Add("$BlockV", CEType::Qualitative);
        study.Number("Alphabet", 0, 1);
        study.Names("$BlockV ");
        study.Response("Yield");
        study.Response("Cost");
        study.ExtraResponse("Wish", ResponseEx::Combined);
    }

    CComboBox& List() {
        if (!dialog_.HasWindow()) {
            dialog_.Create();
        }
        return *dialog_.Item<CComboBox>(6036);
    }
    Texts Entries() {
        Texts entries;
        for (int i = 0; i < List().GetCount(); ++i) {
            entries.push_back(KvStdString::ToUtf8(List().GetItemText(i)));
        }
        return entries;
    }
    FillBox Box(int type = 0) { return {&study, static_cast<FillBox::ResponseType>(type)}; }

    AxesStudy study;

private:
    CDialog dialog_{6152, nullptr};
};

const Texts kAll{"Zeta", "alpha", "$BlockV", "Alphabet", "$BlockV "};

TEST_F(FillBoxTest, KeepsTheOrderOfTheStudy) {
    EXPECT_TRUE(Box().FillFactorCLB(&List(), nullptr));
    EXPECT_EQ(Entries(), kAll);
    EXPECT_EQ(List().GetCurSel(), 0);
}

TEST_F(FillBoxTest, AsksTheModelsWithoutAFilter) {
    study.unavailable = {"Zeta"};
    EXPECT_TRUE(Box().FillFactorCLB(&List(), nullptr, nullptr, false));
    EXPECT_EQ(Entries(), (Texts{"alpha", "$BlockV", "Alphabet", "$BlockV "}));
    EXPECT_EQ(study.questions.front(), (FactorQuestion{"Zeta", true, false}));
}

TEST_F(FillBoxTest, AsksAFilterInsteadOfTheModels) {
    study.unavailable = {"Zeta"};
    const AxisType::AddNonQualitativeFactor filter(study.GetVariables(), nullptr);
    EXPECT_TRUE(Box().FillFactorCLB(&List(), &filter, nullptr, false));
    EXPECT_EQ(Entries(), (Texts{"Zeta", "alpha", "Alphabet"}));
}

TEST_F(FillBoxTest, HandsTheFilterTrue) {
    class OnlyTrue : public UseFactor {
    public:
        OnlyTrue() : UseFactor(nullptr) {}
        bool operator()(const FactorClass*, bool flag) const override { return flag; }
    };
    const OnlyTrue filter;
    EXPECT_TRUE(Box().FillFactorCLB(&List(), &filter, nullptr, false));
}

TEST_F(FillBoxTest, DropsExactlyTheBlockEntryWhenAsked) {
    EXPECT_TRUE(Box().FillFactorCLB(&List(), nullptr, nullptr, true));
    EXPECT_EQ(Entries(), (Texts{"Zeta", "alpha", "Alphabet", "$BlockV "}));
}

TEST_F(FillBoxTest, ReplacesWhatTheListHeld) {
    List().AddString(L"old");
    List().SetCurSel(0);
    EXPECT_TRUE(Box().FillFactorCLB(&List(), nullptr));
    EXPECT_EQ(Entries(), kAll);
}

TEST_F(FillBoxTest, SelectsTheFirstEntryThatBeginsWithTheText) {
    Box().FillFactorCLB(&List(), L"ALPHA");
    EXPECT_EQ(List().GetCurSel(), 1);
    Box().FillFactorCLB(&List(), nullptr, L"Alphab", false);
    EXPECT_EQ(List().GetCurSel(), 3);
    Box().FillFactorCLB(&List(), L"Z");
    EXPECT_EQ(List().GetCurSel(), 0);
}

TEST_F(FillBoxTest, BeginsItsSearchWithTheTopEntry) {
    study.Number("Zeta2", 0, 1);
    Box().FillFactorCLB(&List(), L"zeta");
    EXPECT_EQ(List().GetCurSel(), 0);
}

TEST_F(FillBoxTest, SelectsTheFirstEntryWhenTheTextIsNotThere) {
    Box().FillFactorCLB(&List(), L"beta");
    EXPECT_EQ(List().GetCurSel(), 0);
}

TEST_F(FillBoxTest, LeavesAnEmptyListWhenNothingPasses) {
    study.unavailable.insert(kAll.begin(), kAll.end());
    List().AddString(L"old");
    EXPECT_FALSE(Box().FillFactorCLB(&List(), L"alpha"));
    EXPECT_EQ(List().GetCount(), 0);
    EXPECT_EQ(List().GetCurSel(), -1);
}

TEST_F(FillBoxTest, TellsTheViewsOnceWhenTheListIsWhole) {
    class View : public WindowListener {
    public:
        void OnWindowChanged(CWnd& window, WindowChange change) override {
            if (change == WindowChange::Items) {
                counts.push_back(dynamic_cast<CComboBox&>(window).GetCount());
            }
        }
        void OnWindowGone(CWnd&) override {}
        std::vector<int> counts;
    } view;
    List().AddListener(&view);
    Box().FillFactorCLB(&List(), nullptr);
    EXPECT_EQ(view.counts, (std::vector<int>{5}));
    List().RemoveListener(&view);
}

struct ResponseRow {
    int type;
    Texts inList;
    Texts inVector;
};

void PrintTo(const ResponseRow& row, std::ostream* out) {
    *out << "type " << row.type;
}

class FillBoxResponses : public FillBoxTest, public testing::WithParamInterface<ResponseRow> {};

TEST_P(FillBoxResponses, ComeFromTheVariablesOrTheManager) {
    EXPECT_TRUE(Box(GetParam().type).FillResponseCLB(&List(), nullptr));
    EXPECT_EQ(Entries(), GetParam().inList);
    Texts names{"old"};
    EXPECT_TRUE(Box(GetParam().type).FillResponse(names));
    EXPECT_EQ(names, GetParam().inVector);
}

const Texts kVariables{"Yield", "Cost"};
const Texts kManager{"Yield", "Cost", "Wish"};

INSTANTIATE_TEST_SUITE_P(Types, FillBoxResponses,
                         testing::Values(ResponseRow{0, kVariables, kVariables},
                                         ResponseRow{1, kManager, kManager},
                                         // Here the two tests differ.
                                         ResponseRow{2, kManager, kVariables},
                                         ResponseRow{-1, kManager, kVariables}));

TEST_F(FillBoxTest, KeepsOnlyAvailableResponses) {
    study.unavailable = {"Yield", "Wish"};
    for (const int type : {0, 1}) {
        Texts names;
        EXPECT_TRUE(Box(type).FillResponse(names));
        EXPECT_EQ(names, (Texts{"Cost"}));
        Box(type).FillResponseCLB(&List(), nullptr);
        EXPECT_EQ(Entries(), (Texts{"Cost"}));
    }
}

TEST_F(FillBoxTest, SelectsAResponseAsItSelectsAFactor) {
    EXPECT_TRUE(Box(1).FillResponseCLB(&List(), L"wi"));
    EXPECT_EQ(List().GetCurSel(), 2);
    EXPECT_TRUE(Box(1).FillResponseCLB(&List(), L"?"));
    EXPECT_EQ(List().GetCurSel(), 0);
}

TEST_F(FillBoxTest, TellsWhenThereIsNoResponse) {
    study.unavailable = {"Yield", "Cost", "Wish"};
    Texts names{"old"};
    EXPECT_FALSE(Box(1).FillResponse(names));
    EXPECT_TRUE(names.empty());
    EXPECT_FALSE(Box(1).FillResponseCLB(&List(), nullptr));
    EXPECT_EQ(List().GetCount(), 0);
}

}  // namespace
}  // namespace kvopt::test
