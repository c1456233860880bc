#include "kvopt/platform/kv_markup.h"

#include "kvopt/platform/dialog.h"
#include "kvopt/platform/markup_static.h"

namespace kvopt {

bool KvMarkup::CreateDialogHeader(CDialog& dialog, CXTPMarkupStatic*& header, int controlNumber,
                                  unsigned titleNumber, std::wstring_view title) {
    header = dialog.Item<CXTPMarkupStatic>(controlNumber);
    if (header == nullptr) {
        return false;
    }
    header->SetTitleNumber(titleNumber);
    header->SetText(title);
    return true;
}

}  // namespace kvopt
