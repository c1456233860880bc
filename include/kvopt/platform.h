#pragma once

/// \file
/// Everything a page stands on: windows, controls, dialogs, pages, sheets, worksheets, and the
/// desktop that runs them. Nothing here draws; front ends mirror these models.

#include "kvopt/platform/cell_canvas.h"
#include "kvopt/platform/cell_painter.h"
#include "kvopt/platform/cell_renderer.h"
#include "kvopt/platform/controls.h"
#include "kvopt/platform/data_matrix.h"
#include "kvopt/platform/desktop.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/dialog_template.h"
#include "kvopt/platform/field_def.h"
#include "kvopt/platform/field_matrix.h"
#include "kvopt/platform/geometry.h"
#include "kvopt/platform/keys.h"
#include "kvopt/platform/kv_property_page.h"
#include "kvopt/platform/kv_property_sheet.h"
#include "kvopt/platform/message_map.h"
#include "kvopt/platform/property_page.h"
#include "kvopt/platform/property_page_helper.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/platform/transcript.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/platform/window.h"
#include "kvopt/platform/worksheet_interface.h"
