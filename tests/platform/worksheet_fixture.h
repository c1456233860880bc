#pragma once

#include <string>
#include <vector>

#include "platform_test.h"

namespace kvopt {

/// Three rows: names, numbers and a column that offers no editing. Row 2 holds a drop-down and
/// row 3 a locked number.
class TestContent : public BaseWorksheetInterface {
public:
    TestContent() : BaseWorksheetInterface("Test") {
        SetSize(3, 3);
        SetColumnType(1, FieldDef::Plain);
        SetColumnType(2, FieldDef::Number);
        for (int row = 1; row <= 3; ++row) {
            SetCellValue(1, row, "name" + std::to_string(row));
            SetCellValue(2, row, std::to_string(row));
        }
        *GetFieldDef(2, 2, true) = FieldDef::Combo;
        for (const char* text : {"low", "high"}) {
            AddFieldComboSetting(2, 2, text);
        }
        *GetFieldDef(2, 3, true) = FieldDef::Locked;
    }

    bool UserChangedData(int column, int row, const char* text) override {
        heard.push_back(std::to_string(column) + "," + std::to_string(row) + "=" + text);
        if (refuses) {
            return false;
        }
        UpdateValue(column, row, text);
        return true;
    }
    bool LButtonDown(const CPoint& /*point*/, const CPoint& /*cell*/) override {
        heard.emplace_back("down");
        return usesMouse;
    }
    bool LButtonUp(const CPoint& /*point*/, const CPoint& /*cell*/) override {
        heard.emplace_back("up");
        return usesMouse;
    }
    bool MouseMove(const CPoint& /*point*/, const CPoint& /*cell*/,
                   const CRect& /*rect*/) override {
        heard.emplace_back("move");
        return usesMouse;
    }
    bool RButtonDown(CPoint& point) override {
        Desktop::Instance().ShowPopupMenu(
            *Worksheet(), point, {{kCommandSelectAll, L"&Select all"}, {kCommandPaste, L"&Paste"}});
        return true;
    }

    /// What the content was told since the last call.
    std::vector<std::string> Take() { return std::exchange(heard, {}); }

    std::vector<std::string> heard;
    bool refuses = false;
    bool usesMouse = false;
};

/// The content in a dialog.
class WorksheetTest : public ControlsTest {
protected:
    WorksheetTest() { worksheet.AddListener(&view); }
    ~WorksheetTest() override {
        if (view.gone == 0) {
            worksheet.RemoveListener(&view);
        }
    }

    TestContent content;
    CountingView view;
    VirtualWorksheet& worksheet = VirtualWorksheet::CreateFromStatic(dialog, kWorksheet, content);
};

}  // namespace kvopt
