#include "Commands.h"

#include "StateJson.h"
#include "Subsystems.h"

#include <charconv>

namespace zorvane::sim {

int Args::integer(std::size_t i) const {
    if (i >= words.size())
        throw ScriptError("a number is missing");
    const std::string& w = words[i];
    int value = 0;
    const auto [p, ec] = std::from_chars(w.data(), w.data() + w.size(), value);
    if (ec != std::errc() || p != w.data() + w.size())
        throw ScriptError("'" + w + "' is not a whole number");
    return value;
}

std::string Args::textFrom(std::size_t word) const {
    // Walk past `word` words of the text, keeping the rest as it stands.
    std::size_t pos = 0;
    for (std::size_t n = 0; n < word; ++n) {
        pos = text.find_first_not_of(" \t", pos);
        if (pos == std::string::npos)
            return "";
        pos = text.find_first_of(" \t", pos);
        if (pos == std::string::npos)
            return "";
    }
    pos = text.find_first_not_of(" \t", pos);
    return pos == std::string::npos ? "" : text.substr(pos);
}

bool parseLine(const std::string& raw, std::string& command, Args& args) {
    std::string line = raw;
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    const std::size_t first = line.find_first_not_of(" \t");
    if (first == std::string::npos || line[first] == '#')
        return false;
    const std::size_t end = line.find_first_of(" \t", first);
    command = line.substr(first, end == std::string::npos ? std::string::npos : end - first);
    args = Args{};
    if (end != std::string::npos) {
        const std::size_t restStart = line.find_first_not_of(" \t", end);
        if (restStart != std::string::npos)
            args.text = line.substr(restStart);
    }
    std::size_t pos = 0;
    while ((pos = args.text.find_first_not_of(" \t", pos)) != std::string::npos) {
        const std::size_t stop = args.text.find_first_of(" \t", pos);
        args.words.push_back(args.text.substr(pos, stop == std::string::npos ? stop : stop - pos));
        pos = stop;
    }
    return true;
}

namespace {

Answer answerFromWord(const std::string& word) {
    if (word == "yes")
        return Answer::Yes;
    if (word == "no")
        return Answer::No;
    if (word == "cancel")
        return Answer::Cancel;
    if (word == "ok")
        return Answer::Ok;
    throw ScriptError("'" + word + "' is no answer (yes, no, cancel, ok)");
}

} // namespace

void addCoreCommands(CommandTable& t) {
    t["day"] = {0, 1, [](CommandContext& c, const Args& a) {
                    const int n = a.size() ? a.integer(0) : 1;
                    if (n < 0)
                        throw ScriptError("a day count cannot be negative");
                    for (int i = 0; i < n; ++i)
                        c.game.calendar.nextDay();
                }};
    t["speed"] = {1, 1, [](CommandContext& c, const Args& a) { c.game.setSpeed(a.integer(0)); }};
    t["answer"] = {1, -1, [](CommandContext& c, const Args& a) {
                       std::vector<Answer> queued;
                       for (const std::string& w : a.words)
                           queued.push_back(answerFromWord(w));
                       c.dialogs.answers.insert(c.dialogs.answers.end(), queued.begin(),
                                                queued.end());
                   }};
    t["input"] = {0, -1,
                  [](CommandContext& c, const Args& a) { c.dialogs.inputs.push_back(a.text); }};
    t["file"] = {1, -1,
                 [](CommandContext& c, const Args& a) { c.dialogs.files.push_back(a.text); }};
    t["reloadmath"] = {0, 0, [](CommandContext& c, const Args&) { c.game.reloadMath(); }};
    t["quit"] = {0, 0, [](CommandContext& c, const Args&) { c.game.quitGame(); }};
    t["newgame"] = {0, 0, [](CommandContext& c, const Args&) { c.game.newGame(); }};
    t["state"] = {
        0, 0, [](CommandContext& c, const Args&) { c.out << gameState(c.game).dump() << '\n'; }};
    t["log"] = {0, 0, [](CommandContext& c, const Args&) {
                    for (const std::string& line : c.unreadLog)
                        c.out << line << '\n';
                    c.unreadLog.clear();
                }};
}

const CommandTable& commandTable() {
    static const CommandTable table = [] {
        CommandTable t;
        addCoreCommands(t);
        addStaffCommands(t);
        addBuildingCommands(t);
        addMovieCommands(t);
        addConcessionCommands(t);
        addArcadeCommands(t);
        addPromoCommands(t);
        addLoanCommands(t);
        addGoalCommands(t);
        addFileCommands(t);
        addGraphCommands(t);
        addSettingsCommands(t);
        return t;
    }();
    return table;
}

int playScript(Game& game, ScriptedDialogs& dialogs, std::istream& script, std::ostream& out) {
    std::vector<std::string> unread;
    CommandContext context{game, dialogs, out, unread};
    const CommandTable& table = commandTable();
    int ran = 0;
    std::string line;
    while (std::getline(script, line)) {
        std::string command;
        Args args;
        if (!parseLine(line, command, args))
            continue;
        const auto it = table.find(command);
        if (it == table.end())
            continue;
        try {
            it->second.run(context, args);
            ++ran;
        } catch (const ScriptError&) {
            // a line the game cannot take as written: skipped, as the window has no script
        }
    }
    return ran;
}

} // namespace zorvane::sim
