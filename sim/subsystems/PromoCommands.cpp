#include "Subsystems.h"

namespace zorvane::sim {

namespace {

// The medium of a command: 0 to 4, as the screen's buttons.
int mediumArg(const Args& a) {
    const int medium = a.integer(1);
    if (medium < 0 || medium >= promoManager::mediaCount)
        throw ScriptError("no promotion medium " + std::to_string(medium) + " (0 to 4)");
    return medium;
}

} // namespace

// promo add I, promo drop I, promo dropall: the Buy, Drop and "Drop All Promos" buttons (the
// last without its question, which is the screen's).
void addPromoCommands(CommandTable& t) {
    t["promo"] = {1, 2, [](CommandContext& c, const Args& a) {
                      const std::string& what = a[0];
                      if (what == "add" && a.size() == 2)
                          c.game.promos.addPromo(mediumArg(a));
                      else if (what == "drop" && a.size() == 2)
                          c.game.promos.dropPromo(mediumArg(a));
                      else if (what == "dropall" && a.size() == 1)
                          c.game.promos.dropAllPromos();
                      else
                          throw ScriptError("promo takes: add I, drop I or dropall");
                  }};
}

void addReputationState(Game& game, nlohmann::json& state) {
    const promoManager& p = game.promos;
    nlohmann::json running = nlohmann::json::array();
    for (const Int16& r : p.promoRunning)
        running.push_back(static_cast<int>(r));
    state["promotions"] = {{"running", running}, {"cost", p.promoCost}, {"points", p.pointsNow()}};

    const ratingManager& r = game.rating;
    nlohmann::json history = nlohmann::json::array();
    for (const Int16& h : r.history)
        history.push_back(static_cast<int>(h));
    state["rating"] = {{"currentRating", static_cast<int>(r.currentRating)},
                       {"currentAverage", static_cast<int>(r.currentAverage)},
                       {"history", history}};
}

} // namespace zorvane::sim
