#include "core/GameError.h"
#include "core/Text.h"
#include "money/GraphTexts.h"
#include "session/Game.h"
#include "support/TestSupport.h"

#include <gtest/gtest.h>

#include <map>

using namespace zorvane;
using namespace zorvane::test;

namespace {

// The picture is 4000 twips high: a percent step is 40, so a month at percent p >= 0 stands
// at 4000 - 40 * (p + 1), and a negative percent on the bottom edge at 4000.
constexpr int bottom = 4000;
constexpr int step = 40;

struct GraphFixture : ::testing::Test {
    TempDir dir;
    TestGame game{dir.path().string()};
    GraphManager& g() { return game->graph; }

    void setUp(int month, double funds, const std::map<int, double>& history) {
        game->calendar.currentmonth = month;
        game->finances.funds = funds;
        game->finances.histfunds = {};
        for (const auto& [m, h] : history)
            game->finances.histfunds[static_cast<std::size_t>(m)] = h;
    }
    void draw(int month, double funds, const std::map<int, double>& history) {
        setUp(month, funds, history);
        g().drawGraph();
    }
};

struct ScaleCase {
    const char* name;
    int month;
    double funds;
    std::map<int, double> history;
    double high, low;
    int y11, y10, y0; // the marks at the current month, the month before, and the left end
};

// clang-format off
const ScaleCase scaleCases[] = {
    // Equal high and low: no range, every month at 100 percent, a step above the top edge.
    {"first month, no history", 0, 5000, {}, 5000, 5000, -step, -step, -step},
    {"funds of exactly 1, no history", 5, 1, {}, 1, 1, -step, -step, -step},
    // Months with a history of 0 do not lower the scale and fall below it.
    {"funds below 1, no history", 5, 0.5, {}, 1, 0.5, bottom - step, bottom, bottom},
    {"first months of a year", 2, 7000, {{0, 8000}, {1, 6000}},
     8000, 6000, bottom - 51 * step, bottom - step, bottom},
    // Negative funds lower the scale; an empty month then stands at 20 percent.
    {"negative funds", 6, -2000, {{0, 3000}, {5, 8000}, {4, 0}},
     8000, -2000, bottom - step, -step, bottom - 21 * step},
    {"a month of 0 or less", 3, 500, {{2, -700}, {1, 900}, {0, 0}},
     900, 500, bottom - step, bottom, bottom},
    // The low starts at 999,999,999: balances above it never reach it.
    {"funds past the low's start", 11, 1e15, {{10, 5e14}}, 1e15, 999999999, -step,
     bottom - 50 * step, bottom},
    // The percent's product leaves a double's range; the graph still draws.
    {"funds near a double's limit", 1, 1e307, {{0, 1}}, 1e307, 1, -step, bottom - step, bottom},
};
// clang-format on

} // namespace

TEST_F(GraphFixture, ScaleAndMarksFollowTheHistoryAndTheFunds) {
    for (const ScaleCase& c : scaleCases) {
        SCOPED_TRACE(c.name);
        draw(c.month, c.funds, c.history);
        EXPECT_EQ(std::make_tuple(g().graphHigh, g().graphLow, g().pointY[11], g().pointY[10],
                                  g().pointY[0]),
                  std::make_tuple(c.high, c.low, c.y11, c.y10, c.y0));
        const GraphTexts t = graphTexts(g());
        EXPECT_EQ(t.high, formatMoney(c.high));
        EXPECT_EQ(t.low, formatMoney(c.low));
        EXPECT_EQ(t.current, formatMoney(c.funds));
    }
}

TEST_F(GraphFixture, TenScaleLabelsWithTwoStepsAtTheTop) {
    struct Case {
        double funds, history;
        std::array<std::string, 10> labels;
    };
    // clang-format off
    const Case cases[] = {
        {11000, 1000, {"$1k", "$2k", "$3k", "$4k", "$5k", "$6k", "$7k", "$8k", "$9k", "$11k"}},
        // Only the low is floored: the steps keep their cents.
        {225.75, 100.75, {"$100", "$112.50", "$125", "$137.50", "$150", "$162.50", "$175",
                          "$187.50", "$200", "$225"}},
        {-2000, 8000, {"-$2,000", "-$1,000", "$0", "$1k", "$2k", "$3k", "$4k", "$5k", "$6k",
                       "$8k"}},
    };
    // clang-format on
    for (const Case& c : cases) {
        draw(1, c.funds, {{0, c.history}});
        EXPECT_EQ(graphTexts(g()).scale, c.labels) << c.funds;
    }
}

