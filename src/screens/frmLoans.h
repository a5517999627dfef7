#pragma once
#include "frame/ChildFrame.h"

namespace zorvane::screens {

// The screen of mode 5: "Loans". For now its frame only (header, colour, glue); its
// controls go into body().
class frmLoans : public ChildFrame {
    Q_OBJECT
  public:
    frmLoans(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);
};

} // namespace zorvane::screens
