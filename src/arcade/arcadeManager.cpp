#include "arcade/arcadeManager.h"

namespace zorvane {

void arcadeManager::initArcades() { }
void arcadeManager::arcadesNextMonth() { }
void arcadeManager::arcadesNextYear() { }
void arcadeManager::doArcadeBusiness(int) { }

} // namespace zorvane
