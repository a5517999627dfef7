#include "arcade/arcadeManager.h"

namespace zorvane {

void arcadeManager::initArcades() { }
void arcadeManager::arcadesNextMonth() { }
void arcadeManager::arcadesNextYear() { }
void arcadeManager::doArcadeBusiness(int) { }
void arcadeManager::saveArcades(LineWriter&) const { }
void arcadeManager::loadArcades(LineReader&) { }

} // namespace zorvane
