#pragma once
#include <QPixmap>

#include <string>

namespace zorvane {
class Game;
}

namespace zorvane::screens {

// A picture of the game's folder by its game path ("images\speed0.png" style names work).
// The art is drawn at twice its size on screen, so it is shown with a device pixel ratio of
// 2. A missing or unreadable picture gives an empty pixmap: its control stays empty and the
// game goes on.
QPixmap loadPicture(const Game& game, const std::string& gamePath, double ratio = 2.0);

} // namespace zorvane::screens
