#include "frmEmployees.h"

namespace zorvane::screens {

frmEmployees::frmEmployees(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 1, QStringLiteral("frmEmployees"), QStringLiteral("Employees"), bgr,
                 parent) {}

} // namespace zorvane::screens
