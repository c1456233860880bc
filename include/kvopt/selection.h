#pragma once

/// \file
/// Choosing responses and other items from lists.

#include "kvopt/selection/handle_box.h"
#include "kvopt/selection/multiple_response_page.h"
#include "kvopt/selection/select_item_dialog.h"
#include "kvopt/selection/select_response_page.h"
#include "kvopt/selection/select_responses.h"
#include "kvopt/selection/select_variable_page.h"
