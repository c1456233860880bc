#include "bench/first_paint.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <chrono>

namespace kvopt::bench {
namespace {

class PaintWatch : public QObject {
public:
    PaintWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint && !hasBegun_) {
            hasBegun_ = true;
            // All widgets of a window are painted before the event loop goes on.
            QTimer::singleShot(0, this, [this] { End(); });
        }
        return false;
    }

    double Seconds() const { return std::chrono::duration<double>(end_ - start_).count(); }

private:
    using Clock = std::chrono::steady_clock;

    void End() {
        end_ = Clock::now();
        if (QWidget* const window = QApplication::activeModalWidget()) {
            window->close();
        }
    }

    bool hasBegun_ = false;
    Clock::time_point start_ = Clock::now();
    Clock::time_point end_ = start_;
};

}  // namespace

double SecondsToFirstPaint(const std::function<void()>& open) {
    PaintWatch watch;
    open();
    return watch.Seconds();
}

}  // namespace kvopt::bench
