#include "kvopt/qt/qt_player.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QCoreApplication>
#include <QMenu>
#include <QMessageBox>
#include <QPixmap>
#include <QTest>
#include <QTimer>

#include "kvopt/platform/property_page.h"
#include "kvopt/platform/property_sheet.h"
#include "kvopt/qt/qt_desktop.h"
#include "kvopt/text.h"
#include "qt/hit_point.h"
#include "qt/modal_window.h"
#include "qt/qt_gestures.h"
#include "qt/qt_text.h"

namespace kvopt {

namespace {

/// A caption as part of a file name: letters and digits, the rest as single dashes.
QString FileNameOf(const std::string& caption) {
    QString name;
    for (const QChar& character : ToQt(std::string_view(caption)).toLower()) {
        if (character.isLetterOrNumber()) {
            name += character;
        } else if (!name.isEmpty() && !name.endsWith(QLatin1Char('-'))) {
            name += QLatin1Char('-');
        }
    }
    while (name.endsWith(QLatin1Char('-'))) {
        name.chop(1);
    }
    return name;
}

void PlayOn(QtDesktop& desktop, StepPlayer& steps, QWidget& window,
            const std::function<bool()>& hasEnded) {
    QTimer::singleShot(0, &window, [&desktop, &steps, &window, hasEnded] {
        if (hasEnded()) {
            return;
        }
        desktop.Guard([&steps] { steps.PlayNext(); });
        if (!hasEnded()) {
            PlayOn(desktop, steps, window, hasEnded);
        }
    });
}

}  // namespace

QtPlayer::QtPlayer(QtDesktop& desktop, const UserScript& script)
    : desktop_(desktop),
      hands_(std::make_unique<QtGestures>(desktop, *this)),
      steps_(std::make_unique<StepPlayer>(desktop, *hands_)) {
    steps_->Add(script);
    desktop_.SetPlayer(this);
}

QtPlayer::~QtPlayer() {
    desktop_.SetPlayer(nullptr);
}

void QtPlayer::SetPictureFolder(std::string folder) {
    folder_ = std::move(folder);
}

void QtPlayer::Drive(QWidget& window, const std::function<bool()>& hasEnded) {
    PlayOn(desktop_, *steps_, window, hasEnded);
}

void QtPlayer::AnswerBox(QMessageBox& box, const MessageBoxRequest& request) {
    const BoxAnswer answer = steps_->AnswerBox(request);
    QTimer::singleShot(0, &box, [this, &box, answer] {
        if (answer == BoxAnswer::Silence && box.checkBox() != nullptr) {
            QTest::mouseClick(box.checkBox(), Qt::LeftButton, {}, HitPoint(*box.checkBox()));
        }
        TakePicture(box, "box");
        QAbstractButton* button = box.button(answer == BoxAnswer::Yes  ? QMessageBox::Yes
                                             : answer == BoxAnswer::No ? QMessageBox::No
                                                                       : QMessageBox::Ok);
        if (button != nullptr) {
            QTest::mouseClick(button, Qt::LeftButton);
        } else {
            box.done(static_cast<int>(answer));
        }
    });
}

void QtPlayer::ChooseFromMenu(QMenu& menu, const std::vector<PopupMenuItem>& items) {
    const int command = steps_->ChooseFromMenu(items);
    QTimer::singleShot(0, &menu, [this, &menu, command] {
        TakePicture(menu, "menu");
        for (QAction* action : menu.actions()) {
            if (command != 0 && action->data().toInt() == command) {
                menu.setActiveAction(action);
                QTest::keyClick(&menu, Qt::Key_Return);
                return;
            }
        }
        menu.close();
    });
}

void QtPlayer::KeepPage() {
    auto* window = dynamic_cast<ModalWindow*>(desktop_.FrontWindow());
    if (window == nullptr) {
        return;
    }
    const StepScope scope = window->Scope();
    const std::wstring caption = scope.sheet != nullptr && scope.sheet->GetActivePage() != nullptr
                                     ? scope.sheet->GetActivePage()->PageTitle()
                                     : window->windowTitle().toStdWString();
    TakePicture(*window, KvStdString::ToUtf8(caption));
}

void QtPlayer::TakePicture(QWidget& window, const std::string& name) {
    if (folder_.empty()) {
        return;
    }
    const QString file = QStringLiteral("%1/%2-%3.png")
                             .arg(ToQt(std::string_view(folder_)))
                             .arg(pictures_.size() + 1, 2, 10, QLatin1Char('0'))
                             .arg(FileNameOf(name));
    // A drop-down list that takes entries resizes itself, and its layout puts it right by an event.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    if (!window.grab().save(file)) {
        throw FileError(file.toStdString(), "the picture cannot be written");
    }
    pictures_.push_back(file.toStdString());
}

}  // namespace kvopt
