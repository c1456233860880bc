#include "monkey/invariants.h"

#include <algorithm>
#include <set>

#include "kvopt/axes.h"
#include "kvopt/options.h"
#include "kvopt/platform.h"
#include "kvopt/plotargs.h"
#include "kvopt/study.h"
#include "monkey/finding.h"
#include "monkey/stage.h"

namespace kvopt::monkey {

namespace {

bool IsAccepting(StepVerb verb) {
    return verb == StepVerb::Next || verb == StepVerb::Finish || verb == StepVerb::Ok ||
           verb == StepVerb::Apply;
}

bool IsDirty(const CPropertyPage* page, const BasePropertyPageHelper* helper) {
    if (const auto* plain = dynamic_cast<const KvPropertyPage*>(page)) {
        return plain->GetPropertyPageHelper() == helper && plain->IsChanged();
    }
    const auto* grid = dynamic_cast<const KvXtpPropertyPage*>(page);
    return grid != nullptr && grid->IsChanged();
}

}  // namespace

void Invariants::Watch(const ContourPlotData* plot, const BasePropertyPageHelper* helper) {
    plot_ = plot;
    helper_ = helper;
}

Invariants::Moment Invariants::BeforeStep(const StepScope& scope) const {
    const CDialog* page = scope.ActiveDialog();
    return {stage_.Remembered(), page, dynamic_cast<const AxisPage*>(page) != nullptr};
}

void Invariants::AfterStep(const Moment& before, const std::vector<StepScope>& open, StepVerb verb,
                           int boxes) {
    const StepScope& front = open.back();
    CheckUpdates(open);
    CheckLists(front);
    CheckConstants();
    if (!IsAccepting(verb)) {
        return;
    }
    const bool moved = front.HasEnded() || front.ActiveDialog() != before.page;
    if (before.isAxisPage && boxes == 0 && (moved || verb == StepVerb::Apply)) {
        CheckAxes();
    }
    if (boxes > 0 && !moved && stage_.Remembered() != before.remembered) {
        throw Finding("a refused page changed what is remembered, from\n" + before.remembered +
                      "to\n" + stage_.Remembered());
    }
}

void Invariants::CheckUpdates(const std::vector<StepScope>& open) const {
    if (helper_ == nullptr) {
        return;
    }
    int dirty = 0;
    for (const StepScope& scope : open) {
        for (int at = 0; scope.sheet != nullptr && at < scope.sheet->GetPageCount(); ++at) {
            dirty += IsDirty(scope.sheet->GetPage(at), helper_) ? 1 : 0;
        }
    }
    if (helper_->UpdateCount() != dirty) {
        throw Finding(std::to_string(dirty) + " pages are dirty, the helper knows of " +
                      std::to_string(helper_->UpdateCount()));
    }
}

void Invariants::CheckLists(const StepScope& scope) {
    const CDialog* dialog = scope.ActiveDialog();
    if (dialog == nullptr || scope.HasEnded()) {
        return;
    }
    int count = 0;
    std::vector<std::wstring> items;
    for (const auto& control : dialog->Controls()) {
        if (const auto* list = dynamic_cast<const CListBox*>(control.get())) {
            const std::vector<std::wstring> texts = list->Texts();
            items.insert(items.end(), texts.begin(), texts.end());
            ++count;
        }
    }
    if (count != 2) {
        return;
    }
    std::sort(items.begin(), items.end());
    if (std::adjacent_find(items.begin(), items.end()) != items.end()) {
        throw Finding("an item stands twice in the two lists");
    }
    const auto [known, isNew] = lists_.try_emplace(dialog, items);
    if (!isNew && known->second != items) {
        throw Finding("the two lists hold " + std::to_string(items.size()) + " items, not the " +
                      std::to_string(known->second.size()) + " of before");
    }
}

void Invariants::CheckConstants() const {
    if (plot_ == nullptr) {
        return;
    }
    const std::size_t capacity = plot_->GetInvestigation()->GetVariables()->GetAllFactors().size();
    std::set<std::string> names;
    for (std::size_t at = 0; at <= capacity; ++at) {
        const FactorConstants::Constant& constant = plot_->GetPlotConstants()[at];
        if (!constant.IsDefined()) {
            return;
        }
        if (!names.insert(constant.Name()).second) {
            throw Finding("the constants hold " + constant.Name() + " twice");
        }
    }
    throw Finding("the constants do not end within their capacity");
}

void Invariants::CheckAxes() const {
    if (plot_ == nullptr) {
        return;
    }
    int count = 0;
    const auto& axes = plot_->GetSelectedAxisInfo(count);
    std::set<std::string> names;
    for (int position = 1; position <= count; ++position) {
        const AxisInfo& axis = *axes.at(static_cast<std::size_t>(position));
        if (axis.IsUsed() && !names.insert(axis.GetName()).second) {
            throw Finding(axis.GetName() + " lies on two used axes of an accepted page");
        }
    }
}

}  // namespace kvopt::monkey
