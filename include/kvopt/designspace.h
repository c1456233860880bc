#pragma once

/// \file
/// How a design space is simulated and shown.

#include "kvopt/designspace/risk_presentation_enum.h"
