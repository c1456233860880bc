#pragma once

#include <functional>
#include <map>
#include <utility>

#include "kvopt/export.h"
#include "kvopt/platform/control.h"

namespace kvopt {

/// Which handler of a dialog runs for which notification of which control, and for which command.
/// A later entry for the same place replaces the earlier one, so that a derived page can.
class KVOPT_EXPORT MessageMap {
public:
    using Handler = std::function<void()>;

    void On(Notification what, int control, Handler handler);
    void OnCommand(int command, Handler handler);

    void OnClicked(int control, Handler handler);
    void OnDoubleClicked(int control, Handler handler);
    void OnChanged(int control, Handler handler);
    void OnSelectionChanged(int control, Handler handler);

    /// Null when no handler is named.
    const Handler* Find(Notification what, int control) const;
    const Handler* FindCommand(int command) const;

private:
    std::map<std::pair<Notification, int>, Handler> controls_;
    std::map<int, Handler> commands_;
};

}  // namespace kvopt
