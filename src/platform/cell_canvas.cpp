#include "kvopt/platform/cell_canvas.h"

namespace kvopt {

CellCanvas::~CellCanvas() = default;

}  // namespace kvopt
