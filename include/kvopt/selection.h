#pragma once

/// \file
/// Choosing responses and other items from lists.

#include "kvopt/selection/select_responses.h"
