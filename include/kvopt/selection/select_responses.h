#pragma once

#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/study/select_response_base.h"

namespace kvopt {

class ConfigurationSection;
class Investigation;
class PlotWizardIniSection;

/// Which responses, or other named items, are chosen for a plot and which are still available: two
/// lists of names, the chosen ones in display order.
///
/// With a study the lists are kept consistent with it: names that no longer exist are dropped, and
/// an empty selection is filled from what the study has selected. Without one they are plain lists.
/// A value; it owns neither the study, nor the list's owner, nor the mirror, and never refuses a
/// selection, the empty one included.
class KVOPT_EXPORT SelectResponses {
public:
    /// Everything that may be plotted is available, and what the study has selected is chosen. With
    /// `extended` the responses are those of the ResponseManager, else those of Variables.
    SelectResponses(const Investigation* investigation, bool extended);
    /// The selection of `base`, which also says which responses there are. A null `base` throws
    /// InvalidArgument; `investigation` may be null.
    SelectResponses(const Investigation* investigation, SelectResponseBase* base);
    /// Plain lists without a study. `type` is the plural noun of the items.
    SelectResponses(const std::vector<std::string>& selected, const std::string& type);
    /// The same with a second list that is kept equal to the selection; null for none.
    SelectResponses(const std::vector<std::string>& selected,
                    const std::vector<std::string>& unselected, const std::string& type,
                    std::vector<std::string>* mirror);

    const std::vector<std::string>& GetSelectedResponses() const { return mSelected; }
    const std::vector<std::string>& GetUnselectedResponses() const { return mUnselected; }
    void SetUnselectedResponses(const std::vector<std::string>& names) { mUnselected = names; }
    SelectResponseBase* GetSelectResponseBase() const { return mBase; }
    void SetSelectResponseBase(SelectResponseBase* base) { mBase = base; }
    /// The plural noun shown to the user.
    const std::string& GetType() const { return mType; }
    /// Whether the items come from the list's owner and not from the study.
    bool IsSpecial() const;

    /// Makes these names the selection, in this order. A name that is not available is taken when
    /// the study knows it as an available response, and dropped silently otherwise.
    void SetResponses(const std::vector<std::string>& names);
    /// Replaces the selection alone, unchecked; the available names stay as they are.
    void SetSelectedResponses(const std::vector<std::string>& names);
    /// Brings the lists back in line with the study. An empty selection takes everything that is
    /// available with `all`, else what the study has selected. Without a study, an empty selection
    /// takes everything with `all`, and nothing happens otherwise. The mirror is left alone.
    void AssertSelectedResponses(bool all);
    /// The first of that name in each list gets the new name.
    void UpdateResponseName(const std::string& oldName, const std::string& newName);

    /// What the wizard remembers in the study's ini file. Loading leaves the lists alone without a
    /// study, or when nothing is stored; where nothing of what is stored exists any more, it takes
    /// the study's first selected response.
    void LoadSettings(const PlotWizardIniSection& section);
    void SaveSettings(PlotWizardIniSection& section) const;
    /// A saved plot. A selection of everything is read as such, whatever the study holds by then.
    /// A null section reads as one without a selection; writing to it throws InvalidArgument.
    void Read(const ConfigurationSection* section);
    void Save(ConfigurationSection* section) const;

private:
    SelectResponseBase::ResponseType StudyType() const;
    std::vector<std::string> Universe() const;
    /// What the study says can be plotted; needs a study.
    std::vector<std::string> AvailableResponses() const;
    std::vector<std::string> StudySelection() const;
    void MoveResponse(const std::vector<std::string>& names, std::vector<std::string>& from,
                      std::vector<std::string>& to) const;
    void RefreshMirror() const;

    std::vector<std::string> mUnselected;
    std::vector<std::string> mSelected;
    std::vector<std::string>* mSelectedMirror = nullptr;
    bool mExtended = false;
    std::string mType;
    SelectResponseBase* mBase = nullptr;
    const Investigation* mInvestigation = nullptr;
};

}  // namespace kvopt
