#pragma once

/// \file
/// The text layer: UTF-8, numbers, literal texts and formats, exceptions.

#include "kvopt/text/exceptions.h"
#include "kvopt/text/format.h"
#include "kvopt/text/kv_std_string.h"
#include "kvopt/text/kv_string.h"
#include "kvopt/text/literal.h"
#include "kvopt/text/not_set.h"
