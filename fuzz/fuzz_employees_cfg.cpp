// Fuzz target of employees.cfg: the candidates' file read at start-up, then put to work.
//
// The input is the program folder's employees.cfg. The game starts on it (the start-up reads
// the file and the first day draws ten applicants from it), every applicant is hired into a
// rich theater, and the staff lives three days and a month, so that what a line's numbers
// feed (training cost, the post a hire goes to, sickness, learning, anger) runs on the
// file's values. The staff sections are then saved, read into a fresh game and saved again,
// and must not change: the names travel through the save. Then everyone is fired.
#include "FuzzSupport.h"

using namespace zorvane;
using namespace zorvane::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    writeInput("employees.cfg", data, size);
    FuzzGame game;
    bool played = false;
    runInput([&] {
        startRichGame(*game);
        employeeManager& staff = game->employees;
        while (staff.candidateCount() > 0)
            staff.hireEmployee(1);
        for (int day = 0; day < 3; ++day)
            game->calendar.nextDay();
        staff.employeesNextMonth();
        staff.refreshEmployeeGrid();
        played = true;
    });
    if (!played)
        return 0;
    checkSectionsRoundTrip(*game, {"<positions>", "<emps>"}, "staff sections");
    return runInput([&] {
        employeeManager& staff = game->employees;
        for (int n = staff.employeeCount(); n >= 1; --n)
            staff.fireEmployee(n);
    });
}
