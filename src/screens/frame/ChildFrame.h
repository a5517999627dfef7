#pragma once
#include <QWidget>

#include <cstdint>

class QLabel;

namespace zorvane {
class Game;
}

namespace zorvane::screens {

class QtScreen;
class Screenshots;

// The frame of every mode's screen: a borderless window glued below the main screen (same
// left edge, same width), with a header label to hold it by.
//
// - Left button down on the header tears the screen off (glued := false) and drags it.
// - A left click on the header switches to the screen's mode, which brings it to the front.
// - Right button down on the header hides it.
// - A double click on the header glues it again and snaps it under the main screen.
// - The header is the window's width less 150 twips (room for the screen's own corner).
class ChildFrame : public QWidget {
    Q_OBJECT
  public:
    ChildFrame(Game& game, int mode, const QString& name, const QString& caption, std::uint32_t bgr,
               QWidget* parent = nullptr);

    int mode() const { return mode_; }
    void setGlued(bool value) { glued_ = value; }
    bool getGlued() const { return glued_; }
    bool isDragging() const { return dragging_; }

    QLabel* header() const { return lblHeader_; }
    // Where the screen's own controls go, below the header.
    QWidget* body() const { return body_; }
    // The screen's background colour (its formcolor).
    void setFormColour(std::uint32_t bgr);

    // Hooks the screen into the screen port: the views it paints, the notices it answers.
    virtual void attach(QtScreen&) {}
    // Adds the screen's pictures to `--screenshots`. A shot sets up the game it wants to
    // show; the shots run in mode order, after the main screen's (a shot that plays the game
    // on goes in with Screenshots::addLast).
    virtual void addScreenshots(Screenshots&) {}

  signals:
    // The header was double-clicked: the main screen aligns the screen under itself.
    void reglueRequested();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    Game& game_;

  private:
    int mode_;
    bool glued_ = true;
    bool dragging_ = false;
    QPoint grab_;
    QLabel* lblHeader_;
    QWidget* body_;
};

} // namespace zorvane::screens
