#pragma once
#include "core/MathVars.h"

#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace zorvane {

class DialogPort;

// One key of math.txt: its name, how its text becomes a value, and where it is stored.
struct MathKey {
    enum class Kind {
        Int16,    // leading number, rounded half to even, overflow fatal
        Floor16,  // leading number, floored (emphours)
        Strict16, // the whole value must be a number, then floored (concessNbuy)
        Double,   // leading number
        Text,     // trailing blanks removed
        Ignored,  // accepted and thrown away
        Version,  // mathver: compared with the program's version, not stored
    };
    std::string key;
    Kind kind;
    std::string array; // the field's name without index, e.g. "gamespeed"
    int index = -1;    // first index, -1 for a plain field
    int index2 = -1;   // second index (concessNqualM)
    // Where the value is stored; nothing for Ignored and Version.
    using Target = std::variant<std::monostate, Int16*, double*, std::string*>;
    std::function<Target(MathVars&)> target;
};

// Every key, in the order of the file.
const std::vector<MathKey>& mathKeys();

// Reads math.txt (or a .mth file) into the game's math variables.
class MathFile {
  public:
    // Reads the file. An empty path means the path of the last read, written back to it.
    // A file that cannot be opened, an int16 beyond 16 bits and a concessNbuy that is no
    // number are fatal. A mathver that differs asks whether to go on; No ends the process.
    void loadMath(MathVars& math, DialogPort& dialogs, std::string& path);
    const std::string& storedPath() const { return storedPath_; }

  private:
    void apply(MathVars& math, DialogPort& dialogs, const std::string& key,
               const std::string& value);
    std::string storedPath_;
};

} // namespace zorvane
