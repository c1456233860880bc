#include "kvopt/platform/button.h"

#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Button = ControlsTest;

TEST_F(Button, FlipsACheckBoxAtEachClick) {
    auto& check = Get<CButton>(kCheck);
    EXPECT_TRUE(check.UserClick());
    EXPECT_TRUE(check.GetCheck());
    EXPECT_TRUE(check.UserClick());
    EXPECT_FALSE(check.GetCheck());
    EXPECT_THAT(dialog.Take(), ElementsAre("clicked 12", "clicked 12"));
}

TEST_F(Button, ChangesBeforeItsHandlerRuns) {
    auto& check = Get<CButton>(kCheck);
    bool seen = false;
    dialog.also["clicked 12"] = [&] { seen = check.GetCheck(); };
    check.UserClick();
    EXPECT_TRUE(seen);
}

TEST_F(Button, NeverNotifiesOfProgramChecks) {
    Get<CButton>(kCheck).SetCheck(true);
    Get<CButton>(kFirstRadio).SetCheck(true);
    EXPECT_THAT(dialog.Take(), IsEmpty());
}

TEST_F(Button, TellsViewsOfDifferencesOnly) {
    auto& check = Get<CButton>(kCheck);
    CountingView view;
    check.AddListener(&view);
    check.SetCheck(true);
    check.SetCheck(true);
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Check));
    check.RemoveListener(&view);
}

TEST_F(Button, TakesTheMarkOffTheOthersOfItsGroupAlone) {
    Get<CButton>(kFirstRadio).SetCheck(true);
    Get<CButton>(kLastRadio).SetCheck(true);
    Get<CButton>(kSecondRadio).SetCheck(true);
    EXPECT_FALSE(Get<CButton>(kFirstRadio).GetCheck());
    EXPECT_TRUE(Get<CButton>(kSecondRadio).GetCheck());
    EXPECT_TRUE(Get<CButton>(kLastRadio).GetCheck()) << "another group";
    EXPECT_FALSE(Get<CButton>(kOtherRadio).GetCheck());
}

TEST_F(Button, RunsTheHandlerOfARadioButtonThatIsCheckedAlready) {
    auto& radio = Get<CButton>(kFirstRadio);
    radio.SetCheck(true);
    EXPECT_TRUE(radio.UserClick());
    EXPECT_TRUE(radio.GetCheck());
    EXPECT_THAT(dialog.Take(), ElementsAre("clicked 14"));
}

TEST_F(Button, RefusesTheUserWhenDisabled) {
    auto& push = Get<CButton>(kPush);
    push.EnableWindow(false);
    EXPECT_FALSE(push.UserClick());
    push.EnableWindow(true);
    push.ShowWindow(false);
    EXPECT_FALSE(push.UserClick());
    EXPECT_THAT(dialog.Take(), IsEmpty());
    push.ShowWindow(true);
    EXPECT_TRUE(push.UserClick());
    EXPECT_FALSE(push.GetCheck()) << "a push button holds no mark";
}

}  // namespace
}  // namespace kvopt
