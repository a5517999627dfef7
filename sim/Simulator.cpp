#include "Simulator.h"

#include "core/GameError.h"

#include <filesystem>
#include <ostream>

namespace zorvane::sim {

void EchoScreen::logLine(const std::string& line, bool) {
    unread_.push_back(line);
    if (!quiet_)
        out_ << line << '\n';
}

Simulator::Simulator(SimOptions options, std::ostream& out)
    : options_(std::move(options)), out_(out) {
    screen_ = std::make_unique<EchoScreen>(out_, options_.quiet, unreadLog_);
    if (!options_.quiet)
        dialogs_.onTranscript = [this](const std::string& line) { out_ << line << '\n'; };
    GameSetup setup;
    setup.folder = options_.dataDir;
    setup.commandLine = options_.arg;
    setup.executable = (std::filesystem::path(options_.dataDir) / "zorvane").string();
    setup.seed = options_.seed;
    setup.screen = screen_.get();
    setup.dialogs = &dialogs_;
    setup.settings = &settings_;
    setup.sound = &sound_;
    game_ = std::make_unique<Game>(std::move(setup));
}

std::size_t Simulator::queueLeadingAnswers(const std::vector<std::string>& lines) {
    std::size_t i = 0;
    for (; i < lines.size(); ++i) {
        std::string command;
        Args args;
        if (!parseLine(lines[i], command, args))
            continue;
        if (command != "answer" && command != "input" && command != "file")
            break;
        runLine(lines[i], static_cast<int>(i + 1));
    }
    return i;
}

void Simulator::startup() {
    game_->startup();
    game_->goals.selectGoal(options_.goal); // the player's click in the goal list
    game_->startPlay(options_.goal);
}

void Simulator::runLine(const std::string& line, int lineNumber) {
    std::string command;
    Args args;
    if (!parseLine(line, command, args))
        return;
    const CommandTable& table = commandTable();
    const auto it = table.find(command);
    const std::string where = "script line " + std::to_string(lineNumber) + ": ";
    if (it == table.end())
        throw ScriptError(where + "unknown command '" + command + "'");
    const Command& cmd = it->second;
    const int n = static_cast<int>(args.size());
    if (n < cmd.minArgs || (cmd.maxArgs >= 0 && n > cmd.maxArgs))
        throw ScriptError(where + "wrong number of arguments for '" + command + "'");
    CommandContext ctx{*game_, dialogs_, out_, unreadLog_};
    try {
        cmd.run(ctx, args);
    } catch (const ScriptError& e) {
        throw ScriptError(where + e.what());
    }
}

int Simulator::run(const std::vector<std::string>& lines, std::ostream& err) {
    try {
        const std::size_t first = queueLeadingAnswers(lines);
        startup();
        for (std::size_t i = first; i < lines.size(); ++i)
            runLine(lines[i], static_cast<int>(i + 1));
    } catch (const ScriptError& e) {
        err << e.what() << '\n';
        return 2;
    } catch (const ProcessEnded& e) {
        out_ << "process ended: " << e.what() << '\n';
        return 0;
    } catch (const std::exception& e) {
        // The game's run-time errors, and whatever else the standard library throws: the
        // run ends as a fatal error, never as an abort.
        out_.flush();
        err << "fatal: " << e.what() << '\n';
        return 70;
    }
    return 0;
}

std::string defaultDataDir(const std::string& executablePath) {
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::path exe = fs::canonical(executablePath, ec);
    if (ec)
        exe = fs::absolute(executablePath);
    const fs::path dir = exe.parent_path();
    if (fs::exists(dir / "math.txt"))
        return dir.string();
    return (dir.parent_path() / "share" / "zorvane").string();
}

} // namespace zorvane::sim
