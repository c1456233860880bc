#include "kvopt/platform/keys.h"

#include "worksheet_fixture.h"

namespace kvopt {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A window that hears commands.
class CommandWindow : public CWnd {
public:
    bool OnCommand(int command) override {
        commands.push_back(command);
        return handles;
    }
    std::vector<int> commands;
    bool handles = true;
};

struct KeyCase {
    KeyStroke key;
    int command;
};

class WorksheetKeys : public testing::TestWithParam<KeyCase> {};

TEST_P(WorksheetKeys, StandForTheirCommands) {
    const AcceleratorTable* table = AcceleratorTable::Find(6359);
    ASSERT_NE(table, nullptr);
    CommandWindow window;
    EXPECT_TRUE(table->Translate(&window, GetParam().key));
    EXPECT_THAT(window.commands, ElementsAre(GetParam().command));
    window.handles = false;
    EXPECT_FALSE(table->Translate(&window, GetParam().key)) << "nobody handled it";
}

INSTANTIATE_TEST_SUITE_P(All, WorksheetKeys,
                         testing::Values(KeyCase{{.key = 'A', .control = true}, 57642},
                                         KeyCase{{.key = 'C', .control = true}, 57634},
                                         KeyCase{{.key = 'V', .control = true}, 57637},
                                         KeyCase{{.key = kKeyInsert, .control = true}, 57634},
                                         KeyCase{{.key = kKeyInsert, .shift = true}, 57637}));

TEST(AcceleratorTable, PassesOverOtherKeysAndTables) {
    EXPECT_EQ(AcceleratorTable::Find(1), nullptr);
    const AcceleratorTable* table = AcceleratorTable::Find(kWorksheetAccelerators);
    CommandWindow window;
    EXPECT_FALSE(table->Translate(&window, {.key = 'A'}));
    EXPECT_FALSE(table->Translate(&window, {.key = 'V', .control = true, .shift = true}));
    EXPECT_FALSE(table->Translate(&window, {.key = kKeyDelete}));
    EXPECT_FALSE(table->Translate(nullptr, {.key = 'A', .control = true}));
    EXPECT_THAT(window.commands, IsEmpty());
}

using KeysOfAPage = WorksheetTest;

TEST_F(KeysOfAPage, ReachAWorksheetOnlyWhileItHasTheFocus) {
    const AcceleratorTable* table = AcceleratorTable::Find(kWorksheetAccelerators);
    Get<CEdit>(kEdit).UserFocus();
    EXPECT_FALSE(table->Translate(&worksheet, {.key = 'A', .control = true}))
        << "the key belongs to the edit";
    EXPECT_TRUE(worksheet.Selection().IsEmpty());
    worksheet.UserFocus();
    EXPECT_TRUE(table->Translate(&worksheet, {.key = 'A', .control = true}));
    EXPECT_FALSE(worksheet.Selection().IsEmpty());
}

}  // namespace
}  // namespace kvopt
