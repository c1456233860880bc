#pragma once

#include "kvopt/platform/property_page_listener.h"
#include "kvopt/text/exceptions.h"
#include "monkey/invariants.h"

namespace kvopt::monkey {

/// A host that draws its plot anew for each page that is accepted. Says so to the invariants.
class AcceptedPages : public PropertyPageListener {
public:
    /// With `abandons` the analyst gives up at the third drawing.
    explicit AcceptedPages(Invariants& invariants, bool abandons = false)
        : invariants_(invariants), abandons_(abandons) {}

    void ListenerUpdate() override {
        if (abandons_ && ++drawings_ == kPatience) {
            throw CancelException();
        }
        invariants_.PageWasAccepted();
    }

private:
    static constexpr int kPatience = 3;

    Invariants& invariants_;
    bool abandons_;
    int drawings_ = 0;
};

}  // namespace kvopt::monkey
