#include <gtest/gtest.h>

#include <ostream>
#include <set>
#include <string>
#include <vector>

#include "axes/sheet_desktop.h"
#include "kvopt/platform.h"

namespace kvopt::test {
namespace {

struct RowNumbers {
    int list;
    int low;
    int high;
    int button;
    const char* ordinal;
};

const std::vector<RowNumbers> kRows{
    {6036, 6055, 6054, 6006, "1st"}, {6037, 6058, 6057, 6007, "2nd"},
    {6038, 6060, 6059, 6008, "3rd"}, {6039, 6062, 6061, 6009, "4th"},
    {6040, 6064, 6063, 6010, "5th"}, {6041, 6066, 6065, 6011, "6th"}};

struct PageRow {
    int number;
    const char* caption;
    std::size_t axes;
    bool hasGrid;
    std::size_t outerAxes = 0;  ///< with a box and a button for settings
};

/// Whether a row of the page, counted from 0, is an outer one.
bool IsOuter(const PageRow& page, std::size_t row) {
    return row < page.axes && row >= page.axes - page.outerAxes;
}

int SettingsNumber(const PageRow& page, std::size_t row, int first) {
    return first + static_cast<int>(row - (page.axes - page.outerAxes));
}

void PrintTo(const PageRow& row, std::ostream* out) {
    *out << row.number;
}

class AxesTemplates : public testing::TestWithParam<PageRow> {
protected:
    AxesTemplates() : dialog(GetParam().number, nullptr) { dialog.Create(); }

    std::string NameOf(int number) const {
        return KvStdString::ToUtf8(dialog.GetDlgItem(number)->AccessibleName());
    }

    CDialog dialog;
};

TEST_P(AxesTemplates, HaveARowOfNamedControlsForEachAxis) {
    EXPECT_STREQ(dialog.Template().caption, GetParam().caption);
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        const RowNumbers& row = kRows[i];
        if (i >= GetParam().axes) {
            EXPECT_EQ(dialog.GetDlgItem(row.list), nullptr);
            EXPECT_EQ(dialog.GetDlgItem(row.button), nullptr);
            continue;
        }
        const std::string axis = std::string(row.ordinal) + " axis";
        ASSERT_NE(dialog.Item<CComboBox>(row.list), nullptr);
        EXPECT_FALSE(dialog.Item<CComboBox>(row.list)->IsEditable());
        ASSERT_NE(dialog.Item<CEdit>(row.low), nullptr);
        ASSERT_NE(dialog.Item<CEdit>(row.high), nullptr);
        ASSERT_NE(dialog.Item<CButton>(row.button), nullptr);
        EXPECT_EQ(NameOf(row.list), axis);
        EXPECT_EQ(NameOf(row.low), axis + " low");
        EXPECT_EQ(NameOf(row.high), axis + " high");
        EXPECT_EQ(NameOf(row.button), axis + " default");
        EXPECT_EQ(dialog.Item<CButton>(row.button)->GetText(), L"Default");
    }
}

TEST_P(AxesTemplates, GoFromListToLowToHighToDefaultByTab) {
    std::vector<int> expected;
    for (std::size_t i = 0; i < GetParam().axes; ++i) {
        expected.insert(expected.end(), {kRows[i].list, kRows[i].low, kRows[i].high});
        if (IsOuter(GetParam(), i)) {
            expected.push_back(SettingsNumber(GetParam(), i, 6050));
        }
        expected.push_back(kRows[i].button);
        if (IsOuter(GetParam(), i)) {
            expected.push_back(SettingsNumber(GetParam(), i, 6003));
        }
    }
    if (GetParam().hasGrid) {
        expected.push_back(6139);
    }
    if (GetParam().outerAxes > 0) {
        expected.insert(expected.end(), {6279, 6280, 6305});
    }
    std::vector<int> order;
    for (const ControlTemplate& control : dialog.Template().Controls()) {
        if (control.kind != ControlKind::Label) {
            order.push_back(control.number);
        }
    }
    EXPECT_EQ(order, expected);
}

TEST_P(AxesTemplates, LeadToEachListByAMnemonic) {
    std::set<char> mnemonics;
    for (std::size_t i = 0; i < GetParam().axes; ++i) {
        bool found = false;
        for (const ControlTemplate& control : dialog.Template().Controls()) {
            const std::string label = control.label;
            const std::size_t at = label.find('&');
            if (control.kind == ControlKind::Label && control.buddy == kRows[i].list) {
                ASSERT_NE(at, std::string::npos);
                EXPECT_TRUE(mnemonics.insert(label[at + 1]).second);
                found = true;
            }
        }
        EXPECT_TRUE(found) << kRows[i].ordinal;
    }
}

TEST_P(AxesTemplates, HoldTheGridOfConstantFactorsWhereTheyHaveOne) {
    EXPECT_EQ(dialog.Item<VirtualWorksheet>(6139) != nullptr, GetParam().hasGrid);
    if (GetParam().hasGrid) {
        EXPECT_EQ(NameOf(6139), "Constant factors");
    }
    bool heading = false;
    for (const ControlTemplate& control : dialog.Template().Controls()) {
        heading = heading || std::string(control.label) == "Constant factors:";
    }
    EXPECT_EQ(heading, GetParam().hasGrid || GetParam().outerAxes > 0);
}

TEST_P(AxesTemplates, LetTheGridGrowWithThePage) {
    const LayoutItem& root = dialog.Template().layout;
    ASSERT_EQ(root.kind, LayoutKind::Column);
    const LayoutItem& last = root.children.back();
    if (GetParam().hasGrid) {
        EXPECT_EQ(last.control.number, 6139);
        EXPECT_GT(last.stretch, 0);
    } else {
        EXPECT_EQ(last.kind, LayoutKind::Space);
    }
    EXPECT_EQ(root.children.front().kind, LayoutKind::Grid);
    EXPECT_EQ(root.children.front().columns, 5);
    // The range of an outer row is one item, which covers two columns.
    EXPECT_EQ(root.children.front().children.size(),
              5 * (GetParam().axes + 1) - GetParam().outerAxes);
}

TEST_P(AxesTemplates, LayTheSettingsOfAnOuterAxisOverItsRangeAndItsDefaultButton) {
    std::size_t stacks = 0;
    for (const LayoutItem& cell : dialog.Template().layout.children.front().children) {
        stacks += cell.kind == LayoutKind::Stack ? 1 : 0;
    }
    EXPECT_EQ(stacks, 2 * GetParam().outerAxes);
    for (std::size_t i = 0; i < GetParam().axes; ++i) {
        if (!IsOuter(GetParam(), i)) {
            continue;
        }
        const std::string axis = std::string(kRows[i].ordinal) + " axis settings";
        const int edit = SettingsNumber(GetParam(), i, 6050);
        const int button = SettingsNumber(GetParam(), i, 6003);
        ASSERT_NE(dialog.Item<CEdit>(edit), nullptr);
        ASSERT_NE(dialog.Item<CButton>(button), nullptr);
        EXPECT_EQ(NameOf(edit), axis);
        EXPECT_EQ(NameOf(button), "Choose " + axis);
        EXPECT_EQ(dialog.Item<CButton>(button)->GetText(), L"Settings");
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, AxesTemplates,
                         testing::Values(PageRow{6152, "Axes", 6, false},
                                         PageRow{6160, "Axes and constants", 2, true},
                                         PageRow{6161, "4D axes", 4, false, 2},
                                         PageRow{6168, "Axes and constants", 3, true},
                                         PageRow{6169, "4D axes", 5, false, 2}));

}  // namespace
}  // namespace kvopt::test
