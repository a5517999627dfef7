#include "frmGraphs.h"

namespace zorvane::screens {

frmGraphs::frmGraphs(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 6, QStringLiteral("frmGraphs"), QStringLiteral("Funds Graph (12 Month History)"), bgr, parent) {}

} // namespace zorvane::screens
