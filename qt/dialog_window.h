#pragma once

#include "qt/modal_window.h"

namespace kvopt {

class CDialog;

/// A free-standing dialog with OK and Cancel.
class DialogWindow : public ModalWindow {
public:
    /// The dialog must have its window.
    DialogWindow(QtDesktop& desktop, CDialog& dialog, QWidget* parent);

    StepScope Scope() const override;

protected:
    void PressButton(FrameButton button) override;

private:
    CDialog& dialog_;
};

}  // namespace kvopt
