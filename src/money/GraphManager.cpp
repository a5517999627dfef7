#include "money/GraphManager.h"

#include "core/GameError.h"
#include "money/GraphTexts.h"
#include "session/Game.h"

#include <cmath>

namespace zorvane {

namespace {

// How the graph screen is laid out, in twips below its header: the scale labels down the
// left, the picture beside them with label 9's top at its top, the month labels under it with
// label 0's left at its left. The labels stand one grid step apart, so the grid runs through
// their middles.
constexpr double pictureLeft = 1200;
constexpr double pictureTop = 240;
constexpr double pictureWidth = 6000;
constexpr double pictureHeight = 4000;
constexpr double scaleLeft = 120;
constexpr double scaleWidth = 1020;
constexpr double scalePitch = 400;
constexpr double monthTop = pictureTop + pictureHeight + 80;
constexpr double monthPitch = 500;
constexpr double monthWidth = 480;
constexpr double labelHeight = 255;

constexpr int markArm = 50; // half the size of a month's X

const std::array<const char*, 12> names = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                           "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::size_t checkIndex(int index, int last, const char* array) {
    if (index < 0 || index > last)
        throw GameError(GameError::Kind::Bounds, std::string("subscript out of range: ") + array +
                                                     "(" + std::to_string(index) + ")");
    return static_cast<std::size_t>(index);
}

// Money arithmetic that leaves a double's range is the game's overflow error.
double finite(double value, const char* what) {
    if (!std::isfinite(value))
        throw GameError(GameError::Kind::Overflow, std::string("overflow: ") + what);
    return value;
}

} // namespace

GraphManager::GraphManager(Game& game) : game_(game) {
    picture = {pictureLeft, pictureTop, pictureWidth, pictureHeight};
    for (int i = 0; i < 10; ++i)
        scaleLabels[static_cast<std::size_t>(i)] = {scaleLeft, pictureTop + (9 - i) * scalePitch,
                                                    scaleWidth, labelHeight};
    for (int i = 0; i < 12; ++i)
        monthLabels[static_cast<std::size_t>(i)] = {pictureLeft + i * monthPitch, monthTop,
                                                    monthWidth, labelHeight};
    lines.reserve(10 + 12 + 2 * 12 + 11);
}

// Runs at start-up and, while the graph screen is visible, every day.
void GraphManager::drawGraph() {
    lines.clear();
    for (std::size_t m = 0; m < names.size(); ++m)
        monthNames[m] = names[m];
    setMonthAxis();
    setScale();
    drawGrid();
    for (int p = 0; p < 12; ++p) {
        plotMonth(p);
        if (p > 0)
            joinMonths(p - 1, p);
    }
    game_.screen().refresh(View::Graph);
}

const std::string& GraphManager::monthNameOf(int month) const {
    return monthNames[checkIndex(month, 12, "monthNames")];
}

// The current month at the right, the eleven before it leftward; before January comes
// December.
void GraphManager::setMonthAxis() {
    int month = game_.calendar.getCurrentMonth();
    for (int p = 11; p >= 0; --p) {
        monthNameOf(month); // the label shows its name: a month the game has no name for fails
        graphMonth[static_cast<std::size_t>(p)] = month;
        month = month == 0 ? 11 : sub16(month, 1);
    }
}

// The scale runs from the lowest to the highest of the month ends and the running funds. A
// month end of 0 or less never lowers it (months not played yet), the running funds do, even
// below 0. The top never goes under 1.
void GraphManager::setScale() {
    const double funds = game_.finances.getFunds();
    graphHigh = 1.0;
    graphLow = 999999999.0;
    for (int i = 0; i < 12; ++i) {
        const double h = game_.finances.getHistFunds(i);
        if (h > 0 && h < graphLow)
            graphLow = h;
        if (h > graphHigh)
            graphHigh = h;
        if (funds > graphHigh)
            graphHigh = funds;
        if (funds < graphLow)
            graphLow = funds;
    }
    summaryFunds = funds;

    // Ten labels but a tenth of the range a step: the top gap is two steps wide while the grid
    // lines stand evenly. The marks follow the percentages, not the labels.
    const double step = finite(graphHigh - graphLow, "the graph's range") / 10;
    scaleValues[9] = Int(graphHigh);
    scaleValues[0] = Int(graphLow);
    for (int k = 1; k <= 8; ++k)
        scaleValues[static_cast<std::size_t>(k)] = Int(graphLow) + k * step;
}

