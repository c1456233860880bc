#include "kvopt/platform/keys.h"

#include <map>

#include "kvopt/platform/control.h"
#include "kvopt/platform/dialog.h"

namespace kvopt {

const AcceleratorTable* AcceleratorTable::Find(int number) {
    static const std::map<int, AcceleratorTable> tables{
        {kWorksheetAccelerators,
         AcceleratorTable({{{.key = 'A', .control = true}, kCommandSelectAll},
                           {{.key = 'C', .control = true}, kCommandCopy},
                           {{.key = 'V', .control = true}, kCommandPaste},
                           {{.key = kKeyInsert, .control = true}, kCommandCopy},
                           {{.key = kKeyInsert, .shift = true}, kCommandPaste}})}};
    const auto found = tables.find(number);
    return found == tables.end() ? nullptr : &found->second;
}

bool AcceleratorTable::Translate(CWnd* target, const KeyStroke& key) const {
    if (target == nullptr) {
        return false;
    }
    const auto* control = dynamic_cast<const CControl*>(target);
    if (control != nullptr && control->Dialog().GetFocusControl() != control) {
        return false;
    }
    for (const Entry& entry : entries_) {
        if (entry.key == key) {
            return target->OnCommand(entry.command);
        }
    }
    return false;
}

}  // namespace kvopt
