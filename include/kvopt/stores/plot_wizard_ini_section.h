#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/stores/ini_file_section.h"

namespace kvopt {

/// The settings that every plot wizard remembers in the study's ini file: plot type, axis type and
/// the selected responses. A typed view: it refers to the section, does not own it, and holds no
/// value itself.
///
/// Each call enters the view's own section with SetSection() and stays there, so that keys written
/// directly in the ini section afterwards stand beside the view's.
class KVOPT_EXPORT PlotWizardIniSection {
public:
    explicit PlotWizardIniSection(IniFileSection& section);
    PlotWizardIniSection(const PlotWizardIniSection&) = delete;
    PlotWizardIniSection& operator=(const PlotWizardIniSection&) = delete;
    virtual ~PlotWizardIniSection();

    /// Empty when nothing is stored.
    std::string GetPlotType() const;
    void SetPlotType(const char* type);
    /// Empty when nothing is stored.
    std::string GetAxisType() const;
    void SetAxisType(const char* type);

    void ClearSelectedResponses();
    /// Appends a response, also one that is there already.
    void AddSelectedResponse(const char* response);
    int GetNumSelectedResponses() const;
    /// One-based; empty for a number that is not there.
    std::string GetSelectedResponse(unsigned number) const;

protected:
    PlotWizardIniSection(IniFileSection& section, const char* name);

    /// The ini section, after entering the view's own.
    IniFileSection& Section() const;

private:
    IniFileSection& section_;
    std::string name_;
};

}  // namespace kvopt
