#include "Subsystems.h"
#include "money/GraphTexts.h"

namespace zorvane::sim {

// The graph screen: a redraw, and a left click on a month label.
void addGraphCommands(CommandTable& t) {
    t["graph"] = {0, 0, [](CommandContext& c, const Args&) { c.game.graph.drawGraph(); }};
    // The click's box is what the command is for: its ask line is printed under --quiet too.
    t["monthfunds"] = {1, 1, [](CommandContext& c, const Args& a) {
                           const int position = a.integer(0);
                           if (position < 0 || position > 11)
                               throw ScriptError("the month labels are 0 to 11");
                           auto& hook = c.dialogs.onTranscript;
                           const bool quiet = !hook;
                           if (quiet)
                               hook = [&c](const std::string& line) { c.out << line << '\n'; };
                           try {
                               c.game.graph.showMonthFunds(position);
                           } catch (...) {
                               if (quiet)
                                   hook = nullptr;
                               throw;
                           }
                           if (quiet)
                               hook = nullptr;
                       }};
}

// The graph as the last redraw left it: the scale, the axis, the labels and the marks.
void addGraphState(Game& game, nlohmann::json& state) {
    const GraphManager& g = game.graph;
    const GraphTexts t = graphTexts(g);
    nlohmann::json months = nlohmann::json::array(), pointX = nlohmann::json::array(),
                   pointY = nlohmann::json::array();
    for (std::size_t p = 0; p < 12; ++p) {
        months.push_back(static_cast<int>(g.graphMonth[p]));
        pointX.push_back(static_cast<int>(g.pointX[p]));
        pointY.push_back(static_cast<int>(g.pointY[p]));
    }
    state["graph"] = {{"graphHigh", g.graphHigh}, {"graphLow", g.graphLow},
                      {"graphMonth", months},     {"monthNames", t.months},
                      {"scale", t.scale},         {"pointX", pointX},
                      {"pointY", pointY},         {"summaryFunds", g.summaryFunds}};
}

} // namespace zorvane::sim
