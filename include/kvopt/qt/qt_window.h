#pragma once

#include "kvopt/export.h"
#include "kvopt/platform/window.h"

class QWidget;

namespace kvopt {

/// A host's own Qt window as the parent of the library's pages: they stand in front of it. Its text
/// is the window's title at the moment of asking. Does not own the widget, which must outlive it.
class KVOPT_EXPORT QtWindow : public CWnd {
public:
    explicit QtWindow(QWidget& widget);

    QWidget& Widget() const { return widget_; }
    std::wstring GetText() const override;

private:
    QWidget& widget_;
};

}  // namespace kvopt
