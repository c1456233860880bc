#pragma once

#include <optional>
#include <string>
#include <vector>

#include "kvopt/export.h"
#include "kvopt/platform/desktop.h"
#include "kvopt/platform/keys.h"

namespace kvopt {

/// What a line of a script does. docs/scripts.md tells each in a sentence.
enum class StepVerb {
    // The user acts on a control.
    Click,
    DoubleClick,
    Focus,
    Type,   ///< replaces the text, one keystroke after the other; a cell's editor is committed
    Edit,   ///< as Type into a cell, but the editor stays open
    Paste,  ///< replaces the text, or fills the cells from the target on
    Pick,
    Mark,
    Spin,
    Select,
    Drag,
    Hover,
    Menu,
    Expand,
    Collapse,
    Key,
    // The user acts on the frame.
    Tab,
    Ok,
    Apply,
    Cancel,
    Close,
    Next,
    Back,
    Finish,
    // Time passes, and what is seen is kept.
    Wait,
    Picture,
    // The script says what must be.
    ExpectBox,
    ExpectPage,
    ExpectText,
    ExpectEntries,
    ExpectMarked,
    ExpectChecked,
    ExpectUnchecked,
    ExpectEnabled,
    ExpectDisabled,
    ExpectVisible,
    ExpectHidden,
    ExpectFocus,
    ExpectTip,
    ExpectDescription,
    ExpectCursor,
    ExpectClipboard,
};

/// The word or words that begin the line, such as "double-click" or "expect box".
KVOPT_EXPORT const char* VerbText(StepVerb verb);
/// True for a verb that checks, and does nothing.
KVOPT_EXPORT bool IsExpectation(StepVerb verb);

/// Buttons of the frame around the pages: those of a sheet, a wizard or a free-standing dialog.
enum class FrameButton { Ok, Apply, Cancel, Close, Next, Back, Finish };

/// A row or a column of a worksheet: by position from 1, or, with position 0, by name (the text in
/// column 1, the heading).
struct CellPlace {
    int position = 0;
    std::string name;
    bool operator==(const CellPlace&) const = default;
};

/// What a step is aimed at, as the script names it. Nothing is looked up here.
struct KVOPT_EXPORT StepTarget {
    enum class Kind {
        None,
        Number,  ///< a control, by its number
        Name,    ///< a control, by its accessible name or its label without mnemonic
        Cell,    ///< a cell of the worksheet `number` or `name`; of the only one without either
        Item,    ///< a row of the property grid `number`; of the only one without it
        Frame,   ///< a button of the frame
    };
    Kind kind = Kind::None;
    int number = 0;
    std::string name;
    CellPlace row;
    CellPlace column;
    /// Captions: of the row, then of rows above it from the nearest on, any of which may be left
    /// out.
    std::vector<std::string> path;
    FrameButton button = FrameButton::Ok;

    static StepTarget Control(int number);
    static StepTarget Control(std::string name);
    static StepTarget Cell(CellPlace row, CellPlace column);
    static StepTarget Item(std::vector<std::string> path);
    static StepTarget Frame(FrameButton button);
    /// As it stands in a script.
    std::string Text() const;
    bool operator==(const StepTarget&) const = default;
};

/// A message box that must, or may, come next, and what the user answers.
struct ExpectedBox {
    BoxStyle style = BoxStyle::Plain;
    std::string text;
    bool containing = false;  ///< the box's text holds `text` instead of being it
    bool optional = false;    ///< no fault when the box does not come
    BoxAnswer answer = BoxAnswer::Ok;
    bool operator==(const ExpectedBox&) const = default;
};

/// One line of a script: what the user does, or what must be. All texts are UTF-8.
struct KVOPT_EXPORT UserStep {
    StepVerb verb = StepVerb::Click;
    StepTarget target;
    StepTarget to;                    ///< other end of Select; where Drag goes, when to a cell
    std::vector<std::string> values;  ///< the text, the entries, the caption, the page's title
    std::optional<double> number;     ///< value that Drag goes to
    std::optional<double> share;      ///< percent of the cell's width, of Drag and Hover
    int count = 1;  ///< clicks of Spin (negative: down), milliseconds of Wait, page of ExpectPage
    KeyStroke key;
    ExpectedBox box;
    Cursor cursor = Cursor::Arrow;
    int line = 0;  ///< line of the script, from 1; 0 for a step made by code

    /// As it stands in a script, in the language's own spelling.
    std::string Text() const;
};

}  // namespace kvopt
