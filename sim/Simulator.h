#pragma once
#include "Commands.h"
#include "session/Game.h"

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace zorvane::sim {

struct SimOptions {
    std::string dataDir;
    std::string arg;
    std::uint64_t seed = 0;
    int goal = 0;
    bool quiet = false;
};

// The screen of a headless game: log lines are echoed as they are written.
class EchoScreen : public NullScreen {
  public:
    EchoScreen(std::ostream& out, bool quiet, std::vector<std::string>& unread)
        : out_(out), quiet_(quiet), unread_(unread) {}
    void logLine(const std::string& line, bool) override;

  private:
    std::ostream& out_;
    bool quiet_;
    std::vector<std::string>& unread_;
};

// Runs a script against one game: start-up, "Play !", then the commands in order.
class Simulator {
  public:
    Simulator(SimOptions options, std::ostream& out);

    // Queues the answer/input/file lines that stand before any other command, so that a
    // question during start-up takes them; returns the index of the first other line.
    std::size_t queueLeadingAnswers(const std::vector<std::string>& lines);
    void startup();
    // Runs one script line; throws ScriptError (with the line number) when it cannot.
    void runLine(const std::string& line, int lineNumber);
    // The whole run. Returns the process status: 0, 2 (bad script) or 70 (fatal error).
    int run(const std::vector<std::string>& lines, std::ostream& err);

    Game& game() { return *game_; }
    ScriptedDialogs& dialogs() { return dialogs_; }

  private:
    SimOptions options_;
    std::ostream& out_;
    std::vector<std::string> unreadLog_;
    ScriptedDialogs dialogs_;
    MemorySettings settings_;
    RecordingSound sound_;
    std::unique_ptr<EchoScreen> screen_;
    std::unique_ptr<Game> game_;
};

// The data folder beside an executable: its own folder when math.txt is there, else the
// installed share/zorvane beside its bin/.
std::string defaultDataDir(const std::string& executablePath);

} // namespace zorvane::sim
