#include "kvopt/selection/select_response_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "axes/page_probe.h"
#include "axes/sheet_desktop.h"
#include "kvopt/platform.h"
#include "kvopt/text/exceptions.h"
#include "support/fake_study.h"

namespace kvopt::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Names = std::vector<std::string>;

/// The owner of a selection, which notes what it is given.
class NotedResponse : public SelectResponseBase {
public:
    void SetResponse(const std::string& response) override { given.push_back(response); }
    std::string GetResponse() const override { return current; }

    std::string current;
    Names given;
};

class SelectResponsePageTest : public testing::Test {
protected:
    SelectResponsePageTest() {
        for (const char* name : {"Yield 10", "Yield", "Cost"}) {
            study.Response(name);
        }
        study.ExtraResponse("Wish");
    }

    SelectResponsePage& Show(const std::string& current, bool extended, bool allowNone,
                             BasePropertyPageHelper* helper = nullptr) {
        owner.current = current;
        page = std::make_unique<SelectResponsePage>(&study, &owner, helper, extended, allowNone);
        page->Create();
        page->OnSetActive();
        return *page;
    }
    CComboBox& List() const { return *page->Item<CComboBox>(6048); }
    std::string Shown() const { return KvStdString::ToUtf8(List().GetText()); }
    Names Entries() const {
        Names names;
        for (int i = 0; i < List().GetCount(); ++i) {
            names.push_back(KvStdString::ToUtf8(List().GetItemText(i)));
        }
        return names;
    }

    SheetDesktop desktop;
    FakeStudy study;
    NotedResponse owner;
    std::unique_ptr<SelectResponsePage> page;
};

TEST_F(SelectResponsePageTest, HasItsTemplateAndHelp) {
    Show("Cost", false, false);
    EXPECT_EQ(page->TemplateNumber(), 6184);
    EXPECT_EQ(page->PageTitle(), L"Select response");
    page->OnHelp();
    EXPECT_EQ(desktop.log.Lines().back(), "help 431");
}

TEST_F(SelectResponsePageTest, OffersTheOrdinaryOrTheExtendedResponses) {
    Show("Cost", false, false);
    EXPECT_THAT(Entries(), ElementsAre("Yield 10", "Yield", "Cost"));
    Show("Cost", true, false);
    EXPECT_THAT(Entries(), ElementsAre("Yield 10", "Yield", "Cost", "Wish"));
    study.unavailable = {"Yield"};
    Show("Cost", true, false);
    EXPECT_THAT(Entries(), ElementsAre("Yield 10", "Cost", "Wish"));
}

TEST_F(SelectResponsePageTest, PutsNoResponseFirstWhenThatIsAllowed) {
    Show("Cost", false, true);
    EXPECT_THAT(Entries(), ElementsAre("<no response selected>", "Yield 10", "Yield", "Cost"));
}

struct StartRow {
    const char* current;
    bool allowNone;
    const char* shown;
};

class SelectResponseStart : public SelectResponsePageTest,
                            public testing::WithParamInterface<StartRow> {};

TEST_P(SelectResponseStart, ShowsTheCurrentResponse) {
    Show(GetParam().current, true, GetParam().allowNone);
    EXPECT_EQ(Shown(), GetParam().shown);
    EXPECT_FALSE(page->IsChanged());
}

INSTANTIATE_TEST_SUITE_P(
    Currents, SelectResponseStart,
    testing::Values(StartRow{"Cost", false, "Cost"}, StartRow{"Wish", false, "Wish"},
                    // The list alone is searched by its beginnings, without regard to case.
                    StartRow{"Yield", false, "Yield 10"}, StartRow{"cost", false, "Cost"},
                    StartRow{"Gone", false, "Yield 10"}, StartRow{"", false, "Yield 10"},
                    // With the entry for none the whole text counts.
                    StartRow{"Cost", true, "Cost"}, StartRow{"Yield", true, "Yield"},
                    StartRow{"cost", true, "<no response selected>"},
                    StartRow{"Gone", true, "<no response selected>"},
                    StartRow{"", true, "<no response selected>"}));

TEST_F(SelectResponsePageTest, StandsEmptyInAStudyWithoutResponses) {
    study.unavailable = {"Yield 10", "Yield", "Cost", "Wish"};
    Show("Cost", true, false);
    EXPECT_THAT(Entries(), IsEmpty());
    EXPECT_TRUE(page->OnApply());
    EXPECT_THAT(owner.given, ElementsAre(""));
    Show("Cost", true, true);
    EXPECT_THAT(Entries(), ElementsAre("<no response selected>"));
    EXPECT_EQ(Shown(), "<no response selected>");
}

TEST_F(SelectResponsePageTest, MarksItselfWhenAnotherResponseIsPicked) {
    Show("Cost", false, false);
    EXPECT_TRUE(List().UserPick(2));
    EXPECT_FALSE(page->IsChanged()) << "it is selected already";
    EXPECT_TRUE(List().UserPick(1));
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(SelectResponsePageTest, StoresThePickedResponseOnApply) {
    study.Response("Größe");
    ConnectedHelper helper;
    Show("Cost", false, true, &helper);
    List().UserPick(4);
    EXPECT_THAT(owner.given, IsEmpty());
    EXPECT_TRUE(page->OnApply());
    EXPECT_THAT(owner.given, ElementsAre("Größe"));
    EXPECT_EQ(helper.updates, 1);
    EXPECT_FALSE(page->IsChanged());
}

TEST_F(SelectResponsePageTest, StoresAnEmptyNameForNoResponse) {
    Show("Cost", false, true);
    List().UserPick(0);
    EXPECT_TRUE(page->OnApply());
    EXPECT_THAT(owner.given, ElementsAre(""));
}

TEST_F(SelectResponsePageTest, StoresWhatItShowsAlsoWhenNothingWasPicked) {
    Show("Gone", false, false);
    EXPECT_TRUE(page->OnApply());
    EXPECT_THAT(owner.given, ElementsAre("Yield 10"));
}

TEST_F(SelectResponsePageTest, StoresBeforeTheHelperIsTold) {
    class Watching : public ConnectedHelper {
    public:
        explicit Watching(const NotedResponse& noted) : noted_(noted) {}
        bool Update() override {
            then = noted_.given;
            answer = false;
            return ConnectedHelper::Update();
        }
        Names then;

    private:
        const NotedResponse& noted_;
    } helper(owner);
    Show("Cost", false, false, &helper);
    List().UserPick(0);
    EXPECT_FALSE(page->OnApply()) << "what the base answers counts";
    EXPECT_THAT(helper.then, ElementsAre("Yield 10"));
    EXPECT_TRUE(page->IsChanged());
}

TEST_F(SelectResponsePageTest, RefusesASelectionWithoutAnOwner) {
    EXPECT_THROW(SelectResponsePage(&study, nullptr, nullptr, false, false), InvalidArgument);
}

}  // namespace
}  // namespace kvopt::test
