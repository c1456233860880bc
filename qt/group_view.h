#pragma once

#include <QObject>
#include <vector>

#include "kvopt/platform/window_listener.h"

class QWidget;

namespace kvopt {

class CControl;

/// Hides a group's frame while everything in it is hidden. Child of the frame.
class GroupView : public QObject, public WindowListener {
public:
    GroupView(QWidget& frame, std::vector<CControl*> inside);
    ~GroupView() override;

    void OnWindowChanged(CWnd& window, WindowChange change) override;
    void OnWindowGone(CWnd& window) override;

private:
    void Show();

    QWidget& frame_;
    std::vector<CControl*> inside_;
};

}  // namespace kvopt
