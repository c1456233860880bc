#pragma once

#include "kvopt/export.h"

namespace kvopt {

class BasePropertyPageHelper;

/// Listens to the updates of one helper. Neither owns the other; when either dies the other is
/// told.
class KVOPT_EXPORT PropertyPageListener {
public:
    PropertyPageListener() = default;
    PropertyPageListener(const PropertyPageListener&) = delete;
    PropertyPageListener& operator=(const PropertyPageListener&) = delete;
    virtual ~PropertyPageListener();
    /// The helper is gone, or this listener was detached.
    virtual void OnDisconnect();
    virtual bool IsIgnoreListenerUpdates() const;
    virtual void ListenerUpdate();

    /// Attaches to a helper, leaving the one before; null only leaves. A helper has one listener: a
    /// former one is detached and told.
    void ConnectTo(BasePropertyPageHelper* helper);
    BasePropertyPageHelper* ConnectedHelper() const { return helper_; }

private:
    void Detach();

    friend class BasePropertyPageHelper;
    BasePropertyPageHelper* helper_ = nullptr;
};

}  // namespace kvopt
