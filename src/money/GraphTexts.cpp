#include "money/GraphTexts.h"

#include "core/GameError.h"
#include "core/Text.h"
#include "money/Finances.h"
#include "money/GraphManager.h"

namespace zorvane {

GraphTexts graphTexts(const GraphManager& graph) {
    GraphTexts t;
    t.high = formatMoney(graph.graphHigh);
    t.low = formatMoney(graph.graphLow);
    t.current = formatMoney(graph.summaryFunds);
    for (std::size_t i = 0; i < t.scale.size(); ++i)
        t.scale[i] = formatMoneyShort(graph.scaleValues[i]);
    const bool drawn = !graph.monthNames[0].empty();
    for (std::size_t p = 0; p < t.months.size(); ++p)
        t.months[p] = drawn ? graph.monthNameOf(graph.graphMonth[p]) : graphCaptions::month;
    return t;
}

std::string monthFundsText(const GraphManager& graph, const Finances& finances, int position) {
    if (position < 0 || position > 12)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: graphMonth(" + std::to_string(position) + ")");
    const int month = graph.graphMonth[static_cast<std::size_t>(position)];
    return "Funds for the month of " + graph.monthNameOf(month) + ": " +
           formatMoney(finances.getHistFunds(month));
}

} // namespace zorvane
