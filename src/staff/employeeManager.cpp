#include "staff/employeeManager.h"

namespace zorvane {

void employeeManager::positionsSetup() { }
void employeeManager::loadEmployeeDatabase() { }
void employeeManager::employeesNextDay() { }
void employeeManager::employeesNextMonth() { }
void employeeManager::savePositions(LineWriter&) const { }
void employeeManager::loadPositions(LineReader&) { }
void employeeManager::saveEmployees(LineWriter&) const { }
void employeeManager::loadEmployees(LineReader&) { }

} // namespace zorvane
