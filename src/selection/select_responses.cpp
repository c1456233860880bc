#include "kvopt/selection/select_responses.h"

#include <algorithm>
#include <utility>

#include "kvopt/axes/fill_box.h"
#include "kvopt/stores/configuration_section.h"
#include "kvopt/stores/plot_wizard_ini_section.h"
#include "kvopt/study/investigation.h"
#include "kvopt/text/exceptions.h"
#include "selection_texts.h"

namespace kvopt {
namespace {

bool Holds(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool EraseFirst(std::vector<std::string>& names, const std::string& name) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) {
        return false;
    }
    names.erase(found);
    return true;
}

}  // namespace

SelectResponses::SelectResponses(const Investigation* investigation, bool extended)
    : mExtended(extended), mType(texts::kSelectionResponses.Text()), mInvestigation(investigation) {
    mUnselected = Universe();
    MoveResponse(StudySelection(), mUnselected, mSelected);
}

SelectResponses::SelectResponses(const Investigation* investigation, SelectResponseBase* base)
    : mType(texts::kSelectionResponses.Text()), mBase(base), mInvestigation(investigation) {
    if (!base) {
        throw InvalidArgument("SelectResponses::SelectResponses");
    }
    mExtended = base->UseExtendedResponse();
    if (IsSpecial()) {
        base->GetSpecialAvailable(mUnselected, mType);
    } else {
        mUnselected = Universe();
    }
    SetResponses(std::as_const(*base).GetSelResponses());
}

SelectResponses::SelectResponses(const std::vector<std::string>& selected, const std::string& type)
    : mSelected(selected), mType(type) {}

SelectResponses::SelectResponses(const std::vector<std::string>& selected,
                                 const std::vector<std::string>& unselected,
                                 const std::string& type, std::vector<std::string>* mirror)
    : mUnselected(unselected), mSelected(selected), mSelectedMirror(mirror), mType(type) {
    RefreshMirror();
}

bool SelectResponses::IsSpecial() const {
    return mBase && mBase->GetResponseType() == SelectResponseBase::Special;
}

SelectResponseBase::ResponseType SelectResponses::StudyType() const {
    return mExtended ? SelectResponseBase::Extended : SelectResponseBase::Ordinary;
}

std::vector<std::string> SelectResponses::Universe() const {
    std::vector<std::string> names;
    if (IsSpecial()) {
        std::string type;
        mBase->GetSpecialAvailable(names, type);
    } else if (mInvestigation) {
        FillBox(mInvestigation, mExtended ? FillBox::Extended : FillBox::Ordinary)
            .FillResponse(names);
    }
    return names;
}

std::vector<std::string> SelectResponses::StudySelection() const {
    std::vector<std::string> names;
    if (mInvestigation) {
        mInvestigation->GetSelectedResponses(names, StudyType());
    }
    return names;
}

void SelectResponses::MoveResponse(const std::string& name, std::vector<std::string>& from,
                                   std::vector<std::string>& to) const {
    if (EraseFirst(from, name)) {
        to.push_back(name);
    } else if (mInvestigation) {
        std::vector<std::string> available;
        mInvestigation->GetAllAvailableResponses(available, StudyType(), false);
        if (Holds(available, name)) {
            to.push_back(name);
        }
    }
}

void SelectResponses::MoveResponse(const std::vector<std::string>& names,
                                   std::vector<std::string>& from,
                                   std::vector<std::string>& to) const {
    for (const std::string& name : names) {
        MoveResponse(name, from, to);
    }
}

void SelectResponses::RefreshMirror() const {
    if (mSelectedMirror) {
        *mSelectedMirror = mSelected;
    }
}

void SelectResponses::SetResponses(const std::vector<std::string>& names) {
    // In lists of its own, since `names` may be one of the two that change.
    std::vector<std::string> former = mSelected;
    std::vector<std::string> unselected = mUnselected;
    std::vector<std::string> selected;
    while (!former.empty()) {
        const std::string first = former.front();
        MoveResponse(first, former, unselected);
    }
    MoveResponse(names, unselected, selected);
    mUnselected = std::move(unselected);
    mSelected = std::move(selected);
    RefreshMirror();
}

void SelectResponses::SetSelectedResponses(const std::vector<std::string>& names) {
    mSelected = names;
    RefreshMirror();
}

void SelectResponses::AssertSelectedResponses(bool all) {
    if (!mInvestigation) {
        if (all && mSelected.empty()) {
            mSelected.swap(mUnselected);
        }
        return;
    }
    mUnselected = Universe();
    if (IsSpecial()) {
        std::erase_if(mSelected,
                      [&](const std::string& name) { return !Holds(mUnselected, name); });
    } else {
        mInvestigation->RemoveNonValidResponses(mSelected);
    }
    if (mSelected.empty()) {
        if (all) {
            mSelected.swap(mUnselected);
        } else {
            MoveResponse(IsSpecial() ? Universe() : StudySelection(), mUnselected, mSelected);
        }
    }
    for (const std::string& name : mSelected) {
        std::erase(mUnselected, name);
    }
}

void SelectResponses::UpdateResponseName(const std::string& oldName, const std::string& newName) {
    for (std::vector<std::string>* names : {&mUnselected, &mSelected}) {
        const auto found = std::find(names->begin(), names->end(), oldName);
        if (found != names->end()) {
            *found = newName;
        }
    }
    RefreshMirror();
}

void SelectResponses::LoadSettings(const PlotWizardIniSection& section) {
    const int count = section.GetNumSelectedResponses();
    if (!mInvestigation || count <= 0) {
        return;
    }
    mSelected.clear();
    mUnselected = Universe();
    for (int i = 1; i <= count; ++i) {
        MoveResponse(section.GetSelectedResponse(static_cast<unsigned>(i)), mUnselected, mSelected);
    }
    if (mSelected.empty()) {
        const std::string first = mInvestigation->GetFirstSelectedResponse(StudyType());
        if (EraseFirst(mUnselected, first)) {
            mSelected.push_back(first);
        }
    }
}

void SelectResponses::SaveSettings(PlotWizardIniSection& section) const {
    section.ClearSelectedResponses();
    for (const std::string& name : mSelected) {
        section.AddSelectedResponse(name.c_str());
    }
}

void SelectResponses::Read(const ConfigurationSection* section) {
    std::vector<std::string> names;
    bool allSelected = false;
    SelectResponseBase::ResponseType type = SelectResponseBase::Ordinary;
    if (section) {
        SelectResponseBase::ReadSection(section, names, allSelected, type);
    }
    if (!names.empty() || allSelected) {
        SetResponses(names);
    }
    AssertSelectedResponses(allSelected);
}

void SelectResponses::Save(ConfigurationSection* section) const {
    if (!section) {
        throw InvalidArgument("SelectResponses::Save");
    }
    SelectResponseBase::WriteSection(section, mSelected, mUnselected.empty(),
                                     mBase ? mBase->GetResponseType() : StudyType());
}

}  // namespace kvopt
