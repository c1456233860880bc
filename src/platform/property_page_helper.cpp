#include "kvopt/platform/property_page_helper.h"

#include <utility>

namespace kvopt {

BasePropertyPageHelper::~BasePropertyPageHelper() {
    if (listener_ != nullptr) {
        listener_->Detach();
    }
}

bool BasePropertyPageHelper::IsChanged() const {
    return updates_ > 0;
}

bool BasePropertyPageHelper::Update() {
    if (listener_ != nullptr && !listener_->IsIgnoreListenerUpdates()) {
        listener_->ListenerUpdate();
    }
    return true;
}

int BasePropertyPageHelper::Connected() const {
    return listener_ != nullptr ? 1 : 0;
}

void BasePropertyPageHelper::AddUpdate() {
    ++updates_;
}

void BasePropertyPageHelper::RemoveUpdate() {
    if (updates_ > 0) {
        --updates_;
    }
}

}  // namespace kvopt
