#pragma once

#include "qt/peer.h"

class QComboBox;

namespace kvopt {

class CComboBox;

/// A drop-down list, with or without free text.
class ComboPeer : public Peer {
public:
    ComboPeer(QtDesktop& desktop, CComboBox& model, QComboBox& combo);
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void Push(WindowChange change) override;

private:
    CComboBox& model_;
    QComboBox& combo_;
};

}  // namespace kvopt
