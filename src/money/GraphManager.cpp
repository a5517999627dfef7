#include "money/GraphManager.h"

#include "session/Game.h"

namespace zorvane {

void GraphManager::drawGraph() {
    game_.screen().refresh(View::Graph);
}

} // namespace zorvane
