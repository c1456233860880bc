#pragma once

#include "kvopt/export.h"

namespace kvopt {

class CListBox;

/// Moves marked entries between two list boxes with their texts and numbers.
class KVOPT_EXPORT HandleBox {
public:
    HandleBox() = delete;

    /// Moves what is marked in `from` to `to`; always true.
    ///
    /// The place is the end of `to`, or `position` (zero-based) when exactly one entry is marked
    /// and it is not -1. With `byItemData` each entry goes before the first one in `to` whose
    /// number is greater. The order of the moved entries is kept and no entry is ever lost: a place
    /// that does not exist is the end. When nothing was marked in `to`, what arrives is marked.
    static bool MoveSelItem(CListBox* from, CListBox* to, bool byItemData, int position);
};

}  // namespace kvopt
