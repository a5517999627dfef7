#include "arcade/arcadeManager.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

#include <fstream>

namespace zorvane {

arcade& arcadeManager::at(const GameList& list, int index, const char* name) {
    if (index < 1 || index > static_cast<int>(list.size()))
        throw GameError(GameError::Kind::Bounds, std::string("subscript out of range: ") + name +
                                                     "(" + std::to_string(index) +
                                                     "), the list holds " +
                                                     std::to_string(list.size()));
    return *list[static_cast<std::size_t>(index - 1)];
}

// The lists count in 16 bits: one more entry than 32767 is an overflow.
void arcadeManager::appendTo(GameList& list, const std::shared_ptr<arcade>& title,
                             const char* name) {
    if (list.size() >= 32767)
        throw GameError(GameError::Kind::Overflow,
                        std::string("overflow: the count of ") + name + " passes 32767");
    list.push_back(title);
}

std::string arcadeManager::cabinetPath(int style, bool facingRight) const {
    return game_.dataPath("images\\arcades\\" + arcade::cabinetFileName(style, facingRight));
}

// Start-up: the player's auto-repair setting, the arcade screen with its price list, the
// title list, and the first titles on the market.
void arcadeManager::initArcades() {
    const std::string stored = game_.settings().get("arcades", "autoRepair", "0");
    setAutoRepair(leadingNumber(stored) == 1);
    room.reset(cabinetPath(1, false));
    detailsVisible = false;
    priceList = {"Free Play"};
    for (std::size_t i = 1; i <= 4; ++i)
        priceList.push_back(formatMoney(game_.math.arcadeplayprice[i]));
    loadGamesList();
    releaseGames();
}

// Every line of games.lst is a title, its line number the title's identity. Popularity and
// style are drawn anew at each start of the program.
void arcadeManager::loadGamesList() {
    allGames.clear();
    const std::string path = game_.dataPath("games.lst");
    std::ifstream file = openTextFile(path);
    LineReader in(file, path);
    std::string line;
    while (in.readLine(line)) {
        auto title = std::make_shared<arcade>(game_);
        appendTo(allGames, title, "allGames");
        title->init(static_cast<int>(allGames.size()), line);
    }
}

// The monthly market: the weakest titles make room, then up to arcadenewgamespermonth new
// ones are drawn, at most 1000 draws a month, so a nearly exhausted list releases fewer.
void arcadeManager::releaseGames() {
    if (!buyGames.empty())
        trimBuyList();
    int tries = 0;
    int released = 1;
    while (released <= game_.math.arcadenewgamespermonth) {
        ++tries;
        if (tries > 1000)
            break;
        if (releaseRandomGame())
            ++released;
    }
    refreshBuyGrid();
}

// Draws one title of the list; a title already on offer or in the room (by its line number)
// is not drawn twice.
bool arcadeManager::releaseRandomGame() {
    const int pick = floorInt16(static_cast<double>(allGames.size()) * game_.rng.next() + 1);
    for (const auto& machine : myGames)
        if (machine->getOriginalNum() == pick)
            return false;
    for (const auto& title : buyGames)
        if (title->getOriginalNum() == pick)
            return false;
    arcade& chosen = allGameAt(pick);
    appendTo(buyGames, allGames[static_cast<std::size_t>(pick - 1)], "buyGames");
    chosen.setNum(static_cast<int>(buyGames.size()));
    return true;
}

// The buy list drops its least popular titles (the first of equals) until the month's new
// titles fit. When no title on offer is below arcadepopmax nothing can be chosen, and the
// rule would repeat for ever: that math file is refused with a run-time error instead.
void arcadeManager::trimBuyList() {
    const MathVars& m = game_.math;
    while (static_cast<int>(buyGames.size()) + m.arcadenewgamespermonth >
           m.arcademaxgamesonbuylist) {
        int bound = m.arcadepopmax;
        int chosen = 0;
        for (int i = 1; i <= static_cast<int>(buyGames.size()); ++i) {
            if (buyGameAt(i).getPop() < bound) {
                bound = buyGameAt(i).getPop();
                chosen = i;
            }
        }
        if (chosen == 0)
            throw GameError(
                GameError::Kind::Bounds,
                "the arcade buy list cannot make room for new games: none of its " +
                    std::to_string(buyGames.size()) +
                    " titles has a popularity below arcadepopmax (" +
                    std::to_string(m.arcadepopmax) + "), with arcademaxgamesonbuylist " +
                    std::to_string(m.arcademaxgamesonbuylist) + " and arcadenewgamespermonth " +
                    std::to_string(m.arcadenewgamespermonth) + " in the math file");
        removeFromBuyList(chosen);
    }
}

// Closes the buy list up over one title; index 0 removes nothing and only renumbers.
void arcadeManager::removeFromBuyList(int index) {
    GameList kept;
    for (int i = 1; i <= static_cast<int>(buyGames.size()); ++i) {
        if (i == index)
            continue;
        kept.push_back(buyGames[static_cast<std::size_t>(i - 1)]);
        kept.back()->setNum(static_cast<int>(kept.size()));
    }
    buyGames = std::move(kept);
    refreshBuyGrid();
}

// Buys title `index` of the buy list into the room. A full room refuses before any money is
// touched; the price is getPrice, so a title once sold broken is sold on broken and cheap.
void arcadeManager::buyGame(int index) {
    if (getMachineCount() >= game_.math.arcademax) {
        game_.gameLog("You cannot fit any more machines into your arcade room!", 0);
        return;
    }
    arcade& title = buyGameAt(index);
    const std::shared_ptr<arcade> shared = buyGames[static_cast<std::size_t>(index - 1)];
    const double price = title.getPrice();
    if (!game_.finances.spend(price, "arcades")) {
        game_.gameLog("Couldn't afford to buy '" + title.getName() + "'", 0);
        return;
    }
    appendTo(myGames, shared, "myGames");
    title.setNum(getMachineCount());
    title.setOriginalPurchasePrice(price);
    title.makeCabinet();
    removeFromBuyList(index);
    game_.gameLog("Purchased '" + title.getName() + "' for " + formatMoney(price), 0);
    game_.screen().showArcadeTab(0);
}

// Sells machine `number` at its market value, broken or not, with no question. The sale
// earns under "arcades", a word no income department counts.
void arcadeManager::sellGame(int number) {
    game_.finances.earn(myGameAt(number).getPrice(), "arcades");
    removeFromMyGames(number);
    closeDetailsPanel();
}

// Closes the room up over machine `number`: each later machine takes the number below, and
// its cabinet and title move to the room objects of that number; the spare objects at the
// top of the range are destroyed. The sold object keeps its own saved place.
void arcadeManager::removeFromMyGames(int number) {
    const int oldCount = getMachineCount();
    GameList kept;
    for (int i = 1; i <= oldCount; ++i) {
        if (i == number)
            continue;
        kept.push_back(myGames[static_cast<std::size_t>(i - 1)]);
        const int j = static_cast<int>(kept.size());
        if (j != i) {
            room.copyObjects(i, j);
            game_.screen().updateCabinet(j);
        }
        kept.back()->setNum(j);
        kept.back()->setTitleColor();
    }
    for (int i = static_cast<int>(kept.size()) + 1; i <= oldCount; ++i) {
        room.destroy(i);
        game_.screen().destroyCabinet(i);
    }
    myGames = std::move(kept);
}

void arcadeManager::repairGame(int number) {
    myGameAt(number).repair();
}

void arcadeManager::setGamePrice(int number, int priceIndex) {
    myGameAt(number).setPricePerPlay(priceIndex);
}

void arcadeManager::renameGame(int number, const std::string& text) {
    myGameAt(number).setName(text);
}

void arcadeManager::setCabinetNum(int number, int style) {
    myGameAt(number).setCabinetFileNum(style);
}

void arcadeManager::showGameDetails(int number) {
    myGameAt(number).showDetails();
}

// Dragging a cabinet: it follows the mouse by the grab point, unclipped by the room's edges;
// crossing the divider flips its picture, and its title follows. The machine's saved place
// is not written: saving reads the place off the cabinet.
void arcadeManager::moveCabinet(int number, float x, float y, float grabX, float grabY) {
    arcade& machine = myGameAt(number);
    ArcadeCabinet& cab = room.cabinet(number);
    cab.top = y - grabY + cab.top;
    cab.left = x - grabX + cab.left;
    machine.setCabinetFile();
    machine.positionTitle(number);
}

// The style slider shows the style's left-facing picture without touching the machine.
void arcadeManager::previewCabinet(int style) {
    game_.screen().previewCabinet(cabinetPath(style, false));
}

void arcadeManager::refreshBuyGrid() {
    game_.screen().refresh(View::ArcadeBuyGrid);
}

// The month: first the market, then every machine in the room ages and loses popularity.
// Titles on offer neither age nor lose popularity.
void arcadeManager::arcadesNextMonth() {
    releaseGames();
    for (const auto& machine : myGames)
        machine->nextMonth();
}

// The year: prices on the market rise by inflation. Machines in the room are not inflated,
// as their price is worked out from popularity every month.
void arcadeManager::arcadesNextYear() {
    for (const auto& title : buyGames)
        title->inflate();
    refreshBuyGrid();
}

// A showtime crowd at the arcade. Every visitor tries every machine in order, and each play
// by anyone in the crowd lowers all later chances, so early machines get the best chances.
void arcadeManager::doArcadeBusiness(int count) {
    if (myGames.empty())
        return;
    const int visitors = visitorsOf(count, game_.math.percentarcade);
    if (visitors < 1)
        return;
    // No machine comes or goes while the crowd plays, and a machine's price and popularity
    // stay put, so each machine's terms are worked out once for the whole crowd; this loop
    // is the busiest of the day. A broken machine has no terms worked out (and draws no
    // roll); one that breaks down stops taking plays unless auto-repair mends it at once.
    offers_.clear();
    for (const auto& machine : myGames)
        offers_.push_back(
            {machine.get(), machine->getIamBroke() ? arcade::PlayTerms{} : machine->playTerms()});
    Random& rng = game_.rng;
    int plays = 0;
    for (int visitor = 1; visitor <= visitors; ++visitor)
        for (const Offer& offer : offers_)
            if (offer.machine->play(offer.terms, plays, rng))
                plays = add16(plays, 1);
}

// The average popularity of the room for the rating, summed in 16 bits; 0 with no machines.
int arcadeManager::getAveragePop() const {
    if (myGames.empty())
        return 0;
    Int16 sum{0};
    for (const auto& machine : myGames)
        sum += machine->getPop();
    return floorInt16(static_cast<double>(sum) / static_cast<double>(myGames.size()));
}

// The player's auto-repair setting lives in the settings store, not in the saved game.
void arcadeManager::setAutoRepair(bool value) {
    autoRepair_ = value;
    game_.settings().set("arcades", "autoRepair", value ? "1" : "0");
    game_.screen().refresh(View::ArcadeRoom);
}

void arcadeManager::showDetailsPanel(int number) {
    detailsNum = number;
    detailsVisible = true;
    game_.screen().refresh(View::ArcadeDetails);
}

void arcadeManager::closeDetailsPanel() {
    detailsVisible = false;
    game_.screen().refresh(View::ArcadeDetails);
}

void arcadeManager::saveArcades(LineWriter& out) const {
    out << "<arcades>";
    for (const auto& title : buyGames)
        title->saveSelf(out, "buy");
    for (const auto& machine : myGames)
        machine->saveSelf(out, "my");
    out << "</arcades>";
}

// Replaces the buy list and the room with the saved ones. The loaded titles are new objects,
// no longer those of the title list; each machine's cabinet stands at the index of its
// saved Num, so a saved Num must equal the machine's place.
void arcadeManager::loadArcades(LineReader& in) {
    buyGames.clear();
    for (const auto& machine : myGames)
        machine->unloadSelf();
    myGames.clear();
    std::string line;
    while (in.readLine(line)) {
        const std::string tag = toLower(line);
        if (tag == "<arcade_buy>") {
            auto title = std::make_shared<arcade>(game_);
            appendTo(buyGames, title, "buyGames");
            title->loadSelf(in);
        } else if (tag == "<arcade_my>") {
            auto machine = std::make_shared<arcade>(game_);
            appendTo(myGames, machine, "myGames");
            machine->loadSelf(in);
            machine->makeCabinet();
        } else if (tag == "</arcades>") {
            break;
        }
    }
    refreshBuyGrid();
    if (detailsVisible) {
        // A panel left on a number the loaded room does not have is closed.
        if (detailsNum >= 1 && detailsNum <= getMachineCount())
            myGameAt(detailsNum).showDetails();
        else
            closeDetailsPanel();
    }
}

} // namespace zorvane
