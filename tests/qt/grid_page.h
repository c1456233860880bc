#pragma once

#include <functional>
#include <string>
#include <vector>

#include "kvopt/platform.h"

namespace kvopt::test {

inline constexpr int kGridPage = 39504;

enum GridPageControl {
    kHeader = 301,
    kOptions,
    kBeside,
};

/// A header, a property grid and a button. The rows: Colours (Red, Blue with the child Shade,
/// Fixed, which is read-only, and Secret, which is hidden) and Numbers (Count, Weight, Name).
class GridPage : public KvPropertyPage {
public:
    GridPage();

    bool OnInitDialog() override;

    CXTPPropertyGrid& Grid() const { return *Item<CXTPPropertyGrid>(kOptions); }
    CXTPPropertyGridItem& Row(std::wstring_view caption) const { return *Grid().FindItem(caption); }
    /// Takes all rows away and puts them there again.
    void Fill();

    /// "Count=3" for each change that the page was told of.
    std::vector<std::string> heard;
    /// Run by each of them.
    std::function<void(CXTPPropertyGridItem&)> also;
    int count = 3;

private:
    void FillColours();
    void FillNumbers();
};

}  // namespace kvopt::test
