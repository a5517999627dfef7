#include "frmMovies.h"

namespace zorvane::screens {

frmMovies::frmMovies(Game& game, std::uint32_t bgr, QWidget* parent)
    : ChildFrame(game, 2, QStringLiteral("frmMovies"), QStringLiteral("Movies"), bgr, parent) {}

} // namespace zorvane::screens
