#include "axes/outer_axes.h"

#include <algorithm>
#include <vector>

#include "axes_texts.h"
#include "kvopt/platform/controls.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/message_map.h"
#include "kvopt/selection/select_item_dialog.h"
#include "kvopt/study/axis_info.h"
#include "kvopt/study/factor_class.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/format.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {

namespace {

/// More settings than these can be chosen by hand and stored, but are not drawn.
constexpr unsigned kMostSettings = 3;

constexpr const char* kSeparator = ";";

/// The controls of an outer axis beyond those of its row.
struct OuterControls {
    int edit;
    int button;
};

constexpr OuterControls kFirstAxis{6050, 6003};
constexpr OuterControls kSecondAxis{6051, 6004};

/// The names of all settings but the chosen ones.
std::vector<std::string> OtherSettings(const FactorClass& factor,
                                       const std::vector<std::string>& chosen) {
    std::vector<std::string> others;
    for (int index = 1; index <= factor.settingCount; ++index) {
        const std::string setting = factor.GetSetting(index);
        if (std::find(chosen.begin(), chosen.end(), setting) == chosen.end()) {
            others.push_back(setting);
        }
    }
    return others;
}

}  // namespace

std::string FirstSettings(const FactorClass& factor) {
    const std::vector<int> included = factor.GetIncludedSettings();
    const std::size_t count = std::min<std::size_t>(kMostSettings, included.size());
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string setting = factor.GetSetting(included[i]);
        text += i == 0 ? setting : Format(texts::kAxesNextSetting, setting);
    }
    return text;
}

void OuterAxes::AddHandlers(MessageMap& map, const std::function<void()>& changed,
                            const std::function<void(int)>& choose) const {
    map.OnChanged(kFirstAxis.edit, changed);
    map.OnChanged(kSecondAxis.edit, changed);
    map.OnClicked(kFirstAxis.button, [choose, axis = first_] { choose(axis); });
    map.OnClicked(kSecondAxis.button, [choose, axis = first_ + 1] { choose(axis); });
}

CEdit* OuterAxes::SettingsEdit(int axis) const {
    return page_.Item<CEdit>(axis == first_ ? kFirstAxis.edit : kSecondAxis.edit);
}

void OuterAxes::ShowStored(int axis, const AxisInfo* stored) const {
    if (stored != nullptr && variables_.IsFactorQualitative(stored->GetName())) {
        SettingsEdit(axis)->SetText(KvStdString::ToWide(stored->GetSettings()));
    }
}

void OuterAxes::Transfer(int axis, AxisInfo* stored) const {
    if (stored != nullptr && stored->IsUsed() &&
        variables_.IsFactorQualitative(stored->GetName())) {
        stored->SetSettings(SettingsText(axis));
    }
}

bool OuterAxes::ShowDefault(int axis) const {
    const std::string name = page_.NameAxis(axis);
    const bool show = variables_.IsFactorQualitative(name);
    const OuterControls& controls = axis == first_ ? kFirstAxis : kSecondAxis;
    page_.GetDlgItem(controls.edit)->ShowWindow(show);
    page_.GetDlgItem(controls.button)->ShowWindow(show);
    if (show) {
        const std::string settings = FirstSettings(*variables_.GetFactor(name));
        SettingsEdit(axis)->SetText(KvStdString::ToWide(settings));
    }
    return show;
}

void OuterAxes::Choose(const CComboBox& box, CEdit& edit, CWnd* parent,
                       const std::function<void()>& changed) const {
    const std::string name = KvStdString::ToUtf8(box.GetText());
    const FactorClass* factor = variables_.GetFactor(name);
    if (factor == nullptr) {
        return;
    }
    std::vector<std::string> selected;
    AxisPage::ToVectorString(&variables_, name, KvStdString::ToUtf8(edit.GetText()), selected);
    std::vector<std::string> available = OtherSettings(*factor, selected);
    SelectItemDialog dialog(available, selected, texts::kAxesSettingsNoun.Text(), kMostSettings,
                            parent);
    if (dialog.DoModal() != kResultOk) {
        return;
    }
    changed();
    const std::string text = KvStdString::FormatStringVector(selected, kSeparator);
    if (!text.empty()) {
        edit.SetText(KvStdString::ToWide(text));
    }
}

AxisPage::AxisErrorSeverity OuterAxes::CheckSettings(const std::string& factor,
                                                     const std::string& text,
                                                     std::string& message) const {
    if (text.empty()) {
        message += texts::kAxesNoSettings.Text();
        return AxisPage::AxisError;
    }
    const std::vector<std::string> settings = KvStdString::Split(text, kSeparator);
    for (const std::string& setting : settings) {
        if (variables_.GetFactor(factor)->factorValue.GetSettingIndex(setting) < 1) {
            message += Format(texts::kAxesUnknownSetting, setting, factor);
            return AxisPage::AxisError;
        }
    }
    if (settings.size() > kMostSettings) {
        message += texts::kAxesManySettings.Text();
        return AxisPage::AxisWarning;
    }
    return AxisPage::AxisNoError;
}

AxisPage::AxisErrorSeverity OuterAxes::Check(AxisPage::AxisErrorSeverity severity,
                                             std::string& message) const {
    for (int axis = first_; page_.HasWindow() && axis <= first_ + 1; ++axis) {
        const std::string name = page_.NameAxis(axis);
        if (!variables_.IsFactorQualitative(name)) {
            continue;
        }
        const AxisPage::AxisErrorSeverity result = CheckSettings(name, SettingsText(axis), message);
        if (result != AxisPage::AxisNoError && severity != AxisPage::AxisError) {
            severity = result;
        }
    }
    return severity;
}

std::string OuterAxes::SettingsText(int axis) const {
    return KvStdString::ToUtf8(SettingsEdit(axis)->GetText());
}

}  // namespace kvopt
