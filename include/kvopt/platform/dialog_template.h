#pragma once

#include <map>
#include <vector>

#include "kvopt/export.h"

namespace kvopt {

enum class ControlKind {
    Label,
    Edit,
    ComboList,  ///< drop-down list without free text
    ComboEdit,  ///< drop-down list that accepts free text
    ListSingle,
    ListMulti,
    Push,
    Check,
    Radio,
    Spin,
    Worksheet,
    PropertyGrid,
    Markup,  ///< a header with rich text
};

/// One control of a dialog: number, kind, label and start state. Texts are UTF-8 with "&" before
/// the mnemonic. Where `name` is set it is the accessible name; otherwise the label is, without
/// its mnemonic.
struct ControlTemplate {
    int number = -1;  ///< -1 for a text that no code names
    ControlKind kind = ControlKind::Label;
    const char* label = "";
    const char* name = "";
    bool enabled = true;
    bool visible = true;
    bool startsGroup = false;  ///< first radio button of a group
    bool digitsOnly = false;   ///< typing into an edit takes digits alone
    bool wraps = false;        ///< a label's text is broken into lines
    bool ranged = false;       ///< the edit is a KvRangeEdit
    int buddy = -1;            ///< label: the control its mnemonic leads to; spin: its edit
    std::vector<const char*> entries = {};  ///< what a list holds from the start
};

enum class LayoutKind {
    Control,
    Row,
    Column,
    Grid,   ///< children fill rows of `columns` cells
    Group,  ///< a titled frame around a column
    Stack,  ///< children share one place; the visible ones are seen
    Space,  ///< takes what room is left
};

/// A node of a dialog's layout. The controls' order, depth first, is the tab order.
struct KVOPT_EXPORT LayoutItem {
    LayoutKind kind = LayoutKind::Space;
    ControlTemplate control;
    const char* title = "";
    int columns = 0;
    int stretch = 0;  ///< share of the room that is left; 0 takes no more than it needs
    int span = 1;     ///< columns of a grid that it covers
    std::vector<LayoutItem> children;

    /// The same item with another share of the room that is left.
    LayoutItem Stretch(int share) const;
    LayoutItem Span(int count) const;
    LayoutItem Named(const char* accessibleName) const;
    LayoutItem Disabled() const;
    LayoutItem Hidden() const;
    LayoutItem StartsGroup() const;
    LayoutItem DigitsOnly() const;
    LayoutItem Wraps() const;
    LayoutItem Buddy(int number) const;
    LayoutItem Entries(std::vector<const char*> texts) const;
};

/// A dialog as data: both the control models of the core and the widgets of a front end are made
/// from it.
struct KVOPT_EXPORT DialogTemplate {
    int number = 0;
    const char* caption = "";
    LayoutItem layout;

    /// All controls, depth first, which is the tab order.
    std::vector<ControlTemplate> Controls() const;
};

namespace layout {

KVOPT_EXPORT LayoutItem Row(std::vector<LayoutItem> children);
KVOPT_EXPORT LayoutItem Column(std::vector<LayoutItem> children);
KVOPT_EXPORT LayoutItem Grid(int columns, std::vector<LayoutItem> children);
KVOPT_EXPORT LayoutItem Group(const char* title, std::vector<LayoutItem> children);
KVOPT_EXPORT LayoutItem Stack(std::vector<LayoutItem> children);
KVOPT_EXPORT LayoutItem Space();
KVOPT_EXPORT LayoutItem Text(const char* label);
KVOPT_EXPORT LayoutItem Label(int number, const char* label);
KVOPT_EXPORT LayoutItem Edit(int number);
KVOPT_EXPORT LayoutItem RangeEdit(int number);
KVOPT_EXPORT LayoutItem ComboList(int number);
KVOPT_EXPORT LayoutItem ComboEdit(int number);
KVOPT_EXPORT LayoutItem ListSingle(int number);
KVOPT_EXPORT LayoutItem ListMulti(int number);
KVOPT_EXPORT LayoutItem Push(int number, const char* label);
KVOPT_EXPORT LayoutItem Check(int number, const char* label);
KVOPT_EXPORT LayoutItem Radio(int number, const char* label);
KVOPT_EXPORT LayoutItem Spin(int number, int buddy);
KVOPT_EXPORT LayoutItem Worksheet(int number);
KVOPT_EXPORT LayoutItem PropertyGrid(int number, const char* label);
KVOPT_EXPORT LayoutItem Markup(int number, const char* label);

}  // namespace layout

/// All dialog templates of the process, by number. The library's own stand in it from the start.
class KVOPT_EXPORT TemplateCatalog {
public:
    static TemplateCatalog& Instance();

    /// Null when there is none of this number. Stays valid as long as the process.
    const DialogTemplate* Find(int number) const;
    /// Sorted by number.
    std::vector<const DialogTemplate*> All() const;
    /// Adds a host's or a test's own template. Throws InvalidArgument when the number is taken.
    void Add(DialogTemplate dialog);

private:
    TemplateCatalog();
    std::map<int, DialogTemplate> templates_;
};

}  // namespace kvopt
