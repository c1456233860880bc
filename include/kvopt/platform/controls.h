#pragma once

/// \file
/// All control models.

#include "kvopt/platform/button.h"
#include "kvopt/platform/combo_box.h"
#include "kvopt/platform/control.h"
#include "kvopt/platform/edit.h"
#include "kvopt/platform/item_control.h"
#include "kvopt/platform/kv_combo_box.h"
#include "kvopt/platform/kv_range_edit.h"
#include "kvopt/platform/list_box.h"
#include "kvopt/platform/spin_button_ctrl.h"
#include "kvopt/platform/static.h"
