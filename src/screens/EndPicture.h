#pragma once
#include <QDialog>

class QLabel;

namespace zorvane {
class Game;
}

namespace zorvane::screens {

// A full-window picture that closes a game (goal reached, game lost): borderless, shown
// modally, and closed only by a double click on the picture (or Enter, for the keyboard).
class EndPicture : public QDialog {
    Q_OBJECT
  public:
    // The picture is a file of the game's folder ("images\goal.png"); missing, it stays empty.
    EndPicture(Game& game, const QString& formName, const QString& pictureName,
               const QString& picturePath, const QString& caption, QWidget* parent = nullptr);

    // Shown modally: returns once the double click has closed it. Days go on meanwhile.
    void showModal();
    QLabel* picture() const { return pic_; }

  public slots:
    // Esc does not close the picture.
    void reject() override {}

  signals:
    void doubleClicked();

  protected:
    bool eventFilter(QObject* watched, QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    // What the double click does.
    virtual void pictureDoubleClicked() = 0;

    Game& game_;

  private:
    QLabel* pic_;
};

} // namespace zorvane::screens
