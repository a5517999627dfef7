#pragma once
#include <QColor>
#include <QLabel>

#include <functional>

namespace zorvane::screens {

// A label used as a button (the game's `lbc` controls).
//
// Press style: left button down plays the click, sinks the label and shows the pressed
// colours; any button up raises it again and restores the colours; then, with the left
// button only, the action runs, wherever the mouse was released. So a right release only
// restores the look.
//
// Immediate style (the next-day button, the close box, the day labels): no press look; a
// left click on the label plays the click and acts at once.
//
// The label takes the keyboard focus by Tab; Space or Enter act as a left click.
class ButtonLabel : public QLabel {
    Q_OBJECT
  public:
    enum class Style { Press, Immediate };

    ButtonLabel(const QString& name, const QString& caption, QWidget* parent,
                Style style = Style::Press);

    // Normal and pressed colours; an invalid pressed colour keeps the normal one.
    void setColours(const QColor& background, const QColor& text,
                    const QColor& pressedBackground = {}, const QColor& pressedText = {});
    // Whether the press plays the click (the file menu's options press without one).
    void setClickSound(bool on) { sound_ = on; }
    bool isPressed() const { return pressed_; }
    // What a shortcut key does: exactly the left click (sound and action).
    void trigger();

  signals:
    void clicked();

  protected:
    void mousePressEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    void keyPressEvent(QKeyEvent* e) override;

  private:
    void showPressed(bool pressed);
    void playClick() const;

    Style style_;
    bool pressed_ = false;
    bool sound_ = true;
    QColor background_, text_, pressedBackground_, pressedText_;
};

// Where the button labels of a window send their click: set on a window (the main screen, the
// title screen), it serves every button label inside it and inside the windows it owns. The
// game routes it to its sound board; a label with no route anywhere above it is silent.
void setClickRoute(QObject* window, std::function<void()> click);
// Plays the click of the nearest owner of `from` that has a route.
void routeClick(const QObject* from);

// Screen readers see button labels as buttons with a press action.
void installButtonLabelAccessibility();

} // namespace zorvane::screens
