#include "kvopt/platform/renderer.h"

namespace kvopt {

VWSRenderer::~VWSRenderer() = default;

std::optional<CellSlider> VWSRenderer::Slider(const BaseWorksheetInterface& /*worksheet*/,
                                              int /*column*/, int /*row*/) const {
    return std::nullopt;
}

}  // namespace kvopt
