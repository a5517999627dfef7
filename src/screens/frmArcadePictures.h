#pragma once
// The pictures of the arcade screen's room: the room's drawing, the cabinets, their titles and
// the style slider's handle. They draw what frmArcade gives them and hand the mouse to it.
#include <QLabel>
#include <QPixmap>
#include <QWidget>

#include <string>

namespace zorvane {
class Game;
}

namespace zorvane::screens {

class frmArcade;

// picRoom: the room's drawing, scaled once to the screen's pixel ratio. The divider
// (lnLeftRight) is not drawn: the player sees only that cabinets face the room's centre.
class RoomPicture : public QWidget {
  public:
    RoomPicture(const Game& game, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* e) override;

  private:
    QPixmap source_, scaled_;
};

// imgGame(index): one machine's cabinet. It is as big as the logic says; with no picture it
// shows only a faint dashed outline, and its title still stands above it. The arrow keys
// move it, Enter opens its details.
class CabinetPicture : public QWidget {
  public:
    CabinetPicture(frmArcade& owner, int index, QWidget* parent);
    void setPicture(const std::string& path);

  protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void mouseDoubleClickEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent* e) override;

  private:
    frmArcade& owner_;
    int index_;
    std::string path_;
};

// lblGameName(index): the title above a cabinet, in the machine's colour (the palette's text
// colour: light cyan while it works, red while broken) on a dark plate that reads on the
// wall and on the carpet. The mouse goes through it to the cabinets.
class CabinetTitle : public QLabel {
  public:
    CabinetTitle(int index, QWidget* parent);
    void setColour(const QColor& c);

  protected:
    void paintEvent(QPaintEvent*) override;
};

// lnSlider: the handle of the style slider, a line from its upper end to its lower end. While
// it is dragged only the upper end follows the mouse, so the line leans; letting go sets it
// upright again.
class SliderLine : public QWidget {
  public:
    SliderLine(frmArcade& owner, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent*) override;

  private:
    frmArcade& owner_;
};

} // namespace zorvane::screens
