#pragma once
#include <QPointF>
#include <QWidget>

class QLabel;

namespace zorvane {
class Game;
}

namespace zorvane::screens {

class ButtonLabel;
class QtScreen;
class Screenshots;

// The business advisor: a small talking panel of its own, dragged by its background. It
// shows the advisor's step (its text with the values of the moment it was shown); the left
// and right arrows walk the steps and the red cross closes it. Whether it shows, and what it
// says, is the logic's: this panel follows the advisor view.
class frmTutor : public QWidget {
    Q_OBJECT
  public:
    explicit frmTutor(Game& game, QWidget* parent = nullptr);

    // Shows or hides the panel and puts the step's text in lblTalk, as the logic holds them.
    void paintAdvisor();

    void attach(QtScreen& screen);
    void addScreenshots(Screenshots& shots);

  protected:
    void paintEvent(QPaintEvent* e) override;
    void mousePressEvent(QMouseEvent* e) override;
    void mouseMoveEvent(QMouseEvent* e) override;
    void mouseReleaseEvent(QMouseEvent* e) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void placeFirstTime();

    Game& game_;
    QLabel* lblTalk_;
    ButtonLabel* lbcPrev_;
    ButtonLabel* lbcNext_;
    ButtonLabel* lbcClose_;
    QPointF dragStart_; // where the left button went down, in the panel's own coordinates
    bool dragging_ = false;
    bool placed_ = false;
};

} // namespace zorvane::screens
