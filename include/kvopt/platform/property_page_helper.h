#pragma once

#include <vector>

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

/// A page's link to what hosts the sheet, usually the plot that the sheet changes.
class KVOPT_EXPORT BasePropertyPageHelper {
public:
    virtual ~BasePropertyPageHelper();
    /// True while some page is dirty.
    virtual bool IsChanged() const;
    /// Runs once for each dirty page that is applied; the base calls ListenerUpdate of the attached
    /// listener unless that ignores updates. False refuses the apply.
    virtual bool Update();

    /// 1 while a listener is attached, else 0.
    int Connected() const;
    /// A page became dirty, or clean again.
    void AddUpdate();
    void RemoveUpdate();
    /// Pages that are dirty now.
    int UpdateCount() const { return updates_; }

private:
    friend class PropertyPageListener;
    PropertyPageListener* listener_ = nullptr;
    int updates_ = 0;
};

}  // namespace kvopt
