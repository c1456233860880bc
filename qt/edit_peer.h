#pragma once

#include "qt/peer.h"

class QLineEdit;

namespace kvopt {

class CEdit;

/// A line of text.
class EditPeer : public Peer {
public:
    EditPeer(QtDesktop& desktop, CEdit& model, QLineEdit& edit);
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void Push(WindowChange change) override;

private:
    CEdit& model_;
    QLineEdit& edit_;
    bool pasting_ = false;
};

}  // namespace kvopt
