#include "qt/peers.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <set>

#include "kvopt/platform/controls.h"
#include "kvopt/platform/dialog.h"
#include "kvopt/platform/markup_static.h"
#include "kvopt/platform/property_grid.h"
#include "kvopt/platform/virtual_worksheet.h"
#include "qt/button_peer.h"
#include "qt/combo_peer.h"
#include "qt/edit_peer.h"
#include "qt/label_peer.h"
#include "qt/line_edit.h"
#include "qt/list_peer.h"
#include "qt/markup_peer.h"
#include "qt/property_grid_peer.h"
#include "qt/property_grid_view.h"
#include "qt/spin_peer.h"
#include "qt/worksheet_peer.h"

namespace kvopt {

namespace {

template <class PeerKind, class Model, class Widget>
QWidget* Bound(QtDesktop& desktop, CControl& control, Widget* widget) {
    (new PeerKind(desktop, static_cast<Model&>(control), *widget))->ShowAll();
    return widget;
}

}  // namespace

QWidget* MakeWidget(QtDesktop& desktop, CControl& control, QWidget& parent) {
    switch (control.Kind()) {
        case ControlKind::Edit:
            return Bound<EditPeer, CEdit>(desktop, control, new LineEdit(&parent));
        case ControlKind::ComboList:
        case ControlKind::ComboEdit:
            return Bound<ComboPeer, CComboBox>(desktop, control, new QComboBox(&parent));
        case ControlKind::ListSingle:
        case ControlKind::ListMulti:
            return Bound<ListPeer, CListBox>(desktop, control, new QListWidget(&parent));
        case ControlKind::Push: {
            auto* button = new QPushButton(&parent);
            return Bound<ButtonPeer, CButton>(desktop, control, button);
        }
        case ControlKind::Check:
            return Bound<ButtonPeer, CButton>(desktop, control, new QCheckBox(&parent));
        case ControlKind::Radio:
            return Bound<ButtonPeer, CButton>(desktop, control, new QRadioButton(&parent));
        case ControlKind::Spin:
            return Bound<SpinPeer, CSpinButtonCtrl>(desktop, control, new QWidget(&parent));
        case ControlKind::Worksheet:
            return Bound<WorksheetPeer, VirtualWorksheet>(desktop, control,
                                                          new QTableView(&parent));
        case ControlKind::PropertyGrid:
            return Bound<PropertyGridPeer, CXTPPropertyGrid>(desktop, control,
                                                             new PropertyGridView(&parent));
        case ControlKind::Markup:
            return Bound<MarkupPeer, CXTPMarkupStatic>(desktop, control, new QLabel(&parent));
        case ControlKind::Label:
            break;
    }
    return Bound<LabelPeer, CControl>(desktop, control, new QLabel(&parent));
}

void BindRadioGroups(CDialog& dialog, const std::map<const CControl*, QWidget*>& widgets,
                     QWidget& parent) {
    std::set<const CControl*> bound;
    for (const auto& control : dialog.Controls()) {
        if (control->Kind() != ControlKind::Radio || bound.count(control.get()) != 0) {
            continue;
        }
        auto* group = new QButtonGroup(&parent);
        for (const CButton* member : dialog.RadioGroup(control->Number())) {
            group->addButton(static_cast<QRadioButton*>(widgets.at(member)));
            bound.insert(member);
        }
        group->setExclusive(true);
    }
}

}  // namespace kvopt
