#pragma once

#include <QPalette>

#include "kvopt/export.h"

namespace kvopt {

/// How the windows of a program look where it wants something else than the machine says: for a
/// host that offers it, and for pictures. Widgets of any palette and scale are drawn readably; this
/// only chooses one.
struct KVOPT_EXPORT QtLook {
    double scale = 1.0;  ///< 2 draws everything with twice the pixels
    bool dark = false;   ///< light texts on a dark ground, in Qt's Fusion style

    /// Call it before the QApplication is made, which reads the scale only then. A scale of 1
    /// leaves the environment as it is.
    void ApplyScale() const;
    /// Call it after the QApplication is made. A light look leaves style and palette as they are.
    void ApplyColours() const;

    static QPalette DarkPalette();
};

}  // namespace kvopt
