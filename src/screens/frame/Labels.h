#pragma once
#include <QFont>
#include <QRect>
#include <QString>

#include <string>

class QLabel;
class QWidget;

namespace zorvane::screens {

// A named label of a screen at its place, in its font.
QLabel* placeLabel(QWidget* parent, const QString& name, const QString& text, const QRect& at,
                   const QFont& font, Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter);
// Writes a label's text only when it changed: a busy day asks for the same texts again, and an
// unchanged text should cost no layout and no repaint.
void putText(QLabel* label, const std::string& text);

} // namespace zorvane::screens
