#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/property_page_listener.h"

namespace kvopt {

/// A page's link to what hosts the sheet, usually the plot that the sheet changes.
class KVOPT_EXPORT BasePropertyPageHelper {
public:
    BasePropertyPageHelper() = default;
    BasePropertyPageHelper(const BasePropertyPageHelper&) = delete;
    BasePropertyPageHelper& operator=(const BasePropertyPageHelper&) = delete;
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
