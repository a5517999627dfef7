#pragma once

namespace zorvane {

class Game;

// The twelve-month funds graph. The logic only tells the screen to redraw it.
class GraphManager {
public:
    explicit GraphManager(Game& game) : game_(game) {}
    void drawGraph();

private:
    Game& game_;
};

} // namespace zorvane
