#include "StateJson.h"

#include "Subsystems.h"
#include "core/MathFile.h"

namespace zorvane::sim {

namespace {

using nlohmann::json;

json mathValue(const MathKey& k, MathVars& m) {
    const MathKey::Target target = k.target(m);
    if (const auto* p = std::get_if<Int16*>(&target))
        return static_cast<int>(**p);
    if (const auto* p = std::get_if<double*>(&target))
        return **p;
    if (const auto* p = std::get_if<std::string*>(&target))
        return **p;
    return nullptr;
}

json mathState(Game& game) {
    json math = json::object();
    for (const MathKey& k : mathKeys()) {
        if (k.kind == MathKey::Kind::Ignored || k.kind == MathKey::Kind::Version)
            continue;
        const json v = mathValue(k, game.math);
        if (k.index < 0) {
            math[k.array] = v;
            continue;
        }
        json& arr = math[k.array];
        if (!arr.is_array())
            arr = json::array();
        const auto i = static_cast<std::size_t>(k.index);
        const json blank = v.is_string() ? json("") : json(0);
        if (k.index2 < 0) {
            while (arr.size() <= i)
                arr.push_back(blank);
            arr[i] = v;
        } else {
            while (arr.size() <= i)
                arr.push_back(json::array());
            json& inner = arr[i];
            const auto j = static_cast<std::size_t>(k.index2);
            while (inner.size() <= j)
                inner.push_back(blank);
            inner[j] = v;
        }
    }
    return math;
}

json financeState(const Finances& f) {
    return {{"funds", f.funds},
            {"totalspent", f.totalspent},
            {"totalincome", f.totalincome},
            {"deppromo", f.deppromo},
            {"deplabor", f.deplabor},
            {"depmovie", f.depmovie},
            {"deparcade", f.deparcade},
            {"depconcessions", f.depconcessions},
            {"deploan", f.deploan},
            {"incdepmovie", f.incdepmovie},
            {"incdeparcade", f.incdeparcade},
            {"incdepconcessions", f.incdepconcessions},
            {"histfunds", f.histfunds}};
}

} // namespace

json gameState(Game& game) {
    json s = financeState(game.finances);
    s["speed"] = static_cast<int>(game.speed);
    s["lastSpeed"] = static_cast<int>(game.lastSpeed);
    s["saved"] = game.saved;
    s["path"] = game.savedPath;
    s["loseShown"] = game.loseShown;
    s["calendar"] = {{"currentday", static_cast<int>(game.calendar.currentday)},
                     {"currentweek", static_cast<int>(game.calendar.currentweek)},
                     {"currentmonth", static_cast<int>(game.calendar.currentmonth)},
                     {"currentyear", static_cast<int>(game.calendar.currentyear)},
                     {"onedayclose", game.calendar.onedayclose}};
    addStaffState(game, s);
    addBuildingState(game, s);
    addMovieState(game, s);
    addConcessionState(game, s);
    addArcadeState(game, s);
    addReputationState(game, s);
    addLoanState(game, s);
    addGoalState(game, s);
    addGraphState(game, s);
    addSettingsState(game, s);
    s["math"] = mathState(game);
    return s;
}

} // namespace zorvane::sim
