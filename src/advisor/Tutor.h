#pragma once
#include "core/Numbers.h"

#include <string>

namespace zorvane {

class Game;

// The business advisor frmTutor without its window: a script of 77 steps that only its arrows
// move. It never looks at what the player did. The window shows `visible` and `shownText()`
// when it is told the advisor view is stale.
class Tutor {
  public:
    explicit Tutor(Game& game) : game_(game) {}

    Int16 step;          // the step shown, 1 to 77 in use; not saved with the game
    std::string lblTalk; // the label's caption as set ("&&" stands for one ampersand)
    bool visible = false;

    // Switches the advisor on (box ticked and written), shows it and starts at step 1.
    void startTutor();
    // Switches it off, with a word to the player, when its box is ticked; hides it always.
    void endTutor();
    // The right arrow: one step on; past step 77 the advisor switches off.
    void nextStep();
    // The left arrow: one step back, never below step 1.
    void prevStep();
    // Puts the step's text, with the values of this moment, into the label.
    void showStep();

    // The label's text as the player reads it.
    std::string shownText() const;

  private:
    void setVisible(bool shown);

    Game& game_;
};

} // namespace zorvane
