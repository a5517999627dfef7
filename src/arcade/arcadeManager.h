#pragma once
#include "arcade/ArcadeRoom.h"
#include "arcade/arcade.h"
#include "core/Numbers.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// The theater's game room and the game market: the title list games.lst, the changing buy
// list, buying and selling, each showtime crowd at the machines, and the rating's two
// questions. Titles are shared objects: the buy list and the room hold the very objects of
// the title list, so a title sold and drawn again comes back with all it gathered.
class arcadeManager {
  public:
    using GameList = std::vector<std::shared_ptr<arcade>>;

    explicit arcadeManager(Game& game) : game_(game) {}

    // The three lists; entries are numbered from 1 in the game, stored from 0 here.
    GameList allGames;
    GameList buyGames;
    GameList myGames;
    ArcadeRoom room;
    std::vector<std::string> priceList; // the drop-down: "Free Play", then the four prices
    bool detailsVisible = false;        // frmDetails shown
    Int16 detailsNum;                   // lblGameDetailsNum: the machine the panel shows

    void initArcades();
    void loadGamesList();
    void releaseGames();
    bool releaseRandomGame();
    void trimBuyList();
    void removeFromBuyList(int index);
    void buyGame(int index);
    void sellGame(int number);
    void removeFromMyGames(int number);
    void repairGame(int number);
    void setGamePrice(int number, int priceIndex);
    void renameGame(int number, const std::string& text);
    void setCabinetNum(int number, int style);
    void showGameDetails(int number);
    void moveCabinet(int number, float x, float y, float grabX, float grabY);
    void previewCabinet(int style);
    void refreshBuyGrid();
    void arcadesNextMonth();
    void arcadesNextYear();
    void doArcadeBusiness(int count);
    int getMachineCount() const { return static_cast<int>(myGames.size()); }
    int getAveragePop() const;
    bool getAutoRepair() const { return autoRepair_; }
    void setAutoRepair(bool value);

    void saveArcades(LineWriter& out) const;
    void loadArcades(LineReader& in);

    // Entries by their number from 1; a number outside the list is a run-time error.
    arcade& allGameAt(int index) const { return at(allGames, index, "allGames"); }
    arcade& buyGameAt(int index) const { return at(buyGames, index, "buyGames"); }
    arcade& myGameAt(int number) const { return at(myGames, number, "myGames"); }

    // The details panel: opens it on machine `number` (showDetails) or closes it.
    void showDetailsPanel(int number);
    void closeDetailsPanel();

    // The full path of a cabinet picture of the arcades folder.
    std::string cabinetPath(int style, bool facingRight) const;

  private:
    static arcade& at(const GameList& list, int index, const char* name);
    void appendTo(GameList& list, const std::shared_ptr<arcade>& title, const char* name);

    Game& game_;
    bool autoRepair_ = false;
    // What each machine offers the crowd now playing, in room order; reused by every crowd.
    struct Offer {
        arcade* machine;
        arcade::PlayTerms terms;
    };
    std::vector<Offer> offers_;
};

} // namespace zorvane
