#include "monkey/invariants.h"

#include <algorithm>
#include <set>
#include <utility>

#include "kvopt/axes.h"
#include "kvopt/options.h"
#include "kvopt/platform.h"
#include "kvopt/plotargs.h"
#include "kvopt/study.h"
#include "kvopt/text.h"
#include "monkey/finding.h"
#include "monkey/stage.h"

namespace kvopt::monkey {

namespace {

/// The button that a step presses, or Tab; none for a step that asks no page. Return presses what
/// it can reach first, unless something takes it before.
std::optional<StepVerb> AskedBy(const StepScope& scope, const UserStep& step) {
    static const std::vector<std::pair<FrameButton, StepVerb>> buttons{
        {FrameButton::Ok, StepVerb::Ok},         {FrameButton::Next, StepVerb::Next},
        {FrameButton::Finish, StepVerb::Finish}, {FrameButton::Back, StepVerb::Back},
        {FrameButton::Apply, StepVerb::Apply},
    };
    const bool isReturn = step.verb == StepVerb::Key && step.key == KeyStroke{kKeyReturn};
    for (const auto& button : buttons) {
        const bool isDefault = button.second != StepVerb::Back && button.second != StepVerb::Apply;
        const bool isPressed = step.verb == button.second || (isReturn && isDefault);
        if (isPressed && IsFrameButtonEnabled(scope, button.first)) {
            return button.second;
        }
    }
    return step.verb == StepVerb::Tab ? std::optional(step.verb) : std::nullopt;
}

std::vector<const CPropertyPage*> PagesOf(const StepScope& scope) {
    std::vector<const CPropertyPage*> pages;
    for (int at = 0; scope.sheet != nullptr && at < scope.sheet->GetPageCount(); ++at) {
        pages.push_back(scope.sheet->GetPage(at));
    }
    return pages;
}

std::vector<int> PagesAsked(const StepScope& scope, StepVerb verb) {
    if (verb == StepVerb::Ok || verb == StepVerb::Apply) {
        std::vector<int> asked;
        for (const CPropertyPage* page : PagesOf(scope)) {
            if (page->HasWindow()) {
                asked.push_back(page->TemplateNumber());
            }
        }
        if (scope.sheet != nullptr) {
            return asked;
        }
    }
    return {scope.ActiveDialog()->TemplateNumber()};
}

bool IsDirty(const CPropertyPage& page) {
    if (const auto* plain = dynamic_cast<const KvPropertyPage*>(&page)) {
        return plain->IsChanged();
    }
    const auto* grid = dynamic_cast<const KvXtpPropertyPage*>(&page);
    return grid != nullptr && grid->IsChanged();
}

/// Of those whose helper it is.
int CountDirty(const StepScope& scope, const BasePropertyPageHelper* helper) {
    int dirty = 0;
    for (const CPropertyPage* page : PagesOf(scope)) {
        const auto* plain = dynamic_cast<const KvPropertyPage*>(page);
        const bool isIts = plain == nullptr || plain->GetPropertyPageHelper() == helper;
        dirty += isIts && IsDirty(*page) ? 1 : 0;
    }
    return dirty;
}

bool IsAccepted(const Invariants::Moment& before, const StepScope& front) {
    switch (*before.asks) {
        case StepVerb::Ok:
            return front.HasEnded() &&
                   (front.sheet == nullptr || front.sheet->Result() == kResultOk);
        case StepVerb::Finish:
            return front.HasEnded();
        case StepVerb::Apply:
            return true;
        default:
            return front.HasEnded() || front.ActiveDialog() != before.front;
    }
}

std::string ListOf(std::vector<std::wstring> items) {
    std::sort(items.begin(), items.end());
    std::string text;
    for (const std::wstring& item : items) {
        text += " '" + KvStdString::ToUtf8(item) + '\'';
    }
    return text;
}

}  // namespace

Portrait Invariants::Edited() const {
    if (subject_.plot != nullptr) {
        return PortraitOf(*subject_.plot);
    }
    return subject_.edited ? subject_.edited() : Portrait{};
}

Invariants::Moment Invariants::BeforeStep(const StepScope& scope, const UserStep& step) {
    Moment moment;
    moment.front = scope.ActiveDialog();
    moment.asks = moment.front != nullptr ? AskedBy(scope, step) : std::nullopt;
    accepted_.reset();
    if (moment.asks) {
        moment.asked = PagesAsked(scope, *moment.asks);
        moment.mustTell = step.verb == StepVerb::Ok || step.verb == StepVerb::Next ||
                          step.verb == StepVerb::Finish;
        moment.dirty = CountDirty(scope, subject_.helper);
        moment.edited = Edited();
        moment.remembered = stage_.Remembered();
    }
    return moment;
}

Verdict Invariants::AfterStep(const Moment& before, const std::vector<StepScope>& open,
                              const std::vector<SeenBox>& boxes) {
    const StepScope& front = open.back();
    CheckUpdates(open);
    CheckLists(front);
    CheckResponses();
    CheckConstants();
    if (!before.asks) {
        return {};
    }
    Refusal refusal{*before.asks, before.front->TemplateNumber(), before.asked};
    for (const SeenBox& box : boxes) {
        // The page that refuses comes up, and the constants are asked once more before they let go
        // of the front: whoever else speaks is the one who refuses.
        const Refuser refuser = RefuserOf(box);
        if (refusal.refuser == Refuser::Nobody) {
            refusal.refuser = refuser;
            refusal.wasAgreed = refusal.wasAgreed || box.answer == BoxAnswer::Yes;
        } else if (refusal.refuser == Refuser::Constants && refuser != Refuser::Nobody) {
            refusal.refuser = refuser;
        }
    }
    if (refusal.refuser != Refuser::Nobody) {
        // Without a helper nobody tells which pages were accepted before the one that refused.
        const bool isWizard = front.sheet != nullptr && front.sheet->IsWizard();
        if (isWizard || subject_.helper != nullptr ||
            CountDirty(front, subject_.helper) >= before.dirty) {
            CheckRefusal(before, refusal);
        }
        return {Verdict::Refused, refusal.refuser, before.asked};
    }
    if (!IsAccepted(before, front)) {
        if (before.mustTell && !front.HasEnded()) {
            throw Finding("page " + std::to_string(before.front->TemplateNumber()) +
                          " refuses without a word");
        }
        return {};
    }
    const bool isAxisPage = dynamic_cast<const AxisPage*>(before.front) != nullptr;
    if (isAxisPage || *before.asks == StepVerb::Apply || *before.asks == StepVerb::Ok) {
        CheckAxes();
    }
    return {Verdict::Accepted, Refuser::Nobody, before.asked};
}

void Invariants::PageWasAccepted() {
    accepted_ = Edited();
    acceptedRemembered_ = stage_.Remembered();
}

void Invariants::RunIsOver(const StepScope& scope) {
    lists_.clear();
    leftDirty_ = CountDirty(scope, subject_.helper);
    // A KvXtpPropertyPage has no step for Cancel of its own and stays as it is.
    bool isAnyLeft = false;
    for (const CPropertyPage* page : PagesOf(scope)) {
        const auto* plain = dynamic_cast<const KvPropertyPage*>(page);
        isAnyLeft = isAnyLeft || (plain != nullptr && plain->IsChanged());
    }
    const bool isPlainEnd = scope.sheet != nullptr && (scope.sheet->Result() == kResultOk ||
                                                       scope.sheet->Result() == kResultCancel);
    if (isPlainEnd && isAnyLeft) {
        throw Finding("a page stays dirty behind OK or Cancel");
    }
}

void Invariants::CheckClosed() const {
    if (subject_.helper->UpdateCount() != leftDirty_) {
        throw Finding("behind the sheet the helper knows of " +
                      std::to_string(subject_.helper->UpdateCount()) + " dirty pages, not of " +
                      std::to_string(leftDirty_));
    }
}

void Invariants::CheckUpdates(const std::vector<StepScope>& open) const {
    int dirty = 0;
    for (const StepScope& scope : open) {
        dirty += CountDirty(scope, subject_.helper);
        for (const CPropertyPage* page : PagesOf(scope)) {
            if (page->IsModified() != IsDirty(*page)) {
                throw Finding("page " + std::to_string(page->TemplateNumber()) +
                              " is dirty for its sheet or for itself, not for both");
            }
        }
    }
    if (subject_.helper != nullptr && subject_.helper->UpdateCount() != dirty) {
        throw Finding(std::to_string(dirty) + " pages are dirty, the helper knows of " +
                      std::to_string(subject_.helper->UpdateCount()));
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
        throw Finding("an item stands twice in the two lists:" + ListOf(items));
    }
    const auto known = lists_.try_emplace(dialog, items).first;
    if (known->second != items) {
        throw Finding("the two lists hold" + ListOf(items) + ", and before" +
                      ListOf(known->second));
    }
}

void Invariants::CheckResponses() const {
    if (subject_.plot == nullptr) {
        return;
    }
    const SelectResponses& responses = *subject_.plot->GetContourTypeData();
    std::vector<std::string> chosen = responses.GetSelectedResponses();
    const std::vector<std::string>& others = responses.GetUnselectedResponses();
    chosen.insert(chosen.end(), others.begin(), others.end());
    std::sort(chosen.begin(), chosen.end());
    std::vector<std::string> all;
    subject_.plot->GetInvestigation()->GetAllAvailableResponses(all, SelectResponseBase::Extended,
                                                                false);
    std::sort(all.begin(), all.end());
    if (chosen != all) {
        throw Finding("the plot's lists of responses do not hold every response once");
    }
}

void Invariants::CheckConstants() const {
    if (subject_.plot == nullptr) {
        return;
    }
    const Variables& variables = *subject_.plot->GetInvestigation()->GetVariables();
    const std::size_t capacity = variables.GetAllFactors().size();
    std::set<std::string> names;
    for (std::size_t at = 0; at <= capacity; ++at) {
        const FactorConstants::Constant& constant = subject_.plot->GetPlotConstants()[at];
        if (!constant.IsDefined()) {
            return;
        }
        if (!names.insert(constant.Name()).second) {
            throw Finding("the constants hold " + constant.Name() + " twice");
        }
        if (!variables.IsFactor(constant.Name())) {
            throw Finding("the constants hold " + constant.Name() + ", which is no factor");
        }
    }
    throw Finding("the constants do not end within their capacity");
}

void Invariants::CheckAxes() const {
    if (subject_.plot == nullptr) {
        return;
    }
    int count = 0;
    const auto& axes = subject_.plot->GetSelectedAxisInfo(count);
    std::set<std::string> names;
    for (int position = 1; position <= count; ++position) {
        const AxisInfo& axis = *axes.at(static_cast<std::size_t>(position));
        if (axis.IsUsed() && !names.insert(axis.GetName()).second) {
            throw Finding(axis.GetName() + " lies on two used axes of an accepted page");
        }
    }
}

void Invariants::CheckRefusal(const Moment& before, const Refusal& refusal) const {
    const Portrait& former = accepted_ ? *accepted_ : before.edited;
    const Portrait present = Edited();
    const std::vector<std::string> may = PartsThatMayChange(refusal);
    for (std::size_t at = 0; at < former.size(); ++at) {
        const auto& [part, text] = former[at];
        if (text != present[at].second && std::find(may.begin(), may.end(), part) == may.end()) {
            throw Finding("a refused page changed the " + part + ", from\n" + text + "\nto\n" +
                          present[at].second);
        }
    }
    const std::string& remembered = accepted_ ? acceptedRemembered_ : before.remembered;
    const std::string now = stage_.Remembered();
    if (now != remembered) {
        throw Finding("a refused page changed what is remembered, from\n" + remembered + "to\n" +
                      now);
    }
}

}  // namespace kvopt::monkey
