#pragma once

#include "qt/peer.h"

namespace kvopt {

class CSpinButtonCtrl;

/// Two arrows that step the number of the edit beside them.
class SpinPeer : public Peer {
public:
    SpinPeer(QtDesktop& desktop, CSpinButtonCtrl& model, QWidget& arrows);

    /// The edit beside the arrows, whose Up and Down keys do the same.
    void SetBuddy(QWidget& edit);
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void Push(WindowChange change) override;

private:
    void Step(int delta);

    CSpinButtonCtrl& model_;
    QWidget* buddy_ = nullptr;
};

}  // namespace kvopt
