#pragma once
#include "staff/employee.h"

#include <array>
#include <string>
#include <vector>

namespace zorvane {

class employeeManager;

// The texts of the staff screen, built from the game state and nothing else: the screen
// only puts them into its controls.

// Cousin vinny's fee as the game prints it ("$#,###,###.00"): cents always, and no digit
// before the point below one dollar ($.50).
std::string vinnyMoney(double value);

// The qualification word for a person's capped experience in a post (informs only).
struct Qualification {
    std::string word; // "Under", "Okay", "Over"
    std::string tip;
};
Qualification qualification(int experience, int post);

// One row of the hire table. An empty row has empty texts and no button.
struct HireRow {
    std::string name, exp, rel, amb, train;
    bool openPost = false; // the experience cell is light red: this post is still vacant
    bool button = false;   // the "Hire" button is shown
};
std::array<HireRow, 10> hireTableRows(const employeeManager& staff); // [0] is row 1

// The chart of posts with its totals.
struct PositionRow {
    std::string position, employee, payRate, seniority, experience, experienceTip, sickDays, paid;
};
struct PositionChart {
    std::array<PositionRow, 7> rows; // [0] is post 1
    std::string minWage, totalPayRate, totalSick, totalPaid;
};
PositionChart positionChart(const employeeManager& staff);

// The staff grid: row 0 the header, row n employee n.
using GridRow = std::array<std::string, 10>;
std::vector<GridRow> employeeGridRows(const employeeManager& staff);
const std::array<int, 10>& employeeGridWidths(); // twips, columns 0 to 9

// The details panel of the person shown.
struct EmployeeDetails {
    bool visible = false;
    std::string number, name, exp, rel, amb, job;
    std::string daysEmployed, daysWorked, daysSick, totalPaid, seniority, angerLevel;
    int positionEntry = 0; // the selected line of the position list
    FaceLayers face;
};
EmployeeDetails employeeDetails(const employeeManager& staff);

// The question of the fire button.
std::string fireQuestion(const std::string& name);

} // namespace zorvane
