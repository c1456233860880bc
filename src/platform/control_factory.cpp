#include "control_factory.h"

#include "kvopt/platform/controls.h"
#include "kvopt/platform/markup_static.h"
#include "kvopt/platform/property_grid.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "kvopt/text/kv_std_string.h"

namespace kvopt {

namespace {

template <class List>
std::unique_ptr<CControl> MakeList(CDialog& dialog, const ControlTemplate& what) {
    auto list = std::make_unique<List>(dialog, what);
    for (const char* entry : what.entries) {
        list->AddString(KvStdString::ToWide(entry));
    }
    return list;
}

}  // namespace

std::unique_ptr<CControl> MakeControl(CDialog& dialog, const ControlTemplate& what) {
    switch (what.kind) {
        case ControlKind::Edit:
            if (what.ranged) {
                return std::make_unique<KvRangeEdit>(dialog, what);
            }
            return std::make_unique<CEdit>(dialog, what);
        case ControlKind::ComboList:
        case ControlKind::ComboEdit:
            return MakeList<KvComboBox>(dialog, what);
        case ControlKind::ListSingle:
        case ControlKind::ListMulti:
            return MakeList<CListBox>(dialog, what);
        case ControlKind::Push:
        case ControlKind::Check:
        case ControlKind::Radio:
            return std::make_unique<CButton>(dialog, what);
        case ControlKind::Spin:
            return std::make_unique<CSpinButtonCtrl>(dialog, what);
        case ControlKind::Worksheet:
            return std::make_unique<VirtualWorksheet>(dialog, what);
        case ControlKind::PropertyGrid:
            return std::make_unique<CXTPPropertyGrid>(dialog, what);
        case ControlKind::Markup:
            return std::make_unique<CXTPMarkupStatic>(dialog, what);
        case ControlKind::Label:
            break;
    }
    return std::make_unique<CStatic>(dialog, what);
}

}  // namespace kvopt
