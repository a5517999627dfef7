#include "Screenshots.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QWidget>

#include <cstdio>

namespace zorvane::screens {

bool Screenshots::save(QWidget* widget, const QString& fileName) {
    QApplication::processEvents(); // stale views repaint once, as on screen
    const QString path = QDir(dir_).filePath(fileName);
    const bool ok = widget && widget->grab().save(path, "PNG");
    if (!ok) {
        std::fprintf(stderr, "zorvane: could not write %s\n", path.toLocal8Bit().constData());
        ++failed_;
    }
    return ok;
}

int Screenshots::run(const QString& dir) {
    dir_ = dir;
    failed_ = 0;
    QDir().mkpath(dir);
    for (const Shot& shot : shots_)
        shot(*this);
    for (const Shot& shot : lastShots_)
        shot(*this);
    return failed_;
}

} // namespace zorvane::screens
