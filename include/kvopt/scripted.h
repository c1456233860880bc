#pragma once

/// \file
/// A desktop without windows, driven by a script of user steps, and the pieces that every front
/// end needs to be driven by the same scripts. The language is told in docs/scripts.md.

#include "kvopt/scripted/scripted_desktop.h"
#include "kvopt/scripted/slider_path.h"
#include "kvopt/scripted/step_gestures.h"
#include "kvopt/scripted/step_player.h"
#include "kvopt/scripted/step_target.h"
#include "kvopt/scripted/user_script.h"
#include "kvopt/scripted/user_step.h"
#include "kvopt/scripted/virtual_clock.h"
