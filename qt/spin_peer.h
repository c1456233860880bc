#pragma once

#include "qt/peer.h"

class QToolButton;

namespace kvopt {

class CSpinButtonCtrl;

/// Two arrows that step the number of the edit beside them.
class SpinPeer : public Peer {
public:
    SpinPeer(QtDesktop& desktop, CSpinButtonCtrl& model, QWidget& arrows);

    QToolButton& Up() const { return up_; }
    QToolButton& Down() const { return down_; }

protected:
    void Push(WindowChange change) override;

private:
    CSpinButtonCtrl& model_;
    QToolButton& up_;
    QToolButton& down_;
};

}  // namespace kvopt
