#pragma once

/// \file
/// The front end that draws the library's pages as Qt windows.

#include "kvopt/qt/qt_desktop.h"
#include "kvopt/qt/qt_look.h"
#include "kvopt/qt/qt_player.h"
#include "kvopt/qt/qt_window.h"
