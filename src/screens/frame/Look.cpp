#include "frame/Look.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

namespace zorvane::screens::look {

QFont font(double pointSize, bool bold) {
    QFont f(fontFamily);
    f.setPointSizeF(pointSize);
    f.setBold(bold);
    return f;
}

void paint(QWidget* w, const QColor& background, const QColor& text) {
    // A busy day asks again for the colours a control already has: changing a palette
    // repaints, so only a real change is made.
    const QPalette& now = w->palette();
    if (w->autoFillBackground() && now.color(QPalette::Window) == background &&
        now.color(QPalette::WindowText) == text && now.color(QPalette::Base) == background)
        return;
    QPalette p = w->palette();
    p.setColor(QPalette::Window, background);
    p.setColor(QPalette::WindowText, text);
    p.setColor(QPalette::Base, background);
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::ButtonText, text);
    w->setPalette(p);
    w->setAutoFillBackground(true);
}

void applyToApplication() {
    QApplication::setFont(font(8.5));
    QApplication::setStyle(QStringLiteral("Fusion"));
}

} // namespace zorvane::screens::look
