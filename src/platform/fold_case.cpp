#include "fold_case.h"

#include <algorithm>
#include <array>

namespace kvopt {

namespace {

/// Capital letters from `first` to `last`, each `distance` before its small letter. A step of 2
/// stands for ranges in which capital and small letters alternate.
struct CapitalRange {
    wchar_t first;
    wchar_t last;
    int step;
    int distance;
};

// Simple case folding of the Unicode character database (CaseFolding.txt, status C and S).
constexpr std::array kCapitals{
    CapitalRange{L'A', L'Z', 1, 32},       CapitalRange{0x00B5, 0x00B5, 1, 0x03BC - 0x00B5},
    CapitalRange{0x00C0, 0x00D6, 1, 32},   CapitalRange{0x00D8, 0x00DE, 1, 32},
    CapitalRange{0x0100, 0x012E, 2, 1},    CapitalRange{0x0132, 0x0136, 2, 1},
    CapitalRange{0x0139, 0x0147, 2, 1},    CapitalRange{0x014A, 0x0176, 2, 1},
    CapitalRange{0x0178, 0x0178, 1, -121}, CapitalRange{0x0179, 0x017D, 2, 1},
    CapitalRange{0x0386, 0x0386, 1, 38},   CapitalRange{0x0388, 0x038A, 1, 37},
    CapitalRange{0x038C, 0x038C, 1, 64},   CapitalRange{0x038E, 0x038F, 1, 63},
    CapitalRange{0x0391, 0x03A1, 1, 32},   CapitalRange{0x03A3, 0x03AB, 1, 32},
    CapitalRange{0x03C2, 0x03C2, 1, 1},    CapitalRange{0x0400, 0x040F, 1, 80},
    CapitalRange{0x0410, 0x042F, 1, 32},   CapitalRange{0x0460, 0x0480, 2, 1},
    CapitalRange{0x048A, 0x04BE, 2, 1},
};

}  // namespace

wchar_t FoldCase(wchar_t c) {
    for (const CapitalRange& range : kCapitals) {
        if (c < range.first) {
            break;
        }
        if (c <= range.last && (c - range.first) % range.step == 0) {
            return static_cast<wchar_t>(c + range.distance);
        }
    }
    return c;
}

bool BeginsWith(std::wstring_view text, std::wstring_view prefix) {
    return text.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), text.begin(),
                      [](wchar_t a, wchar_t b) { return a == b || FoldCase(a) == FoldCase(b); });
}

}  // namespace kvopt
