#pragma once

#include <string>

#include "kvopt/export.h"
#include "kvopt/platform/dialog.h"

namespace kvopt {

/// One run of a data exchange: from the controls to the members (`save`) or back.
struct CDataExchange {
    CDialog& dialog;
    bool save = false;
};

/// Connects a pointer member with its control; null when the template has no such control.
template <class T>
void DDX_Control(CDataExchange& exchange, int number, T*& control) {
    control = exchange.dialog.Item<T>(number);
}
KVOPT_EXPORT void DDX_Text(CDataExchange& exchange, int number, std::wstring& text);
KVOPT_EXPORT void DDX_Check(CDataExchange& exchange, int number, bool& checked);
/// `first` is the radio button that starts the group; `index` is zero-based, -1 without a mark.
KVOPT_EXPORT void DDX_Radio(CDataExchange& exchange, int first, int& index);
KVOPT_EXPORT void DDX_CBIndex(CDataExchange& exchange, int number, int& index);

}  // namespace kvopt
