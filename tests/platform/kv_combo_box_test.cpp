#include "kvopt/platform/kv_combo_box.h"

#include "platform_test.h"

namespace kvopt {
namespace {

using testing::IsEmpty;

class KvComboBoxTest : public ControlsTest {
protected:
    KvComboBox& list = Get<KvComboBox>(kComboList);
};

TEST_F(KvComboBoxTest, IsEveryDropDownListOfADialog) {
    EXPECT_NE(dialog.Item<KvComboBox>(kComboList), nullptr);
    EXPECT_NE(dialog.Item<KvComboBox>(kComboEdit), nullptr);
}

TEST_F(KvComboBoxTest, AddsEntriesWithTheirNumbersAtTheEnd) {
    EXPECT_EQ(list.AddItem(L"eight", 8), 0);
    EXPECT_EQ(list.AddItem(L"four", 4), 1);
    EXPECT_EQ(list.GetItemText(1), L"four");
    EXPECT_EQ(list.GetItemData(0), 8);
    EXPECT_EQ(list.GetItemData(1), 4);
    EXPECT_EQ(list.GetCurSel(), -1);
}

TEST_F(KvComboBoxTest, SelectsTheFirstEntryWithANumber) {
    list.AddItem(L"eight", 8);
    list.AddItem(L"four", 4);
    list.AddItem(L"another four", 4);
    EXPECT_EQ(list.SelectItem(4), 1);
    EXPECT_EQ(list.GetText(), L"four");
    EXPECT_EQ(list.GetSelectedItem(), 4);
    EXPECT_EQ(list.SelectItem(8), 0);
    EXPECT_EQ(list.GetSelectedItem(), 8);
}

TEST_F(KvComboBoxTest, SelectsNothingForANumberThatNoEntryHas) {
    list.AddItem(L"eight", 8);
    list.SelectItem(8);
    EXPECT_EQ(list.SelectItem(16), -1);
    EXPECT_EQ(list.GetCurSel(), -1);
    EXPECT_EQ(list.GetSelectedItem(), std::nullopt);
}

TEST_F(KvComboBoxTest, TellsNumberZeroFromNoSelection) {
    list.AddItem(L"none", 0);
    EXPECT_EQ(list.GetSelectedItem(), std::nullopt);
    EXPECT_EQ(list.SelectItem(0), 0);
    EXPECT_EQ(list.GetSelectedItem(), 0);
}

TEST_F(KvComboBoxTest, NotifiesNobodyOfWhatTheProgramSelects) {
    list.AddItem(L"eight", 8);
    list.SelectItem(8);
    EXPECT_THAT(dialog.Take(), IsEmpty());
}

}  // namespace
}  // namespace kvopt
