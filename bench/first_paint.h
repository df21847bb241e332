#pragma once

// When a window is there for the clerk: after it and all that stands in it has been painted for the first time.

#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <functional>

namespace vorbano::bench {

/// Calls `whenPainted` once, after the first window on show has been painted.
class FirstPaint : public QObject {
  public:
    explicit FirstPaint(std::function<void()> whenPainted) : whenPainted_(std::move(whenPainted)) {
        qApp->installEventFilter(this);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* widget = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(watched) : nullptr;
        if (widget != nullptr && widget->isWindow()) {
            qApp->removeEventFilter(this);
            QTimer::singleShot(0, qApp, whenPainted_);
        }
        return false;
    }

  private:
    std::function<void()> whenPainted_;
};

}  // namespace vorbano::bench
