#include "core/MathFile.h"

#include "core/DialogPort.h"
#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "core/Version.h"

#include <fstream>
#include <stdexcept>
#include <type_traits>
#include <unordered_map>

namespace zorvane {

namespace {

using Kind = MathKey::Kind;

// The kind of a key follows from the type of the field that holds it: a 16-bit whole number
// is read rounded, a double as it stands, a text without its trailing blanks.
template <typename T> constexpr Kind kindOf() {
    if constexpr (std::is_same_v<T, Int16>)
        return Kind::Int16;
    else if constexpr (std::is_same_v<T, double>)
        return Kind::Double;
    else {
        static_assert(std::is_same_v<T, std::string>, "a math field is Int16, double or text");
        return Kind::Text;
    }
}

// A 16-bit field may be read by another rule than rounding (Floor16, Strict16).
constexpr Kind int16Rule(Kind rule) {
    return rule == Kind::Floor16 || rule == Kind::Strict16 ? rule : Kind::Int16;
}

class TableBuilder {
  public:
    std::vector<MathKey> keys;

    template <typename T> void add(const std::string& key, T MathVars::*field) {
        keys.push_back({key, kindOf<T>(), key, -1, -1,
                        [field](MathVars& m) -> MathKey::Target { return &(m.*field); }});
    }
    void add(const std::string& key, Int16 MathVars::*field, Kind rule) {
        add(key, field);
        keys.back().kind = int16Rule(rule);
    }
    // A key that stores nothing (Ignored, Version).
    void noField(const std::string& key, Kind kind) {
        keys.push_back({key, kind, key, -1, -1, [](MathVars&) { return MathKey::Target{}; }});
    }
    // key = prefix + index + suffix, for index first..last, stored in array[index].
    template <typename T, std::size_t N>
    void range(const std::string& prefix, int first, int last, const std::string& suffix,
               const std::string& array, std::array<T, N> MathVars::*field) {
        if (first < 0 || static_cast<std::size_t>(last) >= N)
            throw std::logic_error("math key " + prefix + " beyond its array");
        for (int i = first; i <= last; ++i) {
            const auto at = static_cast<std::size_t>(i);
            keys.push_back(
                {prefix + std::to_string(i) + suffix, kindOf<T>(), array, i, -1,
                 [field, at](MathVars& m) -> MathKey::Target { return &(m.*field)[at]; }});
        }
    }
    template <std::size_t N>
    void range(const std::string& prefix, int first, int last, const std::string& suffix,
               const std::string& array, std::array<Int16, N> MathVars::*field, Kind rule) {
        const std::size_t from = keys.size();
        range(prefix, first, last, suffix, array, field);
        for (std::size_t k = from; k < keys.size(); ++k)
            keys[k].kind = int16Rule(rule);
    }
};

std::vector<MathKey> buildTable() {
    TableBuilder t;
    // General
    t.noField("mathver", Kind::Version);
    t.range("gamespeed", 1, 3, "", "gamespeed", &MathVars::gamespeed);
    t.add("resalemin", &MathVars::resalemin);
    t.add("fundsmin", &MathVars::fundsmin);
    // Movies
    t.add("movieminprice", &MathVars::movieminprice);
    t.add("moviemaxprice", &MathVars::moviemaxprice);
    t.add("moviepopdropdays", &MathVars::moviepopdropdays);
    t.add("moviepopdrop", &MathVars::moviepopdrop);
    t.add("movieclassicmin", &MathVars::movieclassicmin);
    t.add("movieclassicmax", &MathVars::movieclassicmax);
    t.add("movieminreleases", &MathVars::movieminreleases);
    t.add("moviemaxreleases", &MathVars::moviemaxreleases);
    t.add("moviemaxbuymovies", &MathVars::moviemaxbuymovies);
    t.add("movieminpop", &MathVars::movieminpop);
    t.add("moviemaxpop", &MathVars::moviemaxpop);
    // Showtimes
    t.add("showtimes", &MathVars::showtimes);
    t.range("showtimename", 1, 8, "", "showtimename", &MathVars::showtimename);
    t.add("showtimeadincome", &MathVars::showtimeadincome);
    t.add("showtimeadsmaxtotal", &MathVars::showtimeadsmaxtotal);
    t.add("showtimeadsmax", &MathVars::showtimeadsmax);
    t.add("showtimeadpop", &MathVars::showtimeadpop);
    // Arcade
    t.add("arcademax", &MathVars::arcademax);
    t.add("arcadeimages", &MathVars::arcadeimages);
    t.add("arcadenewgamespermonth", &MathVars::arcadenewgamespermonth);
    t.add("arcademaxgamesonbuylist", &MathVars::arcademaxgamesonbuylist);
    t.add("arcadeclassicmin", &MathVars::arcadeclassicmin);
    t.add("arcadeclassicmax", &MathVars::arcadeclassicmax);
    t.add("arcadepopmin", &MathVars::arcadepopmin);
    t.add("arcadepopmax", &MathVars::arcadepopmax);
    t.add("arcadepricemod", &MathVars::arcadepricemod);
    t.add("arcadepricebroke", &MathVars::arcadepricebroke);
    t.add("arcadebreakchance", &MathVars::arcadebreakchance);
    t.add("arcaderepaircost", &MathVars::arcaderepaircost);
    t.range("arcadeplayprice", 1, 4, "", "arcadeplayprice", &MathVars::arcadeplayprice);
    t.add("arcadeplaypricedefault", &MathVars::arcadeplaypricedefault);
    t.add("arcadeplaychancepricemod", &MathVars::arcadeplaychancepricemod);
    t.add("arcadeplaychanceplayedmod", &MathVars::arcadeplaychanceplayedmod);
    t.add("arcadepopdropmin", &MathVars::arcadepopdropmin);
    t.add("arcadepopdropmax", &MathVars::arcadepopdropmax);
    // Concessions
    t.range("concessname", 0, 4, "", "concessname", &MathVars::concessname);
    for (int n = 0; n <= 4; ++n)
        for (int q = 0; q <= 2; ++q)
            t.keys.push_back({"concess" + std::to_string(n) + "qual" + std::to_string(q),
                              Kind::Text, "concessqual", n, q,
                              [n, q](MathVars& m) -> MathKey::Target {
                                  return &m.concessqual.at(static_cast<std::size_t>(n))
                                              .at(static_cast<std::size_t>(q));
                              }});
    t.range("concess", 0, 4, "price", "concessprice", &MathVars::concessprice);
    t.range("concess", 0, 4, "cost", "concesscost", &MathVars::concesscost);
    t.range("concess", 0, 4, "qualinit", "concessqualinit", &MathVars::concessqualinit);
    t.range("concess", 0, 4, "buy", "concessbuy", &MathVars::concessbuy, Kind::Strict16);
    t.add("concessqualcost", &MathVars::concessqualcost);
    t.add("concessconsidercost", &MathVars::concessconsidercost);
    t.range("concessconsiderqual", 0, 2, "", "concessconsiderqual", &MathVars::concessconsiderqual);
    // Money and prices
    t.add("initfunds", &MathVars::initfunds);
    t.add("ticketsmatinee", &MathVars::ticketsmatinee);
    t.add("ticketsstandard", &MathVars::ticketsstandard);
    t.add("ticketsseniors", &MathVars::ticketsseniors);
    t.noField("arcadeprice", Kind::Ignored);
    t.add("minwage", &MathVars::minwage);
    t.add("inflation", &MathVars::inflation);
    // Loans
    t.add("loanmlv", &MathVars::loanmlv);
    t.add("loanpaymentsmin", &MathVars::loanpaymentsmin);
    t.add("loanpaymentsmax", &MathVars::loanpaymentsmax);
    t.add("loangrace", &MathVars::loangrace);
    t.add("loanir", &MathVars::loanir);
    t.add("loancs", &MathVars::loancs);
    t.add("loancsmax", &MathVars::loancsmax);
    t.add("loancsdec", &MathVars::loancsdec);
    t.add("loancsinc", &MathVars::loancsinc);
    // Staff
    t.range("emppos", 0, 7, "name", "empposname", &MathVars::empposname);
    t.range("empposition", 1, 7, "", "empposition", &MathVars::empposition);
    t.add("empraisemonths", &MathVars::empraisemonths);
    t.add("empraisemin", &MathVars::empraisemin);
    t.add("emptraining", &MathVars::emptraining);
    t.add("empexpsave", &MathVars::empexpsave);
    t.add("emprelchance", &MathVars::emprelchance);
    t.add("empambchance", &MathVars::empambchance);
    t.add("empexpchance", &MathVars::empexpchance);
    t.add("empexpoverlimit", &MathVars::empexpoverlimit);
    t.add("empangrynowork", &MathVars::empangrynowork);
    t.add("empangryoverqualified", &MathVars::empangryoverqualified);
    t.add("empangrynopay", &MathVars::empangrynopay);
    t.add("empangryquit", &MathVars::empangryquit);
    t.add("empangrycalmdown", &MathVars::empangrycalmdown);
    t.add("empprobation", &MathVars::empprobation);
    t.add("empoverqualifiedquitchance", &MathVars::empoverqualifiedquitchance);
    t.add("emphours", &MathVars::emphours, Kind::Floor16);
    t.add("empvinnycost", &MathVars::empvinnycost);
    t.range("empstat", 1, 10, "name", "empstatname", &MathVars::empstatname);
    // Customers and demand
    t.add("percentseniors", &MathVars::percentseniors);
    t.add("percentarcade", &MathVars::percentarcade);
    t.add("percentconcessions", &MathVars::percentconcessions);
    t.add("demandbase", &MathVars::demandbase);
    t.add("demandprice", &MathVars::demandprice);
    t.range("demandshowtime", 1, 8, "", "demandshowtime", &MathVars::demandshowtime);
    t.add("demandpromotion", &MathVars::demandpromotion);
    t.add("demandrating", &MathVars::demandrating);
    t.add("demandpop", &MathVars::demandpop);
    t.add("demanddupe", &MathVars::demanddupe);
    // Promotions
    t.range("promo", 0, 4, "", "promo", &MathVars::promo);
    t.range("promocost", 0, 4, "", "promocost", &MathVars::promocost);
    t.add("promomax", &MathVars::promomax);
    // Rating
    t.add("ratingdemand", &MathVars::ratingdemand);
    t.add("ratingads", &MathVars::ratingads);
    t.add("ratinganger", &MathVars::ratinganger);
    t.add("ratingpay", &MathVars::ratingpay);
    t.add("ratingambition", &MathVars::ratingambition);
    t.add("ratingpromo", &MathVars::ratingpromo);
    t.add("ratinggamepops", &MathVars::ratinggamepops);
    t.add("ratinggamenums", &MathVars::ratinggamenums);
    t.add("ratingconcessions", &MathVars::ratingconcessions);
    t.add("ratingrnd", &MathVars::ratingrnd);
    t.noField("ratingcurrent", Kind::Ignored);
    // Building
    t.add("buildingseating", &MathVars::buildingseating);
    t.add("buildingseatingmax", &MathVars::buildingseatingmax);
    t.add("buildingremodelcost", &MathVars::buildingremodelcost);
    t.add("buildingremodelseats", &MathVars::buildingremodelseats);
    t.add("buildingremodelcondition", &MathVars::buildingremodelcondition);
    t.add("buildingconditioninit", &MathVars::buildingconditioninit);
    t.add("buildingconditiondrop", &MathVars::buildingconditiondrop);
    t.add("buildingbreakdownchance", &MathVars::buildingbreakdownchance);
    t.add("buildingrepaircost", &MathVars::buildingrepaircost);
    t.add("buildingrenovationcost", &MathVars::buildingrenovationcost);
    t.add("buildingrent", &MathVars::buildingrent);
    t.add("buildingrentgrace", &MathVars::buildingrentgrace);
    t.add("buildingpurchasebase", &MathVars::buildingpurchasebase);
    t.add("buildingpurchaseinc", &MathVars::buildingpurchaseinc);
    // Look and sound
    t.range("formcolor", 0, 7, "", "formcolor", &MathVars::formcolor);
    t.range("imgconcession", 0, 4, "", "imgconcession", &MathVars::imgconcession);
    t.range("sndmode", 0, 7, "", "sndmode", &MathVars::sndmode);
    t.add("sndmidi", &MathVars::sndmidi);
    return t.keys;
}

const std::unordered_map<std::string, const MathKey*>& keyIndex() {
    static const std::unordered_map<std::string, const MathKey*> index = [] {
        std::unordered_map<std::string, const MathKey*> m;
        for (const MathKey& k : mathKeys())
            m.emplace(k.key, &k);
        return m;
    }();
    return index;
}

} // namespace

const std::vector<MathKey>& mathKeys() {
    static const std::vector<MathKey> table = buildTable();
    return table;
}

void MathFile::apply(MathVars& math, DialogPort& dialogs, const std::string& key,
                     const std::string& value) {
    const auto& index = keyIndex();
    const auto it = index.find(key);
    if (it == index.end())
        return; // unknown keys, and the empty key before the first entry, match nothing
    const MathKey& k = *it->second;
    const MathKey::Target target = k.target(math);
    switch (k.kind) {
    case Kind::Int16:
        *std::get<zorvane::Int16*>(target) = toInt16(leadingNumber(value));
        break;
    case Kind::Floor16:
        *std::get<zorvane::Int16*>(target) = floorInt16(leadingNumber(value));
        break;
    case Kind::Strict16:
        *std::get<zorvane::Int16*>(target) = floorInt16(strictNumber(value, k.key));
        break;
    case Kind::Double:
        *std::get<double*>(target) = leadingNumber(value);
        break;
    case Kind::Text:
        *std::get<std::string*>(target) = trimRight(value);
        break;
    case Kind::Ignored:
        break;
    case Kind::Version: {
        const std::string written = trimRight(value);
        if (written != programVersion()) {
            const std::string question = "Math file '" + storedPath_ +
                                         "' was written for version '" + written +
                                         "' but this is version '" + programVersion() +
                                         "' proceed with loading variables from this math file?";
            if (dialogs.ask(question, Buttons::YesNo) == Answer::No)
                endProcess(dialogs, "the math file's version was refused");
        }
        break;
    }
    }
}

void MathFile::loadMath(MathVars& math, DialogPort& dialogs, std::string& path) {
    if (!path.empty())
        storedPath_ = path;
    else
        path = storedPath_;
    std::ifstream file = openTextFile(path);
    LineReader reader(file, path);
    std::string line, key, value;
    while (reader.readLine(line)) {
        if (line.find('=') == std::string::npos)
            continue; // headings, blank lines, anything with no "="
        const std::size_t hash = line.find('#');
        if (hash != std::string::npos)
            line.erase(hash);
        // A comment line that holds an "=" loses it with the comment: the previous
        // entry's key and value stay, and that entry is applied a second time.
        const std::size_t eq = line.find('=');
        if (eq != std::string::npos) {
            key = toLower(line.substr(0, eq));
            value = line.substr(eq + 1);
        }
        try {
            apply(math, dialogs, key, value);
        } catch (const GameError& e) {
            throw GameError(e.kind(), reader.where() + "key '" + key + "': " + e.what());
        }
    }
}

} // namespace zorvane
