#include "arcade/arcade.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"

#include <cfloat>
#include <charconv>
#include <cmath>

namespace zorvane {

namespace {

const std::string arcadeFolder = "images\\arcades\\";

// A 32-bit float as the saved game writes it: seven significant digits, more only when the
// value would not read back the same.
std::string floatText(float value) {
    char buf[32];
    char* end = buf;
    for (int digits = 7; digits <= 9; ++digits) {
        end = std::to_chars(buf, buf + sizeof buf, static_cast<double>(value),
                            std::chars_format::general, digits)
                  .ptr;
        float back = 0;
        std::from_chars(buf, end, back);
        if (back == value)
            break;
    }
    return std::string(buf, end);
}

float toFloat(double value, const std::string& key) {
    if (std::isfinite(value) && std::fabs(value) > static_cast<double>(FLT_MAX))
        throw GameError(GameError::Kind::Overflow,
                        "overflow: " + key + "=" + numberText(value) + " does not fit a float");
    return static_cast<float>(value);
}

} // namespace

double arcade::playPrice(const Game& game, int index) {
    if (index < 0 || index > 4)
        throw GameError(GameError::Kind::Bounds, "subscript out of range: play price index " +
                                                     std::to_string(index) +
                                                     " (the table runs 0 to 4)");
    return index == 0 ? 0.0 : game.math.arcadeplayprice[static_cast<std::size_t>(index)];
}

std::string arcade::cabinetFileName(int style, bool facingRight) {
    std::string digits = std::to_string(style);
    if (digits.size() == 1)
        digits = "00" + digits;
    else if (digits.size() == 2)
        digits = "0" + digits;
    return digits + (facingRight ? "R.gif" : "L.gif");
}

// First-time set-up from a line of games.lst: popularity, classic floor and cabinet style are
// rolled in that order. The spans start at the minimum and are the maximum wide, so the upper
// end is min plus max; nothing keeps Classic below Pop.
void arcade::init(int number, const std::string& name) {
    const MathVars& m = game_->math;
    Num = number;
    OriginalNum = number;
    Name = name;
    Age = 0;
    Pop = floorInt16(m.arcadepopmax * game_->rng.next() + m.arcadepopmin);
    Classic = floorInt16(m.arcadeclassicmax * game_->rng.next() + m.arcadeclassicmin);
    int style = floorInt16(m.arcadeimages * game_->rng.next() + 1);
    if (style < 1)
        style = 1;
    else if (style > m.arcadeimages)
        style = m.arcadeimages;
    CabinetImageFileNumber = style;
    PricePerPlay = m.arcadeplaypricedefault;
    cost = mul16(Pop, m.arcadepricemod);
}

arcade::PlayTerms arcade::playTerms() const {
    const double price = playPrice(*game_, PricePerPlay);
    return {price, floorInt16(Pop - game_->math.arcadeplaychancepricemod * price),
            game_->math.arcadeplaychanceplayedmod};
}

void arcade::takePlay(double price) {
    game_->finances.earn(price, "arcade");
    TotalPlays += 1;
    Income += price;
    arcadeManager& manager = game_->arcades;
    if (manager.detailsVisible && manager.detailsNum == Num)
        showDetails();
    checkBreakdown(price);
}

// About one play in arcadebreakchance breaks the machine, and the customer gets the play's
// money back. Kept on purpose: the plays and income keep the refunded play, and a refund
// that funds cannot cover is dropped without a word.
void arcade::checkBreakdown(double price) {
    // Compared as a double: a large arcadebreakchance must not overflow a 16-bit roll.
    if (Int(game_->rng.next() * game_->math.arcadebreakchance + 1) != 1)
        return;
    IamBroke = true;
    setTitleColor();
    game_->gameLog("The arcade machine " + Name + " has broke down.", 0);
    game_->finances.spend(price, ""); // the result is not looked at
    arcadeManager& manager = game_->arcades;
    if (manager.detailsVisible)
        showDetails(); // the panel jumps to the broken machine
    if (manager.getAutoRepair())
        repair();
}

// A repair costs arcaderepaircost for every month of the machine's age. It does not look at
// the broken flag: only the screen hides the button of a working machine.
void arcade::repair() {
    const double bill = mul16(Age, game_->math.arcaderepaircost);
    if (!game_->finances.spend(bill, "arcades")) {
        game_->gameLog("Couldn't afford the " + formatMoney(bill) + " to fix arcade '" + Name + "'",
                       0);
        return;
    }
    IamBroke = false;
    setTitleColor();
    if (game_->arcades.detailsVisible)
        showDetails(); // before the totals change, as the game always did
    Income -= bill;
    RepairBillsTotal += bill;
    game_->gameLog(Name + " has been repaired for " + formatMoney(bill), 0);
}

void arcade::inflate() {
    cost = game_->math.inflation * 0.01 * cost + cost;
}

void arcade::setTitleColor() {
    game_->arcades.room.title(Num).color =
        IamBroke ? ArcadeRoom::titleBroken : ArcadeRoom::titleWorking;
    game_->screen().updateCabinet(Num);
}

// The player renames a machine; an empty name is ignored. The title is not re-centred.
void arcade::setName(const std::string& text) {
    if (text.empty())
        return;
    Name = text;
    game_->arcades.room.setCaption(Num, text);
    game_->screen().updateCabinet(Num);
}

// A month in the room: the machine ages and its popularity sinks towards its classic floor.
// A machine bought below its floor jumps up to it. Inflation of the price is discarded.
void arcade::nextMonth() {
    const MathVars& m = game_->math;
    Age += 1;
    if (Pop > Classic)
        Pop = sub16(Pop, floorInt16(m.arcadepopdropmax * game_->rng.next() + m.arcadepopdropmin));
    if (Pop < Classic)
        Pop = static_cast<int>(Classic);
    cost = mul16(Pop, m.arcadepricemod);
}

double arcade::getPrice() const {
    return IamBroke ? cost * game_->math.arcadepricebroke / 100 : cost;
}

// Puts the machine's cabinet and title into the room at index Num: at its saved place when
// one was stored, else where the room's template stands.
void arcade::makeCabinet() {
    ArcadeRoom& room = game_->arcades.room;
    room.create(Num);
    game_->screen().createCabinet(Num);
    setCabinetFile();
    room.setCaption(Num, Name);
    room.title(Num).visible = true;
    if (MyCabTop > 0)
        room.cabinet(Num).top = MyCabTop;
    if (myCabLeft > 0)
        room.cabinet(Num).left = myCabLeft;
    setCabinetFile();
    positionTitle(Num);
    setTitleColor();
}

// A style chosen on the slider; styles outside 1 to arcadeimages are ignored.
void arcade::setCabinetFileNum(int style) {
    if (style > 0 && style <= game_->math.arcadeimages) {
        CabinetImageFileNumber = style;
        setCabinetFile();
    }
}

// A cabinet left of the divider (or on it) faces right with the L picture, one right of it
// the R picture, so every machine faces the room's centre. A path already loaded is skipped.
void arcade::setCabinetFile() {
    ArcadeRoom& room = game_->arcades.room;
    const bool facingRight = room.cabinet(Num).left > room.dividerX;
    const std::string path =
        game_->dataPath(arcadeFolder + cabinetFileName(CabinetImageFileNumber, facingRight));
    if (path != cabinetPicturePath) {
        cabinetPicturePath = path;
        room.loadPicture(Num, path);
    }
    room.cabinet(Num).visible = true;
    game_->screen().updateCabinet(Num);
}

// Centres the title 360 twips above the cabinet.
void arcade::positionTitle(int index) {
    ArcadeRoom& room = game_->arcades.room;
    const ArcadeCabinet& cab = room.cabinet(index);
    ArcadeTitle& title = room.title(index);
    title.top = cab.top - 360;
    title.left = cab.left + cab.width / 2 - static_cast<float>(Int(title.width / 2));
    game_->screen().updateCabinet(index);
}

void arcade::showDetails() {
    game_->arcades.showDetailsPanel(Num);
}

void arcade::saveSelf(LineWriter& out, const std::string& listWord) const {
    out << "<arcade_" + listWord + ">";
    out << "Num=" + std::to_string(Num);
    out << "OriginalNum=" + std::to_string(OriginalNum);
    out << "Name=" + Name;
    out << "Pop=" + std::to_string(Pop);
    out << "Classic=" + std::to_string(Classic);
    out << "Age=" + std::to_string(Age);
    out << "CabinetImageFileNumber=" + std::to_string(CabinetImageFileNumber);
    out << (IamBroke ? "IamBroke=1" : "IamBroke=0");
    out << "OriginalPrice=" + numberText(OriginalPrice);
    out << "RepairBillsTotal=" + numberText(RepairBillsTotal);
    out << "PricePerPlay=" + std::to_string(PricePerPlay);
    out << "TotalPlays=" + numberText(TotalPlays);
    out << "Income=" + numberText(Income);
    if (toLower(listWord) == "my") {
        // The place is read off the cabinet as it stands now.
        const ArcadeCabinet& cab = game_->arcades.room.cabinet(Num);
        out << "MyCabTop=" + floatText(cab.top);
        out << "myCabLeft=" + floatText(cab.left);
    }
    out << "cost=" + numberText(cost);
    out << "</arcade_" + listWord + ">";
}

// Reads one block up to its closing tag. Keys are compared in lower case, values are their
// leading number, the name is kept as it stands. The screen is not touched.
void arcade::loadSelf(LineReader& in) {
    readSection(in, [&](const std::string& rawKey, const std::string& value) {
        const std::string key = toLower(rawKey);
        if (key == "name") {
            Name = value;
            return;
        }
        const auto n = [&value] { return leadingNumber(value); };
        if (key == "num")
            Num = toInt16(n());
        else if (key == "originalnum")
            OriginalNum = toInt16(n());
        else if (key == "pop")
            Pop = toInt16(n());
        else if (key == "classic")
            Classic = toInt16(n());
        else if (key == "age")
            Age = toInt16(n());
        else if (key == "cabinetimagefilenumber")
            CabinetImageFileNumber = toInt16(n());
        else if (key == "iambroke")
            IamBroke = (n() == 1);
        else if (key == "originalprice")
            OriginalPrice = n();
        else if (key == "repairbillstotal")
            RepairBillsTotal = n();
        else if (key == "priceperplay")
            PricePerPlay = toInt16(n());
        else if (key == "totalplays")
            TotalPlays = n();
        else if (key == "mycabtop")
            MyCabTop = toFloat(n(), in.where() + key);
        else if (key == "mycableft")
            myCabLeft = toFloat(n(), in.where() + key);
        else if (key == "income")
            Income = n();
        else if (key == "cost")
            cost = n();
    });
}

void arcade::unloadSelf() {
    game_->arcades.room.destroy(Num);
    game_->screen().destroyCabinet(Num);
}

} // namespace zorvane
