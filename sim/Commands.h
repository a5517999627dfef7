#pragma once
#include "core/DialogPort.h"
#include "session/Game.h"

#include <functional>
#include <istream>
#include <map>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

namespace zorvane::sim {

// A script line the simulator cannot understand: nothing of it is done, and the run ends
// with status 2 naming the line.
class ScriptError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// What a command works on.
struct CommandContext {
    Game& game;
    ScriptedDialogs& dialogs;
    std::ostream& out;
    std::vector<std::string>& unreadLog; // log lines written since the last `log`
};

// The words of a script line after the command; `text` is the rest of the line after the
// command as it stands (for commands that take TEXT).
struct Args {
    std::vector<std::string> words;
    std::string text;

    std::size_t size() const { return words.size(); }
    const std::string& operator[](std::size_t i) const { return words.at(i); }
    int integer(std::size_t i) const;             // a whole number, or ScriptError
    std::string textFrom(std::size_t word) const; // the line's rest from word `word` on
};

struct Command {
    int minArgs = 0;
    int maxArgs = 0; // -1: any number
    std::function<void(CommandContext&, const Args&)> run;
};

using CommandTable = std::map<std::string, Command>;

// Each subsystem adds its commands to the table.
void addCoreCommands(CommandTable& table);

// Every command the simulator knows.
const CommandTable& commandTable();

// Splits a script line into its command and arguments. Returns false for a blank line or
// a comment.
bool parseLine(const std::string& line, std::string& command, Args& args);

// Plays a script's command lines on a game of the caller's own (the game window's
// screenshots and benchmarks): what a line prints goes to `out`, a line this build does
// not understand is skipped. Returns how many lines ran.
int playScript(Game& game, ScriptedDialogs& dialogs, std::istream& script, std::ostream& out);

} // namespace zorvane::sim
