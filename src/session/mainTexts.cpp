#include "session/mainTexts.h"

#include "core/Toolbox.h"
#include "session/Game.h"

#include <algorithm>

namespace zorvane {

DayBars dayBars(const Calendar& calendar) {
    DayBars bars;
    for (std::size_t d = 0; d < 7; ++d) {
        const bool today = static_cast<int>(d) == calendar.currentday;
        bars.heights[d] = today ? 375 : 255;
        bars.colours[d] = today ? 0x80C0FF : 0xC0E0FF;
    }
    bars.buttonUnder = calendar.currentday;
    return bars;
}

std::string weekArrows(const Calendar& calendar) {
    // A loaded game may carry any week number; never draw a negative count.
    return std::string(static_cast<std::size_t>(std::max(0, calendar.currentweek + 1)), '>');
}

std::array<std::uint32_t, 12> monthLabelColours(const Calendar& calendar) {
    std::array<std::uint32_t, 12> colours{};
    for (std::size_t m = 0; m < 12; ++m)
        colours[m] = static_cast<int>(m) == calendar.currentmonth ? 0x00FFFF : 0xC0FFFF;
    return colours;
}

std::string yearLabel(const Calendar& calendar) {
    return digitsOnly(numberText(calendar.currentyear));
}

SpeedView speedView(const Game& game) {
    return {game.speed, game.timerInterval()};
}

ExpandView expandView(const Game& game) {
    if (game.expanded)
        return {"<<<", 2955, true};
    return {">>>", 1275, false};
}

} // namespace zorvane
