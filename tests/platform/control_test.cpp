#include "kvopt/platform/control.h"

#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Control = ControlsTest;

TEST_F(Control, BeginsAsItsTemplateSays) {
    EXPECT_FALSE(dialog.GetDlgItem(kHiddenEdit)->IsVisible());
    EXPECT_TRUE(dialog.GetDlgItem(kHiddenEdit)->IsEnabled());
    EXPECT_FALSE(dialog.GetDlgItem(kDisabledEdit)->IsEnabled());
    EXPECT_EQ(dialog.GetDlgItem(kCheck)->GetText(), L"&Use it");
    EXPECT_EQ(dialog.GetDlgItem(kCheck)->GetParent(), &dialog);
}

TEST_F(Control, HasAnAccessibleName) {
    EXPECT_EQ(dialog.GetDlgItem(kDigits)->AccessibleName(), L"Digits");
    EXPECT_EQ(dialog.GetDlgItem(kCheck)->AccessibleName(), L"Use it");
    EXPECT_EQ(dialog.GetDlgItem(kPush)->AccessibleName(), L"Fish & chips");
    EXPECT_EQ(dialog.GetDlgItem(kEdit)->AccessibleName(), L"Low:") << "from the label before it";
    dialog.GetDlgItem(kCheck)->SetText(L"&Other");
    EXPECT_EQ(dialog.GetDlgItem(kCheck)->AccessibleName(), L"Other");
}

TEST_F(Control, NotesEachProgramMoveOfTheFocus) {
    CountingView view;
    dialog.GetDlgItem(kEdit)->AddListener(&view);
    dialog.GetDlgItem(kEdit)->SetFocus();
    dialog.GotoDlgCtrl(dialog.GetDlgItem(kEdit));
    EXPECT_THAT(Log(), ElementsAre("focus 90001:10", "focus 90001:10"));
    EXPECT_THAT(view.Take(), ElementsAre(WindowChange::Focus, WindowChange::Focus));
    EXPECT_EQ(dialog.GetFocusControl(), dialog.GetDlgItem(kEdit));
    dialog.GotoDlgCtrl(nullptr);
    EXPECT_THAT(Log(), IsEmpty());
    dialog.GetDlgItem(kEdit)->RemoveListener(&view);
}

TEST_F(Control, MovesTheFocusWithTheUserWithoutNote) {
    EXPECT_TRUE(dialog.GetDlgItem(kEdit)->UserFocus());
    EXPECT_EQ(dialog.GetFocusControl(), dialog.GetDlgItem(kEdit));
    EXPECT_FALSE(dialog.GetDlgItem(kDisabledEdit)->UserFocus());
    EXPECT_FALSE(dialog.GetDlgItem(kLabel)->UserFocus()) << "a text takes no focus";
    EXPECT_EQ(dialog.GetFocusControl(), dialog.GetDlgItem(kEdit));
    EXPECT_THAT(Log(), IsEmpty());
}

TEST_F(Control, RunsPostedStepsAtTheEndOfWhatTheUserDoes) {
    dialog.also["clicked 13"] = [this] {
        dialog.PostStep("later", [this] { desktop.Note("step"); });
        desktop.Note("handler");
    };
    Get<CButton>(kPush).UserClick();
    EXPECT_THAT(Log(), ElementsAre("handler", "posted later", "step"));
}

TEST_F(Control, LeavesAControlAloneThatTheMoveOfTheFocusMadeUnusable) {
    // A click that closes the control it is about to reach: the first control's handler runs when
    // its editor commits, which here disables the push button.
    class Content : public BaseWorksheetInterface {
    public:
        Content() : BaseWorksheetInterface("content") {
            SetSize(1, 1);
            SetColumnType(1, FieldDef::Number);
        }
        bool UserChangedData(int column, int row, const char* text) override {
            UpdateValue(column, row, text);
            return true;
        }
    } content;
    auto& worksheet = VirtualWorksheet::CreateFromStatic(dialog, kWorksheet, content);
    dialog.also["changed 24"] = [this] { dialog.GetDlgItem(kPush)->EnableWindow(false); };
    ASSERT_TRUE(worksheet.UserBeginEdit({1, 1}));
    ASSERT_TRUE(worksheet.UserEdit("5"));
    EXPECT_FALSE(Get<CButton>(kPush).UserClick());
    EXPECT_THAT(dialog.Take(), ElementsAre("changed 24"));
    EXPECT_EQ(content.GetCellText(1, 1), "5");
}

}  // namespace
}  // namespace kvopt
