#include "Subsystems.h"

namespace zorvane::sim {

// The file menu: "Save Theater", "Save As...", "Open Theater" (their dialogs take the queued
// `file` lines), and a load of a named file as the command line's autoload does it.
void addFileCommands(CommandTable& t) {
    t["save"] = {0, 0, [](CommandContext& c, const Args&) { c.game.files.saveGame(); }};
    t["saveas"] = {0, 0, [](CommandContext& c, const Args&) { c.game.files.saveAs(); }};
    t["open"] = {0, 0, [](CommandContext& c, const Args&) { c.game.files.openTheater(); }};
    t["load"] = {1, -1, [](CommandContext& c, const Args& a) { c.game.files.loadGame(a.text); }};
}

} // namespace zorvane::sim
