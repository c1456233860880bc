#pragma once

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/kv_property_page.h"

namespace kvopt {

class AxisInfo;
class CButton;
class CComboBox;
class CEdit;
class Investigation;
class Variables;
struct AxisEntry;

/// The base of every page on which the analyst places factors on plot axes and enters their ranges.
/// One axis is one row: a list of factors, a low and a high edit and a Default button. The page
/// fills its lists, proposes axes, judges what was entered and writes it back.
///
/// It owns no axis: `axes` and `defaults` of its arguments must outlive it, and only
/// TransferFromPage writes into them, so a cancelled sheet leaves them as they were. Axes count
/// from 1. Before the page has a window its questions are answered from the axes, afterwards from
/// the controls; with the window's end from the axes again.
class KVOPT_EXPORT AxisPage : public KvPropertyPage {
public:
    /// What a page, or an AxisHelper, edits. Both vectors are one-based: element 0 stays empty.
    struct Arguments {
        std::vector<std::shared_ptr<AxisInfo>>* axes = nullptr;  ///< the axis set; not owned
        int numAxes = 0;                                         ///< how many of them are edited
        int backPage = 0;  ///< template of the page that Back goes to
        std::vector<std::shared_ptr<AxisInfo>>* defaults =
            nullptr;  ///< an axis a factor; not owned
        int numDefaults = 0;
    };

    /// The result of a legality check.
    enum AxisErrorSeverity : int { AxisNoError = 0, AxisWarning = 1, AxisError = 2 };

    enum DefaultValue : int { LowValue = 0, HighValue = 1 };

    /// What IsAxisLegal finds, as bits.
    enum AxisFlag : unsigned {
        AxisLowNotBelowHigh = 1,
        AxisLowNotNumber = 2,
        AxisHighNotNumber = 4,
        AxisLowOutOfRange = 8,    ///< the study does not recommend the low setting
        AxisHighOutOfRange = 16,  ///< the study does not recommend the high setting
        AxisIllegalName = 32,     ///< the text of the list is no factor
    };

    AxisPage(const Investigation* investigation, const Arguments& arguments,
             unsigned templateNumber, BasePropertyPageHelper* helper, unsigned helpTopic);
    ~AxisPage() override;

    /// Fills the list of one axis, here with all factors but qualitative ones. `selected` as in
    /// FillBox::FillFactorCLB.
    virtual void FillAxisCombo(int axis, CComboBox* box, const wchar_t* selected);
    /// The user chose another factor; the base marks the page.
    virtual void OnChangeAxis(int axis);
    /// Judges the axes and tells the user: true when all are legal or the user overrules the
    /// warnings. Brings the page up when it was judged from behind another one.
    virtual bool CheckLegalAxes() const;
    /// Shows the default range of the factor that the row shows. A row without one (nothing
    /// selected, not used, or qualitative) gets empty, disabled edits and Default button.
    virtual void SetDefault(int axis);
    /// Writes names and ranges into the axes; a text that is no number writes kNotSet. Does nothing
    /// without a window.
    virtual void TransferFromPage();

    int NAxis() const { return arguments_.numAxes; }
    std::string NameAxis(int axis) const;
    /// Whether the axis holds exactly this factor.
    bool CompareAxis(int axis, const std::string& name) const;
    /// With a window: the list does not show the not-used name.
    bool IsUsedAxis(int axis) const;
    /// kNotSet for a text that is no number.
    double GetMin(int axis) const;
    double GetMax(int axis) const;

    /// The range of the first default of this factor; kNotSet when there is none. Empty pointers
    /// are skipped.
    static float GetDefaultValue(const std::vector<std::shared_ptr<AxisInfo>>& defaults,
                                 DefaultValue which, const std::string& name);
    /// Splits settings joined by ";" and appends those that the factor knows. False when any was
    /// left out.
    static bool ToVectorString(const Variables* variables, const std::string& factor,
                               const std::string& text, std::vector<std::string>& settings);

    /// Adds the not-used name at the end of the list unless the list has it.
    void AddUnusedOption(int axis);
    /// Switches the list of the axis alone.
    void EnableAxis(int axis, bool enable);
    /// Writes both edits with six significant digits.
    void SetRange(int axis, float low, float high);
    /// Shows the not-used name, which the list must hold.
    void SetUnused(int axis);
    /// Selects exactly this name and shows its defaults. The index of the entry (zero-based), or -1
    /// when the list does not have it: then the defaults of axis 1 are shown, whatever axis was
    /// asked for.
    int SelectString(int axis, const std::string& name);
    /// Fills all lists, selects what the axes hold, and proposes defaults for the rest.
    void SetupComboBox();

    /// Bits of AxisFlag, 0 for a legal row.
    unsigned IsAxisLegal(int axis) const;
    /// Judges all rows. `message` comes in empty and gets the text for the user.
    AxisErrorSeverity AreAxesLegal(std::string& message) const;

    bool OnInitDialog() override;
    bool OnSetActive() override;
    int OnWizardBack() override;
    int OnWizardNext() override;
    bool OnWizardFinish() override;
    bool OnApply() override;

protected:
    void GetMessageMap(MessageMap& map) override;

    const Investigation* GetInvestigation() const { return investigation_; }
    /// Null for an axis that is not in the set.
    AxisInfo* Axis(int axis) const;
    /// Null without a window and for a row that the page does not have.
    CComboBox* AxisCombo(int axis) const;
    /// Shows or hides the edits and the Default button of a row.
    void ShowRange(int axis, bool show);
    /// Tells the user what was found and brings the page up, as CheckLegalAxes does, and gives its
    /// answer. Nothing is shown when all is legal.
    bool TellVerdict(AxisErrorSeverity severity, const std::string& message) const;

private:
    struct Row {
        CComboBox* list;
        CEdit* low;
        CEdit* high;
        CButton* defaultButton;
    };
    /// Nothing without a window and for a row that the page does not have.
    std::optional<Row> RowOf(int axis) const;
    AxisEntry EntryOf(int axis) const;
    bool ShowStoredAxis(int axis);
    bool ProposeDefault(int axis, std::set<std::string>& taken);

    const Investigation* investigation_;
    Arguments arguments_;
};

}  // namespace kvopt
