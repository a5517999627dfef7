#include "Subsystems.h"

#include "concessions/ConcessionTexts.h"
#include "core/Text.h"

namespace zorvane::sim {

namespace {

// The item of a command: 0 to 4, as the screen's rows.
int itemArg(const Args& a) {
    const int item = a.integer(0);
    if (item < 0 || item >= ConcessionManager::itemCount)
        throw ScriptError("no concession item " + std::to_string(item) + " (0 to 4)");
    return item;
}

} // namespace

void addConcessionCommands(CommandTable& t) {
    t["quality"] = {2, 2, [](CommandContext& c, const Args& a) {
                        const int item = itemArg(a);
                        c.game.concessions.setItemQuality(item, a.integer(1));
                    }};
    // The price box keeps only digits and points.
    t["price"] = {2, -1, [](CommandContext& c, const Args& a) {
                      const int item = itemArg(a);
                      c.game.concessions.setItemPrice(item, digitsValue(a.textFrom(1)));
                  }};
    // The buy-per-month box, read as the stand screen reads it.
    t["stock"] = {2, -1, [](CommandContext& c, const Args& a) {
                      const int item = itemArg(a);
                      c.game.concessions.setItemBuyQuant(item, concessionOrderOf(a.textFrom(1)));
                  }};
}

void addConcessionState(Game& game, nlohmann::json& state) {
    nlohmann::json items = nlohmann::json::array();
    for (int i = 0; i < ConcessionManager::itemCount; ++i) {
        const Concession& c = game.concessions.item(i);
        items.push_back({{"num", static_cast<int>(c.num)},
                         {"name", c.name},
                         {"quality", static_cast<int>(c.quality)},
                         {"price", c.price},
                         {"cost", c.cost},
                         {"stock", static_cast<int>(c.stock)},
                         {"lastmonthsales", static_cast<int>(c.lastmonthsales)},
                         {"thismonthsales", static_cast<int>(c.thismonthsales)},
                         {"buypermonth", static_cast<int>(c.buypermonth)},
                         {"lastmonthincome", c.lastmonthincome},
                         {"todaysprofit", c.todaysprofit},
                         {"todayssold", static_cast<int>(c.todayssold)}});
    }
    state["concessions"] = items;
}

} // namespace zorvane::sim
