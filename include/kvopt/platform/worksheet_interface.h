#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/cell_range.h"
#include "kvopt/platform/cell_renderer.h"
#include "kvopt/platform/data_matrix.h"
#include "kvopt/platform/field_matrix.h"
#include "kvopt/platform/geometry.h"
#include "kvopt/platform/vws_access.h"

namespace kvopt {

class VirtualWorksheet;

/// The content and the rules of one worksheet: texts, field definitions, sizes, and what mouse and
/// edits do. Columns and rows count from 0, where column 0 holds the row numbers and row 0 the
/// headings; data cells count from 1. It does not own the worksheet window that shows it, and
/// works without one.
class KVOPT_EXPORT BaseWorksheetInterface : public VWSInterFace_VWSAccess {
public:
    explicit BaseWorksheetInterface(std::string name);
    ~BaseWorksheetInterface() override;
    BaseWorksheetInterface(const BaseWorksheetInterface&) = delete;
    BaseWorksheetInterface& operator=(const BaseWorksheetInterface&) = delete;

    const std::string& Name() const { return name_; }

    virtual void UpdateValue(int column, int row, const char* text);
    virtual const VWSRenderer* GetCellRenderer(int column, int row) const;
    virtual std::string GetCellText(int column, int row) const;
    /// The mouse steps. `cell` is (column, row); true when the worksheet need do nothing more.
    virtual bool LButtonDown(const CPoint& point, const CPoint& cell);
    virtual bool LButtonUp(const CPoint& point, const CPoint& cell);
    virtual bool MouseMove(const CPoint& point, const CPoint& cell, const CRect& rect);
    virtual bool RButtonDown(CPoint& point);
    virtual bool GetToolTipText(int column, int row, std::wstring& text);

    /// Data columns and rows, without the headings.
    void SetSize(int columns, int rows);
    int ColumnCount() const { return columns_; }
    int RowCount() const { return rows_; }
    /// Adds `count` rows before the data row `row`; a row past the last appends.
    void AddRow(int row, int count);
    void SetCellValue(int column, int row, std::string_view text);
    void SetColumnType(int column, FieldDef::FieldType type);
    void SetColumnWidth(int column, int pixels);
    int ColumnWidth(int column) const;
    void SetColumnFont(int column, int font);
    int ColumnFont(int column) const;
    void SetDefaultRowHeight(int pixels) { rowHeight_ = pixels; }
    int DefaultRowHeight() const { return rowHeight_; }
    void SetDefaultVerticalLineStyle(int style) { verticalLineStyle_ = style; }
    int DefaultVerticalLineStyle() const { return verticalLineStyle_; }
    /// Width in pixels that the texts of a column need, headings included; `row` -1 for all rows.
    /// Never less than a slider needs.
    int GetMaxTextColWidth(int column, int row) const;
    /// Pixels for a length that is told for 96 dots per inch.
    int ScaleToDpi(int pixels) const;

    /// Null when the cell has no definition and `create` is false.
    FieldDef* GetFieldDef(int column, int row, bool create);
    const FieldDef* GetFieldDef(int column, int row) const;
    FieldDef::FieldType GetFieldType(int column, int row) const;
    void AddFieldComboSetting(int column, int row, std::string_view text);
    void ClearFieldComboSetting(int column, int row);
    void SetFieldColor(int column, int row, Colour colour);
    FieldMatrix& Fields() { return fields_; }
    VWSIDataMatrix& Data() { return data_; }
    const VWSIDataMatrix& Data() const { return data_; }

    /// Between ResetOff and ResetOn the window is not told of changes; the calls nest.
    void ResetOff();
    void ResetOn();
    /// Tells the window to read everything afresh.
    void ResetWorksheetWindow();
    /// Judges the text of an open cell editor without taking it over: false when a number cell
    /// holds no number; nothing typed is valid. `showState` is the desktop's flag and changes
    /// nothing here.
    bool IsValid(bool showState) const;

    /// Takes over the text of an open cell editor, as any click elsewhere does.
    void FinishInput();

    /// Standard paste: each cell of the clipboard's text (tabs between columns, line breaks between
    /// rows) goes through UserChangedData, beginning at the selection's first cell; cells that are
    /// not editable, and texts that a drop-down does not offer, are passed over.
    void OnEditPaste();
    bool OnUpdateEditPaste() const;
    /// The selected cells as text with tabs and line breaks, to the clipboard.
    void OnEditCopy() const;
    void OnSelectAll();

    /// The window that shows this; null before VirtualWorksheet::CreateFromStatic and after it
    /// died.
    VirtualWorksheet* Worksheet() const { return worksheet_; }

private:
    friend class VirtualWorksheet;
    void TellWindow();

    std::string name_;
    int columns_ = 0;
    int rows_ = 0;
    FieldMatrix fields_;
    VWSIDataMatrix data_;
    std::map<int, int> widths_;
    std::map<int, int> fonts_;
    int rowHeight_ = 22;
    int verticalLineStyle_ = 0;
    int resetOff_ = 0;
    VirtualWorksheet* worksheet_ = nullptr;
    VWSCellRenderer plainRenderer_;
};

}  // namespace kvopt
