#include "kvopt/axes/axis_helper.h"

#include <algorithm>
#include <set>
#include <utility>

#include "axes/axis_filters.h"
#include "axes/outer_axes.h"
#include "kvopt/axes/use_factor.h"
#include "kvopt/plotargs/wizard_plot_data.h"
#include "kvopt/study/axis_info.h"
#include "kvopt/study/factor_class.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/variables.h"
#include "kvopt/text/kv_string.h"
#include "kvopt/text/not_set.h"

namespace kvopt {

namespace {

/// Lists of a helper that has no axes yet.
constexpr int kListsWithoutAxes = 6;

std::string RangeText(float value) {
    return value == kNotSetF ? std::string() : KvString::FormatG(value);
}

float ValueOf(const std::string& text) {
    float value = kNotSetF;
    KvString::ToFloat(text, value);
    return value;
}

std::size_t Index(int axis) {
    return static_cast<std::size_t>(axis - 1);
}

}  // namespace

AxisHelper::AxisHelper(const Investigation* investigation, const AxisPage::Arguments& arguments)
    : investigation_(investigation) {
    TakeArguments(arguments);
    // The greater of the two here, the smaller in SetArguments; Setup resizes anyway.
    ResizeLists(std::max(numAxes_, numDefaults_));
}

AxisHelper::AxisHelper(const Investigation* investigation) : investigation_(investigation) {
    ResizeLists(kListsWithoutAxes);
}

AxisHelper::~AxisHelper() = default;
AxisHelper::AxisHelper(const AxisHelper&) = default;
AxisHelper& AxisHelper::operator=(const AxisHelper&) = default;

void AxisHelper::SetArguments(const AxisPage::Arguments& arguments) {
    TakeArguments(arguments);
    ResizeLists(std::min(numAxes_, numDefaults_));
}

void AxisHelper::Setup() {
    const int count = std::min(numAxes_, numDefaults_);
    if (count < 1) {
        return;
    }
    ResizeLists(count);
    const Variables& variables = *investigation_->GetVariables();
    std::set<int> needy;
    for (int i = 1; i <= count; ++i) {
        const AxisInfo* axis = Axis(i);
        if (axis == nullptr) {
            continue;
        }
        FillAxis(i, nullptr);
        if (!axis->IsUsed()) {
            AddUnusedOption(i);
        }
        if (SelectString(i, axis->GetName()) == -1) {
            needy.insert(i);
        } else if (axis->IsUsed() && !variables.IsFactorQualitative(axis->GetName())) {
            SetRange(i, axis->GetMin(), axis->GetMax());
        }
    }
    // An axis that found its own factor needs a selection all the same: here, unlike on the page,
    // the defaults decide every axis.
    std::set<std::string> taken;
    for (int i = 1; i <= count; ++i) {
        if (Axis(i) == nullptr || needy.count(i) != 0) {
            continue;
        }
        const std::string& name = Selected(i);
        if (!name.empty() || AxisInfo::IsNotUsedName(name)) {
            needy.insert(i);
        } else {
            taken.insert(name);
        }
    }
    std::erase_if(needy, [&](int i) { return TakeDefault(i, taken); });
    for (const int i : needy) {
        AddUnusedOption(i);
        SelectString(i, AxisInfo::GetNotUsedName());
    }
    Transfer();
}

void AxisHelper::SetDefault(int axis) {
    if (!HasList(axis)) {
        return;
    }
    const std::string& name = Selected(axis);
    if (AxisInfo::IsNotUsedName(name) ||
        investigation_->GetVariables()->IsFactorQualitative(name)) {
        SetRange(axis, kNotSetF, kNotSetF);
        return;
    }
    static const std::vector<std::shared_ptr<AxisInfo>> kNoDefaults;
    const auto& defaults = defaults_ != nullptr ? *defaults_ : kNoDefaults;
    SetRange(axis, AxisPage::GetDefaultValue(defaults, AxisPage::LowValue, name),
             AxisPage::GetDefaultValue(defaults, AxisPage::HighValue, name));
}

void AxisHelper::FillAxis(int axis, const char* /*selected*/) {
    FillFactor(AxisFilters::Of(investigation_).NonQualitative().get(), axis);
}

bool AxisHelper::FillFactor(const UseFactor* filter, int axis) {
    if (!HasList(axis)) {
        return false;
    }
    std::vector<std::string>& list = options_[Index(axis)];
    list.clear();
    for (const FactorClass* factor : investigation_->GetVariables()->GetAllFactors()) {
        if ((*filter)(factor, true)) {
            list.push_back(factor->GetName());
        }
    }
    return !list.empty();
}

void AxisHelper::AddUnusedOption(int axis) {
    if (!HasList(axis)) {
        return;
    }
    std::vector<std::string>& list = options_[Index(axis)];
    if (std::find(list.begin(), list.end(), AxisInfo::GetNotUsedName()) == list.end()) {
        list.push_back(AxisInfo::GetNotUsedName());
    }
}

int AxisHelper::SelectString(int axis, const std::string& name) {
    int position = -1;
    if (!name.empty() && HasList(axis)) {
        std::vector<std::string>& list = options_[Index(axis)];
        const auto found = std::find(list.begin(), list.end(), name);
        if (found != list.end()) {
            position = static_cast<int>(found - list.begin());
            std::swap(list.front(), *found);
        }
    }
    SetDefault(position != -1 ? axis : 1);
    return position;
}

void AxisHelper::SetRange(int axis, float low, float high) {
    if (HasList(axis)) {
        lowTexts_[Index(axis)] = RangeText(low);
        highTexts_[Index(axis)] = RangeText(high);
    }
}

void AxisHelper::Transfer() {
    const Variables& variables = *investigation_->GetVariables();
    for (int i = 1; HasList(i); ++i) {
        AxisInfo* axis = Axis(i);
        if (axis == nullptr) {
            continue;
        }
        const std::string& name = Selected(i);
        axis->SetName(name);
        axis->SetUnit(variables.GetUnits(name));
        if (!axis->IsUsed()) {
            continue;
        }
        if (!variables.IsFactorQualitative(name)) {
            axis->SetMin(ValueOf(lowTexts_[Index(i)]));
            axis->SetMax(ValueOf(highTexts_[Index(i)]));
            axis->SetIsQualitative(false);
        } else if (axis->NumSettings() == 0) {
            TransferSettings(*axis, name);
        }
    }
}

const std::vector<std::string>& AxisHelper::Options(int axis) const {
    static const std::vector<std::string> kNone;
    return HasList(axis) ? options_[Index(axis)] : kNone;
}

const std::string& AxisHelper::LowText(int axis) const {
    static const std::string kNone;
    return HasList(axis) ? lowTexts_[Index(axis)] : kNone;
}

const std::string& AxisHelper::HighText(int axis) const {
    static const std::string kNone;
    return HasList(axis) ? highTexts_[Index(axis)] : kNone;
}

AxisInfo* AxisHelper::Axis(int axis) const {
    const bool inSet =
        axes_ != nullptr && axis >= 1 && static_cast<std::size_t>(axis) < axes_->size();
    return inSet ? (*axes_)[static_cast<std::size_t>(axis)].get() : nullptr;
}

AxisPage::Arguments AxisHelper::ArgumentsOf(WizardPlotData& data, int set, int numAxes) {
    AxisPage::Arguments arguments;
    arguments.axes = &data.GetAxisInfo(set);
    arguments.numAxes = numAxes;
    arguments.defaults = &data.GetAxisDefaults();
    arguments.numDefaults = data.GetNumDefaults();
    return arguments;
}

bool AxisHelper::TakeDefault(int axis, std::set<std::string>& taken) {
    const std::vector<std::string>& list = options_[Index(axis)];
    for (std::size_t j = 1; j < defaults_->size(); ++j) {
        if (!(*defaults_)[j]) {
            continue;
        }
        const std::string& name = (*defaults_)[j]->GetName();
        if (taken.count(name) == 0 && std::find(list.begin(), list.end(), name) != list.end()) {
            SelectString(axis, name);
            taken.insert(name);
            return true;
        }
    }
    return false;
}

void AxisHelper::TakeArguments(const AxisPage::Arguments& arguments) {
    axes_ = arguments.axes;
    numAxes_ = arguments.numAxes;
    defaults_ = arguments.defaults;
    numDefaults_ = arguments.numDefaults;
}

void AxisHelper::ResizeLists(int count) {
    const auto size = static_cast<std::size_t>(std::max(count, 0));
    options_.resize(size);
    lowTexts_.resize(size);
    highTexts_.resize(size);
}

bool AxisHelper::HasList(int axis) const {
    return axis >= 1 && Index(axis) < options_.size();
}

const std::string& AxisHelper::Selected(int axis) const {
    const std::vector<std::string>& list = options_[Index(axis)];
    return list.empty() ? AxisInfo::GetNotUsedName() : list.front();
}

void AxisHelper::TransferSettings(AxisInfo& axis, const std::string& name) const {
    const FactorClass* factor = investigation_->GetVariables()->GetFactor(name);
    axis.SetSettings(factor != nullptr ? FirstSettings(*factor) : std::string());
    axis.SetIsQualitative(true);
}

}  // namespace kvopt
