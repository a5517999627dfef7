#pragma once
#include <string>
#include <string_view>

namespace zorvane {

class Game;

constexpr int tutorSteps = 77;

// A step's text as written, live values still named in braces; null outside 1 to 77.
const char* tutorScript(int step);
// A live value of the advisor's texts, read from the game now (empty for an unknown name).
std::string tutorValue(std::string_view name, const Game& game);
// A step's text with today's values: the money, the rent, the week marker, the month, the math
// keys as they stand at this moment. Empty outside 1 to 77.
std::string tutorText(int step, const Game& game);
// A caption as the advisor's label shows it: "&&" is one ampersand, a lone "&" is not shown.
std::string labelText(std::string_view caption);

} // namespace zorvane
