#include "settings/SettingsBoxes.h"

#include "core/Numbers.h"
#include "session/Game.h"

namespace zorvane {

const std::array<SettingsBoxes::Box, 4>& SettingsBoxes::boxes() {
    static const std::array<Box, 4> table = {{
        {"chkSound", "Sound Effects", "sound", "effects", 1, "sound"},
        {"chkMusic", "Music", "sound", "music", 1, "music"},
        {"chkClick", "Button clicks", "sound", "click", 1, "click"},
        {"chkTutor", "Show Business Advisor", "other", "tutor", 1, "tutor"},
    }};
    return table;
}

void SettingsBoxes::setBox(SettingsBox which, int value) {
    const int v = value == 1 ? 1 : 0;
    int& held = values_[static_cast<std::size_t>(which)];
    if (held == v)
        return;
    held = v;
    game_.screen().refresh(View::Settings);
    handler(which);
}

// The store keeps text of a number; a box reads its leading number and is ticked only when
// that is 1 (text such as "1 " or "1.0" ticks it, "yes" or "2" clears it).
void SettingsBoxes::getReg() {
    for (std::size_t i = 0; i < boxes().size(); ++i) {
        const Box& b = boxes()[i];
        const std::string stored =
            game_.settings().get(b.section, b.key, std::to_string(b.defaultValue));
        setBox(static_cast<SettingsBox>(i), leadingNumber(stored) == 1 ? 1 : 0);
    }
}

void SettingsBoxes::writeBox(SettingsBox which) {
    const Box& b = box(which);
    game_.settings().set(b.section, b.key, std::to_string(value(which)));
}

// Sound effects, music and clicks are written at once: the screen has no OK button. The
// advisor's box writes nothing itself; startTutor and endTutor write it. Kept as it is:
// clearing the advisor's box by a click finds it already clear, so endTutor neither asks nor
// writes, and the store keeps "1" until the advisor is closed by its own button.
void SettingsBoxes::handler(SettingsBox which) {
    switch (which) {
    case SettingsBox::Sound:
    case SettingsBox::Click:
        writeBox(which);
        break;
    case SettingsBox::Music:
        writeBox(which);
        if (ticked(SettingsBox::Music))
            game_.soundBoard.startMusic();
        else
            game_.soundBoard.stopMusic();
        break;
    case SettingsBox::Tutor:
        if (ticked(SettingsBox::Tutor))
            game_.tutor.startTutor();
        else
            game_.tutor.endTutor();
        break;
    }
}

} // namespace zorvane
