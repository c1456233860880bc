#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QToolButton>

#include "tests/qt/every_kind_page.h"
#include "tests/qt/qt_fixture.h"

namespace kvopt::test {

namespace {

/// A template by itself, with every control shown.
class BareDialog : public CDialog {
public:
    explicit BareDialog(int number) : CDialog(number, nullptr) {}

    bool OnInitDialog() override {
        for (const auto& control : Controls()) {
            control->ShowWindow(true);
        }
        return CDialog::OnInitDialog();
    }
};

std::string NameOf(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const QString text = label != nullptr ? label->text() : button != nullptr ? button->text() : "";
    return widget.objectName().toStdString() + " \"" + text.toStdString() + '"';
}

/// What a widget needs so that nothing it shows is cut off.
QSize NeededBy(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget); label != nullptr) {
        return label->wordWrap() ? QSize(0, label->heightForWidth(label->width()))
                                 : label->sizeHint();
    }
    if (qobject_cast<const QToolButton*>(&widget) != nullptr) {
        return {1, 1};  // an arrow, which shows in any size
    }
    if (qobject_cast<const QAbstractButton*>(&widget) != nullptr) {
        return widget.sizeHint();
    }
    if (qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr) {
        return {0, 0};  // judged with the list that it is a part of
    }
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr ||
        qobject_cast<const QComboBox*>(&widget) != nullptr ||
        qobject_cast<const QGroupBox*>(&widget) != nullptr) {
        return widget.minimumSizeHint();
    }
    return {0, 0};
}

void ExpectNothingCutOff(const QWidget& window, const std::string& when) {
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->isWindow()) {
            continue;
        }
        const QSize needed = NeededBy(*widget);
        EXPECT_GE(widget->width(), needed.width()) << NameOf(*widget) << when;
        EXPECT_GE(widget->height(), needed.height()) << NameOf(*widget) << when;
        bool isControl = false;
        widget->objectName().toInt(&isControl);
        if (isControl || needed.width() > 0) {
            const QRect place(widget->mapTo(&window, QPoint()), widget->size());
            EXPECT_TRUE(window.rect().contains(place)) << NameOf(*widget) << when;
        }
    }
}

/// Puts the font of all windows back.
class LargeFont {
public:
    LargeFont() : before_(QApplication::font()) {
        QFont font = before_;
        font.setPointSizeF(before_.pointSizeF() * 2);
        QApplication::setFont(font);
    }
    ~LargeFont() { QApplication::setFont(before_); }
    LargeFont(const LargeFont&) = delete;
    LargeFont& operator=(const LargeFont&) = delete;

private:
    QFont before_;
};

std::vector<int> LibraryTemplates() {
    std::vector<int> numbers;
    for (const DialogTemplate* dialog : TemplateCatalog::Instance().All()) {
        numbers.push_back(dialog->number);
    }
    return numbers;
}

class Fit : public QtTest, public ::testing::WithParamInterface<int> {
protected:
    void InWindow(std::vector<Step> steps) {
        BareDialog dialog(GetParam());
        Play([&] { dialog.DoModal(); }, std::move(steps));
    }
};

TEST_P(Fit, NothingIsCutOffAtFirstNorWhenTheWindowIsAsSmallAsItGets) {
    InWindow({[] {
                  ExpectNothingCutOff(*Front(), " at first");
                  Front()->resize(1, 1);
              },
              [] { ExpectNothingCutOff(*Front(), " at the smallest"); }});
}

TEST_P(Fit, NothingIsCutOffWithAFontTwiceAsLarge) {
    const LargeFont large;
    InWindow({[] {
                  ExpectNothingCutOff(*Front(), " at first");
                  Front()->resize(1, 1);
              },
              [] { ExpectNothingCutOff(*Front(), " at the smallest"); }});
}

TEST_P(Fit, EveryControlHasAName) {
    InWindow({[] {
        for (const QWidget* widget : Front()->findChildren<QWidget*>()) {
            bool isControl = false;
            widget->objectName().toInt(&isControl);
            // A text that is empty yet is filled by its page.
            if (isControl && qobject_cast<const QLabel*>(widget) == nullptr) {
                EXPECT_FALSE(widget->accessibleName().isEmpty()) << NameOf(*widget);
            }
        }
    }});
}

INSTANTIATE_TEST_SUITE_P(Templates, Fit, ::testing::ValuesIn(LibraryTemplates()));

TEST_F(QtTest, ASheetIsNeverNarrowerThanItsPages) {
    const LargeFont large;
    EveryKindPage first;
    EveryKindPage second(kPlainPage);
    CPropertySheet sheet(L"Sheet", nullptr);
    sheet.AddPage(&first);
    sheet.AddPage(&second);
    Play([&] { sheet.DoModal(); }, {[] { Front()->resize(1, 1); },
                                    [] {
                                        ExpectNothingCutOff(*Front(), "");
                                        const auto* tabs = Front()->findChild<QTabBar*>();
                                        EXPECT_TRUE(tabs->rect().contains(tabs->tabRect(1)));
                                    }});
}

}  // namespace

}  // namespace kvopt::test
