#pragma once
#include <array>
#include <string>

namespace zorvane {

class Game;

// The screens around the game that decide something: the title screen's buttons and the
// file menu. The windows only show these and pass the clicks on.

// The title screen's version button: "Zorvane v" and the program's version.
std::string versionCaption();
// What the version button writes to the title screen's status box.
std::string changesText();
// The version button (showChanges): the notes on this version go to the status box.
void showChanges(Game& game);
// The title screen's exit button. Before the first "Play !" the process ends at once, with
// no question; after it the title screen merely hides (the caller hides it).
void exitTitle(Game& game);

// The file menu's options, by index.
inline constexpr int fileOptionCount = 6;
inline constexpr std::array<const char*, fileOptionCount> fileOptionCaptions{
    "New Theater", "Open Theater", "Save Theater", "Save As...", "Quit Game", "Reload math"};
// Runs option `index` of the file menu; outside 0 to 5 it is a bounds error.
void runFileOption(Game& game, int index);

} // namespace zorvane
