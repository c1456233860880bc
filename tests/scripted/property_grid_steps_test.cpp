#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "kvopt/platform.h"
#include "kvopt/scripted.h"
#include "kvopt/text.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr int kGridPage = 39011;
constexpr int kTwoGridsPage = 39012;
constexpr int kBarePage = 39013;
constexpr int kOptions = 301;
constexpr int kMore = 302;
constexpr int kName = 303;

void AddTemplates() {
    static const bool added = [] {
        using namespace layout;
        TemplateCatalog& catalog = TemplateCatalog::Instance();
        catalog.Add({kGridPage, "Grid page",
                     Column({PropertyGrid(kOptions, "").Named("Options").Stretch(1),
                             Edit(kName).Named("Name")})});
        catalog.Add({kTwoGridsPage, "Two grids",
                     Column({PropertyGrid(kOptions, "").Named("Options").Stretch(1),
                             PropertyGrid(kMore, "").Named("More").Stretch(1)})});
        catalog.Add({kBarePage, "Bare page", Column({Edit(kName).Named("Name")})});
        return true;
    }();
    static_cast<void>(added);
}

/// Two categories, each with an "Interval" that has a child, and rows of every kind.
void Fill(CXTPPropertyGrid& grid) {
    const auto interval = [](CXTPPropertyGridItem& above, int value) {
        auto& item = above.AddChildItem(
            std::make_unique<CXTPPropertyGridItemEnum>(L"Interval\nWhich interval.", value));
        item.AddConstraint(L"None", 1);
        item.AddConstraint(L"Prediction", 2);
        item.AddConstraint(L"Tolerance", 3);
        item.AddChildItem(std::make_unique<CXTPPropertyGridItemDouble>(L"Level", 0.95));
    };
    CXTPPropertyGridItem& first = grid.AddCategory(L"Statistics\nHow it is computed.");
    interval(first, 1);
    first.AddChildItem(
        std::make_unique<CXTPPropertyGridItemBool>(L"Refit\nFit anew.", L"Yes", L"No"));
    auto& locked =
        first.AddChildItem(std::make_unique<CXTPPropertyGridItemBool>(L"Locked", L"On", L"Off"));
    locked.SetReadOnly(true);
    first.AddChildItem(std::make_unique<CXTPPropertyGridItem>(L"Hidden")).SetHidden(true);
    first.Expand();
    CXTPPropertyGridItem& second = grid.AddCategory(L"Prediction");
    interval(second, 2);
    auto& limit = second.AddChildItem(std::make_unique<CXTPPropertyGridItemNumber>(L"Limit", 5));
    limit.SetReadOnly(false);
    static_cast<CXTPPropertyGridItemEnum&>(*second.Children().front()).EnableConstraint(3, false);
    second.Expand();
}

class GridStepPage : public CPropertyPage {
public:
    explicit GridStepPage(int number) : CPropertyPage(number) {}

    bool OnInitDialog() override {
        CPropertyPage::OnInitDialog();
        for (const int number : {kOptions, kMore}) {
            if (auto* grid = Item<CXTPPropertyGrid>(number)) {
                Fill(*grid);
                grid->SetNotifyHandler([](int code, CXTPPropertyGridItem* item) {
                    Desktop::Instance().Note("grid " + std::to_string(code) + " " +
                                             KvStdString::ToUtf8(item->GetCaption()) + "=" +
                                             KvStdString::ToUtf8(item->GetValue()));
                });
            }
        }
        return true;
    }
};

class PropertyGridSteps : public testing::Test {
protected:
    PropertyGridSteps() {
        AddTemplates();
        Desktop::Install(&desktop_);
    }
    ~PropertyGridSteps() override { Desktop::Install(nullptr); }

    /// Plays the script and cancels; gives the faults.
    std::vector<std::string> Play(const std::string& script, int page = kGridPage) {
        GridStepPage shown(page);
        CPropertySheet sheet(L"Sheet", nullptr);
        sheet.AddPage(&shown);
        desktop_.Player().Add(UserScript::FromText(script + "\ncancel"));
        sheet.DoModal();
        return desktop_.Verify();
    }

    /// What the page heard of its grid.
    std::vector<std::string> Heard() {
        std::vector<std::string> lines;
        for (const std::string& line : desktop_.Log().Lines()) {
            if (line.starts_with("grid ")) {
                lines.push_back(line);
            }
        }
        return lines;
    }

    ScriptedDesktop desktop_;
};

