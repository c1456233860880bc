#include "scripted/step_check.h"

#include <vector>

#include "kvopt/platform/controls.h"
#include "kvopt/platform/property_grid.h"
#include "kvopt/platform/property_page.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/scripted/step_target.h"
#include "kvopt/text/kv_std_string.h"
#include "scripted/control_names.h"
#include "scripted/grid_rows.h"
#include "scripted/script_lexer.h"
#include "scripted/script_words.h"

namespace kvopt {

namespace {

std::string Differs(bool isSo, const std::string& instead) {
    return isSo ? "" : "it is " + instead;
}

std::string CheckText(const std::string& expected, const std::string& found) {
    return Differs(expected == found, QuoteForScript(found));
}

std::string CheckTexts(const std::vector<std::string>& expected,
                       const std::vector<std::string>& found) {
    if (expected == found) {
        return "";
    }
    return "there are " + QuoteForScript(found);
}

std::string CheckPage(const StepScope& scope, const UserStep& step) {
    const CDialog* active = scope.ActiveDialog();
    if (active == nullptr) {
        return "no page is shown";
    }
    if (step.values.empty()) {
        return Differs(active->TemplateNumber() == step.count, scope.Describe());
    }
    return Differs(TitleOf(*active) == step.values.front(), scope.Describe());
}

std::string CheckFrame(const StepScope& scope, const UserStep& step) {
    const bool isShown = HasFrameButton(scope, step.target.button);
    const bool isOn = IsFrameButtonEnabled(scope, step.target.button);
    switch (step.verb) {
        case StepVerb::ExpectVisible:
            return Differs(isShown, "not there");
        case StepVerb::ExpectHidden:
            return Differs(!isShown, "there");
        case StepVerb::ExpectEnabled:
            return Differs(isOn, isShown ? "off" : "not there");
        default:
            return Differs(isShown && !isOn, isShown ? "on" : "not there");
    }
}

std::string TextOf(const FoundTarget& found, bool isCell) {
    if (!isCell) {
        return KvStdString::ToUtf8(found.control->GetText());
    }
    const VirtualWorksheet& worksheet = *found.Worksheet();
    return worksheet.EditedCell() == found.cell
               ? worksheet.EditorText()
               : worksheet.Content()->GetCellText(found.cell.x, found.cell.y);
}

std::vector<std::string> EntriesOf(const FoundTarget& found, bool isCell) {
    std::vector<std::string> entries;
    if (const auto* list = dynamic_cast<const CItemControl*>(found.control)) {
        for (int index = 0; index < list->GetCount(); ++index) {
            entries.push_back(KvStdString::ToUtf8(list->GetItemText(index)));
        }
        return entries;
    }
    if (const CXTPPropertyGrid* grid = found.Grid()) {
        for (const CXTPPropertyGridItem* row : grid->ShownRows()) {
            entries.push_back(KvStdString::ToUtf8(row->GetCaption()));
        }
        return entries;
    }
    const VirtualWorksheet* worksheet = found.Worksheet();
    const BaseWorksheetInterface* content = worksheet != nullptr ? worksheet->Content() : nullptr;
    if (content == nullptr) {
        return entries;
    }
    if (isCell) {
        const FieldDef* field = content->GetFieldDef(found.cell.x, found.cell.y);
        return field != nullptr ? field->ComboSettings() : entries;
    }
    for (int row = 1; row <= content->RowCount(); ++row) {
        const std::string key = content->GetCellText(1, row);
        if (!key.empty()) {
            entries.push_back(key);
        }
    }
    return entries;
}

std::vector<std::string> MarkedOf(const CListBox& list) {
    std::vector<std::string> marked;
    for (const int index : list.GetSelItems()) {
        marked.push_back(KvStdString::ToUtf8(list.GetItemText(index)));
    }
    return marked;
}

std::string TipOf(const FoundTarget& found) {
    std::wstring tip;
    const bool has = found.Worksheet()->Content()->GetToolTipText(found.cell.x, found.cell.y, tip);
    return has ? KvStdString::ToUtf8(tip) : "";
}

std::string CheckFocus(const CDialog& dialog, const CControl* control) {
    const CControl* focus = dialog.GetFocusControl();
    return focus == control   ? ""
           : focus != nullptr ? DescribeControl(*focus) + " has the focus"
                              : "no control has the focus";
}

std::string CheckItem(const CDialog& dialog, const UserStep& step, const FoundTarget& found) {
    const CXTPPropertyGrid& grid = *found.Grid();
    const CXTPPropertyGridItem& row = *found.item;
    const CXTPPropertyGridItem* selected = grid.GetSelectedItem();
    switch (step.verb) {
        case StepVerb::ExpectText:
            return CheckText(step.values.front(),
                             KvStdString::ToUtf8(grid.EditedItem() == &row ? grid.EditorText()
                                                                           : row.GetValue()));
        case StepVerb::ExpectEntries:
            return CheckTexts(step.values, ChoiceTexts(row));
        case StepVerb::ExpectEnabled:
            return Differs(!row.GetReadOnly(), "read-only");
        case StepVerb::ExpectDisabled:
            return Differs(row.GetReadOnly(), "not read-only");
        case StepVerb::ExpectVisible:
            return Differs(row.IsShown(), "hidden");
        case StepVerb::ExpectHidden:
            return Differs(!row.IsShown(), "visible");
        case StepVerb::ExpectFocus:
            if (selected != &row) {
                return selected != nullptr ? "row " + PathOf(*selected) + " is selected"
                                           : "no row is selected";
            }
            return CheckFocus(dialog, &grid);
        default:
            return "the step does not fit a row of a property grid";
    }
}

/// What the pane below a property grid says of the selected row.
std::string CheckDescription(const StepScope& scope, const UserStep& step) {
    const CDialog* active = scope.ActiveDialog();
    if (active == nullptr) {
        return "no page is shown";
    }
    for (const auto& control : active->Controls()) {
        if (const auto* grid = dynamic_cast<const CXTPPropertyGrid*>(control.get())) {
            const CXTPPropertyGridItem* row = grid->GetSelectedItem();
            return !grid->IsHelpVisible()
                       ? "no descriptions are shown"
                       : CheckText(
                             step.values.front(),
                             row != nullptr ? KvStdString::ToUtf8(row->GetDescription()) : "");
        }
    }
    return scope.Describe() + " has no property grid";
}

std::string CheckControl(const StepScope& scope, const UserStep& step) {
    const FoundTarget found = FindTarget(scope, step);
    if (!found) {
        return found.problem;
    }
    if (found.item != nullptr) {
        return CheckItem(*scope.ActiveDialog(), step, found);
    }
    const CControl& control = *found.control;
    const bool isCell = step.target.kind == StepTarget::Kind::Cell;
    const auto* button = dynamic_cast<const CButton*>(found.control);
    switch (step.verb) {
        case StepVerb::ExpectText:
            return CheckText(step.values.front(), TextOf(found, isCell));
        case StepVerb::ExpectEntries:
            return CheckTexts(step.values, EntriesOf(found, isCell));
        case StepVerb::ExpectMarked:
            return CheckTexts(step.values, MarkedOf(static_cast<const CListBox&>(control)));
        case StepVerb::ExpectTip:
            return CheckText(step.values.front(), TipOf(found));
        case StepVerb::ExpectChecked:
            return Differs(button->GetCheck(), "unchecked");
        case StepVerb::ExpectUnchecked:
            return Differs(!button->GetCheck(), "checked");
        case StepVerb::ExpectEnabled:
            return Differs(control.IsEnabled(), "disabled");
        case StepVerb::ExpectDisabled:
            return Differs(!control.IsEnabled(), "enabled");
        case StepVerb::ExpectVisible:
            return Differs(control.IsVisible(), "hidden");
        case StepVerb::ExpectHidden:
            return Differs(!control.IsVisible(), "visible");
        case StepVerb::ExpectFocus:
            return CheckFocus(*scope.ActiveDialog(), found.control);
        default:
            return "the step checks nothing";
    }
}

}  // namespace

std::string CheckStep(const Desktop& desktop, const StepScope& scope, const UserStep& step) {
    switch (step.verb) {
        case StepVerb::ExpectPage:
            return CheckPage(scope, step);
        case StepVerb::ExpectCursor:
            return Differs(desktop.GetCursor() == step.cursor, CursorText(desktop.GetCursor()));
        case StepVerb::ExpectDescription:
            return CheckDescription(scope, step);
        case StepVerb::ExpectClipboard:
            return CheckText(step.values.front(), KvStdString::ToUtf8(desktop.ClipboardText()));
        default:
            return step.target.kind == StepTarget::Kind::Frame ? CheckFrame(scope, step)
                                                               : CheckControl(scope, step);
    }
}

}  // namespace kvopt
