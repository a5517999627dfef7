#include "advisor/TutorTexts.h"
#include "core/Text.h"
#include "support/SoundGame.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace zorvane;
using namespace zorvane::test;

namespace {

const char* const offAgain = "You can turn the advisor on again in settings";

int boxes(const ScriptedDialogs& d) {
    return static_cast<int>(std::count(d.asked.begin(), d.asked.end(), offAgain));
}

} // namespace

TEST(TutorTexts, ScriptHasSeventySevenStepsAndShowsOneAmpersand) {
    EXPECT_EQ(tutorScript(0), nullptr);
    EXPECT_EQ(tutorScript(78), nullptr);
    for (int step = 1; step <= tutorSteps; ++step)
        ASSERT_NE(tutorScript(step), nullptr) << step;
    EXPECT_STREQ(tutorScript(77), "Good luck!");
    EXPECT_EQ(labelText(tutorScript(60)),
              "You can click & drag the cabinet to move it wherever you want.  Then double-click "
              "it to get details about that game.");
    struct Case {
        const char* caption;
        const char* shown;
    };
    for (const Case& c : {Case{"a&&b", "a&b"}, Case{"&File", "File"}, Case{"x&", "x"},
                          Case{"&&&&", "&&"}, Case{"", ""}})
        EXPECT_EQ(labelText(c.caption), c.shown) << c.caption;
}

// Every live value, read from the game at the moment the step is shown.
TEST(TutorTexts, LiveValues) {
    SoundGame g;
    g.data.setMath({{"empvinnycost", "1500.5"},
                    {"showtimename1", "Dawn"},
                    {"showtimename2", "R&B Hour"},
                    {"showtimename3", "Tea {rent}"},
                    {"loanpaymentsmin", "7"},
                    {"loanpaymentsmax", "40"},
                    {"promomax", "250"}});
    Game& game = g.start();
    game.calendar.currentweek = 2;
    game.calendar.currentmonth = 4;
    game.building.rent = 12345;
    struct Case {
        int step;
        const char* text;
    };
    const Case cases[] = {
        {16, "If someone calls in sick and no one is available to fill the position for the day, "
             "your cousin Vinny will fill it, but that will cost you $1,500.50!"},
        {26, "Notice that the 'Dawn' and 'R&B Hour' showtimes are grey?  That's because they are "
             "set to matinee shows, which have cheaper ticket prices."},
        {28, "You can set a regular showtime to a matinee showtime, or a matinee showtime to a "
             "regular showtime, by clicking on it's time label.  Try it, click on the 'Tea "
             "{rent}' showtime."},
        {35, "Notice how the Current Day indicator has a '>>>' under it?  This indicates that it "
             "is now week 2 of this month."},
        {37, "The current month is 'May'.  You can see this because it's dark yellow.  After the "
             "4th week of the month, a new month will start."},
        {40, "Right now the rent is $12,345 a month, but the rent will probably go up over time."},
        {51, "You can set a loan to as short as 7 months to at long as 40 months."},
        {69, "The maximum promotion level you can get is 250, so if you can't achieve this with "
             "all TV spots, also buy some other media such as radio or newspaper."},
    };
    for (const Case& c : cases)
        EXPECT_EQ(tutorText(c.step, game), c.text) << "step " << c.step;
}

// "Play !" with the box ticked (an empty store) opens the advisor at step 1.
TEST(Tutor, StartsAtPlayWalksEveryStepAndClosesWithItsBox) {
    SoundGame g;
    Game& game = g.start();
    EXPECT_TRUE(game.tutor.visible);
    EXPECT_EQ(game.tutor.step, 1);
    EXPECT_EQ(game.tutor.lblTalk, tutorText(1, game));
    game.tutor.prevStep(); // the left arrow on step 1 stays
    EXPECT_EQ(game.tutor.step, 1);
    EXPECT_EQ(game.tutor.lblTalk, tutorText(1, game));
    for (int step = 2; step <= tutorSteps; ++step) {
        game.tutor.nextStep();
        ASSERT_EQ(game.tutor.step, step);
        ASSERT_EQ(game.tutor.lblTalk, tutorText(step, game));
    }
    game.tutor.prevStep();
    EXPECT_EQ(game.tutor.step, 76);
    game.tutor.nextStep();
    EXPECT_EQ(boxes(g.dialogs), 0);
    // The right arrow on 77 closes and switches the advisor off, with its box.
    game.tutor.nextStep();
    EXPECT_FALSE(game.tutor.visible);
    EXPECT_EQ(game.settingsBoxes.value(SettingsBox::Tutor), 0);
    EXPECT_EQ(g.stored("other", "tutor"), "0");
    EXPECT_EQ(boxes(g.dialogs), 1);
    EXPECT_EQ(game.tutor.lblTalk, "Undefined step: 78");
    // Started again, it begins at step 1 and is switched on.
    game.tutor.startTutor();
    EXPECT_TRUE(game.tutor.visible);
    EXPECT_EQ(game.tutor.step, 1);
    EXPECT_EQ(g.stored("other", "tutor"), "1");

    // The close button asks only while the box is ticked.
    game.tutor.endTutor();
    EXPECT_FALSE(game.tutor.visible);
    EXPECT_EQ(boxes(g.dialogs), 2);
    EXPECT_EQ(g.stored("other", "tutor"), "0");
    game.tutor.endTutor();
    EXPECT_EQ(boxes(g.dialogs), 2);
    // Cleared in the settings: hidden with no box, and the store is not written.
    game.tutor.startTutor();
    game.settingsBoxes.setBox(SettingsBox::Tutor, 0);
    EXPECT_FALSE(game.tutor.visible);
    EXPECT_EQ(boxes(g.dialogs), 2);
    EXPECT_EQ(g.stored("other", "tutor"), "1");
    // Ticked in the settings: the advisor starts.
    game.settingsBoxes.setBox(SettingsBox::Tutor, 1);
    EXPECT_TRUE(game.tutor.visible);
    EXPECT_EQ(game.tutor.step, 1);
}

// A step's figures are read each time it is shown: shown again after the rent rose, it
// shows the new rent.
TEST(Tutor, StepShownAgainShowsTheNewFigures) {
    SoundGame g;
    Game& game = g.start();
    while (game.tutor.step < 40)
        game.tutor.nextStep();
    game.building.rent = game.building.rent + 500;
    EXPECT_EQ(game.tutor.lblTalk.find(formatMoney(game.building.rent)), std::string::npos);
    game.tutor.nextStep();
    game.tutor.prevStep();
    EXPECT_NE(game.tutor.lblTalk.find(formatMoney(game.building.rent)), std::string::npos);
}
