#include "tests/qt/every_kind_page.h"

#include "kvopt/text.h"

namespace kvopt::test {

namespace {

using namespace layout;

void AddTemplates() {
    static const bool added = [] {
        TemplateCatalog& catalog = TemplateCatalog::Instance();
        catalog.Add(
            {kEveryKind, "Every kind",
             Column({Grid(2, {Label(kNameLabel, "&Name:").Buddy(kName), Edit(kName).Stretch(1),
                              Text("&Axis:").Buddy(kAxis), ComboList(kAxis).Named("Axis"),
                              Text("&Scale:").Buddy(kScale), ComboEdit(kScale).Named("Scale")}),
                     Row({ListMulti(kMany).Named("Many").Stretch(1),
                          ListSingle(kOne).Named("One").Stretch(1)}),
                     Row({Push(kPush, "&Push me"), Check(kCheck, "&Check me"), Space()}),
                     Group("Radio", {Radio(kFirst, "&First").StartsGroup(),
                                     Radio(kSecond, "S&econd"), Radio(kThird, "&Third")}),
                     Row({Text("&Digits:").Buddy(kDigits),
                          Edit(kDigits).Named("Digits").DigitsOnly(), Spin(kArrows, kDigits)}),
                     Worksheet(kCells).Named("Cells").Stretch(1), Push(kNever, "Never").Hidden(),
                     Stack({Check(kAlike, "Alike").Hidden(), Check(kAlikeToo, "Alike")})})});
        catalog.Add(
            {kPlainPage, "Plain page",
             Column({Row({Text("&Word:").Buddy(kName), Edit(kName)}), Push(kPush, "&Push me")})});
        catalog.Add({kQuestion, "A question", Column({Edit(kName).Named("Answer")})});
        return true;
    }();
    static_cast<void>(added);
}

std::string PlaceOf(const char* what, const CPoint& point, const CPoint& cell) {
    return std::string(what) + ' ' + std::to_string(cell.x) + ',' + std::to_string(cell.y) +
           " at " + std::to_string(point.x) + ',' + std::to_string(point.y);
}

}  // namespace

MouseGrid::MouseGrid() : BaseWorksheetInterface("Mouse") {
    SetSize(3, 4);
    SetColumnWidth(0, 0);
    const char* const headings[] = {"", "Factor", "Value", "Setting"};
    const char* const names[] = {"", "Width", "Grade", "Fixed", "Depth"};
    const char* const values[] = {"", "2.5", "A", "7", "4"};
    for (int column = 1; column <= 3; ++column) {
        SetCellValue(column, 0, headings[column]);
        SetColumnWidth(column, 102);
    }
    for (int row = 1; row <= 4; ++row) {
        SetCellValue(1, row, names[row]);
        SetCellValue(2, row, values[row]);
    }
    *GetFieldDef(2, 1, true) = FieldDef::Number;
    *GetFieldDef(2, 2, true) = FieldDef::Combo;
    AddFieldComboSetting(2, 2, "A");
    AddFieldComboSetting(2, 2, "B");
    *GetFieldDef(2, 3, true) = FieldDef::Locked;
    *GetFieldDef(2, 4, true) = FieldDef::Number;
}

const VWSRenderer* MouseGrid::GetCellRenderer(int column, int row) const {
    return column == 3 && row == 1 ? static_cast<const VWSRenderer*>(this)
                                   : BaseWorksheetInterface::GetCellRenderer(column, row);
}

bool MouseGrid::UserChangedData(int column, int row, const char* text) {
    calls.push_back("changed " + std::to_string(column) + ',' + std::to_string(row) + ' ' + text);
    SetCellValue(column, row, text);
    return true;
}

bool MouseGrid::LButtonDown(const CPoint& point, const CPoint& cell) {
    calls.push_back(PlaceOf("press", point, cell));
    return false;
}

bool MouseGrid::LButtonUp(const CPoint& point, const CPoint& cell) {
    calls.push_back(PlaceOf("release", point, cell));
    return cell.x == 3;
}

bool MouseGrid::MouseMove(const CPoint& point, const CPoint& cell, const CRect& rect) {
    calls.push_back(PlaceOf("move", point, cell) + " in " + std::to_string(rect.left) + ',' +
                    std::to_string(rect.top) + ' ' + std::to_string(rect.Width()) + 'x' +
                    std::to_string(rect.Height()));
    if (onMove) {
        onMove();
    }
    const bool onSlider = cell.x == 3 && cell.y >= 1;
    if (onSlider) {
        Desktop::Instance().SetCursor(Cursor::SizeHorizontal);
    }
    return onSlider;
}

bool MouseGrid::RButtonDown(CPoint& point) {
    calls.push_back("menu");
    Desktop::Instance().ShowPopupMenu(
        *Worksheet(), point,
        {{kCommandSelectAll, L"&Select all", true}, {}, {kCommandCopy, L"&Copy", true}});
    return true;
}

bool MouseGrid::GetToolTipText(int column, int row, std::wstring& text) {
    text = L"Tip of row " + std::to_wstring(row);
    return column == 2;
}

void MouseGrid::DrawCell(CellCanvas& canvas, const BaseWorksheetInterface& worksheet,
                         int /*column*/, int row, const CRect& rect) const {
    const CellSlider slider = *Slider(worksheet, 3, row);
    const VWSCellPainter painter(&canvas, slider.low, slider.high, rect, slider.margin);
    painter.DrawChannel();
    painter.DrawThumb(slider.value);
}

std::optional<CellSlider> MouseGrid::Slider(const BaseWorksheetInterface& worksheet, int /*column*/,
                                            int row) const {
    float value = 0.0F;
    KvString::ToFloat(worksheet.GetCellText(2, row), value);
    return CellSlider{0.0F, 10.0F, value, 0.07F};
}

EveryKindPage::EveryKindPage(int number, unsigned helpTopic)
    : KvPropertyPage((AddTemplates(), static_cast<unsigned>(number)), 0, nullptr, helpTopic) {}

bool EveryKindPage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    if (TemplateNumber() == kEveryKind) {
        for (const wchar_t* text : {L"Time", L"Temp", L"Temp2"}) {
            for (const int number : {kAxis, kScale, kMany, kOne}) {
                The<CItemControl>(number).AddString(text);
            }
        }
        The<CSpinButtonCtrl>(kArrows).SetRange(1, 5);
        The<CSpinButtonCtrl>(kArrows).SetPos(2);
        VirtualWorksheet::CreateFromStatic(*this, kCells, grid);
    }
    Unchanged();
    hears_ = true;
    return true;
}

