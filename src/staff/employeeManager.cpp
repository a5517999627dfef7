#include "staff/employeeManager.h"

namespace zorvane {

void employeeManager::positionsSetup() { }
void employeeManager::loadEmployeeDatabase() { }
void employeeManager::employeesNextDay() { }
void employeeManager::employeesNextMonth() { }

} // namespace zorvane
