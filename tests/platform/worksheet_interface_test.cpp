#include "kvopt/platform/worksheet_interface.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "kvopt/text/exceptions.h"
#include "worksheet_fixture.h"

namespace kvopt {
namespace {

using testing::ElementsAre;

TEST(WorksheetInterface, KeepsTextsByColumnAndRow) {
    TestContent content;
    EXPECT_EQ(content.Name(), "Test");
    EXPECT_EQ(content.ColumnCount(), 3);
    EXPECT_EQ(content.RowCount(), 3);
    EXPECT_EQ(content.GetCellText(1, 2), "name2");
    EXPECT_EQ(content.GetCellText(3, 3), "");
    EXPECT_EQ(content.GetCellText(9, 9), "");
    content.UpdateValue(1, 2, nullptr);
    EXPECT_EQ(content.GetCellText(1, 2), "");
    content.SetCellValue(0, 0, "#");
    EXPECT_EQ(content.GetCellText(0, 0), "#") << "headings are cells";
    EXPECT_THROW(content.SetCellValue(4, 1, "x"), InvalidArgument);
    EXPECT_THROW(content.SetCellValue(1, 4, "x"), InvalidArgument);
}

TEST(WorksheetInterface, AddsRowsWithTheirFields) {
    TestContent content;
    content.AddRow(2, 2);
    EXPECT_EQ(content.RowCount(), 5);
    EXPECT_EQ(content.GetCellText(1, 1), "name1");
    EXPECT_EQ(content.GetCellText(1, 2), "");
    EXPECT_EQ(content.GetCellText(1, 4), "name2");
    EXPECT_EQ(content.GetFieldType(2, 4), FieldDef::Combo);
    EXPECT_EQ(content.GetFieldType(2, 5), FieldDef::Locked);
    EXPECT_EQ(content.GetFieldType(2, 2), FieldDef::Number) << "the column's type";
    content.AddRow(99, 1);
    EXPECT_EQ(content.RowCount(), 6) << "past the last row it appends";
    EXPECT_THROW(content.AddRow(0, 1), InvalidArgument);
}

TEST(WorksheetInterface, KeepsFieldsByCellAndTypesByColumn) {
    TestContent content;
    EXPECT_EQ(content.GetFieldType(2, 1), FieldDef::Number);
    EXPECT_EQ(content.GetFieldDef(2, 1, false), nullptr);
    FieldDef* field = content.GetFieldDef(2, 1, true);
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(field->Type(), FieldDef::Number) << "a new field takes its column's type";
    EXPECT_TRUE(field->IsEditable());
    *field = FieldDef::Locked;
    EXPECT_FALSE(field->IsEditable());
    EXPECT_EQ(content.GetFieldType(2, 1), FieldDef::Locked);
    EXPECT_THAT(content.GetFieldDef(2, 2, false)->ComboSettings(), ElementsAre("low", "high"));
    content.ClearFieldComboSetting(2, 2);
    content.ClearFieldComboSetting(3, 3);
    EXPECT_TRUE(content.GetFieldDef(2, 2, false)->ComboSettings().empty());
    EXPECT_EQ(content.GetFieldDef(3, 3, false), nullptr);
    EXPECT_EQ(field->FieldColour(), FieldDef::kNoColour);
    content.SetFieldColor(2, 1, 0x00FF00);
    EXPECT_EQ(field->FieldColour(), 0x00FF00U);
}

TEST(WorksheetInterface, MeasuresItsColumns) {
    TestContent content;
    EXPECT_EQ(content.GetMaxTextColWidth(2, -1), 100) << "never less than a slider needs";
    content.SetCellValue(1, 3, "a name of thirty-four characters..");
    EXPECT_EQ(content.GetMaxTextColWidth(1, -1), 34 * 7);
    EXPECT_EQ(content.GetMaxTextColWidth(1, 1), 100);
    content.SetCellValue(1, 0, "a heading that is longer than any of its names");
    EXPECT_EQ(content.GetMaxTextColWidth(1, -1), 46 * 7) << "headings count";
    content.SetCellValue(1, 1,
                         "\u00f6\u00f6\u00f6\u00f6\u00f6\u00f6\u00f6\u00f6\u00f6\u00f6"
                         "\u00f6\u00f6\u00f6\u00f6\u00f6\u00f6\u00f6\u00f6\u00f6\u00f6");
    EXPECT_EQ(content.GetMaxTextColWidth(1, 1), 140) << "characters, not bytes";
    EXPECT_EQ(content.ScaleToDpi(22), 22);
}

TEST(WorksheetInterface, ScalesItsPixelsToTheScreen) {
    class Fine : public Desktop {
    public:
        int DotsPerInch() const override { return 144; }
    } desktop;
    Desktop::Install(&desktop);
    const TestContent content;
    EXPECT_EQ(content.ScaleToDpi(22), 33);
    EXPECT_EQ(content.GetMaxTextColWidth(2, -1), 150);
    Desktop::Install(nullptr);
}

TEST(WorksheetInterface, KeepsItsSizesAndStyles) {
    TestContent content;
    content.SetColumnWidth(1, 55);
    content.SetColumnFont(1, 2);
    content.SetDefaultRowHeight(30);
    content.SetDefaultVerticalLineStyle(9);
    EXPECT_EQ(content.ColumnWidth(1), 55);
    EXPECT_EQ(content.ColumnFont(1), 2);
    EXPECT_EQ(content.ColumnFont(2), 0);
    EXPECT_EQ(content.DefaultRowHeight(), 30);
    EXPECT_EQ(content.DefaultVerticalLineStyle(), 9);
    EXPECT_EQ(content.ColumnWidth(2), 100);
}

TEST(WorksheetInterface, DoesNothingWithTheMouseByItself) {
    class Plain : public BaseWorksheetInterface {
    public:
        using BaseWorksheetInterface::BaseWorksheetInterface;
        bool UserChangedData(int, int, const char*) override { return false; }
    } plain("Plain");
    CPoint point;
    std::wstring tip = L"kept";
    EXPECT_FALSE(plain.LButtonDown({}, {}));
    EXPECT_FALSE(plain.LButtonUp({}, {}));
    EXPECT_FALSE(plain.MouseMove({}, {}, {}));
    EXPECT_FALSE(plain.RButtonDown(point));
    EXPECT_FALSE(plain.GetToolTipText(1, 1, tip));
    EXPECT_EQ(tip, L"kept");
    ASSERT_NE(plain.GetCellRenderer(1, 1), nullptr);
    EXPECT_FALSE(plain.GetCellRenderer(1, 1)->Slider(plain, 1, 1));
}

TEST(DataMatrix, TellsCellsThatWereNeverWritten) {
    VWSIDataMatrix matrix;
    matrix.SetSize(2, 2);
    EXPECT_EQ(matrix.Columns(), 2);
    EXPECT_EQ(matrix.Rows(), 2);
    EXPECT_EQ(matrix.GetData(0, 0), nullptr);
    matrix.SetData(1, 0, "");
    ASSERT_NE(matrix.GetData(1, 0), nullptr);
    EXPECT_EQ(*matrix.GetData(1, 0), "");
    EXPECT_EQ(matrix.GetData(2, 0), nullptr);
    EXPECT_EQ(matrix.GetData(0, -1), nullptr);
    EXPECT_THROW(matrix.SetData(0, 2, "x"), InvalidArgument);
}

TEST(DataMatrix, KeepsItsTextsWhenItGrows) {
    VWSIDataMatrix matrix;
    matrix.SetSize(2, 2);
    matrix.SetData(1, 1, "kept");
    matrix.SetSize(3, 4);
    ASSERT_NE(matrix.GetData(1, 1), nullptr);
    EXPECT_EQ(*matrix.GetData(1, 1), "kept");
    matrix.AddRows(1, 2);
    EXPECT_EQ(matrix.Rows(), 6);
    EXPECT_EQ(matrix.GetData(1, 1), nullptr);
    EXPECT_EQ(*matrix.GetData(1, 3), "kept");
    matrix.SetSize(1, 1);
    EXPECT_EQ(matrix.GetData(1, 1), nullptr);
    EXPECT_THROW(matrix.AddRows(2, 1), InvalidArgument);
    EXPECT_THROW(matrix.SetSize(-1, 1), InvalidArgument);
}

}  // namespace
}  // namespace kvopt
