#pragma once

#include "qt/peer.h"

class QLabel;

namespace kvopt {

class CXTPMarkupStatic;

/// The header of a page: its text, large and bold, broken into as many lines as it needs.
class MarkupPeer : public Peer {
public:
    MarkupPeer(QtDesktop& desktop, CXTPMarkupStatic& model, QLabel& label);

protected:
    void Push(WindowChange change) override;

private:
    QLabel& label_;
};

}  // namespace kvopt
