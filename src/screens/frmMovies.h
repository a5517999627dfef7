#pragma once
#include "frame/ChildFrame.h"

namespace zorvane::screens {

// The screen of mode 2: "Movies". For now its frame only (header, colour, glue); its
// controls go into body().
class frmMovies : public ChildFrame {
    Q_OBJECT
public:
    frmMovies(Game& game, std::uint32_t bgr, QWidget* parent = nullptr);
};

} // namespace zorvane::screens
