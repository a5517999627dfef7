#pragma once
#include "frame/ChildFrame.h"

namespace zorvane::screens {

// The screen of mode 4: "Concessions". For now its frame only (header, colour, glue); its
// controls go into body().
class frmConcessions : public ChildFrame {
    Q_OBJECT
public:
    frmConcessions(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);
};

} // namespace zorvane::screens
