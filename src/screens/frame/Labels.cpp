#include "frame/Labels.h"

#include "frame/ButtonLabel.h"
#include "frame/Look.h"

#include <QLabel>

namespace zorvane::screens {

QLabel* placeLabel(QWidget* parent, const QString& name, const QString& text, const QRect& at,
                   const QFont& font, Qt::Alignment align) {
    auto* l = new QLabel(text, parent);
    l->setObjectName(name);
    l->setGeometry(at);
    l->setFont(font);
    l->setAlignment(align);
    return l;
}

ButtonLabel* placeButton(QWidget* parent, const QString& name, const QString& caption,
                         const QRect& at, const QColor& background, const QColor& text) {
    auto* b = new ButtonLabel(name, caption, parent);
    b->setGeometry(at);
    b->setFont(look::font(8.5, true));
    b->setColours(background, text);
    return b;
}

void putText(QLabel* label, const std::string& text) {
    const QString t = QString::fromStdString(text);
    if (label->text() != t)
        label->setText(t);
}

} // namespace zorvane::screens
