#pragma once

/// \file
/// The stores: hierarchical sections, saved plots, ini files, the user's profile and registry.

#include "kvopt/stores/configuration_section.h"
#include "kvopt/stores/configuration_store.h"
#include "kvopt/stores/contour_plot_ini_section.h"
#include "kvopt/stores/ini_factor_constant.h"
#include "kvopt/stores/ini_file_factory.h"
#include "kvopt/stores/ini_file_section.h"
#include "kvopt/stores/plot_wizard_ini_section.h"
#include "kvopt/stores/predicted_plot_ini_section.h"
#include "kvopt/stores/registry.h"
#include "kvopt/stores/registry_areas.h"
#include "kvopt/stores/store_trouble.h"
#include "kvopt/stores/user_profile.h"