bool EveryKindPage::OnKillActive() {
    return onKill ? onKill() : KvPropertyPage::OnKillActive();
}

bool EveryKindPage::OnApply() {
    return onApply ? onApply() : KvPropertyPage::OnApply();
}

int EveryKindPage::OnWizardNext() {
    return next;
}

int EveryKindPage::OnWizardBack() {
    return back;
}

bool EveryKindPage::PreTranslateMessage(const KeyStroke& key) {
    keys.push_back(key);
    return takesKeys || KvPropertyPage::PreTranslateMessage(key);
}

void EveryKindPage::GetMessageMap(MessageMap& map) {
    KvPropertyPage::GetMessageMap(map);
    const auto note = [this](const char* what, int number) {
        return [this, what, number] {
            if (hears_) {
                heard.push_back(std::string(what) + ' ' + std::to_string(number) + ' ' +
                                KvStdString::ToUtf8(GetDlgItem(number)->GetText()));
                Changed();
            }
        };
    };
    for (const int number : {kName, kScale, kDigits, kCells}) {
        map.OnChanged(number, note("changed", number));
    }
    for (const int number : {kAxis, kScale, kMany, kOne}) {
        map.OnSelectionChanged(number, note("selection", number));
    }
    for (const int number : {kMany, kOne}) {
        map.OnDoubleClicked(number, note("double-click", number));
    }
    for (const int number : {kCheck, kFirst, kSecond, kThird, kAlikeToo}) {
        map.OnClicked(number, note("click", number));
    }
    map.OnClicked(kPush, [this, tell = note("click", kPush)] {
        tell();
        if (onPush) {
            onPush();
        }
    });
}

}  // namespace kvopt::test
