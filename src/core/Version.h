#pragma once
#include <string>

namespace zorvane {

// The program's version, "2.0.1": written into every saved game and compared with the
// mathver of a math file.
const std::string& programVersion();

} // namespace zorvane
