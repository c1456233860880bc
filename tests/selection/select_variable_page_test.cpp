#include "kvopt/selection/select_variable_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "kvopt/platform.h"
#include "support/fake_study.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;

using Names = std::vector<std::string>;

class SelectVariablePageTest : public testing::Test {
protected:
    SelectVariablePageTest() {
        study.Number("Zeit");
        study.Number("Größe");
        study.Names("Catalyst", {"A", "B"});
        study.Block(2);
    }

    SelectVariablePage& Show(const std::string& current, BasePropertyPageHelper* helper = nullptr) {
        variable = current;
        page = std::make_unique<SelectVariablePage>(&study, variable, helper);
        page->Create();
        page->OnSetActive();
        return *page;
    }
    CComboBox& List() const { return *page->Item<CComboBox>(6049); }
    std::string Shown() const { return KvStdString::ToUtf8(List().GetText()); }

    SheetDesktop desktop;
    FakeStudy study;
    std::string variable;
    std::unique_ptr<SelectVariablePage> page;
};

TEST_F(SelectVariablePageTest, HasItsTemplateAndNoHelp) {
    Show("Zeit");
    EXPECT_EQ(page->TemplateNumber(), 6185);
    EXPECT_EQ(page->PageTitle(), L"Select variable");
    page->OnHelp();
    EXPECT_THAT(desktop.log.Lines(), testing::Not(testing::Contains(testing::StartsWith("help"))));
}

TEST_F(SelectVariablePageTest, OffersTheFactorsOfTheModelsWithTheBlock) {
    Show("Catalyst");
    Names entries;
    for (int i = 0; i < List().GetCount(); ++i) {
        entries.push_back(KvStdString::ToUtf8(List().GetItemText(i)));
    }
    EXPECT_THAT(entries, ElementsAre("Zeit", "Größe", "Catalyst", kBlockFactorName));
    EXPECT_EQ(Shown(), "Catalyst");
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(SelectVariablePageTest, ShowsTheFirstFactorWhenTheFormerIsNotOffered) {
    study.unavailable = {"Catalyst"};
    Show("Catalyst");
    EXPECT_EQ(Shown(), "Zeit");
    EXPECT_EQ(variable, "Catalyst") << "showing writes nothing";
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(variable, "Zeit") << "what is shown is stored, changed or not";
}

TEST_F(SelectVariablePageTest, StoresThePickedFactorOnApply) {
    ConnectedHelper helper;
    Show("Zeit", &helper);
    EXPECT_TRUE(List().UserPick(1));
    EXPECT_TRUE(page->IsChanged());
    EXPECT_EQ(variable, "Zeit");
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(variable, "Größe");
    EXPECT_EQ(helper.updates, 1);
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(SelectVariablePageTest, StoresBeforeTheHelperIsTold) {
    ConnectedHelper helper;
    helper.answer = false;
    Show("Zeit", &helper);
    List().UserPick(2);
    EXPECT_FALSE(page->OnApply()) << "what the base answers counts";
    EXPECT_EQ(variable, "Catalyst");
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(SelectVariablePageTest, LeavesAnEmptyNameInAStudyWithoutFactors) {
    for (const char* name : {"Zeit", "Größe", "Catalyst", kBlockFactorName}) {
        study.unavailable.insert(name);
    }
    Show("Zeit");
    EXPECT_EQ(List().GetCount(), 0);
    EXPECT_TRUE(page->OnApply());
    EXPECT_EQ(variable, "");
}

}  // namespace
}  // namespace kvopt::test
