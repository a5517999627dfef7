#pragma once
#include <array>
#include <string>

namespace zorvane {

class Game;

// The four boxes of the settings screen.
enum class SettingsBox { Sound, Music, Click, Tutor };

// The settings screen frmSettings without its window: four check boxes, each the live copy of a
// value of the per-user settings store. Setting a box to a new value runs its click handler,
// whether the player clicked it or the game set it (getReg at start-up), as the screen's boxes
// do. The window's boxes only mirror these values.
class SettingsBoxes {
  public:
    struct Box {
        const char* control; // chkSound ...
        const char* caption; // "Sound Effects" ...
        const char* section; // store section
        const char* key;     // store key
        int defaultValue;    // when the store lacks the key
        const char* name;    // the simulator's word: sound, music, click, tutor
    };
    static const std::array<Box, 4>& boxes();
    static const Box& box(SettingsBox which) { return boxes()[static_cast<std::size_t>(which)]; }

    explicit SettingsBoxes(Game& game) : game_(game) {}

    // The box's value, 0 or 1. A box is 0 until getReg sets it.
    int value(SettingsBox which) const { return values_[static_cast<std::size_t>(which)]; }
    bool ticked(SettingsBox which) const { return value(which) == 1; }

    // Sets a box to 0 or 1 as a click would; a new value runs the box's handler.
    void setBox(SettingsBox which, int value);

    // Start-up: reads the four keys (1 when missing) and sets the boxes.
    void getReg();

    // Writes a box's value to the store as the text of the number.
    void writeBox(SettingsBox which);

  private:
    void handler(SettingsBox which);

    Game& game_;
    std::array<int, 4> values_{};
};

} // namespace zorvane