void GraphManager::drawGrid() {
    const int width = toInt32(picture.width);
    const int height = toInt32(picture.height);
    for (int i = 0; i <= 9; ++i) {
        const int y = gridY(i);
        lines.push_back({0, y, width, y});
    }
    for (int i = 0; i <= 11; ++i) {
        const int x = gridX(i);
        lines.push_back({x, 0, x, height});
    }
}

// Measured from the top scale label's top: the middle of scale label `label`.
int GraphManager::gridY(int label) const {
    const GraphRect& l = scaleLabels[checkIndex(label, 9, "lblGrfFunds")];
    return add16(sub16(toInt16(l.top), toInt16(scaleLabels[9].top)), floorInt16(l.height / 2));
}

// Measured from the first month label's left: the middle of month label `label`.
int GraphManager::gridX(int label) const {
    const GraphRect& l = monthLabels[checkIndex(label, 11, "lblGrfFundsMonth")];
    return add16(sub16(toInt16(l.left), toInt16(monthLabels[0].left)), floorInt16(l.width / 2));
}

// Where a month stands between the low (0) and the high (100). The current month is the
// running funds; any other month its month-end balance, so months with no history yet fall
// below 0 while the low is above 0. A scale with no range puts every month at 100.
double GraphManager::monthPercent(int month) const {
    const double range = finite(graphHigh - graphLow, "the graph's range");
    if (range == 0)
        return 100;
    const double value =
        (month == game_.calendar.getCurrentMonth() ? game_.finances.getFunds()
                                                   : game_.finances.getHistFunds(month)) -
        graphLow;
    // A value so large that a hundred times it leaves a double's range is divided first.
    const double hundredfold = value * 100;
    const double percent = std::isfinite(hundredfold) ? hundredfold / range : value / range * 100;
    return finite(Int(percent), "a month's percent of the graph");
}

// A month's X. Its height is counted down from the bottom edge one hundredth of the picture
// for every whole number from 0 up to the percent: the count starts at 0, so 0 percent
// already stands a step up and 100 percent a step above the top edge; only a negative
// percent stays on the bottom edge.
void GraphManager::plotMonth(int position) {
    const std::size_t p = checkIndex(position, 12, "pointX");
    const int x = gridX(position);
    const double height = picture.height;
    const double percent = monthPercent(graphMonth[p]);
    double y = height;
    for (double k = 0; k <= percent; ++k) {
        y -= height / 100;
        if (y < -32769) // already past what the mark's 16 bits can hold
            break;
    }
    const int yy = floorInt16(y);
    pointX[p] = x;
    pointY[p] = yy;
    lines.push_back({sub16(x, markArm), sub16(yy, markArm), add16(x, markArm), add16(yy, markArm)});
    lines.push_back({add16(x, markArm), sub16(yy, markArm), sub16(x, markArm), add16(yy, markArm)});
}

void GraphManager::joinMonths(int a, int b) {
    const std::size_t from = checkIndex(a, 12, "pointX");
    const std::size_t to = checkIndex(b, 12, "pointX");
    lines.push_back({pointX[from], pointY[from], pointX[to], pointY[to]});
}

// The box reads the month-end balance even for the current month: a year-old balance, or 0
// in the first year, not the running funds.
void GraphManager::showMonthFunds(int position) {
    game_.dialogs().ask(monthFundsText(*this, game_.finances, position), Buttons::Ok);
}

} // namespace zorvane
