#pragma once

#include <QPoint>
#include <QWidget>

namespace kvopt {

/// Where a person hits a check box or a radio button: its mark, not the empty room beside it.
inline QPoint HitPoint(const QWidget& widget) {
    return {widget.height() / 2, widget.height() / 2};
}

}  // namespace kvopt
