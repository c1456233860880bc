#include "kvopt/study/axis_info.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "kvopt/stores.h"
#include "kvopt/text.h"
#include "study_texts.h"

namespace kvopt {

namespace {

template <class Axes>
auto FindName(Axes& axes, const std::string& name) {
    return std::find_if(axes.begin(), axes.end(), [&name](const std::shared_ptr<AxisInfo>& axis) {
        return axis != nullptr && axis->Compare(name.c_str()) == 0;
    });
}

bool IsLimit(float value) {
    return value != kNotSetF && std::isfinite(value);
}

}  // namespace

AxisInfo::~AxisInfo() = default;

const std::string& AxisInfo::GetNotUsedName() {
    static const std::string name = texts::kStudyNotUsed.Text();
    return name;
}

bool AxisInfo::IsNotUsedName(const std::string& name) {
    return name == GetNotUsedName();
}

int AxisInfo::NumSettings() const {
    return static_cast<int>(KvStdString::Split(GetSettings(), ";").size());
}

std::vector<std::shared_ptr<AxisInfo>>::iterator AxisInfo::FindFromName(
    std::vector<std::shared_ptr<AxisInfo>>& axes, const std::string& name) {
    return FindName(axes, name);
}

std::vector<std::shared_ptr<AxisInfo>>::const_iterator AxisInfo::FindFromName(
    const std::vector<std::shared_ptr<AxisInfo>>& axes, const std::string& name) {
    return FindName(axes, name);
}

AxisInfoImpl::~AxisInfoImpl() = default;

int AxisInfoImpl::Compare(const char* name) const {
    return name_.compare(name != nullptr ? name : "");
}

AxisInfo* AxisInfoImpl::Clone() const {
    return new AxisInfoImpl(*this);
}

void AxisInfoImpl::SetRange(float min, float max) {
    min_ = min;
    max_ = max;
}

bool AxisInfoImpl::IsUsed() const {
    return !name_.empty() && !IsNotUsedName(name_);
}

AxisInfo::AxisError AxisInfoImpl::IsLegalAxis() {
    if (!IsUsed()) {
        return NotUsed;
    }
    if (qualitative_) {
        return NumSettings() > 0 ? NoAxisError : NoSettings;
    }
    if (!IsLimit(min_) || !IsLimit(max_)) {
        return NoRange;
    }
    return min_ < max_ ? NoAxisError : ReversedRange;
}

void AxisInfoImpl::WriteSection(ConfigurationSection* section) const {
    section->WriteKey("Name", name_);
    section->WriteKey("Unit", unit_);
    section->WriteKey("IsQualitative", qualitative_);
    section->WriteKey("Min", static_cast<double>(min_));
    section->WriteKey("Max", static_cast<double>(max_));
    section->WriteKey("Settings", settings_);
}

bool AxisInfoImpl::ReadSection(const ConfigurationSection* section) {
    if (section == nullptr || !section->ReadKey("Name", name_)) {
        return false;
    }
    section->ReadKey("Unit", unit_);
    section->ReadKey("IsQualitative", qualitative_);
    min_ = static_cast<float>(section->ReadKeyOr("Min", static_cast<double>(min_)));
    max_ = static_cast<float>(section->ReadKeyOr("Max", static_cast<double>(max_)));
    section->ReadKey("Settings", settings_);
    return true;
}

void AxisInfoVector::PreferAvailableFactors(std::vector<std::shared_ptr<AxisInfo>>& axes,
                                            const std::vector<std::shared_ptr<AxisInfo>>& source,
                                            const std::set<std::string>& available,
                                            const std::set<std::string>& availableMixture) {
    const auto rank = [&](const std::shared_ptr<AxisInfo>& axis) {
        if (axis == nullptr) {
            return std::size_t{2};
        }
        const std::string& name = axis->GetName();
        const bool isAvailable = available.count(name) != 0 || availableMixture.count(name) != 0;
        return isAvailable ? std::size_t{0} : std::size_t{1};
    };
    std::array<std::vector<std::shared_ptr<AxisInfo>>, 3> ranked;
    for (std::size_t i = 1; i < source.size(); ++i) {
        ranked[rank(source[i])].push_back(source[i]);
    }
    axes.assign(1, nullptr);
    for (const std::vector<std::shared_ptr<AxisInfo>>& same : ranked) {
        axes.insert(axes.end(), same.begin(), same.end());
    }
}

}  // namespace kvopt
