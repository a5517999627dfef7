#include "advisor/Tutor.h"

#include "advisor/TutorTexts.h"
#include "session/Game.h"

namespace zorvane {

void Tutor::startTutor() {
    game_.settingsBoxes.setBox(SettingsBox::Tutor, 1);
    game_.settingsBoxes.writeBox(SettingsBox::Tutor);
    setVisible(true);
    step = 0;
    nextStep();
}

// With the box already clear (the player cleared it in the settings) there is no word to the
// player and nothing is written. Unticking the box runs its handler, which comes back here and
// finds it clear.
void Tutor::endTutor() {
    if (game_.settingsBoxes.ticked(SettingsBox::Tutor)) {
        game_.dialogs().ask("You can turn the advisor on again in settings", Buttons::Ok);
        game_.settingsBoxes.setBox(SettingsBox::Tutor, 0);
        game_.settingsBoxes.writeBox(SettingsBox::Tutor);
    }
    setVisible(false);
}

// Kept as it is: past the last step the advisor closes and then shows step 78, so the hidden
// label holds "Undefined step: 78" until the advisor starts again.
void Tutor::nextStep() {
    step += 1;
    if (step > tutorSteps)
        endTutor();
    showStep();
}

void Tutor::prevStep() {
    step -= 1;
    if (step < 1)
        step = 1;
    showStep();
}

void Tutor::showStep() {
    lblTalk = "Undefined step:" + numberTextSigned(step);
    if (step >= 1 && step <= tutorSteps)
        lblTalk = tutorText(step, game_);
    game_.screen().refresh(View::Advisor);
}

std::string Tutor::shownText() const {
    return labelText(lblTalk);
}

void Tutor::setVisible(bool shown) {
    visible = shown;
    game_.screen().refresh(View::Advisor);
}

} // namespace zorvane
