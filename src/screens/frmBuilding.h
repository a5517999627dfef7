#pragma once
#include "frame/ChildFrame.h"

namespace zorvane::screens {

// The screen of mode 7: "Building". For now its frame only (header, colour, glue); its
// controls go into body().
class frmBuilding : public ChildFrame {
    Q_OBJECT
public:
    frmBuilding(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);
};

} // namespace zorvane::screens
