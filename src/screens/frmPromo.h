#pragma once
#include "frame/ChildFrame.h"

namespace zorvane::screens {

// The screen of mode 0: "Promotions". For now its frame only (header, colour, glue); its
// controls go into body().
class frmPromo : public ChildFrame {
    Q_OBJECT
public:
    frmPromo(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);
};

} // namespace zorvane::screens
