#pragma once
#include "frame/ChildFrame.h"

namespace zorvane::screens {

// The screen of mode 1: "Employees". For now its frame only (header, colour, glue); its
// controls go into body().
class frmEmployees : public ChildFrame {
    Q_OBJECT
  public:
    frmEmployees(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);
};

} // namespace zorvane::screens
