#pragma once

/// \file
/// The host model: what a study is asked and what it answers. Interfaces are what a host derives
/// from; records are what it fills.

#include "kvopt/study/axis_info.h"
#include "kvopt/study/base_data.h"
#include "kvopt/study/constraints_info.h"
#include "kvopt/study/design_space_options.h"
#include "kvopt/study/design_space_predictor.h"
#include "kvopt/study/ds_factor_settings.h"
#include "kvopt/study/enum_helpers.h"
#include "kvopt/study/factor_class.h"
#include "kvopt/study/factor_constants.h"
#include "kvopt/study/favourite_setpoint.h"
#include "kvopt/study/fit_info.h"
#include "kvopt/study/investigation.h"
#include "kvopt/study/kivex_options.h"
#include "kvopt/study/label_types.h"
#include "kvopt/study/model_queries.h"
#include "kvopt/study/model_spec.h"
#include "kvopt/study/optimizer_queries.h"
#include "kvopt/study/response.h"
#include "kvopt/study/response_manager.h"
#include "kvopt/study/response_model_utilities.h"
#include "kvopt/study/select_response_base.h"
#include "kvopt/study/settings.h"
#include "kvopt/study/simplex_properties.h"
#include "kvopt/study/synch_object.h"
#include "kvopt/study/variable_enums.h"
#include "kvopt/study/variables.h"
