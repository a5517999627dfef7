#include "Subsystems.h"

#include <charconv>

namespace zorvane::sim {

namespace {

using nlohmann::json;

// A mouse coordinate as the screen passes it: a number of twips, fractions allowed.
float coordinate(const Args& a, std::size_t i) {
    if (i >= a.size())
        throw ScriptError("a coordinate is missing");
    const std::string& w = a[i];
    double value = 0;
    const auto [p, ec] = std::from_chars(w.data(), w.data() + w.size(), value);
    if (ec != std::errc() || p != w.data() + w.size())
        throw ScriptError("'" + w + "' is not a number");
    return static_cast<float>(value);
}

json titleState(const Game& game, const arcade& t, bool inRoom) {
    json j = {{"Num", t.getNum()},
              {"OriginalNum", t.getOriginalNum()},
              {"Name", t.Name},
              {"Pop", static_cast<int>(t.Pop)},
              {"Classic", static_cast<int>(t.Classic)},
              {"Age", static_cast<int>(t.Age)},
              {"CabinetImageFileNumber", static_cast<int>(t.CabinetImageFileNumber)},
              {"IamBroke", t.IamBroke},
              {"OriginalPrice", t.OriginalPrice},
              {"RepairBillsTotal", t.RepairBillsTotal},
              {"PricePerPlay", static_cast<int>(t.PricePerPlay)},
              {"TotalPlays", t.TotalPlays},
              {"Income", t.Income},
              {"MyCabTop", t.MyCabTop},
              {"myCabLeft", t.myCabLeft},
              {"cost", t.cost}};
    if (inRoom && game.arcades.room.exists(t.getNum())) {
        const ArcadeCabinet& cab = game.arcades.room.cabinet(t.getNum());
        j["left"] = cab.left;
        j["top"] = cab.top;
    }
    return j;
}

} // namespace

void addArcadeCommands(CommandTable& t) {
    t["buygame"] = {1, 1,
                    [](CommandContext& c, const Args& a) { c.game.arcades.buyGame(a.integer(0)); }};
    t["sellgame"] = {
        1, 1, [](CommandContext& c, const Args& a) { c.game.arcades.sellGame(a.integer(0)); }};
    t["repairgame"] = {
        1, 1, [](CommandContext& c, const Args& a) { c.game.arcades.repairGame(a.integer(0)); }};
    t["playprice"] = {2, 2, [](CommandContext& c, const Args& a) {
                          c.game.arcades.setGamePrice(a.integer(0), a.integer(1));
                      }};
    t["rename"] = {2, -1, [](CommandContext& c, const Args& a) {
                       c.game.arcades.renameGame(a.integer(0), a.textFrom(1));
                   }};
    t["cabinet"] = {2, 2, [](CommandContext& c, const Args& a) {
                        c.game.arcades.setCabinetNum(a.integer(0), a.integer(1));
                    }};
    t["move"] = {5, 5, [](CommandContext& c, const Args& a) {
                     const int n = a.integer(0);
                     c.game.arcades.moveCabinet(n, coordinate(a, 1), coordinate(a, 2),
                                                coordinate(a, 3), coordinate(a, 4));
                 }};
    t["autorepair"] = {1, 1, [](CommandContext& c, const Args& a) {
                           const int v = a.integer(0);
                           if (v != 0 && v != 1)
                               throw ScriptError("autorepair takes 0 or 1");
                           c.game.arcades.setAutoRepair(v == 1);
                       }};
}

void addArcadeState(Game& game, nlohmann::json& state) {
    json buy = json::array();
    for (const auto& title : game.arcades.buyGames)
        buy.push_back(titleState(game, *title, false));
    json my = json::array();
    for (const auto& machine : game.arcades.myGames)
        my.push_back(titleState(game, *machine, true));
    state["buyGames"] = buy;
    state["myGames"] = my;
    state["autoRepair"] = game.arcades.getAutoRepair();
}

} // namespace zorvane::sim
