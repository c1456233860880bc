#pragma once

#include "qt/peer.h"

class QLabel;

namespace kvopt {

/// A text beside other controls.
class LabelPeer : public Peer {
public:
    LabelPeer(QtDesktop& desktop, CControl& model, QLabel& label);

protected:
    void Push(WindowChange change) override;

private:
    QLabel& label_;
};

}  // namespace kvopt
