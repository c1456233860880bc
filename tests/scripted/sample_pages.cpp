#include "tests/scripted/sample_pages.h"

#include <gtest/gtest.h>

#include "kvopt/text/kv_std_string.h"

namespace kvopt::test {

namespace {

using namespace layout;

void AddTemplates() {
    static const bool added = [] {
        TemplateCatalog& catalog = TemplateCatalog::Instance();
        catalog.Add({kFirstPage, "First page",
                     Column({
                         Label(kLowLabel, "&Low:").Buddy(kLow),
                         Edit(kLow),
                         Edit(kHigh).Named("High"),
                         ComboList(kFactor).Named("Factor"),
                         ComboEdit(kResolution).Named("Resolution"),
                         ListMulti(kAvailable).Named("Available"),
                         ListSingle(kKind).Named("Kind"),
                         Push(kOptions, "Plot &options..."),
                         Check(kColour, "Use &color"),
                         Radio(kContour, "&Contour").StartsGroup(),
                         Radio(kSurface, "&Surface"),
                         Edit(kCount).Named("Count").DigitsOnly(),
                         Spin(kCountArrows, kCount),
                         Worksheet(kGrid).Named("Constants"),
                         Push(kHidden, "Unseen").Hidden(),
                         Push(kOff, "Off").Disabled(),
                         Stack({Check(kSameHidden, "Same").Hidden(), Check(kSameShown, "Same")}),
                         Push(kTwin, "Twin"),
                         Push(kOtherTwin, "Twin"),
                     })});
        catalog.Add({kSecondPage, "Second page", Column({Edit(kLow).Named("Second low")})});
        catalog.Add({kAskDialog, "Ask", Column({Push(kOptions, "Again")})});
        return true;
    }();
    static_cast<void>(added);
}

std::string PlaceOf(const CPoint& point) {
    return std::to_string(point.x) + ',' + std::to_string(point.y);
}

void Note(const std::string& line) {
    Desktop::Instance().Note(line);
}

}  // namespace

SampleGrid::SampleGrid() : BaseWorksheetInterface("Sample") {
    SetSize(3, 3);
    SetColumnType(1, FieldDef::Plain);
    const std::vector<const char*> headings{"", "Factor", "Value", "Setting"};
    const std::vector<const char*> names{"", "Width", "Grade", "Fixed"};
    const std::vector<const char*> values{"", "2.5", "A", "7"};
    for (int position = 1; position <= 3; ++position) {
        const auto at = static_cast<std::size_t>(position);
        SetCellValue(position, 0, headings[at]);
        SetCellValue(1, position, names[at]);
        SetCellValue(2, position, values[at]);
        SetColumnWidth(position, 102);
    }
    *GetFieldDef(2, 1, true) = FieldDef::Number;
    *GetFieldDef(2, 2, true) = FieldDef::Combo;
    AddFieldComboSetting(2, 2, "A");
    AddFieldComboSetting(2, 2, "B");
    *GetFieldDef(2, 3, true) = FieldDef::Locked;
}

const VWSRenderer* SampleGrid::GetCellRenderer(int column, int row) const {
    return column == 3 && row == 1 ? static_cast<const VWSRenderer*>(this)
                                   : BaseWorksheetInterface::GetCellRenderer(column, row);
}

bool SampleGrid::UserChangedData(int column, int row, const char* text) {
    Note("changed " + PlaceOf({column, row}) + ' ' + text);
    SetCellValue(column, row, text);
    return true;
}

void SampleGrid::NoteMouse(const char* what, const CPoint& point, const CPoint& cell) const {
    Note(std::string(what) + ' ' + PlaceOf(cell) + " at " + PlaceOf(point));
}

bool SampleGrid::LButtonDown(const CPoint& point, const CPoint& cell) {
    NoteMouse("press", point, cell);
    return false;
}

bool SampleGrid::LButtonUp(const CPoint& point, const CPoint& cell) {
    NoteMouse("release", point, cell);
    return true;
}

bool SampleGrid::MouseMove(const CPoint& point, const CPoint& cell, const CRect& rect) {
    NoteMouse("move", point, cell);
    EXPECT_EQ(rect, (CRect{0, 0, 102, DefaultRowHeight()}));
    Desktop::Instance().SetCursor(cell.x == 3 && !isClosed ? Cursor::SizeHorizontal
                                                           : Cursor::Arrow);
    return true;
}

bool SampleGrid::RButtonDown(CPoint& point) {
    Desktop::Instance().ShowPopupMenu(*Worksheet(), point, menu);
    return true;
}

bool SampleGrid::GetToolTipText(int column, int row, std::wstring& text) {
    if (column != 1) {
        return false;
    }
    text = L"Tip " + std::to_wstring(row);
    return true;
}

void SampleGrid::DrawCell(CellCanvas& /*canvas*/, const BaseWorksheetInterface& /*worksheet*/,
                          int /*column*/, int /*row*/, const CRect& /*rect*/) const {}

std::optional<CellSlider> SampleGrid::Slider(const BaseWorksheetInterface& worksheet,
                                             int /*column*/, int row) const {
    return CellSlider{0.0F, 10.0F, std::stof(worksheet.GetCellText(2, row)), 0.1F};
}

SamplePage::SamplePage(int number) : CPropertyPage((AddTemplates(), number)) {}

bool SamplePage::OnInitDialog() {
    CPropertyPage::OnInitDialog();
    if (TemplateNumber() != kFirstPage) {
        return true;
    }
    for (const wchar_t* name : {L"Temp", L"Temp2", L"Time"}) {
        Item<CComboBox>(kFactor)->AddString(name);
        Item<CComboBox>(kResolution)->AddString(name);
        Item<CListBox>(kAvailable)->AddString(name);
        Item<CListBox>(kKind)->AddString(name);
    }
    Item<CButton>(kContour)->SetCheck(true);
    Item<CSpinButtonCtrl>(kCountArrows)->SetRange(1, 5);
    Item<CSpinButtonCtrl>(kCountArrows)->SetPos(2);
    VirtualWorksheet::CreateFromStatic(*this, kGrid, grid);
    isShown_ = true;
    return true;
}

bool SamplePage::OnSetActive() {
    if (Sheet() != nullptr) {
        Sheet()->SetWizardButtons(TemplateNumber() == kFirstPage ? kWizardNext
                                                                 : kWizardBack | kWizardFinish);
    }
    return CPropertyPage::OnSetActive();
}

bool SamplePage::OnApply() {
    return onApply ? onApply() : CPropertyPage::OnApply();
}

void SamplePage::GetMessageMap(MessageMap& map) {
    CPropertyPage::GetMessageMap(map);
    if (TemplateNumber() != kFirstPage) {
        return;
    }
    const auto note = [this](int number, const char* what) {
        return [this, number, what] {
            if (!isShown_) {
                return;
            }
            Note(std::string(what) + ' ' + std::to_string(number) + ' ' +
                 KvStdString::ToUtf8(GetDlgItem(number)->GetText()));
        };
    };
    for (const int number : {kLow, kHigh, kCount, kResolution}) {
        map.OnChanged(number, note(number, "changed"));
    }
    for (const int number : {kFactor, kAvailable, kKind, kResolution}) {
        map.OnSelectionChanged(number, note(number, "selection"));
    }
    map.OnDoubleClicked(kAvailable, note(kAvailable, "double click"));
    for (const int number : {kColour, kContour, kSurface, kSameShown}) {
        map.OnClicked(number, note(number, "clicked"));
    }
    map.OnClicked(kOptions, [this] {
        if (onOptions) {
            onOptions();
        }
    });
}

bool SamplePage::PreTranslateMessage(const KeyStroke& key) {
    if (key == KeyStroke{'K', true}) {
        Note("the page takes Ctrl+K");
        return true;
    }
    return CPropertyPage::PreTranslateMessage(key);
}

void AskDialog::GetMessageMap(MessageMap& map) {
    CDialog::GetMessageMap(map);
    map.OnClicked(kOptions, [this] {
        if (onAgain) {
            onAgain();
        }
    });
}

}  // namespace kvopt::test
