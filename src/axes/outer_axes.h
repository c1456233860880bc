#pragma once

#include <functional>
#include <string>

#include "kvopt/axes/axis_page.h"

namespace kvopt {

class AxisInfo;
class CComboBox;
class CEdit;
class CWnd;
class FactorClass;
class MessageMap;
class Variables;

/// What a qualitative factor shows when it is put on an axis: the first settings in use, as many as
/// are drawn, joined by ";".
std::string FirstSettings(const FactorClass& factor);

/// The two outer axes of a page with four dimensions. One that holds a qualitative factor has a box
/// with settings in place of low and high, and a button that leads to their choice. A value that a
/// page with a window makes on the spot.
class OuterAxes {
public:
    /// `first` is the number of the first of the two axes.
    OuterAxes(const AxisPage& page, const Variables* variables, int first)
        : page_(page), variables_(*variables), first_(first) {}

    /// What the user does with the boxes and buttons: `changed` runs for a text, `choose` for a
    /// button, with its axis.
    void AddHandlers(MessageMap& map, const std::function<void()>& changed,
                     const std::function<void(int)>& choose) const;

    /// The box with the settings of an axis.
    CEdit* SettingsEdit(int axis) const;
    /// Writes what a stored axis of a qualitative factor holds into its box. Null is passed over.
    void ShowStored(int axis, const AxisInfo* stored) const;
    /// Writes the box into an axis of a qualitative factor, as it stands. Null is passed over.
    void Transfer(int axis, AxisInfo* stored) const;

    /// Shows box and button of the axis and writes the first settings when its row holds a
    /// qualitative factor; hides them otherwise. True when they are shown.
    bool ShowDefault(int axis) const;

    /// Lets the user choose among the settings of the factor in `box`, beginning with what `edit`
    /// holds. When that ends well, `changed` runs first and what was chosen goes to `edit`.
    void Choose(const CComboBox& box, CEdit& edit, CWnd* parent,
                const std::function<void()>& changed) const;

    /// Judges one text of settings and adds what there is to say to `message`.
    AxisPage::AxisErrorSeverity CheckSettings(const std::string& factor, const std::string& text,
                                              std::string& message) const;
    /// Judges the settings of both axes where they hold a qualitative factor. `severity` is that of
    /// the rows, which a warning does not lower.
    AxisPage::AxisErrorSeverity Check(AxisPage::AxisErrorSeverity severity,
                                      std::string& message) const;

private:
    std::string SettingsText(int axis) const;

    const AxisPage& page_;
    const Variables& variables_;
    int first_;
};

}  // namespace kvopt
