#include "monkey/random_user.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "kvopt/platform/controls.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/keys.h"
#include "kvopt/platform/property_grid.h"
#include "kvopt/platform/property_page.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/scripted/slider_path.h"
#include "kvopt/text/kv_std_string.h"
#include "kvopt/text/kv_string.h"

namespace kvopt::monkey {

namespace {

const std::vector<std::string>& Texts() {
    static const std::vector<std::string> texts{
        "",    "0",     "1",       "-1",     "0.5",   "15",     "16",     "32",    "64",
        "100", "80",    "90",      "85.5",   "1e3",   "1e308",  "-1e308", "1e-12", "1e999",
        "nan", "inf",   "0x10",    "1,5",    "1 000", "--3",    "abc",    " 2 ",   "Not used",
        "200", "10000", "1000000", "999999", "ü",     "\"q\"#", "1;2",    "=1+1",  "5000000000"};
    return texts;
}

/// Steps that end a run when they are accepted.
bool IsEnd(StepVerb verb) {
    return verb == StepVerb::Ok || verb == StepVerb::Cancel || verb == StepVerb::Close ||
           verb == StepVerb::Finish;
}

StepVerb FrameVerb(const StepScope& scope, Dice& dice) {
    std::vector<StepVerb> verbs;
    const auto offer = [&](FrameButton button, StepVerb verb, int weight) {
        if (IsFrameButtonEnabled(scope, button)) {
            verbs.insert(verbs.end(), static_cast<std::size_t>(weight), verb);
        }
    };
    offer(FrameButton::Next, StepVerb::Next, 8);
    offer(FrameButton::Back, StepVerb::Back, 4);
    offer(FrameButton::Apply, StepVerb::Apply, 8);
    offer(FrameButton::Finish, StepVerb::Finish, 2);
    offer(FrameButton::Ok, StepVerb::Ok, 2);
    offer(FrameButton::Cancel, StepVerb::Cancel, 1);
    if (dice.Percent(3)) {
        return StepVerb::Close;
    }
    return dice.Of(verbs);
}

std::vector<std::string> PathTo(const CXTPPropertyGridItem& row) {
    std::vector<std::string> path;
    for (const auto* at = &row; at != nullptr; at = at->Parent()) {
        path.push_back(KvStdString::ToUtf8(at->GetCaption()));
    }
    return path;
}

}  // namespace

RandomUser::RandomUser(Dice& dice, std::vector<std::string> names, int steps)
    : dice_(dice), names_(std::move(names)), left_(steps) {}

std::optional<UserStep> RandomUser::Next(const StepScope& scope) {
    if (left_-- <= 0) {
        return std::nullopt;
    }
    std::vector<CControl*> usable;
    const CDialog* dialog = scope.ActiveDialog();
    if (dialog != nullptr) {
        for (const auto& control : dialog->Controls()) {
            const bool isText =
                control->Kind() == ControlKind::Label || control->Kind() == ControlKind::Markup;
            if (!isText && control->IsUsable() &&
                dialog->GetDlgItem(control->Number()) == control.get()) {
                usable.push_back(control.get());
            }
        }
    }
    if (usable.empty() || dice_.Percent(15)) {
        const UserStep step = OnFrame(scope);
        // A run gets somewhere when its end comes seldom.
        if (usable.empty() || !IsEnd(step.verb) || dice_.Percent(30)) {
            return step;
        }
    }
    if (dice_.Percent(3)) {
        return PressKey();
    }
    if (dice_.Percent(1)) {
        UserStep wait;
        wait.verb = StepVerb::Wait;
        wait.count = 150;
        return wait;
    }
    return OnControl(*dice_.Of(usable));
}

BoxAnswer RandomUser::Answer(const MessageBoxRequest& request) {
    if (request.IsQuestion()) {
        return dice_.Percent(50) ? BoxAnswer::Yes : BoxAnswer::No;
    }
    return request.OffersSilence() && dice_.Percent(20) ? BoxAnswer::Silence : BoxAnswer::Ok;
}

UserStep RandomUser::OnFrame(const StepScope& scope) {
    UserStep step;
    const bool hasTabs = scope.sheet != nullptr && !scope.sheet->IsWizard();
    if (hasTabs && scope.sheet->GetPageCount() > 1 && dice_.Percent(50)) {
        const auto count = static_cast<std::size_t>(scope.sheet->GetPageCount());
        const int index = static_cast<int>(dice_.Below(count));
        step.verb = StepVerb::Tab;
        step.values = {KvStdString::ToUtf8(scope.sheet->GetPage(index)->PageTitle())};
        return step;
    }
    step.verb = FrameVerb(scope, dice_);
    return step;
}

UserStep RandomUser::PressKey() {
    static const std::vector<KeyStroke> keys{
        {kKeyReturn},  {kKeyEscape}, {kKeyF1},    {kKeyInsert, true}, {kKeyInsert, false, true},
        {kKeyDelete},  {'A', true},  {'C', true}, {'V', true},        {'A'},
        {kKeyF1, true}};
    UserStep step;
    step.verb = StepVerb::Key;
    step.key = dice_.Of(keys);
    return step;
}

std::string RandomUser::AnyText() {
    return !names_.empty() && dice_.Percent(15) ? dice_.Of(names_) : dice_.Of(Texts());
}

/// A number a little beside the present one; anything where that is no number.
std::string RandomUser::TextNear(const std::string& present) {
    double number = 0.0;
    if (!KvString::ToDouble(present, number)) {
        return AnyText();
    }
    const int hundredths = static_cast<int>(dice_.Below(41)) - 20;
    return KvString::FormatG(number + std::max(std::abs(number), 0.1) * hundredths / 100.0);
}

UserStep RandomUser::Typing(UserStep step, StepVerb verb, const std::string& present) {
    step.verb = verb;
    step.values = {dice_.Percent(50) ? TextNear(present) : AnyText()};
    return step;
}

UserStep RandomUser::OnControl(CControl& control) {
    UserStep step;
    step.target = StepTarget::Control(control.Number());
    if (dice_.Percent(5)) {
        step.verb = StepVerb::Focus;
        return control.Kind() == ControlKind::Spin ? PressKey() : step;
    }
    switch (control.Kind()) {
        case ControlKind::Edit:
            return Typing(step, dice_.Percent(80) ? StepVerb::Type : StepVerb::Paste,
                          KvStdString::ToUtf8(control.GetText()));
        case ControlKind::ComboEdit:
            if (dice_.Percent(50)) {
                return Typing(step, StepVerb::Type, KvStdString::ToUtf8(control.GetText()));
            }
            return OnList(static_cast<CItemControl&>(control), step);
        case ControlKind::ComboList:
        case ControlKind::ListSingle:
        case ControlKind::ListMulti:
            return OnList(static_cast<CItemControl&>(control), step);
        case ControlKind::Spin:
            step.verb = StepVerb::Spin;
            step.count = static_cast<int>(dice_.Below(5)) + 1;
            step.count = dice_.Percent(50) ? step.count : -step.count;
            return step;
        case ControlKind::Worksheet:
            return OnWorksheet(static_cast<VirtualWorksheet&>(control), step);
        case ControlKind::PropertyGrid:
            return OnGrid(static_cast<CXTPPropertyGrid&>(control), step);
        default:
            step.verb = StepVerb::Click;
            return step;
    }
}

UserStep RandomUser::OnList(const CItemControl& list, UserStep step) {
    if (list.GetCount() == 0) {
        step.verb = StepVerb::Focus;
        return step;
    }
    const auto any = [&] {
        const int index = static_cast<int>(dice_.Below(static_cast<std::size_t>(list.GetCount())));
        return KvStdString::ToUtf8(list.GetItemText(index));
    };
    const auto* box = dynamic_cast<const CListBox*>(&list);
    if (box == nullptr) {
        step.verb = StepVerb::Pick;
        step.values = {any()};
        return step;
    }
    if (dice_.Percent(25)) {
        step.verb = StepVerb::DoubleClick;
        step.values = {any()};
        return step;
    }
    step.verb = StepVerb::Mark;
    const std::size_t marks = box->IsMultiple() ? dice_.Below(4) : 1;
    for (std::size_t mark = 0; mark < marks; ++mark) {
        const std::string entry = any();
        if (std::find(step.values.begin(), step.values.end(), entry) == step.values.end()) {
            step.values.push_back(entry);
        }
    }
    return step;
}

StepTarget RandomUser::AnyCell(const VirtualWorksheet& worksheet) {
    const BaseWorksheetInterface& content = *worksheet.Content();
    const auto below = [&](int count) {
        return static_cast<int>(dice_.Below(static_cast<std::size_t>(count))) + 1;
    };
    // One after the other: the order of a call's arguments is the compiler's.
    const int row = below(content.RowCount());
    const int column = below(content.ColumnCount());
    StepTarget target = StepTarget::Cell({row, ""}, {column, ""});
    target.number = worksheet.Number();
    return target;
}

/// What the cell takes, and now and then what it does not.
StepVerb RandomUser::CellVerb(const VirtualWorksheet& worksheet, CPoint cell) {
    const BaseWorksheetInterface& content = *worksheet.Content();
    std::vector<StepVerb> verbs{StepVerb::Select, StepVerb::Hover, StepVerb::Menu, StepVerb::Paste};
    const bool isAny = dice_.Percent(5);
    const auto type = content.GetFieldType(cell.x, cell.y);
    if (isAny || type == FieldDef::Number) {
        verbs.insert(verbs.end(), {StepVerb::Type, StepVerb::Type, StepVerb::Type, StepVerb::Edit});
    }
    if (isAny || type == FieldDef::Combo) {
        verbs.insert(verbs.end(), 4, StepVerb::Pick);
    }
    if (isAny || SliderOfCell(content, cell)) {
        verbs.insert(verbs.end(), 4, StepVerb::Drag);
    }
    return dice_.Of(verbs);
}

UserStep RandomUser::OnWorksheet(const VirtualWorksheet& worksheet, UserStep step) {
    const BaseWorksheetInterface* content = worksheet.Content();
    if (content == nullptr || content->RowCount() == 0 || content->ColumnCount() == 0) {
        step.verb = StepVerb::Focus;
        return step;
    }
    step.target = AnyCell(worksheet);
    const CPoint cell{step.target.column.position, step.target.row.position};
    step.verb = CellVerb(worksheet, cell);
    switch (step.verb) {
        case StepVerb::Type:
        case StepVerb::Edit:
            return Typing(step, step.verb, content->GetCellText(cell.x, cell.y));
        case StepVerb::Paste:
            step.values = {AnyText()};
            step.values.front() += '\t' + AnyText();
            step.values.front() += '\n' + AnyText();
            return step;
        case StepVerb::Pick: {
            const FieldDef* field = content->GetFieldDef(cell.x, cell.y);
            const std::vector<std::string> entries =
                field != nullptr ? field->ComboSettings() : std::vector<std::string>{};
            step.values = {entries.empty() ? "" : dice_.Of(entries)};
            return step;
        }
        case StepVerb::Drag:
            if (dice_.Percent(20)) {
                step.to = AnyCell(worksheet);
                return step;
            }
            [[fallthrough]];
        case StepVerb::Hover:
            step.share = static_cast<double>(dice_.Below(101));
            return step;
        case StepVerb::Select:
            step.to = AnyCell(worksheet);
            return step;
        default:
            step.values = {dice_.Of(std::vector<std::string>{"Copy", "Paste", "Select all"})};
            return step;
    }
}

UserStep RandomUser::OnGrid(const CXTPPropertyGrid& grid, UserStep step) {
    const std::vector<CXTPPropertyGridItem*> rows = grid.ShownRows();
    if (rows.empty()) {
        step.verb = StepVerb::Focus;
        return step;
    }
    const CXTPPropertyGridItem& row = *dice_.Of(rows);
    step.target = StepTarget::Item(PathTo(row));
    step.target.number = grid.Number();
    if (!row.Children().empty() && dice_.Percent(40)) {
        step.verb = row.IsExpanded() ? StepVerb::Collapse : StepVerb::Expand;
        return step;
    }
    const std::vector<PropertyGridChoice> choices = row.Choices();
    if (!choices.empty()) {
        step.verb = StepVerb::Pick;
        step.values = {KvStdString::ToUtf8(dice_.Of(choices).text)};
        return step;
    }
    if (row.TakesText()) {
        return Typing(step, dice_.Percent(80) ? StepVerb::Type : StepVerb::Edit,
                      KvStdString::ToUtf8(row.GetValue()));
    }
    step.verb = row.IsCategory() ? StepVerb::Focus : StepVerb::Click;
    return step;
}

}  // namespace kvopt::monkey
