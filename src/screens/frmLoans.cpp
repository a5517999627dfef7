#include "frmLoans.h"

namespace zorvane::screens {

frmLoans::frmLoans(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 5, QStringLiteral("frmLoans"), QStringLiteral("Loans"), bgr, parent) {}

} // namespace zorvane::screens
