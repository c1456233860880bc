#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "kvopt/platform.h"
#include "kvopt/qt.h"
#include "tests/support/qt_application.h"

class QAbstractButton;

namespace kvopt::test {

/// A desktop with real windows and a user who is a list of steps: each runs in the event loop while
/// a window is open, the next one when the one before has returned. A step may open windows of its
/// own: the steps behind it then run on those.
class QtTest : public ::testing::Test {
public:
    using Step = std::function<void()>;

    QtTest();
    ~QtTest() override;

protected:
    /// Runs `open`, which opens modal windows, while the steps are played. Fails when a step was
    /// never reached; a window that is still open when the steps are over is closed.
    void Play(const std::function<void()>& open, std::vector<Step> steps);

    /// The window in front.
    static QWidget* Front();
    /// The widget of a control of the window in front, by number. Fails when there is none.
    template <class Widget>
    static Widget* Find(int number) {
        Widget* found = nullptr;
        for (auto* widget : Front()->findChildren<Widget*>(QString::number(number))) {
            // Pages behind may have the same numbers.
            found = found == nullptr || widget->isVisible() ? widget : found;
        }
        EXPECT_NE(found, nullptr) << "control " << number;
        return found;
    }
    /// The frame's button of this label, without mnemonic.
    static QAbstractButton* FrameButtonOf(const char* label);
    static void ClickFrame(const char* label);

    QtDesktop desktop_;
    /// What the transcript says since the last call.
    std::vector<std::string> NewLines();

private:
    void Arm();
    void Next();

    Desktop* before_;
    std::vector<Step> steps_;
    std::size_t next_ = 0;
    std::size_t read_ = 0;
    QTimer timer_;
};

}  // namespace kvopt::test
