#pragma once
#include <array>
#include <string>

namespace zorvane {

class Finances;
class GraphManager;

// What the graph screen shows, from the last redraw. The window only puts these into its
// controls; the picture's lines, the controls' places and the points are GraphManager's.

// The screen's fixed captions.
namespace graphCaptions {
inline constexpr const char* header = "Funds Graph (12 Month History)"; // lblHeader
inline constexpr const char* summary = "12 Month Summary";              // frameFundsSummary
inline constexpr const char* highest = "Highest Funds";                 // Label1
inline constexpr const char* lowest = "Lowest Funds";                   // Label2
inline constexpr const char* current = "Current Funds";                 // Label3
inline constexpr const char* month = "xxx"; // a month label before the first redraw
} // namespace graphCaptions

struct GraphTexts {
    std::string high, low, current;     // lblFundsSummaryHigh, Low, Current: formatMoney
    std::array<std::string, 10> scale;  // lblGrfFunds, 0 at the bottom: formatMoneyShort
    std::array<std::string, 12> months; // lblGrfFundsMonth, 0 at the left
};
GraphTexts graphTexts(const GraphManager& graph);

// The box of a left click on month label `position` (0 to 12, else a bounds error):
// "Funds for the month of Mar: $1,234", always the month-end balance kept by the ledger.
std::string monthFundsText(const GraphManager& graph, const Finances& finances, int position);

} // namespace zorvane
