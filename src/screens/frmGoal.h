#pragma once
#include "EndPicture.h"

namespace zorvane::screens {

// The goal-reached picture: its double click hides it, and the game then asks whether to
// play on.
class frmGoal : public EndPicture {
    Q_OBJECT
  public:
    explicit frmGoal(Game& game, QWidget* parent = nullptr);

  protected:
    void pictureDoubleClicked() override;
};

} // namespace zorvane::screens
