#include "bench/first_paint.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <utility>

namespace kvopt::bench {
namespace {

/// Waits for the first painting after it was made.
class PaintWatch : public QObject {
public:
    explicit PaintWatch(std::function<void()> then = [] {}) : then_(std::move(then)) {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint && !hasBegun_) {
            hasBegun_ = true;
            // All widgets of a window are painted before the event loop goes on.
            QTimer::singleShot(0, this, [this] {
                end_ = Clock::now();
                hasEnded_ = true;
                then_();
            });
        }
        return false;
    }

    bool HasEnded() const { return hasEnded_; }
    double Seconds() const { return std::chrono::duration<double>(end_ - start_).count(); }

private:
    using Clock = std::chrono::steady_clock;

    std::function<void()> then_;
    bool hasBegun_ = false;
    bool hasEnded_ = false;
    Clock::time_point start_ = Clock::now();
    Clock::time_point end_ = start_;
};

void CloseWindow() {
    if (QWidget* const window = QApplication::activeModalWidget()) {
        window->close();
    }
}

}  // namespace

double SecondsToFirstPaint(const std::function<void()>& open) {
    const PaintWatch watch(CloseWindow);
    open();
    return watch.Seconds();
}

void RunPainted(const std::function<void()>& open, const std::function<void()>& then) {
    const PaintWatch watch([&then] {
        then();
        CloseWindow();
    });
    open();
}

double SecondsToNextPaint(const std::function<void()>& change) {
    const PaintWatch watch;
    change();
    while (!watch.HasEnded()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return watch.Seconds();
}

}  // namespace kvopt::bench
