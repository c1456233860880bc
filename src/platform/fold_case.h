#pragma once

#include <string_view>

namespace kvopt {

/// The character without regard to case, one for one and the same in every locale of the process:
/// ASCII, Latin-1, Latin Extended-A, Greek and Cyrillic letters; others stand for themselves.
wchar_t FoldCase(wchar_t c);

/// True when `text` begins with `prefix`, case aside.
bool BeginsWith(std::wstring_view text, std::wstring_view prefix);

}  // namespace kvopt
