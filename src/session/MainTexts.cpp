#include "session/MainTexts.h"

#include <algorithm>

#include "core/GameError.h"
#include "core/Numbers.h"
#include "core/Text.h"
#include "session/Game.h"

namespace zorvane {

MoneySummary moneySummary(const Game& game) {
    const Finances& f = game.finances;
    MoneySummary s;
    s.income = formatMoney(f.totalincome);
    s.spent = formatMoney(f.totalspent);
    s.profit = f.getProfit();
    s.funds = formatMoney(f.funds);
    s.ticketSales = formatMoneyShort(f.incdepmovie);
    s.arcadeSales = formatMoneyShort(f.incdeparcade);
    s.concessionSales = formatMoneyShort(f.incdepconcessions);
    s.depPromo = formatMoneyShort(f.deppromo);
    s.depLabor = formatMoneyShort(f.deplabor);
    s.depMovie = formatMoneyShort(f.depmovie);
    s.depArcades = formatMoneyShort(f.deparcade);
    s.depConcessions = formatMoneyShort(f.depconcessions);
    s.depLoan = formatMoneyShort(f.deploan);
    return s;
}

// The current day stands tall and dark, the others short and pale; the next-day button
// sits under the current day, its arrows counting the weeks.
DayBars dayBars(const Game& game) {
    using namespace mainLayout;
    DayBars bars;
    bars.currentDay = game.calendar.currentday;
    for (int d = 0; d < 7; ++d) {
        DayBar& bar = bars.days[static_cast<std::size_t>(d)];
        const bool current = d == bars.currentDay;
        bar.caption = Calendar::dayName(d);
        bar.left = dayFirstLeft + d * dayPitch;
        bar.height = current ? currentDayHeight : otherDayHeight;
        bar.colour = current ? currentDayColour : otherDayColour;
        if (current)
            bars.nextDayLeft = bar.left;
    }
    bars.nextDayCaption = weekArrows(game.calendar);
    return bars;
}

std::array<MonthLabel, 12> monthLabels(const Game& game) {
    std::array<MonthLabel, 12> labels;
    for (int m = 0; m < 12; ++m) {
        MonthLabel& label = labels[static_cast<std::size_t>(m)];
        label.caption = Calendar::monthName(m);
        label.colour = m == game.calendar.currentmonth ? mainLayout::currentMonthColour
                                                       : mainLayout::otherMonthColour;
    }
    return labels;
}

std::string yearText(const Game& game) {
    return digitsOnly(std::to_string(static_cast<int>(game.calendar.currentyear)));
}

// Open: the summary shows the six spending totals under a divider. The modes follow the
// summary down, and the main screen ends just below them.
SummaryLayout summaryLayout(const Game& game) {
    using namespace mainLayout;
    SummaryLayout l;
    l.summaryHeight = game.expanded ? summaryExpandedHeight : summaryCollapsedHeight;
    l.lineVisible = game.expanded;
    l.expandCaption = game.expanded ? "<<<" : ">>>";
    l.modesTop = l.summaryHeight + summaryTop + 45;
    l.mainHeight = modesHeight + l.modesTop + 75;
    return l;
}

// --- the main screen's state, kept in the game so that a headless game behaves alike ---

void Game::expand(const std::string& text) {
    if (text.empty())
        expanded = !expanded;
    else if (sameText(text, "true"))
        expanded = true;
    else if (sameText(text, "false"))
        expanded = false;
    screen_->refresh(View::Expand);
}

void Game::switchMode(int mode) {
    if (mode < 0 || mode > 7) {
        reportError("Called switchMode with invalid mode number: " + std::to_string(mode));
        return;
    }
    currentMode = mode;
    screen_->switchMode(mode);
    soundBoard.startMM(mode);
}

// Every mode's screen and button take the leading number of its formcolor, rounded into 32
// bits: a colour that does not fit stops the game like any overflow.
void Game::setupForms() {
    for (std::size_t mode = 0; mode < formColours.size(); ++mode)
        formColours[mode] = toInt32(leadingNumber(math.formcolor[mode]));
}

std::string weekArrows(const Calendar& calendar) {
    // A loaded game may carry any week number; never draw a negative count.
    return std::string(static_cast<std::size_t>(std::max(0, calendar.currentweek + 1)), '>');
}

} // namespace zorvane
