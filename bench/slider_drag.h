#pragma once

#include <string>

#include "kvopt/constants.h"
#include "kvopt/platform.h"

namespace kvopt::bench {

/// The mouse holds the thumb of the slider in the first row of a grid, as long as this object
/// lives.
class SliderDrag {
public:
    explicit SliderDrag(VWSConstantInterface& grid);
    SliderDrag(const SliderDrag&) = delete;
    SliderDrag& operator=(const SliderDrag&) = delete;
    ~SliderDrag();

    /// Moves to 40 and to 60 by turns.
    void Step();
    /// The value that the row shows.
    std::string Value() const;

private:
    VWSConstantInterface& grid_;
    CRect rect_;
    CPoint places_[2];
    CPoint thumb_;
    std::size_t next_ = 0;
};

}  // namespace kvopt::bench
