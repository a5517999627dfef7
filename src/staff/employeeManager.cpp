#include "staff/employeeManager.h"

#include "core/GameError.h"
#include "core/LineFile.h"
#include "core/Text.h"
#include "session/Game.h"
#include "staff/EmployeesCfg.h"
#include "staff/StaffTexts.h"

#include <array>
#include <cmath>
#include <fstream>
#include <set>

namespace zorvane {

namespace {

constexpr int maxDatabase = 32767;
constexpr int applicantsADay = 10;

} // namespace

employeeManager::employeeManager(Game& game) : game_(game) {
    // Place 0 of each list: an empty person nobody uses but the number 0 reaches.
    resetList(allEmployees_);
    resetList(hireEmployees_);
    resetList(myEmployees_);
    for (int p = 0; p <= 7; ++p)
        positions_.emplace_back(game);
}

// ---------------------------------------------------------------- lists and access

void employeeManager::resetList(std::vector<Person>& list) {
    list.clear();
    list.push_back(std::make_shared<employee>(game_));
}

void employeeManager::append(std::vector<Person>& list, Person person, const char* what) {
    if (count(list) >= 32767)
        throw GameError(GameError::Kind::Overflow,
                        std::string("overflow: more than 32767 in the ") + what);
    list.push_back(std::move(person));
}

employeeManager::Person& employeeManager::at(std::vector<Person>& list, int place,
                                             const char* what) {
    if (place < 0 || place > count(list))
        throw GameError(GameError::Kind::Bounds, "subscript out of range: place " +
                                                     std::to_string(place) + " of the " + what +
                                                     " (" + std::to_string(count(list)) + ")");
    return list[static_cast<std::size_t>(place)];
}

const employeeManager::Person& employeeManager::at(const std::vector<Person>& list, int place,
                                                   const char* what) const {
    return const_cast<employeeManager*>(this)->at(const_cast<std::vector<Person>&>(list), place,
                                                  what);
}

position& employeeManager::getPosition(int p) {
    if (p < 0 || p > 7)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: job position " + std::to_string(p));
    return positions_[static_cast<std::size_t>(p)];
}

const position& employeeManager::getPosition(int p) const {
    return const_cast<employeeManager*>(this)->getPosition(p);
}

employee& employeeManager::getEmployee(int number) {
    return *at(myEmployees_, number, "staff");
}
const employee& employeeManager::getEmployee(int number) const {
    return *at(myEmployees_, number, "staff");
}
employee& employeeManager::getCandidate(int row) {
    return *at(hireEmployees_, row, "hire table");
}
const employee& employeeManager::getCandidate(int row) const {
    return *at(hireEmployees_, row, "hire table");
}
const employee& employeeManager::getDatabaseEntry(int index) const {
    return *at(allEmployees_, index, "employee database");
}

const std::string& employeeManager::positionName(int p) const {
    if (p < 0 || p > 7)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: position name " + std::to_string(p));
    return game_.math.empposname[static_cast<std::size_t>(p)];
}

const std::string& employeeManager::positionCaption(int p) const {
    if (p < 0 || p > 7)
        throw GameError(GameError::Kind::Bounds,
                        "subscript out of range: position caption " + std::to_string(p));
    return positionCaptions_[static_cast<std::size_t>(p)];
}

// ---------------------------------------------------------------- start-up

// The seven posts get their numbers and opening wages (through the clamp, which may log),
// and the details panel's position list is made.
void employeeManager::positionsSetup() {
    minWage = game_.math.minwage;
    positionList_ = {"0-None"};
    for (int p = 1; p <= 7; ++p) {
        getPosition(p).setMyNum(p);
        getPosition(p).setWage(game_.math.empposition[static_cast<std::size_t>(p)]);
        positionCaptions_[static_cast<std::size_t>(p)] = positionName(p);
        positionList_.push_back(std::to_string(p) + "-" + positionName(p));
    }
    refreshPositions();
    refreshEmployeeGrid();
}

// Reads every candidate of employees.cfg. The file must exist.
void employeeManager::loadEmployeeDatabase() {
    const std::string path = game_.dataPath("employees.cfg");
    std::ifstream file = openTextFile(path);
    LineReader in(file, "employees.cfg");
    std::string line;
    while (in.readLine(line)) {
        CandidateLine c;
        try {
            c = readCandidateLine(
                line, [this](const std::string& message) { game_.gameLog(message, 0); });
        } catch (const GameError& e) {
            throw GameError(e.kind(), in.where() + e.what());
        }
        if (databaseCount() == maxDatabase) {
            // Two blanks before "file", as the game has always written it.
            game_.gameLog("there are more than 32767 in the  file, only using first 32767", 0);
            return;
        }
        if (!c.usable())
            continue;
        auto person = std::make_shared<employee>(game_);
        append(allEmployees_, person, "employee database");
        person->init(c.name, c.exp, c.rel, c.amb, 0);
    }
}

// ---------------------------------------------------------------- the day

// The day's applicants: ten different names drawn from the whole file, whoever they are. A
// staff member drawn here has his or her number overwritten until the staff grid renumbers.
// An empty file ends in a bounds error. A file of fewer than ten different names would draw
// for ever: every thousandth draw of a name already in the table counts the file's names,
// and too few of them stop the game with a run-time error that says so.
void employeeManager::newCandidates() {
    resetList(hireEmployees_);
    int drawnAgain = 0;
    while (candidateCount() < applicantsADay) {
        const int index = static_cast<int>(std::floor(databaseCount() * game_.rng.next())) + 1;
        const Person drawn = at(allEmployees_, index, "employee database");
        bool again = false;
        for (int r = 1; r <= candidateCount() && !again; ++r)
            again = hireEmployees_[static_cast<std::size_t>(r)]->name == drawn->name;
        if (again) {
            if (++drawnAgain % 1000 == 0)
                checkEnoughNames();
            continue;
        }
        append(hireEmployees_, drawn, "hire table");
        drawn->setMyNum(candidateCount());
    }
    refreshHireTable();
}

// The day's ten applicants need ten different names in employees.cfg.
void employeeManager::checkEnoughNames() const {
    std::set<std::string> names;
    for (int i = 1; i <= databaseCount(); ++i)
        names.insert(allEmployees_[static_cast<std::size_t>(i)]->name);
    if (static_cast<int>(names.size()) < applicantsADay)
        throw GameError(GameError::Kind::Bounds,
                        "employees.cfg holds " + std::to_string(names.size()) +
                            " different names, but the day's " + std::to_string(applicantsADay) +
                            " applicants need at least that many different names");
}

// The staff's day, then (when the theater can do business) the sick and their stand-ins
// and the wages, then the open posts are filled. A vacancy thus costs the day's business.
void employeeManager::employeesNextDay() {
    newCandidates();
    staffDay();
    if (game_.calendar.canDoBusiness())
        payTheStaff();
    fillVacancies();
    refreshPositions();
}

// Everyone's day in staff order. When someone quits the list closes up, so the next person
// takes that place and misses the day, and the walk stops short of the new end.
void employeeManager::staffDay() {
    const int end = employeeCount();
    for (int i = 1; i <= end; ++i) {
        if (i > employeeCount())
            continue;
        const Person person = myEmployees_[static_cast<std::size_t>(i)]; // kept alive if it quits
        person->nextDay();
    }
}

// Each post's holder may call in sick and be replaced for the day; whoever does the job is
// paid the post's day (16 hours). A sick holder earns nothing.
void employeeManager::payTheStaff() {
    for (int p = 1; p <= 7; ++p) {
        int holder = getPosition(p).getMyEmployee();
        if (!isValidHolder(holder))
            continue;
        if (getEmployee(holder).amIsick())
            holder = findFillIn(p, holder);
        if (holder > 0)
            getEmployee(holder).PayMe(getPosition(p).dayPay());
    }
}

// The best idle stand-in for a post: first an exact match (most ambitious), then an
// over-qualified one (least ambitious, so the ambitious are the last spent on a lower job),
// then an under-qualified one (most ambitious). Nobody: cousin vinny, paid or not.
int employeeManager::findFillIn(int pos, int sick) {
    std::vector<int> idle;
    for (int i = 1; i <= employeeCount(); ++i)
        if (getEmployee(i).job < 1 && i != sick)
            idle.push_back(i);
    int found = 0;
    if (!idle.empty()) {
        const auto pass = [&](auto qualifies, bool highest) {
            int best = highest ? 0 : 100; // must be beaten: the first among equals wins
            int who = 0;
            for (int i : idle) {
                const employee& e = getEmployee(i);
                const bool better = highest ? e.amb > best : e.amb < best;
                if (qualifies(e.getMyExp()) && better) {
                    best = e.amb;
                    who = i;
                }
            }
            return who;
        };
        found = pass([pos](int x) { return x == pos; }, true);
        if (found == 0)
            found = pass([pos](int x) { return x > pos; }, false);
        if (found == 0)
            found = pass([pos](int x) { return x < pos; }, true);
    }
    if (found > 0) {
        getEmployee(found).setMyJob(pos, true);
        return found;
    }
    game_.finances.spend(game_.math.empvinnycost, "labor"); // charged whether it goes through
    game_.gameLog("I had to call in cousin vinny to fill the position of " + positionName(pos) +
                      ".  I had to pay him " + vinnyMoney(game_.math.empvinnycost),
                  1);
    return 0;
}

// Every post that stands at exactly 0 is filled, in rising order.
void employeeManager::fillVacancies() {
    for (int p = 1; p <= 7; ++p)
        if (getPosition(p).getMyEmployee() == 0)
            fillPosition(p);
}

// Fills a post from the staff: a qualified person moved up from a lower post, else an idle
// qualified person, else any idle person; the most ambitious of the pass. A promotion
// leaves the lower post open until the next day's walk.
void employeeManager::fillPosition(int pos) {
    if (employeeCount() == 0)
        return;
    const auto pass = [&](auto fits) {
        int best = 0; // must be beaten: the first among equals wins, ambition 0 never does
        int who = 0;
        for (int i = 1; i <= employeeCount(); ++i) {
            const employee& e = getEmployee(i);
            if (fits(e) && e.amb > best) {
                best = e.amb;
                who = i;
            }
        }
        return who;
    };
    int found = pass([pos](const employee& e) {
        return e.job > 0 && e.job < pos && e.getMyExp() > e.job && e.getMyExp() >= pos;
    });
    if (found == 0)
        found = pass([pos](const employee& e) { return e.job < 1 && e.getMyExp() >= pos; });
    if (found == 0)
        found = pass([](const employee& e) { return e.job < 1; });
    if (found == 0) {
        game_.gameLog("I was unable to fill the position of " + positionName(pos) +
                          ", you may want to consider highering more employees.",
                      2);
        return;
    }
    const Person person = myEmployees_[static_cast<std::size_t>(found)];
    assignEmployee(found, pos);
    // The same words for an idle person placed, though nobody moved up.
    game_.gameLog(person->name + " has been promoted to position: " + positionName(pos), 0);
}

// ---------------------------------------------------------------- the player's operations

// Hires the applicant of a row for the training price. The person goes straight into the
// post that fits the experience exactly, if that is open; otherwise the person starts idle.
void employeeManager::hireEmployee(int row) {
    if (candidateCount() == 0)
        return;
    const Person person = at(hireEmployees_, row, "hire table");
    const double price = person->getMyTrainingCost();
    if (!game_.finances.spend(price, "labor")) {
        game_.gameLog("You cannot afford to train this employee!  You need to take out a loan "
                      "if you want to stay in business!!",
                      0);
        return;
    }
    append(myEmployees_, person, "staff");
    const int number = employeeCount();
    person->setMyNum(number);
    person->setMyJob(0, false);
    game_.gameLog(person->name + " is a new member of the team.", 0);
    hireEmployees_.erase(hireEmployees_.begin() + row);
    for (int r = 1; r <= candidateCount(); ++r)
        hireEmployees_[static_cast<std::size_t>(r)]->setMyNum(r);
    const int e = person->getMyExp();
    if (getPosition(e).getMyEmployee() < 1) {
        getPosition(e).setMyEmployee(number);
        person->setMyJob(e, false);
        refreshPositions();
    }
    refreshEmployeeGrid();
    refreshHireTable();
}

void employeeManager::fireEmployee(int number) {
    if (employeeCount() > 0)
        removeEmployee(number, "has been canned.");
}

// Takes one person off the staff and renumbers the rest, who write their new numbers into
// their posts. A number above the count removes nobody and only renumbers. The removed
// person keeps his or her fields, the job included.
void employeeManager::removeEmployee(int number, const std::string& message) {
    if (detailsVisible_ && detailsNumber_ == number)
        hideEmployeeDetails();
    std::vector<Person> kept{myEmployees_.front()};
    for (int i = 1; i <= employeeCount(); ++i) {
        const Person& person = myEmployees_[static_cast<std::size_t>(i)];
        if (i != number) {
            kept.push_back(person);
            continue;
        }
        if (!message.empty())
            game_.gameLog(person->name + " " + message, 0);
        getPosition(person->job).setMyEmployee(0);
    }
    [[maybe_unused]] const std::vector<Person> removed = std::move(myEmployees_); // kept alive
    myEmployees_ = std::move(kept);
    for (int i = 1; i <= employeeCount(); ++i) {
        employee& person = *myEmployees_[static_cast<std::size_t>(i)];
        person.setMyNum(i);
        person.updateJob();
    }
    refreshHireTable();
    refreshEmployeeGrid();
    refreshPositions();
}

// Puts a person into a post (0 takes the post selected in the position list; "0-None" is
// post 0). A person refuses to step down to a post below his or her level; the post's
// holder is bumped to idle, and the person leaves any post held before.
void employeeManager::assignEmployee(int emp, int pos) {
    if (pos < 1)
        pos = selectedPosition_;
    const Person person = at(myEmployees_, emp, "staff");
    if (pos > 0 && pos < person->getMyExp() && pos < person->job) {
        game_.gameLog(person->name + ": I'm too experienced for that position! No way!", 0);
        return;
    }
    position& post = getPosition(pos);
    // Post 0 is a post too here: whoever was last put to "0-None" is "bumped" to idle.
    if (isValidHolder(post.getMyEmployee()))
        getEmployee(post.getMyEmployee()).setMyJob(0, false);
    person->setMyJob(0, false);
    for (int p = 1; p <= 7; ++p)
        if (getPosition(p).getMyEmployee() == emp)
            getPosition(p).setMyEmployee(0);
    post.setMyEmployee(emp);
    person->setMyJob(pos, false);
    refreshHireTable();
    refreshPositions();
}

// ---------------------------------------------------------------- the month

// Seniority for everyone, and every `empraisemonths` months the minimum wage and all seven
// wages rise by the same amount. A month without staff is not counted.
void employeeManager::employeesNextMonth() {
    if (employeeCount() == 0)
        return;
    for (int i = 1; i <= employeeCount(); ++i)
        getEmployee(i).nextMonth();
    monthsSinceRaise += 1;
    if (monthsSinceRaise < game_.math.empraisemonths)
        return;
    minWage += game_.math.empraisemin;
    monthsSinceRaise = 0;
    for (int p = 1; p <= 7; ++p)
        getPosition(p).setWage(getPosition(p).getWage() + game_.math.empraisemin);
    game_.gameLog("Wages just went up another " + formatMoney(game_.math.empraisemin), 0);
    game_.screen().refresh(View::Positions);
}

// ---------------------------------------------------------------- averages for the rating

// A vacant post counts as anger at the quitting point.
int employeeManager::getAverageAnger() const {
    Int16 sum;
    for (int p = 1; p <= 7; ++p) {
        const int holder = getPosition(p).getMyEmployee();
        sum += isValidHolder(holder) ? static_cast<int>(getEmployee(holder).anger)
                                     : static_cast<int>(game_.math.empangryquit);
    }
    return floorInt16(sum / 7.0);
}

// Kept on purpose: the holders' ambition is read but never added up, so the result is
// always 0 and the rating's ambition term stays constant.
int employeeManager::getAverageAmbition() const {
    int read = 0;
    for (int p = 1; p <= 7; ++p) {
        const int holder = getPosition(p).getMyEmployee();
        if (isValidHolder(holder))
            read = getEmployee(holder).amb;
    }
    (void)read;
    return 0;
}

double employeeManager::getAverageWage() const {
    double sum = 0;
    for (int p = 1; p <= 7; ++p)
        sum += getPosition(p).getWage();
    return sum / 7;
}

// ---------------------------------------------------------------- saved game

void employeeManager::savePositions(LineWriter& out) const {
    out << "<positions>";
    for (int p = 1; p <= 7; ++p)
        getPosition(p).saveSelf(out);
    out << "</positions>";
}

// The blocks fill posts 1, 2, ... in order; a block past the last post is a bounds error.
void employeeManager::loadPositions(LineReader& in) {
    int next = 0;
    std::string line;
    while (in.readLine(line)) {
        if (line.rfind("</", 0) == 0)
            break;
        if (toLower(line) == "<position>")
            getPosition(++next).loadSelf(in);
    }
}

// Kept on purpose: with no staff the closing </emps> is not written, so a load of that
// game reads on to the end of the file and later sections keep their present values.
void employeeManager::saveEmployees(LineWriter& out) const {
    out << "<emps>";
    out << "minWage=" + numberTextSigned(minWage);
    if (employeeCount() == 0)
        return;
    for (int i = 1; i <= employeeCount(); ++i)
        if (!getEmployee(i).saveSelf(out))
            game_.gameLog("error during save, employee # " + numberTextSigned(i) +
                              " did not save successfully",
                          0);
    out << "</emps>";
}

// Kept on purpose: the old staff is removed by ascending number while the list closes up,
// so every second person goes and half of them (rounded down) stay in front of the loaded
// ones. Loaded people are new objects, apart from the candidates' file.
void employeeManager::loadEmployees(LineReader& in) {
    const int start = employeeCount();
    for (int i = 1; i <= start; ++i)
        removeEmployee(i, "");
    monthsSinceRaise = 0;
    minWage = game_.math.minwage;
    std::string line, key, value;
    while (in.readLine(line)) {
        const std::string lower = toLower(line);
        if (lower == "</emps>")
            break;
        if (lower == "<employee>") {
            auto person = std::make_shared<employee>(game_);
            append(myEmployees_, person, "staff");
            person->loadSelf(in, employeeCount());
        } else if (splitKeyValue(line, key, value) && toLower(key) == "minwage") {
            minWage = leadingNumber(value);
        }
    }
    refreshHireTable();
    refreshPositions();
}

// ---------------------------------------------------------------- the staff screen

// The chart of posts; it ends with the staff grid, and so renumbers the staff.
void employeeManager::refreshPositions() {
    game_.screen().refresh(View::Positions);
    refreshEmployeeGrid();
}

// Row n of the grid is employee n: every person gets the number of his or her row, which
// repairs what the day's draw of applicants may have overwritten.
void employeeManager::refreshEmployeeGrid() {
    for (int i = 1; i <= employeeCount(); ++i)
        getEmployee(i).setMyNum(i);
    game_.screen().refresh(View::EmployeeGrid);
}

// Showing an applicant's training price fixes it.
void employeeManager::refreshHireTable() {
    for (int r = 1; r <= candidateCount(); ++r)
        getCandidate(r).getMyTrainingCost();
    game_.screen().refresh(View::HireTable);
}

// Opens the details panel on a person: the position list selects his or her job, and a
// person without a face gets one. A number above the count shows nothing new.
void employeeManager::showEmployeeDetails(int number) {
    detailsVisible_ = true;
    if (number <= employeeCount()) {
        employee& person = getEmployee(number);
        detailsNumber_ = number;
        selectPosition(person.getMyJob());
        person.drawPicture();
    }
    game_.screen().refresh(View::EmployeeDetails);
}

void employeeManager::hideEmployeeDetails() {
    detailsVisible_ = false;
    game_.screen().refresh(View::EmployeeDetails);
}

// The list has "0-None" and the seven posts; -1 is no selection.
void employeeManager::selectPosition(int entry) {
    if (entry < -1 || entry > 7)
        throw GameError(GameError::Kind::Bounds,
                        "invalid property value: position list entry " + std::to_string(entry));
    selectedPosition_ = entry;
}

std::vector<int> employeeManager::vacantPositions() const {
    std::vector<int> vacant;
    for (int p = 1; p <= 7; ++p)
        if (!isValidHolder(getPosition(p).getMyEmployee()))
            vacant.push_back(p);
    return vacant;
}

} // namespace zorvane
