#include "money/GraphManager.h"

#include "core/Game.h"

namespace zorvane {

void GraphManager::drawGraph() { game_.screen().refresh(View::Graph); }

} // namespace zorvane
