#include "kvopt/platform/property_page_listener.h"

#include <utility>

#include "kvopt/platform/property_page_helper.h"

namespace kvopt {

PropertyPageListener::~PropertyPageListener() {
    if (helper_ != nullptr) {
        helper_->listener_ = nullptr;
    }
}

void PropertyPageListener::OnDisconnect() {}

bool PropertyPageListener::IsIgnoreListenerUpdates() const {
    return false;
}

void PropertyPageListener::ListenerUpdate() {}

void PropertyPageListener::ConnectTo(BasePropertyPageHelper* helper) {
    if (helper == helper_) {
        return;
    }
    if (helper_ != nullptr) {
        Detach();
    }
    if (helper == nullptr) {
        return;
    }
    if (helper->listener_ != nullptr) {
        helper->listener_->Detach();
    }
    helper_ = helper;
    helper_->listener_ = this;
}

void PropertyPageListener::Detach() {
    std::exchange(helper_, nullptr)->listener_ = nullptr;
    OnDisconnect();
}

}  // namespace kvopt
