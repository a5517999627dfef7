#pragma once
#include "frame/ChildFrame.h"

namespace zorvane::screens {

// The screen of mode 6: "Funds Graph (12 Month History)". For now its frame only (header, colour, glue); its
// controls go into body().
class frmGraphs : public ChildFrame {
    Q_OBJECT
public:
    frmGraphs(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);
};

} // namespace zorvane::screens