TEST_F(PropertyGridSteps, ChangeValuesAsAUserDoes) {
    EXPECT_THAT(Play(R"(click item "Refit"
pick item "Interval" in "Statistics" "Tolerance"
expand item "Interval" in "Statistics"
type item "Level" "0.99"
type item "Limit" 12
expect text item "Refit" "Yes"
expect text item "Interval" in "Statistics" "Tolerance"
expect text item "Interval" in "Prediction" "Prediction"
expect text item "Level" in "Interval" in "Statistics" 0.99
expect text item "Limit" 12)"),
                IsEmpty());
    EXPECT_THAT(Heard(), ElementsAre("grid 3 Refit=Yes", "grid 3 Interval=Tolerance",
                                     "grid 3 Level=0.99", "grid 3 Limit=12"));
}

TEST_F(PropertyGridSteps, LeaveAnEditorOpenUntilItIsCommittedOrAbandoned) {
    EXPECT_THAT(Play(R"(edit item "Limit" 12
expect text item "Limit" 12
key Escape
expect text item "Limit" 5
edit item "Limit" 13
key Return
edit item "Limit" 14
focus "Name"
expect text item "Limit" 14)"),
                IsEmpty());
    EXPECT_THAT(Heard(), ElementsAre("grid 3 Limit=13", "grid 3 Limit=14"));
}

TEST_F(PropertyGridSteps, OpenTheEditorOfTheSelectedRowWithReturn) {
    EXPECT_THAT(Play(R"(focus item "Limit"
key Return
key Return
focus item "Refit"
expect focus item "Refit")"),
                IsEmpty());
    EXPECT_THAT(Heard(), IsEmpty());
    EXPECT_THAT(Play("focus item \"Refit\"\nkey Return"),
                ElementsAre(HasSubstr("key Return: the key does nothing here")))
        << "a grid keeps it from OK";
}

TEST_F(PropertyGridSteps, OpenAndCloseRows) {
    EXPECT_THAT(Play(R"(expect hidden item "Level" in "Prediction"
expand item "Interval" in "Prediction"
expect visible item "Level" in "Prediction"
expect hidden item "Level" in "Statistics"
expect entries "Options" "Statistics" "Interval" "Refit" "Locked" "Prediction" "Interval" "Level" "Limit"
collapse item "Prediction"
expect hidden item "Limit"
expect entries 301 "Statistics" "Interval" "Refit" "Locked" "Prediction")"),
                IsEmpty());
}

TEST_F(PropertyGridSteps, SeeWhatARowIs) {
    EXPECT_THAT(
        Play(R"(expect entries item "Interval" in "Prediction" "None" "Prediction" "Tolerance"
expect entries item "Refit" "Yes" "No"
expect entries item "Limit" none
expect disabled item "Locked"
expect enabled item "Refit"
expect hidden item "Hidden"
expect visible item "Refit"
focus item "Refit"
expect focus item "Refit"
expect focus "Options"
expect description "Fit anew."
focus item "Locked"
expect description ""
focus item "Statistics"
expect description "How it is computed.")"),
        IsEmpty());
    EXPECT_THAT(Heard(), IsEmpty());
}

TEST_F(PropertyGridSteps, NameTheGridWhereThereAreSeveral) {
    EXPECT_THAT(Play(R"(click item "Refit" in 302
expect text item "Refit" in "Statistics" in 301 "No"
expect text item "Refit" in "Statistics" in 302 "Yes")",
                     kTwoGridsPage),
                IsEmpty());
    EXPECT_THAT(Play("click item \"Refit\"", kTwoGridsPage),
                ElementsAre(HasSubstr(
                    "page 39012 \"Two grids\" has several property grids: say in which")));
}

struct Fault {
    const char* line;
    const char* reason;
};

class PropertyGridFaults : public PropertyGridSteps, public testing::WithParamInterface<Fault> {};

