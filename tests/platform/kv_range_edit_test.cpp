#include "kvopt/platform/kv_range_edit.h"

#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using RangeEdit = ControlsTest;

TEST_F(RangeEdit, IsMadeWhereATemplateAsksForOne) {
    EXPECT_NE(dialog.Item<KvRangeEdit>(kRangeEdit), nullptr);
    EXPECT_EQ(dialog.Item<KvRangeEdit>(kEdit), nullptr);
    EXPECT_EQ(Get<KvRangeEdit>(kRangeEdit).Kind(), ControlKind::Edit);
}

TEST_F(RangeEdit, KeepsTheRange) {
    auto& edit = Get<KvRangeEdit>(kRangeEdit);
    EXPECT_EQ(edit.Low(), 0.0);
    EXPECT_EQ(edit.High(), 0.0);
    edit.SetRange(0.5, 50.0);
    EXPECT_EQ(edit.Low(), 0.5);
    EXPECT_EQ(edit.High(), 50.0);
}

TEST_F(RangeEdit, AltersNoTextOutsideItsRange) {
    auto& edit = Get<KvRangeEdit>(kRangeEdit);
    edit.SetText(L"99");
    dialog.Take();
    edit.SetRange(0.0, 50.0);
    EXPECT_EQ(edit.GetText(), L"99");
    EXPECT_THAT(dialog.Take(), IsEmpty());
    for (const wchar_t* text : {L"-1", L"51", L"abc", L""}) {
        EXPECT_TRUE(edit.UserEdit(text));
        EXPECT_EQ(edit.GetText(), text);
        EXPECT_TRUE(edit.UserPaste(text));
        EXPECT_EQ(edit.GetText(), text);
        edit.SetText(text);
        EXPECT_EQ(edit.GetText(), text);
        edit.OnLosesFocus();
        EXPECT_EQ(edit.GetText(), text);
        EXPECT_THAT(dialog.Take(), ElementsAre("changed 29", "changed 29", "changed 29"));
    }
}

}  // namespace
}  // namespace kvopt
