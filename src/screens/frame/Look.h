#pragma once
#include <QColor>
#include <QFont>
#include <QString>

class QWidget;

// The game's look: the picture-palace palette and the one caption face.
namespace zorvane::screens::look {

inline const QColor ink{0x2B, 0x1D, 0x14};
inline const QColor night{0x0F, 0x16, 0x26};
inline const QColor navy{0x1D, 0x2A, 0x44};
inline const QColor curtain{0xB3, 0x26, 0x2E};
inline const QColor wine{0x7A, 0x16, 0x20};
inline const QColor brass{0xC9, 0xA2, 0x27};
inline const QColor popcorn{0xF2, 0xC1, 0x4E};
inline const QColor cream{0xF6, 0xE7, 0xC1};
inline const QColor teal{0x2F, 0x8F, 0x83};

inline constexpr const char* fontFamily = "DejaVu Sans";
// The caption face at a point size, bold or not.
QFont font(double pointSize, bool bold = false);
// Background and text colour of a widget through its palette (no style sheet cascade).
void paint(QWidget* w, const QColor& background, const QColor& text);
// The application-wide font and palette: call once after QApplication exists.
void applyToApplication();

} // namespace zorvane::screens::look
