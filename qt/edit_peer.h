#pragma once

#include "qt/peer.h"

namespace kvopt {

class CEdit;
class LineEdit;

/// A line of text.
class EditPeer : public Peer {
public:
    EditPeer(QtDesktop& desktop, CEdit& model, LineEdit& edit);

protected:
    void Push(WindowChange change) override;
    void TakeFocus() override;

private:
    CEdit& model_;
    LineEdit& edit_;
};

}  // namespace kvopt
