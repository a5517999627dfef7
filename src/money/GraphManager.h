#pragma once
#include "core/Numbers.h"

#include <array>
#include <string>
#include <vector>

namespace zorvane {

class Game;

// A control's place on the graph screen, in twips from the top left of the screen's body
// (below its header). The labels' places are what the grid is laid out by.
struct GraphRect {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

// A straight line on the graph picture, in twips from the picture's top left.
struct GraphLine {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    bool operator==(const GraphLine&) const = default;
};

// The twelve-month funds graph: the month axis ending at the current month, a scale from the
// month-end balances and the running funds, the summary, and the drawing itself (grid, a
// mark for each month, lines joining them). Everything here is rebuilt by each drawGraph and
// nothing is saved; the history belongs to the ledger. The window only shows what this holds.
class GraphManager {
  public:
    explicit GraphManager(Game& game);

    // --- the screen's controls, as they stand (the window places its widgets from these) ---
    GraphRect picture;                     // picFundsGraph, the drawing surface
    std::array<GraphRect, 10> scaleLabels; // lblGrfFunds: 0 at the bottom, 9 at the top
    std::array<GraphRect, 12> monthLabels; // lblGrfFundsMonth: 0 at the left, 11 the current

    // --- the last redraw ---
    std::array<std::string, 13> monthNames; // "Jan" to "Dec"; index 12 stays empty
    std::array<Int16, 13> graphMonth{};     // the calendar month at each axis position
    std::array<Int16, 13> pointX{};         // where each month's mark stands
    std::array<Int16, 13> pointY{};
    double graphHigh = 1.0;
    double graphLow = 999999999.0;
    double summaryFunds = 0;              // the funds when the summary was written
    std::array<double, 10> scaleValues{}; // what each scale label shows, before formatting
    std::vector<GraphLine> lines;         // the picture, in drawing order

    void drawGraph();
    // A left click on month label `position`: that month's balance in a message box.
    void showMonthFunds(int position);

    // The steps and helpers of drawGraph.
    void setMonthAxis();
    void setScale();
    void drawGrid();
    void plotMonth(int position);
    void joinMonths(int a, int b);
    int gridY(int label) const;
    int gridX(int label) const;
    double monthPercent(int month) const;
    // The month name shown for a calendar month: indexes 0 to 12 (12 is empty).
    const std::string& monthNameOf(int month) const;

  private:
    Game& game_;
};

} // namespace zorvane
