#include "kvopt/scripted/step_target.h"

#include <algorithm>
#include <vector>

#include "kvopt/platform/controls.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/property_grid.h"
#include "kvopt/platform/property_page.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/text/kv_std_string.h"
#include "scripted/control_names.h"
#include "scripted/grid_rows.h"
#include "scripted/script_lexer.h"

namespace kvopt {

namespace {

/// Which kinds of control a verb fits, and how a message names them.
struct VerbFit {
    std::vector<ControlKind> kinds;  ///< empty for every kind
    const char* wants = "";
    bool userActs = true;
};

VerbFit FitOf(StepVerb verb) {
    switch (verb) {
        case StepVerb::Click:
            return {{ControlKind::Push, ControlKind::Check, ControlKind::Radio},
                    "a push button, a check box or a radio button"};
        case StepVerb::DoubleClick:
        case StepVerb::Mark:
            return {{ControlKind::ListSingle, ControlKind::ListMulti}, "a list"};
        case StepVerb::Focus:
            return {{ControlKind::Edit, ControlKind::ComboList, ControlKind::ComboEdit,
                     ControlKind::ListSingle, ControlKind::ListMulti, ControlKind::Push,
                     ControlKind::Check, ControlKind::Radio, ControlKind::Worksheet,
                     ControlKind::PropertyGrid},
                    "a control that takes the focus"};
        case StepVerb::Type:
            return {{ControlKind::Edit, ControlKind::ComboEdit},
                    "an edit or a drop-down list with free text"};
        case StepVerb::Paste:
            return {{ControlKind::Edit}, "an edit"};
        case StepVerb::Pick:
            return {{ControlKind::ComboList, ControlKind::ComboEdit}, "a drop-down list"};
        case StepVerb::Spin:
            return {{ControlKind::Spin, ControlKind::Edit}, "arrows, or the edit beside them"};
        case StepVerb::ExpectChecked:
        case StepVerb::ExpectUnchecked:
            return {
                {ControlKind::Check, ControlKind::Radio}, "a check box or a radio button", false};
        case StepVerb::ExpectEntries:
            return {{ControlKind::ComboList, ControlKind::ComboEdit, ControlKind::ListSingle,
                     ControlKind::ListMulti, ControlKind::Worksheet, ControlKind::PropertyGrid},
                    "a list, a drop-down list, a worksheet or a property grid",
                    false};
        case StepVerb::ExpectMarked:
            return {{ControlKind::ListSingle, ControlKind::ListMulti}, "a list", false};
        default:
            return {{}, "", !IsExpectation(verb)};
    }
}

FoundTarget Problem(std::string text) {
    FoundTarget found;
    found.problem = std::move(text);
    return found;
}

bool Fits(const CControl& control, const VerbFit& fit) {
    return fit.kinds.empty() ||
           std::find(fit.kinds.begin(), fit.kinds.end(), control.Kind()) != fit.kinds.end();
}

std::string WhyUnusable(const CControl& control) {
    const std::string which = DescribeControl(control);
    if (!control.IsVisible()) {
        return which + " is hidden";
    }
    if (!control.IsEnabled()) {
        return which + " is disabled";
    }
    return which + " stands on a page that is hidden or disabled";
}

FoundTarget Checked(CControl& control, const VerbFit& fit) {
    if (!Fits(control, fit)) {
        return Problem(DescribeControl(control) + " is not " + fit.wants);
    }
    if (fit.userActs && !control.IsUsable()) {
        return Problem(WhyUnusable(control));
    }
    FoundTarget found;
    found.control = &control;
    return found;
}

/// Keeps those for which `isBetter` holds, when there is one.
template <class Test>
void Prefer(std::vector<CControl*>& controls, Test isBetter) {
    if (std::any_of(controls.begin(), controls.end(), isBetter)) {
        std::erase_if(controls, [&](const CControl* control) { return !isBetter(control); });
    }
}

/// Of the controls that bear the name, the one that is meant: of fitting kind, rather visible
/// where several stand in one place, rather a control than the label that leads to it.
FoundTarget Choose(std::vector<CControl*> bearers, const VerbFit& fit, const std::string& name) {
    Prefer(bearers, [&](const CControl* control) { return Fits(*control, fit); });
    Prefer(bearers, [](const CControl* control) { return control->Kind() != ControlKind::Label; });
    Prefer(bearers, [](const CControl* control) { return control->IsVisible(); });
    if (bearers.size() == 1 || !Fits(*bearers.front(), fit)) {
        return Checked(*bearers.front(), fit);
    }
    std::string numbers;
    for (const CControl* control : bearers) {
        numbers += (numbers.empty() ? "" : ", ") + std::to_string(control->Number());
    }
    return Problem(QuoteForScript(name) + " names several controls: " + numbers);
}

FoundTarget FindByName(const StepScope& scope, const CDialog& dialog, const std::string& name,
                       const VerbFit& fit) {
    const std::vector<CControl*> bearers = ControlsNamed(dialog, name);
    if (bearers.empty()) {
        return Problem("no control of " + scope.Describe() + " is named " + QuoteForScript(name) +
                       "; there are " + QuoteForScript(ControlNames(dialog)));
    }
    return Choose(bearers, fit, name);
}

FoundTarget FindByNumber(const StepScope& scope, const CDialog& dialog, int number,
                         const VerbFit& fit) {
    CControl* control = dialog.GetDlgItem(number);
    return control != nullptr
               ? Checked(*control, fit)
               : Problem(scope.Describe() + " has no control " + std::to_string(number));
}

/// The control that holds what a step is aimed at: the one that the target names, else the only one
/// of its kind, which a message calls `what`.
FoundTarget FindHolder(const StepScope& scope, const CDialog& dialog, const StepTarget& target,
                       ControlKind kind, const std::string& what, bool userActs) {
    const std::string wants = "a " + what;
    const VerbFit fit{{kind}, wants.c_str(), userActs};
    if (!target.name.empty()) {
        return FindByName(scope, dialog, target.name, fit);
    }
    if (target.number != 0) {
        return FindByNumber(scope, dialog, target.number, fit);
    }
    std::vector<CControl*> holders;
    for (const auto& control : dialog.Controls()) {
        if (control->Kind() == kind) {
            holders.push_back(control.get());
        }
    }
    if (holders.size() != 1) {
        return Problem(scope.Describe() + (holders.empty()
                                               ? " has no " + what
                                               : " has several " + what + "s: say in which"));
    }
    return Checked(*holders.front(), fit);
}

FoundTarget FindItem(const StepScope& scope, const CDialog& dialog, const StepTarget& target,
                     StepVerb verb) {
    FoundTarget found = FindHolder(scope, dialog, target, ControlKind::PropertyGrid,
                                   "property grid", !IsExpectation(verb));
    if (found) {
        found.item = FindRow(*found.Grid(), target.path, verb, found.problem);
    }
    return found;
}

/// The position of a row or column, 0 and a problem when there is none. `textAt` gives the text by
/// which a position is named.
template <class TextAt>
int PositionOf(const CellPlace& place, int count, const char* what, TextAt textAt,
               std::string& problem) {
    if (place.position > 0) {
        if (place.position <= count) {
            return place.position;
        }
        problem = std::string("there is no ") + what + ' ' + std::to_string(place.position) +
                  ", only " + std::to_string(count);
        return 0;
    }
    std::vector<std::string> names;
    for (int position = 1; position <= count; ++position) {
        const std::string text = textAt(position);
        if (text == place.name) {
            return position;
        }
        if (!text.empty()) {
            names.push_back(text);
        }
    }
    problem = std::string("no ") + what + " is named " + QuoteForScript(place.name) +
              "; there are " + QuoteForScript(names);
    return 0;
}

FoundTarget FindCell(const StepScope& scope, const CDialog& dialog, const StepTarget& target,
                     bool userActs) {
    FoundTarget found =
        FindHolder(scope, dialog, target, ControlKind::Worksheet, "worksheet", userActs);
    if (!found) {
        return found;
    }
    const VirtualWorksheet* worksheet = found.Worksheet();
    const BaseWorksheetInterface* content = worksheet != nullptr ? worksheet->Content() : nullptr;
    if (content == nullptr) {
        return Problem(DescribeControl(*found.control) + " shows nothing");
    }
    found.cell.x = PositionOf(
        target.column, content->ColumnCount(), "column",
        [&](int column) { return content->GetCellText(column, 0); }, found.problem);
    if (found) {
        found.cell.y = PositionOf(
            target.row, content->RowCount(), "row",
            [&](int row) { return content->GetCellText(1, row); }, found.problem);
    }
    return found;
}

FoundTarget Find(const StepScope& scope, const StepTarget& target, StepVerb verb) {
    const CDialog* dialog = scope.ActiveDialog();
    if (dialog == nullptr || !dialog->HasWindow()) {
        return Problem("no page is shown");
    }
    const VerbFit fit = FitOf(verb);
    switch (target.kind) {
        case StepTarget::Kind::Number:
            return FindByNumber(scope, *dialog, target.number, fit);
        case StepTarget::Kind::Name:
            return FindByName(scope, *dialog, target.name, fit);
        case StepTarget::Kind::Cell:
            return FindCell(scope, *dialog, target, fit.userActs);
        case StepTarget::Kind::Item:
            return FindItem(scope, *dialog, target, verb);
        case StepTarget::Kind::None:
        case StepTarget::Kind::Frame:
            break;
    }
    return Problem("the step names no control");
}

}  // namespace

CDialog* StepScope::ActiveDialog() const {
    return sheet != nullptr ? sheet->GetActivePage() : dialog;
}

bool StepScope::HasEnded() const {
    return sheet != nullptr ? sheet->HasEnded() : dialog == nullptr || dialog->HasEnded();
}

std::string StepScope::Describe() const {
    const CDialog* active = ActiveDialog();
    if (active == nullptr) {
        return "a sheet without pages";
    }
    const bool isPage = dynamic_cast<const CPropertyPage*>(active) != nullptr;
    return (isPage ? "page " : "dialog ") + std::to_string(active->TemplateNumber()) + ' ' +
           QuoteForScript(TitleOf(*active));
}

VirtualWorksheet* FoundTarget::Worksheet() const {
    return dynamic_cast<VirtualWorksheet*>(control);
}

CXTPPropertyGrid* FoundTarget::Grid() const {
    return dynamic_cast<CXTPPropertyGrid*>(control);
}

FoundTarget FindTarget(const StepScope& scope, const UserStep& step) {
    return Find(scope, step.target, step.verb);
}

FoundTarget FindSecondTarget(const StepScope& scope, const UserStep& step) {
    return Find(scope, step.to, step.verb);
}

bool HasFrameButton(const StepScope& scope, FrameButton button) {
    const bool isWizard = scope.sheet != nullptr && scope.sheet->IsWizard();
    switch (button) {
        case FrameButton::Cancel:
        case FrameButton::Close:
            return true;
        case FrameButton::Ok:
            return !isWizard;
        case FrameButton::Apply:
            return !isWizard && scope.sheet != nullptr && scope.sheet->HasApply();
        case FrameButton::Next:
        case FrameButton::Back:
        case FrameButton::Finish:
            return isWizard;
    }
    return false;
}

bool IsFrameButtonEnabled(const StepScope& scope, FrameButton button) {
    if (!HasFrameButton(scope, button)) {
        return false;
    }
    switch (button) {
        case FrameButton::Apply:
            return scope.sheet->IsApplyEnabled();
        case FrameButton::Next:
            return (scope.sheet->WizardButtons() & kWizardNext) != 0;
        case FrameButton::Back:
            return (scope.sheet->WizardButtons() & kWizardBack) != 0;
        case FrameButton::Finish:
            return (scope.sheet->WizardButtons() & kWizardFinish) != 0;
        default:
            return true;
    }
}

}  // namespace kvopt
