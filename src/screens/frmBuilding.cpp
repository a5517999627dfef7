#include "frmBuilding.h"

namespace zorvane::screens {

frmBuilding::frmBuilding(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 7, QStringLiteral("frmBuilding"), QStringLiteral("Building"), bgr, parent) {}

} // namespace zorvane::screens
