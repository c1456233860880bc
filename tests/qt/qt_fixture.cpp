#include "tests/qt/qt_fixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTest>
#include <utility>

namespace kvopt::test {

namespace {

/// Longer than any step takes under a sanitizer on a busy machine.
constexpr int kPatience = 20'000;

}  // namespace

QtTest::QtTest() : before_(Desktop::Install(&desktop_)) {
    // A caret that blinks, and lists that roll down, would make pictures and steps a matter of
    // luck.
    QApplication::setCursorFlashTime(0);
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Next(); });
}

QtTest::~QtTest() {
    Desktop::Install(before_);
}

QWidget* QtTest::Front() {
    return QApplication::activeModalWidget();
}

QAbstractButton* QtTest::FrameButtonOf(const char* label) {
    for (auto* button : Front()->findChildren<QAbstractButton*>()) {
        if (button->text().remove(QLatin1Char('&')) == QLatin1String(label)) {
            return button;
        }
    }
    ADD_FAILURE() << "there is no button " << label;
    return nullptr;
}

void QtTest::ClickFrame(const char* label) {
    if (QAbstractButton* button = FrameButtonOf(label)) {
        QTest::mouseClick(button, Qt::LeftButton);
    }
}

void QtTest::Arm() {
    // Later than what the step before has queued. Started before each step anew: a timer that
    // repeats is not delivered again while a step is inside a window that it opened.
    timer_.start(1);
}

void QtTest::Next() {
    const QPointer<QWidget> front(Front());
    if (front != nullptr) {
        // Without a window manager nobody gives the keyboard to the window in front.
        front->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(front));
    }
    Arm();
    if (front == nullptr) {
        return;
    }
    if (next_ >= steps_.size()) {
        front->close();
    } else {
        const Step step = steps_[next_++];
        step();
    }
}

void QtTest::Play(const std::function<void()>& open, std::vector<Step> steps) {
    steps_ = std::move(steps);
    next_ = 0;
    QTimer watchdog;
    watchdog.setSingleShot(true);
    QObject::connect(&watchdog, &QTimer::timeout, &timer_, [this] {
        ADD_FAILURE() << "no step came to its end in time";
        timer_.stop();
        while (auto* dialog = qobject_cast<QDialog*>(Front())) {
            dialog->done(0);
        }
    });
    watchdog.start(kPatience);
    Arm();
    open();
    timer_.stop();
    EXPECT_EQ(next_, steps_.size()) << "steps that were never reached";
}

std::vector<std::string> QtTest::NewLines() {
    const std::vector<std::string>& all = desktop_.Log().Lines();
    std::vector<std::string> lines(all.begin() + static_cast<std::ptrdiff_t>(read_), all.end());
    read_ = all.size();
    return lines;
}

}  // namespace kvopt::test
