#pragma once
#include "core/Numbers.h"
#include "staff/employee.h"
#include "staff/position.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// The people and the posts: the candidates of employees.cfg, the day's ten applicants, the
// staff, the seven positions with their wages, and the minimum wage. It hires, fires and
// assigns, finds someone to fill in for the sick, fills open posts by itself, pays the
// wages under "labor" and raises them over time.
//
// The three lists count from 1, as the game names people by their place; place 0 of each
// holds an empty person whom nobody uses but the number 0 reaches. Any other place outside
// the list is a bounds error.
class employeeManager {
  public:
    using Person = std::shared_ptr<employee>;

    explicit employeeManager(Game& game);

    // --- start-up, the day and the month ---
    void positionsSetup();
    void loadEmployeeDatabase();
    void employeesNextDay();
    void employeesNextMonth();
    void newCandidates();

    // --- the player's and the game's staff operations ---
    void hireEmployee(int row);
    void fireEmployee(int number);
    void removeEmployee(int number, const std::string& message);
    void assignEmployee(int emp, int pos);
    int findFillIn(int pos, int sick);
    void fillVacancies();
    void fillPosition(int pos);

    // --- what the rating reads ---
    double getMinWage() const { return minWage; }
    int getAverageAnger() const;
    int getAverageAmbition() const;
    double getAverageWage() const;

    // --- the saved game's <positions> and <emps> sections ---
    void savePositions(LineWriter& out) const;
    void loadPositions(LineReader& in);
    void saveEmployees(LineWriter& out) const;
    void loadEmployees(LineReader& in);

    // --- the staff screen: each refresh does its part of the game state, then tells the
    // screen the view is stale ---
    void refreshPositions();
    void refreshHireTable();
    void refreshEmployeeGrid();
    void showEmployeeDetails(int number);
    void hideEmployeeDetails();
    // The position list of the details panel ("0-None", then "1-..." to "7-...").
    void selectPosition(int entry);
    int selectedPosition() const { return selectedPosition_; }
    const std::vector<std::string>& positionList() const { return positionList_; }
    bool detailsVisible() const { return detailsVisible_; }
    int detailsNumber() const { return detailsNumber_; }

    // --- access ---
    position& getPosition(int p);
    const position& getPosition(int p) const;
    employee& getEmployee(int number); // the staff member of that number, 0 to the count
    const employee& getEmployee(int number) const;
    employee& getCandidate(int row); // today's applicant of that row, 0 to the count
    const employee& getCandidate(int row) const;
    const employee& getDatabaseEntry(int index) const;
    int employeeCount() const { return count(myEmployees_); }
    int candidateCount() const { return count(hireEmployees_); }
    int databaseCount() const { return count(allEmployees_); }
    // A holder number names somebody: at least 1 and not above the staff count.
    bool isValidHolder(int number) const { return number >= 1 && number <= employeeCount(); }
    // Posts 1 to 7 with nobody valid in them.
    std::vector<int> vacantPositions() const;
    // The name of post p as the math file gives it now.
    const std::string& positionName(int p) const;
    // The name the chart shows for post p, as it stood at start-up.
    const std::string& positionCaption(int p) const;

    double minWage = 0;     // dollars per hour
    Int16 monthsSinceRaise; // not saved: a load starts the count anew

  private:
    static int count(const std::vector<Person>& list) { return static_cast<int>(list.size()) - 1; }
    static void append(std::vector<Person>& list, Person person, const char* what);
    Person& at(std::vector<Person>& list, int place, const char* what);
    const Person& at(const std::vector<Person>& list, int place, const char* what) const;
    void resetList(std::vector<Person>& list);

    void readDatabaseLine(const std::string& raw);
    void checkEnoughNames() const;
    void staffDay();
    void payTheStaff();
    int bestByAmbition(int pos, bool highest, int pass) const;
    int bestPromotion(int pos, int pass) const;

    Game& game_;
    std::vector<Person> allEmployees_;
    std::vector<Person> hireEmployees_;
    std::vector<Person> myEmployees_;
    std::vector<position> positions_;

    std::vector<std::string> positionList_;
    std::array<std::string, 8> positionCaptions_{};
    int selectedPosition_ = 0;
    bool detailsVisible_ = false;
    int detailsNumber_ = 0;
};

} // namespace zorvane
