#pragma once

#include <functional>
#include <string>

#include "kvopt/export.h"
#include "kvopt/platform/dialog_template.h"
#include "kvopt/platform/window.h"

namespace kvopt {

class CDialog;

/// What a control tells the page it stands on.
enum class Notification {
    Clicked,
    DoubleClicked,
    Changed,           ///< the text of an edit or of an editable combo; a worksheet's content
    SelectionChanged,  ///< combo and list
};

/// Base of the control models. A model holds the truth; views mirror it.
///
/// Two kinds of operation are kept apart. The program sets (SetText, SetCurSel, ...): only the
/// views are told, with the one exception of CEdit::SetText. The user acts (operations that begin
/// with "User"): refused with the result false on a hidden or disabled control or dialog;
/// otherwise the focus moves here, the model changes and the page's handler runs.
class KVOPT_EXPORT CControl : public CWnd {
public:
    CControl(CDialog& dialog, const ControlTemplate& what);

    int Number() const { return what_.number; }
    ControlKind Kind() const { return what_.kind; }
    const ControlTemplate& Template() const { return what_; }
    CDialog& Dialog() const { return dialog_; }

    /// The accessible name: the template's; else the present label of a button or text without its
    /// mnemonic; else that of the label whose mnemonic leads here.
    std::wstring AccessibleName() const;

    /// Moves the focus here by program; stands in the transcript each time. What had it before lets
    /// go: an open cell editor commits.
    void SetFocus();

    /// True when the control is visible and enabled and the user can reach its dialog.
    bool IsUsable() const;

    /// The user moved the focus here, by mouse or keyboard. What had it before lets go: an open
    /// cell editor commits.
    bool UserFocus();

    /// The focus goes elsewhere.
    virtual void OnLosesFocus();

protected:
    /// Runs what the user does here: refused on a control that is not usable, otherwise the focus
    /// moves here, then `action` runs (not when the move of the focus made this control unusable),
    /// then the posted steps.
    bool Act(const std::function<bool()>& action);
    void Notify(Notification what);

private:
    CDialog& dialog_;
    ControlTemplate what_;
};

}  // namespace kvopt
