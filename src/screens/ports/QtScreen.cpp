#include "ports/QtScreen.h"

#include <QMetaObject>

namespace zorvane::screens {

void QtScreen::addPainter(View view, std::function<void()> paint) {
    painters_[static_cast<std::size_t>(view)].push_back(std::move(paint));
}

void QtScreen::refresh(View view) {
    stale_[static_cast<std::size_t>(view)] = true;
    if (scheduled_)
        return;
    scheduled_ = true;
    // A queued call runs on the event loop's next pass, after the day that asked for it.
    QMetaObject::invokeMethod(this, &QtScreen::flush, Qt::QueuedConnection);
}

void QtScreen::flush() {
    scheduled_ = false;
    int count = 0;
    for (std::size_t v = 0; v < stale_.size(); ++v) {
        if (!stale_[v])
            continue;
        stale_[v] = false; // a painter may mark it again; that waits for the next pass
        ++count;
        for (const auto& paint : painters_[v])
            paint();
    }
    lastFlushCount_ = count;
}

void QtScreen::logLine(const std::string& line, bool cleared) {
    for (const auto& f : onLogLine)
        f(line, cleared);
}

void QtScreen::logCleared() {
    for (const auto& f : onLogCleared)
        f();
}

} // namespace zorvane::screens
