#pragma once

#include <memory>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/control.h"
#include "kvopt/platform/message_map.h"
#include "kvopt/platform/window.h"

namespace kvopt {

class CButton;
struct CDataExchange;
struct KeyStroke;

/// Results of a modal run, with the numbers of the desktop.
enum ModalResult : int {
    kResultOk = 1,
    kResultCancel = 2,
    kResultCancelRequested = 5,  ///< a plot was abandoned while a sheet applied
    kResultFinish = 12325,
};

/// A dialog made from a template: owns its control models, routes their notifications, exchanges
/// data with its members. A property page is one too. It has a window (its controls exist) from
/// Create on; before, GetDlgItem gives null.
class KVOPT_EXPORT CDialog : public CWnd {
public:
    CDialog(int templateNumber, CWnd* parent);
    ~CDialog() override;

    int TemplateNumber() const { return templateNumber_; }
    /// Throws InvalidArgument when the catalog has no template of the number.
    const DialogTemplate& Template() const;

    /// Makes the controls and runs OnInitDialog, once; a second call does nothing. Throws
    /// InvalidArgument for an unknown template.
    void Create();
    bool HasWindow() const { return hasWindow_; }
    /// Ends the window: the controls are gone. What owns a control pointer must let go in
    /// OnDestroyWindow.
    void DestroyWindow();

    /// The window text, or before there is one the template's caption.
    std::wstring Caption() const;

    /// Null when there is no window or no such control.
    CControl* GetDlgItem(int number) const;
    /// The control of this number as `T`; null when it is absent or of another kind.
    template <class T>
    T* Item(int number) const {
        return dynamic_cast<T*>(GetDlgItem(number));
    }
    /// The radio buttons that share one mark with the one of this number, in tab order: from a
    /// button that starts a group up to the next that does. Empty when it is no radio button.
    std::vector<CButton*> RadioGroup(int number) const;
    /// In tab order, anonymous ones included.
    const std::vector<std::unique_ptr<CControl>>& Controls() const { return controls_; }

    /// Runs the dialog through the desktop; gives the number passed to EndDialog.
    int DoModal();
    void EndDialog(int result);
    bool HasEnded() const { return ended_; }
    int Result() const { return result_; }

    /// Controls to members (true) or members to controls (false). Without a window it does nothing
    /// and gives false.
    bool UpdateData(bool save);

    virtual bool OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();
    virtual void DoDataExchange(CDataExchange& exchange);
    /// A key stroke before it goes to the focused control; true when it was used up.
    virtual bool PreTranslateMessage(const KeyStroke& key);
    bool OnCommand(int command) override;

    /// A key that the user pressed, before the focused control gets it; true when it was used up.
    bool UserKey(const KeyStroke& key);
    /// The user presses OK or Cancel of a free-standing dialog (not of a page).
    bool UserOk();
    bool UserCancel();

    /// Moves the focus by program, as the next-dialog-control message does.
    void GotoDlgCtrl(CControl* control);
    CControl* GetFocusControl() const { return focus_; }

    // For controls.
    void DispatchNotification(CControl& control, Notification what);
    void NoteProgramFocus(CControl& control);
    void MoveUserFocus(CControl* control);
    /// Whether the user can reach the controls: a window that is visible, enabled and not ended. Of
    /// a page its running sheet must be all that too, and the page in front.
    virtual bool IsReachable() const;

protected:
    /// Adds the handlers; a derived class calls its base first.
    virtual void GetMessageMap(MessageMap& map);
    /// The controls are about to go; they are still there. A derived class calls its base.
    virtual void OnDestroyWindow();

private:
    void MakeControls();
    bool UserEnds(void (CDialog::*step)());

    int templateNumber_;
    bool hasWindow_ = false;
    bool ended_ = false;
    int result_ = kResultCancel;
    std::vector<std::unique_ptr<CControl>> controls_;
    MessageMap messageMap_;
    CControl* focus_ = nullptr;

    friend class Desktop;
};

}  // namespace kvopt