TEST_P(PropertyGridFaults, SayWhatIsWrong) {
    const std::string line = GetParam().line;
    EXPECT_THAT(Play(line),
                ElementsAre("script:1: " + UserScript::FromText(line).Steps().front().Text() +
                            ": " + GetParam().reason));
    EXPECT_THAT(Heard(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    EveryReason, PropertyGridFaults,
    testing::Values(
        Fault{"click item \"refit\"",
              "there is no item \"refit\"; there are \"Statistics\", \"Interval\", \"Level\", "
              "\"Refit\", \"Locked\", \"Hidden\", \"Prediction\", \"Interval\", \"Level\", "
              "\"Limit\""},
        Fault{"click item \"Refit\" in \"Prediction\"",
              "there is no item \"Refit\" in \"Prediction\"; there are \"Statistics\", "
              "\"Interval\", \"Level\", \"Refit\", \"Locked\", \"Hidden\", \"Prediction\", "
              "\"Interval\", \"Level\", \"Limit\""},
        Fault{"pick item \"Interval\" \"None\"",
              "several rows are meant: \"Interval\" in \"Statistics\", \"Interval\" in "
              "\"Prediction\""},
        Fault{"type item \"Level\" in \"Statistics\" 1",
              "row \"Level\" in \"Interval\" in \"Statistics\" is not shown"},
        Fault{"focus item \"Hidden\"", "row \"Hidden\" in \"Statistics\" is not shown"},
        Fault{"click item \"Locked\"", "row \"Locked\" in \"Statistics\" is read-only"},
        Fault{"pick item \"Locked\" \"On\"", "row \"Locked\" in \"Statistics\" is read-only"},
        Fault{"click item \"Limit\"", "row \"Limit\" in \"Prediction\" is no switch"},
        Fault{"type item \"Refit\" \"Yes\"", "row \"Refit\" in \"Statistics\" takes no typing"},
        Fault{"edit item \"Refit\" \"Yes\"", "row \"Refit\" in \"Statistics\" takes no typing"},
        Fault{"type item \"Statistics\" \"x\"", "row \"Statistics\" takes no typing"},
        Fault{"pick item \"Limit\" \"5\"", "row \"Limit\" in \"Prediction\" offers no list"},
        Fault{"pick item \"Refit\" \"yes\"",
              "there is no entry \"yes\"; there are \"Yes\", \"No\""},
        Fault{"pick item \"Interval\" in \"Prediction\" \"Tolerance\"",
              "the entry \"Tolerance\" is disabled"},
        Fault{"expand item \"Limit\"", "nothing stands below row \"Limit\" in \"Prediction\""},
        Fault{"expand item \"Statistics\"", "row \"Statistics\" is so already"},
        Fault{"collapse item \"Interval\" in \"Statistics\"",
              "row \"Interval\" in \"Statistics\" is so already"},
        Fault{"mark item \"Refit\" \"Yes\"", "the step does not fit a row of a property grid"},
        Fault{"expect checked item \"Refit\"", "the step does not fit a row of a property grid"},
        Fault{"expect text item \"Refit\" \"Yes\"", "it is \"No\""},
        Fault{"expect entries item \"Refit\" \"No\" \"Yes\"", "there are \"Yes\", \"No\""},
        Fault{"expect enabled item \"Locked\"", "it is read-only"},
        Fault{"expect disabled item \"Refit\"", "it is not read-only"},
        Fault{"expect visible item \"Hidden\"", "it is hidden"},
        Fault{"expect hidden item \"Refit\"", "it is visible"},
        Fault{"expect focus item \"Refit\"", "no row is selected"},
        Fault{"expect entries \"Options\" none",
              "there are \"Statistics\", \"Interval\", \"Refit\", \"Locked\", \"Prediction\", "
              "\"Interval\", \"Limit\""},
        Fault{"expect description \"x\"", "it is \"\""},
        Fault{"click item \"Refit\" in 303", "control 303 \"Name\" is not a property grid"}));

TEST_F(PropertyGridSteps, TellWhichRowHasTheFocusInstead) {
    EXPECT_THAT(Play("focus item \"Limit\"\nexpect focus item \"Refit\""),
                ElementsAre(HasSubstr("row \"Limit\" in \"Prediction\" is selected")));
    EXPECT_THAT(Play("focus item \"Limit\"\nfocus \"Name\"\nexpect focus item \"Limit\"").back(),
                HasSubstr("control 303 \"Name\" has the focus"));
}

TEST_F(PropertyGridSteps, SayWhenThereIsNoGrid) {
    EXPECT_THAT(Play("click item \"Refit\"\nexpect description \"\"", kBarePage),
                ElementsAre(HasSubstr("page 39013 \"Bare page\" has no property grid"),
                            HasSubstr("page 39013 \"Bare page\" has no property grid")));
}

TEST_F(PropertyGridSteps, SayWhenNoDescriptionsAreShown) {
    class Plain : public GridStepPage {
    public:
        Plain() : GridStepPage(kGridPage) {}
        bool OnInitDialog() override {
            GridStepPage::OnInitDialog();
            Item<CXTPPropertyGrid>(kOptions)->ShowHelp(false);
            return true;
        }
    } plain;
    CPropertySheet sheet(L"Sheet", nullptr);
    sheet.AddPage(&plain);
    desktop_.Player().Add(UserScript::FromText("expect description \"\"\ncancel"));
    sheet.DoModal();
    EXPECT_THAT(desktop_.Verify(), ElementsAre(HasSubstr("no descriptions are shown")));
}

}  // namespace
}  // namespace kvopt
