#include "Subsystems.h"

namespace zorvane::sim {

namespace {

SettingsBox boxNamed(const std::string& name) {
    for (std::size_t i = 0; i < SettingsBoxes::boxes().size(); ++i)
        if (name == SettingsBoxes::boxes()[i].name)
            return static_cast<SettingsBox>(i);
    throw ScriptError("'" + name + "' is no settings box (sound, music, click, tutor)");
}

} // namespace

// The settings screen's boxes, the advisor's buttons and the main screen's mode buttons. The
// advisor's arrows and close button click as they are pressed.
void addSettingsCommands(CommandTable& t) {
    t["advisor"] = {1, 1, [](CommandContext& c, const Args& a) {
                        Tutor& tutor = c.game.tutor;
                        const std::string& what = a[0];
                        if (what == "start") {
                            tutor.startTutor();
                            return;
                        }
                        if (what != "next" && what != "prev" && what != "close")
                            throw ScriptError("'" + what +
                                              "' is no advisor button "
                                              "(start, next, prev, close)");
                        c.game.soundBoard.playClick();
                        if (what == "next")
                            tutor.nextStep();
                        else if (what == "prev")
                            tutor.prevStep();
                        else
                            tutor.endTutor();
                    }};
    t["settings"] = {2, 2, [](CommandContext& c, const Args& a) {
                         const SettingsBox box = boxNamed(a[0]);
                         const int value = a.integer(1);
                         if (value != 0 && value != 1)
                             throw ScriptError("a settings box is 0 or 1");
                         c.game.settingsBoxes.setBox(box, value);
                     }};
    t["mode"] = {1, 1, [](CommandContext& c, const Args& a) { c.game.switchMode(a.integer(0)); }};
}

// The advisor, the sound board and the four boxes; with the simulator's recording port, what
// was heard so far and whether the music plays.
void addSettingsState(Game& game, nlohmann::json& state) {
    state["advisorStep"] = static_cast<int>(game.tutor.step);
    state["advisorText"] = game.tutor.shownText();
    state["advisorVisible"] = game.tutor.visible;
    state["currentSound"] = static_cast<int>(game.soundBoard.currentSound);
    for (std::size_t i = 0; i < SettingsBoxes::boxes().size(); ++i)
        state[SettingsBoxes::boxes()[i].control] =
            game.settingsBoxes.value(static_cast<SettingsBox>(i));
    if (const auto* heard = dynamic_cast<const RecordingSound*>(&game.soundPort())) {
        state["soundsPlayed"] = heard->played;
        state["musicPlaying"] = heard->playing[SoundPort::musicPlayer];
    }
}

} // namespace zorvane::sim
