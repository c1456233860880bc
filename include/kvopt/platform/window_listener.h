#pragma once

#include "kvopt/export.h"

namespace kvopt {

class CWnd;

/// What a window model tells its views about.
enum class WindowChange {
    Text,
    Enabled,
    Visible,
    Check,
    Items,      ///< entries of a list, or rows of a property grid, changed, and perhaps the
                ///< selection with them
    Selection,  ///< the selected or marked entries changed
    Range,      ///< limits of a spin control, or the divider of a property grid, changed
    Focus,      ///< the program moved the focus to this control, perhaps not for the first time
    Cells,      ///< a worksheet, or what stands in the rows of a property grid, must be read afresh
    Pane,       ///< the pane of a property grid was shown or hidden
    TopRow,     ///< another row of a property grid is at its upper edge
    Buttons,    ///< the frame's buttons changed (Back, Next, Finish, OK, Apply)
    ActivePage,  ///< a sheet brought another page up
    Ended,       ///< a modal run was ended
};

/// A view of one window model. It holds no value of its own: it asks the model whenever it is told.
class KVOPT_EXPORT WindowListener {
public:
    virtual ~WindowListener();
    virtual void OnWindowChanged(CWnd& window, WindowChange change) = 0;
    /// The model dies; the view must let go of it.
    virtual void OnWindowGone(CWnd& window) = 0;
};

}  // namespace kvopt
