#include "qt/group_view.h"

#include <QWidget>
#include <algorithm>
#include <utility>

#include "kvopt/platform/control.h"

namespace kvopt {

GroupView::GroupView(QWidget& frame, std::vector<CControl*> inside)
    : QObject(&frame), frame_(frame), inside_(std::move(inside)) {
    for (CControl* control : inside_) {
        control->AddListener(this);
    }
    Show();
}

GroupView::~GroupView() {
    for (CControl* control : inside_) {
        control->RemoveListener(this);
    }
}

void GroupView::OnWindowChanged(CWnd& /*window*/, WindowChange change) {
    if (change == WindowChange::Visible) {
        Show();
    }
}

void GroupView::OnWindowGone(CWnd& window) {
    std::erase_if(inside_, [&](const CControl* control) { return control == &window; });
}

void GroupView::Show() {
    frame_.setVisible(inside_.empty() ||
                      std::any_of(inside_.begin(), inside_.end(),
                                  [](const CControl* control) { return control->IsVisible(); }));
}

}  // namespace kvopt
