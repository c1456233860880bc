#pragma once

#include "kvopt/export.h"

namespace kvopt {

class BasePropertyPageHelper;

/// Listens to the updates of one helper. Neither owns the other; when either dies the other is
/// told.
class KVOPT_EXPORT PropertyPageListener {
public:
    virtual ~PropertyPageListener();
    /// The helper is gone, or this listener was detached.
    virtual void OnDisconnect();
    virtual bool IsIgnoreListenerUpdates() const;
    virtual void ListenerUpdate();

    /// Attaches to a helper, leaving the one before; null only leaves.
    void ConnectTo(BasePropertyPageHelper* helper);
    BasePropertyPageHelper* ConnectedHelper() const { return helper_; }

private:
    friend class BasePropertyPageHelper;
    BasePropertyPageHelper* helper_ = nullptr;
};

}  // namespace kvopt
