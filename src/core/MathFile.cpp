#include "core/MathFile.h"

#include "core/DialogPort.h"
#include "core/GameError.h"
#include "core/LineReader.h"
#include "core/Toolbox.h"
#include "core/Version.h"

#include <fstream>
#include <unordered_map>

namespace zorvane {

namespace {

using Kind = MathKey::Kind;

class TableBuilder {
  public:
    std::vector<MathKey> keys;

    template <typename F> void add(std::string key, Kind kind, F target) {
        keys.push_back({key, kind, key, -1, -1, target});
    }
    // key = prefix + index + suffix, for index first..last, stored in array[index].
    template <typename F>
    void range(const std::string& prefix, int first, int last, const std::string& suffix, Kind kind,
               const std::string& array, F element) {
        for (int i = first; i <= last; ++i)
            keys.push_back({prefix + std::to_string(i) + suffix, kind, array, i, -1,
                            [element, i](MathVars& m) -> void* { return element(m, i); }});
    }
};

#define FIELD(name) [](MathVars& m) -> void* { return &m.name; }
#define ELEMENT(name) [](MathVars& m, int i) -> void* { return &m.name[i]; }

std::vector<MathKey> buildTable() {
    TableBuilder t;
    const Kind I = Kind::Int16, D = Kind::Double, T = Kind::Text;
    // General
    t.add("mathver", Kind::Version, [](MathVars&) -> void* { return nullptr; });
    t.range("gamespeed", 1, 3, "", I, "gamespeed", ELEMENT(gamespeed));
    t.add("resalemin", D, FIELD(resalemin));
    t.add("fundsmin", D, FIELD(fundsmin));
    // Movies
    t.add("movieminprice", D, FIELD(movieminprice));
    t.add("moviemaxprice", D, FIELD(moviemaxprice));
    t.add("moviepopdropdays", I, FIELD(moviepopdropdays));
    t.add("moviepopdrop", I, FIELD(moviepopdrop));
    t.add("movieclassicmin", I, FIELD(movieclassicmin));
    t.add("movieclassicmax", I, FIELD(movieclassicmax));
    t.add("movieminreleases", D, FIELD(movieminreleases));
    t.add("moviemaxreleases", D, FIELD(moviemaxreleases));
    t.add("moviemaxbuymovies", D, FIELD(moviemaxbuymovies));
    t.add("movieminpop", I, FIELD(movieminpop));
    t.add("moviemaxpop", I, FIELD(moviemaxpop));
    // Showtimes
    t.add("showtimes", I, FIELD(showtimes));
    t.range("showtimename", 1, 8, "", T, "showtimename", ELEMENT(showtimename));
    t.add("showtimeadincome", D, FIELD(showtimeadincome));
    t.add("showtimeadsmaxtotal", I, FIELD(showtimeadsmaxtotal));
    t.add("showtimeadsmax", I, FIELD(showtimeadsmax));
    t.add("showtimeadpop", I, FIELD(showtimeadpop));
    // Arcade
    t.add("arcademax", I, FIELD(arcademax));
    t.add("arcadeimages", I, FIELD(arcadeimages));
    t.add("arcadenewgamespermonth", I, FIELD(arcadenewgamespermonth));
    t.add("arcademaxgamesonbuylist", I, FIELD(arcademaxgamesonbuylist));
    t.add("arcadeclassicmin", I, FIELD(arcadeclassicmin));
    t.add("arcadeclassicmax", I, FIELD(arcadeclassicmax));
    t.add("arcadepopmin", I, FIELD(arcadepopmin));
    t.add("arcadepopmax", I, FIELD(arcadepopmax));
    t.add("arcadepricemod", I, FIELD(arcadepricemod));
    t.add("arcadepricebroke", I, FIELD(arcadepricebroke));
    t.add("arcadebreakchance", D, FIELD(arcadebreakchance));
    t.add("arcaderepaircost", I, FIELD(arcaderepaircost));
    t.range("arcadeplayprice", 1, 4, "", D, "arcadeplayprice", ELEMENT(arcadeplayprice));
    t.add("arcadeplaypricedefault", I, FIELD(arcadeplaypricedefault));
    t.add("arcadeplaychancepricemod", I, FIELD(arcadeplaychancepricemod));
    t.add("arcadeplaychanceplayedmod", I, FIELD(arcadeplaychanceplayedmod));
    t.add("arcadepopdropmin", I, FIELD(arcadepopdropmin));
    t.add("arcadepopdropmax", I, FIELD(arcadepopdropmax));
    // Concessions
    t.range("concessname", 0, 4, "", T, "concessname", ELEMENT(concessname));
    for (int n = 0; n <= 4; ++n)
        for (int q = 0; q <= 2; ++q)
            t.keys.push_back({"concess" + std::to_string(n) + "qual" + std::to_string(q), T,
                              "concessqual", n, q,
                              [n, q](MathVars& m) -> void* { return &m.concessqual[n][q]; }});
    t.range("concess", 0, 4, "price", D, "concessprice", ELEMENT(concessprice));
    t.range("concess", 0, 4, "cost", D, "concesscost", ELEMENT(concesscost));
    t.range("concess", 0, 4, "qualinit", I, "concessqualinit", ELEMENT(concessqualinit));
    t.range("concess", 0, 4, "buy", Kind::Strict16, "concessbuy", ELEMENT(concessbuy));
    t.add("concessqualcost", D, FIELD(concessqualcost));
    t.add("concessconsidercost", D, FIELD(concessconsidercost));
    t.range("concessconsiderqual", 0, 2, "", D, "concessconsiderqual",
            ELEMENT(concessconsiderqual));
    // Money and prices
    t.add("initfunds", D, FIELD(initfunds));
    t.add("ticketsmatinee", D, FIELD(ticketsmatinee));
    t.add("ticketsstandard", D, FIELD(ticketsstandard));
    t.add("ticketsseniors", D, FIELD(ticketsseniors));
    t.add("arcadeprice", Kind::Ignored, [](MathVars&) -> void* { return nullptr; });
    t.add("minwage", D, FIELD(minwage));
    t.add("inflation", D, FIELD(inflation));
    // Loans
    t.add("loanmlv", D, FIELD(loanmlv));
    t.add("loanpaymentsmin", I, FIELD(loanpaymentsmin));
    t.add("loanpaymentsmax", I, FIELD(loanpaymentsmax));
    t.add("loangrace", I, FIELD(loangrace));
    t.add("loanir", D, FIELD(loanir));
    t.add("loancs", D, FIELD(loancs));
    t.add("loancsmax", D, FIELD(loancsmax));
    t.add("loancsdec", D, FIELD(loancsdec));
    t.add("loancsinc", D, FIELD(loancsinc));
    // Staff
    t.range("emppos", 0, 7, "name", T, "empposname", ELEMENT(empposname));
    t.range("empposition", 1, 7, "", D, "empposition", ELEMENT(empposition));
    t.add("empraisemonths", D, FIELD(empraisemonths));
    t.add("empraisemin", D, FIELD(empraisemin));
    t.add("emptraining", D, FIELD(emptraining));
    t.add("empexpsave", D, FIELD(empexpsave));
    t.add("emprelchance", D, FIELD(emprelchance));
    t.add("empambchance", D, FIELD(empambchance));
    t.add("empexpchance", I, FIELD(empexpchance));
    t.add("empexpoverlimit", I, FIELD(empexpoverlimit));
    t.add("empangrynowork", I, FIELD(empangrynowork));
    t.add("empangryoverqualified", I, FIELD(empangryoverqualified));
    t.add("empangrynopay", I, FIELD(empangrynopay));
    t.add("empangryquit", I, FIELD(empangryquit));
    t.add("empangrycalmdown", I, FIELD(empangrycalmdown));
    t.add("empprobation", I, FIELD(empprobation));
    t.add("empoverqualifiedquitchance", I, FIELD(empoverqualifiedquitchance));
    t.add("emphours", Kind::Floor16, FIELD(emphours));
    t.add("empvinnycost", D, FIELD(empvinnycost));
    t.range("empstat", 1, 10, "name", T, "empstatname", ELEMENT(empstatname));
    // Customers and demand
    t.add("percentseniors", I, FIELD(percentseniors));
    t.add("percentarcade", I, FIELD(percentarcade));
    t.add("percentconcessions", I, FIELD(percentconcessions));
    t.add("demandbase", D, FIELD(demandbase));
    t.add("demandprice", D, FIELD(demandprice));
    t.range("demandshowtime", 1, 8, "", D, "demandshowtime", ELEMENT(demandshowtime));
    t.add("demandpromotion", D, FIELD(demandpromotion));
    t.add("demandrating", D, FIELD(demandrating));
    t.add("demandpop", D, FIELD(demandpop));
    t.add("demanddupe", I, FIELD(demanddupe));
    // Promotions
    t.range("promo", 0, 4, "", I, "promo", ELEMENT(promo));
    t.range("promocost", 0, 4, "", D, "promocost", ELEMENT(promocost));
    t.add("promomax", D, FIELD(promomax));
    // Rating
    t.add("ratingdemand", I, FIELD(ratingdemand));
    t.add("ratingads", I, FIELD(ratingads));
    t.add("ratinganger", I, FIELD(ratinganger));
    t.add("ratingpay", I, FIELD(ratingpay));
    t.add("ratingambition", I, FIELD(ratingambition));
    t.add("ratingpromo", I, FIELD(ratingpromo));
    t.add("ratinggamepops", I, FIELD(ratinggamepops));
    t.add("ratinggamenums", D, FIELD(ratinggamenums));
    t.add("ratingconcessions", I, FIELD(ratingconcessions));
    t.add("ratingrnd", I, FIELD(ratingrnd));
    t.add("ratingcurrent", Kind::Ignored, [](MathVars&) -> void* { return nullptr; });
    // Building
    t.add("buildingseating", I, FIELD(buildingseating));
    t.add("buildingseatingmax", I, FIELD(buildingseatingmax));
    t.add("buildingremodelcost", D, FIELD(buildingremodelcost));
    t.add("buildingremodelseats", I, FIELD(buildingremodelseats));
    t.add("buildingremodelcondition", D, FIELD(buildingremodelcondition));
    t.add("buildingconditioninit", I, FIELD(buildingconditioninit));
    t.add("buildingconditiondrop", D, FIELD(buildingconditiondrop));
    t.add("buildingbreakdownchance", D, FIELD(buildingbreakdownchance));
    t.add("buildingrepaircost", I, FIELD(buildingrepaircost));
    t.add("buildingrenovationcost", I, FIELD(buildingrenovationcost));
    t.add("buildingrent", D, FIELD(buildingrent));
    t.add("buildingrentgrace", I, FIELD(buildingrentgrace));
    t.add("buildingpurchasebase", D, FIELD(buildingpurchasebase));
    t.add("buildingpurchaseinc", D, FIELD(buildingpurchaseinc));
    // Look and sound
    t.range("formcolor", 0, 7, "", T, "formcolor", ELEMENT(formcolor));
    t.range("imgconcession", 0, 4, "", T, "imgconcession", ELEMENT(imgconcession));
    t.range("sndmode", 0, 7, "", T, "sndmode", ELEMENT(sndmode));
    t.add("sndmidi", T, FIELD(sndmidi));
    return t.keys;
}

#undef FIELD
#undef ELEMENT

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
    void* target = k.target(math);
    switch (k.kind) {
    case Kind::Int16:
        *static_cast<zorvane::Int16*>(target) = toInt16(leadingNumber(value));
        break;
    case Kind::Floor16:
        *static_cast<zorvane::Int16*>(target) = floorInt16(leadingNumber(value));
        break;
    case Kind::Strict16:
        *static_cast<zorvane::Int16*>(target) = floorInt16(strictNumber(value, k.key));
        break;
    case Kind::Double:
        *static_cast<double*>(target) = leadingNumber(value);
        break;
    case Kind::Text:
        *static_cast<std::string*>(target) = trimRight(value);
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
