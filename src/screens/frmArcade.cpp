#include "frmArcade.h"

namespace zorvane::screens {

frmArcade::frmArcade(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 3, QStringLiteral("frmArcade"), QStringLiteral("Arcade"), bgr, parent) {}

} // namespace zorvane::screens
