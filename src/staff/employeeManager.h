#pragma once
#include <string>

namespace zorvane {

class Game;
class LineReader;
class LineWriter;

// Placeholder until this manager is built: its steps do nothing and it reads as empty.
class employeeManager {
public:
    explicit employeeManager(Game& game) : game_(game) {}

    void positionsSetup();
    void loadEmployeeDatabase();
    void employeesNextDay();
    void employeesNextMonth();
    int positionEmployee(int) const { return 0; }
    double getMinWage() const { return 0; }
    int getAverageAnger() const { return 0; }
    int getAverageAmbition() const { return 0; }
    double getAverageWage() const { return 0; }

    void savePositions(LineWriter& out) const;
    void loadPositions(LineReader& in);
    void saveEmployees(LineWriter& out) const;
    void loadEmployees(LineReader& in);

    Game& game() { return game_; }

private:
    Game& game_;
};

} // namespace zorvane
