#include "frmConcessions.h"

namespace zorvane::screens {

frmConcessions::frmConcessions(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 4, QStringLiteral("frmConcessions"), QStringLiteral("Concessions"), bgr, parent) {}

} // namespace zorvane::screens
