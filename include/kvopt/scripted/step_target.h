#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/platform/geometry.h"
#include "kvopt/scripted/user_step.h"

namespace kvopt {

class CControl;
class CDialog;
class CPropertySheet;
class CXTPPropertyGrid;
class CXTPPropertyGridItem;
class VirtualWorksheet;

/// What stands in front of the user: a sheet with its active page, or a free-standing dialog. Owns
/// neither.
struct KVOPT_EXPORT StepScope {
    CPropertySheet* sheet = nullptr;
    CDialog* dialog = nullptr;

    /// The active page of the sheet, or the dialog; null for a sheet without a page.
    CDialog* ActiveDialog() const;
    /// True once the modal run was ended.
    bool HasEnded() const;
    /// For messages: number and caption of the page or dialog.
    std::string Describe() const;
};

/// A control, a cell of a worksheet or a row of a property grid that a step is aimed at; or why it
/// cannot be had.
struct KVOPT_EXPORT FoundTarget {
    CControl* control = nullptr;
    CPoint cell;                           ///< (column, row), when the target is a cell
    CXTPPropertyGridItem* item = nullptr;  ///< when the target is a row of a property grid
    std::string problem;                   ///< empty when the target was found

    explicit operator bool() const { return problem.empty(); }
    /// Null when the control is no worksheet.
    VirtualWorksheet* Worksheet() const;
    /// Null when the control is no property grid.
    CXTPPropertyGrid* Grid() const;
};

/// Finds what a step is aimed at on the active page and checks that the verb fits its kind, and,
/// when the user acts, that it is visible and enabled. A name is compared with accessible names and
/// with labels without their mnemonic, exactly; a label leads to the control beside it. Never
/// throws: the problem says what is wrong, and for an unknown name which names there are.
KVOPT_EXPORT FoundTarget FindTarget(const StepScope& scope, const UserStep& step);
/// The same for the second place of a step (`UserStep::to`).
KVOPT_EXPORT FoundTarget FindSecondTarget(const StepScope& scope, const UserStep& step);

/// Whether the frame shows a button, and whether it can be pressed.
KVOPT_EXPORT bool HasFrameButton(const StepScope& scope, FrameButton button);
KVOPT_EXPORT bool IsFrameButtonEnabled(const StepScope& scope, FrameButton button);

}  // namespace kvopt