TEST_F(GraphFixture, MonthAxisEndsAtTheCurrentMonthAndBadMonthsOrOverflowsAreErrors) {
    draw(1, 100, {});
    const std::array<std::string, 12> names = {"Mar", "Apr", "May", "Jun", "Jul", "Aug",
                                               "Sep", "Oct", "Nov", "Dec", "Jan", "Feb"};
    EXPECT_EQ(graphTexts(g()).months, names);
    EXPECT_EQ(g().graphMonth[0], 2);
    EXPECT_EQ(g().graphMonth[11], 1);

    // A saved game may carry any month: 12 has an empty name, past it there is none.
    draw(12, 100, {});
    EXPECT_EQ(g().graphMonth[0], 1);
    EXPECT_EQ(graphTexts(g()).months[11], "");
    for (int month : {13, -1}) {
        setUp(month, 100, {});
        EXPECT_THROW(g().drawGraph(), GameError) << month;
    }
    // Overflows are run-time errors too.
    setUp(0, -1e308, {{0, 1e308}}); // the range leaves a double's range
    EXPECT_THROW(g().drawGraph(), GameError);
    setUp(1, 100, {{0, 200}});
    g().picture.height = 40000; // an empty month's mark on the bottom edge: past 16 bits
    EXPECT_THROW(g().drawGraph(), GameError);
}

TEST_F(GraphFixture, GridStandsWhereTheLabelsStand) {
    draw(0, 100, {});
    EXPECT_EQ(g().gridY(9), 127); // half a 255-twip label below the top label's top
    EXPECT_EQ(g().gridY(0), 9 * 400 + 127);
    EXPECT_EQ(g().gridX(0), 240);
    EXPECT_EQ(g().gridX(11), 11 * 500 + 240);

    // Tops and lefts round half to even, half a size is floored.
    g().scaleLabels[9].top += 0.5;
    g().scaleLabels[4].top = 2240.5;
    g().scaleLabels[4].height = 301;
    g().monthLabels[0].left -= 0.5;
    g().monthLabels[3].left = 2700.5;
    g().monthLabels[3].width = 481;
    g().drawGraph();
    EXPECT_EQ(g().lines[4], (GraphLine{0, 2150, 6000, 2150}));
    EXPECT_EQ(g().lines[10 + 3], (GraphLine{1740, 0, 1740, 4000}));
    EXPECT_EQ(g().pointX[3], 1740);
}

TEST_F(GraphFixture, EachMonthAnXJoinedToTheMonthBeforeAndItsBoxShowsTheStoredBalance) {
    draw(7, 3000, {{0, 1000}, {3, 5000}, {6, 2500}});
    const auto& lines = g().lines;
    ASSERT_EQ(lines.size(), 10u + 12u + 12u * 2u + 11u);
    std::size_t i = 22;
    for (std::size_t p = 0; p < 12; ++p) {
        const int x = g().pointX[p], y = g().pointY[p];
        EXPECT_EQ(lines[i++], (GraphLine{x - 50, y - 50, x + 50, y + 50})) << p;
        EXPECT_EQ(lines[i++], (GraphLine{x + 50, y - 50, x - 50, y + 50})) << p;
        if (p > 0) {
            EXPECT_EQ(lines[i++], (GraphLine{g().pointX[p - 1], g().pointY[p - 1], x, y})) << p;
        }
    }
    // A redraw starts from a clear picture.
    g().drawGraph();
    EXPECT_EQ(g().lines.size(), lines.size());
    // The month box shows the stored balance, even for the current month.
    draw(4, 99999, {{4, 1234.5}, {2, 8000}});
    g().showMonthFunds(11); // May: the balance of last May, not the running funds
    g().showMonthFunds(9);
    g().showMonthFunds(10); // April of this year is not over yet
    const std::vector<std::string> boxes = {"Funds for the month of May: $1,234.50",
                                            "Funds for the month of Mar: $8,000",
                                            "Funds for the month of Apr: $0"};
    EXPECT_EQ(game.dialogs.asked, boxes);
    EXPECT_THROW(g().showMonthFunds(13), GameError);
}
