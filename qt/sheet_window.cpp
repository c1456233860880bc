#include "qt/sheet_window.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include "kvopt/platform/property_page.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/qt/qt_desktop.h"
#include "qt/page_view.h"
#include "qt/qt_text.h"
#include "qt/tab_pane.h"
#include "resources/qt_texts.h"

namespace kvopt {

namespace {

/// How wide a sheet is at least, in characters.
constexpr int kCharacters = 70;

}  // namespace

SheetWindow::SheetWindow(QtDesktop& desktop, CPropertySheet& sheet, QWidget* parent)
    : ModalWindow(desktop, sheet, parent), sheet_(sheet), pages_(new QStackedWidget(this)) {
    auto* column = new QVBoxLayout(this);
    if (sheet.IsWizard()) {
        AddHeading(*column);
        column->addWidget(pages_, 1);
    } else {
        AddTabs(*column);
    }
    AddFrameButtons(*column);
    // No minimum of the window's own: that would let it be narrower than its pages.
    column->addStrut(fontMetrics().averageCharWidth() * kCharacters);
    ShowPage();
    ShowButtons();
}

StepScope SheetWindow::Scope() const {
    return {&sheet_, nullptr};
}

void SheetWindow::AddHeading(QVBoxLayout& column) {
    heading_ = new QLabel(this);
    QFont font = heading_->font();
    font.setBold(true);
    heading_->setFont(font);
    column.addWidget(heading_);
    auto* line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    column.addWidget(line);
}

void SheetWindow::AddTabs(QVBoxLayout& column) {
    auto* pane = new TabPane(pages_, this);
    tabs_ = &pane->Tabs();
    for (int index = 0; index < sheet_.GetPageCount(); ++index) {
        tabs_->addTab(ToQt(sheet_.GetPage(index)->PageTitle()));
    }
    column.addWidget(pane, 1);
    connect(tabs_, &QTabBar::currentChanged, this, [this](int index) {
        {
            // The page that is up may refuse to go: its tab stays in front until the model says.
            const QSignalBlocker blocker(tabs_);
            tabs_->setCurrentIndex(sheet_.GetActiveIndex());
        }
        desktop_.Guard([&] { sheet_.UserSelectPage(index); });
    });
}

void SheetWindow::AddFrameButtons(QVBoxLayout& column) {
    auto* row = new QHBoxLayout;
    row->addWidget(AddHelpButton());
    row->addStretch(1);
    const auto add = [&](FrameButton button, const PlainText& text) {
        row->addWidget(AddButton(button, ToQt(text.Wide())));
    };
    if (sheet_.IsWizard()) {
        add(FrameButton::Back, texts::kFrameBack);
        add(FrameButton::Next, texts::kFrameNext);
        add(FrameButton::Finish, texts::kFrameFinish);
        row->addSpacing(12);
        add(FrameButton::Cancel, texts::kFrameCancel);
    } else {
        add(FrameButton::Ok, texts::kFrameOk);
        add(FrameButton::Cancel, texts::kFrameCancel);
        if (sheet_.HasApply()) {
            add(FrameButton::Apply, texts::kFrameApply);
        }
    }
    column.addLayout(row);
}

void SheetWindow::OnWindowChanged(CWnd& window, WindowChange change) {
    switch (change) {
        case WindowChange::ActivePage:
            ShowPage();
            break;
        case WindowChange::Buttons:
            ShowButtons();
            break;
        default:
            ModalWindow::OnWindowChanged(window, change);
            break;
    }
}

void SheetWindow::ShowPage() {
    CPropertyPage* page = sheet_.GetActivePage();
    if (page == nullptr || !page->HasWindow()) {
        return;
    }
    PageView*& view = views_[page];
    if (view == nullptr) {
        view = new PageView(desktop_, *page, pages_);
        pages_->addWidget(view);
    }
    pages_->setCurrentWidget(view);
    if (heading_ != nullptr) {
        heading_->setText(ToQt(page->PageTitle()));
    }
    if (tabs_ != nullptr) {
        const QSignalBlocker blocker(tabs_);
        tabs_->setCurrentIndex(sheet_.GetActiveIndex());
    }
    ShowHelpButton();
    resize(size().expandedTo(sizeHint()));
    // Who walks along the tabs by keyboard stays there.
    if (tabs_ == nullptr || !tabs_->hasFocus() || page->GetFocusControl() != nullptr) {
        view->TakeFocus();
    }
}

void SheetWindow::ShowButtons() {
    for (const FrameButton button : {FrameButton::Ok, FrameButton::Apply, FrameButton::Next,
                                     FrameButton::Back, FrameButton::Finish}) {
        if (QAbstractButton* widget = ButtonFor(button)) {
            widget->setEnabled(IsFrameButtonEnabled(Scope(), button));
        }
    }
    // Return goes on where the wizard can, else it finishes or confirms.
    for (const FrameButton button : {FrameButton::Ok, FrameButton::Next, FrameButton::Finish}) {
        auto* widget = qobject_cast<QPushButton*>(ButtonFor(button));
        if (widget != nullptr && widget->isEnabled()) {
            widget->setDefault(true);
            return;
        }
    }
}

void SheetWindow::PressButton(FrameButton button) {
    switch (button) {
        case FrameButton::Ok:
            sheet_.UserOk();
            return;
        case FrameButton::Apply:
            sheet_.UserApply();
            return;
        case FrameButton::Cancel:
        case FrameButton::Close:
            sheet_.UserCancel();
            return;
        case FrameButton::Next:
            sheet_.UserNext();
            return;
        case FrameButton::Back:
            sheet_.UserBack();
            return;
        case FrameButton::Finish:
            sheet_.UserFinish();
            return;
    }
}

}  // namespace kvopt
