#pragma once
#include <QColor>
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
class ButtonLabel;

// A named button label of a screen at its place, in the screens' bold button face and its
// colours (normal look; pressing shows them sunk).
ButtonLabel* placeButton(QWidget* parent, const QString& name, const QString& caption,
                         const QRect& at, const QColor& background, const QColor& text);
// Writes a label's text only when it changed: a busy day asks for the same texts again, and an
// unchanged text should cost no layout and no repaint.
void putText(QLabel* label, const std::string& text);

} // namespace zorvane::screens
