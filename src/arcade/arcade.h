#pragma once
#include "core/Numbers.h"
#include "core/Random.h"

#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// One arcade title: a line of games.lst, later a row of the buy list, and once bought a
// cabinet standing in the theater's arcade room. It decides for each customer whether the
// customer plays it, books the takings, breaks down now and then and is repaired for money.
class arcade {
  public:
    explicit arcade(Game& game) : game_(&game) {}

    Int16 Num;         // place in the list it stands in; in the room also its cabinet index
    Int16 OriginalNum; // line of games.lst: the title's identity for the release draw
    std::string Name;
    Int16 Pop;     // popularity: play chance and price follow it
    Int16 Classic; // the floor popularity settles on
    Int16 Age;     // months in the room
    Int16 CabinetImageFileNumber;
    std::string cabinetPicturePath; // picture last loaded into the cabinet; not saved
    float MyCabTop = 0;             // saved place in the room; 0 or less: never stored
    float myCabLeft = 0;
    bool IamBroke = false;
    double OriginalPrice = 0;
    double RepairBillsTotal = 0;
    Int16 PricePerPlay; // index into the play price table, not dollars
    double TotalPlays = 0;
    double Income = 0; // takings less repair bills
    double cost = 0;   // market price of a sound machine

    // What a play costs, the machine's chance before the crowd's plays are counted and what
    // each of those plays takes off it: fixed while one crowd plays, so the room works them
    // out once per crowd.
    struct PlayTerms {
        double price = 0;
        int baseChance = 0;
        int playedMod = 0;
    };
    PlayTerms playTerms() const;
    // One arcade visitor meets this machine on the crowd's terms; `playsSoFar` counts the
    // plays of the whole crowd. Every play by anyone of the same crowd lowers the chance of
    // the next one; a broken machine takes no play and draws no roll. Returns whether the
    // visitor played. Defined here: the crowd loop, the busiest of the day, calls it for
    // every visitor and machine.
    bool play(const PlayTerms& terms, int playsSoFar, Random& rng) {
        if (IamBroke)
            return false;
        const int chance = sub16(terms.baseChance, mul16(playsSoFar, terms.playedMod));
        if (rng.percentRoll() > chance)
            return false;
        takePlay(terms.price);
        return true;
    }
    // A visitor has played: books the takings and rolls for a breakdown.
    void takePlay(double price);
    void setOriginalPurchasePrice(double dollars) { OriginalPrice = dollars; }
    bool getIamBroke() const { return IamBroke; }
    void setTitleColor();
    void repair();
    void init(int number, const std::string& name);
    double getCost() const { return cost; }
    void inflate();
    void setPricePerPlay(int index) { PricePerPlay = index; }
    void setNum(int number) { Num = number; }
    int getNum() const { return Num; }
    int getOriginalNum() const { return OriginalNum; }
    const std::string& getName() const { return Name; }
    void setName(const std::string& text);
    int getPop() const { return Pop; }
    void nextMonth();
    void makeCabinet();
    void setCabinetFileNum(int style);
    void setCabinetFile();
    void positionTitle(int index);
    void showDetails();
    double getPrice() const;
    void saveSelf(LineWriter& out, const std::string& listWord) const;
    void loadSelf(LineReader& in);
    void unloadSelf();

    // The play price table: index 0 is "Free Play" at 0.00, 1 to 4 the math file's prices.
    static double playPrice(const Game& game, int index);
    // The cabinet picture's file name: the style padded to three digits, then L.gif or R.gif.
    static std::string cabinetFileName(int style, bool facingRight);
    // Total profit as the details panel shows it; repairs count twice, as required.
    double totalProfit() const { return Income - OriginalPrice - RepairBillsTotal; }

  private:
    void checkBreakdown(double price);

    Game* game_;
};

} // namespace zorvane
