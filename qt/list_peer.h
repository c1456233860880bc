#pragma once

#include "qt/peer.h"

class QListWidget;

namespace kvopt {

class CListBox;

/// A list of entries of which one or several can be marked.
class ListPeer : public Peer {
public:
    ListPeer(QtDesktop& desktop, CListBox& model, QListWidget& list);

protected:
    void Push(WindowChange change) override;

private:
    CListBox& model_;
    QListWidget& list_;
};

}  // namespace kvopt
