#if defined(KVOPT_HAS_QT)

#include <gmock/gmock.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTimer>
#include <QTreeView>
#include <functional>
#include <set>

#include "census/page_controls.h"
#include "kvopt/platform.h"
#include "kvopt/qt.h"
#include "kvopt/text.h"
#include "tests/support/control_kind_name.h"
#include "tests/support/qt_application.h"

namespace kvopt::test {
namespace {

/// A template by itself, with every control switched on and shown.
class BareDialog : public CDialog {
public:
    explicit BareDialog(int number) : CDialog(number, nullptr) {}

    bool OnInitDialog() override {
        for (const auto& control : Controls()) {
            control->EnableWindow(true);
            control->ShowWindow(true);
        }
        return CDialog::OnInitDialog();
    }
};

/// The widgets that stand for controls carry the controls' numbers as their object names.
std::vector<QWidget*> WidgetsOfControls(const QWidget& window) {
    std::vector<QWidget*> widgets;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        bool isNumber = false;
        widget->objectName().toInt(&isNumber);
        if (isNumber) {
            widgets.push_back(widget);
        }
    }
    return widgets;
}

bool IsWidgetOf(const QWidget* widget, ControlKind kind) {
    switch (kind) {
        case ControlKind::Label:
        case ControlKind::Markup:
            return qobject_cast<const QLabel*>(widget) != nullptr;
        case ControlKind::PropertyGrid:
            return widget->findChild<QTreeView*>() != nullptr;
        case ControlKind::Edit:
            return qobject_cast<const QLineEdit*>(widget) != nullptr;
        case ControlKind::ComboList:
        case ControlKind::ComboEdit: {
            const auto* combo = qobject_cast<const QComboBox*>(widget);
            return combo != nullptr && combo->isEditable() == (kind == ControlKind::ComboEdit);
        }
        case ControlKind::ListSingle:
        case ControlKind::ListMulti: {
            const auto* list = qobject_cast<const QListWidget*>(widget);
            return list != nullptr &&
                   (list->selectionMode() == QAbstractItemView::SingleSelection) ==
                       (kind == ControlKind::ListSingle);
        }
        case ControlKind::Push:
            return qobject_cast<const QPushButton*>(widget) != nullptr;
        case ControlKind::Check:
            return qobject_cast<const QCheckBox*>(widget) != nullptr;
        case ControlKind::Radio:
            return qobject_cast<const QRadioButton*>(widget) != nullptr;
        case ControlKind::Spin:
            return !widget->findChildren<QAbstractButton*>().isEmpty();
        case ControlKind::Worksheet:
            return qobject_cast<const QTableView*>(widget) != nullptr;
    }
    return false;
}

QString LabelOf(const QWidget* widget) {
    if (const auto* label = qobject_cast<const QLabel*>(widget)) {
        return label->text();
    }
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button != nullptr ? button->text() : QString();
}

bool ShowsItsLabel(ControlKind kind) {
    return kind == ControlKind::Label || kind == ControlKind::Push || kind == ControlKind::Check ||
           kind == ControlKind::Radio;
}

class QtTemplates : public testing::TestWithParam<int> {
protected:
    /// Opens the template in a window, looks at it and cancels.
    void InWindow(const std::function<void(CDialog& dialog, QWidget& window)>& look) {
        QtDesktop desktop;
        Desktop* before = Desktop::Install(&desktop);
        {
            BareDialog dialog(GetParam());
            bool looked = false;
            QTimer::singleShot(0, [&] {
                QWidget* window = desktop.FrontWindow();
                if (window != nullptr) {
                    look(dialog, *window);
                    looked = true;
                }
                dialog.UserCancel();
            });
            EXPECT_EQ(dialog.DoModal(), kResultCancel);
            EXPECT_TRUE(looked) << "no window came";
        }
        Desktop::Install(before);
    }
};

TEST_P(QtTemplates, HaveAWidgetForEachControlInTheSameOrder) {
    InWindow([](CDialog& dialog, QWidget& window) {
        const std::vector<QWidget*> widgets = WidgetsOfControls(window);
        ASSERT_EQ(widgets.size(), dialog.Controls().size());
        for (std::size_t i = 0; i < widgets.size(); ++i) {
            const CControl& control = *dialog.Controls()[i];
            EXPECT_EQ(widgets[i]->objectName().toInt(), control.Number());
            EXPECT_TRUE(IsWidgetOf(widgets[i], control.Kind()))
                << control.Number() << " is no " << KindName(control.Kind());
            if (ShowsItsLabel(control.Kind())) {
                EXPECT_EQ(LabelOf(widgets[i]).toStdString(), control.Template().label);
            }
            EXPECT_EQ(widgets[i]->accessibleName().toStdWString(), control.AccessibleName())
                << control.Number();
        }
    });
}

TEST_P(QtTemplates, LeadFromTextsToTheirBuddies) {
    InWindow([](CDialog& dialog, QWidget& window) {
        const std::vector<QWidget*> widgets = WidgetsOfControls(window);
        ASSERT_EQ(widgets.size(), dialog.Controls().size());
        for (std::size_t i = 0; i < widgets.size(); ++i) {
            const auto* label = qobject_cast<const QLabel*>(widgets[i]);
            if (label != nullptr) {
                const int buddy =
                    label->buddy() == nullptr ? -1 : label->buddy()->objectName().toInt();
                EXPECT_EQ(buddy, dialog.Controls()[i]->Template().buddy)
                    << label->text().toStdString();
            }
        }
    });
}

/// The object names of what gets the focus when Tab is pressed again and again.
std::vector<int> TabStops(QWidget& window, std::size_t presses) {
    std::vector<int> stops;
    window.activateWindow();
    for (int i = 0; i < 500 && QApplication::focusWidget() == nullptr; ++i) {
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    }
    for (std::size_t i = 0; i < presses; ++i) {
        QWidget* focus = QApplication::focusWidget();
        QWidget* target = focus != nullptr ? focus : &window;
        // A part of a control takes the keyboard for it.
        bool isNumber = false;
        for (QWidget* part = target; part != nullptr && !isNumber; part = part->parentWidget()) {
            const int number = part->objectName().toInt(&isNumber);
            if (isNumber) {
                stops.push_back(number);
            }
        }
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QApplication::sendEvent(target, &press);
    }
    return stops;
}

TEST_P(QtTemplates, ReachEveryControlByTheKeyboard) {
    InWindow([](CDialog& dialog, QWidget& window) {
        const std::vector<int> stops = TabStops(window, dialog.Controls().size() + 8);
        const std::set<int> reached(stops.begin(), stops.end());
        for (const auto& control : dialog.Controls()) {
            if (control->Kind() == ControlKind::Label || control->Kind() == ControlKind::Markup) {
                continue;
            }
            // Tab stops at one button of a radio group; arrows lead to the others.
            bool isReached = reached.count(control->Number()) != 0;
            for (const CButton* button : dialog.RadioGroup(control->Number())) {
                isReached = isReached || reached.count(button->Number()) != 0;
            }
            EXPECT_TRUE(isReached) << control->Number();
        }
    });
}

TEST_P(QtTemplates, GoThroughTheControlsInTabOrder) {
    InWindow([](CDialog& dialog, QWidget& window) {
        std::vector<int> stops;
        for (const int stop : TabStops(window, dialog.Controls().size() + 8)) {
            if (!stops.empty() && stop == stops.front()) {
                break;
            }
            stops.push_back(stop);
        }
        EXPECT_FALSE(stops.empty());
        std::vector<int> expected;
        const std::set<int> reached(stops.begin(), stops.end());
        for (const auto& control : dialog.Controls()) {
            if (reached.count(control->Number()) != 0) {
                expected.push_back(control->Number());
            }
        }
        EXPECT_EQ(stops, expected);
    });
}

INSTANTIATE_TEST_SUITE_P(Library, QtTemplates, testing::ValuesIn(AllTemplateNumbers()));

}  // namespace
}  // namespace kvopt::test

#endif
