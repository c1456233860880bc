#pragma once

/// \file
/// The reference host: a study in memory, built by code or read from a study file.

#include "kvopt/host/model_fit.h"
#include "kvopt/host/reference_study.h"
#include "kvopt/host/study_builder.h"
#include "kvopt/host/study_data.h"
#include "kvopt/host/study_file.h"
