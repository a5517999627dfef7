#pragma once
#include "frame/ChildFrame.h"

namespace zorvane::screens {

// The screen of mode 3: "Arcade". For now its frame only (header, colour, glue); its
// controls go into body().
class frmArcade : public ChildFrame {
    Q_OBJECT
public:
    frmArcade(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);
};

} // namespace zorvane::screens
