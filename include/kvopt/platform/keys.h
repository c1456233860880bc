#pragma once

#include <utility>
#include <vector>

#include "kvopt/export.h"

namespace kvopt {

class CWnd;

/// A key with its modifiers. `key` is the upper-case character, or one of the constants below.
struct KeyStroke {
    int key = 0;
    bool control = false;
    bool shift = false;
    bool alt = false;
    bool operator==(const KeyStroke&) const = default;
};

inline constexpr int kKeyReturn = 0x0D;
inline constexpr int kKeyEscape = 0x1B;
inline constexpr int kKeyF1 = 0x70;
inline constexpr int kKeyInsert = 0x2D;
inline constexpr int kKeyDelete = 0x2E;

/// Commands of the desktop that the library names.
inline constexpr int kCommandCopy = 57634;
inline constexpr int kCommandPaste = 57637;
inline constexpr int kCommandSelectAll = 57642;
inline constexpr int kCommandHelp = 57670;

/// The accelerator table of worksheets: select all, copy and paste.
inline constexpr int kWorksheetAccelerators = 6359;

/// Keys that stand for commands, by the number of their table.
class KVOPT_EXPORT AcceleratorTable {
public:
    /// Null when there is no table of this number.
    static const AcceleratorTable* Find(int number);

    /// Sends the command of the key to `target`; true when the key is in the table and was handled.
    /// A target that is a control takes keys only while it has the focus of its dialog, so that the
    /// other fields of a page keep theirs.
    bool Translate(CWnd* target, const KeyStroke& key) const;

private:
    struct Entry {
        KeyStroke key;
        int command;
    };
    explicit AcceleratorTable(std::vector<Entry> entries) : entries_(std::move(entries)) {}
    std::vector<Entry> entries_;
};

}  // namespace kvopt
