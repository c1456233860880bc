#include "kvopt/axes/axis_page.h"

#include <algorithm>
#include <array>

#include "axes/axis_filters.h"
#include "kvopt/axes/axis_rules.h"
#include "kvopt/axes/fill_box.h"
#include "kvopt/platform/controls.h"
#include "kvopt/platform/desktop.h"
#include "kvopt/platform/kv_property_sheet.h"
#include "kvopt/study/axis_info.h"
#include "kvopt/study/factor_class.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/kv_std_string.h"
#include "kvopt/text/kv_string.h"
#include "kvopt/text/not_set.h"

namespace kvopt {

namespace {

/// The controls of one row, by their numbers in every template.
struct RowControls {
    int list;
    int low;
    int high;
    int defaultButton;
};

constexpr std::array<RowControls, 6> kRows{{{6036, 6055, 6054, 6006},
                                            {6037, 6058, 6057, 6007},
                                            {6038, 6060, 6059, 6008},
                                            {6039, 6062, 6061, 6009},
                                            {6040, 6064, 6063, 6010},
                                            {6041, 6066, 6065, 6011}}};

int RowCount(int numAxes) {
    return std::clamp(numAxes, 0, static_cast<int>(kRows.size()));
}

std::string TextOf(const CWnd* control) {
    return KvStdString::ToUtf8(control->GetText());
}

float ValueOf(std::string_view text) {
    float value = kNotSetF;
    KvString::ToFloat(text, value);
    return value;
}

}  // namespace

AxisPage::AxisPage(const Investigation* investigation, const Arguments& arguments,
                   unsigned templateNumber, BasePropertyPageHelper* helper, unsigned helpTopic)
    : KvPropertyPage(templateNumber, 0, helper, helpTopic),
      investigation_(investigation),
      arguments_(arguments) {}

AxisPage::~AxisPage() = default;

void AxisPage::GetMessageMap(MessageMap& map) {
    KvPropertyPage::GetMessageMap(map);
    for (int axis = 1; axis <= RowCount(NAxis()); ++axis) {
        const RowControls& row = kRows[static_cast<std::size_t>(axis - 1)];
        map.OnClicked(row.defaultButton, [this, axis] { SetDefault(axis); });
        map.OnSelectionChanged(row.list, [this, axis] {
            SetDefault(axis);
            OnChangeAxis(axis);
        });
        map.OnChanged(row.low, [this] { Changed(); });
        map.OnChanged(row.high, [this] { Changed(); });
    }
}

void AxisPage::FillAxisCombo(int /*axis*/, CComboBox* box, const wchar_t* selected) {
    const auto filter = AxisFilters::Of(investigation_).NonQualitative();
    FillBox(investigation_, FillBox::Ordinary).FillFactorCLB(box, filter.get(), selected, false);
}

void AxisPage::OnChangeAxis(int /*axis*/) {
    Changed();
}

bool AxisPage::CheckLegalAxes() const {
    std::string message;
    const AxisErrorSeverity severity = AreAxesLegal(message);
    return TellVerdict(severity, message);
}

bool AxisPage::TellVerdict(AxisErrorSeverity severity, const std::string& message) const {
    if (severity == AxisNoError) {
        return true;
    }
    CPropertySheet* sheet = Sheet();
    const BoxStyle style = severity == AxisError ? BoxStyle::Error : BoxStyle::YesNoWarning;
    const BoxAnswer answer = ShowMessage(sheet, KvStdString::ToWide(message), style);
    if (sheet != nullptr && sheet->GetActivePage() != this) {
        sheet->SetActivePage(sheet->GetPage(sheet->GetPageIndex(this)));
    }
    return answer == BoxAnswer::Yes;
}

void AxisPage::SetDefault(int axis) {
    const std::optional<Row> row = RowOf(axis);
    if (!row) {
        return;
    }
    const std::string name = TextOf(row->list);
    const bool enable = row->list->GetCurSel() != -1 && !AxisInfo::IsNotUsedName(name) &&
                        !investigation_->GetVariables()->IsFactorQualitative(name);
    row->low->EnableWindow(enable);
    row->high->EnableWindow(enable);
    row->defaultButton->EnableWindow(enable);
    if (enable) {
        SetRange(axis, GetDefaultValue(*arguments_.defaults, LowValue, name),
                 GetDefaultValue(*arguments_.defaults, HighValue, name));
    } else {
        row->low->SetText(L"");
        row->high->SetText(L"");
    }
}

void AxisPage::TransferFromPage() {
    for (int axis = 1; axis <= NAxis(); ++axis) {
        AxisInfo* info = Axis(axis);
        const std::optional<Row> row = RowOf(axis);
        if (info == nullptr || !row) {
            continue;
        }
        const std::string name = TextOf(row->list);
        info->SetName(name);
        if (info->IsUsed() && !investigation_->GetVariables()->IsFactorQualitative(name)) {
            info->SetMin(ValueOf(TextOf(row->low)));
            info->SetMax(ValueOf(TextOf(row->high)));
        }
    }
}

std::string AxisPage::NameAxis(int axis) const {
    if (HasWindow()) {
        const CComboBox* list = AxisCombo(axis);
        return list != nullptr ? TextOf(list) : std::string();
    }
    const AxisInfo* info = Axis(axis);
    return info != nullptr ? info->GetName() : std::string();
}

bool AxisPage::CompareAxis(int axis, const std::string& name) const {
    return NameAxis(axis) == name;
}

bool AxisPage::IsUsedAxis(int axis) const {
    if (HasWindow()) {
        return !AxisInfo::IsNotUsedName(NameAxis(axis));
    }
    const AxisInfo* info = Axis(axis);
    return info != nullptr && info->IsUsed();
}

double AxisPage::GetMin(int axis) const {
    if (HasWindow()) {
        return ValueOf(EntryOf(axis).low);
    }
    const AxisInfo* info = Axis(axis);
    return info != nullptr ? info->GetMin() : kNotSet;
}

double AxisPage::GetMax(int axis) const {
    if (HasWindow()) {
        return ValueOf(EntryOf(axis).high);
    }
    const AxisInfo* info = Axis(axis);
    return info != nullptr ? info->GetMax() : kNotSet;
}

float AxisPage::GetDefaultValue(const std::vector<std::shared_ptr<AxisInfo>>& defaults,
                                DefaultValue which, const std::string& name) {
    for (const std::shared_ptr<AxisInfo>& axis : defaults) {
        if (axis && axis->Compare(name.c_str()) == 0) {
            return which == LowValue ? axis->GetMin() : axis->GetMax();
        }
    }
    return kNotSetF;
}

bool AxisPage::ToVectorString(const Variables* variables, const std::string& factor,
                              const std::string& text, std::vector<std::string>& settings) {
    const FactorClass* found = variables->GetFactor(factor);
    bool allKnown = true;
    for (const std::string& part : KvStdString::Split(text, ";")) {
        if (found != nullptr && found->factorValue.GetSettingIndex(part) != 0) {
            settings.push_back(part);
        } else {
            allKnown = false;
        }
    }
    return allKnown;
}

void AxisPage::AddUnusedOption(int axis) {
    CComboBox* list = AxisCombo(axis);
    if (list == nullptr) {
        return;
    }
    const std::wstring unused = KvStdString::ToWide(AxisInfo::GetNotUsedName());
    if (list->FindStringExact(-1, unused) == -1) {
        list->AddString(unused);
    }
}

void AxisPage::EnableAxis(int axis, bool enable) {
    if (CComboBox* list = AxisCombo(axis)) {
        list->EnableWindow(enable);
    }
}

void AxisPage::SetRange(int axis, float low, float high) {
    if (const std::optional<Row> row = RowOf(axis)) {
        row->low->SetText(KvString::FormatGWide(low));
        row->high->SetText(KvString::FormatGWide(high));
    }
}

void AxisPage::SetUnused(int axis) {
    if (CComboBox* list = AxisCombo(axis)) {
        list->SetText(KvStdString::ToWide(AxisInfo::GetNotUsedName()));
        SetDefault(axis);
    }
}

unsigned AxisPage::IsAxisLegal(int axis) const {
    if (!RowOf(axis)) {
        return 0;
    }
    return AxisRules(investigation_->GetVariables(), {EntryOf(axis)}).IsAxisLegal(1);
}

AxisPage::AxisErrorSeverity AxisPage::AreAxesLegal(std::string& message) const {
    std::vector<AxisEntry> entries;
    for (int axis = 1; axis <= NAxis() && RowOf(axis); ++axis) {
        entries.push_back(EntryOf(axis));
    }
    return AxisRules(investigation_->GetVariables(), std::move(entries)).AreAxesLegal(message);
}

bool AxisPage::OnInitDialog() {
    KvPropertyPage::OnInitDialog();
    SetupComboBox();
    Unchanged();
    return true;
}

bool AxisPage::OnSetActive() {
    CPropertySheet* sheet = Sheet();
    if (sheet != nullptr && sheet->IsWizard()) {
        sheet->SetWizardButtons(kWizardBack | kWizardFinish);
    }
    return CPropertyPage::OnSetActive();
}

int AxisPage::OnWizardBack() {
    return arguments_.backPage;
}

int AxisPage::OnWizardNext() {
    if (!CheckLegalAxes()) {
        return -1;
    }
    TransferFromPage();
    return CPropertyPage::OnWizardNext();
}

bool AxisPage::OnWizardFinish() {
    if (!CheckLegalAxes()) {
        return false;
    }
    TransferFromPage();
    return KvPropertyPage::OnWizardFinish();
}

bool AxisPage::OnApply() {
    if (IsChanged()) {
        if (!CheckLegalAxes()) {
            return false;
        }
        TransferFromPage();
    }
    return KvPropertyPage::OnApply();
}

CComboBox* AxisPage::AxisCombo(int axis) const {
    const std::optional<Row> row = RowOf(axis);
    return row ? row->list : nullptr;
}

void AxisPage::ShowRange(int axis, bool show) {
    if (const std::optional<Row> row = RowOf(axis)) {
        row->low->ShowWindow(show);
        row->high->ShowWindow(show);
        row->defaultButton->ShowWindow(show);
    }
}

std::optional<AxisPage::Row> AxisPage::RowOf(int axis) const {
    if (!HasWindow() || axis < 1 || axis > RowCount(NAxis())) {
        return std::nullopt;
    }
    const RowControls& numbers = kRows[static_cast<std::size_t>(axis - 1)];
    const Row row{Item<CComboBox>(numbers.list), Item<CEdit>(numbers.low),
                  Item<CEdit>(numbers.high), Item<CButton>(numbers.defaultButton)};
    const bool whole = row.list != nullptr && row.low != nullptr && row.high != nullptr &&
                       row.defaultButton != nullptr;
    return whole ? std::optional<Row>(row) : std::nullopt;
}

AxisInfo* AxisPage::Axis(int axis) const {
    const bool inSet = axis >= 1 && static_cast<std::size_t>(axis) < arguments_.axes->size();
    return inSet ? (*arguments_.axes)[static_cast<std::size_t>(axis)].get() : nullptr;
}

AxisEntry AxisPage::EntryOf(int axis) const {
    const std::optional<Row> row = RowOf(axis);
    return row ? AxisEntry{TextOf(row->list), TextOf(row->low), TextOf(row->high)} : AxisEntry{};
}

}  // namespace kvopt
