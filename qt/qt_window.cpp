#include "kvopt/qt/qt_window.h"

#include <QWidget>

namespace kvopt {

QtWindow::QtWindow(QWidget& widget) : widget_(widget) {}

std::wstring QtWindow::GetText() const {
    return widget_.windowTitle().toStdWString();
}

}  // namespace kvopt
