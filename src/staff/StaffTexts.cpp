#include "staff/StaffTexts.h"

#include "core/Text.h"
#include "staff/employeeManager.h"

namespace zorvane {

std::string vinnyMoney(double value) {
    std::string text = formatGrouped(value, 2);
    std::string sign;
    if (!text.empty() && text[0] == '-') {
        sign = "-";
        text.erase(0, 1);
    }
    if (text.rfind("0.", 0) == 0)
        text.erase(0, 1);
    return sign + "$" + text;
}

Qualification qualification(int experience, int post) {
    if (experience < post)
        return {"Under", "This employee is under qualified for this position"};
    if (experience == post)
        return {"Okay", "This employee is qualified for this position"};
    return {"Over", "This employee is over qualified for this position"};
}

std::array<HireRow, 10> hireTableRows(const employeeManager& staff) {
    std::array<HireRow, 10> rows{};
    for (int r = 1; r <= staff.candidateCount() && r <= 10; ++r) {
        const employee& e = staff.getCandidate(r);
        HireRow& row = rows[static_cast<std::size_t>(r - 1)];
        row.name = e.getMyName();
        row.exp = e.getMyExpText();
        row.openPost = staff.getPosition(e.getMyExp()).getMyEmployee() < 1;
        row.rel = e.getMyRelText();
        row.amb = e.getMyAmbText();
        row.train = formatMoney(e.trainingCostShown());
        row.button = true;
    }
    return rows;
}

// Sums of sick days and pay cover the holders only; the wage total covers all seven posts.
PositionChart positionChart(const employeeManager& staff) {
    PositionChart chart;
    double totalWage = 0, totalPaid = 0;
    int totalSick = 0;
    for (int p = 1; p <= 7; ++p) {
        PositionRow& row = chart.rows[static_cast<std::size_t>(p - 1)];
        const position& post = staff.getPosition(p);
        row.position = staff.positionCaption(p);
        row.payRate = formatMoney(post.getWage()) + "/hr";
        totalWage += post.getWage();
        const int holder = post.getMyEmployee();
        if (!staff.isValidHolder(holder)) {
            row.employee = "(Position not filled)";
            row.seniority = "0 mo.";
            row.experience = "None";
            row.sickDays = "0";
            row.paid = "$0";
            continue;
        }
        const employee& e = staff.getEmployee(holder);
        row.employee = e.getMyName();
        row.seniority = digitsOnly(std::to_string(e.getMySeniority())) + " mo.";
        const Qualification q = qualification(e.getMyExp(), p);
        row.experience = q.word;
        row.experienceTip = q.tip;
        row.sickDays = std::to_string(e.getMySickDays());
        totalSick += e.getMySickDays();
        row.paid = formatMoneyShort(e.getMyPaid());
        totalPaid += e.getMyPaid();
    }
    chart.minWage = formatMoney(staff.getMinWage()) + "/hr";
    chart.totalPayRate = formatMoney(totalWage) + "/hr";
    chart.totalSick = std::to_string(totalSick);
    chart.totalPaid = formatMoneyShort(totalPaid);
    return chart;
}

std::vector<GridRow> employeeGridRows(const employeeManager& staff) {
    // "Senority" is how the game has always spelled the column.
    std::vector<GridRow> rows{{"Name", "Anger", "Job", "Experience", "Reliability", "Ambition",
                               "Senority", "Days worked", "Days sick", "Total paid"}};
    for (int i = 1; i <= staff.employeeCount(); ++i) {
        const employee& e = staff.getEmployee(i);
        rows.push_back({e.getMyName(), std::to_string(e.getMyAngerLevel()), e.getMyJobText(),
                        e.getMyExpText(), std::to_string(e.getMyRel()),
                        std::to_string(e.getMyAmb()), std::to_string(e.getMySeniority()),
                        std::to_string(e.getDaysWorked()), std::to_string(e.getMySickDays()),
                        formatMoney(e.getMyPaid())});
    }
    return rows;
}

const std::array<int, 10>& employeeGridWidths() {
    static const std::array<int, 10> widths{1700, 570, 1140, 1140, 345, 345, 345, 1140, 1020, 1065};
    return widths;
}

EmployeeDetails employeeDetails(const employeeManager& staff) {
    EmployeeDetails d;
    d.visible = staff.detailsVisible();
    d.positionEntry = staff.selectedPosition();
    const int n = staff.detailsNumber();
    d.number = std::to_string(n);
    if (n < 0 || n > staff.employeeCount())
        return d;
    const employee& e = staff.getEmployee(n);
    d.name = e.getMyName();
    d.exp = e.getMyExpText();
    d.rel = e.getMyRelText();
    d.amb = e.getMyAmbText();
    d.job = e.getMyJobText();
    d.daysEmployed = std::to_string(e.getDaysEmployed());
    d.daysWorked = std::to_string(e.getDaysWorked());
    d.daysSick = std::to_string(e.getMySickDays());
    d.totalPaid = formatMoney(e.getMyPaid());
    d.seniority = std::to_string(e.getMySeniority());
    d.angerLevel = e.getMyAngerLevelText();
    d.face = e.faceLayers();
    return d;
}

std::string fireQuestion(const std::string& name) {
    return "Are you sure you want to fire " + name + "?";
}

} // namespace zorvane
