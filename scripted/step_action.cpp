#include "scripted/step_action.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "kvopt/platform/controls.h"
#include "kvopt/platform/property_grid.h"
#include "kvopt/platform/property_page.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/scripted/slider_path.h"
#include "kvopt/scripted/step_gestures.h"
#include "kvopt/text/kv_std_string.h"
#include "scripted/control_names.h"
#include "scripted/grid_rows.h"
#include "scripted/script_lexer.h"
#include "scripted/script_words.h"

namespace kvopt {

namespace {

constexpr double kMiddle = 50.0;

std::string Refused(bool done) {
    return done ? "" : "the control refused";
}

std::string NoEntry(const std::string& entry, const std::vector<std::string>& entries) {
    return "there is no entry " + QuoteForScript(entry) + "; there are " + QuoteForScript(entries);
}

/// One step on its way: what it needs, and what it found.
class StepAction {
public:
    StepAction(Desktop& desktop, StepGestures& gestures, const StepScope& scope,
               const UserStep& step)
        : desktop_(desktop), gestures_(gestures), scope_(scope), step_(step) {}

    std::string Perform();

private:
    std::string OnControl();
    std::string OnCell();
    std::string OnItem();
    std::string TypeIntoCell(bool commit);
    std::string PickInCell();
    std::string PickInRow();
    std::string Drag();
    std::string DragTo(CPoint thumb, CPoint cell, CPoint pixel);
    std::string Select();
    std::string PasteIntoCell();

    std::string PickEntry();
    std::string MarkEntries();
    std::string DoubleClickEntry();
    std::string Spin();
    std::string SelectTab();
    std::string PressFrame(FrameButton button);
    std::string EntryIndex(const CItemControl& list, const std::string& text, int& index) const;
    const std::string& Text() const { return step_.values.front(); }
    std::wstring WideText() const { return KvStdString::ToWide(Text()); }
    BaseWorksheetInterface& Content() const { return *found_.Worksheet()->Content(); }

