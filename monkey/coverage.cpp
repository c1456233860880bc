#include "monkey/coverage.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

#include "kvopt/platform.h"
#include "kvopt/text.h"
#include "tests/support/control_kind_name.h"

namespace kvopt::monkey {

namespace {

const char* NameOf(Refuser refuser) {
    switch (refuser) {
        case Refuser::Nobody:
            return "nobody";
        case Refuser::Responses:
            return "responses";
        case Refuser::Axes:
            return "axes";
        case Refuser::Region:
            return "region";
        case Refuser::Constants:
            return "constants";
        case Refuser::Resolution:
            return "resolution";
        case Refuser::Simulations:
            return "simulations";
        case Refuser::Limit:
            return "limit";
        case Refuser::Items:
            return "items";
    }
    return "";
}

std::string TitleOf(const CDialog& dialog) {
    const auto* page = dynamic_cast<const CPropertyPage*>(&dialog);
    return KvStdString::ToUtf8(page != nullptr ? page->PageTitle() : dialog.Caption());
}

/// Of the pages that were asked, the one that the refuser is part of.
int PageOf(const Verdict& verdict) {
    static const std::map<Refuser, std::vector<int>> homes{
        {Refuser::Responses, {6158, 6172}},
        {Refuser::Axes, {6160, 6161, 6168, 6169}},
        {Refuser::Region, {6168}},
        {Refuser::Constants, {6157, 6160, 6168, 6170}},
        {Refuser::Resolution, {6159, 6213, 6221}},
        {Refuser::Simulations, {6209, 6221}},
        {Refuser::Limit, {6209, 6221}},
        {Refuser::Items, {6150}}};
    for (const int page : verdict.asked) {
        const std::vector<int>& home = homes.at(verdict.refuser);
        if (std::find(home.begin(), home.end(), page) != home.end()) {
            return page;
        }
    }
    return 0;
}

}  // namespace

void Coverage::Begin(const std::string& study, const std::string& scene) {
    study_ = study;
    scene_ = scene;
    scenes_[scene_][study_] += 0;
}

void Coverage::Enter(const StepScope& scope) {
    const CDialog* dialog = scope.ActiveDialog();
    if (dialog != nullptr) {
        Page& page = pages_[dialog->TemplateNumber()];
        page.title = TitleOf(*dialog);
        ++page.entered;
        page.studies.insert(study_);
    }
}

std::string Coverage::AimOf(const UserStep& step, const StepScope& scope) {
    const CDialog* dialog = scope.ActiveDialog();
    const CControl* control = dialog != nullptr && step.target.number != 0
                                  ? dialog->GetDlgItem(step.target.number)
                                  : nullptr;
    return control != nullptr ? test::KindName(control->Kind()) : "frame";
}

void Coverage::Take(StepVerb verb, const std::string& aim, bool isTaken) {
    Steps& steps = verbs_[aim][verb];
    ++(isTaken ? steps.taken : steps.refused);
    ++scenes_[scene_][study_];
}

void Coverage::Judge(const Verdict& verdict) {
    if (verdict.kind == Verdict::Accepted) {
        for (const int page : verdict.asked) {
            ++pages_[page].accepted;
        }
    } else if (verdict.kind == Verdict::Refused) {
        ++pages_[PageOf(verdict)].refused[verdict.refuser];
    }
}

void Coverage::Print(std::ostream& out) const {
    out << "\nPages, how often each came up, on how many studies, was accepted and refused:\n";
    for (const auto& entry : pages_) {
        const Page& page = entry.second;
        out << std::setw(6) << entry.first << ' ' << std::left << std::setw(30) << page.title
            << std::right << std::setw(9) << page.entered << std::setw(4) << page.studies.size()
            << std::setw(9) << page.accepted;
        for (const auto& refused : page.refused) {
            out << "  " << NameOf(refused.first) << ' ' << refused.second;
        }
        out << '\n';
    }
    out << "\nSteps by what they were aimed at, taken + refused by the control:\n";
    for (const auto& aim : verbs_) {
        out << "  " << aim.first << ':';
        for (const auto& entry : aim.second) {
            out << "  " << VerbText(entry.first) << ' ' << entry.second.taken;
            if (entry.second.refused > 0) {
                out << '+' << entry.second.refused;
            }
        }
        out << '\n';
    }
    out << "\nSteps by scene, and on how many studies it opened something:\n";
    for (const auto& scene : scenes_) {
        long steps = 0;
        long studies = 0;
        for (const auto& study : scene.second) {
            steps += study.second;
            studies += study.second > 0 ? 1 : 0;
        }
        out << "  " << std::left << std::setw(40) << scene.first << std::right << std::setw(9)
            << steps << std::setw(4) << studies << '\n';
    }
}

}  // namespace kvopt::monkey
