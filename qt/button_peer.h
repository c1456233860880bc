#pragma once

#include "qt/peer.h"

class QAbstractButton;

namespace kvopt {

class CButton;

/// Push button, check box or radio button.
class ButtonPeer : public Peer {
public:
    ButtonPeer(QtDesktop& desktop, CButton& model, QAbstractButton& button);

protected:
    void Push(WindowChange change) override;

private:
    void ShowCheck();

    CButton& model_;
    QAbstractButton& button_;
};

}  // namespace kvopt
