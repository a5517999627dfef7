#include "frame/Labels.h"

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

void putText(QLabel* label, const std::string& text) {
    const QString t = QString::fromStdString(text);
    if (label->text() != t)
        label->setText(t);
}

} // namespace zorvane::screens
