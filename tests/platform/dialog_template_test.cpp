#include "kvopt/platform/dialog_template.h"

#include "kvopt/text/exceptions.h"
#include "platform_test.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using namespace layout;

TEST(DialogTemplate, GivesItsControlsDepthFirst) {
    const DialogTemplate dialog{
        1, "One",
        Column({Row({Label(1, "a"), Edit(2)}), Group("g", {Check(3, "c")}), Push(4, "p")})};
    std::vector<int> numbers;
    for (const ControlTemplate& control : dialog.Controls()) {
        numbers.push_back(control.number);
    }
    EXPECT_THAT(numbers, ElementsAre(1, 2, 3, 4));
}

TEST(DialogTemplate, DecoratesCopies) {
    const LayoutItem plain = Edit(1);
    const LayoutItem item = plain.Named("Name").Disabled().Hidden().DigitsOnly().Stretch(2).Span(3);
    EXPECT_STREQ(item.control.name, "Name");
    EXPECT_FALSE(item.control.enabled);
    EXPECT_FALSE(item.control.visible);
    EXPECT_TRUE(item.control.digitsOnly);
    EXPECT_EQ(item.stretch, 2);
    EXPECT_EQ(item.span, 3);
    EXPECT_TRUE(plain.control.enabled);
    EXPECT_TRUE(Radio(2, "r").StartsGroup().control.startsGroup);
    EXPECT_EQ(Label(3, "l").Buddy(1).control.buddy, 1);
    EXPECT_TRUE(Label(3, "l").Wraps().control.wraps);
    EXPECT_FALSE(Label(3, "l").control.wraps);
    EXPECT_THAT(ComboList(4).Entries({"a", "b"}).control.entries, ElementsAre("a", "b"));
    EXPECT_TRUE(ComboList(4).control.entries.empty());
}

TEST(DialogTemplate, IsBuiltFromEveryKindOfItem) {
    EXPECT_EQ(Row({Space()}).kind, LayoutKind::Row);
    EXPECT_EQ(Row({Space()}).children.size(), 1U);
    EXPECT_EQ(Column({}).kind, LayoutKind::Column);
    EXPECT_EQ(Stack({}).kind, LayoutKind::Stack);
    EXPECT_EQ(Grid(3, {}).kind, LayoutKind::Grid);
    EXPECT_EQ(Grid(3, {}).columns, 3);
    EXPECT_STREQ(Group("Title", {}).title, "Title");
    EXPECT_EQ(Space().stretch, 1);
    EXPECT_EQ(Text("t").control.number, -1);
    EXPECT_EQ(Text("t").control.kind, ControlKind::Label);
    EXPECT_EQ(Edit(1).control.kind, ControlKind::Edit);
    EXPECT_FALSE(Edit(1).control.ranged);
    EXPECT_EQ(RangeEdit(1).control.kind, ControlKind::Edit);
    EXPECT_EQ(RangeEdit(1).control.number, 1);
    EXPECT_TRUE(RangeEdit(1).control.ranged);
    EXPECT_EQ(ComboList(1).control.kind, ControlKind::ComboList);
    EXPECT_EQ(ComboEdit(1).control.kind, ControlKind::ComboEdit);
    EXPECT_EQ(ListSingle(1).control.kind, ControlKind::ListSingle);
    EXPECT_EQ(ListMulti(1).control.kind, ControlKind::ListMulti);
    EXPECT_EQ(Push(1, "p").control.kind, ControlKind::Push);
    EXPECT_EQ(Check(1, "c").control.kind, ControlKind::Check);
    EXPECT_EQ(Radio(1, "r").control.kind, ControlKind::Radio);
    EXPECT_EQ(Spin(1, 2).control.buddy, 2);
    EXPECT_EQ(Worksheet(1).control.kind, ControlKind::Worksheet);
    EXPECT_EQ(PropertyGrid(1, "g").control.kind, ControlKind::PropertyGrid);
    EXPECT_STREQ(Markup(1, "m").control.label, "m");
}

TEST(TemplateCatalog, HoldsTemplatesByNumber) {
    TemplateCatalog& catalog = TemplateCatalog::Instance();
    EXPECT_EQ(catalog.Find(91000), nullptr);
    catalog.Add({91000, "Mine", Column({})});
    const DialogTemplate* mine = catalog.Find(91000);
    ASSERT_NE(mine, nullptr);
    EXPECT_STREQ(mine->caption, "Mine");
    EXPECT_THROW(catalog.Add({91000, "Other", Column({})}), InvalidArgument);
    catalog.Add({90999, "Before", Column({})});
    EXPECT_EQ(catalog.Find(91000), mine) << "it stays where it is";
    EXPECT_STREQ(mine->caption, "Mine");
    int before = -1;
    for (const DialogTemplate* dialog : catalog.All()) {
        EXPECT_LT(before, dialog->number);
        before = dialog->number;
    }
}

}  // namespace
}  // namespace kvopt