    Desktop& desktop_;
    StepGestures& gestures_;
    const StepScope& scope_;
    const UserStep& step_;
    FoundTarget found_;
};

std::string StepAction::Perform() {
    if (const std::optional<FrameButton> button = ButtonOfVerb(step_.verb)) {
        return PressFrame(*button);
    }
    switch (step_.verb) {
        case StepVerb::Key:
            return gestures_.PressKey(scope_, step_.key) ? "" : "the key does nothing here";
        case StepVerb::Tab:
            return SelectTab();
        case StepVerb::Wait:
            return Refused(gestures_.Wait(static_cast<unsigned>(step_.count)));
        case StepVerb::Picture:
            return gestures_.TakePicture(Text()) ? "" : "the picture could not be kept";
        default:
            break;
    }
    found_ = FindTarget(scope_, step_);
    if (!found_) {
        return found_.problem;
    }
    if (step_.target.kind == StepTarget::Kind::Item) {
        return OnItem();
    }
    return step_.target.kind == StepTarget::Kind::Cell ? OnCell() : OnControl();
}

std::string StepAction::OnControl() {
    switch (step_.verb) {
        case StepVerb::Focus:
            return Refused(gestures_.Focus(*found_.control));
        case StepVerb::Click:
            return Refused(gestures_.Click(static_cast<CButton&>(*found_.control)));
        case StepVerb::Type:
            return Refused(gestures_.Type(*found_.control, WideText()));
        case StepVerb::Paste:
            desktop_.SetClipboardText(WideText());
            return Refused(gestures_.Paste(*found_.control, WideText()));
        case StepVerb::Pick:
            return PickEntry();
        case StepVerb::Mark:
            return MarkEntries();
        case StepVerb::DoubleClick:
            return DoubleClickEntry();
        case StepVerb::Spin:
            return Spin();
        default:
            return "the step needs a cell";
    }
}

std::string StepAction::OnCell() {
    VirtualWorksheet& worksheet = *found_.Worksheet();
    switch (step_.verb) {
        case StepVerb::Type:
            return TypeIntoCell(true);
        case StepVerb::Edit:
            return TypeIntoCell(false);
        case StepVerb::Paste:
            return PasteIntoCell();
        case StepVerb::Pick:
            return PickInCell();
        case StepVerb::Select:
        case StepVerb::Click:
        case StepVerb::Focus:
            return Select();
        case StepVerb::Drag:
            return Drag();
        case StepVerb::Hover:
            return Refused(gestures_.MoveMouse(
                worksheet, found_.cell,
                CellPixelAtShare(Content(), found_.cell, step_.share.value_or(kMiddle))));
        case StepVerb::Menu:
            return Refused(gestures_.ContextMenu(
                worksheet, found_.cell, CellPixelAtShare(Content(), found_.cell, kMiddle)));
        default:
            return "the step does not fit a cell";
    }
}

std::string StepAction::OnItem() {
    CXTPPropertyGrid& grid = *found_.Grid();
    CXTPPropertyGridItem& row = *found_.item;
    switch (step_.verb) {
        case StepVerb::Focus:
            return Refused(gestures_.SelectRow(grid, row));
        case StepVerb::Click:
            return Refused(gestures_.ToggleRow(grid, row));
        case StepVerb::Expand:
        case StepVerb::Collapse:
            return Refused(gestures_.ExpandRow(grid, row, step_.verb == StepVerb::Expand));
        case StepVerb::Type:
        case StepVerb::Edit:
            return Refused(
                gestures_.TypeIntoRow(grid, row, WideText(), step_.verb == StepVerb::Type));
        case StepVerb::Pick:
            return PickInRow();
        default:
            return "the step does not fit a row of a property grid";
    }
}

std::string StepAction::PickInRow() {
    const std::vector<PropertyGridChoice> choices = found_.item->Choices();
    const std::vector<std::string> entries = ChoiceTexts(*found_.item);
    const auto entry = std::find(entries.begin(), entries.end(), Text());
    if (entry == entries.end()) {
        return NoEntry(Text(), entries);
    }
    const auto index = entry - entries.begin();
    if (!choices[static_cast<std::size_t>(index)].enabled) {
        return "the entry " + QuoteForScript(Text()) + " is disabled";
    }
    return Refused(gestures_.PickInRow(*found_.Grid(), *found_.item, static_cast<int>(index)));
}

std::string StepAction::TypeIntoCell(bool commit) {
    if (Content().GetFieldType(found_.cell.x, found_.cell.y) != FieldDef::Number) {
        return "the cell takes no typing";
    }
    return Refused(gestures_.TypeIntoCell(*found_.Worksheet(), found_.cell, Text(), commit));
}

std::string StepAction::PasteIntoCell() {
    desktop_.SetClipboardText(WideText());
    const CPoint cell = found_.cell;
    return Refused(gestures_.SelectCells(*found_.Worksheet(), {cell.x, cell.y, cell.x, cell.y}) &&
                   gestures_.PasteIntoCells(*found_.Worksheet()));
}

std::string StepAction::PickInCell() {
    const FieldDef* field = std::as_const(Content()).GetFieldDef(found_.cell.x, found_.cell.y);
    if (field == nullptr || field->Type() != FieldDef::Combo) {
        return "the cell offers no list";
    }
    const std::vector<std::string>& entries = field->ComboSettings();
    const auto entry = std::find(entries.begin(), entries.end(), Text());
    if (entry == entries.end()) {
        return NoEntry(Text(), entries);
    }
    return Refused(gestures_.PickInCell(*found_.Worksheet(), found_.cell,
                                        static_cast<int>(entry - entries.begin())));
}

std::string StepAction::Select() {
    const CPoint from = found_.cell;
    CPoint to = from;
    if (step_.to.kind == StepTarget::Kind::Cell) {
        const FoundTarget second = FindSecondTarget(scope_, step_);
        if (!second) {
            return second.problem;
        }
        to = second.cell;
    }
    return Refused(gestures_.SelectCells(*found_.Worksheet(),
                                         {std::min(from.x, to.x), std::min(from.y, to.y),
                                          std::max(from.x, to.x), std::max(from.y, to.y)}));
}

std::string StepAction::Drag() {
    const std::optional<CellSlider> slider = SliderOfCell(Content(), found_.cell);
    if (!slider) {
        return "the cell shows no slider";
    }
    if (slider->value < slider->low || slider->value > slider->high) {
        return "the slider shows no thumb, its value lies outside " +
               NumberText(static_cast<double>(slider->low)) + " to " +
               NumberText(static_cast<double>(slider->high));
    }
    const CPoint thumb =
        CellPixelOfValue(Content(), found_.cell, *slider, static_cast<double>(slider->value));
    if (step_.to.kind == StepTarget::Kind::Cell) {
        const FoundTarget second = FindSecondTarget(scope_, step_);
        if (!second) {
            return second.problem;
        }
        return DragTo(thumb, second.cell,
                      CellPixelAtShare(Content(), second.cell, step_.share.value_or(kMiddle)));
    }
    return DragTo(thumb, found_.cell,
                  step_.number
                      ? CellPixelOfValue(Content(), found_.cell, *slider, *step_.number)
                      : CellPixelAtShare(Content(), found_.cell, step_.share.value_or(kMiddle)));
}

std::string StepAction::DragTo(CPoint thumb, CPoint cell, CPoint pixel) {
    VirtualWorksheet& worksheet = *found_.Worksheet();
    if (!gestures_.MoveMouse(worksheet, found_.cell, thumb) ||
        desktop_.GetCursor() != Cursor::SizeHorizontal) {
        return "the slider cannot be dragged";
    }
    return Refused(gestures_.PressMouse(worksheet, found_.cell, thumb) &&
                   gestures_.MoveMouse(worksheet, cell, pixel) &&
                   gestures_.ReleaseMouse(worksheet, cell, pixel));
}

std::string StepAction::EntryIndex(const CItemControl& list, const std::string& text,
                                   int& index) const {
    std::vector<std::string> entries;
    for (index = 0; index < list.GetCount(); ++index) {
        if (entries.emplace_back(KvStdString::ToUtf8(list.GetItemText(index))) == text) {
            return "";
        }
    }
    return NoEntry(text, entries);
}

std::string StepAction::PickEntry() {
    auto& combo = static_cast<CComboBox&>(*found_.control);
    int index = -1;
    std::string problem = EntryIndex(combo, Text(), index);
    return problem.empty() ? Refused(gestures_.Pick(combo, index)) : problem;
}

std::string StepAction::DoubleClickEntry() {
    auto& list = static_cast<CListBox&>(*found_.control);
    int index = -1;
    std::string problem = EntryIndex(list, Text(), index);
    return problem.empty() ? Refused(gestures_.DoubleClick(list, index)) : problem;
}

std::string StepAction::MarkEntries() {
    auto& list = static_cast<CListBox&>(*found_.control);
    if (!list.IsMultiple() && step_.values.size() != 1) {
        return "the list takes just one mark";
    }
    std::vector<int> indices;
    for (const std::string& entry : step_.values) {
        std::string problem = EntryIndex(list, entry, indices.emplace_back());
        if (!problem.empty()) {
            return problem;
        }
    }
    return Refused(gestures_.Mark(list, indices));
}

std::string StepAction::Spin() {
    auto* spin = dynamic_cast<CSpinButtonCtrl*>(found_.control);
    if (spin == nullptr) {
        for (const auto& control : scope_.ActiveDialog()->Controls()) {
            if (control->Kind() == ControlKind::Spin &&
                control->Template().buddy == found_.control->Number()) {
                spin = static_cast<CSpinButtonCtrl*>(control.get());
            }
        }
    }
    if (spin == nullptr || !spin->IsUsable()) {
        return "there are no arrows that can be clicked beside " + DescribeControl(*found_.control);
    }
    for (int click = 0; click < std::abs(step_.count); ++click) {
        if (!gestures_.Spin(*spin, step_.count > 0)) {
            return Refused(false);
        }
    }
    return "";
}

std::string StepAction::SelectTab() {
    if (scope_.sheet == nullptr || scope_.sheet->IsWizard()) {
        return "there are no tabs here";
    }
    std::vector<std::string> captions;
    captions.reserve(static_cast<std::size_t>(scope_.sheet->GetPageCount()));
    for (int index = 0; index < scope_.sheet->GetPageCount(); ++index) {
        captions.push_back(PlainLabel(scope_.sheet->GetPage(index)->PageTitle()));
        if (captions.back() == PlainLabel(WideText())) {
            // A page that refuses to be left keeps its place: that is for the script to expect.
            gestures_.SelectTab(*scope_.sheet, index);
            return "";
        }
    }
    return "there is no tab " + QuoteForScript(Text()) + "; there are " + QuoteForScript(captions);
}

std::string StepAction::PressFrame(FrameButton button) {
    const std::string name = FrameButtonText(button);
    if (!HasFrameButton(scope_, button)) {
        return "there is no button " + name + " here";
    }
    if (!IsFrameButtonEnabled(scope_, button)) {
        return "the button " + name + " is off";
    }
    gestures_.Press(scope_, button);
    return "";
}

}  // namespace

std::string PerformStep(Desktop& desktop, StepGestures& gestures, const StepScope& scope,
                        const UserStep& step) {
    return StepAction(desktop, gestures, scope, step).Perform();
}

}  // namespace kvopt
