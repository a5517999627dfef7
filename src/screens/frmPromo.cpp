#include "frmPromo.h"

namespace zorvane::screens {

frmPromo::frmPromo(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 0, QStringLiteral("frmPromo"), QStringLiteral("Promotions"), bgr, parent) {}

} // namespace zorvane::screens
