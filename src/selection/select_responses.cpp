#include "kvopt/selection/select_responses.h"

#include <algorithm>
#include <cstddef>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "kvopt/axes/fill_box.h"
#include "kvopt/stores/configuration_section.h"
#include "kvopt/stores/plot_wizard_ini_section.h"
#include "kvopt/study/investigation.h"
#include "kvopt/text/exceptions.h"
#include "selection_texts.h"

namespace kvopt {
namespace {

using NameSet = std::unordered_set<std::string>;

bool Holds(const std::vector<std::string>& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

NameSet SetOf(const std::vector<std::string>& names) {
    return {names.begin(), names.end()};
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

std::vector<std::string> SelectResponses::AvailableResponses() const {
    std::vector<std::string> names;
    mInvestigation->GetAllAvailableResponses(names, StudyType(), false);
    return names;
}

std::vector<std::string> SelectResponses::StudySelection() const {
    std::vector<std::string> names;
    if (mInvestigation) {
        mInvestigation->GetSelectedResponses(names, StudyType());
    }
    return names;
}

void SelectResponses::MoveResponse(const std::vector<std::string>& names,
                                   std::vector<std::string>& from,
                                   std::vector<std::string>& to) const {
    std::unordered_map<std::string, std::size_t> left;
    for (const std::string& name : from) {
        ++left[name];
    }
    std::unordered_map<std::string, std::size_t> taken;
    for (const std::string& name : names) {
        const auto found = left.find(name);
        if (found != left.end() && found->second > 0) {
            --found->second;
            ++taken[name];
            to.push_back(name);
        } else if (mInvestigation && Holds(AvailableResponses(), name)) {
            to.push_back(name);
        }
    }
    // Of a name that stands there more than once the first go.
    std::erase_if(from, [&](const std::string& name) {
        const auto found = taken.find(name);
        if (found == taken.end() || found->second == 0) {
            return false;
        }
        --found->second;
        return true;
    });
}

void SelectResponses::RefreshMirror() const {
    if (mSelectedMirror) {
        *mSelectedMirror = mSelected;
    }
}

void SelectResponses::SetResponses(const std::vector<std::string>& names) {
    // In lists of its own, since `names` may be one of the two that change.
    std::vector<std::string> unselected = mUnselected;
    unselected.insert(unselected.end(), mSelected.begin(), mSelected.end());
    std::vector<std::string> selected;
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
        const NameSet universe = SetOf(mUnselected);
        std::erase_if(mSelected,
                      [&](const std::string& name) { return universe.count(name) == 0; });
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
    const NameSet selected = SetOf(mSelected);
    std::erase_if(mUnselected, [&](const std::string& name) { return selected.count(name) != 0; });
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
    std::vector<std::string> names;
    for (int i = 1; i <= count; ++i) {
        names.push_back(section.GetSelectedResponse(static_cast<unsigned>(i)));
    }
    mSelected.clear();
    mUnselected = Universe();
    MoveResponse(names, mUnselected, mSelected);
    if (mSelected.empty()) {
        const std::string first = mInvestigation->GetFirstSelectedResponse(StudyType());
        const auto found = std::find(mUnselected.begin(), mUnselected.end(), first);
        if (found != mUnselected.end()) {
            mUnselected.erase(found);
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
