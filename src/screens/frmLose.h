#pragma once
#include "EndPicture.h"

namespace zorvane::screens {

// The lost-game picture: its double click hides it and asks to quit. Cancelling the save
// question plays on, and the picture comes again at the next loss.
class frmLose : public EndPicture {
    Q_OBJECT
  public:
    explicit frmLose(Game& game, QWidget* parent = nullptr);

  protected:
    void pictureDoubleClicked() override;
};

} // namespace zorvane::screens
