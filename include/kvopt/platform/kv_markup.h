#pragma once

#include <string_view>

#include "kvopt/export.h"

namespace kvopt {

class CDialog;
class CXTPMarkupStatic;

/// Headers of pages.
class KVOPT_EXPORT KvMarkup {
public:
    KvMarkup() = delete;

    /// Finds the markup control of this number on the dialog, gives it the title's number and text,
    /// and points `header` to it. False, with a null header, when the dialog has no such control.
    static bool CreateDialogHeader(CDialog& dialog, CXTPMarkupStatic*& header, int controlNumber,
                                   unsigned titleNumber, std::wstring_view title);
};

}  // namespace kvopt
