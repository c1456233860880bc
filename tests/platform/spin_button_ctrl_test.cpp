#include "kvopt/platform/spin_button_ctrl.h"

#include <limits>

#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SpinButtonCtrl : public ControlsTest {
protected:
    CSpinButtonCtrl& spin = Get<CSpinButtonCtrl>(kSpin);
    CEdit& buddy = Get<CEdit>(kSpinEdit);
};

TEST_F(SpinButtonCtrl, WritesItsBuddyWhichNotifiesAsWritingAnEditDoes) {
    spin.SetPos(7);
    EXPECT_EQ(buddy.GetText(), L"7");
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 23"));
    spin.SetPos(7);
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 23"));
}

TEST_F(SpinButtonCtrl, ClampsThePositionToItsRange) {
    spin.SetRange(2, 5);
    spin.SetPos(9);
    EXPECT_EQ(buddy.GetText(), L"5");
    spin.SetPos(-1);
    EXPECT_EQ(buddy.GetText(), L"2");
}

TEST_F(SpinButtonCtrl, TakesItsBoundsInEitherOrder) {
    spin.SetRange(1, 0);
    EXPECT_EQ(spin.Low(), 0);
    EXPECT_EQ(spin.High(), 1);
    spin.SetPos(3);
    EXPECT_EQ(buddy.GetText(), L"1");
}

TEST_F(SpinButtonCtrl, NeverClampsWhatIsTyped) {
    spin.SetRange(2, 5);
    buddy.UserEdit(L"99");
    EXPECT_EQ(buddy.GetText(), L"99");
    EXPECT_EQ(spin.GetPos(), 5);
    buddy.UserEdit(L"none");
    EXPECT_EQ(spin.GetPos(), 2);
}

TEST_F(SpinButtonCtrl, StepsWithinItsRange) {
    spin.SetRange(0, 2);
    spin.SetPos(1);
    dialog.Take();
    EXPECT_TRUE(spin.UserStep(1));
    EXPECT_EQ(buddy.GetText(), L"2");
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 23"));
    EXPECT_TRUE(spin.UserStep(1));
    EXPECT_THAT(dialog.Take(), IsEmpty()) << "nothing to write at the end of the range";
    buddy.UserEdit(L"99");
    dialog.Take();
    EXPECT_TRUE(spin.UserStep(1));
    EXPECT_EQ(buddy.GetText(), L"2");
    spin.EnableWindow(false);
    EXPECT_FALSE(spin.UserStep(-1));
    EXPECT_EQ(buddy.GetText(), L"2");
}

TEST_F(SpinButtonCtrl, StepsAtTheEndsOfTheNumbers) {
    spin.SetRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    spin.SetPos(std::numeric_limits<int>::max());
    EXPECT_TRUE(spin.UserStep(1));
    EXPECT_EQ(buddy.GetText(), L"2147483647");
}

}  // namespace
}  // namespace kvopt
